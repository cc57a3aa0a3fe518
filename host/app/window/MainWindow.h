// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "modem/ModemMonitor.h"

#include <QWidget>

class Diagnostics;
class ModemSource;
class QCheckBox;
class QLabel;
class QPushButton;

/// The host's window: what stands in the way of a connection, which modem it is, its signal, and
/// the way to the diagnostics window and to reports of it.
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    /// \a diagnostics and \a modem must outlive the window.
    MainWindow(const ModemSource &modem, Diagnostics &diagnostics);

    /// Opens the diagnostics window. Returns false if it could not be opened, which the host's
    /// window then says.
    bool openDiagnostics();

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void plug();
    void unplug();
    void copyReport();
    void chooseReportFile();
    void saveReport(const QString &fileName);
    void showModem();
    /// Null, which the window then says, if the diagnostics window could not be opened.
    QByteArray report(bool asJson);

    const ModemSource &m_modem;
    Diagnostics &m_diagnostics;
    const ModemMonitor m_monitor;
    QLabel *m_verdict;
    QLabel *m_description;
    QLabel *m_state;
    QLabel *m_network;
    QLabel *m_signal;
    QLabel *m_message;
    QPushButton *m_plugIn;
    QPushButton *m_unplug;
    QCheckBox *m_hideIdentifiers;
};

#endif
