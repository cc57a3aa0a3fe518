// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef IBASEPLUGIN_H
#define IBASEPLUGIN_H

#include "IBaseInterface.h"
#include "IDestroyEvent.h"

#include <QObject>
#include <QString>

/// What every plug-in of the host can do.
///
/// Life: the host loads the library, takes the one object from the library's entry point, casts it
/// to this interface by its identifier, and calls Init() once. At its end it calls OnDestroy() and
/// deletes the object. All operations are called on the GUI thread.
class IBasePlugin : public IBaseInterface, public IDestroyEvent
{
public:
    /// Starts the plug-in: 1 on success, 0 if it cannot be started; the host may then try again.
    virtual int Init() = 0;

    /// The plug-in's type, one of the framework's codes (see PluginContainer); 0 for a plug-in that
    /// is not looked up by type.
    virtual int GetPluginType() = 0;

    /// The class identifier (a GUID in text form) by which other plug-ins find this one in the
    /// container; a null string for a plug-in that is not looked up.
    virtual QString GetCLSID() = 0;

    /// The plug-in's version number; 0 for unversioned.
    virtual int GetVersion() = 0;

    /// The plug-in's name, for the host's lists and log. Not translated.
    virtual QString GetPluginName() = 0;

    /// Whether the host may unload the plug-in while it runs.
    virtual bool IsAllowRelease() = 0;

    /// Asks for a further interface by number. 0 means that there is none, and \a object is not
    /// written; otherwise *object is the object, which the plug-in keeps owning.
    virtual int QueryInterface(int identifier, QObject **object) = 0;
};

Q_DECLARE_INTERFACE(IBasePlugin, "com.velt.IBasePlugin")

#endif
