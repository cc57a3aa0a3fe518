// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MODEMSOURCE_H
#define MODEMSOURCE_H

#include <QString>
#include <QStringList>

/// The modem that the user chose. It is detached from libsdk when this object is deleted, which
/// must be before the application object is.
class ModemSource
{
public:
    /// \a folder holds the files of the simulated modems.
    explicit ModemSource(const QString &folder);
    ~ModemSource();
    ModemSource(const ModemSource &) = delete;
    ModemSource &operator=(const ModemSource &) = delete;

    /// The names that attach() accepts: those of the simulated modems, "modemmanager" for the first
    /// modem of the system's service ("modemmanager:1" for the second), and "auto" for the
    /// service's modem or, if it has none, a simulated one.
    QStringList names() const;

    /// Attaches a modem to libsdk. Returns false, with the reason in *\a error, if the name or the
    /// modem's file is wrong.
    bool attach(const QString &name, QString *error);

    /// Detaches the modem. Returns false if the system's message bus hangs. Then the program must
    /// end without destructors, because Qt's would wait for the bus.
    bool detach();

    bool isSimulated() const { return m_simulated; }
    /// The name that the user sees.
    QString name() const { return m_name; }
    QString description() const;

    /// A sentence about what is missing or does not answer. Empty if there is no problem.
    QString problem() const;

private:
    bool attachSimulated(const QString &name, QString *error);

    QString serviceProblem() const;

    const QString m_folder;
    int m_index; ///< of the wanted modem of the service
    QString m_name;
    QString m_fallback; ///< why "auto" took a simulated modem
    bool m_simulated;
    bool m_hanging;
};

#endif
