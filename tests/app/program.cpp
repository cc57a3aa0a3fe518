// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "support/Rows.h"

#include <QCryptographicHash>
#include <QImage>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// The whole program, as a script would use it.
class ProgramTest : public QObject
{
    Q_OBJECT

    /// Runs the program and compares what comes of it with the row.
    static void run(const QString &program, const QStringList &arguments)
    {
        QFETCH(QByteArray, code);
        QFETCH(QByteArray, output);
        QFETCH(QByteArray, error);
        QProcess process;
        process.start(program, arguments);
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        const QByteArray seen = process.readAllStandardOutput();
        const QByteArray errors = process.readAllStandardError();
        QVERIFY2(QByteArray::number(process.exitCode()) == code, errors);
        QVERIFY2(output == "-" ? seen.isEmpty() : seen.contains(output), seen);
        // The toolkit may warn of the test's surroundings.
        QCOMPARE(errors.count("diagnosis-host:"), error.isEmpty() ? 0 : 1);
        QVERIFY2(errors.contains(error), errors);
    }

private Q_SLOTS:
    void usage_data() { addRows("usage.txt", {"arguments", "code", "output", "error"}); }
    void usage()
    {
        QFETCH(QByteArray, arguments);
        run(QStringLiteral(HOST_PROGRAM),
            QString::fromLatin1(arguments)
                .split(QLatin1Char(' '))
                .replaceInStrings(QStringLiteral("@SOURCE@"), QStringLiteral(DIAG_SOURCE_DIR)));
    }

    void badPlugin_data() { addRows("bad_plugins.txt", {"plugin", "code", "output", "error"}); }
    /// In a tree like the installed one, at another place, with the plug-in exchanged.
    void badPlugin()
    {
        QFETCH(QByteArray, plugin);
        const QTemporaryDir root;
        const QDir built(QStringLiteral(DIAG_BINARY_DIR));
        const QString libraries = QStringLiteral(HOST_LIBRARY_DIR "/");
        const QString plugins = libraries + QStringLiteral("plugins/DiagnosisPlugin/");
        for (const QString &folder : {QStringLiteral("bin"), plugins, QStringLiteral("share")})
            QVERIFY(QDir(root.path()).mkpath(folder));
        const QString program = root.filePath(QStringLiteral("bin/diagnosis-host"));
        QVERIFY(QFile::copy(QStringLiteral(HOST_PROGRAM), program));
        for (const QString &file :
             {libraries + QStringLiteral("libcore.so"), libraries + QStringLiteral("libsdk.so"),
              QStringLiteral(HOST_DATA_DIR)})
            QVERIFY(QFile::link(built.filePath(file), root.filePath(file)));
        // A link to nothing is no file.
        QVERIFY(QFile::link(QStringLiteral(TEST_PLUGINS "/") + QLatin1String(plugin),
                            root.filePath(plugins + QStringLiteral("libDiagnosisPlugin.so"))));
        run(program,
            {QStringLiteral("--open"), QStringLiteral("--modem"), QStringLiteral("wcdma")});
    }

#ifdef WITH_DIAGNOSIS_PLUGIN
    void realPlugin_data()
    {
        addRows("real_plugin.txt", {"arguments", "code", "output", "error"});
    }
    void realPlugin()
    {
        usage();
    }

    void report_data()
    {
        addRows("reports.txt", {"arguments", "golden"});
    }
    /// To a file, with the time zone, and where no window could be seen.
    void report()
    {
        QFETCH(QByteArray, arguments);
        QFETCH(QByteArray, golden);
        const QTemporaryDir folder;
        QFile written(folder.filePath(QStringLiteral("report")));
        QFile expected(QStringLiteral(TEST_SOURCE_DIR "/") + QLatin1String(golden));
        QFile configuration(QStringLiteral(DIAG_SOURCE_DIR "/config/DiagnosisConfig.xml"));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TZ"), QStringLiteral("<+05>-5"));
        environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":none"));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(HOST_PROGRAM),
                      QString::fromLatin1(arguments).split(QLatin1Char(' ')) +
                          QStringList({QStringLiteral("--report"), written.fileName()}));
        QVERIFY(process.waitForFinished(60000));
        QVERIFY2(process.exitCode() == 0, process.readAllStandardError());
        QVERIFY(written.open(QIODevice::ReadOnly) && expected.open(QIODevice::ReadOnly) &&
                configuration.open(QIODevice::ReadOnly));
        QString text = QString::fromUtf8(written.readAll());
        text.replace(
            QRegularExpression(QStringLiteral("\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d")),
            QStringLiteral("@DATE@"));
        const QByteArray wanted =
            expected.readAll()
                .replace("@QT@", qVersion())
                .replace("@VERSION@", HOST_VERSION)
                .replace("@SUM@", QCryptographicHash::hash(configuration.readAll(),
                                                           QCryptographicHash::Sha256)
                                      .toHex());
        QCOMPARE(text.split(QLatin1Char('\n')), QString::fromUtf8(wanted).split(QLatin1Char('\n')));
    }

    /// A disk that is full leaves the earlier report as it was, and nothing beside it.
    void reportNotWritten()
    {
        const QTemporaryDir folder;
        QFile earlier(folder.filePath(QStringLiteral("report")));
        QVERIFY(earlier.open(QIODevice::ReadWrite) && earlier.write("earlier") && earlier.flush());
        QProcess process;
        process.start(QStringLiteral("sh"),
                      {QStringLiteral("-c"),
                       QStringLiteral("trap '' XFSZ; ulimit -f 0; exec \"$0\" \"$@\""),
                       QStringLiteral(HOST_PROGRAM), QStringLiteral("--modem"),
                       QStringLiteral("wcdma"), QStringLiteral("--report"), earlier.fileName()});
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), 6);
        QVERIFY(process.readAllStandardError().contains("report: File too large"));
        QVERIFY(earlier.seek(0));
        QCOMPARE(earlier.readAll(), QByteArray("earlier"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("report")));
    }

    /// A bus that takes the connection and then says nothing, which the toolkit waits for.
    void hangingBus()
    {
        const QTemporaryDir folder;
        const QByteArray path = QFile::encodeName(folder.filePath(QStringLiteral("bus")));
        const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
        QCOMPARE(bind(listener, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
        QCOMPARE(listen(listener, 5), 0);
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"),
                           QStringLiteral("unix:path=") + QFile::decodeName(path));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(HOST_PROGRAM),
                      {QStringLiteral("--modem"), QStringLiteral("modemmanager"),
                       QStringLiteral("--language"), QStringLiteral("en"),
                       QStringLiteral("--print")});
        QVERIFY(process.waitForFinished(60000));
        close(listener);
        QCOMPARE(process.exitCode(), 0);
        QVERIFY(process.readAllStandardOutput().contains("IMEI: Unknown\n"));
        QVERIFY(process.readAllStandardError().contains("has answered yet"));
    }

    void pictureAndLog()
    {
        const QTemporaryDir folder;
        const QString picture = folder.filePath(QStringLiteral("window"));
        QFile log(folder.filePath(QStringLiteral("log")));
        QProcess process;
        process.start(QStringLiteral(HOST_PROGRAM),
                      {QStringLiteral("--modem"), QStringLiteral("wcdma"),
                       QStringLiteral("--screenshot"), picture, QStringLiteral("--tab"),
                       QStringLiteral("SIM/USIM"), QStringLiteral("--log"), log.fileName()});
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(process.readAllStandardOutput(), QByteArray());
        QVERIFY(!process.readAllStandardError().contains("DiagnosticsUIPlugin: "));
        QCOMPARE(QImage(picture, "PNG").size(), QSize(460, 426));
        QVERIFY(log.open(QIODevice::ReadOnly));
        QVERIFY(log.readAll().contains(
            "../../src/DiagnosisPlugin/DiagnosticsUIPlugin: ShowWindow: called\n"));
    }
#endif
};

QTEST_GUILESS_MAIN(ProgramTest)
#include "program.moc"
