// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "TestSupport.h"

#include <QCryptographicHash>
#include <QImage>
#include <QtTest>

#include <csignal>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace TestSupport;

/// The whole program, used like by a script.
class ProgramTest : public QObject
{
    Q_OBJECT

    /// Runs the program. The expectation is the exit code, parts of the output, separated by " ...
    /// ", or "-" for none, and a part of the error, empty for none.
    static void run(const QString &program, const QStringList &arguments,
                    const QStringList &expectation)
    {
        const QString output = expectation.at(1);
        const QByteArray error = expectation.at(2).toUtf8();
        QProcess process;
        process.start(program, arguments);
        QVERIFY(process.waitForFinished(20000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        const QString seen = QString::fromUtf8(process.readAllStandardOutput());
        const QByteArray errors = process.readAllStandardError();
        QVERIFY2(process.exitCode() == expectation.at(0).toInt(), errors);
        for (const QString &part : output.split(" ... "))
            QVERIFY2(output == "-" ? seen.isEmpty() : seen.contains(part), qPrintable(seen));
        // Qt may warn about the environment of the test.
        QCOMPARE(errors.count("diagnosis-host:"), error.isEmpty() ? 0 : 1);
        QVERIFY2(errors.contains(error) && !errors.contains("DiagnosticsUIPlugin: "), errors);
    }

private Q_SLOTS:
    void commandLine_data() { addRows(TEST_SOURCE_DIR "/program.txt", "command line"); }
    void commandLine()
    {
        QFETCH(QStringList, fields);
        const QByteArray sum = QCryptographicHash::hash(
            contentOf(DIAG_SOURCE_DIR "/config/DiagnosisConfig.xml"), QCryptographicHash::Sha256);
        fields.replaceInStrings("@SOURCE@", DIAG_SOURCE_DIR)
            .replaceInStrings("@VERSION@", HOST_VERSION)
            .replaceInStrings("@QT@", qVersion())
            .replaceInStrings("@SUM@", sum.toHex());
        run(HOST_PROGRAM, fields.at(1).split(' '), fields.mid(2));
    }

    void badPlugin_data() { addRows(TEST_SOURCE_DIR "/program.txt", "bad plug-ins"); }
    /// In a tree like an installed one, at another place, with another plug-in.
    void badPlugin()
    {
        QFETCH(QStringList, fields);
        const QTemporaryDir root;
        const QDir built(DIAG_BINARY_DIR);
        const QString libraries = HOST_LIBRARY_DIR "/";
        const QString plugins = HOST_PLUGIN_DIR "/";
        for (const QString &folder : QStringList{"bin", plugins, "share"})
            QVERIFY(QDir(root.path()).mkpath(folder));
        const QString program = root.filePath("bin/diagnosis-host");
        QVERIFY(QFile::copy(HOST_PROGRAM, program));
        for (const QString &file : {libraries + "libcore.so", libraries + "libsdk.so",
                                    plugins + "DiagnosisConfig.xml", QString(HOST_DATA_DIR)})
            QVERIFY(QFile::link(built.filePath(file), root.filePath(file)));
        // A broken link does not count as a file.
        QVERIFY(QFile::link(TEST_PLUGINS "/" + fields.at(1),
                            root.filePath(plugins + "libDiagnosisPlugin.so")));
        const QString log = root.filePath("log");
        run("sh",
            {"-c", "ulimit -c 0; \"$0\" \"$@\"; exit $?", program, "--open", "--modem", "wcdma",
             "--log", log},
            fields.mid(2));
        QVERIFY2(contentOf(log).endsWith(fields.value(5).toUtf8()), contentOf(log));
    }

    void surroundings_data() { addRows(TEST_SOURCE_DIR "/program.txt", "surroundings"); }
    /// Without a display the program ends by itself. It leaves nothing but pictures.
    void surroundings()
    {
        QFETCH(QStringList, fields);
        const QTemporaryDir folder;
        fields.replaceInStrings("@FOLDER@", folder.path());
        const QStringList variables = {"XDG_CACHE_HOME=/dev/null",
                                       "XDG_RUNTIME_DIR=" + folder.path(), "HOME=" + folder.path(),
                                       "TMPDIR=" + folder.path()};
        run("env",
            QStringList{"-uDISPLAY", "-uWAYLAND_DISPLAY", "-uXDG_CONFIG_HOME", "-uXDG_DATA_HOME"} +
                fields.at(1).split(' ') + variables + QStringList{HOST_PROGRAM} +
                fields.at(2).split(' '),
            fields.mid(3));
        QDirIterator left(folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        int pictures = 0;
        for (; left.hasNext(); ++pictures)
            QCOMPARE(QImage(left.next()).size(), QSize(460, 426));
        QCOMPARE(pictures, fields.at(6).toInt());
    }

    /// If the disk is full, the earlier report stays as it was, and there is no other file. Else
    /// the new one takes its place.
    void reportNotWritten()
    {
        const QTemporaryDir folder;
        QFile earlier(folder.filePath("report"));
        QVERIFY(earlier.open(QIODevice::ReadWrite) && earlier.write("earlier") && earlier.flush());
        run("sh",
            {"-c", "trap '' XFSZ; ulimit -f 0; exec \"$0\" \"$@\"", HOST_PROGRAM, "--modem",
             "wcdma", "--report", earlier.fileName()},
            {"6", "-", "report: File too large"});
        QCOMPARE(contentOf(earlier.fileName()), QByteArray("earlier"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("report"));
        run(HOST_PROGRAM, {"--modem", "wcdma", "--report", earlier.fileName()}, {"0", "-", ""});
        QVERIFY(contentOf(earlier.fileName()).startsWith("Report\n"));
    }

    void reportToPipe()
    {
        const QTemporaryDir folder;
        const QString pipe = folder.filePath("pipe");
        run("sh",
            {"-c", "mkfifo \"$0\"; timeout 5 cat \"$0\" & \"$@\" \"$0\"; code=$?; wait; exit $code",
             pipe, HOST_PROGRAM, "--modem", "wcdma", "--report"},
            {"0", "IMEI: 001017003100016\n", ""});
        QVERIFY(QFile::exists(pipe) && !QFileInfo(pipe).isFile());
    }

    /// A bus that accepts the connection and then does not answer. Qt waits for it.
    void hangingBus()
    {
        const QTemporaryDir folder;
        const QByteArray path = QFile::encodeName(folder.filePath("bus"));
        const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
        QCOMPARE(bind(listener, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
        QCOMPARE(listen(listener, 5), 0);
        run("env",
            {"DBUS_SYSTEM_BUS_ADDRESS=unix:path=" + path, HOST_PROGRAM, "--modem", "modemmanager",
             "--language", "en", "--print"},
            {"9", "IMEI: Unknown\n", "has not answered yet"});
        close(listener);
    }

    /// Without X11 Qt is asked for Wayland first, which it lacks or does not reach here.
    void wayland()
    {
        QProcess process;
        process.start("env", {"-uDISPLAY", "-uQT_QPA_PLATFORM", "WAYLAND_DISPLAY=none",
                              HOST_PROGRAM, "--modem", "wcdma", "--print"});
        QVERIFY(process.waitForFinished(20000));
        QCOMPARE(process.exitCode(), 0);
        const QByteArray errors = process.readAllStandardError();
        QVERIFY2(errors.contains("plugin \"wayland\"") || errors.contains("wl_display"), errors);
    }

    /// The program detaches the modem and ends, as if its window was closed.
    void signal_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("the terminal is closed") << SIGHUP;
        QTest::newRow("Ctrl+C") << SIGINT;
        QTest::newRow("the session ends") << SIGTERM;
    }
    void signal()
    {
        QFETCH(int, number);
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        // As nohup does, and a shell for a program in the background.
        const int ignored = number == SIGINT ? SIGHUP : SIGINT;
        process.start("sh", {"-c", QString("trap '' %1; exec \"$0\" \"$@\"").arg(ignored),
                             HOST_PROGRAM, "--modem", "wcdma", "--open", "--log", "-"});
        QByteArray log;
        while (!log.contains("Creation of dialog is successful") && process.waitForReadyRead())
            log += process.readAll();
        QVERIFY2(log.contains("Creation of dialog is successful"), log);
        QCOMPARE(kill(pid_t(process.processId()), ignored), 0);
        QVERIFY(!process.waitForFinished(100));
        QCOMPARE(kill(pid_t(process.processId()), number), 0);
        QVERIFY(process.waitForFinished(20000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        QVERIFY(process.readAll().contains("UnRegisterDevice: Exited"));
    }

    void pictureAndLog()
    {
        const QTemporaryDir folder;
        const QString picture = folder.filePath("window");
        const QString log = folder.filePath("log");
        run(HOST_PROGRAM,
            {"--modem", "wcdma", "--screenshot", picture, "--tab", "SIM/USIM", "--log", log},
            {"0", "-", ""});
        const QImage image(picture, "PNG");
        QCOMPARE(image.size(), QSize(460, 426));
        run(HOST_PROGRAM,
            {"--modem", "wcdma", "--screenshot", picture, "--tab", "SIM/USIM", "-style", "windows"},
            {"0", "-", ""});
        QCOMPARE(QImage(picture, "PNG"), image); // the host has a style of its own
        QVERIFY(contentOf(log).contains(
            "../../src/DiagnosisPlugin/DiagnosticsUIPlugin: ShowWindow: called\n"));
    }
};

QTEST_GUILESS_MAIN(ProgramTest)
#include "program.moc"
