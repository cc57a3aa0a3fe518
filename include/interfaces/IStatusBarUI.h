// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef ISTATUSBARUI_H
#define ISTATUSBARUI_H

#include <QObject>
#include <QString>

/// Where the container holds the host's status bar.
static const char CLSID_STATUSBAR_UI[] = "3D0F6A21-7C4B-4e19-8A52-0B9E7D14C6A3";
enum
{
    PLUGIN_TYPE_STATUSBAR_UI = 4100
};

/// The host's status bar, which knows the network that the modem is registered with.
/// Implemented by a plug-in of the host, found through the container; called on the GUI thread.
class IStatusBarUI
{
public:
    virtual ~IStatusBarUI() {}

    /// The operator's name as the status bar shows it. 0 on success; on failure \a name is left as
    /// it was.
    virtual int IGetServiceName(QString &name) = 0;

    /// The network's type as the status bar shows it ("UMTS", "HSDPA"). 0 on success; on failure
    /// \a type is left as it was.
    virtual int IGetNetworkType(QString &type) = 0;
};

Q_DECLARE_INTERFACE(IStatusBarUI, "com.velt.IStatusBarUI")

#endif
