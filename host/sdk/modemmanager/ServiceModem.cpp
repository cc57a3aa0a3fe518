// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ServiceModem.h"

#include "sdk/VeltDevice.h"

#include <algorithm>

namespace {

const auto freshness = std::chrono::milliseconds(200);

template <typename Key, typename Value>
VELT_ERROR lookUp(const std::map<Key, Value> &values, Key key, Value &value)
{
    const auto found = values.find(key);
    if (found == values.end())
        return VELT_ERROR_NOT_SUPPORTED;
    value = found->second;
    return VELT_SUCCESS;
}

} // namespace

ServiceModem::ServiceModem(const QString &path, const Readings &readings,
                           Clock::time_point answered, std::chrono::milliseconds validity,
                           const std::function<void()> &readAgain)
    : m_path(path), m_readings(readings), m_answered(answered), m_validity(validity),
      m_readAgain(readAgain)
{
}

bool ServiceModem::use() const
{
    if (Clock::now() > m_answered + freshness && !m_replaced.exchange(true))
        m_readAgain();
    return isValid();
}

bool ServiceModem::isReady() const
{
    return m_readings.numbers.at(NumberValue::DeviceStatus) == VELT_DEV_STATUS_READY;
}

VELT_ERROR ServiceModem::find(TextValue value, std::string &text) const
{
    return use() ? lookUp(m_readings.texts, value, text) : VELT_ERROR_TIMEOUT;
}

VELT_ERROR ServiceModem::find(NumberValue value, int64_t &number) const
{
    return use() ? lookUp(m_readings.numbers, value, number) : VELT_ERROR_TIMEOUT;
}

VELT_ERROR ServiceModem::readConnection(TextValue value, const std::string &,
                                        const std::string &profile, std::string &text) const
{
    if (!use())
        return VELT_ERROR_TIMEOUT;
    const auto connection =
        std::find_if(m_readings.connections.begin(), m_readings.connections.end(),
                     [&](const Readings::Connection &candidate) {
                         return profile.empty() || candidate.profile == profile;
                     });
    return connection == m_readings.connections.end() ? VELT_ERROR_FAILURE
                                                      : lookUp(connection->texts, value, text);
}

VELT_ERROR ServiceModem::readOwnNumber(int32_t index, std::string &name, std::string &number) const
{
    int64_t used = 0;
    const VELT_ERROR result = read(NumberValue::OwnNumbersUsed, used);
    if (result != VELT_SUCCESS)
        return result;
    if (index < 1 || index > used)
        return VELT_ERROR_BAD_ARGUMENT;
    name.clear();
    number = m_readings.ownNumbers[static_cast<size_t>(index - 1)];
    return VELT_SUCCESS;
}

VELT_ERROR ServiceModem::setReportMode(int32_t)
{
    return use() ? VELT_SUCCESS : VELT_ERROR_TIMEOUT;
}
