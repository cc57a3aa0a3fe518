// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MODEMWINDOW_H
#define MODEMWINDOW_H

#include <QWidget>

class ModemSource;
class QLabel;
class QPushButton;

/// Shows the modem's name, description and state. Its buttons plug a simulated modem in and out. It
/// is a separate window because the diagnostics window blocks the host's.
class ModemWindow : public QWidget
{
    Q_OBJECT

public:
    /// \a modem must outlive the window.
    explicit ModemWindow(const ModemSource &modem);

private:
    void plug();
    void unplug();
    void showState();

    const ModemSource &m_modem;
    QLabel *m_description;
    QLabel *m_state;
    QPushButton *m_plugIn;
    QPushButton *m_unplug;
};

#endif
