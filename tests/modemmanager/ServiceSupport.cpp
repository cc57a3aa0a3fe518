// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ServiceSupport.h"

#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"
#include "sdk/VeltPhonebook.h"
#include "sdk/VeltSms.h"

#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QTest>

#include <csignal>
#include <functional>
#include <mutex>

namespace ServiceSupport {

namespace {

qint64 longest = 0; // ns

std::mutex eventMutex;
QStringList eventTexts;

int takeEvent(int event, void *)
{
    int32_t status = -1;
    const VELT_ERROR result = VELT_DevSrv_GetDevStatus(&status);
    std::lock_guard<std::mutex> lock(eventMutex);
    eventTexts << QStringLiteral("%1:%2").arg(event).arg(
        result == VELT_SUCCESS ? QString::number(status) : QStringLiteral("-"));
    return 1;
}

template <size_t Size>
QString field(const char (&text)[Size])
{
    return QString::fromLatin1(text, static_cast<int>(qstrnlen(text, Size)));
}

QString numbers(std::initializer_list<qint64> values)
{
    QStringList texts;
    for (const qint64 value : values)
        texts << QString::number(value);
    return texts.join(QLatin1Char('|'));
}

} // namespace

// ---- Programs ----

void Program::start(const QString &program, const QStringList &arguments)
{
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.start(QStringLiteral("setpriv"),
                    QStringList{QStringLiteral("--pdeathsig"), QStringLiteral("KILL"),
                                QStringLiteral("--"), program} +
                        arguments);
    m_process.waitForStarted();
}

void Program::signal(int number)
{
    if (isRunning())
        ::kill(static_cast<pid_t>(m_process.processId()), number);
}

void Program::stop()
{
    m_process.kill();
    m_process.waitForFinished();
}

PrivateBus::PrivateBus()
{
    const QByteArray address = "unix:path=" + QFile::encodeName(socket());
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}

QString PrivateBus::start()
{
    if (QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")).isEmpty())
        return QStringLiteral("dbus-daemon is missing (package dbus-daemon)");
    const QString fileName = m_folder.path() + QStringLiteral("/bus.conf");
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    file.write("<busconfig><type>system</type><listen>unix:path=" + QFile::encodeName(socket()) +
               "</listen><policy context=\"default\"><allow send_destination=\"*\"/>"
               "<allow receive_sender=\"*\"/><allow own=\"*\"/><allow user=\"*\"/></policy>"
               "</busconfig>");
    file.close();
    QFile::remove(socket());
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                    QStringLiteral("--config-file=") + fileName});
    return QTest::qWaitFor([&] { return QFile::exists(socket()); })
               ? QString()
               : QStringLiteral("dbus-daemon does not start");
}

QDBusConnection PrivateBus::connect(const QString &name) const
{
    return QDBusConnection::connectToBus(QStringLiteral("unix:path=") + socket(), name);
}

// ---- The SDK ----

QMap<QString, QString> readSdk()
{
    QMap<QString, QString> values;
    const auto read = [&](const char *name, const std::function<VELT_ERROR()> &function,
                          const std::function<QString()> &text) {
        QElapsedTimer timer;
        timer.start();
        const VELT_ERROR result = function();
        longest = qMax(longest, timer.nsecsElapsed());
        values[QLatin1String(name)] =
            result == VELT_SUCCESS ? text() : QStringLiteral("error %1").arg(result);
    };

    const auto readText = [&](const char *name, const std::function<VELT_ERROR(char *)> &function) {
        char buffer[256] = {};
        read(
            name, [&] { return function(buffer); }, [&] { return field(buffer); });
    };
    const auto readNumber = [&](const char *name,
                                const std::function<VELT_ERROR(int32_t *)> &function) {
        int32_t number = -99;
        read(
            name, [&] { return function(&number); }, [&] { return QString::number(number); });
    };
    readNumber("status", VELT_DevSrv_GetDevStatus);
    readNumber("type", VELT_DevSrv_GetProductType);
    readNumber("port", VELT_DevSrv_GetDevicePort);
    readNumber("carriers", VELT_DevSrv_GetNumberOfCarrier);
    readNumber("sim", VELT_DevSrv_GetSimStatus);
    readNumber("attached", VELT_NetSrv_GetPSState);
    readNumber("simMessages", [](int32_t *count) {
        return VELT_SMSSrv_SMSRecordSetGetRecordCount(count, VELT_SMS_SIM);
    });
    readNumber("deviceMessages", [](int32_t *count) {
        return VELT_SMSSrv_SMSRecordSetGetRecordCount(count, VELT_SMS_DEVICE);
    });
    readNumber("contacts", [](int32_t *size) { return VELT_PBSrv_GetSize(1, size); });
    readText("edition", VELT_DevSrv_GetCustomizeName);
    readText("model", VELT_DevSrv_GetDeviceName);
    readText("imei", VELT_DevSrv_GetImeiInfo);
    readText("serial", VELT_DevSrv_GetSN);
    readText("imsi", VELT_DevSrv_GetImsiInfo);
    readText("prl", VELT_NetSrv_GetPrlVer);
    readText("iccid", [](char *text) { return VELT_NetSrv_GetEFFile(VELT_EF_ICCID, text); });
    readText("ip", [](char *text) { return VELT_NetSrv_GetIPAddress("", "", text, 64); });
    readText("dns", [](char *text) { return VELT_NetSrv_GetDNS("", "", text, 64); });
    uint32_t voltage = 0;
    read(
        "voltage", [&] { return VELT_DevSrv_GetVoltage(&voltage); },
        [&] { return QString::number(voltage); });

    VELT_VERSION_INFO version = {};
    read(
        "version", [&] { return VELT_DevSrv_GetFirmwareVersion(&version); },
        [&] { return field(version.firmware) + QLatin1Char('|') + field(version.hardware); });
    VELT_ESN_INFO esn = {};
    read(
        "esn", [&] { return VELT_DevSrv_GetESN(&esn); },
        [&] { return field(esn.esn) + QLatin1Char('|') + field(esn.meid); });
    int32_t pin = -99;
    char pinBytes[4] = {};
    read(
        "pin",
        [&] { return VELT_DevSrv_GetPinStatus(0, &pin, pinBytes, pinBytes + 1, pinBytes + 2); },
        [&] { return QString::number(pin) + QLatin1Char('|') + field(pinBytes); });
    int32_t n[5] = {};
    read(
        "ownNumbers",
        [&] { return VELT_DevSrv_GetUserNumMemAbility(n, n + 1, n + 2, n + 3, n + 4); },
        [&] {
            return numbers({n[0], n[1], n[2], n[3], n[4]});
        });
    VELT_USER_NUMBER item = {};
    read(
        "ownNumber", [&] { return VELT_DevSrv_ReadUserNumItem(1, &item); },
        [&] { return field(item.number); });
    VELT_OPERATOR plmn = {};
    int32_t mode = -99;
    read(
        "operator", [&] { return VELT_NetSrv_GetCurPlmn(&mode, &plmn); },
        [&] {
            return QStringLiteral("%1|%2|%3|%4")
                .arg(QString::number(mode), field(plmn.longName), field(plmn.code),
                     QString::number(plmn.accessTechnology));
        });
    const auto readRegistration = [&](const char *name,
                                      const std::function<VELT_ERROR(VELT_REG_STATE *)> &function) {
        VELT_REG_STATE state = {};
        read(
            name, [&] { return function(&state); },
            [&] {
                return QStringLiteral("%1|%2|%3")
                    .arg(numbers({state.reportMode, state.state}), field(state.lac),
                         field(state.cellId));
            });
    };
    readRegistration("cs", VELT_NetSrv_GetCSRegState);
    readRegistration("ps", VELT_NetSrv_GetPSRegState);
    const auto readSignal = [&](const char *name,
                                const std::function<VELT_ERROR(VELT_SIGNAL_PAIR *)> &function) {
        VELT_SIGNAL_PAIR pair = {};
        read(
            name, [&] { return function(&pair); },
            [&] {
                return numbers({pair.first, pair.second});
            });
    };
    readSignal("rssi", VELT_NetSrv_GetRowRSSI);
    readSignal("rscp", VELT_NetSrv_GetSignalQuality);
    read(
        "setReport", [] { return VELT_NetSrv_SetCSRegReport(2); }, [] { return QString(); });
    uint16_t centre[VELT_SIZE_SMS_CENTRE / 2] = {};
    int32_t length = 0;
    read(
        "centre", [&] { return VELT_SMSSrv_GetSMSCentreNumber(&length, centre, 1); },
        [&] { return QString::fromUtf16(reinterpret_cast<const char16_t *>(centre), length); });
    return values;
}

QString addressOf(const char *profile)
{
    char address[64] = {};
    const VELT_ERROR result = VELT_NetSrv_GetIPAddress("", profile, address, sizeof address);
    return result == VELT_SUCCESS ? field(address) : QStringLiteral("error %1").arg(result);
}

QStringList distinctAnswers()
{
    QStringList answers = readSdk().values();
    answers.removeDuplicates();
    return answers;
}

double longestCall()
{
    return static_cast<double>(longest) / 1e6;
}

QString differences(const QMap<QString, QString> &expected)
{
    const QMap<QString, QString> values = readSdk();
    QStringList found;
    for (auto i = expected.begin(); i != expected.end(); ++i) {
        if (values.value(i.key(), QStringLiteral("?")) != i.value())
            found << QStringLiteral("%1: \"%2\", not \"%3\"")
                         .arg(i.key(), values.value(i.key()), i.value());
    }
    return found.join(QLatin1String(", "));
}

// ---- Events ----

EventLog::EventLog()
{
    clear();
    VELT_DevSrv_RegisterDevMgrCallback(takeEvent);
    VELT_DevSrv_RegisterDevInitEventCallback(takeEvent);
}

EventLog::~EventLog()
{
    VELT_DevSrv_UnRegisterDevInitEventCallback(takeEvent);
    VELT_DevSrv_UnRegisterDevMgrCallback(takeEvent);
}

QString EventLog::text() const
{
    std::lock_guard<std::mutex> lock(eventMutex);
    return eventTexts.join(QLatin1Char(' '));
}

void EventLog::clear()
{
    std::lock_guard<std::mutex> lock(eventMutex);
    eventTexts.clear();
}

} // namespace ServiceSupport
