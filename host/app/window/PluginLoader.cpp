// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "window/PluginLoader.h"

#include "interfaces/INotify.h"
#include "interfaces/IUIPlugin.h"

#include <QFileInfo>

PluginLoader::PluginLoader(const QString &fileName) : m_fileName(fileName) {}

PluginLoader::~PluginLoader()
{
    if (m_plugin)
        m_plugin->OnDestroy();
    m_loader.unload();
}

bool PluginLoader::start()
{
    m_error.clear();
    find();
    load();
    recognise();
    init();
    return m_state == Started;
}

void PluginLoader::find()
{
    if (m_state != Named)
        return;
    if (!QFileInfo(m_fileName).isFile())
        return fail(QStringLiteral("there is no such file"));
    m_loader.setFileName(m_fileName);
    m_state = Found;
}

void PluginLoader::load()
{
    if (m_state != Found)
        return;
    if (!m_loader.instance())
        return fail(m_loader.errorString().simplified());
    m_state = Loaded;
}

void PluginLoader::recognise()
{
    if (m_state != Loaded)
        return;
    auto *const plugin = qobject_cast<IUIPlugin *>(m_loader.instance());
    auto *const notify = qobject_cast<INotify *>(m_loader.instance());
    if (!plugin || !notify)
        return fail(QStringLiteral("it does not have the interface %1")
                        .arg(QLatin1String(plugin ? qobject_interface_iid<INotify *>()
                                                  : qobject_interface_iid<IUIPlugin *>())));
    m_plugin = plugin;
    m_notify = notify;
    m_state = Recognised;
}

void PluginLoader::init()
{
    if (m_state != Recognised)
        return;
    if (m_plugin->Init() != 1)
        return fail(QStringLiteral("its initialisation failed"));
    m_state = Started;
}

void PluginLoader::fail(const QString &reason)
{
    m_error = QStringLiteral("cannot use the plug-in %1: %2").arg(m_fileName, reason);
}
