// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The query layer: what each getter asks, says and logs, for success and failure.

#include "DiagnosticsUILogic.h"
#include "PluginTest.h"

#include "HostCore.h"
#include "ModemControl.h"
#include "interfaces/IDialupUIService.h"
#include "interfaces/INetConnectSetting.h"
#include "interfaces/IStatusBarUI.h"

#include <QFile>
#include <QSignalSpy>
#include <QtTest>

#include <functional>

using namespace TestSupport;

namespace {

typedef DiagnosticsUILogic Logic;

/// All getters, in the order of the class.
const struct
{
    const char *name;
    std::function<QString(Logic *)> get;
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

class GettersTest : public PluginTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void conversation_data() { addRows(TEST_SOURCE_DIR "/getters.txt", "conversations"); }
    void conversation();
    void values_data() { addRows(TEST_SOURCE_DIR "/getters.txt", "values"); }
    void values();
    void filledBuffers_data() { addRows(TEST_SOURCE_DIR "/getters.txt", "filled buffers"); }
    void filledBuffers();
    void calls_data() { addRows(TEST_SOURCE_DIR "/getters.txt", "calls"); }
    void calls();
    void selectionModeOfAFailingCall();
    void hostLookups_data() { addRows(TEST_SOURCE_DIR "/getters.txt", "host look-ups"); }
    void hostLookups();
    void events_data() { addRows(TEST_SOURCE_DIR "/getters.txt", "events"); }
    void events();
    void registration();
    void countsReferences();

private:
    QString answer(const QString &getter)
    {
        for (const auto &row : Getters) {
            if (getter == QLatin1String(row.name))
                return row.get(m_logic);
        }
        return QLatin1String("no such getter");
    }

    HostCore::PluginRegister m_container;
    HostPlugins *m_plugins = nullptr;
    Logic *m_logic = nullptr;
};

void GettersTest::init()
{
    setUp();
    m_host->write("host.ini", "[version]\nversion=SW 5\n");
    HostCore::setSettingsFile(path("host.ini"));
    std::string error;
    QVERIFY(ModemControl::attach(DIAG_SOURCE_DIR "/tests/sdk/distinct.ini", &error));
    ModemControl::setValue("connection/profile", "profile 1");
    m_plugins = new HostPlugins;
    registerAll(m_container, m_plugins);
    HostCore::setPluginContainer(&m_container);
    m_logic = Logic::GetInstance();
    takeCalls();
    m_log->takeLog();
}

void GettersTest::cleanup()
{
    delete m_plugins;
    tearDown();
}

/// Every getter's answer, SDK calls and log lines, compared with a golden file.
void GettersTest::conversation()
{
    QFETCH(QStringList, fields);
    if (fields.at(0) == QLatin1String("failing")) {
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
    compareWithGolden(QLatin1String("conversation.") + fields.at(0), spoken);
}

void GettersTest::values()
{
    QFETCH(QStringList, fields);
    setValues(fields.at(1));
    QCOMPARE(answer(fields.at(0)), fields.at(2));
}

/// A text without a zero at the end of its buffer, and with a neighbour behind its field.
void GettersTest::filledBuffers()
{
    QFETCH(QStringList, fields);
    const int size = fields.at(2).toInt();
    ModemControl::setValue(fields.at(1).toStdString(), std::string(10000, 'x'));
    QCOMPARE(answer(fields.at(0)), QString(size, QLatin1Char('x')));
    for (const QString &line : m_log->takeLog())
        QVERIFY2(line.count(QLatin1Char('x')) < size + 12, qPrintable(line));
}

/// What is asked of the device depends on its earlier answers.
void GettersTest::calls()
{
    QFETCH(QStringList, fields);
    setValues(fields.at(1));
    const QStringList result = fields.at(2).split(QLatin1Char('='));
    if (result.size() == 2)
        ModemControl::setResult(result.at(0).toStdString(), result.at(1).toInt());
    QString text;
    for (const QString &getter : fields.at(0).split(QLatin1String(", ")))
        text = answer(getter);
    QCOMPARE(text, fields.at(3));
    QCOMPARE(takeCalls().join(QLatin1String(" ")), fields.at(4));
}

void GettersTest::selectionModeOfAFailingCall()
{
    ModemControl::setResult("VELT_NetSrv_GetCurPlmn", 9, ModemControl::FillOutputs);
    QCOMPARE(m_logic->GetSelectionMode(), QString::fromLatin1("IDS_LANG_MANUAL"));
    QCOMPARE(m_logic->getNetwork(), QString());
}

void GettersTest::hostLookups()
{
    QFETCH(QStringList, fields);
    const QString host = fields.at(0);
    HostCore::PluginRegister other;
    QObject stranger;
    if (host == QLatin1String("no container")) {
        HostCore::setPluginContainer(nullptr);
    } else if (host == QLatin1String("no plug-in")) {
        HostCore::setPluginContainer(&other);
    } else if (host == QLatin1String("plug-in gone")) {
        delete m_plugins;
        m_plugins = nullptr;
    } else if (host == QLatin1String("wrong interface")) {
        registerAll(other, &stranger);
        HostCore::setPluginContainer(&other);
    } else if (host == QLatin1String("fails")) {
        m_plugins->result = 1;
    } else if (host.endsWith(QLatin1String("profile"))) {
        m_plugins->profile = host.startsWith(QLatin1String("null")) ? QString() : QLatin1String("");
    }
    QCOMPARE(answer(fields.at(1)), fields.at(2));
    QStringList said;
    for (const QString &line : m_log->takeLog().filter(QLatin1String("lugin ")))
        said.append(line.section(QLatin1Char(':'), 3));
    QCOMPARE(said.join(QLatin1String(", ")), fields.at(3));
}

void GettersTest::events()
{
    QFETCH(QStringList, fields);
    const int event = fields.at(0).toInt();
    setValues(fields.at(1));
    QSignalSpy available(m_logic, SIGNAL(DeviceAvailable()));
    QSignalSpy unavailable(m_logic, SIGNAL(DeviceUnavailable()));
    const int result = Logic::OnDevEvents(event, nullptr);
    QCOMPARE(
        QString::fromLatin1("%1 %2 %3").arg(result).arg(available.count()).arg(unavailable.count()),
        fields.at(2));
    const auto said = [](const QString &message) {
        return line("OnDevEvents: ", "DiagnosticsUILogic") + message;
    };
    QStringList lines(
        {said(QLatin1String(" Entered")), said(QString::fromLatin1(" Dev Evenet(%1)").arg(event))});
    if (event == 6014)
        lines.append(said(QLatin1String("VELT_EVENT_DEV_DEVICE_INIT_FINISH ")));
    lines.append(said(QLatin1String(" Exit")));
    QCOMPARE(m_log->takeLog(), lines);
}

void GettersTest::registration()
{
    m_logic->RegisterWithDevice();
    m_logic->UnRegisterDevice();
    QCOMPARE(takeCalls(), list("VELT_DevSrv_RegisterDevMgrCallback(callback)|"
                               "VELT_DevSrv_RegisterDevInitEventCallback(callback)|"
                               "VELT_DevSrv_UnRegisterDevInitEventCallback(callback)|"
                               "VELT_DevSrv_UnRegisterDevMgrCallback(callback)"));
    const QStringList succeeding = m_log->takeLog();
    ModemControl::setResult("*", 3);
    m_logic->RegisterWithDevice();
    m_logic->UnRegisterDevice();
    compareWithGolden(QLatin1String("registration"), succeeding + m_log->takeLog());
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
    QCOMPARE(Logic::OnDevEvents(6000, nullptr), 0);
    QCOMPARE(m_log->takeLog().last(),
             line("OnDevEvents: _Instance is NULL ", "DiagnosticsUILogic"));
}

QTEST_MAIN(GettersTest)
#include "getters.moc"
