// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICSSAVEDIALOGS_H
#define DIAGNOSTICSSAVEDIALOGS_H

#include <QString>

class QWidget;

/// The dialogs of the export, which both windows share. Each function blocks in an event loop of
/// its own, in which the host may close the window. Afterwards, use the window through guarded
/// pointers only. GUI thread.
class DiagnosticsSaveDialogs
{
public:
    /// Asks for the file to write; a null string if the user cancels or the window is deleted
    /// meanwhile.
    static QString askPath(QWidget *parent);

    static void showSuccess(QWidget *parent);
    static void showFailure(QWidget *parent);
};

#endif
