// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef COREEXPORT_H
#define COREEXPORT_H

#include <QtGlobal>

/// Marks what libcore exports; a user of libcore imports it.
#ifdef CORE_LIBRARY
#define CORE_EXPORT Q_DECL_EXPORT
#else
#define CORE_EXPORT Q_DECL_IMPORT
#endif

#endif
