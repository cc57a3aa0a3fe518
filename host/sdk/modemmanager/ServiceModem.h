// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SERVICEMODEM_H
#define SERVICEMODEM_H

#include "Conversion.h"
#include "Modem.h"

#include <QString>

#include <atomic>
#include <chrono>
#include <functional>

/// A modem as the service told of it at one moment. It does not change. The first use of a value
/// that is older than 200 ms asks for a newer reading. When the reading no longer counts, reading
/// any value gives VELT_ERROR_TIMEOUT.
class ServiceModem : public Modem
{
public:
    using Clock = std::chrono::steady_clock;

    /// \a path is the service's name for it, \a readAgain asks for a newer reading. Any thread may
    /// call that.
    ServiceModem(const QString &path, const Readings &readings, Clock::time_point answered,
                 std::chrono::milliseconds validity, const std::function<void()> &readAgain);

    const QString &path() const { return m_path; }
    bool isReady() const;
    bool isValid() const { return Clock::now() <= m_answered + m_validity; }
    const Readings &readings() const { return m_readings; }

    VELT_ERROR readConnection(TextValue value, const std::string &device,
                              const std::string &profile, std::string &text) const override;
    VELT_ERROR readOwnNumber(int32_t index, std::string &name, std::string &number) const override;
    /// The service always gets all reports, so there is nothing to set.
    VELT_ERROR setReportMode(int32_t mode) override;

protected:
    bool isCardMissing() const override { return use() && m_readings.simMissing; }
    VELT_ERROR find(TextValue value, std::string &text) const override;
    VELT_ERROR find(NumberValue value, int64_t &number) const override;

private:
    /// Returns isValid(). Asks for a newer reading if this one is old.
    bool use() const;

    const QString m_path;
    const Readings m_readings;
    const Clock::time_point m_answered;
    const std::chrono::milliseconds m_validity;
    const std::function<void()> m_readAgain;
    mutable std::atomic<bool> m_replaced{false}; ///< a newer reading was asked for
};

#endif
