// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "window/ModemWindow.h"

class PluginLoader;

/// The host's window: the way to the diagnostics. The modem's window comes and goes with it.
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    /// \a plugin must be started; it and \a modem must outlive the window.
    MainWindow(const ModemSource &modem, const PluginLoader &plugin);

    /// Opens the diagnostics window. False when it could not be opened, which the window then says.
    bool openDiagnostics();

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    const PluginLoader &m_plugin;
    ModemWindow m_modem;
    QLabel *m_message;
};

#endif
