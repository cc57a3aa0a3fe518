// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICSEXPORT_H
#define DIAGNOSTICSEXPORT_H

#include <QString>

class QWidget;

/// What both windows ask and tell the user about an export. Everything here blocks in an event loop
/// of its own, in which the host may close the window: use nothing of it afterwards that is not
/// guarded. GUI thread.
class DiagnosticsExport
{
public:
    /// The file to write to; a null string when the user cancelled or the window went meanwhile.
    static QString askPath(QWidget *parent);

    static void showSuccess(QWidget *parent);
    static void showFailure(QWidget *parent);
};

#endif
