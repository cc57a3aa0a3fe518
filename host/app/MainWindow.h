// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include <QWidget>

class PluginLoader;
class QLabel;
class QPushButton;

/// The host's window: the modem, the hand that plugs and unplugs it, and the way to the
/// diagnostics.
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    /// \a plugin must be started and outlive the window.
    MainWindow(const QString &modemName, const PluginLoader &plugin);

    /// Opens the diagnostics window. False when it could not be opened, which the window then says.
    bool openDiagnostics();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void plug();
    void unplug();
    void showState();

    const PluginLoader &m_plugin;
    QLabel *m_state;
    QLabel *m_message;
    QPushButton *m_diagnostics;
    QPushButton *m_plugIn;
    QPushButton *m_unplug;
};

#endif
