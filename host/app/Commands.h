// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef COMMANDS_H
#define COMMANDS_H

class ModemSource;
class QString;
struct Options;

/// What the program can be asked to do. Each function returns the exit code, and prints why it
/// failed.
namespace Commands {

int listModems(const ModemSource &modem);

/// Prints the findings in a configuration.
int checkConfig(const QString &fileName);

/// Starts the plug-in, opens the windows and does with them what \a options ask for. If that is
/// nothing that ends by itself, it returns when the user has closed the host's window.
int show(const ModemSource &modem, const Options &options);

} // namespace Commands

#endif
