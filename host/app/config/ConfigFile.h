// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef CONFIGFILE_H
#define CONFIGFILE_H

#include <QString>

namespace ConfigFile {

/// Reads a file of at most \a largest bytes. Opens regular files only, so that it never waits for
/// content. Returns false, with the reason in *\a error, if the file cannot be read.
bool read(const QString &fileName, qint64 largest, QByteArray *content, QString *error);

/// Why the host does not let the plug-in open a configuration: it is missing, it is no regular
/// file, it is larger than 16 MB, or it cannot be read. Empty if the plug-in may open it.
QString problem(const QString &fileName);

/// What a report's head says of a configuration, which has no version of its own: its sum, and
/// where it is broken; or its problem.
QString description(const QString &fileName);

} // namespace ConfigFile

#endif
