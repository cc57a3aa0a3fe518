// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MASKING_H
#define MASKING_H

#include "modemmanager/ModemService.h"
#include "report/DiagnosticsReader.h"

/// The row's value, with '*' in place of each character that must not be public. The row's name
/// decides. The unknown text is not masked.
QString maskedValue(const ShownRow &row);

/// The same for a value of the modem's service, chosen by its kind.
QString maskedValue(const ModemService::Detail &detail);

#endif
