// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "TestSupport.h"
#include "VirtualModem.h"
#include "modemmanager/ModemService.h"
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
    void scripts_data() { TestSupport::addRows(TEST_SOURCE_DIR "/daemon.txt", "scripts"); }
    void scripts();

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

void ModemManagerDaemon::scripts()
{
    QFETCH(QStringList, fields);
    perform(
        fields.mid(1),
        {
            {"service", [&](const QString &) { m_virtual.startService(); }},
            {"add", [&](const QString &) { QVERIFY(m_virtual.add()); }},
            {"home", [&](const QString &events) { EXPECT(m_home + "\nevents = " + events); }},
            {"still-home",
             [&](const QString &) { QCOMPARE(differences(pairs(m_home)), QString()); }},
            {"present", [&](const QString &) { QVERIFY(ModemService::isPresent(5000)); }},
            {"answer", [&](const QString &answers) { m_virtual.modem().set(answers); }},
            {"send", [&](const QString &line) { m_virtual.modem().send(line.toLatin1()); }},
            {"signal", [&](const QString &number) { m_virtual.daemon().signal(number.toInt()); }},
        });
}

QTEST_GUILESS_MAIN(ModemManagerDaemon)

#include "daemon.moc"
