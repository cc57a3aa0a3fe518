// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ModemControl.h"
#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"
#include "sdk/VeltPhonebook.h"
#include "sdk/VeltSms.h"
#include "support/Rows.h"

#include <cstring>
#include <vector>

namespace {

/// Out-parameters of every kind, each longer than any function may fill it. They consist of '#'
/// before a call.
struct Outs
{
    Outs() { std::memset(static_cast<void *>(this), '#', sizeof *this); }

    int32_t n[6];
    uint32_t voltage;
    char c[4];
    VELT_VERSION_INFO version;
    VELT_ESN_INFO esn;
    VELT_SIGNAL_PAIR signal;
    VELT_USER_NUMBER own;
    VELT_REG_STATE state;
    VELT_OPERATOR plmn;
    char text[300];
    char16_t units[60];
};

template <typename Number>
QByteArray show(const Number &number)
{
    const QByteArray bytes(reinterpret_cast<const char *>(&number), sizeof number);
    return bytes.count('#') == int(sizeof number) ? QByteArray() : QByteArray::number(number);
}
/// Up to its zero, which is shown as a '$'.
template <typename Unit, size_t Size>
QByteArray show(const Unit (&text)[Size])
{
    QString shown;
    const Unit *unit = text;
    for (; unit < text + Size && *unit && *unit != Unit(0x2323); ++unit)
        shown += QChar(ushort(*unit));
    return shown.toUtf8() + (unit < text + Size && !*unit ? "$" : "");
}

template <typename... Values>
QByteArray showAll(const Values &...values)
{
    QByteArray all;
    for (const QByteArray &value : {show(values)...})
        all += value.isEmpty() ? value : '|' + value;
    return all.mid(1);
}

/// What a call wrote, separated by '|'.
QByteArray show(const Outs &o)
{
    return showAll(o.n[0], o.n[1], o.n[2], o.n[3], o.n[4], o.n[5], o.voltage, o.c,
                   o.version.firmware, o.version.hardware, o.esn.esn, o.esn.meid, o.signal.first,
                   o.signal.second, o.own.index, o.own.name, o.own.number, o.state.reportMode,
                   o.state.state, o.state.lac, o.state.cellId, o.plmn.longName, o.plmn.shortName,
                   o.plmn.code, o.plmn.accessTechnology, o.text, o.units);
}

struct Row
{
    const char *function;
    VELT_ERROR (*call)(Outs &o);
    const char *arguments;
    const char *answer;
};

// clang-format off
#define CALL(function, ...) #function, [](Outs &o) { return function(__VA_ARGS__); }
#define UNITS reinterpret_cast<uint16_t *>(o.units)
const Row rows[] = {
    {CALL(VELT_DevSrv_GetDevStatus, o.n), "", "3"},
    {CALL(VELT_DevSrv_GetProductType, o.n), "", "2"},
    {CALL(VELT_DevSrv_GetCustomizeName, o.text), "", "EDITION$"},
    {CALL(VELT_DevSrv_GetDeviceName, o.text), "", "MODEL$"},
    {CALL(VELT_DevSrv_GetDevicePort, o.n), "", "14"},
    {CALL(VELT_DevSrv_GetFirmwareVersion, &o.version), "", "FW 1$|HW 2$"},
    {CALL(VELT_DevSrv_GetImeiInfo, o.text), "", "001017000000015$"},
    {CALL(VELT_DevSrv_GetSN, o.text), "", "SERIAL$"},
    {CALL(VELT_DevSrv_GetESN, &o.esn), "", "80A1$|A100$"},
    {CALL(VELT_DevSrv_GetVoltage, &o.voltage), "", "4294967295"},
    {CALL(VELT_DevSrv_GetNumberOfCarrier, o.n), "", "16"},
    {CALL(VELT_DevSrv_GetSimStatus, o.n), "", "240"},
    {CALL(VELT_DevSrv_GetPinStatus, 0, o.n, o.c, o.c + 1, o.c + 2), "0", "8|490"},
    {CALL(VELT_DevSrv_GetImsiInfo, o.text), "", "001010000000022$"},
    {CALL(VELT_DevSrv_GetUserNumMemAbility, o.n, o.n + 1, o.n + 2, o.n + 3, o.n + 4), "", "23|24|25|26|27"},
    {CALL(VELT_DevSrv_ReadUserNumItem, 24, &o.own), "24", "24|OWN$|+447700900028$"},
    {CALL(VELT_NetSrv_GetCurPlmn, o.n, &o.plmn), "", "1|Long, Name$|Short$|001012$|7"},
    {CALL(VELT_NetSrv_GetCSRegState, &o.state), "", "2|5|C51A$|C5CE11$"},
    {CALL(VELT_NetSrv_GetPSRegState, &o.state), "", "1|35|$|$"},
    {CALL(VELT_NetSrv_SetCSRegReport, (void(o), 2)), "2", ""},
    {CALL(VELT_NetSrv_GetPSState, o.n), "", "255"},
    {CALL(VELT_NetSrv_GetRowRSSI, &o.signal), "", "36|6"},
    {CALL(VELT_NetSrv_GetSignalQuality, &o.signal), "", "-95|-12"},
    {CALL(VELT_NetSrv_GetEFFile, 1, o.text), "1", "8900$"},
    {CALL(VELT_NetSrv_GetPrlVer, o.text), "", "PRL 4$"},
    {CALL(VELT_NetSrv_GetIPAddress, "MODEL", "Home", o.text, 64), "\"MODEL\", \"Home\", 64", "192.0.2.37$"},
    {CALL(VELT_NetSrv_GetDNS, "", "", o.text, 20), "\"\", \"\", 20", "192.0.2.38, 192.0.2."},
    {CALL(VELT_PBSrv_PBGetMemAbility, o.n, o.n + 1), "", "30|31"},
    {CALL(VELT_PBSrv_GetSize, 1, o.n), "1", "17"},
    {CALL(VELT_PBSrv_GetCapacity, 1, o.n), "1", "18"},
    {CALL(VELT_SMSSrv_GetSMSCentreNumber, o.n, UNITS, 0), "0", "13"},
    {CALL(VELT_SMSSrv_GetSMSCentreNumber, o.n, UNITS, 13), "13", "13|+447700900029$"},
    {CALL(VELT_SMSSrv_SMSRecordSetGetRecordCount, o.n, 1), "1", "32"},
    {CALL(VELT_SMSSrv_SMSRecordSetGetRecordCount, o.n, 2), "2", "19"},
    {CALL(VELT_SMSSrv_GetRecordInfo, o.n, o.n + 1, 1), "1", "33|34"},
    {CALL(VELT_SMSSrv_GetRecordInfo, o.n, o.n + 1, 2), "2", "20|21"},
};
// clang-format on

/// The answers of all functions, a line each.
QByteArray answers()
{
    QByteArray all;
    for (const Row &row : rows) {
        Outs outs;
        const VELT_ERROR result = row.call(outs);
        all += QByteArray::number(qlonglong(result)) + ' ' + row.function + '=' + show(outs) + '\n';
    }
    return all;
}

} // namespace

class SdkFunctions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        std::string error;
        QVERIFY2(ModemControl::attach(TEST_SOURCE_DIR "/distinct.ini", &error), error.c_str());
    }

    void answer_data()
    {
        QTest::addColumn<int>("index");
        for (const Row &row : rows)
            QTest::addRow("%s(%s)", row.function, row.arguments) << int(&row - rows);
    }

    void answer()
    {
        QFETCH(int, index);
        const Row *const row = rows + index;
        const auto compare = [&](VELT_ERROR result, const char *shown) {
            Outs outs;
            QCOMPARE(row->call(outs), result);
            QCOMPARE(show(outs), QByteArray(shown));
        };
        ModemControl::startRecording();
        compare(0, row->answer);
        const auto calls = ModemControl::recordedCalls();
        QCOMPARE(calls.size(), size_t(1));
        QCOMPARE(calls[0].function.c_str(), row->function);
        QCOMPARE(calls[0].arguments.c_str(), row->arguments);

        ModemControl::setResult(row->function, 77);
        compare(77, "");
        ModemControl::setResult(row->function, 77, ModemControl::FillOutputs);
        compare(77, row->answer);
        ModemControl::setResult(row->function, 0);
        compare(0, "");
        ModemControl::clearResults();
        ModemControl::unplug();
        compare(VELT_ERROR_NO_DEVICE, "");
        ModemControl::plug();
        compare(0, row->answer);
        ModemControl::detach();
        compare(VELT_ERROR_NO_DEVICE, "");
    }

    void badArguments()
    {
        Outs o;
        // clang-format off
        const std::vector<VELT_ERROR> results = {
            VELT_DevSrv_GetDevStatus(nullptr), VELT_DevSrv_GetImeiInfo(nullptr),
            VELT_DevSrv_GetESN(nullptr), VELT_DevSrv_GetPinStatus(1, o.n, o.c, o.c, o.c),
            VELT_DevSrv_GetPinStatus(0, o.n, o.c, o.c, nullptr), VELT_DevSrv_ReadUserNumItem(25, &o.own),
            VELT_NetSrv_GetCurPlmn(nullptr, &o.plmn), VELT_NetSrv_GetCurPlmn(o.n, nullptr),
            VELT_NetSrv_SetCSRegReport(-1), VELT_NetSrv_SetCSRegReport(3),
            VELT_NetSrv_GetEFFile(2, o.text), VELT_NetSrv_GetIPAddress(nullptr, "", o.text, 1),
            VELT_NetSrv_GetIPAddress("", nullptr, o.text, 1), VELT_NetSrv_GetDNS("", "", nullptr, 1),
            VELT_NetSrv_GetDNS("", "", o.text, 0), VELT_NetSrv_GetDNS("", "", o.text, -1),
            VELT_PBSrv_GetSize(0, o.n), VELT_PBSrv_GetCapacity(2, o.n),
            VELT_SMSSrv_GetSMSCentreNumber(nullptr, UNITS, 1), VELT_SMSSrv_GetSMSCentreNumber(o.n, nullptr, 0),
            VELT_SMSSrv_SMSRecordSetGetRecordCount(o.n, 3), VELT_SMSSrv_GetRecordInfo(o.n, o.n, 0),
        };
        // clang-format on
        QCOMPARE(results, std::vector<VELT_ERROR>(results.size(), VELT_ERROR_BAD_ARGUMENT));
        QCOMPARE(VELT_NetSrv_GetIPAddress("", "Other", o.text, 1), VELT_ERROR_FAILURE);
        QCOMPARE(show(o), QByteArray());
    }

    void resultRules()
    {
        int32_t n = 0;
        ModemControl::setResult("*", 50);
        ModemControl::setResult("VELT_DevSrv_GetSimStatus", 0, ModemControl::FillOutputs);
        QCOMPARE(VELT_DevSrv_GetDevStatus(&n), 50L);
        QCOMPARE(VELT_DevSrv_GetSimStatus(&n), 0L);
        QCOMPARE(n, 240);
        init(); // a newly attached modem has the results of its own file
        QCOMPARE(VELT_NetSrv_SetCSRegReport(1), 0L);
        ModemControl::setResult("VELT_NetSrv_SetCSRegReport", 0);
        QCOMPARE(VELT_NetSrv_SetCSRegReport(0), 0L);
        QCOMPARE(ModemControl::value("network/csReportMode"), std::string("1"));
    }

    void value_data() { addRows("values.txt", {"key", "value", "line"}); }
    void value()
    {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, value);
        QFETCH(QByteArray, line);
        ModemControl::setValue(key.toStdString(), value.toStdString());
        QVERIFY2(answers().contains(line + '\n'), answers());
    }

    void textLength_data() { addRows("texts.txt", {"size"}); }
    void textLength()
    {
        QFETCH(QByteArray, size);
        // The text of this key changes and nothing beside it.
        ModemControl::setValue(QTest::currentDataTag(), "@");
        const QByteArray marked = answers();
        QCOMPARE(marked.count("@$"), 1);
        for (const int length : {0, size.toInt() - 1, size.toInt(), size.toInt() + 6}) {
            const QByteArray text(length, 'x');
            ModemControl::setValue(QTest::currentDataTag(), text.toStdString());
            QCOMPARE(answers(), QByteArray(marked).replace("@$", (text + '$').left(size.toInt())));
        }
    }

    void recording()
    {
        int32_t n = 0;
        ModemControl::startRecording();
        VELT_NetSrv_GetPSState(&n);
        ModemControl::startRecording();
        VELT_NetSrv_GetDNS(nullptr, "P", nullptr, -5);
        VELT_DevSrv_RegisterDevMgrCallback([](int, void *) { return 0; });
        VELT_DevSrv_UnRegisterDevInitEventCallback(nullptr);
        std::string calls;
        for (const auto &call : ModemControl::recordedCalls())
            calls += call.function.substr(12) + "(" + call.arguments + ") ";
        QCOMPARE(calls, std::string("GetDNS(null, \"P\", -5) RegisterDevMgrCallback(callback) "
                                    "UnRegisterDevInitEventCallback(null) "));
        ModemControl::stopRecording();
        VELT_NetSrv_GetPSState(&n);
        QVERIFY(ModemControl::recordedCalls().empty());
    }
};

QTEST_APPLESS_MAIN(SdkFunctions)
#include "sdk_functions.moc"
