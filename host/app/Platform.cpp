// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Platform.h"

#include <QGuiApplication>

static bool s_named = true;

void Platform::choose(bool offscreen)
{
    const bool isX11 = !qEnvironmentVariableIsEmpty("DISPLAY");
    const bool isWayland = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    s_named = isX11 || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    if (offscreen)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    else if (!s_named) // Qt may lack Wayland, or try X11 only
        qputenv("QT_QPA_PLATFORM", isWayland ? "wayland;offscreen" : "offscreen");
    // The host does not use OpenGL. Loading its drivers would slow down the start.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
}

bool Platform::isMissing()
{
    // Qt's option -platform may have chosen another platform, whose windows can be seen.
    return !s_named && QGuiApplication::platformName() == QLatin1String("offscreen");
}
