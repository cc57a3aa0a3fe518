// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "modem/HostPlugins.h"

#include "SdkControl.h"

namespace {

enum Result
{
    Success = 0,
    Failure = 1
};

int readText(TextValue wanted, QString &value)
{
    const QString text =
        SdkControl::isPlugged() ? QString::fromStdString(SdkControl::text(wanted)) : QString();
    if (text.isEmpty())
        return Failure;
    value = text;
    return Success;
}

} // namespace

int StatusBar::IGetServiceName(QString &name)
{
    return readText(TextValue::ServiceName, name);
}

int StatusBar::IGetNetworkType(QString &type)
{
    return readText(TextValue::NetworkType, type);
}

int DialupService::IGetProfileName(QString &name)
{
    return readText(TextValue::Profile, name);
}

int ConnectionSettings::IGetProfileSettings(QString profileName, NetProfileSettings *settings)
{
    QString known;
    if (readText(TextValue::Profile, known) != Success || known != profileName ||
        readText(TextValue::Apn, settings->apn) != Success)
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
