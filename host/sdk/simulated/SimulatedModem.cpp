// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "SimulatedModem.h"

#include "Functions.h"
#include "sdk/VeltDevice.h"

#include <QFile>
#include <QSettings>
#include <QStringList>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <vector>

namespace {

#define NAME(function) #function,
const std::vector<const char *> resultNames{"*", SDK_FUNCTIONS(NAME)};
#undef NAME

bool contains(const std::vector<const char *> &names, const std::string &name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool toNumber(const std::string &text, int64_t &number)
{
    char *end = nullptr;
    errno = 0;
    number = std::strtoll(text.c_str(), &end, 10);
    return !text.empty() && *end == '\0' && errno == 0;
}

const std::string resultsGroup = "results/";

} // namespace

std::shared_ptr<SimulatedModem> SimulatedModem::load(const std::string &iniFile, std::string *error)
{
    const auto fail = [&](const std::string &fault) {
        *error = iniFile + ": " + fault;
        return nullptr;
    };

    QFile file(QFile::decodeName(iniFile.c_str()));
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString().toStdString());
    const QSettings settings(file.fileName(), QSettings::IniFormat);
    const QStringList keys = settings.allKeys();
    if (settings.status() != QSettings::NoError)
        return fail("not a well-formed INI file");

    auto modem = std::make_shared<SimulatedModem>();
    for (const QString &settingsKey : keys) {
        const std::string key = settingsKey.toStdString();
        const QStringList parts = settings.value(settingsKey).toStringList();
        if (parts.size() != 1)
            return fail(key + ": a value with commas needs double quotes");
        const std::string value = parts.first().toLatin1().toStdString();

        int64_t number = 0;
        const bool isNumber = toNumber(value, number);
        const std::string notANumber = key + ": \"" + value + "\" is not a number";
        if (key.compare(0, resultsGroup.size(), resultsGroup) == 0) {
            const std::string function = key.substr(resultsGroup.size());
            if (!contains(resultNames, function))
                return fail(key + ": unknown function");
            if (!isNumber)
                return fail(notANumber);
            modem->m_results[function] = {static_cast<VELT_ERROR>(number), SdkControl::KeepOutputs,
                                          0};
            continue;
        }
        if (contains(numberKeys(), key)) {
            if (!isNumber && !value.empty())
                return fail(notANumber);
        } else if (!contains(textKeys(), key)) {
            return fail(key + ": unknown key");
        }
        modem->m_values[key] = value;
    }
    return modem;
}

std::string SimulatedModem::value(const std::string &key) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_values.find(key);
    return found == m_values.end() ? std::string() : found->second;
}

void SimulatedModem::setValue(const std::string &key, const std::string &value)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_values[key] = value;
}

bool SimulatedModem::isCardMissing() const
{
    int64_t status = 0;
    return find(NumberValue::SimStatus, status) == VELT_SUCCESS && status == VELT_SIM_NONE;
}

VELT_ERROR SimulatedModem::find(const char *key, std::string &text) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_values.find(key);
    if (found == m_values.end())
        return VELT_ERROR_NOT_SUPPORTED;
    text = found->second;
    return VELT_SUCCESS;
}

VELT_ERROR SimulatedModem::find(TextValue value, std::string &text) const
{
    return find(textKeys()[static_cast<size_t>(value)], text);
}

VELT_ERROR SimulatedModem::find(NumberValue value, int64_t &number) const
{
    std::string text;
    const VELT_ERROR result = find(numberKeys()[static_cast<size_t>(value)], text);
    if (result != VELT_SUCCESS)
        return result;
    if (text.empty())
        return VELT_ERROR_NOT_SUPPORTED;
    return toNumber(text, number) ? VELT_SUCCESS : VELT_ERROR_FAILURE;
}

VELT_ERROR SimulatedModem::readConnection(TextValue value, const std::string &,
                                          const std::string &profile, std::string &text) const
{
    std::string known;
    find(TextValue::Profile, known);
    // \a profile is Latin-1, like all texts of the SDK.
    if (!profile.empty() && profile != QString::fromStdString(known).toLatin1().toStdString())
        return VELT_ERROR_FAILURE;
    return find(value, text);
}

VELT_ERROR SimulatedModem::readOwnNumber(int32_t index, std::string &name,
                                         std::string &number) const
{
    // Only the first entry of the phonebook is used.
    int64_t first = 0;
    VELT_ERROR result = read(NumberValue::OwnNumbersFirst, first);
    if (result == VELT_SUCCESS && index != first)
        result = VELT_ERROR_BAD_ARGUMENT;
    if (result == VELT_SUCCESS)
        result = read(TextValue::OwnName, name);
    if (result == VELT_SUCCESS)
        result = read(TextValue::OwnNumber, number);
    return result;
}

VELT_ERROR SimulatedModem::setReportMode(int32_t mode)
{
    setValue(numberKeys()[static_cast<size_t>(NumberValue::CsReportMode)], std::to_string(mode));
    return VELT_SUCCESS;
}
