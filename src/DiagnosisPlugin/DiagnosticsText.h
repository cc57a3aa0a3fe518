// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICSTEXT_H
#define DIAGNOSTICSTEXT_H

#include "core/Change.h"

#include <QString>

/// The texts that the host has for the plug-in's resource keys. GUI thread.
namespace DiagnosticsText {

const char UnknownKey[] = "IDS_MAINFRM_UNKNOWN";

inline QString of(const QString &key)
{
    return Change::tr(key, QLatin1String("DiagnosisPlugin"));
}

/// The text for every value that is empty or cannot be read.
inline QString unknown()
{
    return of(QLatin1String(UnknownKey));
}

} // namespace DiagnosticsText

#endif
