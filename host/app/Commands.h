// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef COMMANDS_H
#define COMMANDS_H

class ModemSource;
class QString;
struct Options;

/// What the program can be asked to do. Each function returns the exit code, and prints the reason
/// of a failure.
namespace Commands {

/// Prints a text to standard output.
int print(const QString &text);

/// Prints the findings in a configuration.
int checkConfig(const QString &fileName);

/// Starts the plug-in and shows the host's window, or does what \a options ask for instead. Returns
/// when that is done, or when the user has closed the window.
int show(const ModemSource &modem, const Options &options);

/// The same where nobody can see the windows and \a options would keep them open: prints all values
/// and writes a picture to a new file in the temporary folder instead.
int showUnseen(const ModemSource &modem, Options options);

} // namespace Commands

#endif
