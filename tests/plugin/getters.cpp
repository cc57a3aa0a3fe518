// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The query layer: what each getter asks, says and logs, for success and failure.

#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUILogic.h"
#include "TestSupport.h"

#include "HostCore.h"
#include "ModemControl.h"
#include "interfaces/IDialupUIService.h"
#include "interfaces/INetConnectSetting.h"
#include "interfaces/IStatusBarUI.h"
#include "sdk/VeltDevice.h"

#include <QFile>
#include <QSignalSpy>
#include <QThread>
#include <QtTest>

#include <functional>

using namespace TestSupport;

namespace {

typedef DiagnosticsUILogic Logic;
typedef std::function<QString(Logic *)> Getter;

/// All getters, in the order of the class.
const struct
{
    const char *name;
    Getter get;
} Getters[] = {
    {"GetSoftwareVersion", &Logic::GetSoftwareVersion},
    {"GetFirmwareVersion", &Logic::GetFirmwareVersion},
    {"GetHardwareVersion", &Logic::GetHardwareVersion},
    {"GetIMEI", &Logic::GetIMEI},
    {"GetSerialNumber", &Logic::GetSerialNumber},
    {"GetApplicationPort", &Logic::GetApplicationPort},
    {"GetDeviceName", &Logic::GetDeviceName},
    {"GetDeviceType", &Logic::GetDeviceType},
    {"GetEsn", &Logic::GetEsn},
    {"IsPesn", [](Logic *logic) { return QString::number(logic->IsPesn()); }},
    {"GetMeid", &Logic::GetMeid},
    {"GetPrlVersion", &Logic::GetPrlVersion},
    {"GetVoltage", &Logic::GetVoltage},
    {"GetMulticarrier", &Logic::GetMulticarrier},
    {"GetNetworkName", &Logic::GetNetworkName},
    {"GetNetworkType", &Logic::GetNetworkType},
    {"getNetwork", &Logic::getNetwork},
    {"GetSelectionMode", &Logic::GetSelectionMode},
    {"GetCsRegister", &Logic::GetCsRegister},
    {"GetPsRegister", &Logic::GetPsRegister},
    {"GetPsAttachment", &Logic::GetPsAttachment},
    {"GetRSSI", &Logic::GetRSSI},
    {"GetSignalStrength", &Logic::GetSignalStrength},
    {"GetRSQUAL", &Logic::GetRSQUAL},
    {"GetRSCP", &Logic::GetRSCP},
    {"GetECIO", &Logic::GetECIO},
    {"GetECNO", &Logic::GetECNO},
    {"GetCellID", &Logic::GetCellID},
    {"GetLACCode", &Logic::GetLACCode},
    {"GetSimStatus", &Logic::GetSimStatus},
    {"GetPinStatus", &Logic::GetPinStatus},
    {"GetIMSINumber", &Logic::GetIMSINumber},
    {"GetICCID", &Logic::GetICCID},
    {"GetOwnNumber", &Logic::GetOwnNumber},
    {"GetSMSC", &Logic::GetSMSC},
    {"GetContactCountinSim", &Logic::GetContactCountinSim},
    {"GetContactCountinDevice", &Logic::GetContactCountinDevice},
    {"GetMessageCount(1)", [](Logic *logic) { return logic->GetMessageCount(1); }},
    {"GetMessageCount(2)", [](Logic *logic) { return logic->GetMessageCount(2); }},
    {"GetIPAddress", &Logic::GetIPAddress},
    {"GetDNSServer", &Logic::GetDNSServer},
    {"GetAPN", &Logic::GetAPN},
};

/// The host's three plug-ins in one object, so that each can fail.
class HostPlugins : public QObject,
                    public IStatusBarUI,
                    public IDialupUIService,
                    public INetConnectSetting
{
    Q_OBJECT
    Q_INTERFACES(IStatusBarUI IDialupUIService INetConnectSetting)

public:
    int result = 0;
    QString profile = QString::fromLatin1("profile 1");

    int IGetServiceName(QString &name) override
    {
        name = QLatin1String("service");
        return result;
    }
    int IGetNetworkType(QString &type) override
    {
        type = QLatin1String("type");
        return result;
    }
    int IGetProfileName(QString &name) override
    {
        name = profile;
        return result;
    }
    int IGetProfileSettings(QString profileName, NetProfileSettings *settings) override
    {
        settings->dialNumber = QLatin1String("*99#");
        settings->apn = QLatin1String("apn of ") + profileName;
        settings->apnMode = QLatin1String("static");
        return result;
    }
};

void registerAll(HostCore::PluginRegister &container, QObject *plugin)
{
    container.add(QLatin1String(CLSID_STATUSBAR_UI), PLUGIN_TYPE_STATUSBAR_UI, plugin);
    container.add(QLatin1String(CLSID_DIALUP_UI_SERVICE), PLUGIN_TYPE_DIALUP_UI_SERVICE, plugin);
    container.add(QLatin1String(CLSID_NET_CONNECT_SETTING), PLUGIN_TYPE_NET_CONNECT_SETTING,
                  plugin);
}

} // namespace

class GettersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void conversation_data();
    void conversation();
    void values_data();
    void values();
    void filledBuffers_data();
    void filledBuffers();
    void selectionModeOfAFailingCall();
    void reportModeThatTheDeviceKeeps();
    void locationAlreadyReported();
    void ownNumbers_data();
    void ownNumbers();
    void countsNeedBothCalls_data();
    void countsNeedBothCalls();
    void addressesUseTheLastDeviceName();
    void hostLookups_data();
    void hostLookups();
    void events_data();
    void events();
    void registrationFailures();
    void countsReferences();

private:
    QString answer(const char *getter)
    {
        for (const auto &row : Getters) {
            if (qstrcmp(row.name, getter) == 0)
                return row.get(m_logic);
        }
        qFatal("no getter %s", getter);
        return QString();
    }

    ConfiguredHost *m_host = nullptr;
    LogCapture *m_log = nullptr;
    HostCore::PluginRegister *m_container = nullptr;
    HostPlugins *m_plugins = nullptr;
    Logic *m_logic = nullptr;
};

void GettersTest::init()
{
    m_log = new LogCapture;
    m_host = new ConfiguredHost;
    m_host->write("host.ini", "[version]\nversion=SW 5\n");
    HostCore::setSettingsFile(m_host->folder() + QLatin1String("host.ini"));
    std::string error;
    if (!ModemControl::attach(DIAG_SOURCE_DIR "/tests/sdk/distinct.ini", &error))
        qFatal("%s", error.c_str());
    ModemControl::setValue("connection/profile", "profile 1");
    m_plugins = new HostPlugins;
    m_container = new HostCore::PluginRegister;
    registerAll(*m_container, m_plugins);
    HostCore::setPluginContainer(m_container);
    m_logic = Logic::GetInstance();
    ModemControl::startRecording();
    m_log->takeLog();
}

void GettersTest::cleanup()
{
    Logic::Destroy();
    Logic::Destroy();
    DiagnosticsConfigParse::DestroyInstance();
    delete m_container;
    delete m_plugins;
    delete m_host;
    QCOMPARE(m_log->takeWarnings(), QStringList());
    delete m_log;
}

void GettersTest::conversation_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("failing");
    QTest::newRow("succeeding") << QString::fromLatin1("conversation.succeeding") << false;
    QTest::newRow("failing") << QString::fromLatin1("conversation.failing") << true;
}

/// Every getter's answer, SDK calls and log lines, compared with a golden file.
void GettersTest::conversation()
{
    QFETCH(QString, file);
    QFETCH(bool, failing);
    if (failing) {
        ModemControl::setResult("*", 7);
        m_plugins->result = 1;
    }
    QStringList spoken;
    for (const auto &row : Getters) {
        const QString text = row.get(m_logic);
        spoken.append(QString::fromLatin1("# %1: \"%2\"").arg(QLatin1String(row.name), text));
        spoken += takeCalls();
        spoken += m_log->takeLog();
    }
    QFile golden(QLatin1String(TEST_SOURCE_DIR "/") + file);
    QVERIFY(golden.open(QIODevice::ReadOnly));
    const QStringList expected =
        QString::fromUtf8(golden.readAll()).split(QLatin1Char('\n'), Qt::KeepEmptyParts);
    spoken.append(QString()); // the golden file ends with a line end
    if (spoken != expected)
        keepActual(file.toLatin1().constData(), spoken);
    QCOMPARE(spoken, expected);
}

void GettersTest::values_data()
{
    QTest::addColumn<QByteArray>("getter");
    QTest::addColumn<QByteArray>("changes"); ///< "key=value", separated by semicolons
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *getter, const char *changes, const char *expected) {
        QTest::addRow("%s %s", getter, changes)
            << QByteArray(getter) << QByteArray(changes) << QString::fromLatin1(expected);
    };

    row("GetDeviceType", "device/productType=0", "WCDMA");
    row("GetDeviceType", "device/productType=1", "CDMA");
    row("GetDeviceType", "device/productType=2", "TD_SCDMA");
    row("GetDeviceType", "device/productType=3", "UNKNOWN");
    row("GetDeviceType", "device/productType=255", "UNKNOWN");
    row("GetApplicationPort", "device/devicePort=-7", "KORVENMOBILE-Pcui");
    row("IsPesn", "device/esn=80A1B2C3", "1");
    row("IsPesn", "device/esn=8A000000", "0");
    row("IsPesn", "device/esn=08000000", "0");
    row("IsPesn", "device/esn=8", "0");
    row("GetVoltage", "device/voltage=4294967295", "4294967295");
    row("GetIMEI", "device/imei= 12 ", " 12 ");
    row("GetIMEI", "device/imei=\xE9", "\xE9");

    const char *wcdmaScale[][2] = {
        {"0", "<= -113dBm"}, {"1", "-111dBm"},    {"2", "-109dBm"}, {"15", "-83dBm"},
        {"30", "-53dBm"},    {"31", ">= -51dBm"}, {"32", nullptr},  {"90", nullptr},
        {"91", nullptr},     {"92", nullptr},     {"99", nullptr},  {"-1", nullptr},
        {"-32768", nullptr}, {"32767", nullptr},
    };
    const char *tdScale[][2] = {
        {"0", "<= -116dBm"}, {"1", "-115dBm"}, {"2", "-114dBm"}, {"15", "-101dBm"},
        {"30", "-86dBm"},    {"31", "-85dBm"}, {"32", "-84dBm"}, {"90", "-26dBm"},
        {"91", ">=-25dBm"},  {"92", nullptr},  {"99", nullptr},  {"-1", nullptr},
    };
    const auto scale = [&row](const char *type, const char *raw, const char *text) {
        const QByteArray changes =
            QByteArray("device/productType=") + type + ";network/rssi=" + raw;
        row("GetRSSI", changes.constData(), text ? text : "IDS_MAINFRM_UNKNOWN");
    };
    for (const auto &step : wcdmaScale)
        scale("0", step[0], step[1]);
    for (const auto &step : tdScale)
        scale("2", step[0], step[1]);
    scale("255", "31", ">= -51dBm");

    row("GetSignalStrength", "network/rssi=-32768;network/bitErrorRate=32767", "-32768, 32767");
    row("GetRSQUAL", "network/bitErrorRate=-1", "-1");
    row("GetRSCP", "network/rscp=-120", "-120");
    row("GetECIO", "network/ecIo=-24", "-24");

    const char *registrations[] = {"IDS_LANG_NOT_REGISTERED", "IDS_LANG_REGISTERED",
                                   "IDS_LANG_REGISTERING",    "IDS_LANG_REG_DENIED",
                                   "IDS_MAINFRM_UNKNOWN",     "IDS_LANG_ROAMING",
                                   "IDS_MAINFRM_UNKNOWN"};
    for (int state = 0; state < 7; ++state) {
        const QByteArray number = QByteArray::number(state);
        row("GetCsRegister", ("network/csState=" + number).constData(), registrations[state]);
        row("GetPsRegister", ("network/psState=" + number).constData(), registrations[state]);
    }
    row("GetCsRegister", "network/csState=-1", "IDS_MAINFRM_UNKNOWN");
    row("GetPsAttachment", "network/psAttachment=0", "IDS_LANG_NOT_ATTACHED");
    row("GetPsAttachment", "network/psAttachment=1", "IDS_LANG_ATTACHED");
    row("GetPsAttachment", "network/psAttachment=255", "IDS_MAINFRM_UNKNOWN");
    row("GetPsAttachment", "network/psAttachment=2", "");
    row("GetSelectionMode", "network/selectionMode=0", "IDS_LANG_AUTOMATIC");
    row("GetSelectionMode", "network/selectionMode=1", "IDS_LANG_MANUAL");
    row("GetSelectionMode", "network/selectionMode=4", "");
    row("getNetwork", "network/accessTechnology=2", "3G");
    row("getNetwork", "network/accessTechnology=7", "UNKNOWN");
    row("GetCellID", "network/csCellId=00aF", "00aF");

    row("GetSimStatus", "sim/simStatus=1", "Unknown");
    row("GetSimStatus", "sim/simStatus=240", "Roaming");
    const char *pins[] = {
        "IDS_LANG_PIN_NOT_INITIALIZED", "IDS_LANG_READY",       "IDS_LANG_PIN_REQUIRED",
        "IDS_LANG_PUK_REQUIRED",        "IDS_LANG_PIN_BLOCKED", "IDS_LANG_PIN2_REQUIRED",
        "IDS_LANG_PUK2_REQUIRED",       "IDS_MAINFRM_UNKNOWN",  "IDS_LANG_READY",
        "IDS_MAINFRM_UNKNOWN"};
    for (int state = 0; state < 10; ++state)
        row("GetPinStatus", ("sim/pinStatus=" + QByteArray::number(state)).constData(),
            pins[state]);
    row("GetContactCountinSim", "sim/contactsUsed=-1;sim/contactsTotal=2147483647",
        "-1 / 2147483647");
    row("GetMessageCount(1)", "sim/messagesUsed=12;sim/messagesTotal=250;device/messagesUsed=9",
        "12 / 250");
    row("GetMessageCount(2)", "device/messagesUsed=0;device/messagesTotal=-5", "0 / -5");
    row("GetSMSC", "sim/smsCentre=", "");
    row("GetSMSC", "sim/smsCentre=\xC3\xA9", "\xE9");
}

void GettersTest::values()
{
    QFETCH(QByteArray, getter);
    QFETCH(QByteArray, changes);
    QFETCH(QString, expected);
    for (const QByteArray &change : changes.split(';')) {
        const int at = change.indexOf('=');
        ModemControl::setValue(change.left(at).toStdString(), change.mid(at + 1).toStdString());
    }
    QCOMPARE(answer(getter.constData()), expected);
}

void GettersTest::filledBuffers_data()
{
    QTest::addColumn<QByteArray>("getter");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<int>("size");
    const auto row = [](const char *getter, const char *key, int size) {
        QTest::newRow(getter) << QByteArray(getter) << QByteArray(key) << size;
    };
    row("GetFirmwareVersion", "device/firmwareVersion", 40);
    row("GetHardwareVersion", "device/hardwareVersion", 40);
    row("GetIMEI", "device/imei", 24);
    row("GetSerialNumber", "device/serialNumber", 24);
    row("GetDeviceName", "device/deviceName", 24);
    row("GetEsn", "device/esn", 32);
    row("GetMeid", "device/meid", 32);
    row("GetPrlVersion", "device/prlVersion", 64);
    row("GetIMSINumber", "sim/imsi", 24);
    row("GetICCID", "sim/iccid", 256);
    row("GetOwnNumber", "sim/ownNumber", 128);
    row("GetSMSC", "sim/smsCentre", 50);
    row("GetCellID", "network/csCellId", 16);
    row("GetLACCode", "network/csLac", 16);
    row("GetIPAddress", "connection/ipAddress", 64);
    row("GetDNSServer", "connection/nameServers", 64);
}

/// A text without a zero at the end of its buffer, and with a neighbour behind its field.
void GettersTest::filledBuffers()
{
    QFETCH(QByteArray, getter);
    QFETCH(QByteArray, key);
    QFETCH(int, size);
    ModemControl::setValue(key.toStdString(), std::string(10000, 'x'));
    QCOMPARE(answer(getter.constData()), QString(size, QLatin1Char('x')));
    for (const QString &line : m_log->takeLog())
        QVERIFY2(line.count(QLatin1Char('x')) < size + 12, qPrintable(line));
}

void GettersTest::selectionModeOfAFailingCall()
{
    ModemControl::setValue("network/selectionMode", "1");
    ModemControl::setResult("VELT_NetSrv_GetCurPlmn", 9);
    QCOMPARE(answer("GetSelectionMode"), QString());
    ModemControl::setResult("VELT_NetSrv_GetCurPlmn", 9, ModemControl::FillOutputs);
    QCOMPARE(answer("GetSelectionMode"), QString::fromLatin1("IDS_LANG_MANUAL"));
    QCOMPARE(answer("getNetwork"), QString());
}

void GettersTest::reportModeThatTheDeviceKeeps()
{
    ModemControl::setValue("network/csReportMode", "0");
    ModemControl::setResult("VELT_NetSrv_SetCSRegReport", 0); // claims success, changes nothing
    const QStringList calls({QLatin1String("VELT_NetSrv_GetCSRegState()"),
                             QLatin1String("VELT_NetSrv_SetCSRegReport(2)"),
                             QLatin1String("VELT_NetSrv_GetCSRegState()")});
    QCOMPARE(answer("GetCellID"), QString()); // mode 0 has no location
    QCOMPARE(takeCalls(), calls);
    ModemControl::clearResults();
    QVERIFY(!answer("GetLACCode").isEmpty());
    QCOMPARE(takeCalls(), calls);
    QCOMPARE(QString::fromStdString(ModemControl::value("network/csReportMode")),
             QString::fromLatin1("2"));
}

void GettersTest::locationAlreadyReported()
{
    ModemControl::setValue("network/csReportMode", "2");
    ModemControl::setValue("network/csLac", "1A2B");
    QCOMPARE(answer("GetLACCode"), QString::fromLatin1("1A2B"));
    QCOMPARE(takeCalls(), QStringList({QLatin1String("VELT_NetSrv_GetCSRegState()"),
                                       QLatin1String("VELT_NetSrv_GetCSRegState()")}));
}

void GettersTest::ownNumbers_data()
{
    QTest::addColumn<QByteArray>("used");
    QTest::addColumn<bool>("readFails");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("reads");
    QTest::newRow("none") << QByteArray("0") << false << QString() << 0;
    QTest::newRow("negative count")
        << QByteArray("-1") << false << QString::fromLatin1("4477") << 1;
    QTest::newRow("one") << QByteArray("1") << false << QString::fromLatin1("4477") << 1;
    QTest::newRow("unreadable") << QByteArray("1") << true << QString() << 1;
}

void GettersTest::ownNumbers()
{
    QFETCH(QByteArray, used);
    QFETCH(bool, readFails);
    QFETCH(QString, expected);
    QFETCH(int, reads);
    ModemControl::setValue("sim/ownNumbersUsed", used.toStdString());
    ModemControl::setValue("sim/ownNumbersFirst", "6");
    ModemControl::setValue("sim/ownNumber", "4477");
    if (readFails)
        ModemControl::setResult("VELT_DevSrv_ReadUserNumItem", 1);
    QCOMPARE(answer("GetOwnNumber"), expected);
    QCOMPARE(takeCalls().count(QLatin1String("VELT_DevSrv_ReadUserNumItem(6)")), reads);
}

void GettersTest::countsNeedBothCalls_data()
{
    QTest::addColumn<QByteArray>("getter");
    QTest::addColumn<QByteArray>("failing");
    const char *pairs[][2] = {
        {"GetContactCountinDevice", "VELT_PBSrv_GetSize"},
        {"GetContactCountinDevice", "VELT_PBSrv_GetCapacity"},
        {"GetMessageCount(1)", "VELT_SMSSrv_SMSRecordSetGetRecordCount"},
        {"GetMessageCount(1)", "VELT_SMSSrv_GetRecordInfo"},
    };
    for (const auto &pair : pairs)
        QTest::newRow(pair[1]) << QByteArray(pair[0]) << QByteArray(pair[1]);
}

void GettersTest::countsNeedBothCalls()
{
    QFETCH(QByteArray, getter);
    QFETCH(QByteArray, failing);
    ModemControl::setResult(failing.toStdString(), 1);
    QCOMPARE(answer(getter.constData()), QString());
    QCOMPARE(takeCalls().size(), 2);
}

void GettersTest::addressesUseTheLastDeviceName()
{
    ModemControl::setValue("device/deviceName", "first");
    answer("GetIPAddress");
    QCOMPARE(takeCalls(),
             QStringList(QLatin1String("VELT_NetSrv_GetIPAddress(\"\", \"profile 1\", 64)")));
    answer("GetDeviceName");
    ModemControl::setResult("VELT_DevSrv_GetDeviceName", 1); // the name is kept
    answer("GetDeviceName");
    takeCalls();
    answer("GetDNSServer");
    QCOMPARE(takeCalls(),
             QStringList(QLatin1String("VELT_NetSrv_GetDNS(\"first\", \"profile 1\", 64)")));
}

void GettersTest::hostLookups_data()
{
    QTest::addColumn<QByteArray>("host");
    QTest::addColumn<QByteArray>("getter");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("messages");

    const QString container = QLatin1String("Get plugin container succsess");
    const QString plugin = QLatin1String("get plugin success");
    const QStringList found({container, plugin});
    const char *getters[] = {"GetNetworkName", "GetNetworkType", "GetAPN"};
    const char *answers[] = {"service", "type", "apn of profile 1"};
    for (int index = 0; index < 3; ++index) {
        const QByteArray getter(getters[index]);
        const int lookups = index == 2 ? 2 : 1; // the APN's profile has a look-up of its own
        const auto row = [&getter](const char *host, const char *expected,
                                   const QStringList &messages) {
            QTest::addRow("%s %s", getter.constData(), host)
                << QByteArray(host) << getter << QString::fromLatin1(expected) << messages;
        };
        row("all", answers[index], lookups == 2 ? found + found : found);
        row("no container", "", QStringList());
        row("no plug-in", "", QStringList(container));
        row("plug-in gone", "", QStringList(container));
        row("wrong interface", "", found);
    }
    QTest::newRow("status bar fails")
        << QByteArray("fails") << QByteArray("GetNetworkName") << QString() << found;
    QTest::newRow("settings fail, the profile's result is not looked at")
        << QByteArray("fails") << QByteArray("GetAPN") << QString() << found + found;
    QTest::newRow("no profile") << QByteArray("null profile") << QByteArray("GetAPN") << QString()
                                << found;
    QTest::newRow("empty profile is one") << QByteArray("empty profile") << QByteArray("GetAPN")
                                          << QString::fromLatin1("apn of ") << found + found;
}

void GettersTest::hostLookups()
{
    QFETCH(QByteArray, host);
    QFETCH(QByteArray, getter);
    QFETCH(QString, expected);
    QFETCH(QStringList, messages);

    HostCore::PluginRegister other;
    QObject stranger;
    if (host == "no container") {
        HostCore::setPluginContainer(nullptr);
    } else if (host == "no plug-in") {
        HostCore::setPluginContainer(&other);
    } else if (host == "plug-in gone") {
        delete m_plugins;
        m_plugins = nullptr;
    } else if (host == "wrong interface") {
        registerAll(other, &stranger);
        HostCore::setPluginContainer(&other);
    } else if (host == "fails") {
        m_plugins->result = 1;
    } else if (host == "null profile") {
        m_plugins->profile = QString();
    } else if (host == "empty profile") {
        m_plugins->profile = QLatin1String("");
    }
    QCOMPARE(answer(getter.constData()), expected);
    QStringList said;
    for (const QString &line : m_log->takeLog().filter(QLatin1String("lugin ")))
        said.append(line.section(QLatin1Char(':'), 3));
    QCOMPARE(said, messages);
}

void GettersTest::events_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("available");
    QTest::addColumn<int>("unavailable");
    QTest::newRow("6000") << 6000 << 0 << 1 << 1 << 0;
    QTest::newRow("6011") << 6011 << 0 << 1 << 1 << 0;
    QTest::newRow("6014, ready") << 6014 << 3 << 1 << 1 << 0;
    QTest::newRow("6014, not ready") << 6014 << 2 << 1 << 0 << 0;
    QTest::newRow("6014, status fails") << 6014 << -1 << 1 << 0 << 0;
    QTest::newRow("6601") << 6601 << 3 << 1 << 0 << 1;
    QTest::newRow("6603") << 6603 << 3 << 1 << 0 << 1;
    QTest::newRow("6602 is none of them") << 6602 << 3 << 0 << 0 << 0;
}

void GettersTest::events()
{
    QFETCH(int, event);
    QFETCH(int, status);
    QFETCH(int, result);
    QFETCH(int, available);
    QFETCH(int, unavailable);
    ModemControl::setValue("device/deviceStatus", std::to_string(status));
    if (status < 0)
        ModemControl::setResult("VELT_DevSrv_GetDevStatus", 1);
    QSignalSpy availableSpy(m_logic, SIGNAL(DeviceAvailable()));
    QSignalSpy unavailableSpy(m_logic, SIGNAL(DeviceUnavailable()));

    QCOMPARE(Logic::OnDevEvents(event, nullptr), result);
    QCOMPARE(availableSpy.count(), available);
    QCOMPARE(unavailableSpy.count(), unavailable);
    const QString at =
        QLatin1String("TIME: ../../src/DiagnosisPlugin/DiagnosticsUILogic: OnDevEvents: ");
    QStringList lines(
        {at + QLatin1String(" Entered"), at + QString::fromLatin1(" Dev Evenet(%1)").arg(event)});
    if (event == 6014)
        lines.append(at + QLatin1String("VELT_EVENT_DEV_DEVICE_INIT_FINISH "));
    lines.append(at + QLatin1String(" Exit"));
    QCOMPARE(m_log->takeLog(), lines);
}

void GettersTest::registrationFailures()
{
    const QString path = QLatin1String("../../src/DiagnosisPlugin/DiagnosticsUILogic: ");
    const QString at = QLatin1String("TIME: ") + path;
    m_logic->RegisterWithDevice();
    QCOMPARE(m_log->takeLog(), QStringList(at + QLatin1String("RegisterWithDevice: Entered")));
    m_logic->UnRegisterDevice();
    QCOMPARE(takeCalls(),
             QStringList({QLatin1String("VELT_DevSrv_RegisterDevMgrCallback(callback)"),
                          QLatin1String("VELT_DevSrv_RegisterDevInitEventCallback(callback)"),
                          QLatin1String("VELT_DevSrv_UnRegisterDevInitEventCallback(callback)"),
                          QLatin1String("VELT_DevSrv_UnRegisterDevMgrCallback(callback)")}));
    m_log->takeLog();

    ModemControl::setResult("*", 3);
    m_logic->RegisterWithDevice();
    m_logic->UnRegisterDevice();
    const char *messages[] = {
        "RegisterWithDevice: Entered",
        nullptr,
        nullptr,
        "UnRegisterDevice: Entered",
        "UnRegisterDevice: Calling VELT_DevSrv_UnRegisterDevInitEventCallback()",
        "UnRegisterDevice: VELT_DevSrv_UnRegisterDevInitEventCallback failed",
        "UnRegisterDevice: Calling VELT_DevSrv_UnRegisterDevMgrCallback ()",
        "UnRegisterDevice: VELT_DevSrv_UnRegisterDevMgrCallback   failed",
        "UnRegisterDevice: Exited",
    };
    QStringList lines;
    for (const char *message : messages)
        lines.append(at + QLatin1String(message));
    // These two carry no time.
    lines[1] =
        path + QLatin1String("RegisterWithDevice: VELT_DevSrv_RegisterDevMgrCallback failed");
    lines[2] =
        path + QLatin1String("RegisterWithDevice: VELT_DevSrv_RegisterDevInitEventCallback failed");
    QCOMPARE(m_log->takeLog(), lines);
}

void GettersTest::countsReferences()
{
    QCOMPARE(Logic::GetInstance(), m_logic); // the second reference
    QSignalSpy gone(m_logic, SIGNAL(destroyed()));
    Logic::Destroy();
    Logic::Destroy();
    QCOMPARE(gone.count(), 0);
    Logic::Destroy();
    QCOMPARE(gone.count(), 1);
    Logic::Destroy();
    m_log->takeLog();
    QCOMPARE(Logic::OnDevEvents(6000, nullptr), 0);
    QCOMPARE(m_log->takeLog().last(),
             QString::fromLatin1("TIME: ../../src/DiagnosisPlugin/DiagnosticsUILogic: OnDevEvents: "
                                 "_Instance is NULL "));
    m_logic = Logic::GetInstance();
}

QTEST_MAIN(GettersTest)
#include "getters.moc"
