// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef CONFIGCHECK_H
#define CONFIGCHECK_H

#include <QString>
#include <QStringList>

namespace ConfigCheck {

/// Checks a configuration of the plug-in against its schema and against rules that a schema cannot
/// express. Adds "line:column: sentences" to *\a findings for each fault, sorted by position.
/// Captions are compared in the host's language. Returns false, with the reason in *\a error, if a
/// file cannot be read.
bool run(const QString &fileName, const QString &schemaFile, QStringList *findings, QString *error);

} // namespace ConfigCheck

#endif
