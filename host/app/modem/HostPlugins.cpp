// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "modem/HostPlugins.h"

#include "ModemControl.h"
#include "modem/ModemSource.h"

namespace {

enum Result
{
    Success = 0,
    Failure = 1
};

int readValue(const char *key, QString &value)
{
    const QString text = ModemControl::isPlugged() ? ModemSource::value(key) : QString();
    if (text.isEmpty())
        return Failure;
    value = text;
    return Success;
}

} // namespace

int StatusBar::IGetServiceName(QString &name)
{
    return readValue("network/operatorName", name);
}

int StatusBar::IGetNetworkType(QString &type)
{
    return readValue("network/networkType", type);
}

int DialupService::IGetProfileName(QString &name)
{
    return readValue("connection/profile", name);
}

int ConnectionSettings::IGetProfileSettings(QString profileName, NetProfileSettings *settings)
{
    QString known;
    if (readValue("connection/profile", known) != Success || known != profileName ||
        readValue("connection/apn", settings->apn) != Success)
        return Failure;
    settings->profileName = known;
    return Success;
}

HostPlugins::HostPlugins()
{
    m_register.add(QLatin1String(CLSID_STATUSBAR_UI), PLUGIN_TYPE_STATUSBAR_UI, &m_statusBar);
    m_register.add(QLatin1String(CLSID_DIALUP_UI_SERVICE), PLUGIN_TYPE_DIALUP_UI_SERVICE,
                   &m_dialupService);
    m_register.add(QLatin1String(CLSID_NET_CONNECT_SETTING), PLUGIN_TYPE_NET_CONNECT_SETTING,
                   &m_connectionSettings);
    HostCore::setPluginContainer(&m_register);
}

HostPlugins::~HostPlugins()
{
    HostCore::setPluginContainer(nullptr);
}
