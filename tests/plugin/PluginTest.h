// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef PLUGINTEST_H
#define PLUGINTEST_H

#include "DiagnosticsUIPlugin.h"
#include "TestSupport.h"

#include "modem/HostPlugins.h"

#include <QPushButton>

/// A plug-in in an English host with a window and a log, on the simulated WCDMA modem.
class PluginTest
{
public:
    PluginTest();

    /// Ends all, both singletons included, so that what is then left is a leak. Returns the
    /// warnings.
    QStringList end();

    /// Gives back all references to both singletons.
    static void release();

    /// What ShowWindow() returns.
    int show();

    /// The path of a file in the plug-in's folder.
    QString path(const QString &file) const { return m_host.folder() + file; }

    /// A visible button by its object name without "DiagnosticsUIPlugin_pushButton" or, in the
    /// window of CDMA devices, "DiagnosticsUIPlugin_pushButtonCdma".
    QPushButton *button(const QString &name) const;

protected:
    TestSupport::LogCapture m_log;
    TestSupport::ConfiguredHost m_host;
    HostPlugins m_hostPlugins;
    QPointer<QWidget> m_parent{new QWidget};
    QPointer<DiagnosticsUIPlugin> m_plugin{new DiagnosticsUIPlugin};
};

#endif
