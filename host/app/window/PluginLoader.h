// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef PLUGINLOADER_H
#define PLUGINLOADER_H

#include <QPluginLoader>
#include <QString>

class INotify;
class IUIPlugin;

/// One UI plug-in of the host, from its file to its running object and back.
class PluginLoader
{
public:
    /// How far the plug-in has come. It stays where a step failed; error() says why.
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

    /// Goes as far as possible; whether the plug-in is started.
    bool start();

    State state() const { return m_state; }

    /// Why the next state was not reached; empty while nothing has failed.
    QString error() const { return m_error; }

    /// The plug-in's interfaces; null unless it is recognised.
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
