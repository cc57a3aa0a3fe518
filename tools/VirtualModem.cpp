// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "VirtualModem.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QTest>

static const QString service = "org.freedesktop.ModemManager1";
static const QString servicePath = "/org/freedesktop/ModemManager1";
static const char program[] = "/usr/sbin/ModemManager";
static const int longTime = 15000; // ms

QString VirtualModem::start()
{
    if (!QFile::exists(program))
        return QString(program) + " is missing (package modemmanager)";
    const QString problem = m_bus.start();
    if (!problem.isEmpty())
        return problem;
    startService();
    const bool testable = QTest::qWaitFor([&] {
        return ask("", "org.freedesktop.DBus.Introspectable", "Introspect", {})
            .toString()
            .contains("ModemManager1.Test");
    });
    return testable ? "" : "this ModemManager was built without its test interface";
}

void VirtualModem::startService()
{
    m_daemon.stop();
    m_modems.clear();
    startModem();
    m_daemon.start(program, {"--test-session", "--test-enable", "--test-no-udev",
                             "--test-no-suspend-resume", "--test-no-qrtr", "--no-auto-scan"});
}

void VirtualModem::startModem()
{
    m_modems.push_back(std::make_unique<AtModem>());
}

QVariant VirtualModem::ask(const QString &object, const char *interface, const char *method,
                           const QVariantList &arguments)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(service, servicePath + object, interface, method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    const QDBusMessage reply = QDBusConnection::connectToBus(QDBusConnection::SystemBus, "test")
                                   .call(message, QDBus::Block, longTime);
    return reply.type() == QDBusMessage::ErrorMessage ? QVariant()
                                                      : reply.arguments().value(0, true);
}

bool VirtualModem::add(bool enabled)
{
    const QString number = QString::number(m_modems.size() - 1);
    const bool added = QTest::qWaitFor([&] {
        return ask("", "org.freedesktop.ModemManager1.Test", "SetProfile",
                   {"virtual" + number, "generic", QStringList{modem().port()}})
            .isValid();
    });
    const auto enable = [&] {
        return ask("/Modem/" + number, "org.freedesktop.ModemManager1.Modem", "Enable", {true})
            .isValid();
    };
    return added && (!enabled || QTest::qWaitFor(enable, longTime));
}
