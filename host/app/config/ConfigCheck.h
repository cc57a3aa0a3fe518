// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef CONFIGCHECK_H
#define CONFIGCHECK_H

#include <QString>
#include <QStringList>

namespace ConfigCheck {

/// Checks a configuration of the plug-in against its schema and for what a schema cannot say.
/// *\a findings gets "line:column: sentences" for each fault, by position; captions are compared
/// in the host's language. False, with the reason in *\a error, when a file cannot be read.
bool run(const QString &fileName, const QString &schemaFile, QStringList *findings, QString *error);

} // namespace ConfigCheck

#endif
