// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "TestSupport.h"

#include <QtTest>

#include <sys/stat.h>

using namespace TestSupport;

/// The program beside bad files and on full disks.
class FaultsTest : public QObject
{
    Q_OBJECT

    struct Outcome
    {
        int code;
        QString output;
        QString error;
    };

    /// Runs a shell's command; "$0" is the program. It must not take 10 s.
    static Outcome run(const QString &command, const QString &program = HOST_PROGRAM)
    {
        QProcess process;
        process.start("sh", {"-c", command, program});
        const bool ended = process.waitForFinished(10000);
        return {ended && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput(), process.readAllStandardError()};
    }

    /// Links the program's files into another folder, in which some can then be exchanged.
    static QString linkedProgram(const QDir &root)
    {
        const QDir built(DIAG_BINARY_DIR);
        const QStringList folders = {"bin", HOST_PLUGIN_DIR, HOST_DATA_DIR "/translations"};
        for (const QString &folder : folders)
            root.mkpath(folder);
        QFile::copy(HOST_PROGRAM, root.filePath("bin/diagnosis-host"));
        for (const char *file :
             {HOST_LIBRARY_DIR "/libcore.so", HOST_LIBRARY_DIR "/libsdk.so",
              HOST_PLUGIN_DIR "/libDiagnosisPlugin.so", HOST_PLUGIN_DIR "/DiagnosisConfig.xsd",
              HOST_DATA_DIR "/modems", HOST_DATA_DIR "/translations/host_de.qm"})
            QFile::link(built.filePath(file), root.filePath(file));
        return root.filePath("bin/diagnosis-host");
    }

    static void write(const QString &fileName, const QByteArray &content)
    {
        QFile file(fileName);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

private Q_SLOTS:
    void configuration_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("head");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("check");
        // clang-format off
        const struct { const char *name; const char *kind; const char *head; int code; const char *check; } rows[] = {
            {"whole", "<veltdoc/>", "SHA-256 8b21044684fe3e1a7a4704538d2ea3e19f3d4290ac2311230ef06a86c65b9cf0", 7, "1:1: "},
            {"broken", "<veltdoc>\n <tab", ", broken at line 2, column 5", 7, "2:6: "},
            {"empty", "", ", broken at line 1, column 0", 7, "1:1: "},
            {"missing", "missing", "missing", 8, "No such file"},
            {"link to nothing", "link /nonexistent", "missing", 8, "No such file"},
            {"link to what fails", "link /proc/self/mem", "cannot be read: Input/output error", 8, "Input/output error"},
            {"pipe", "pipe", "cannot be read: not a regular file", 8, "not a regular file"},
            {"folder", "folder", "cannot be read: not a regular file", 8, "not a regular file"},
            {"large", "large", "cannot be read: larger than 16777216 bytes", 8, "larger than 262144 bytes"},
        };
        // clang-format on
        for (const auto &row : rows)
            QTest::newRow(row.name)
                << QString(row.kind) << QString(row.head) << row.code << QString(row.check);
    }

    /// A report is written beside any configuration, and says what is wrong with it.
    void configuration()
    {
        QFETCH(QString, kind);
        QFETCH(QString, head);
        QFETCH(QString, check);
        const QTemporaryDir folder;
        const QString program = linkedProgram(folder.path());
        write(folder.filePath(HOST_DATA_DIR "/translations/host_en.qm"),
              contentOf(DIAG_BINARY_DIR "/" HOST_DATA_DIR "/translations/host_en.qm"));
        const QString file = folder.filePath(HOST_PLUGIN_DIR "/DiagnosisConfig.xml");
        if (kind == "pipe")
            QCOMPARE(mkfifo(QFile::encodeName(file).constData(), 0600), 0);
        else if (kind.startsWith("link "))
            QVERIFY(QFile::link(kind.mid(5), file));
        else if (kind == "folder")
            QVERIFY(QDir().mkdir(file));
        else if (kind == "large")
            QVERIFY(run("truncate -s 16777217 '" + file + "'").code == 0);
        else if (kind != "missing")
            write(file, kind.toUtf8());
        const Outcome report = run("\"$0\" --report --modem wcdma --language en", program);
        QCOMPARE(report.code, 0);
        const QString line = report.output.section("\n  Configuration: ", 1).section('\n', 0, 0);
        QVERIFY2(line.endsWith(head), qPrintable(line));
        const Outcome checked = run("\"$0\" --language en --check-config '" + file + "'", program);
        QTEST(checked.code, "code");
        // The host says why there is no configuration, and names what a link leads to.
        const bool isRead = line.startsWith("SHA-256");
        const QString named = kind.startsWith("link ") ? kind.mid(5) : file;
        const QString told = report.error.section("diagnosis-host: ", 1).section('\n', 0, 0);
        QCOMPARE(told, isRead ? QString() : named + ": " + head);
        QVERIFY2((checked.output + checked.error).contains(check), qPrintable(checked.error));
    }

    void full_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("error");
        // No display is needed for these.
        for (const char *option : {"--help", "-v", "--list-modems"})
            QTest::newRow(option)
                << QString("QT_QPA_PLATFORM=xcb \"$0\" %1 >/dev/full").arg(option) << 6
                << "diagnosis-host: cannot write to standard output: No space left on device\n";
        QTest::newRow("log") << "\"$0\" --print --modem wcdma --log /dev/full >/dev/null" << 0
                             << "diagnosis-host: the log is incomplete: No space left on device\n";
    }

    /// What finds no room is told, once.
    void full()
    {
        QFETCH(QString, command);
        QFETCH(QString, error);
        const Outcome outcome = run("unset DISPLAY WAYLAND_DISPLAY; " + command);
        QTEST(outcome.code, "code");
        QVERIFY2(outcome.error.endsWith(error), qPrintable(outcome.error));
        QCOMPARE(outcome.error.count("diagnosis-host:"), 1);
    }

    void brokenTranslation()
    {
        const QTemporaryDir folder;
        const QString program = linkedProgram(folder.path());
        write(folder.filePath(HOST_DATA_DIR "/translations/host_en.qm"), "broken");
        const Outcome outcome = run("\"$0\" --report --modem wcdma --language en", program);
        QCOMPARE(outcome.code, 8);
        QVERIFY2(outcome.error.contains("/translations/host_en.qm is broken"),
                 qPrintable(outcome.error));
    }
};

QTEST_GUILESS_MAIN(FaultsTest)
#include "faults.moc"
