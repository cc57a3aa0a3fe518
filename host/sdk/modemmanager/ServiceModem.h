// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SERVICEMODEM_H
#define SERVICEMODEM_H

#include "Conversion.h"
#include "Modem.h"

#include <QString>

#include <chrono>

/// A modem as the service told of it at one moment. It does not change. When it is out of date,
/// reading any of its values gives VELT_ERROR_TIMEOUT.
class ServiceModem : public Modem
{
public:
    using Clock = std::chrono::steady_clock;

    /// \a path is the service's name for it.
    ServiceModem(const QString &path, const Readings &readings, Clock::time_point validUntil);

    const QString &path() const { return m_path; }
    bool isReady() const;
    ModemService::Condition condition() const { return m_readings.condition; }
    bool isValid() const { return Clock::now() <= m_validUntil; }

    VELT_ERROR readConnection(TextValue value, const std::string &device,
                              const std::string &profile, std::string &text) const override;
    VELT_ERROR readOwnNumber(int32_t index, std::string &name, std::string &number) const override;
    /// The service always gets all reports, so there is nothing to set.
    VELT_ERROR setReportMode(int32_t mode) override;

protected:
    bool isCardMissing() const override { return isValid() && m_readings.simMissing; }
    VELT_ERROR find(TextValue value, std::string &text) const override;
    VELT_ERROR find(NumberValue value, int64_t &number) const override;

private:
    const QString m_path;
    const Readings m_readings;
    const Clock::time_point m_validUntil;
};

#endif
