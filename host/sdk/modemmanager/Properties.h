// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef PROPERTIES_H
#define PROPERTIES_H

#include <QVariantMap>

#include <cstdint>

// Reading the service's properties. A property that is missing and one of the wrong type are alike.

QVariant property(const QVariantMap &properties, const char *name);

/// At most 200 characters; empty if it is not a text.
QString toText(const QVariant &value);
QString text(const QVariantMap &properties, const char *name);

/// Empty if it is not a list. (Qt 6 takes a text for a list of characters.)
QVariantList toList(const QVariant &value);

/// Returns false if it is not a whole number.
bool readNumber(const QVariant &value, int64_t &number);
int64_t number(const QVariantMap &properties, const char *name, int64_t missing = 0);

/// Returns false if it is not a number, or larger than any radio's level.
bool readLevel(const QVariant &value, double &level);

/// The cell that the modem uses: hexadecimal numbers, empty if not known.
struct Cell
{
    QString locationArea;
    QString trackingArea;
    QString identity;
};

/// Takes the location from the service, by the number of its source.
Cell toCell(const QVariantMap &location);

/// Bits of Modem.AccessTechnologies.
enum AccessTechnology : unsigned
{
    AccessGsm = 1u << 1 | 1u << 2 | 1u << 3 | 1u << 4,
    AccessUmts = 1u << 5 | 1u << 6 | 1u << 7 | 1u << 8 | 1u << 9,
    AccessLte = 1u << 14 | 1u << 16 | 1u << 17,
    AccessAny = 0xFFFFFFFF // stands for not known
};

#endif
