// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "core/Startup.h"
#include "HostCore.h"

namespace {

PluginContainer *s_container = nullptr;

} // namespace

PluginContainer *Startup::GetPluginContainer()
{
    return s_container;
}

void HostCore::setPluginContainer(PluginContainer *container)
{
    s_container = container;
}

void HostCore::PluginRegister::add(const QString &classIdentifier, int pluginType, QObject *plugin)
{
    m_entries.prepend({classIdentifier, pluginType, plugin});
}

QObject *HostCore::PluginRegister::GetPlugin(const QString &classIdentifier, int pluginType)
{
    const QList<Entry> &entries = m_entries;
    for (const Entry &entry : entries) {
        if (entry.plugin && entry.pluginType == pluginType &&
            entry.classIdentifier == classIdentifier)
            return entry.plugin;
    }
    return nullptr;
}
