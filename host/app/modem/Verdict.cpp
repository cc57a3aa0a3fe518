// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "modem/Verdict.h"

#include "modemmanager/ServiceTiming.h"
#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

using namespace ModemService;

// docs/report.md has the sources.
const double WeakRssi = -102;
const double WeakRscp = -110;
const double WeakRsrp = -125;
const double TellsNothing = std::numeric_limits<double>::lowest();

const QString Dbm = QStringLiteral("dBm");
const QString Db = QStringLiteral("dB");

/// The levels that ModemManager tells and the SDK does not.
const struct
{
    const char *group;
    const char *name;
    double weakest;
} ServiceLevels[] = {
    {"LTE", "RSRP", WeakRsrp}, {"LTE", "RSRQ", TellsNothing}, {"LTE", "SNR", TellsNothing},
    {"5G", "RSRP", WeakRsrp},  {"5G", "RSRQ", TellsNothing},  {"5G", "SNR", TellsNothing},
};

bool isRegistration(int state)
{
    return state == VELT_REG_HOME || state == VELT_REG_ROAMING;
}

QString digit(char attempts)
{
    return attempts >= '0' && attempts <= '9' ? QString(QLatin1Char(attempts)) : QString();
}

/// One verdict. The first row that holds, and has its argument if it takes one, counts.
struct Row
{
    const char *code;
    const char *text;
    bool (*holds)(const ModemState &);
    QString (*argument)(const ModemState &); ///< takes the place of "%1"; null if there is none
};

#define TEXT(text) QT_TRANSLATE_NOOP("Verdict", text)
#define WHEN(condition) [](const ModemState &s) -> bool { return condition; }
#define WITH(value)                                                                                \
    [](const ModemState &s) -> QString {                                                           \
        Q_UNUSED(s)                                                                                \
        return value;                                                                              \
    }

// clang-format off
const Row Rows[] = {
    {"no-service",          TEXT("The system's message bus does not answer."),
        WHEN(s.service == Status::NoBus), nullptr},
    {"no-service",          TEXT("ModemManager is not running."),
        WHEN(s.service == Status::NoService), nullptr},
    {"not-answering",       TEXT("ModemManager has not answered yet."),
        WHEN(s.service == Status::Starting), nullptr},
    {"not-answering",       TEXT("ModemManager has not answered for %1 seconds."),
        WHEN(s.service == Status::NotAnswering),
        WITH(QString::number(serviceTiming().confirmation / 1000))},
    {"not-answering",       TEXT("The modem does not answer."),
        WHEN(!s.answers && s.result == VELT_ERROR_TIMEOUT), nullptr},
    {"no-modem",            TEXT("ModemManager has no modem."),
        WHEN(s.service == Status::NoModem && s.index == 0), nullptr},
    {"no-modem",            TEXT("ModemManager has no modem with the number %1."),
        WHEN(s.service == Status::NoModem), WITH(QString::number(s.index))},
    {"no-modem",            TEXT("No modem is plugged in."),
        WHEN(!s.answers && s.result == VELT_ERROR_NO_DEVICE && s.service != Status::Present), nullptr},
    {"modem-failed",        TEXT("The modem failed: its SIM has an error."),
        WHEN(s.condition.state == Failed && s.condition.failedReason == SimError), nullptr},
    {"modem-failed",        TEXT("The modem failed: its capabilities are unknown."),
        WHEN(s.condition.state == Failed && s.condition.failedReason == UnknownCapabilities), nullptr},
    {"modem-failed",        TEXT("The modem failed: its eSIM has no profile."),
        WHEN(s.condition.state == Failed && s.condition.failedReason == SimWithoutProfiles), nullptr},
    {"modem-failed",        TEXT("The modem failed, and does not say why."),
        WHEN((s.condition.state == Failed || (!s.answers && s.result != VELT_SUCCESS)) &&
             s.condition.failedReason != SimMissing), nullptr},
    {"no-sim",              TEXT("There is no SIM in the modem."),
        WHEN(s.simStatus == VELT_SIM_NONE || s.condition.failedReason == SimMissing), nullptr},
    {"pin-required",        TEXT("The SIM asks for its PIN (tries left: %1)."),
        WHEN(s.pinStatus == VELT_PIN_REQUIRED), WITH(s.pinAttempts)},
    {"pin-required",        TEXT("The SIM asks for its PIN."),
        WHEN(s.pinStatus == VELT_PIN_REQUIRED), nullptr},
    {"puk-required",        TEXT("The SIM asks for its PUK (tries left: %1)."),
        WHEN(s.pinStatus == VELT_PIN_PUK_REQUIRED), WITH(s.pukAttempts)},
    {"puk-required",        TEXT("The SIM asks for its PUK."),
        WHEN(s.pinStatus == VELT_PIN_PUK_REQUIRED), nullptr},
    {"pin-blocked",         TEXT("The SIM is blocked: no tries are left for its PUK."),
        WHEN(s.pinStatus == VELT_PIN_BLOCKED), nullptr},
    {"modem-locked",        TEXT("The modem is locked and asks for a code other than the PIN."),
        WHEN(s.condition.state == Locked), nullptr},
    {"switched-off",        TEXT("The modem is switched off."),
        WHEN(s.condition.powerState == PowerOff), nullptr},
    {"low-power",           TEXT("The modem is in low-power mode: its radio is off."),
        WHEN(s.condition.powerState == PowerLow), nullptr},
    {"disabled",            TEXT("The modem is disabled."),
        WHEN(s.condition.state == Disabled || s.condition.state == Disabling), nullptr},
    {"starting",            TEXT("The modem is starting."),
        WHEN(s.condition.state == Initialising || s.condition.state == Enabling ||
             s.deviceStatus == VELT_DEV_STATUS_FOUND ||
             s.deviceStatus == VELT_DEV_STATUS_INITIALISING), nullptr},
    {"registration-denied", TEXT("The network refuses the modem (cause: %1)."),
        WHEN(s.isDenied()), WITH(s.rejection)},
    {"registration-denied", TEXT("The network refuses the modem."),
        WHEN(s.isDenied()), nullptr},
    {"searching",           TEXT("The modem is searching for a network."),
        WHEN(!s.isRegistered() && (s.csState == VELT_REG_SEARCHING || s.psState == VELT_REG_SEARCHING ||
                                   s.condition.state == Searching)), nullptr},
    {"not-registered",      TEXT("The modem is not registered with a network."),
        WHEN(!s.isRegistered() && (s.csState == VELT_REG_NOT_REGISTERED || s.psState == VELT_REG_NOT_REGISTERED ||
                                   s.condition.state == Enabled)), nullptr},
    {"not-attached",        TEXT("The modem is registered, but not attached to the packet service."),
        WHEN(s.isRegistered() && !s.isConnected() && s.attachment == VELT_PS_DETACHED), nullptr},
    {"not-connected",       TEXT("The modem is registered, but there is no connection."),
        WHEN((s.isRegistered() || s.attachment == VELT_PS_ATTACHED) && !s.isConnected()), nullptr},
    {"weak-signal",         TEXT("The modem is connected, but its signal is weak (%1)."),
        WHEN(s.isConnected()), WITH(s.weakSignal())},
    {"connected",           TEXT("The modem is connected."),
        WHEN(s.isConnected()), nullptr},
    {"unknown",             TEXT("The modem does not tell enough for a verdict."),
        [](const ModemState &) { return true; }, nullptr},
};
// clang-format on

#undef TEXT
#undef WHEN
#undef WITH

} // namespace

ModemState ModemState::read(int index)
{
    ModemState state;
    state.index = index;
    state.service = ModemService::status();
    state.condition = ModemService::condition();
    const std::vector<ModemService::Detail> details = ModemService::details();
    for (const ModemService::Detail &detail : details) {
        if (detail.group == "Network" && detail.name == "Rejection cause")
            state.rejection = QString::fromStdString(detail.value);
    }

    // Leaves the number as it is if the function fails.
    const auto noted = [&state](VELT_ERROR result) {
        state.answers = state.answers || result == VELT_SUCCESS;
        return result;
    };
    state.result = noted(VELT_DevSrv_GetDevStatus(&state.deviceStatus));
    noted(VELT_DevSrv_GetSimStatus(&state.simStatus));
    char pin = 0;
    char puk = 0;
    char enabled = 0;
    noted(VELT_DevSrv_GetPinStatus(0, &state.pinStatus, &pin, &puk, &enabled));
    state.pinAttempts = digit(pin);
    state.pukAttempts = digit(puk);
    VELT_REG_STATE registration;
    if (noted(VELT_NetSrv_GetCSRegState(&registration)) == VELT_SUCCESS)
        state.csState = registration.state;
    if (noted(VELT_NetSrv_GetPSRegState(&registration)) == VELT_SUCCESS)
        state.psState = registration.state;
    noted(VELT_NetSrv_GetPSState(&state.attachment));
    char address[64] = "";
    state.hasAddress =
        noted(VELT_NetSrv_GetIPAddress("", "", address, sizeof address)) == VELT_SUCCESS &&
        address[0] != '\0';

    VELT_SIGNAL_PAIR pair;
    if (noted(VELT_NetSrv_GetRowRSSI(&pair)) == VELT_SUCCESS) {
        int32_t product = VELT_PRODUCT_UNKNOWN;
        noted(VELT_DevSrv_GetProductType(&product));
        const bool isTdScdma = product == VELT_PRODUCT_TD_SCDMA;
        if (pair.first >= 0 && pair.first <= (isTdScdma ? 91 : 31))
            state.levels.append({QStringLiteral("RSSI"),
                                 isTdScdma ? pair.first - 116.0 : 2 * pair.first - 113.0, Dbm,
                                 WeakRssi});
    }
    if (noted(VELT_NetSrv_GetSignalQuality(&pair)) == VELT_SUCCESS)
        state.levels.append({{QStringLiteral("RSCP"), double(pair.first), Dbm, WeakRscp},
                             {QStringLiteral("Ec/Io"), double(pair.second), Db, TellsNothing}});
    for (const auto &level : ServiceLevels) {
        for (const ModemService::Detail &detail : details) {
            const QString value = QString::fromStdString(detail.value);
            if (detail.group == level.group && detail.name == level.name)
                state.levels.append(
                    {QLatin1String(level.group) + QLatin1Char(' ') + QLatin1String(level.name),
                     value.section(QLatin1Char(' '), 0, 0).toDouble(),
                     value.section(QLatin1Char(' '), 1), level.weakest});
        }
    }
    return state;
}

bool ModemState::isConnected() const
{
    return hasAddress || condition.state == Connected;
}

bool ModemState::isRegistered() const
{
    return isRegistration(csState) || isRegistration(psState) || condition.state >= Registered ||
           isConnected();
}

bool ModemState::isDenied() const
{
    const bool csDenied = csState == VELT_REG_DENIED && !isRegistered();
    return (psState == VELT_REG_DENIED || csDenied) && !isConnected();
}

QString ModemState::weakSignal() const
{
    for (const RadioLevel &level : levels) {
        if (level.value < level.weakest)
            return level.text();
    }
    return QString();
}

Verdict::Verdict(const ModemState &state)
{
    const Row &row = *std::find_if(std::begin(Rows), std::end(Rows), [&state](const Row &each) {
        return each.holds(state) && (!each.argument || !each.argument(state).isEmpty());
    });
    code = QLatin1String(row.code);
    text = QCoreApplication::translate("Verdict", row.text);
    if (row.argument)
        text = text.arg(row.argument(state));
    noModem = code == QLatin1String("no-service") || code == QLatin1String("not-answering") ||
              code == QLatin1String("no-modem");
}
