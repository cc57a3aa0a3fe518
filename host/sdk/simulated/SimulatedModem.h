// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SIMULATEDMODEM_H
#define SIMULATEDMODEM_H

#include "Modem.h"
#include "SdkControl.h"

#include <map>
#include <memory>
#include <mutex>
#include <string>

/// A modem that answers from an INI file: values by "section/key" (host/modems/README.md lists the
/// keys), and under [results] the code that a function returns instead of its answer, by the
/// function's name or "*" for every function.
///
/// A value that the file lacks, and a number that is empty there, is not supported.
class SDK_EXPORT SimulatedModem : public Modem
{
public:
    /// Reads a modem file. On failure null, and *\a error, which must not be null, says why.
    static std::shared_ptr<SimulatedModem> load(const std::string &iniFile, std::string *error);

    /// What the file sets, to be attached with the modem.
    const SdkControl::Results &results() const { return m_results; }

    /// The value under "section/key"; empty where there is none.
    std::string value(const std::string &key) const;

    /// Changes a value. Texts are bytes as the device would send them; numbers are decimal.
    void setValue(const std::string &key, const std::string &value);

    VELT_ERROR readConnection(TextValue value, const std::string &device,
                              const std::string &profile, std::string &text) const override;
    VELT_ERROR readOwnNumber(int32_t index, std::string &name, std::string &number) const override;
    VELT_ERROR setReportMode(int32_t mode) override;

protected:
    bool isCardMissing() const override;
    VELT_ERROR find(TextValue value, std::string &text) const override;
    VELT_ERROR find(NumberValue value, int64_t &number) const override;

private:
    VELT_ERROR find(const char *key, std::string &text) const;

    mutable std::mutex m_mutex;
    std::map<std::string, std::string> m_values;
    SdkControl::Results m_results;
};

#endif
