// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ModemService.h"
#include "ServiceSupport.h"
#include "modemmanager/ServiceTiming.h"

#include <QtTest>

#include <QDBusVirtualObject>
#include <QJsonDocument>

#include <memory>

using namespace ServiceSupport;

namespace {

const ServiceTiming shortTiming{300, 1500};

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

    /// Has the objects of a section of service.json.
    void have(const char *section)
    {
        const auto sections = QJsonDocument::fromJson(content("service.json").toUtf8());
        m_objects.insert(sections.toVariant().toMap()[section].toMap());
    }
    void showModem(int number, const QString &identity, int state = 8, const QString &version = "")
    {
        const bool isNew = !m_objects.contains(path(number));
        const QVariantMap modem{{"State", state},
                                {"EquipmentIdentifier", state == 1 ? "" : identity},
                                {"Model", identity + version},
                                {"CurrentCapabilities", 4u}};
        m_objects[path(number)] = QVariantMap{{service + ".Modem", modem}};
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
        QVariantList answer;
        if (message.member() == "GetManagedObjects") {
            ++readings;
            answer << m_objects;
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

    QVariantMap m_objects; ///< by path; those of a modem by interface
    QDBusConnection m_bus;
};

} // namespace

/// What the real service cannot be brought to tell with a virtual modem.
class ModemManagerService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { ModemService::detach(); }
    void withoutServiceOrBus(); // first, before there is any
    void connectionAndDevice();
    void severalModems();
    void life();
    void rateOfReadings();

private:
    void startService();

    PrivateBus m_bus;
    std::unique_ptr<StandIn> m_service;
};

void ModemManagerService::initTestCase()
{
    const QString problem = m_bus.start();
    if (!problem.isEmpty())
        QSKIP(qPrintable(problem));
    serviceTiming() = shortTiming;
}

void ModemManagerService::startService()
{
    m_service.reset();
    QDBusConnection::disconnectFromBus("stand-in");
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SystemBus, "stand-in");
    m_service = std::make_unique<StandIn>(bus);
    QVERIFY(bus.registerService(service));
}

void ModemManagerService::withoutServiceOrBus()
{
    QElapsedTimer timer;
    timer.start();
    ModemService::attach();
    QVERIFY(!ModemService::isPresent(5000));
    QVERIFY(timer.elapsed() < 2000);
    EXPECT("all = error 2; problem = ModemManager is not running.");
    startService();
    m_service->showModem(0, "first");
    EXPECT("GetDeviceName = first$");
    m_bus.stop();
    EXPECT("all = error 2; problem = The system's message bus does not answer.");
    QCOMPARE(m_bus.start(), QString());
    startService();
    m_service->showModem(0, "first");
    EXPECT("GetDeviceName = first$; problem =");
}

void ModemManagerService::connectionAndDevice()
{
    startService();
    m_service->have("connected");
    ModemService::attach();
    EXPECT(content("sdk.connected"));
    m_service->have("the other connected");
    EXPECT("connection/profile = first.example; GetIPAddress(\"\", \"\", 64) = error 3; "
           "GetDNS(\"\", \"\", 64) = error 3");
    EXPECT("GetIPAddress(\"\", \"Second\", 64) = 2001:db8::17$");
    QTest::qWait(2 * shortTiming.poll);
    QCOMPARE(m_service->calls, QStringList{"Setup 5"});
}

void ModemManagerService::severalModems()
{
    startService();
    m_service->showModem(10, "second");
    m_service->showModem(9, "first");
    m_service->showModem(1, "failed", -1);
    ModemService::attach(1);
    EXPECT("GetDeviceName = second$");
    // It returns under another path, and the modems' order changes.
    m_service->removeModem(10);
    EXPECT("all = error 2; problem = ModemManager knows no usable modem with the number 1.");
    QVERIFY(!ModemService::isPresent(0));
    m_service->removeModem(9);
    m_service->showModem(11, "second");
    m_service->showModem(12, "first");
    EXPECT("GetDeviceName = second$; problem =");
    ModemService::detach();
    EXPECT("all = error 2; problem =");
}

void ModemManagerService::life()
{
    startEvents();
    startService();
    ModemService::attach();
    EXPECT("problem = ModemManager knows no usable modem.");
    m_service->showModem(0, "first", 1);
    EXPECT("events = 6000:2");
    m_service->showModem(0, "first", 2); // locked
    EXPECT("events = 6000:2 6014:3");
    m_service->showModem(0, "first");
    QTest::qWait(2 * shortTiming.poll);
    m_service->removeModem(0);
    EXPECT("events = 6000:2 6014:3 6601:error 2");
    m_service->showModem(1, "first");
    EXPECT("events = 6000:2 6014:3 6601:error 2 6000:3 6014:3");
    QCOMPARE(m_service->calls, QStringList());
}

void ModemManagerService::rateOfReadings()
{
    startService();
    m_service->showModem(0, "first");
    serviceTiming().poll = 20000;
    ModemService::attach();
    serviceTiming() = shortTiming;
    EXPECT("GetDeviceName = first$");
    QTest::qWait(700);
    QCOMPARE(m_service->readings, 1);
    // Many changes at once are read together.
    for (int i = 0; i < 100; ++i)
        m_service->showModem(0, "first", 8, " " + QString::number(i));
    EXPECT("GetDeviceName = first 99$");
    QTest::qWait(300);
    QVERIFY2(m_service->readings <= 4, qPrintable(QString::number(m_service->readings)));
    m_service->removeModem(0);
    EXPECT("GetDeviceName = error 2");
    m_service->showModem(1, "first");
    EXPECT("GetDeviceName = first$");
}

QTEST_GUILESS_MAIN(ModemManagerService)

#include "service.moc"
