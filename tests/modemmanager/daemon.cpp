// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ServiceSupport.h"
#include "TestSupport.h"
#include "VirtualModem.h"
#include "modemmanager/ModemService.h"

#include <QtTest>

using namespace ServiceSupport;

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
    void scripts_data() { TestSupport::addRows(TEST_SOURCE_DIR "/daemon.txt", "scripts"); }
    void scripts();

private:
    VirtualModem m_virtual;
    const QString m_home = TestSupport::contentOf(TEST_SOURCE_DIR "/sdk.home");
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
    m_virtual.modem().set(fields.at(2).toLatin1());
    QVERIFY(m_virtual.add(fields.at(1) == "enabled"));
    expect(fields.at(3));
}

void ModemManagerDaemon::scripts()
{
    QFETCH(QStringList, fields);
    perform(
        fields.replaceInStrings("HOME", m_home).mid(1),
        {
            {"service", [&](const QString &) { m_virtual.startService(); }},
            {"another", [&](const QString &) { m_virtual.startModem(); }},
            {"add", [&](const QString &) { QVERIFY(m_virtual.add()); }},
            {"present", [&](const QString &) { QVERIFY(ModemService::isPresent(5000)); }},
            {"answer", [&](const QString &text) { m_virtual.modem().set(text.toLatin1()); }},
            {"send", [&](const QString &line) { m_virtual.modem().send(line.toLatin1()); }},
            {"signal", [&](const QString &number) { m_virtual.daemon().signal(number.toInt()); }},
        });
}

QTEST_GUILESS_MAIN(ModemManagerDaemon)

#include "daemon.moc"
