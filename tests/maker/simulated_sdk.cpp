// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// libsdk as a maker's own library would come: with its modem in it (SDK_MODEM), and events
// (SDK_EVENTS).

#include "SdkControl.h"
#include "sdk/VeltDevice.h"
#include "simulated/SimulatedModem.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {

struct Attached
{
    Attached()
    {
        std::string error;
        const auto modem = SimulatedModem::load(std::string(DIAG_SOURCE_DIR "/host/modems/") +
                                                    std::getenv("SDK_MODEM") + ".ini",
                                                &error);
        if (!modem) {
            std::fprintf(stderr, "%s\n", error.c_str());
            std::abort();
        }
        SdkControl::attach(modem, modem->results());
        if (std::getenv("SDK_EVENTS"))
            std::thread([] {
                for (;;) {
                    for (const int event :
                         {VELT_EVENT_DEV_ARRIVAL, VELT_EVENT_DEV_DEVICE_INIT_FINISH,
                          VELT_EVENT_DEV_REMOVAL})
                        SdkControl::raiseEvent(event);
                    std::this_thread::sleep_for(std::chrono::milliseconds(10));
                }
            }).detach();
    }
} attached;

} // namespace
