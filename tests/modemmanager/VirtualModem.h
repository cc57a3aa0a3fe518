// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef VIRTUALMODEM_H
#define VIRTUALMODEM_H

#include "AtModem.h"
#include "ServiceSupport.h"

#include <memory>

/// The real service, unmodified, on a private bus that takes the system's place, with a virtual
/// modem.
class VirtualModem
{
public:
    /// Starts the bus and the service. Why there can be no virtual modem here; empty when there
    /// can.
    QString start();
    /// Starts the service anew, and a modem with the usual answers that it doesn't know yet.
    void startService();
    /// Shows the modem to the service, which reads it, and lets it be used: it registers.
    bool add(bool enabled = true);

    AtModem &modem() { return *m_modem; }
    ServiceSupport::Program &daemon() { return m_daemon; }
    /// Reads all objects of the service, as any client may.
    void readAll() { ask("", "org.freedesktop.DBus.ObjectManager", "GetManagedObjects", {}); }

private:
    /// The first argument of the service's answer, true if it has none; invalid for an error.
    QVariant ask(const char *object, const char *interface, const char *method,
                 const QVariantList &arguments);

    ServiceSupport::PrivateBus m_bus;
    std::unique_ptr<AtModem> m_modem;
    ServiceSupport::Program m_daemon; // ends first
};

#endif
