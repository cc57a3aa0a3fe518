// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "modem/ModemMonitor.h"

#include "modemmanager/ModemService.h"
#include "sdk/VeltDevice.h"

namespace {

/// Set before the callbacks are registered, and taken away after none runs any more.
ModemMonitor *s_monitor = nullptr;

/// Called on threads of libsdk.
void post()
{
    QMetaObject::invokeMethod(s_monitor, &ModemMonitor::changed, Qt::QueuedConnection);
}

int onEvent(int, void *)
{
    post();
    return 1;
}

} // namespace

ModemMonitor::ModemMonitor()
{
    s_monitor = this;
    VELT_DevSrv_RegisterDevMgrCallback(onEvent);
    VELT_DevSrv_RegisterDevInitEventCallback(onEvent);
    ModemService::setListener(post);
}

ModemMonitor::~ModemMonitor()
{
    ModemService::setListener(nullptr);
    VELT_DevSrv_UnRegisterDevInitEventCallback(onEvent);
    VELT_DevSrv_UnRegisterDevMgrCallback(onEvent);
    s_monitor = nullptr;
}
