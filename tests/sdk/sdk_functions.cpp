// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ModemControl.h"
#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"
#include "sdk/VeltPhonebook.h"
#include "sdk/VeltSms.h"

#include <QtTest>

#include <algorithm>
#include <cstring>
#include <functional>
#include <tuple>
#include <vector>

namespace {

// Out-parameters consist of '#' before each call, buffers have one more behind their end. What is
// left untouched is shown as "-".

template <typename Out>
Out blank()
{
    Out value;
    std::memset(&value, '#', sizeof value);
    return value;
}

template <typename Number>
QByteArray show(const Number &number)
{
    return number == blank<Number>() ? QByteArray("-") : QByteArray::number(number);
}
template <size_t Size>
QByteArray show(const char (&field)[Size])
{
    const QByteArray text(field, int(qstrnlen(field, Size)));
    return text.count('#') == int(Size) ? QByteArray("-") : text;
}
QByteArray show(const char &character)
{
    return character == '#' ? QByteArray("-") : QByteArray(1, character);
}

template <size_t Size>
struct Buffer
{
    char bytes[Size];
    char guard;
};
template <size_t Size>
QByteArray show(const Buffer<Size> &b)
{
    return show(b.bytes) + (b.guard == '#' ? "" : " overrun");
}
struct Units
{
    uint16_t units[50];
    char guard[2];
};
QByteArray show(const Units &u)
{
    // A zero at the end is shown as a dot.
    const auto *end = std::find(u.units, u.units + 50, 0);
    const auto *text = reinterpret_cast<const char16_t *>(u.units);
    const QByteArray utf8 = QString::fromUtf16(text, int(end - u.units)).toUtf8();
    return (u.units[0] == 0x2323 ? QByteArray("-") : utf8) + (end == u.units + 50 ? "" : ".") +
           (u.guard[0] == '#' ? "" : " overrun");
}
QByteArray show(const VELT_VERSION_INFO &v)
{
    return show(v.firmware) + '|' + show(v.hardware);
}
QByteArray show(const VELT_ESN_INFO &v)
{
    return show(v.esn) + '|' + show(v.meid);
}
QByteArray show(const VELT_SIGNAL_PAIR &v)
{
    return show(v.first) + '|' + show(v.second);
}
QByteArray show(const VELT_USER_NUMBER &v)
{
    return show(v.index) + '|' + show(v.name) + '|' + show(v.number);
}
QByteArray show(const VELT_REG_STATE &v)
{
    return show(v.reportMode) + '|' + show(v.state) + '|' + show(v.lac) + '|' + show(v.cellId);
}
QByteArray show(const VELT_OPERATOR &v)
{
    return show(v.longName) + '|' + show(v.shortName) + '|' + show(v.code) + '|' +
           show(v.accessTechnology);
}

/// Calls a function and shows its out-parameters.
using Probe = std::function<VELT_ERROR(QByteArray &)>;

template <typename... Outs, size_t... Index>
VELT_ERROR probeWith(VELT_ERROR (*function)(Outs *...), std::tuple<Outs...> &outs,
                     QByteArray &shown, std::index_sequence<Index...>)
{
    const VELT_ERROR result = function(&std::get<Index>(outs)...);
    shown = QList<QByteArray>{show(std::get<Index>(outs))...}.join('|');
    return result;
}

template <typename... Outs>
Probe probe(VELT_ERROR (*function)(Outs *...))
{
    return [=](QByteArray &shown) {
        std::tuple<Outs...> outs(blank<Outs>()...);
        return probeWith(function, outs, shown, std::index_sequence_for<Outs...>());
    };
}
struct Row
{
    const char *function;
    Probe probe;
    const char *arguments;
    const char *answer;
};

// A function with out-parameters alone, one with a text buffer, and one that takes more.
#define PLAIN(function) #function, probe(function)
#define TEXT(function, size) OTHER(function, (Buffer<size> * b), (b->bytes))
#define OTHER(function, outs, arguments) #function, probe(+[] outs { return function arguments; })

const std::vector<Row> &rows()
{
    // clang-format off
    static const std::vector<Row> table = {
        {PLAIN(VELT_DevSrv_GetDevStatus), "", "3"},
        {PLAIN(VELT_DevSrv_GetProductType), "", "2"},
        {TEXT(VELT_DevSrv_GetCustomizeName, 64), "", "EDITION"},
        {TEXT(VELT_DevSrv_GetDeviceName, 24), "", "MODEL"},
        {PLAIN(VELT_DevSrv_GetDevicePort), "", "14"},
        {PLAIN(VELT_DevSrv_GetFirmwareVersion), "", "FW 1|HW 2"},
        {TEXT(VELT_DevSrv_GetImeiInfo, 24), "", "001017000000015"},
        {TEXT(VELT_DevSrv_GetSN, 24), "", "SERIAL"},
        {PLAIN(VELT_DevSrv_GetESN), "", "80A1|A100"},
        {PLAIN(VELT_DevSrv_GetVoltage), "", "4294967295"},
        {PLAIN(VELT_DevSrv_GetNumberOfCarrier), "", "16"},
        {PLAIN(VELT_DevSrv_GetSimStatus), "", "240"},
        {OTHER(VELT_DevSrv_GetPinStatus, (int32_t *s, char *a, char *b, char *c), (0, s, a, b, c)), "0", "8|4|9|0"},
        {TEXT(VELT_DevSrv_GetImsiInfo, 24), "", "001010000000022"},
        {PLAIN(VELT_DevSrv_GetUserNumMemAbility), "", "23|24|25|26|27"},
        {OTHER(VELT_DevSrv_ReadUserNumItem, (VELT_USER_NUMBER *n), (24, n)), "24", "24|OWN|+447700900028"},
        {PLAIN(VELT_NetSrv_GetCurPlmn), "", "1|Long, Name|Short|001012|7"},
        {PLAIN(VELT_NetSrv_GetCSRegState), "", "2|5|C51A|C5CE11"},
        {PLAIN(VELT_NetSrv_GetPSRegState), "", "1|35||"},
        {OTHER(VELT_NetSrv_SetCSRegReport, (), (2)), "2", ""},
        {PLAIN(VELT_NetSrv_GetPSState), "", "255"},
        {PLAIN(VELT_NetSrv_GetRowRSSI), "", "36|6"},
        {PLAIN(VELT_NetSrv_GetSignalQuality), "", "-95|-12"},
        {OTHER(VELT_NetSrv_GetEFFile, (Buffer<256> *b), (1, b->bytes)), "1", "8900"},
        {TEXT(VELT_NetSrv_GetPrlVer, 64), "", "PRL 4"},
        {OTHER(VELT_NetSrv_GetIPAddress, (Buffer<64> *b), ("MODEL", "Home", b->bytes, 64)), "\"MODEL\", \"Home\", 64", "192.0.2.37"},
        {OTHER(VELT_NetSrv_GetDNS, (Buffer<20> *b), ("", "", b->bytes, 20)), "\"\", \"\", 20", "192.0.2.38, 192.0.2."},
        {PLAIN(VELT_PBSrv_PBGetMemAbility), "", "30|31"},
        {OTHER(VELT_PBSrv_GetSize, (int32_t *n), (1, n)), "1", "17"},
        {OTHER(VELT_PBSrv_GetCapacity, (int32_t *n), (1, n)), "1", "18"},
        {OTHER(VELT_SMSSrv_GetSMSCentreNumber, (int32_t *n, Units *u), (n, u->units, 0)), "0", "13|-"},
        {OTHER(VELT_SMSSrv_GetSMSCentreNumber, (int32_t *n, Units *u), (n, u->units, 13)), "13", "13|+447700900029."},
        {OTHER(VELT_SMSSrv_SMSRecordSetGetRecordCount, (int32_t *n), (n, 1)), "1", "32"},
        {OTHER(VELT_SMSSrv_SMSRecordSetGetRecordCount, (int32_t *n), (n, 2)), "2", "19"},
        {OTHER(VELT_SMSSrv_GetRecordInfo, (int32_t *t, int32_t *u), (t, u, 1)), "1", "33|34"},
        {OTHER(VELT_SMSSrv_GetRecordInfo, (int32_t *t, int32_t *u), (t, u, 2)), "2", "20|21"},
    };
    // clang-format on
    return table;
}

/// The answers of all functions, a line each.
QByteArray answers()
{
    QByteArray all;
    for (const Row &row : rows()) {
        QByteArray shown;
        all += QByteArray::number(qlonglong(row.probe(shown))) + ' ' + row.function + ' ' + shown +
               '\n';
    }
    return all;
}

} // namespace

class SdkFunctions : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void answer_data();
    void answer();
    void badArguments();
    void resultRules();
    void reportModeUncoversLocation();
    void unreadableValues_data();
    void unreadableValues();
    void textLengths_data();
    void textLengths();
    void smsCentreLengths_data();
    void smsCentreLengths();
    void recording();
};

void SdkFunctions::init()
{
    std::string error;
    QVERIFY2(ModemControl::attach(TEST_SOURCE_DIR "/distinct.ini", &error), error.c_str());
}

void SdkFunctions::answer_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < rows().size(); ++i)
        QTest::addRow("%s(%s)", rows()[i].function, rows()[i].arguments) << int(i);
}

void SdkFunctions::answer()
{
    QFETCH(int, index);
    const Row &row = rows()[size_t(index)];
    const QByteArray answer = row.answer;
    const QByteArray untouched =
        answer.isEmpty() ? answer : "-" + QByteArray("|-").repeated(answer.count('|'));
    const auto compare = [&](VELT_ERROR expectedResult, bool filled) {
        QByteArray shown;
        QCOMPARE(row.probe(shown), expectedResult);
        if (filled)
            QCOMPARE(shown, answer);
        else
            QCOMPARE(shown, untouched);
    };
    ModemControl::startRecording();
    compare(0, true);
    const auto calls = ModemControl::recordedCalls();
    QCOMPARE(calls.size(), size_t(1));
    QCOMPARE(calls[0].function.c_str(), row.function);
    QCOMPARE(calls[0].arguments.c_str(), row.arguments);

    ModemControl::setResult(row.function, 77);
    compare(77, false);
    ModemControl::setResult(row.function, 77, ModemControl::FillOutputs);
    compare(77, true);
    ModemControl::setResult(row.function, 0);
    compare(0, false);
    ModemControl::clearResults();
    ModemControl::unplug();
    compare(VELT_ERROR_NO_DEVICE, false);
    ModemControl::plug();
    compare(0, true);
    ModemControl::detach();
    compare(VELT_ERROR_NO_DEVICE, false);
}

void SdkFunctions::badArguments()
{
    int32_t n = 7;
    char c = '7';
    VELT_OPERATOR plmn = {};
    VELT_USER_NUMBER item = {};
    uint16_t unit = 7;
    const std::vector<VELT_ERROR> results = {
        VELT_DevSrv_GetDevStatus(nullptr),
        VELT_DevSrv_GetImeiInfo(nullptr),
        VELT_DevSrv_GetESN(nullptr),
        VELT_DevSrv_GetPinStatus(1, &n, &c, &c, &c),
        VELT_DevSrv_GetPinStatus(0, &n, &c, &c, nullptr),
        VELT_DevSrv_GetUserNumMemAbility(&n, &n, &n, &n, nullptr),
        VELT_DevSrv_ReadUserNumItem(25, &item),
        VELT_NetSrv_GetCurPlmn(nullptr, &plmn),
        VELT_NetSrv_GetCurPlmn(&n, nullptr),
        VELT_NetSrv_SetCSRegReport(-1),
        VELT_NetSrv_SetCSRegReport(3),
        VELT_NetSrv_GetEFFile(2, &c),
        VELT_NetSrv_GetIPAddress(nullptr, "", &c, 1),
        VELT_NetSrv_GetIPAddress("", nullptr, &c, 1),
        VELT_NetSrv_GetDNS("", "", nullptr, 1),
        VELT_NetSrv_GetDNS("", "", &c, 0),
        VELT_NetSrv_GetDNS("", "", &c, -1),
        VELT_PBSrv_GetSize(0, &n),
        VELT_PBSrv_GetCapacity(2, &n),
        VELT_SMSSrv_GetSMSCentreNumber(nullptr, &unit, 1),
        VELT_SMSSrv_GetSMSCentreNumber(&n, nullptr, 0),
        VELT_SMSSrv_SMSRecordSetGetRecordCount(&n, 3),
        VELT_SMSSrv_GetRecordInfo(&n, &n, 0),
    };
    QCOMPARE(results, std::vector<VELT_ERROR>(results.size(), VELT_ERROR_BAD_ARGUMENT));
    QCOMPARE(VELT_NetSrv_GetIPAddress("", "Other", &c, 1), VELT_ERROR_FAILURE);
    QVERIFY(n == 7 && c == '7' && unit == 7 && item.index == 0 && plmn.longName[0] == 0);
}

void SdkFunctions::resultRules()
{
    int32_t n = 0;
    ModemControl::setResult("*", 50);
    ModemControl::setResult("VELT_DevSrv_GetDevicePort", 51);
    ModemControl::setResult("VELT_DevSrv_GetSimStatus", 0, ModemControl::FillOutputs);
    QCOMPARE(VELT_DevSrv_GetDevStatus(&n), 50L);
    QCOMPARE(VELT_DevSrv_GetDevicePort(&n), 51L);
    QCOMPARE(VELT_DevSrv_GetSimStatus(&n), 0L);
    QCOMPARE(n, 240);
    init(); // a newly attached modem has the results of its own file
    QCOMPARE(VELT_DevSrv_GetDevStatus(&n), 0L);
    ModemControl::setResult("VELT_NetSrv_SetCSRegReport", 0);
    QCOMPARE(VELT_NetSrv_SetCSRegReport(1), 0L);
    QCOMPARE(ModemControl::value("network/csReportMode"), std::string("2"));
}

void SdkFunctions::reportModeUncoversLocation()
{
    VELT_REG_STATE state;
    for (const auto &mode : {std::make_pair(1, "1|5||"), std::make_pair(2, "2|5|C51A|C5CE11")}) {
        QCOMPARE(VELT_NetSrv_SetCSRegReport(mode.first), 0L);
        QCOMPARE(VELT_NetSrv_GetCSRegState(&state), 0L);
        QCOMPARE(show(state), QByteArray(mode.second));
    }
    ModemControl::setValue("network/psReportMode", "2");
    QCOMPARE(VELT_NetSrv_GetPSRegState(&state), 0L);
    QCOMPARE(show(state), QByteArray("2|35|D51A|D5CE11"));
}

void SdkFunctions::unreadableValues_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("line");
    const auto row = [](const char *name, const char *key, const char *value, const char *line) {
        QTest::newRow(name) << QByteArray(key) << QByteArray(value) << QByteArray(line);
    };
    row("empty number", "network/ecIo", "", "3 VELT_NetSrv_GetSignalQuality -|-\n");
    row("no number", "network/rssi", "1x", "1 VELT_NetSrv_GetRowRSSI -|-\n");
    row("int16", "network/rscp", "-32769", "1 VELT_NetSrv_GetSignalQuality -|-\n");
    row("uint32", "device/voltage", "-1", "1 VELT_DevSrv_GetVoltage -\n");
    row("byte", "network/accessTechnology", "256", "1 VELT_NetSrv_GetCurPlmn -|-|-|-|-\n");
    row("digit", "sim/pukAttempts", "10", "1 VELT_DevSrv_GetPinStatus -|-|-|-\n");
    row("last of five", "sim/ownNameLength", "", "3 VELT_DevSrv_GetUserNumMemAbility -|-|-|-|-\n");
    row("no SIM", "sim/simStatus", "255", "4 VELT_DevSrv_ReadUserNumItem -|-|-\n");
}

void SdkFunctions::unreadableValues()
{
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, line);
    ModemControl::setValue(key.toStdString(), value.toStdString());
    QVERIFY2(answers().contains(line), answers());
}

void SdkFunctions::textLengths_data()
{
    QTest::addColumn<int>("size");
    for (const auto &row :
         {std::make_pair("device/imei", 24), std::make_pair("device/prlVersion", 64),
          std::make_pair("device/firmwareVersion", 40), std::make_pair("device/meid", 32),
          std::make_pair("sim/iccid", 256), std::make_pair("sim/ownNumber", 128),
          std::make_pair("network/csLac", 16), std::make_pair("network/plmnCode", 8),
          std::make_pair("connection/nameServers", 20)})
        QTest::newRow(row.first) << row.second;
}

void SdkFunctions::textLengths()
{
    QFETCH(int, size);
    // The text of this key changes and nothing beside it.
    ModemControl::setValue(QTest::currentDataTag(), "@");
    const QByteArray marked = answers();
    QCOMPARE(marked.count('@'), 1);
    for (const int length : {0, size - 1, size, size + 6}) {
        const QByteArray text = QByteArray(length, 'x');
        ModemControl::setValue(QTest::currentDataTag(), text.toStdString());
        QCOMPARE(answers(), QByteArray(marked).replace('@', text.left(size)));
    }
}

void SdkFunctions::smsCentreLengths_data()
{
    QTest::addColumn<QByteArray>("utf8");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray x(49, 'x');
    QTest::newRow("empty") << QByteArray() << QByteArray(" 0|.\n");
    QTest::newRow("49") << x << " 49|" + x + ".\n";
    QTest::newRow("fills the buffer") << x + 'y' << " 50|" + x + "y\n";
    QTest::newRow("longer") << x + "yz"
                            << " 50|" + x + "y\n";
    QTest::newRow("one unit") << QByteArray("\xc3\xbc") << QByteArray(" 1|\xc3\xbc.\n");
    QTest::newRow("two units") << QByteArray("\xf0\x9f\x93\x9e")
                               << QByteArray(" 2|\xf0\x9f\x93\x9e.\n");
}

void SdkFunctions::smsCentreLengths()
{
    QFETCH(QByteArray, utf8);
    QFETCH(QByteArray, expected);
    ModemControl::setValue("sim/smsCentre", utf8.toStdString());
    QVERIFY2(answers().contains("0 VELT_SMSSrv_GetSMSCentreNumber" + expected), answers());
}

void SdkFunctions::recording()
{
    int32_t n = 0;
    VELT_DevSrv_GetDevStatus(&n);
    ModemControl::startRecording();
    VELT_NetSrv_GetPSState(&n);
    VELT_NetSrv_GetDNS(nullptr, "P", nullptr, -5);
    VELT_DevSrv_RegisterDevMgrCallback([](int, void *) { return 0; });
    VELT_DevSrv_UnRegisterDevInitEventCallback(nullptr);
    QByteArray calls;
    for (const auto &call : ModemControl::recordedCalls())
        calls += (call.function + "(" + call.arguments + ")\n").c_str();
    QCOMPARE(calls, QByteArray("VELT_NetSrv_GetPSState()\n"
                               "VELT_NetSrv_GetDNS(null, \"P\", -5)\n"
                               "VELT_DevSrv_RegisterDevMgrCallback(callback)\n"
                               "VELT_DevSrv_UnRegisterDevInitEventCallback(null)\n"));
    ModemControl::startRecording();
    QVERIFY(ModemControl::recordedCalls().empty());
    ModemControl::stopRecording();
    VELT_NetSrv_GetPSState(&n);
    QVERIFY(ModemControl::recordedCalls().empty());
}

QTEST_APPLESS_MAIN(SdkFunctions)
#include "sdk_functions.moc"
