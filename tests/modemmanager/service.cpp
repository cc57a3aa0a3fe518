// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ModemService.h"
#include "ServiceSupport.h"
#include "modemmanager/ServiceTiming.h"

#include <QtTest>

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <memory>

using namespace ServiceSupport;

using Interfaces = QMap<QString, QVariantMap>;
using ManagedObjects = QMap<QDBusObjectPath, Interfaces>;
using Location = QMap<uint, QDBusVariant>;
Q_DECLARE_METATYPE(Interfaces)
Q_DECLARE_METATYPE(ManagedObjects)
Q_DECLARE_METATYPE(Location)

namespace {

const ServiceTiming shortTiming{300, 1500};

QString modemPath(int number)
{
    return servicePath + QStringLiteral("/Modem/%1").arg(number);
}

/// Stands in for the service: answers from a table, and keeps a list of what it was asked.
class StandIn : public QDBusVirtualObject
{
public:
    explicit StandIn(const QDBusConnection &bus) : m_bus(bus)
    {
        m_bus.registerVirtualObject(servicePath, this, QDBusConnection::SubPath);
    }
    ~StandIn() override { m_bus.unregisterObject(servicePath); }

    ManagedObjects modems;
    QMap<QString, QVariantMap> objects; ///< SIMs, bearers and messages by path
    QStringList calls;                  ///< all but the readings of the objects
    int readings = 0;

    QVariantMap &at(int modem, const char *interface = "Modem")
    {
        return modems[QDBusObjectPath(modemPath(modem))][service + '.' + interface];
    }

    void addModem(int number, const char *imei, int state = 8)
    {
        at(number) = {{"State", state},
                      {"EquipmentIdentifier", state == 1 ? "" : imei},
                      {"Model", QString("Model of ") + imei},
                      {"CurrentCapabilities", 4u},
                      {"Sim", QVariant::fromValue(QDBusObjectPath("/"))}};
        announce("InterfacesAdded", servicePath, "org.freedesktop.DBus.ObjectManager");
    }
    void removeModem(int number)
    {
        modems.remove(QDBusObjectPath(modemPath(number)));
        announce("InterfacesRemoved", servicePath, "org.freedesktop.DBus.ObjectManager");
    }
    void change(int number, const char *property, const QVariant &value)
    {
        at(number)[property] = value;
        announce("PropertiesChanged", modemPath(number), "org.freedesktop.DBus.Properties");
    }

    QString introspect(const QString &) const override { return QString(); }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        QVariant answer;
        if (message.member() == "GetManagedObjects") {
            ++readings;
            answer = QVariant::fromValue(modems);
        } else if (message.member() == "GetAll") {
            answer = objects.value(message.path());
        } else if (message.member() == "GetLocation") {
            answer = QVariant::fromValue(Location{{1, QDBusVariant("001,01,1A2B,C3D4E,0")}});
        } else {
            calls << message.member() + ' ' + message.arguments().value(0).toString();
        }
        bus.send(answer.isValid() ? message.createReply(answer) : message.createReply());
        return true;
    }

private:
    void announce(const char *signal, const QString &path, const char *interface)
    {
        m_bus.send(QDBusMessage::createSignal(path, interface, signal));
    }

    QDBusConnection m_bus;
};

} // namespace

/// What the real service cannot be brought to tell with a virtual modem.
class ModemManagerService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void connectionAndDevice();
    void severalModems();
    void life();
    void rateOfReadings();
    void withoutService();
    void withoutBus();

private:
    void startService();
    QString model() const { return readSdk().value("model"); }

    PrivateBus m_bus;
    std::unique_ptr<StandIn> m_service;
    const QString m_firstModel = "Model of 001017003100016";
    const QString m_secondModel = "Model of 001017003100024";
};

void ModemManagerService::initTestCase()
{
    const QString problem = m_bus.start();
    if (!problem.isEmpty())
        QSKIP(qPrintable(problem));
    qDBusRegisterMetaType<Interfaces>();
    qDBusRegisterMetaType<ManagedObjects>();
    qDBusRegisterMetaType<Location>();
    serviceTiming() = shortTiming;
}

void ModemManagerService::startService()
{
    QDBusConnection bus = m_bus.connect("stand-in");
    QVERIFY(bus.isConnected());
    m_service = std::make_unique<StandIn>(bus);
    QVERIFY(bus.registerService(service));
}

void ModemManagerService::cleanup()
{
    ModemService::detach();
    m_service.reset();
    QDBusConnection::disconnectFromBus("stand-in");
    serviceTiming() = shortTiming;
}

void ModemManagerService::connectionAndDevice()
{
    startService();
    StandIn &stand = *m_service;
    stand.addModem(0, "001017003100016");
    const auto paths = [](const QStringList &names) {
        QList<QDBusObjectPath> list;
        for (const QString &name : names)
            list << QDBusObjectPath(servicePath + name);
        return QVariant::fromValue(list);
    };
    stand.at(0)["HardwareRevision"] = "W3B1TCPU";
    stand.at(0)["Revision"] = "11.4";
    stand.at(0)["PrimaryPort"] = "ttyUSB2";
    stand.at(0)["Bearers"] = paths({"/Bearer/0", "/Bearer/1"});
    stand.at(0)["Sim"] = QVariant::fromValue(QDBusObjectPath(servicePath + "/SIM/0"));
    stand.at(0, "Modem.Signal")["Rate"] = 0u;
    stand.at(0, "Modem.Location")["Enabled"] = 1u;
    stand.at(0, "Modem.Modem3gpp")["RegistrationState"] = 1u;
    stand.at(0, "Modem.Messaging")["Messages"] = paths({"/SMS/0"});
    stand.objects[servicePath + "/SIM/0"] = {{"Imsi", "001010000000017"}};
    stand.objects[servicePath + "/SMS/0"] = {{"Storage", 1u}, {"SMSC", "+447700900900"}};
    stand.objects[servicePath + "/Bearer/0"] = {
        {"Connected", false}, {"Properties", QVariantMap{{"apn", "first.example"}}}};
    QVariantMap second{
        {"Connected", true},
        {"Properties", QVariantMap{{"apn", "second.example"}, {"profile-name", "Second"}}},
        {"Ip4Config",
         QVariantMap{{"address", "192.0.2.17"}, {"dns1", "192.0.2.53"}, {"dns2", "192.0.2.54"}}}};
    stand.objects[servicePath + "/Bearer/1"] = second;

    ModemService::attach();
    QTRY_COMPARE(differences({{"version", "11.4|W3B1TCPU"},
                              {"port", "2"},
                              {"ip", "192.0.2.17"},
                              {"dns", "192.0.2.53, 192.0.2.54"},
                              {"imsi", "001010000000017"},
                              {"simMessages", "1"},
                              {"centre", "+447700900900"},
                              {"cs", "2|1|1A2B|C3D4E"}}),
                 QString());
    QCOMPARE(ModemService::value("connection/profile"), std::string("Second"));
    QCOMPARE(ModemService::value("connection/apn"), std::string("second.example"));
    QCOMPARE(addressOf("Second"), QString("192.0.2.17"));
    QCOMPARE(addressOf("first.example"), QString("error 3"));
    QCOMPARE(addressOf("other"), QString("error 1"));

    second["Connected"] = false;
    second["Ip4Config"] = QVariantMap();
    second["Ip6Config"] = QVariantMap{{"address", "2001:db8::17"}};
    stand.objects[servicePath + "/Bearer/1"] = second;
    stand.objects[servicePath + "/Bearer/0"]["Connected"] = true;
    QTRY_COMPARE(ModemService::value("connection/profile"), std::string("first.example"));
    QCOMPARE(addressOf("Second"), QString("2001:db8::17"));
    QTest::qWait(2 * shortTiming.poll);
    QCOMPARE(stand.calls, QStringList{"Setup 5"});
}

void ModemManagerService::severalModems()
{
    startService();
    m_service->addModem(10, "001017003100024");
    m_service->addModem(9, "001017003100016");
    m_service->addModem(1, "001017003100032", -1); // failed: not usable
    ModemService::attach(1);
    QTRY_VERIFY(ModemService::isPresent(0));
    QCOMPARE(model(), m_secondModel);
    // It returns under another path, and the modems' order changes.
    m_service->removeModem(10);
    QTRY_COMPARE(model(), QString("error 2"));
    QVERIFY(!ModemService::isPresent(0));
    QVERIFY(!ModemService::problem().empty());
    m_service->removeModem(9);
    m_service->addModem(11, "001017003100024");
    m_service->addModem(12, "001017003100016");
    QTRY_COMPARE(model(), m_secondModel);
    QCOMPARE(QString::fromStdString(ModemService::problem()), QString());
    ModemService::attach(0);
    QTRY_VERIFY(ModemService::isPresent(0));
    QCOMPARE(model(), m_secondModel);
    ModemService::detach();
    QCOMPARE(distinctAnswers(), QStringList{"error 2"});
    QCOMPARE(QString::fromStdString(ModemService::problem()), QString());
}

void ModemManagerService::life()
{
    const EventLog events;
    startService();
    ModemService::attach();
    QTRY_COMPARE(ModemService::problem(), std::string("ModemManager knows no usable modem."));
    m_service->addModem(0, "001017003100016", 1);
    QTRY_COMPARE(events.text(), QString("6000:2"));
    m_service->change(0, "State", 3);
    QTRY_COMPARE(events.text(), QString("6000:2 6014:3"));
    m_service->change(0, "EquipmentIdentifier", "001017003100016");
    m_service->change(0, "State", 8);
    QTest::qWait(300);
    m_service->removeModem(0);
    QTRY_COMPARE(events.text(), QString("6000:2 6014:3 6601:-"));
    m_service->addModem(1, "001017003100016");
    QTRY_COMPARE(events.text(), QString("6000:2 6014:3 6601:- 6000:3 6014:3"));
}

void ModemManagerService::rateOfReadings()
{
    startService();
    serviceTiming().poll = 5000;
    m_service->addModem(0, "001017003100016");
    ModemService::attach();
    QTRY_VERIFY(ModemService::isPresent(0));
    for (int i = 0; i < 50; ++i)
        readSdk();
    QTest::qWait(700);
    QCOMPARE(m_service->readings, 1);
    // Many changes at once are read together.
    for (int i = 0; i < 100; ++i)
        m_service->change(0, "Model", QString("Model %1").arg(i));
    QTRY_COMPARE_WITH_TIMEOUT(model(), QString("Model 99"), 2000);
    QTest::qWait(300);
    QVERIFY2(m_service->readings <= 4, qPrintable(QString::number(m_service->readings)));
    m_service->removeModem(0);
    QTRY_COMPARE_WITH_TIMEOUT(model(), QString("error 2"), 2000);
    m_service->addModem(1, "001017003100016");
    QTRY_COMPARE_WITH_TIMEOUT(model(), m_firstModel, 2000);
}

void ModemManagerService::withoutService()
{
    QElapsedTimer timer;
    timer.start();
    ModemService::attach();
    QVERIFY(!ModemService::isPresent(5000));
    QVERIFY(timer.elapsed() < 2000);
    QCOMPARE(ModemService::problem(), std::string("ModemManager is not running."));
    QCOMPARE(distinctAnswers(), QStringList{"error 2"});
    startService();
    m_service->addModem(0, "001017003100016");
    QTRY_COMPARE(model(), m_firstModel);
}

void ModemManagerService::withoutBus()
{
    startService();
    m_service->addModem(0, "001017003100016");
    ModemService::attach();
    QTRY_VERIFY(ModemService::isPresent(0));
    m_bus.stop();
    QTRY_COMPARE(model(), QString("error 2"));
    QCOMPARE(ModemService::problem(), std::string("The system's message bus does not answer."));
    m_service.reset();
    QDBusConnection::disconnectFromBus("stand-in");
    QCOMPARE(m_bus.start(), QString());
    startService();
    m_service->addModem(0, "001017003100016");
    QTRY_COMPARE(model(), m_firstModel);
}

QTEST_GUILESS_MAIN(ModemManagerService)

#include "service.moc"
