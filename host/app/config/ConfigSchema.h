// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef CONFIGSCHEMA_H
#define CONFIGSCHEMA_H

#include <QMap>
#include <QStringList>

namespace ConfigSchema {

/// The rows that each tab has values for, as the content of DiagnosisConfig.xsd lists them.
QMap<QString, QStringList> rowsOfTabs(const QByteArray &schema);

} // namespace ConfigSchema

#endif
