// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MODEMSOURCE_H
#define MODEMSOURCE_H

#include "modem/Verdict.h"

#include <QString>
#include <QStringList>

/// The modem that the user chose, attached to the SDK while this lives. It must go before the
/// application object.
class ModemSource
{
public:
    /// \a folder holds the files of the simulated modems.
    explicit ModemSource(const QString &folder);
    ~ModemSource();
    ModemSource(const ModemSource &) = delete;
    ModemSource &operator=(const ModemSource &) = delete;

    /// The names that attach() takes: those of the simulated modems, "modemmanager" (the first
    /// modem of the system's service; "modemmanager:1" is the second), and "auto" (the service's
    /// modem, or a simulated one where it has none).
    QStringList names() const;

    /// What becomes of "auto" if there is no service or no modem.
    enum Absence
    {
        Reported,
        Replaced ///< a simulated modem takes the place
    };

    /// Attaches a modem. Waits a short time for the service's first answer. Returns false, with the
    /// reason in *\a error, if the name or its file is wrong.
    bool attach(const QString &name, Absence absence, QString *error);

    /// Takes the modem away. False when the system's message bus hangs, so that the program must
    /// leave without Qt's end.
    bool detach();

    bool isSimulated() const { return m_simulated; }
    /// Which modem it is, to be shown to the user.
    QString name() const { return m_name; }
    QString description() const;

    /// Why a simulated modem took the place of the service's; empty if none did.
    QString fallback() const { return m_fallback; }

    /// As the modem is now.
    ModemState state() const { return ModemState::read(m_index); }
    Verdict verdict() const { return Verdict(state()); }

private:
    bool attachSimulated(const QString &name, QString *error);

    const QString m_folder;
    int m_index; ///< of the wanted modem of the service
    QString m_name;
    QString m_fallback;
    bool m_simulated;
    bool m_hanging;
};

#endif
