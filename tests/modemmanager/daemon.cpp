// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "AtModem.h"
#include "ModemService.h"
#include "ServiceSupport.h"
#include "modemmanager/ServiceTiming.h"

#include <QtTest>

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDir>

#include <csignal>
#include <functional>
#include <memory>

using namespace ServiceSupport;
using Values = QMap<QString, QString>;
using Answers = QMap<QString, QString>;

namespace {

const char program[] = "/usr/sbin/ModemManager";
const ServiceTiming shortTiming{300, 1500};
const int longTime = 15000;

const Values home{
    {"status", "3"},
    {"type", "0"},
    {"carriers", "error 3"},
    {"sim", "1"},
    {"attached", "1"},
    {"simMessages", "1"},
    {"deviceMessages", "1"},
    {"contacts", "error 3"},
    {"edition", "error 3"},
    {"model", "TM-V1"},
    {"imei", "001017003100016"},
    {"serial", "error 3"},
    {"imsi", "001010000000017"},
    {"prl", "error 3"},
    {"iccid", "89001010000000000117"},
    {"ip", "error 1"},
    {"dns", "error 1"},
    {"voltage", "error 3"},
    {"version", "7.08.1|"},
    {"esn", "error 3"},
    {"pin", "1|39?"},
    {"ownNumbers", "-1|1|1|-1|-1"},
    {"ownNumber", "+447700900017"},
    {"operator", "-1|Test Net One|00101|2"},
    {"cs", "2|1|1A2B|C3D4E"},
    {"ps", "2|1|1A2B|C3D4E"},
    {"rssi", "16|99"},
    {"rscp", "-87|-6"},
    {"setReport", ""},
    {"centre", "+447700900900"},
};

} // namespace

/// The real service with a virtual modem.
class ModemManagerDaemon : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void modems_data();
    void modems();
    void badAnswers_data();
    void badAnswers();
    void changes();
    void stoppedService();
    void restartedService();

private:
    void startDaemon();
    bool addModem();
    bool enableModem();
    QVariant ask(const QString &path, const char *interface, const char *method,
                 const QVariantList &arguments);

    PrivateBus m_bus;
    QDBusConnection m_connection = QDBusConnection(QString());
    QString m_plugins;
    Program m_daemon;
    std::unique_ptr<AtModem> m_modem;
};

void ModemManagerDaemon::initTestCase()
{
    if (!QFile::exists(QLatin1String(program)))
        QSKIP("/usr/sbin/ModemManager is missing (package modemmanager)");
    const QStringList folders =
        QDir(QStringLiteral("/usr/lib")).entryList({QStringLiteral("*-linux-*")}, QDir::Dirs);
    for (const QString &folder : folders + QStringList{QStringLiteral(".")}) {
        const QString plugins = QStringLiteral("/usr/lib/%1/ModemManager").arg(folder);
        if (QFile::exists(plugins))
            m_plugins = plugins;
    }
    const QString problem = m_bus.start();
    if (!problem.isEmpty())
        QSKIP(qPrintable(problem));
    m_connection = m_bus.connect(QStringLiteral("test"));
    startDaemon();
    if (!QTest::qWaitFor([&] {
            return ask(servicePath, "org.freedesktop.DBus.Introspectable", "Introspect", {})
                .toString()
                .contains(QLatin1String("ModemManager1.Test"));
        }))
        QSKIP("this ModemManager was built without its test interface");
    serviceTiming() = shortTiming;
}

void ModemManagerDaemon::init()
{
    m_modem = std::make_unique<AtModem>();
    startDaemon();
}

void ModemManagerDaemon::cleanup()
{
    ModemService::detach();
    m_daemon.stop();
    m_modem.reset();
}

void ModemManagerDaemon::startDaemon()
{
    m_daemon.stop();
    m_daemon.start(QLatin1String(program),
                   {QStringLiteral("--test-session"), QStringLiteral("--test-enable"),
                    QStringLiteral("--test-no-udev"), QStringLiteral("--test-no-suspend-resume"),
                    QStringLiteral("--test-no-qrtr"), QStringLiteral("--no-auto-scan"),
                    QStringLiteral("--test-plugin-dir=") + m_plugins, QStringLiteral("--debug"),
                    QStringLiteral("--log-file=") + m_bus.folder() + QStringLiteral("/log")});
}

QVariant ModemManagerDaemon::ask(const QString &path, const char *interface, const char *method,
                                 const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, QLatin1String(interface),
                                                          QLatin1String(method));
    message.setArguments(arguments);
    const QDBusMessage reply = m_connection.call(message, QDBus::Block, longTime);
    if (reply.type() == QDBusMessage::ErrorMessage)
        return QVariant();
    return reply.arguments().value(0, true);
}

bool ModemManagerDaemon::addModem()
{
    return QTest::qWaitFor([&] {
        return ask(servicePath, "org.freedesktop.ModemManager1.Test", "SetProfile",
                   {QStringLiteral("virtual"), QStringLiteral("generic"),
                    QStringList{QString::fromLatin1(m_modem->port())}})
            .isValid();
    });
}

bool ModemManagerDaemon::enableModem()
{
    return QTest::qWaitFor(
        [&] {
            return ask(servicePath + QStringLiteral("/Modem/0"),
                       "org.freedesktop.ModemManager1.Modem", "Enable", {true})
                .isValid();
        },
        longTime);
}

void ModemManagerDaemon::modems_data()
{
    QTest::addColumn<Answers>("answers");
    QTest::addColumn<int>("registration");
    QTest::addColumn<Values>("expected");
    const auto row = [](const char *name, const Answers &answers, int registration,
                        const Values &expected) {
        QTest::newRow(name) << answers << registration << expected;
    };
    row("home", {}, 1, home);
    row("roaming", {}, 5, {{"cs", "2|5|1A2B|C3D4E"}, {"ps", "2|5|1A2B|C3D4E"}, {"attached", "1"}});
    row("searching", {}, 2,
        {{"cs", "2|2||"},
         {"ps", "2|2||"},
         {"attached", "0"},
         {"operator", "error 3"},
         {"imsi", "001010000000017"}});
    row("denied", {}, 3, {{"cs", "2|3||"}, {"ps", "2|3||"}, {"operator", "error 3"}});
    row("PIN locked", {{"AT+CPIN?", "+CPIN: SIM PIN"}}, 0,
        {{"pin", "2|391"}, {"sim", "1"}, {"status", "3"}});
    row("PUK locked", {{"AT+CPIN?", "+CPIN: SIM PUK"}}, 0, {{"pin", "3|391"}, {"sim", "1"}});
    row("no SIM", {{"AT+CPIN?", "+CME ERROR: 10"}}, 0,
        {{"sim", "255"},
         {"imsi", "error 4"},
         {"iccid", "error 4"},
         {"pin", "error 4"},
         {"ownNumber", "error 4"},
         {"simMessages", "error 4"},
         {"imei", "001017003100016"},
         {"model", "TM-V1"},
         {"status", "3"},
         {"type", "0"}});
    row("CDMA",
        {{"AT+GCAP", "+GCAP: +CIS707-A, CIS-856, +MS, +ES, +DS, +FCLASS"},
         {"AT+CGSN", "80A1B2C3"},
         {"AT+GSN", "80A1B2C3"}},
        1,
        {{"type", "1"},
         {"sim", "255"},
         {"esn", "80A1B2C3|"},
         {"imei", "error 3"},
         {"model", "TM-V1"},
         {"cs", "error 3"}});
}

void ModemManagerDaemon::modems()
{
    QFETCH(Answers, answers);
    QFETCH(int, registration);
    QFETCH(Values, expected);
    m_modem->registerAs(registration);
    for (auto i = answers.begin(); i != answers.end(); ++i)
        m_modem->set(i.key().toLatin1(), i->toLatin1());
    ModemService::attach();
    QVERIFY(addModem());
    if (registration != 0)
        QVERIFY(enableModem());
    QTRY_COMPARE_WITH_TIMEOUT(differences(expected), QString(), longTime);
    QCOMPARE(QString::fromStdString(ModemService::problem()), QString());
    // It is only read.
    for (const char *written : {"AT+CPIN=", "AT+COPS=0", "AT+COPS=1", "AT+CMGD", "AT+CMGS"})
        QVERIFY2(!m_modem->commands().contains(written), written);
}

void ModemManagerDaemon::badAnswers_data()
{
    QTest::addColumn<QList<QByteArray>>("commands");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("delay");
    QTest::addColumn<Values>("expected");
    const QList<QByteArray> all{"AT+CNUM",    "AT+CGMR",   "AT+CGMM",
                                "AT+CIMI",    "AT+CSQ",    "AT+CESQ",
                                "AT+CGATT?",  "AT+CMGL=4", "AT+CRSM=176,12258,0,0,10",
                                "AT+CREG?",   "AT+CGREG?", "AT+COPS=3,0",
                                "AT+COPS=3,2"};
    // A modem that leaves more unanswered is taken out by the service.
    QTest::newRow("missing") << QList<QByteArray>{"AT+CNUM", "AT+CGMR", "AT+CSQ"}
                             << QByteArray(AtModem::silence) << 0
                             << Values{{"version", "|"},
                                       {"ownNumber", "error 6"},
                                       {"imsi", "001010000000017"},
                                       {"cs", "2|1|1A2B|C3D4E"}};
    QTest::newRow("garbled") << all << QByteArray("\x01,,\",(") << 0
                             << Values{{"ownNumber", "error 6"},
                                       {"imsi", "error 3"},
                                       {"iccid", "error 3"},
                                       {"centre", "error 3"},
                                       {"simMessages", "0"},
                                       {"operator", "error 3"},
                                       {"cs", "2|4||"},
                                       {"ps", "2|4||"},
                                       {"attached", "255"},
                                       {"rssi", "99|99"},
                                       {"rscp", "error 3"},
                                       {"imei", "001017003100016"},
                                       {"sim", "1"}};
    QTest::newRow("late") << all << QByteArray() << 100 << home;
}

void ModemManagerDaemon::badAnswers()
{
    QFETCH(QList<QByteArray>, commands);
    QFETCH(QByteArray, answer);
    QFETCH(int, delay);
    QFETCH(Values, expected);
    for (const QByteArray &command : commands)
        delay ? m_modem->delay(command, delay) : m_modem->set(command, answer);
    ModemService::attach();
    QVERIFY(addModem());
    enableModem();
    QTRY_COMPARE_WITH_TIMEOUT(differences(expected), QString(), longTime);
}

void ModemManagerDaemon::changes()
{
    ModemService::attach();
    QVERIFY(addModem());
    QVERIFY(enableModem());
    QTRY_COMPARE_WITH_TIMEOUT(differences(home), QString(), longTime);
    ModemService::attach();
    QVERIFY(ModemService::isPresent(5000));
    QCOMPARE(differences(home), QString());
    QCOMPARE(ModemService::value("network/operatorName"), std::string("Test Net One"));
    QCOMPARE(ModemService::value("network/networkType"), std::string("UMTS"));
    m_modem->registerAs(5);
    m_modem->send("+CREG: 5,\"1A2C\",\"00C3D4F\",2");
    QTRY_COMPARE(differences({{"cs", "2|5|1A2C|C3D4F"}}), QString());
}

void ModemManagerDaemon::stoppedService()
{
    ModemService::attach();
    QVERIFY(addModem());
    QVERIFY(enableModem());
    QTRY_COMPARE_WITH_TIMEOUT(differences(home), QString(), longTime);
    const EventLog events;
    m_daemon.signal(SIGSTOP);
    const Values before = readSdk();
    QCOMPARE(before.value("imei"), QStringLiteral("001017003100016"));
    QTRY_COMPARE(distinctAnswers(), QStringList{"error 5"});
    QVERIFY(!ModemService::isPresent(0));
    QCOMPARE(ModemService::value("device/deviceName"), std::string());
    QVERIFY(!ModemService::problem().empty());
    QTest::qWait(2 * shortTiming.confirmation);
    readSdk();
    m_daemon.signal(SIGCONT);
    QTRY_COMPARE(differences(home), QString());
    QCOMPARE(events.text(), QString());
    qInfo("longest call of the SDK: %.3f ms", longestCall());
    QVERIFY(longestCall() < 50);
}

void ModemManagerDaemon::restartedService()
{
    const EventLog events;
    ModemService::attach();
    QVERIFY(addModem());
    QVERIFY(enableModem());
    QTRY_COMPARE_WITH_TIMEOUT(differences(home), QString(), longTime);
    m_daemon.signal(SIGKILL);
    QTRY_COMPARE(events.text(), QStringLiteral("6000:3 6014:3 6601:-"));
    QCOMPARE(distinctAnswers(), QStringList{"error 2"});
    QCOMPARE(ModemService::problem(), std::string("ModemManager is not running."));
    startDaemon();
    QVERIFY(addModem());
    QVERIFY(enableModem());
    QTRY_COMPARE_WITH_TIMEOUT(differences(home), QString(), longTime);
    QCOMPARE(events.text(), QStringLiteral("6000:3 6014:3 6601:- 6000:3 6014:3"));
}

QTEST_GUILESS_MAIN(ModemManagerDaemon)

#include "daemon.moc"
