// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SERVICETIMING_H
#define SERVICETIMING_H

#include "SdkExport.h"

/// How long the service may take; shorter in tests. Read by ModemService::attach().
struct ServiceTiming
{
    int poll = 11000;         ///< between two questions whether anything has changed, ms
    int confirmation = 15000; ///< how long a reading counts, ms
};

SDK_EXPORT ServiceTiming &serviceTiming();

#endif
