// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "window/ModemWindow.h"

class PluginLoader;

/// The host's window. Its button opens the diagnostics window. The modem's window is shown and
/// closed with it.
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    /// \a plugin must be started. \a modem and \a plugin must outlive the window.
    MainWindow(const ModemSource &modem, const PluginLoader &plugin);

    /// Opens the diagnostics window. Returns false, and shows a message, if that fails.
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
