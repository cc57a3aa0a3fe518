// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "SdkControl.h"
#include "sdk/VeltDevice.h"
#include "simulated/SimulatedModem.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <future>
#include <thread>
#include <vector>

namespace {

std::atomic<int> failures{0};

#define CHECK(condition)                                                                           \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            std::printf("FAIL %s:%d: %s\n", __func__, __LINE__, #condition);                       \
            ++failures;                                                                            \
        }                                                                                          \
    } while (false)

std::shared_ptr<SimulatedModem> modem;

using Events = std::vector<int>;
const auto shortTime = std::chrono::milliseconds(50);

/// What the callbacks do; set while they are not registered.
std::function<void(int)> handlers[2];

template <int Handler>
int callback(int event, void *data)
{
    handlers[Handler](data ? -1 : event);
    return 0;
}

const auto registerManager = VELT_DevSrv_RegisterDevMgrCallback;
const auto unregisterManager = VELT_DevSrv_UnRegisterDevMgrCallback;
const auto registerInit = VELT_DevSrv_RegisterDevInitEventCallback;
const auto unregisterInit = VELT_DevSrv_UnRegisterDevInitEventCallback;

void deliver(const Events &events)
{
    for (const int event : events)
        SdkControl::raiseEvent(event);
    CHECK(SdkControl::waitForEvents(5000));
}

void kindsOrderAndThread()
{
    Events manager, init;
    std::thread::id thread;
    handlers[0] = [&](int event) {
        manager.push_back(event);
        thread = std::this_thread::get_id();
    };
    handlers[1] = [&](int event) { init.push_back(event); };
    SdkControl::raiseEvent(6000); // before any registration
    CHECK(registerManager(callback<0>) == 0);
    CHECK(registerInit(callback<1>) == 0);
    deliver({6014, 6000, 6011, 6601, 6014, 6603, 6602});
    CHECK((manager == Events{6000, 6011, 6601, 6603, 6602}));
    CHECK((init == Events{6014, 6014}));
    CHECK(thread != std::thread::id() && thread != std::this_thread::get_id());

    CHECK(unregisterManager(callback<0>) == 0);
    deliver({6000, 6014});
    CHECK(manager.size() == 5 && init.size() == 3);
    CHECK(unregisterInit(callback<1>) == 0);
    CHECK(registerManager(nullptr) == VELT_ERROR_BAD_ARGUMENT);
    CHECK(unregisterInit(nullptr) == VELT_ERROR_BAD_ARGUMENT);
}

void plugging()
{
    // Each event with the result of an SDK call inside the callback.
    Events seen;
    handlers[0] = [&](int event) {
        int32_t status = 0;
        const VELT_ERROR result = VELT_DevSrv_GetDevStatus(&status);
        seen.insert(seen.end(), {event, static_cast<int>(result), status});
    };
    registerManager(callback<0>);
    registerInit(callback<0>);
    SdkControl::attach(nullptr);
    SdkControl::plug();
    CHECK(!SdkControl::isPlugged());
    SdkControl::unplug();
    deliver({});
    CHECK(seen.empty());
    SdkControl::attach(modem);
    SdkControl::unplug();
    deliver({});
    SdkControl::plug();
    deliver({});
    CHECK((seen == Events{6601, VELT_ERROR_NO_DEVICE, 0, 6000, 0, 3, 6014, 0, 3}));
    SdkControl::setResult("VELT_DevSrv_UnRegisterDevMgrCallback", 9);
    CHECK(unregisterManager(callback<0>) == 9);
    SdkControl::clearResults();
    CHECK(unregisterManager(callback<0>) == 0);
    CHECK(unregisterInit(callback<0>) == 0);
}

void changesInside()
{
    // A callback misses what was raised before its registration.
    Events late;
    handlers[0] = [&](int) {
        SdkControl::raiseEvent(6000);
        registerManager(callback<1>);
        SdkControl::raiseEvent(6001);
    };
    handlers[1] = [&](int event) { late.push_back(event); };
    registerInit(callback<0>);
    deliver({6014});
    deliver({});
    CHECK((late == Events{6001}));
    unregisterInit(callback<0>);
    unregisterManager(callback<1>);

    // Unregistered before its turn, or registered anew, it misses the event under way.
    int count = 0;
    handlers[0] = [&](int) {
        ++count;
        CHECK(unregisterManager(callback<1>) == 0);
        CHECK(unregisterManager(callback<0>) == 0);
        registerManager(callback<0>);
    };
    registerManager(callback<0>);
    registerManager(callback<1>);
    deliver({6000});
    CHECK(count == 1 && late.size() == 1);
    unregisterManager(callback<0>);
}

/// \a inside runs in the callback before another thread asks to unregister it.
void unregisterWaits(const std::function<void()> &inside, VELT_ERROR expected)
{
    std::promise<void> entered, release;
    std::atomic<bool> finished{false};
    handlers[0] = [&](int) {
        inside();
        entered.set_value();
        release.get_future().wait();
        std::this_thread::sleep_for(shortTime);
        finished = true;
    };
    registerManager(callback<0>);
    SdkControl::raiseEvent(6000);
    entered.get_future().wait();
    CHECK(!SdkControl::waitForEvents(10));
    auto unregistered = std::async(std::launch::async, [&] {
        const VELT_ERROR result = unregisterManager(callback<0>);
        CHECK(finished);
        return result;
    });
    CHECK(unregistered.wait_for(shortTime) == std::future_status::timeout);
    CHECK(unregisterManager(callback<1>) == VELT_ERROR_NOT_REGISTERED); // of another: no wait
    release.set_value();
    CHECK(unregistered.get() == expected);
    deliver({});
}

void manyThreads()
{
    int seen[4] = {};
    handlers[0] = [&](int event) {
        const int thread = event / 1000 - 7;
        CHECK(seen[thread] == event % 1000);
        ++seen[thread];
    };
    registerManager(callback<0>);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread)
        threads.emplace_back([thread] {
            for (int round = 0; round < 500; ++round) {
                SdkControl::raiseEvent(7000 + thread * 1000 + round);
                // Among all else that threads may do at once.
                modem->setValue("device/deviceName", round % 2 ? "MODEL" : "OTHER");
                SdkControl::setResult("VELT_DevSrv_GetDevicePort", round);
                char name[VELT_SIZE_DEVICE_NAME + 1] = {};
                CHECK(VELT_DevSrv_GetDeviceName(name) == 0);
                CHECK(name == std::string("MODEL") || name == std::string("OTHER"));
                SdkControl::startRecording();
            }
        });
    for (std::thread &thread : threads)
        thread.join();
    deliver({});
    unregisterManager(callback<0>);
    for (const int count : seen)
        CHECK(count == 500);
}

} // namespace

int main()
{
    std::string error;
    modem = SimulatedModem::load(MODEM_FILE, &error);
    CHECK(modem);
    SdkControl::attach(modem);
    kindsOrderAndThread();
    plugging();
    changesInside();
    unregisterWaits([] {}, 0);
    unregisterWaits([] { unregisterManager(callback<0>); }, VELT_ERROR_NOT_REGISTERED);
    manyThreads();
    // The library ends with an event still in its queue, which it drops.
    handlers[0] = [](int event) {
        if (event == 6001)
            std::_Exit(2);
        std::this_thread::sleep_for(10 * shortTime);
    };
    registerManager(callback<0>);
    SdkControl::raiseEvent(6000);
    SdkControl::raiseEvent(6001);
    return failures == 0 ? 0 : 1;
}
