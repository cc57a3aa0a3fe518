// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Programs.h"
#include "ServiceSupport.h"
#include "TestSupport.h"
#include "modemmanager/ModemService.h"

#include <QtTest>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QJsonDocument>

#include <memory>

using namespace ServiceSupport;

namespace {

const QString service = "org.freedesktop.ModemManager1";
const QString servicePath = "/org/freedesktop/ModemManager1";

/// Stands in for the service: answers from a table, and keeps a list of what it was asked.
class StandIn : public QDBusVirtualObject
{
public:
    explicit StandIn(const QDBusConnection &bus) : m_bus(bus)
    {
        m_bus.registerVirtualObject(servicePath, this, QDBusConnection::SubPath);
    }
    ~StandIn() override { m_bus.unregisterObject(servicePath); }

    QStringList calls; ///< all but those that only read
    int readings = 0;
    QString silent = "none";            ///< no answer where this is part of the path
    std::function<void()> afterReading; ///< once, before the answer to the next reading is sent

    /// Has the objects of a section of service.json.
    void have(const QString &section)
    {
        const auto sections =
            QJsonDocument::fromJson(TestSupport::contentOf(TEST_SOURCE_DIR "/service.json"));
        m_objects.insert(sections.toVariant().toMap()[section].toMap());
    }
    void showModem(int number, const QString &identity, int state, int failedReason = 0)
    {
        const bool isNew = !m_objects.contains(path(number));
        const QVariantMap modem{{"State", state},
                                {"StateFailedReason", failedReason},
                                {"DeviceIdentifier", "device " + QString::number(number)},
                                {"EquipmentIdentifier", state == 1 ? "" : identity},
                                {"Model", identity},
                                {"CurrentCapabilities", 4u}};
        m_objects[path(number)] = QVariantMap{
            {service + ".Modem", modem}, {service + ".Modem.Signal", QVariantMap{{"Rate", 0u}}}};
        announce(isNew ? "ObjectManager" : "Properties",
                 isNew ? "InterfacesAdded" : "PropertiesChanged");
    }
    void removeModem(int number)
    {
        m_objects.remove(path(number));
        announce("ObjectManager", "InterfacesRemoved");
    }

    QString introspect(const QString &) const override { return QString(); }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        if (message.path().contains(silent))
            return true;
        QVariantList answer;
        if (message.member() == "GetManagedObjects") {
            ++readings;
            answer << m_objects;
            if (const auto action = std::exchange(afterReading, nullptr))
                action();
        } else if (message.member() == "GetLocation") {
            answer << m_objects.value("location").toMap();
        } else if (message.member() == "GetAll") {
            answer << m_objects[message.path()];
        } else if (!message.member().startsWith("Get")) {
            calls << message.member() + ' ' + message.arguments().value(0).toString();
        }
        return bus.send(message.createReply(answer));
    }

private:
    static QString path(int modem) { return servicePath + "/Modem/" + QString::number(modem); }
    void announce(const QString &interface, const char *signal)
    {
        m_bus.send(
            QDBusMessage::createSignal(servicePath, "org.freedesktop.DBus." + interface, signal));
    }

    QVariantMap m_objects; ///< by path; those of a modem by interface; and the location
    QDBusConnection m_bus;
};

} // namespace

/// What the real service cannot be brought to tell with a virtual modem.
class ModemManagerService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void scripts_data() { TestSupport::addRows(TEST_SOURCE_DIR "/service.txt", "scripts"); }
    void scripts();
    void rateOfReadings();

private:
    void stopService();
    void startService();

    PrivateBus m_bus;
    std::unique_ptr<StandIn> m_service;
    const QTemporaryDir m_folder; ///< the program's
    QProcess m_program;
    QByteArray m_said; ///< by the program
};

void ModemManagerService::initTestCase()
{
    const QString problem = m_bus.start();
    if (!problem.isEmpty())
        QSKIP(qPrintable(problem));
    serviceTiming() = shortTiming;
}

void ModemManagerService::init()
{
    stopService();
    m_bus.stop();
    QCOMPARE(m_bus.start(), QString());
}

void ModemManagerService::cleanup()
{
    ModemService::detach();
    m_program.kill();
    m_program.waitForFinished();
}

void ModemManagerService::stopService()
{
    m_service.reset();
    QDBusConnection::disconnectFromBus("stand-in");
}

void ModemManagerService::startService()
{
    stopService();
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SystemBus, "stand-in");
    m_service = std::make_unique<StandIn>(bus);
    QVERIFY(bus.registerService(service));
}

void ModemManagerService::scripts()
{
    QFETCH(QStringList, fields);
    perform(fields.mid(1),
            {
                {"service", [&](const QString &) { startService(); }},
                {"hang-bus", [&](const QString &) { m_bus.hang(); }},
                {"stop-bus", [&](const QString &) { m_bus.stop(); }},
                {"start-bus", [&](const QString &) { QCOMPARE(m_bus.start(), QString()); }},
                {"show",
                 [&](const QString &argument) {
                     const QStringList a = argument.split(' ');
                     m_service->showModem(a.at(0).toInt(), a.at(1), a.at(2).toInt(),
                                          a.value(3).toInt());
                 }},
                {"silent", [&](const QString &path) { m_service->silent = path; }},
                {"remove", [&](const QString &number) { m_service->removeModem(number.toInt()); }},
                {"have", [&](const QString &section) { m_service->have(section); }},
                {"asked",
                 [&](const QString &calls) { QTRY_COMPARE(m_service->calls.join(", "), calls); }},
                {"stop-service", [&](const QString &) { stopService(); }},
                {"run",
                 [&](const QString &arguments) {
                     m_said.clear();
                     m_program.setWorkingDirectory(m_folder.path());
                     m_program.setProcessChannelMode(QProcess::MergedChannels);
                     m_program.start(HOST_PROGRAM, arguments.split(' '));
                 }},
                {"said",
                 [&](const QString &text) {
                     QTRY_VERIFY2((m_said += m_program.readAll()).contains(text.toUtf8()), m_said);
                 }},
                {"terminate", [&](const QString &) { m_program.terminate(); }},
                {"ended",
                 [&](const QString &code) {
                     QTRY_COMPARE_WITH_TIMEOUT(m_program.state(), QProcess::NotRunning, 10000);
                     QCOMPARE(m_program.exitStatus(), QProcess::NormalExit);
                     QCOMPARE(m_program.exitCode(), code.toInt());
                 }},
                {"wrote",
                 [&](const QString &text) {
                     QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files), QStringList("report"));
                     const QByteArray report = TestSupport::contentOf(m_folder.filePath("report"));
                     QVERIFY2(report.contains(text.toUtf8()), report);
                     QVERIFY2(report.contains("\n\nFailed functions\n") && report.endsWith('\n'),
                              report);
                 }},
            });
}

void ModemManagerService::rateOfReadings()
{
    startService();
    m_service->showModem(0, "first", 8);
    serviceTiming().poll = 20000;
    ModemService::attach();
    serviceTiming() = shortTiming;
    expect("GetDeviceName = first$");
    QTest::qWait(700);
    QCOMPARE(m_service->readings, 1);
    // Changes that come soon after each other are read together.
    for (int i = 0; i < 40; ++i) {
        m_service->showModem(0, "first " + QString::number(i), 8);
        QTest::qWait(5);
    }
    // A change while another is read is read next.
    m_service->afterReading = [this] { m_service->showModem(0, "last", 8); };
    m_service->showModem(0, "last but one", 8);
    expect("GetDeviceName = last$");
    QVERIFY2(m_service->readings <= 10, qPrintable(QString::number(m_service->readings)));
    m_service->removeModem(0);
    expect("GetDeviceName = error 2");
    m_service->showModem(1, "first", 8);
    expect("GetDeviceName = first$");
}

QTEST_GUILESS_MAIN(ModemManagerService)

#include "service.moc"
