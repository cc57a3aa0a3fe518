// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "config/ConfigSchema.h"

#include <QXmlStreamReader>

QMap<QString, QStringList> ConfigSchema::rowsOfTabs(const QByteArray &schema)
{
    QMap<QString, QString> typeOfTab;
    QMap<QString, QStringList> valuesOfType;
    QString type;
    QString value;
    QXmlStreamReader reader(schema);
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == QLatin1String("simpleType")) {
            type = reader.attributes().value(QLatin1String("name")).toString();
        } else if (reader.name() == QLatin1String("enumeration")) {
            value = reader.attributes().value(QLatin1String("value")).toString();
            valuesOfType[type].append(value);
        } else if (reader.name() == QLatin1String("appinfo")) {
            typeOfTab.insert(value, reader.readElementText());
        }
    }
    QMap<QString, QStringList> rows;
    for (auto tab = typeOfTab.cbegin(); tab != typeOfTab.cend(); ++tab)
        rows.insert(tab.key(), valuesOfType.value(tab.value()));
    return rows;
}
