// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MODEMMONITOR_H
#define MODEMMONITOR_H

#include <QObject>

/// Follows the events of the SDK and the readings of the modem's service. At most one exists at a
/// time, on the GUI thread.
class ModemMonitor : public QObject
{
    Q_OBJECT

public:
    ModemMonitor();
    ~ModemMonitor() override;

Q_SIGNALS:
    /// The modem came or went, or its values may have changed.
    void changed();
};

#endif
