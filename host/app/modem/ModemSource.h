// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MODEMSOURCE_H
#define MODEMSOURCE_H

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

    /// Attaches a modem; false, with the reason in *\a error, when the name or its file is wrong.
    bool attach(const QString &name, QString *error);

    /// Takes the modem away. False when the system's message bus hangs, so that the program must
    /// leave without the toolkit's end.
    bool detach();

    bool isSimulated() const { return m_simulated; }
    /// Which modem it is, to be shown to the user.
    QString name() const { return m_name; }
    QString description() const;

    /// What is missing or does not answer, in a sentence; empty while all is well.
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
