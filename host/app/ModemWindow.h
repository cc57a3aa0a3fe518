// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MODEMWINDOW_H
#define MODEMWINDOW_H

#include <QWidget>

class QLabel;
class QPushButton;

/// The hand that plugs the simulated modem in and out. A window of its own, because the diagnostics
/// window blocks the host's.
class ModemWindow : public QWidget
{
    Q_OBJECT

public:
    explicit ModemWindow(const QString &modemName);

private:
    void plug();
    void unplug();
    void showState();

    QLabel *m_state;
    QPushButton *m_plugIn;
    QPushButton *m_unplug;
};

#endif
