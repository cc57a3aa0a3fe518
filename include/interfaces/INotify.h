// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef INOTIFY_H
#define INOTIFY_H

#include <QObject>

/// Codes of the host's notifications.
enum NotifyCode
{
    /// All plug-in windows are to be closed: the host's own window goes, or the user logs off.
    NOTIFY_CLOSE_WINDOWS = 4100
};

/// Receives the host's notifications.
class INotify
{
public:
    virtual ~INotify() {}

    /// Called on the GUI thread. \a code says what happened (see NotifyCode; unknown codes are to
    /// be ignored), the two arguments depend on the code. Returns 0.
    virtual int Notify(unsigned int code, unsigned int argument1, unsigned int argument2) = 0;
};

Q_DECLARE_INTERFACE(INotify, "com.velt.INotify")

#endif
