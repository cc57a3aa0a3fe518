// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICS_H
#define DIAGNOSTICS_H

#include "report/Report.h"

#include <QWidget>

class ModemSource;
class PluginLoader;

/// The diagnostics window of the plug-in, and the reports of it.
class Diagnostics
{
public:
    /// \a plugin must be started; it and \a modem must outlive this. \a configuration is the file
    /// that the plug-in has read.
    Diagnostics(const ModemSource &modem, const PluginLoader &plugin, const QString &configuration,
                const QString &language);

    /// Closes the window.
    ~Diagnostics();

    /// Opens the window, beside \a hostWindow if there is one, or brings the open one to the front.
    /// It is modal, but does not block \a hostWindow. Returns false if it could not be opened.
    bool open(const QWidget *hostWindow = nullptr);

    void close();

    /// How a report is made.
    enum Wait
    {
        Immediate,
        AwaitSignal ///< waits up to 3 s for the first signal that the service reads for the host
    };

    /// Reads all values for a report, from the open window, or from one that is not seen. Returns
    /// false if it could not be opened.
    bool read(Wait wait, Report::Content *content);

private:
    const ModemSource &m_modem;
    const PluginLoader &m_plugin;
    const QString m_configuration;
    const QString m_language;
    QWidget m_place; ///< never seen: the window's parent, in whose middle it opens
};

#endif
