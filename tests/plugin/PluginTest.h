// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef PLUGINTEST_H
#define PLUGINTEST_H

#include "DiagnosticsUIPlugin.h"
#include "TestSupport.h"

#include "HostPlugins.h"

class QPushButton;

/// A plug-in in an English host with a window and a log, on the simulated WCDMA modem.
class PluginTest
{
protected:
    void setUp();

    /// Ends all, both singletons included, so that what is then left is a leak. Returns the
    /// warnings.
    QStringList tearDown();

    /// Gives back all references to both singletons.
    static void release();

    /// What ShowWindow() returns.
    int show();

    /// The path of a file in the plug-in's folder.
    QString path(const QString &file) const { return m_host->folder() + file; }

    /// A visible button by its object name without "DiagnosticsUIPlugin_pushButton" or, in the
    /// window of CDMA devices, "DiagnosticsUIPlugin_pushButtonCdma".
    QPushButton *button(const QString &name) const;

    std::unique_ptr<TestSupport::LogCapture> m_log;
    std::unique_ptr<TestSupport::ConfiguredHost> m_host;
    std::unique_ptr<HostPlugins> m_hostPlugins;
    QPointer<QWidget> m_parent;
    QPointer<DiagnosticsUIPlugin> m_plugin;
};

#endif
