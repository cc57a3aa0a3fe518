// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef IDESTROYEVENT_H
#define IDESTROYEVENT_H

/// Is called before the host ends.
class IDestroyEvent
{
public:
    virtual ~IDestroyEvent() {}

    /// The host is about to unload the plug-in: it must release what it got from other
    /// libraries, callbacks included. Called on the GUI thread, at most once before the object is
    /// deleted; the object may also be deleted without it.
    virtual void OnDestroy() = 0;
};

#endif
