// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef IDESTROYEVENT_H
#define IDESTROYEVENT_H

/// Told about the end of the host before the libraries are unloaded.
class IDestroyEvent
{
public:
    virtual ~IDestroyEvent() {}

    /// The host is about to unload the plug-in: it must give back all that it holds of other
    /// libraries (callbacks above all). Called on the GUI thread, at most once before the object is
    /// deleted; the object may also be deleted without it.
    virtual void OnDestroy() = 0;
};

#endif
