// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Functions.h"
#include "SdkCalls.h"
#include "SdkControl.h"
#include "TestSupport.h"

#include <QtTest>

using SdkCalls::answers;
using SdkCalls::Outs;
using TestSupport::addRows;

Q_DECLARE_METATYPE(const SdkCalls::TestedCall *)

/// An answer with the modem's values in place of their keys. The modem gets a value for a key that
/// its file lacks.
static QString withValues(QString answer)
{
    static int count = 100;
    const QRegularExpression key("\\{([^}]*)\\}");
    for (auto found = key.match(answer); found.hasMatch(); found = key.match(answer)) {
        const std::string name = found.captured(1).toStdString();
        if (TestSupport::modem().value(name).empty())
            TestSupport::modem().setValue(name, std::to_string(++count));
        answer.replace(found.capturedStart(), found.capturedLength(),
                       QString::fromLatin1(TestSupport::modem().value(name).c_str()));
    }
    return answer;
}

class SdkFunctions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { TestSupport::attachModem("../../tests/sdk/distinct"); }

    /// The tests call each function of the list.
    void list()
    {
#define NAME(function) #function,
        QStringList listed{SDK_FUNCTIONS(NAME)};
#undef NAME
        QStringList called = listed.filter("Callback");
        for (const SdkCalls::TestedCall &call : SdkCalls::all())
            called << call.function;
        called.removeDuplicates();
        listed.sort();
        called.sort();
        QCOMPARE(called, listed);
    }

    void answer_data()
    {
        QTest::addColumn<const SdkCalls::TestedCall *>("tested");
        for (const SdkCalls::TestedCall &call : SdkCalls::all())
            QTest::newRow(qPrintable(call.name())) << &call;
    }
    void answer()
    {
        QFETCH(const SdkCalls::TestedCall *, tested);
        const SdkCalls::TestedCall &call = *tested;
        const QString answer = withValues(call.answer);
        QCOMPARE(answers()[call.name()], answer);
        if (answer.startsWith("error"))
            return;
        const auto compare = [&](VELT_ERROR result, const QString &shown) {
            Outs outs;
            QCOMPARE(call.run(outs), result);
            QCOMPARE(show(outs), shown);
        };
        SdkControl::startRecording();
        compare(0, answer);
        const auto calls = SdkControl::recordedCalls();
        QCOMPARE(calls.size(), size_t(1));
        QCOMPARE(calls[0].function.c_str(), call.function);
        QCOMPARE(calls[0].arguments.c_str(), call.arguments);

        SdkControl::setResult(call.function, 77);
        compare(77, "");
        QCOMPARE(SdkControl::recordedCalls().back().result, VELT_ERROR(77));
        SdkControl::setResult(call.function, 77, SdkControl::FillOutputs);
        compare(77, answer);
        SdkControl::setResult(call.function, 0);
        compare(0, "");
        SdkControl::clearResults();
        SdkControl::unplug();
        compare(VELT_ERROR_NO_DEVICE, "");
        SdkControl::plug();
        compare(0, answer);
        SdkControl::attach(nullptr);
        compare(VELT_ERROR_NO_DEVICE, "");
    }

    void badArguments()
    {
        Outs o;
        const std::vector<VELT_ERROR> results = SdkCalls::withBadArguments(o);
        QCOMPARE(results, std::vector<VELT_ERROR>(results.size(), VELT_ERROR_BAD_ARGUMENT));
        QCOMPARE(VELT_NetSrv_GetIPAddress("", "Other", o.text, 1), VELT_ERROR_FAILURE);
        QCOMPARE(show(o), QString());
    }

    void resultRules()
    {
        int32_t n = 0;
        SdkControl::setResult("*", 50);
        SdkControl::setResult("VELT_DevSrv_GetSimStatus", 0, SdkControl::FillOutputs);
        QCOMPARE(VELT_DevSrv_GetDevStatus(&n), 50L);
        QCOMPARE(VELT_DevSrv_GetSimStatus(&n), 0L);
        QCOMPARE(n, 240);
        SdkControl::clearResults();
        SdkControl::setResult("VELT_DevSrv_GetDevStatus", 60, SdkControl::KeepOutputs, 2);
        for (const VELT_ERROR result : {0L, 60L, 0L})
            QCOMPARE(VELT_DevSrv_GetDevStatus(&n), result);
        init(); // a newly attached modem has the results of its own file
        QCOMPARE(VELT_NetSrv_SetCSRegReport(1), 0L);
        SdkControl::setResult("VELT_NetSrv_SetCSRegReport", 0);
        QCOMPARE(VELT_NetSrv_SetCSRegReport(0), 0L);
        QCOMPARE(TestSupport::modem().value("network/csReportMode"), std::string("1"));
    }

    void value_data() { addRows(TEST_SOURCE_DIR "/sdk_functions.txt", "values"); }
    void value()
    {
        QFETCH(QStringList, fields);
        TestSupport::setValues(fields.at(1) + '=' + fields.at(2));
        QCOMPARE(answers()[fields.at(3)], fields.at(4));
    }

    void textLength_data() { addRows(TEST_SOURCE_DIR "/sdk_functions.txt", "text lengths"); }
    void textLength()
    {
        QFETCH(QStringList, fields);
        const auto answersTo = [&](const QString &text) {
            TestSupport::setValues(fields.at(0) + '=' + text);
            return QStringList(answers().values()).join('\n');
        };
        // The text of this key changes and nothing beside it.
        const QString marked = answersTo("@");
        QCOMPARE(marked.count("@$"), 1);
        const int size = fields.at(1).toInt();
        for (const int length : {0, size - 1, size, size + 6}) {
            const QString text(length, 'x');
            QCOMPARE(answersTo(text), QString(marked).replace("@$", (text + '$').left(size)));
        }
    }

    void recording()
    {
        int32_t n = 0;
        SdkControl::startRecording();
        VELT_NetSrv_GetPSState(&n);
        SdkControl::startRecording();
        VELT_NetSrv_GetDNS(nullptr, "P", nullptr, -5);
        VELT_DevSrv_RegisterDevMgrCallback([](int, void *) { return 0; });
        VELT_DevSrv_UnRegisterDevInitEventCallback(nullptr);
        std::string calls;
        for (const auto &call : SdkControl::recordedCalls())
            calls += call.function.substr(12) + "(" + call.arguments + ") " +
                     std::to_string(call.result) + " ";
        QCOMPARE(calls, std::string("GetDNS(null, \"P\", -5) 6 RegisterDevMgrCallback(callback) 0 "
                                    "UnRegisterDevInitEventCallback(null) 6 "));
        SdkControl::stopRecording();
        VELT_NetSrv_GetPSState(&n);
        QVERIFY(SdkControl::recordedCalls().empty());
    }
};

QTEST_APPLESS_MAIN(SdkFunctions)
#include "sdk_functions.moc"
