// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef CONVERSION_H
#define CONVERSION_H

#include "Modem.h"
#include "ModemService.h"

#include <QList>
#include <QMap>
#include <QVariantMap>

#include <map>
#include <string>
#include <vector>

/// What the service tells of one modem: the properties by their names, in plain types (paths are
/// texts, records are lists, dictionaries have texts as keys).
struct ServiceObjects
{
    QMap<QString, QVariantMap> interfaces; ///< the modem's, "Modem" or "Modem.Signal"
    QVariantMap sim;
    QMap<QString, QVariantMap> otherSims; ///< of the modem's other slots, by path
    QList<QVariantMap> bearers;
    QList<QVariantMap> messages;
    QVariantMap location; ///< by the number of its source

    bool operator==(const ServiceObjects &other) const;
};

/// The values of a modem. A value that is missing here, the modem does not have.
struct Readings
{
    std::map<TextValue, std::string> texts;
    std::map<NumberValue, int64_t> numbers;
    bool simMissing = false;
    std::vector<std::string> ownNumbers;
    struct Connection
    {
        std::string profile;
        std::map<TextValue, std::string> texts;
    };
    std::vector<Connection> connections; ///< the current one first
    ModemService::Condition condition = {};
    std::vector<ModemService::Detail> details;
    bool hasSignal = false;    ///< the service has read it
    bool awaitsSignal = false; ///< libsdk asked for it, and the service has not read it yet
};

/// Whether anything can be read from the modem with these properties of the interface "Modem".
bool isUsable(const QVariantMap &modem);

/// All that libsdk says of a modem. Scales and states are those of 3GPP TS 27.007.
SDK_EXPORT Readings convert(const ServiceObjects &objects);

/// What convert() gives as details.
std::vector<ModemService::Detail> convertDetails(const ServiceObjects &objects);

#endif
