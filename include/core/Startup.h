// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef STARTUP_H
#define STARTUP_H

#include "CoreExport.h"

#include <QString>

class QObject;

/// The host's register of its loaded plug-ins, by which they find each other. Used on the GUI
/// thread.
class PluginContainer
{
public:
    virtual ~PluginContainer() {}

    /// The plug-in with this class identifier and type, or null when it is not loaded. The host
    /// owns the object, which may go at any time that control returns to the event loop: look it up
    /// for each use. Cast it with qobject_cast() to the interface wanted.
    virtual QObject *GetPlugin(const QString &classIdentifier, int pluginType) = 0;
};

/// The host's start-up object.
class CORE_EXPORT Startup
{
public:
    /// The host's plug-in container, or null before the host has made it and after its end. Not
    /// owned by the caller. Called on the GUI thread.
    static PluginContainer *GetPluginContainer();
};

#endif
