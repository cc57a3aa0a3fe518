// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef VIRTUALMODEM_H
#define VIRTUALMODEM_H

#include "AtModem.h"
#include "Programs.h"

#include <QVariant>

#include <memory>
#include <vector>

/// The unmodified service on a private bus, with virtual modems.
class VirtualModem
{
public:
    /// Starts the bus and the service. Returns why there can be no virtual modem here; empty if
    /// there can be one.
    QString start();
    /// Starts the service anew, and a modem with the usual answers that it doesn't know yet.
    void startService();
    /// Starts another modem with the usual answers.
    void startModem();
    /// Shows the last modem to the service, which reads it, and lets it be used: it registers.
    bool add(bool enabled = true);

    /// The one that was started last.
    AtModem &modem() { return *m_modems.back(); }
    Program &daemon() { return m_daemon; }

private:
    /// Returns the first argument of the service's answer, true if it has none, invalid for an
    /// error.
    QVariant ask(const QString &object, const char *interface, const char *method,
                 const QVariantList &arguments);

    PrivateBus m_bus;
    std::vector<std::unique_ptr<AtModem>> m_modems;
    Program m_daemon; // ends first
};

#endif
