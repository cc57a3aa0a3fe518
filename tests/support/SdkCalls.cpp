// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "SdkCalls.h"

#include <QStringList>

#include <cstring>
#include <type_traits>

namespace {

using SdkCalls::Outs;
using SdkCalls::TestedCall;

/// Null for one that was not written.
template <typename Number>
QString text(const Number &number)
{
    const QByteArray bytes(reinterpret_cast<const char *>(&number), sizeof number);
    return bytes.count('#') == int(sizeof number) ? QString() : QString::number(number);
}

/// Up to its zero, which is shown as a '$'.
template <typename Unit, size_t Size>
QString text(const Unit (&units)[Size])
{
    QString shown;
    const Unit *unit = units;
    for (; unit < units + Size && *unit && *unit != Unit(0x2323); ++unit)
        shown += QChar(typename std::make_unsigned<Unit>::type(*unit));
    return shown + (unit < units + Size && !*unit ? "$" : "");
}

// clang-format off
#define CALL(function, ...) #function, [](Outs &o) { return function(__VA_ARGS__); }
#define UNITS reinterpret_cast<uint16_t *>(o.units)
const std::vector<TestedCall> calls = {
    {CALL(VELT_DevSrv_GetDevStatus, o.n), "", "{device/deviceStatus}"},
    {CALL(VELT_DevSrv_GetProductType, o.n), "", "{device/productType}"},
    {CALL(VELT_DevSrv_GetCustomizeName, o.text), "", "{device/customizeName}$"},
    {CALL(VELT_DevSrv_GetDeviceName, o.text), "", "{device/deviceName}$"},
    {CALL(VELT_DevSrv_GetDevicePort, o.n), "", "{device/devicePort}"},
    {CALL(VELT_DevSrv_GetFirmwareVersion, &o.version), "", "{device/firmwareVersion}$|{device/hardwareVersion}$"},
    {CALL(VELT_DevSrv_GetImeiInfo, o.text), "", "{device/imei}$"},
    {CALL(VELT_DevSrv_GetSN, o.text), "", "{device/serialNumber}$"},
    {CALL(VELT_DevSrv_GetESN, &o.esn), "", "{device/esn}$|{device/meid}$"},
    {CALL(VELT_DevSrv_GetVoltage, &o.voltage), "", "{device/voltage}"},
    {CALL(VELT_DevSrv_GetNumberOfCarrier, o.n), "", "{device/carriers}"},
    {CALL(VELT_DevSrv_GetSimStatus, o.n), "", "{sim/simStatus}"},
    {CALL(VELT_DevSrv_GetPinStatus, 0, o.n, o.c, o.c + 1, o.c + 2), "0", "{sim/pinStatus}|{sim/pinAttempts}{sim/pukAttempts}{sim/pinEnabled}"},
    {CALL(VELT_DevSrv_GetImsiInfo, o.text), "", "{sim/imsi}$"},
    {CALL(VELT_DevSrv_GetUserNumMemAbility, o.n, o.n + 1, o.n + 2, o.n + 3, o.n + 4), "", "{sim/ownNumbersTotal}|{sim/ownNumbersFirst}|{sim/ownNumbersUsed}|{sim/ownNumberLength}|{sim/ownNameLength}"},
    {CALL(VELT_DevSrv_ReadUserNumItem, 24, &o.own), "24", "24|{sim/ownName}$|{sim/ownNumber}$"},
    {CALL(VELT_DevSrv_ReadUserNumItem, 1, &o.own), "1", "error 6"},
    {CALL(VELT_DevSrv_ReadUserNumItem, 0, &o.own), "0", "error 6"},
    {CALL(VELT_NetSrv_GetCurPlmn, o.n, &o.plmn), "", "{network/selectionMode}|{network/plmnLongName}$|{network/plmnShortName}$|{network/plmnCode}$|{network/accessTechnology}"},
    {CALL(VELT_NetSrv_GetCSRegState, &o.state), "", "{network/csReportMode}|{network/csState}|{network/csLac}$|{network/csCellId}$"},
    {CALL(VELT_NetSrv_GetPSRegState, &o.state), "", "{network/psReportMode}|{network/psState}|$|$"},
    {CALL(VELT_NetSrv_SetCSRegReport, (void(o), 2)), "2", ""},
    {CALL(VELT_NetSrv_GetPSState, o.n), "", "{network/psAttachment}"},
    {CALL(VELT_NetSrv_GetRowRSSI, &o.signal), "", "{network/rssi}|{network/bitErrorRate}"},
    {CALL(VELT_NetSrv_GetSignalQuality, &o.signal), "", "{network/rscp}|{network/ecIo}"},
    {CALL(VELT_NetSrv_GetEFFile, 1, o.text), "1", "{sim/iccid}$"},
    {CALL(VELT_NetSrv_GetPrlVer, o.text), "", "{device/prlVersion}$"},
    {CALL(VELT_NetSrv_GetIPAddress, "MODEL", "Home", o.text, 64), "\"MODEL\", \"Home\", 64", "{connection/ipAddress}$"},
    {CALL(VELT_NetSrv_GetIPAddress, "", "", o.text, 64), "\"\", \"\", 64", "{connection/ipAddress}$"},
    {CALL(VELT_NetSrv_GetIPAddress, "", "Second", o.text, 64), "\"\", \"Second\", 64", "error 1"},
    {CALL(VELT_NetSrv_GetIPAddress, "", "other", o.text, 64), "\"\", \"other\", 64", "error 1"},
    {CALL(VELT_NetSrv_GetDNS, "", "", o.text, 64), "\"\", \"\", 64", "{connection/nameServers}$"},
    {CALL(VELT_PBSrv_PBGetMemAbility, o.n, o.n + 1), "", "{sim/contactsUsed}|{sim/contactsTotal}"},
    {CALL(VELT_PBSrv_GetSize, 1, o.n), "1", "{device/contactsUsed}"},
    {CALL(VELT_PBSrv_GetCapacity, 1, o.n), "1", "{device/contactsTotal}"},
    {CALL(VELT_SMSSrv_GetSMSCentreNumber, o.n, UNITS, 0), "0", "13"},
    {CALL(VELT_SMSSrv_GetSMSCentreNumber, o.n, UNITS, 13), "13", "13|{sim/smsCentre}$"},
    {CALL(VELT_SMSSrv_SMSRecordSetGetRecordCount, o.n, 1), "1", "{sim/messagesUsed}"},
    {CALL(VELT_SMSSrv_SMSRecordSetGetRecordCount, o.n, 2), "2", "{device/messagesUsed}"},
    {CALL(VELT_SMSSrv_GetRecordInfo, o.n, o.n + 1, 1), "1", "{sim/messagesTotal}|{sim/messagesUnread}"},
    {CALL(VELT_SMSSrv_GetRecordInfo, o.n, o.n + 1, 2), "2", "{device/messagesTotal}|{device/messagesUnread}"},
};
// clang-format on

} // namespace

Outs::Outs()
{
    std::memset(static_cast<void *>(this), '#', sizeof *this);
}

QString TestedCall::name() const
{
    const QString name = QString(function).section('_', 2);
    return *arguments ? name + '(' + arguments + ')' : name;
}

const std::vector<TestedCall> &SdkCalls::all()
{
    return calls;
}

std::vector<VELT_ERROR> SdkCalls::withBadArguments(Outs &o)
{
    // clang-format off
    return {
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
}

QString SdkCalls::show(const Outs &o)
{
    QStringList all{text(o.n[0]),
                    text(o.n[1]),
                    text(o.n[2]),
                    text(o.n[3]),
                    text(o.n[4]),
                    text(o.n[5]),
                    text(o.voltage),
                    text(o.c),
                    text(o.version.firmware),
                    text(o.version.hardware),
                    text(o.esn.esn),
                    text(o.esn.meid),
                    text(o.signal.first),
                    text(o.signal.second),
                    text(o.own.index),
                    text(o.own.name),
                    text(o.own.number),
                    text(o.state.reportMode),
                    text(o.state.state),
                    text(o.state.lac),
                    text(o.state.cellId),
                    text(o.plmn.longName),
                    text(o.plmn.shortName),
                    text(o.plmn.code),
                    text(o.plmn.accessTechnology),
                    text(o.text),
                    text(o.units)};
    all.removeAll(QString());
    return all.join('|');
}

QMap<QString, QString> SdkCalls::answers()
{
    QMap<QString, QString> answers;
    for (const TestedCall &call : calls) {
        Outs outs;
        const VELT_ERROR result = call.run(outs);
        answers[call.name()] =
            result == VELT_SUCCESS ? show(outs) : QString("error %1").arg(result);
    }
    return answers;
}
