// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "TestSupport.h"

#include <QProcess>
#include <QtTest>

using namespace TestSupport;

/// The check of SDK libraries, on libsdk and on libraries with a fault.
class SdkCheck : public QObject
{
    Q_OBJECT

    struct Outcome
    {
        int code;
        QString output;
        QString errors;
    };

    static Outcome run(const QStringList &arguments, const QStringList &variables = {})
    {
        QProcess process;
        process.setEnvironment(QProcess::systemEnvironment() + variables);
        process.start(SDK_CHECK, arguments);
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
            return {-1, {}, process.errorString()};
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }

private Q_SLOTS:
    void modem_data() { addRows(TEST_SOURCE_DIR "/sdk_check.txt", "modems"); }
    void modem()
    {
        QFETCH(QStringList, fields);
        const Outcome outcome =
            run({"--wait", "1", SIMULATED_SDK}, {"SDK_MODEM=" + fields.at(0), "SDK_EVENTS=1"});
        QVERIFY2(outcome.code == 0, qPrintable(outcome.output + outcome.errors));
        QVERIFY(outcome.output.endsWith("\nNothing is wrong.\n"));
        // Where all functions fail, no callback is registered.
        QCOMPARE(outcome.output.count(" not seen  "), fields.at(0) == "failing" ? 5 : 0);
    }

    void fault_data() { addRows(TEST_SOURCE_DIR "/sdk_check.txt", "faults"); }
    void fault()
    {
        QFETCH(QStringList, fields);
        const QString library = fields.at(0) == "lacks functions" ? LONE_SDK : BAD_SDK;
        const Outcome outcome =
            run({"--wait", "1", "--only", fields.at(1), library},
                {"SDK_MODEM=wcdma", "SDK_EVENTS=1", "SDK_FAULT=" + fields.at(0)});
        QVERIFY2(outcome.code == 1, qPrintable(outcome.output + outcome.errors));
        const QStringList lines = outcome.output.split('\n');
        QVERIFY(lines.size() > 1 && lines.at(1).startsWith(fields.at(1)));
        const QStringList findings = lines.at(1).section("  ", -1).trimmed().split("; ");
        QVERIFY2(findings.contains(fields.at(2)), qPrintable(lines.at(1)));
    }

    void commandLine_data() { addRows(TEST_SOURCE_DIR "/sdk_check.txt", "command line"); }
    void commandLine()
    {
        QFETCH(QStringList, fields);
        const Outcome outcome =
            run(fields.at(1)
                    .split(' ', Qt::SkipEmptyParts)
                    .replaceInStrings("@TABLE@", TEST_SOURCE_DIR "/sdk_check.txt"));
        QCOMPARE(outcome.code, fields.at(2).toInt());
        QVERIFY2(fields.at(3) == "-" ? outcome.output.isEmpty()
                                     : outcome.output.contains(fields.at(3)),
                 qPrintable(outcome.output));
        QVERIFY2(outcome.errors.contains(fields.at(4)), qPrintable(outcome.errors));
    }
};

QTEST_APPLESS_MAIN(SdkCheck)
#include "sdk_check.moc"
