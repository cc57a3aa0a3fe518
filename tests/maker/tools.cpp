// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "TestSupport.h"

#include <QProcess>
#include <QtTest>

using namespace TestSupport;

/// What a maker of a host does: checks an SDK, and puts the module into a host of few lines.
class MakerTools : public QObject
{
    Q_OBJECT

    struct Outcome
    {
        int code;
        QString output;
        QString errors;
    };

    static Outcome run(const QString &program, const QStringList &arguments,
                       const QStringList &variables = {})
    {
        QProcess process;
        process.setEnvironment(QProcess::systemEnvironment() + variables);
        process.start(program, arguments);
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
            return {-1, {}, process.errorString()};
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }

private Q_SLOTS:
    void modem_data() { addRows(TEST_SOURCE_DIR "/tools.txt", "modems"); }
    void modem()
    {
        QFETCH(QStringList, fields);
        const Outcome outcome = run(SDK_CHECK, {"--wait", "1", SIMULATED_SDK},
                                    {"SDK_MODEM=" + fields.at(0), "SDK_EVENTS=1"});
        QVERIFY2(outcome.code == 0, qPrintable(outcome.output + outcome.errors));
        QVERIFY(outcome.output.endsWith("\nNothing is wrong.\n"));
        // Where all functions fail, no callback is registered.
        QCOMPARE(outcome.output.count(" not seen  "), fields.at(0) == "failing" ? 5 : 0);
    }

    void fault_data() { addRows(TEST_SOURCE_DIR "/tools.txt", "faults"); }
    void fault()
    {
        QFETCH(QStringList, fields);
        const QString library = fields.at(0) == "lacks functions" ? LONE_SDK : BAD_SDK;
        const Outcome outcome =
            run(SDK_CHECK, {"--wait", "1", "--only", fields.at(1), library},
                {"SDK_MODEM=wcdma", "SDK_EVENTS=1", "SDK_FAULT=" + fields.at(0)});
        QVERIFY2(outcome.code == 1, qPrintable(outcome.output + outcome.errors));
        const QStringList lines = outcome.output.split('\n');
        QVERIFY(lines.size() > 1 && lines.at(1).startsWith(fields.at(1)));
        const QStringList findings = lines.at(1).section("  ", -1).trimmed().split("; ");
        QVERIFY2(findings.contains(fields.at(2)), qPrintable(lines.at(1)));
    }

    void commandLine_data() { addRows(TEST_SOURCE_DIR "/tools.txt", "command line"); }
    void commandLine()
    {
        QFETCH(QStringList, fields);
        const Outcome outcome =
            run(SDK_CHECK, fields.at(1)
                               .split(' ', Qt::SkipEmptyParts)
                               .replaceInStrings("@TABLE@", TEST_SOURCE_DIR "/tools.txt"));
        QCOMPARE(outcome.code, fields.at(2).toInt());
        QVERIFY2(fields.at(3) == "-" ? outcome.output.isEmpty()
                                     : outcome.output.contains(fields.at(3)),
                 qPrintable(outcome.output));
        QVERIFY2(outcome.errors.contains(fields.at(4)), qPrintable(outcome.errors));
    }

    void minimalHost_data() { addRows(TEST_SOURCE_DIR "/tools.txt", "minimal host"); }
    void minimalHost()
    {
        QFETCH(QStringList, fields);
        const QTemporaryDir folder;
        const QString picture = folder.filePath("window.png");
        // The singletons of the module outlive it, by their counting rule.
        const Outcome outcome = run(MINIMAL_HOST, {MODULE, TEXTS, picture},
                                    {"SDK_MODEM=" + fields.at(0), "ASAN_OPTIONS=detect_leaks=0"});
        QVERIFY2(outcome.code == 0, qPrintable(outcome.errors));
        QVERIFY2(outcome.output.contains(fields.at(1)), qPrintable(outcome.output));
        QVERIFY(QImage(picture).width() > 300);
    }
};

QTEST_APPLESS_MAIN(MakerTools)
#include "tools.moc"
