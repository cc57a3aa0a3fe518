// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MASKING_H
#define MASKING_H

#include "report/DiagnosticsReader.h"

/// A row's value with '*' for each character that must not be public, chosen by the row's
/// configured name. The unknown text and the values of other rows stay.
QString maskedValue(const ShownRow &row);

#endif
