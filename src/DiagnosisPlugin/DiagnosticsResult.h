// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICSRESULT_H
#define DIAGNOSTICSRESULT_H

/// Results of the operations that build, read and write.
namespace DiagnosticsResult {

enum
{
    Success = 0,
    CannotOpen = 3, ///< a file cannot be opened or read
    Missing = 13    ///< a needed object is not there or cannot be created
};

} // namespace DiagnosticsResult

#endif
