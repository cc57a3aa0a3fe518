// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ServiceSupport.h"

#include "ModemService.h"
#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"
#include "sdk/VeltSms.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <mutex>

namespace ServiceSupport {

QString content(const char *fileName)
{
    QFile file(QString(TEST_SOURCE_DIR "/") + fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", fileName);
    return file.readAll();
}

Pairs pairs(const QString &text)
{
    Pairs pairs;
    for (const QString &pair : text.split(QRegularExpression("\n|; "), Qt::SkipEmptyParts)) {
        if (!pair.startsWith('#'))
            pairs[pair.section(" =", 0, 0)] = pair.section(" =", 1).trimmed();
    }
    return pairs;
}

// ---- Programs ----

void Program::start(const QString &program, const QStringList &arguments)
{
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.start("setpriv", QStringList{"--pdeathsig", "KILL", "--", program} + arguments);
    m_process.waitForStarted();
}

void Program::stop()
{
    m_process.kill();
    m_process.waitForFinished();
}

PrivateBus::PrivateBus() : m_socket(m_folder.filePath("bus"))
{
    for (const char *name : {"DBUS_SYSTEM_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS"})
        qputenv(name, "unix:path=" + QFile::encodeName(m_socket));
}

QString PrivateBus::start()
{
    QFile::remove(m_socket);
    m_daemon.start("dbus-daemon",
                   {"--nofork", "--nopidfile", "--config-file=" TEST_SOURCE_DIR "/bus.conf",
                    "--address=unix:path=" + m_socket});
    return QTest::qWaitFor([&] { return QFile::exists(m_socket); })
               ? ""
               : "dbus-daemon does not start (package dbus-daemon)";
}

// ---- The SDK ----

namespace {

template <size_t Size>
QString field(const char (&text)[Size])
{
    return QString::fromLatin1(text, static_cast<int>(qstrnlen(text, Size)));
}

QString join(std::initializer_list<QVariant> values)
{
    return QVariant(QVariantList(values)).toStringList().join('|');
}

/// An answer as text.
struct Text
{
    static QString of(const char *t) { return QString::fromLatin1(t); }
    static QString of(const int32_t *n) { return QString::number(*n); }
    static QString of(const VELT_ESN_INFO *e) { return join({field(e->esn), field(e->meid)}); }
    static QString of(const VELT_USER_NUMBER *n) { return field(n->number); }
    static QString of(const VELT_SIGNAL_PAIR *s) { return join({s->first, s->second}); }
    static QString of(const VELT_VERSION_INFO *v)
    {
        return join({field(v->firmware), field(v->hardware)});
    }
    static QString of(const VELT_REG_STATE *s)
    {
        return join({s->reportMode, s->state, field(s->lac), field(s->cellId)});
    }
    static QString of(const VELT_OPERATOR *o)
    {
        return join({field(o->longName), field(o->code), o->accessTechnology});
    }
};

/// Calls a function with an out-parameter that is large enough for a text too.
template <typename Out, typename Function>
QString ask(Function function)
{
    Out out[256] = {};
    const VELT_ERROR result = function(out);
    return result == VELT_SUCCESS ? Text::of(out) : QString("error %1").arg(result);
}

VELT_ERROR readPin(char *text)
{
    int32_t status = 0;
    const VELT_ERROR result = VELT_DevSrv_GetPinStatus(0, &status, text + 1, text + 2, text + 3);
    text[0] = static_cast<char>('0' + status);
    return result;
}

VELT_ERROR readCentre(char *text)
{
    uint16_t centre[VELT_SIZE_SMS_CENTRE / 2] = {};
    int32_t length = 0;
    const VELT_ERROR result = VELT_SMSSrv_GetSMSCentreNumber(&length, centre, 1);
    std::copy(centre, centre + length, text);
    return result;
}

VELT_ERROR readOperator(VELT_OPERATOR *plmn)
{
    int32_t mode = 0;
    return VELT_NetSrv_GetCurPlmn(&mode, plmn);
}

std::mutex eventMutex;
QStringList eventTexts;

int takeEvent(int event, void *)
{
    const QString status = ask<int32_t>(VELT_DevSrv_GetDevStatus);
    std::lock_guard<std::mutex> lock(eventMutex);
    eventTexts << QString("%1:%2").arg(event).arg(status);
    return 1;
}

} // namespace

Pairs readSdk()
{
    const auto ip = [](char *text) { return VELT_NetSrv_GetIPAddress("", "", text, 64); };
    const auto dns = [](char *text) { return VELT_NetSrv_GetDNS("", "", text, 64); };
    const auto iccid = [](char *text) { return VELT_NetSrv_GetEFFile(VELT_EF_ICCID, text); };
    const auto ownNumber = [](VELT_USER_NUMBER *n) { return VELT_DevSrv_ReadUserNumItem(1, n); };
    const auto setReport = [](int32_t *) { return VELT_NetSrv_SetCSRegReport(2); };
    const auto messages = [](int32_t *count) {
        return VELT_SMSSrv_SMSRecordSetGetRecordCount(count, VELT_SMS_SIM);
    };
    Pairs values{
        {"status", ask<int32_t>(VELT_DevSrv_GetDevStatus)},
        {"type", ask<int32_t>(VELT_DevSrv_GetProductType)},
        {"port", ask<int32_t>(VELT_DevSrv_GetDevicePort)},
        {"sim", ask<int32_t>(VELT_DevSrv_GetSimStatus)},
        {"attached", ask<int32_t>(VELT_NetSrv_GetPSState)},
        {"messages", ask<int32_t>(messages)},
        {"setReport", ask<int32_t>(setReport)},
        {"model", ask<char>(VELT_DevSrv_GetDeviceName)},
        {"imei", ask<char>(VELT_DevSrv_GetImeiInfo)},
        {"imsi", ask<char>(VELT_DevSrv_GetImsiInfo)},
        {"iccid", ask<char>(iccid)},
        {"ip", ask<char>(ip)},
        {"dns", ask<char>(dns)},
        {"pin", ask<char>(readPin)},
        {"centre", ask<char>(readCentre)},
        {"version", ask<VELT_VERSION_INFO>(VELT_DevSrv_GetFirmwareVersion)},
        {"esn", ask<VELT_ESN_INFO>(VELT_DevSrv_GetESN)},
        {"ownNumber", ask<VELT_USER_NUMBER>(ownNumber)},
        {"operator", ask<VELT_OPERATOR>(readOperator)},
        {"cs", ask<VELT_REG_STATE>(VELT_NetSrv_GetCSRegState)},
        {"ps", ask<VELT_REG_STATE>(VELT_NetSrv_GetPSRegState)},
        {"rssi", ask<VELT_SIGNAL_PAIR>(VELT_NetSrv_GetRowRSSI)},
        {"rscp", ask<VELT_SIGNAL_PAIR>(VELT_NetSrv_GetSignalQuality)},
    };
    for (const char *profile : {"Second", "other"}) {
        values[QString("ip of ") + profile] =
            ask<char>([=](char *text) { return VELT_NetSrv_GetIPAddress("", profile, text, 64); });
    }
    QStringList all = values.values();
    all.removeDuplicates();
    values["all"] = all.join(", ");
    values["problem"] = QString::fromStdString(ModemService::problem());
    for (const char *key : {"network/operatorName", "network/networkType", "connection/profile",
                            "connection/apn", "device/deviceName"})
        values[key] = QString::fromStdString(ModemService::value(key));
    std::lock_guard<std::mutex> lock(eventMutex);
    values["events"] = eventTexts.join(' ');
    return values;
}

QString differences(const Pairs &expected)
{
    const Pairs values = readSdk();
    QStringList found;
    for (auto i = expected.begin(); i != expected.end(); ++i) {
        if (values.value(i.key(), "?") != *i)
            found << i.key() + ": \"" + values.value(i.key()) + "\", not \"" + *i + '"';
    }
    return found.join(", ");
}

void startEvents()
{
    VELT_DevSrv_UnRegisterDevMgrCallback(takeEvent);
    VELT_DevSrv_UnRegisterDevInitEventCallback(takeEvent);
    eventTexts.clear();
    VELT_DevSrv_RegisterDevMgrCallback(takeEvent);
    VELT_DevSrv_RegisterDevInitEventCallback(takeEvent);
}

} // namespace ServiceSupport
