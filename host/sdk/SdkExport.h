// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SDKEXPORT_H
#define SDKEXPORT_H

#include "sdk/VeltTypes.h"

/// Marks what libsdk exports for the host and the tests beside the SDK's functions.
#ifdef SDK_LIBRARY
#define SDK_EXPORT VELT_DECL_EXPORT
#else
#define SDK_EXPORT VELT_DECL_IMPORT
#endif

#endif
