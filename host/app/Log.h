// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef LOG_H
#define LOG_H

class QString;

/// Writes the messages of the host and its plug-ins: warnings and errors to standard error, and all
/// messages, debug lines included, to the log if one is open.
namespace Log {

/// Takes over the messages. No log is open yet.
void install();

/// Opens the log. "-" stands for standard error. Returns false if the file cannot be written.
bool open(const QString &fileName);

} // namespace Log

#endif
