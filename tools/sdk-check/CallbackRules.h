// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef CALLBACKRULES_H
#define CALLBACKRULES_H

#include "Shapes.h"

/// The rules about the device's events.
namespace CallbackRules {

/// Checks one of the functions that register or unregister callbacks, as far as that can be seen
/// without an event, for row 0 of the report.
void checkFunction(const Sdk &sdk, const char *function);

/// The names of the rules that watch() checks, which are the rows of its report.
const std::vector<const char *> &names();

/// Registers callbacks for both kinds of events and watches, for some seconds, what comes of them.
void watch(const Sdk &sdk, double seconds);

} // namespace CallbackRules

#endif
