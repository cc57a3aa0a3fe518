// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef CONFIGSCHEMA_H
#define CONFIGSCHEMA_H

#include <QMap>
#include <QStringList>

namespace ConfigSchema {

/// The rows that have values, for each tab. \a schema is the content of DiagnosisConfig.xsd.
QMap<QString, QStringList> rowsOfTabs(const QByteArray &schema);

} // namespace ConfigSchema

#endif
