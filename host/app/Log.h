// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef LOG_H
#define LOG_H

class QString;

/// Where the messages of the host and its plug-ins go: warnings and errors to standard error, and
/// everything, debug lines too, to the log, if there is one.
namespace Log {

/// Takes over all messages, without a log.
void install();

/// Opens the log; "-" stands for standard error. False when the file cannot be written.
bool open(const QString &fileName);

} // namespace Log

#endif
