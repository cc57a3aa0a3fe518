// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SIMULATEDMODEM_H
#define SIMULATEDMODEM_H

#include "Library.h"
#include "Modem.h"

#include <map>
#include <memory>
#include <mutex>
#include <string>

/// A modem that answers from a file, see ModemControl.
///
/// A value that the file lacks, and a number that is empty there, is not supported. Without a card
/// (SIM status 255) the other values of [sim] give VELT_ERROR_NO_SIM.
class SimulatedModem : public Modem
{
public:
    /// Reads a modem file. *\a results takes its [results]. On failure null, and *\a error says
    /// why.
    static std::shared_ptr<SimulatedModem> load(const std::string &iniFile, SetResults *results,
                                                std::string *error);

    std::string value(const std::string &key) const;
    void setValue(const std::string &key, const std::string &value);

    VELT_ERROR read(TextValue value, std::string &text) const override;
    VELT_ERROR read(NumberValue value, int64_t &number) const override;
    VELT_ERROR readConnection(TextValue value, const std::string &device,
                              const std::string &profile, std::string &text) const override;
    VELT_ERROR readOwnNumber(int32_t index, std::string &name, std::string &number) const override;
    VELT_ERROR setReportMode(int32_t mode) override;

private:
    VELT_ERROR read(const char *key, std::string &text) const;

    mutable std::mutex m_mutex;
    std::map<std::string, std::string> m_values;
};

#endif
