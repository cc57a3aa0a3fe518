// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef PLUGINLOADER_H
#define PLUGINLOADER_H

#include <QPluginLoader>
#include <QString>

class INotify;
class IUIPlugin;

/// Loads and starts one UI plug-in of the host, and ends and unloads it.
class PluginLoader
{
public:
    /// The last step that succeeded. error() has the reason why the next one failed.
    enum State
    {
        Named,      ///< only the file name is known
        Found,      ///< the file exists
        Loaded,     ///< it is a plug-in, and its object exists
        Recognised, ///< the object has the interfaces of a UI plug-in
        Started     ///< Init() succeeded
    };

    explicit PluginLoader(const QString &fileName);

    /// Ends the plug-in and unloads its library. All its windows must be closed.
    ~PluginLoader();

    PluginLoader(const PluginLoader &) = delete;
    PluginLoader &operator=(const PluginLoader &) = delete;

    /// Takes all remaining steps until one fails. Returns whether the plug-in is started.
    bool start();

    State state() const { return m_state; }

    /// Empty if no step has failed.
    QString error() const { return m_error; }

    /// The plug-in's interfaces. Null before the state Recognised.
    IUIPlugin *plugin() const { return m_plugin; }
    INotify *notify() const { return m_notify; }

private:
    void find();
    void load();
    void recognise();
    void init();
    void fail(const QString &reason);

    QString m_fileName;
    QPluginLoader m_loader;
    State m_state = Named;
    QString m_error;
    IUIPlugin *m_plugin = nullptr;
    INotify *m_notify = nullptr;
};

#endif
