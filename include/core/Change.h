// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef CHANGE_H
#define CHANGE_H

#include "CoreExport.h"

#include <QString>

/// The host's translation of resource keys.
class CORE_EXPORT Change
{
public:
    /// The text of a resource key ("IDS_...") in the host's language and, where that language has
    /// none, in English. \a context is the translation context, the plug-in's name. A key that no
    /// language has gives an empty text. Called on the GUI thread.
    static QString tr(const QString &key, const QString &context);
};

#endif
