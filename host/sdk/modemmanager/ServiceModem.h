// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SERVICEMODEM_H
#define SERVICEMODEM_H

#include "Conversion.h"
#include "Modem.h"

#include <QString>

#include <chrono>

/// A modem as the service told of it at one moment. It doesn't change; when it is out of date all
/// its values are failed.
class ServiceModem : public Modem
{
public:
    using Clock = std::chrono::steady_clock;

    /// \a path is the service's name for it.
    ServiceModem(const QString &path, const Readings &readings, Clock::time_point validUntil);

    const QString &path() const { return m_path; }
    bool isReady() const;
    bool isValid() const { return Clock::now() <= m_validUntil; }
    std::string hostValue(const std::string &key) const;

    VELT_ERROR read(TextValue value, std::string &text) const override;
    VELT_ERROR read(NumberValue value, int64_t &number) const override;
    VELT_ERROR readConnection(TextValue value, const std::string &device,
                              const std::string &profile, std::string &text) const override;
    VELT_ERROR readOwnNumber(int32_t index, std::string &name, std::string &number) const override;
    /// The service always gets all reports, so there is nothing to set.
    VELT_ERROR setReportMode(int32_t mode) override;

private:
    VELT_ERROR check(const char *key) const;

    const QString m_path;
    const Readings m_readings;
    const Clock::time_point m_validUntil;
};

#endif
