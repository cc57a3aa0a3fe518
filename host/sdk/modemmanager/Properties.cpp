// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Properties.h"

#include <QStringList>

#include <cmath>

namespace {

const int longestText = 200;
const char cellLocation[] = "1";

/// Empty for 0, which stands for what the service does not know.
QString known(const QString &hexadecimal)
{
    bool isNumber = false;
    return hexadecimal.toULongLong(&isNumber, 16) != 0 && isNumber ? hexadecimal : QString();
}

/// Empty for a code that 3GPP TS 23.003 reserves for a deleted area.
QString knownArea(const QString &hexadecimal)
{
    const uint number = hexadecimal.toUInt(nullptr, 16);
    return number == 0xFFFE || number == 0xFFFFFE ? QString() : known(hexadecimal);
}

} // namespace

QVariant property(const QVariantMap &properties, const char *name)
{
    return properties.value(QLatin1String(name));
}

QString toText(const QVariant &value)
{
    return value.userType() == QMetaType::QString ? value.toString().left(longestText) : QString();
}

QString text(const QVariantMap &properties, const char *name)
{
    return toText(property(properties, name));
}

QVariantList toList(const QVariant &value)
{
    return value.userType() == QMetaType::QVariantList ? value.toList() : QVariantList();
}

bool readNumber(const QVariant &value, int64_t &number)
{
    const int type = value.userType();
    bool isNumber = false;
    if (type != QMetaType::Double && type != QMetaType::QString)
        number = value.toLongLong(&isNumber);
    return isNumber;
}

int64_t number(const QVariantMap &properties, const char *name, int64_t missing)
{
    int64_t number = 0;
    return readNumber(property(properties, name), number) ? number : missing;
}

bool readLevel(const QVariant &value, double &level)
{
    bool isNumber = false;
    level = value.toDouble(&isNumber);
    return isNumber && std::abs(level) <= 1000;
}

Cell toCell(const QVariantMap &location)
{
    // MCC, MNC, LAC, cell, TAC
    const QStringList parts = text(location, cellLocation).split(QLatin1Char(','));
    if (parts.size() != 5)
        return {};
    return {knownArea(parts[2]), knownArea(parts[4]), known(parts[3])};
}
