// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef EXITCODE_H
#define EXITCODE_H

#include <QStringList>

/// The exit codes of the program, on which scripts rely.
enum ExitCode
{
    Success = 0,
    WrongUsage = 1,
    PluginMissing = 2,
    WrongInterface = 3,
    InitFailed = 4,
    WindowNotOpened = 5,
    FileNotWritten = 6,
    ConfigHasFindings = 7,
    FileNotRead = 8,
    NoModem = 9
};

/// Prints the reason of a failure on standard error. Returns \a code.
int fail(ExitCode code, const QString &reason);

/// Fails because \a given, of the kind \a what, is not among \a known. Returns WrongUsage.
int failUnknown(const char *what, const QString &given, const QStringList &known);

#endif
