// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef VERDICT_H
#define VERDICT_H

#include "modemmanager/ModemService.h"
#include "sdk/VeltTypes.h"

#include <QList>
#include <QString>
#include <QStringList>

/// A level that the modem receives, in the unit that its kind has.
struct RadioLevel
{
    QString name;
    double value;
    QString unit;
    double weakest; ///< a signal below it is weak; the least number if the level does not tell

    QString text() const
    {
        return name + QLatin1Char(' ') + QString::number(value) + QLatin1Char(' ') + unit;
    }
};

/// What a verdict is derived from: what the SDK answers at one moment, and what ModemManager says,
/// where the modem is one of its modems. Numbers that the SDK does not give are -1.
struct ModemState
{
    /// Reads all of it. \a index is the number of the wanted modem of ModemManager.
    static ModemState read(int index);

    int index = 0;
    ModemService::Status service = ModemService::Status::Detached;
    ModemService::Condition condition = {0, 0, 0};
    QString rejection;                ///< why the network refused the modem; empty if nobody tells
    VELT_ERROR result = VELT_SUCCESS; ///< of the question for the device status
    bool answers = false;             ///< whether any function succeeded
    int deviceStatus = -1;
    int simStatus = -1;
    int pinStatus = -1;
    QString pinAttempts; ///< empty if not told
    QString pukAttempts;
    int csState = -1;
    int psState = -1;
    int attachment = -1;
    bool hasAddress = false;
    QList<RadioLevel> levels;

    bool isConnected() const;
    bool isRegistered() const;
    bool isDenied() const;
    /// The first level that is weak, as text; empty if none is.
    QString weakSignal() const;
};

/// What stands in the way of a connection.
struct Verdict
{
    Verdict() = default;
    explicit Verdict(const ModemState &state);

    QString code;         ///< fixed, for programs
    QString text;         ///< a sentence in the host's language
    bool noModem = false; ///< whether there is no modem to report on
};

#endif
