// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "SimulatedModem.h"

#include <QFile>
#include <QSettings>
#include <QStringList>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <iterator>

namespace {

#define NAME(value, name) name,
const char *const textKeys[] = {MODEM_TEXT_VALUES(NAME)};
const char *const numberKeys[] = {MODEM_NUMBER_VALUES(NAME)};
#undef NAME

/// What only the host reads, through ModemControl::value().
const char *const hostKeys[] = {"modem/description", "network/operatorName", "network/networkType",
                                "connection/profile", "connection/apn"};

const char *const resultNames[] = {
    "*",
    "VELT_DevSrv_RegisterDevMgrCallback",
    "VELT_DevSrv_RegisterDevInitEventCallback",
    "VELT_DevSrv_UnRegisterDevMgrCallback",
    "VELT_DevSrv_UnRegisterDevInitEventCallback",
    "VELT_DevSrv_GetDevStatus",
    "VELT_DevSrv_GetProductType",
    "VELT_DevSrv_GetCustomizeName",
    "VELT_DevSrv_GetDeviceName",
    "VELT_DevSrv_GetDevicePort",
    "VELT_DevSrv_GetFirmwareVersion",
    "VELT_DevSrv_GetImeiInfo",
    "VELT_DevSrv_GetSN",
    "VELT_DevSrv_GetESN",
    "VELT_DevSrv_GetVoltage",
    "VELT_DevSrv_GetNumberOfCarrier",
    "VELT_DevSrv_GetSimStatus",
    "VELT_DevSrv_GetPinStatus",
    "VELT_DevSrv_GetImsiInfo",
    "VELT_DevSrv_GetUserNumMemAbility",
    "VELT_DevSrv_ReadUserNumItem",
    "VELT_NetSrv_GetCurPlmn",
    "VELT_NetSrv_GetCSRegState",
    "VELT_NetSrv_GetPSRegState",
    "VELT_NetSrv_SetCSRegReport",
    "VELT_NetSrv_GetPSState",
    "VELT_NetSrv_GetRowRSSI",
    "VELT_NetSrv_GetSignalQuality",
    "VELT_NetSrv_GetEFFile",
    "VELT_NetSrv_GetPrlVer",
    "VELT_NetSrv_GetIPAddress",
    "VELT_NetSrv_GetDNS",
    "VELT_PBSrv_PBGetMemAbility",
    "VELT_PBSrv_GetSize",
    "VELT_PBSrv_GetCapacity",
    "VELT_SMSSrv_GetSMSCentreNumber",
    "VELT_SMSSrv_SMSRecordSetGetRecordCount",
    "VELT_SMSSrv_GetRecordInfo",
};

template <size_t Size>
bool contains(const char *const (&names)[Size], const std::string &name)
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
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

std::shared_ptr<SimulatedModem> SimulatedModem::load(const std::string &iniFile,
                                                     SetResults *results, std::string *error)
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
            (*results)[function] = {static_cast<VELT_ERROR>(number), ModemControl::KeepOutputs};
            continue;
        }
        if (contains(numberKeys, key)) {
            if (!isNumber && !value.empty())
                return fail(notANumber);
        } else if (!contains(textKeys, key) && !contains(hostKeys, key)) {
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

VELT_ERROR SimulatedModem::read(const char *key, std::string &text) const
{
    static const std::string simGroup = "sim/";
    static const std::string simStatus = "sim/simStatus";
    if (simGroup.compare(0, std::string::npos, key, simGroup.size()) == 0 && simStatus != key &&
        value(simStatus) == "255")
        return VELT_ERROR_NO_SIM;
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_values.find(key);
    if (found == m_values.end())
        return VELT_ERROR_NOT_SUPPORTED;
    text = found->second;
    return VELT_SUCCESS;
}

VELT_ERROR SimulatedModem::read(TextValue value, std::string &text) const
{
    return read(textKeys[static_cast<size_t>(value)], text);
}

VELT_ERROR SimulatedModem::read(NumberValue value, int64_t &number) const
{
    std::string text;
    const VELT_ERROR result = read(numberKeys[static_cast<size_t>(value)], text);
    if (result != VELT_SUCCESS)
        return result;
    if (text.empty())
        return VELT_ERROR_NOT_SUPPORTED;
    return toNumber(text, number) ? VELT_SUCCESS : VELT_ERROR_FAILURE;
}

VELT_ERROR SimulatedModem::readConnection(TextValue value, const std::string &,
                                          const std::string &profile, std::string &text) const
{
    if (!profile.empty() && profile != this->value("connection/profile"))
        return VELT_ERROR_FAILURE;
    return read(value, text);
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
    setValue(numberKeys[static_cast<size_t>(NumberValue::CsReportMode)], std::to_string(mode));
    return VELT_SUCCESS;
}
