// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ModemService.h"
#include "TestSupport.h"
#include "VirtualModem.h"
#include "modemmanager/ServiceTiming.h"

#include <QtTest>

using namespace ServiceSupport;

static const ServiceTiming shortTiming{300, 1500};

/// The real service with a virtual modem.
class ModemManagerDaemon : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { ModemService::detach(); }
    void modems_data() { TestSupport::addRows(TEST_SOURCE_DIR "/daemon.txt", "modems"); }
    void modems();
    void queries_data() { TestSupport::addRows(TEST_SOURCE_DIR "/daemon.txt", "queries"); }
    void queries()
    {
        if (qEnvironmentVariableIsSet("WITHOUT_QUERIES"))
            QSKIP("run by ./test --full");
        modems();
    }
    void changes();
    void stoppedAndKilled();

private:
    VirtualModem m_virtual;
    const QString m_home = content("sdk.home");
};

void ModemManagerDaemon::initTestCase()
{
    const QString problem = m_virtual.start();
    if (!problem.isEmpty())
        QSKIP(qPrintable(problem));
    serviceTiming() = shortTiming;
}

void ModemManagerDaemon::init()
{
    m_virtual.startService();
    ModemService::attach();
}

void ModemManagerDaemon::modems()
{
    QFETCH(QStringList, fields);
    m_virtual.modem().set(fields.at(2));
    QVERIFY(m_virtual.add(fields.at(1) == "enabled"));
    EXPECT(fields.at(3) == "home" ? m_home : fields.at(3));
}

void ModemManagerDaemon::changes()
{
    QVERIFY(m_virtual.add());
    EXPECT(m_home);
    ModemService::attach();
    QVERIFY(ModemService::isPresent(5000));
    QCOMPARE(differences(pairs(m_home)), QString());
    m_virtual.modem().set("AT+CREG? AT+CGREG? = +CREG: 2,5,\"1A2C\",\"00C3D4F\",2");
    m_virtual.modem().send("+CREG: 5,\"1A2C\",\"00C3D4F\",2");
    EXPECT("GetCSRegState = 2|5|1A2C$|C3D4F$");
}

void ModemManagerDaemon::stoppedAndKilled()
{
    startEvents();
    QVERIFY(m_virtual.add());
    EXPECT(m_home);
    m_virtual.daemon().signal(SIGSTOP);
    QCOMPARE(differences(pairs(m_home)), QString());
    EXPECT("all = error 5; device/deviceName =; problem = ModemManager has not answered for 1 "
           "seconds.");
    QVERIFY(!ModemService::isPresent(0));
    QTest::qWait(2 * shortTiming.confirmation);
    m_virtual.daemon().signal(SIGCONT);
    EXPECT(m_home + "\nevents = 6000:3 6014:3");

    m_virtual.daemon().signal(SIGKILL);
    EXPECT("all = error 2; problem = ModemManager is not running.; events = 6000:3 6014:3 "
           "6601:error 2");
    m_virtual.startService();
    QVERIFY(m_virtual.add());
    EXPECT(m_home + "\nevents = 6000:3 6014:3 6601:error 2 6000:3 6014:3");
}

QTEST_GUILESS_MAIN(ModemManagerDaemon)

#include "daemon.moc"
