// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef HOSTPLUGINS_H
#define HOSTPLUGINS_H

#include "HostCore.h"
#include "interfaces/IDialupUIService.h"
#include "interfaces/INetConnectSetting.h"
#include "interfaces/IStatusBarUI.h"

/// The host's own plug-ins. They return values of the attached modem. They fail if it is unplugged
/// or does not have the value.

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

/// Has one profile: the modem's.
class ConnectionSettings : public QObject, public INetConnectSetting
{
    Q_OBJECT
    Q_INTERFACES(INetConnectSetting)

public:
    int IGetProfileSettings(QString profileName, NetProfileSettings *settings) override;
};

/// All three. Other plug-ins find them in the container until this object is deleted.
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
