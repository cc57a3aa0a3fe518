// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ModemControl.h"
#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <functional>
#include <future>
#include <thread>
#include <vector>

namespace {

int failures = 0;

#define CHECK(condition)                                                                           \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            std::printf("FAIL %s:%d: %s\n", __func__, __LINE__, #condition);                       \
            ++failures;                                                                            \
        }                                                                                          \
    } while (false)

using Events = std::vector<int>;
const int longTime = 20000;
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

void raise(const Events &events)
{
    for (const int event : events)
        ModemControl::raiseEvent(event);
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
    raise({6000}); // before any registration
    CHECK(registerManager(callback<0>) == 0);
    CHECK(registerManager(callback<0>) == 0);
    CHECK(registerInit(callback<1>) == 0);
    raise({6014, 6000, 6011, 6601, 6014, 6603, 6602});
    CHECK(ModemControl::waitForEvents(longTime));
    CHECK((manager == Events{6000, 6011, 6601, 6603, 6602}));
    CHECK((init == Events{6014, 6014}));
    CHECK(thread != std::thread::id() && thread != std::this_thread::get_id());

    CHECK(unregisterManager(callback<1>) == VELT_ERROR_NOT_REGISTERED);
    CHECK(unregisterManager(callback<0>) == 0);
    CHECK(unregisterManager(callback<0>) == VELT_ERROR_NOT_REGISTERED);
    raise({6000, 6014});
    CHECK(ModemControl::waitForEvents(longTime));
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
    ModemControl::unplug();
    CHECK(!ModemControl::isPlugged());
    CHECK(ModemControl::waitForEvents(longTime));
    ModemControl::plug();
    CHECK(ModemControl::isPlugged());
    CHECK(ModemControl::waitForEvents(longTime));
    CHECK((seen == Events{6601, VELT_ERROR_NO_DEVICE, 0, 6000, 0, 3, 6014, 0, 3}));
    ModemControl::setResult("VELT_DevSrv_UnRegisterDevMgrCallback", 9);
    CHECK(unregisterManager(callback<0>) == 9);
    ModemControl::clearResults();
    CHECK(unregisterManager(callback<0>) == 0);
    CHECK(unregisterInit(callback<0>) == 0);
}

void registrationMissesEarlierEvents()
{
    std::promise<void> entered, release;
    Events late;
    handlers[0] = [&](int) {
        entered.set_value();
        release.get_future().wait();
    };
    handlers[1] = [&](int event) { late.push_back(event); };
    registerInit(callback<0>);
    raise({6014, 6000});
    entered.get_future().wait();
    registerManager(callback<1>); // 6000 is still in the queue
    raise({6001});
    release.set_value();
    CHECK(ModemControl::waitForEvents(longTime));
    CHECK((late == Events{6001}));
    unregisterInit(callback<0>);
    unregisterManager(callback<1>);
}

void unregisteringInside()
{
    int calls[2] = {};
    handlers[0] = [&](int) {
        ++calls[0];
        CHECK(unregisterManager(callback<1>) == 0); // its turn would come with this same event
        CHECK(unregisterManager(callback<0>) == 0);
    };
    handlers[1] = [&](int) { ++calls[1]; };
    registerManager(callback<0>);
    registerManager(callback<1>);
    raise({6000, 6000});
    CHECK(ModemControl::waitForEvents(longTime));
    CHECK(calls[0] == 1 && calls[1] == 0);

    // Registering again inside the callback: the event being delivered is not delivered twice.
    int count = 0;
    handlers[0] = [&](int) {
        ++count;
        unregisterManager(callback<0>);
        registerManager(callback<0>);
    };
    registerManager(callback<0>);
    raise({6000});
    CHECK(ModemControl::waitForEvents(longTime));
    CHECK(count == 1);
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
    raise({6000});
    entered.get_future().wait();
    CHECK(!ModemControl::waitForEvents(10));
    auto unregistered = std::async(std::launch::async, [&] {
        const VELT_ERROR result = unregisterManager(callback<0>);
        CHECK(finished);
        return result;
    });
    CHECK(unregistered.wait_for(shortTime) == std::future_status::timeout);
    CHECK(unregisterManager(callback<1>) == VELT_ERROR_NOT_REGISTERED); // of another: no wait
    release.set_value();
    CHECK(unregistered.get() == expected);
    CHECK(ModemControl::waitForEvents(longTime));
}

/// Runs \a body(number) on four threads at once.
void onThreads(const std::function<void(int)> &body)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back(body, i);
    for (std::thread &thread : threads)
        thread.join();
}

void manyRaisingThreads()
{
    std::vector<Events> seen(4);
    handlers[0] = [&](int event) {
        seen[static_cast<size_t>(event / 1000 - 7)].push_back(event % 1000);
    };
    registerManager(callback<0>);
    onThreads([](int thread) {
        for (int i = 0; i < 500; ++i)
            ModemControl::raiseEvent(7000 + thread * 1000 + i);
    });
    CHECK(ModemControl::waitForEvents(longTime));
    unregisterManager(callback<0>);
    Events expected;
    for (int i = 0; i < 500; ++i)
        expected.push_back(i);
    for (const Events &events : seen)
        CHECK(events == expected);
}

void noCallAfterUnregistering()
{
    std::atomic<bool> ending{false};
    std::thread raising([&] {
        while (!ending) {
            ModemControl::raiseEvent(6000);
            ModemControl::waitForEvents(longTime);
        }
    });
    for (int i = 0; i < 200; ++i) {
        // Gone after each round: a call that came late would touch it.
        auto calls = std::make_unique<std::atomic<int>>(0);
        handlers[0] = [&](int) { ++*calls; };
        registerManager(callback<0>);
        while (*calls == 0)
            std::this_thread::yield();
        CHECK(unregisterManager(callback<0>) == 0);
        handlers[0] = nullptr;
    }
    ending = true;
    raising.join();
}

void controlWhileCalling()
{
    std::atomic<int> faults{0};
    onThreads([&](int thread) {
        for (int i = 0; i < 200; ++i) {
            char name[VELT_SIZE_DEVICE_NAME + 1] = {};
            int32_t port = 0;
            const VELT_ERROR result = VELT_DevSrv_GetDeviceName(name);
            const std::string text = name;
            if (result == 0 ? text != "MODEL" && text != "OTHER"
                            : result != VELT_ERROR_NO_DEVICE && result != 5)
                ++faults;
            VELT_DevSrv_GetDevicePort(&port);
            if (thread == 0) {
                ModemControl::setValue("device/deviceName", i % 2 ? "MODEL" : "OTHER");
                ModemControl::setResult("VELT_DevSrv_GetDeviceName", i % 3 ? 0 : 5,
                                        ModemControl::FillOutputs);
            } else if (thread == 1) {
                i % 2 ? ModemControl::plug() : ModemControl::unplug();
                i % 5 ? ModemControl::startRecording() : ModemControl::stopRecording();
            }
        }
    });
    CHECK(faults == 0);
    CHECK(ModemControl::waitForEvents(longTime));
}

} // namespace

int main(int argc, char **argv)
{
    std::string error;
    CHECK(argc == 2 && ModemControl::attach(argv[1], &error));
    kindsOrderAndThread();
    plugging();
    registrationMissesEarlierEvents();
    unregisteringInside();
    unregisterWaits([] {}, 0);
    unregisterWaits([] { unregisterManager(callback<0>); }, VELT_ERROR_NOT_REGISTERED);
    manyRaisingThreads();
    noCallAfterUnregistering();
    controlWhileCalling();
    // The library ends with events still in its queue.
    raise({6000, 6000, 6000});
    return failures == 0 ? 0 : 1;
}
