// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Platform.h"

#include <QGuiApplication>

static bool s_named = true;

void Platform::choose(bool offscreen)
{
    s_named = false;
    for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        s_named = s_named || !qEnvironmentVariableIsEmpty(name);
    if (offscreen || !s_named)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The host does not use OpenGL. Loading its drivers would slow down the start.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
}

bool Platform::isMissing()
{
    // Qt's option -platform may have chosen another platform, whose windows can be seen.
    return !s_named && QGuiApplication::platformName() == QLatin1String("offscreen");
}
