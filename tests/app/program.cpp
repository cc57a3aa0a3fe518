// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Outcome
{
    int code;
    QByteArray output;
    QByteArray errors;
};

Outcome runProgram(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, process.readAllStandardOutput(), process.readAllStandardError()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

/// Whether the program's own message is there; the toolkit may warn of the test's surroundings.
bool says(const Outcome &outcome, const QByteArray &text)
{
    return (text.isEmpty() && !outcome.errors.contains("diagnosis-host:")) ||
           (outcome.errors.count("diagnosis-host:") == 1 && outcome.errors.contains(text));
}

} // namespace

/// The whole program, as a script would use it.
class ProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void usage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QByteArray>("error");
        const QByteArray none;
        const auto row = [](const char *name, const char *arguments, int code,
                            const QByteArray &output, const QByteArray &error) {
            QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' ')) << code
                                << output << error;
        };
        row("option", "--nope", 1, none, "nope");
        row("argument", "wcdma", 1, none, "wcdma");
        row("modem", "--modem ../host", 1, none, "cdma, cdma-pesn, cdma-roaming, failing");
        row("language", "--language xx", 1, none, "de, en");
        row("log", "--log /nonexistent/log", 6, none, "/nonexistent/log");
        row("help", "--help", 0, "  6  a file could not be written", none);
        row("version", "--version", 0, HOST_VERSION, none);
        row("modems", "--list-modems", 0, "td-scdma\nwcdma\n", none);
    }

    void usage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QByteArray, output);
        QFETCH(QByteArray, error);
        const Outcome outcome = runProgram(QStringLiteral(HOST_PROGRAM), arguments);
        QCOMPARE(outcome.code, code);
        QVERIFY2(outcome.output.contains(output), outcome.output);
        QVERIFY2(says(outcome, error), outcome.errors);
    }

    void badPlugins_data()
    {
        QTest::addColumn<QString>("plugin");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("error");
        const QString prefix = QStringLiteral(TEST_PLUGINS);
        QTest::newRow("missing") << QString() << 2 << QByteArray("no such file");
        QTest::newRow("no plug-in") << QStringLiteral(TEST_SOURCE_DIR "/program.cpp") << 2
                                    << QByteArray("libDiagnosisPlugin.so");
        QTest::newRow("wrong interface") << prefix + QStringLiteral("wrong_interface.so") << 3
                                         << QByteArray("com.velt.IUIPlugin");
        QTest::newRow("Init fails")
            << prefix + QStringLiteral("init_fails.so") << 4 << QByteArray("initialisation failed");
        QTest::newRow("no window")
            << prefix + QStringLiteral("good.so") << 5 << QByteArray("could not be opened");
    }

    /// In a tree like the installed one, at another place, with the plug-in exchanged.
    void badPlugins()
    {
        QFETCH(QString, plugin);
        QFETCH(int, code);
        QFETCH(QByteArray, error);
        const QTemporaryDir root;
        const QDir built(QStringLiteral(DIAG_BINARY_DIR));
        const QString libraries = QStringLiteral(HOST_LIBRARY_DIR "/");
        const QString plugins = libraries + QStringLiteral("plugins/DiagnosisPlugin");
        for (const QString &folder : {QStringLiteral("bin"), plugins, QStringLiteral("share")})
            QVERIFY(QDir(root.path()).mkpath(folder));
        const QString program = root.filePath(QStringLiteral("bin/diagnosis-host"));
        QVERIFY(QFile::copy(QStringLiteral(HOST_PROGRAM), program));
        for (const QString &file :
             {libraries + QStringLiteral("libcore.so"), libraries + QStringLiteral("libsdk.so"),
              QStringLiteral(HOST_DATA_DIR)})
            QVERIFY(QFile::link(built.filePath(file), root.filePath(file)));
        if (!plugin.isNull())
            QVERIFY(QFile::link(plugin,
                                root.filePath(plugins + QStringLiteral("/libDiagnosisPlugin.so"))));
        const Outcome outcome = runProgram(program, {QStringLiteral("--open")});
        QCOMPARE(outcome.code, code);
        QVERIFY2(says(outcome, error), outcome.errors);
        QCOMPARE(outcome.output, QByteArray());
    }

#ifdef WITH_DIAGNOSIS_PLUGIN
    void realPlugin_data()
    {
        QTest::addColumn<QString>("modem");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("expected");
        const QString wcdma = QStringLiteral("wcdma");
        QTest::newRow("values") << wcdma << QStringList() << 0
                                << QByteArray("  IMEI: 001017003100016\n");
        QTest::newRow("a tab that only a visit fills")
            << wcdma << QStringList() << 0
            << QByteArray("\nNetwork status\n  Network name: Test Net One\n");
        QTest::newRow("German") << wcdma
                                << QStringList({QStringLiteral("--language"), QStringLiteral("de")})
                                << 0 << QByteArray("  CS-Registrierung: Registriert\n");
        QTest::newRow("nothing known")
            << QStringLiteral("failing") << QStringList() << 0 << QByteArray("  IMEI: Unknown\n");
        QTest::newRow("the window of CDMA devices") << QStringLiteral("cdma-pesn") << QStringList()
                                                    << 0 << QByteArray("  Pseudo-ESN: 80D41F07\n");
        QTest::newRow("unknown tab")
            << wcdma << QStringList({QStringLiteral("--tab"), QStringLiteral("Nope")}) << 1
            << QByteArray();
        QTest::newRow("picture not written")
            << wcdma << QStringList({QStringLiteral("--screenshot"), QStringLiteral("/none/x.png")})
            << 6 << QByteArray();
    }

    void realPlugin()
    {
        QFETCH(QString, modem);
        QFETCH(QStringList, options);
        QFETCH(int, code);
        QFETCH(QByteArray, expected);
        const Outcome outcome = runProgram(
            QStringLiteral(HOST_PROGRAM),
            QStringList({QStringLiteral("--print"), QStringLiteral("--modem"), modem}) + options);
        QVERIFY2(outcome.code == code, outcome.errors);
        QVERIFY2(outcome.output.contains(expected), outcome.output);
    }

    void pictureAndLog()
    {
        const QTemporaryDir folder;
        const QString picture = folder.filePath(QStringLiteral("window"));
        const QString log = folder.filePath(QStringLiteral("log"));
        const Outcome outcome =
            runProgram(QStringLiteral(HOST_PROGRAM),
                       {QStringLiteral("--screenshot"), picture, QStringLiteral("--tab"),
                        QStringLiteral("SIM/USIM"), QStringLiteral("--log"), log});
        QVERIFY2(outcome.code == 0, outcome.errors);
        QCOMPARE(outcome.output, QByteArray());
        QVERIFY(!outcome.errors.contains("DiagnosticsUIPlugin: "));
        QCOMPARE(QImage(picture, "PNG").size(), QSize(460, 426));
        QFile file(log);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains(
            "../../src/DiagnosisPlugin/DiagnosticsUIPlugin: ShowWindow: called\n"));
    }
#endif
};

QTEST_GUILESS_MAIN(ProgramTest)
#include "program.moc"
