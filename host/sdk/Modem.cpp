// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Modem.h"

#include <cstring>

namespace {

/// All values of the group "sim" but its status, which is known without a card.
bool needsCard(const char *key)
{
    static const char group[] = "sim/";
    return std::strncmp(key, group, sizeof group - 1) == 0 &&
           key != numberKeys()[static_cast<size_t>(NumberValue::SimStatus)];
}

} // namespace

#define MODEM_KEY(value, key) key,

const std::vector<const char *> &textKeys()
{
    static const std::vector<const char *> keys{MODEM_TEXT_VALUES(MODEM_KEY)};
    return keys;
}

const std::vector<const char *> &numberKeys()
{
    static const std::vector<const char *> keys{MODEM_NUMBER_VALUES(MODEM_KEY)};
    return keys;
}

#undef MODEM_KEY

Modem::~Modem() = default;

VELT_ERROR Modem::read(TextValue value, std::string &text) const
{
    return needsCard(textKeys()[static_cast<size_t>(value)]) && isCardMissing() ? VELT_ERROR_NO_SIM
                                                                                : find(value, text);
}

VELT_ERROR Modem::read(NumberValue value, int64_t &number) const
{
    return needsCard(numberKeys()[static_cast<size_t>(value)]) && isCardMissing()
               ? VELT_ERROR_NO_SIM
               : find(value, number);
}
