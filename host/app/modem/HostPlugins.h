// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef HOSTPLUGINS_H
#define HOSTPLUGINS_H

#include "HostCore.h"
#include "interfaces/IDialupUIService.h"
#include "interfaces/INetConnectSetting.h"
#include "interfaces/IStatusBarUI.h"

/// The host's own plug-ins. They answer from the attached modem, and fail while it is away or
/// has no such value.

class StatusBar : public QObject, public IStatusBarUI
{
    Q_OBJECT
    Q_INTERFACES(IStatusBarUI)

public:
    int IGetServiceName(QString &name) override;
    int IGetNetworkType(QString &type) override;
};

class DialupService : public QObject, public IDialupUIService
{
    Q_OBJECT
    Q_INTERFACES(IDialupUIService)

public:
    int IGetProfileName(QString &name) override;
};

/// Knows one profile: the modem's.
class ConnectionSettings : public QObject, public INetConnectSetting
{
    Q_OBJECT
    Q_INTERFACES(INetConnectSetting)

public:
    int IGetProfileSettings(QString profileName, NetProfileSettings *settings) override;
};

/// All of them. While it lives, plug-ins find them through the container.
class HostPlugins
{
public:
    HostPlugins();
    ~HostPlugins();

    HostPlugins(const HostPlugins &) = delete;
    HostPlugins &operator=(const HostPlugins &) = delete;

private:
    StatusBar m_statusBar;
    DialupService m_dialupService;
    ConnectionSettings m_connectionSettings;
    HostCore::PluginRegister m_register;
};

#endif
