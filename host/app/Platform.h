// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef PLATFORM_H
#define PLATFORM_H

/// Where Qt shows the windows.
namespace Platform {

/// Sets what Qt reads from the environment when the application object is made: windows are drawn
/// offscreen if \a offscreen is set, if the environment names no display, or if there is no X11 and
/// Qt cannot use the Wayland display that it names.
void choose(bool offscreen);

/// Whether there is no display, so that nobody can see the windows. The application object must
/// exist.
bool isMissing();

} // namespace Platform

#endif
