// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MASKING_H
#define MASKING_H

#include "report/DiagnosticsReader.h"

/// The row's value, with '*' in place of each character that must not be public. The row's name
/// decides. The unknown text is not masked.
QString maskedValue(const ShownRow &row);

#endif
