// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef EVENTDISPATCHER_H
#define EVENTDISPATCHER_H

#include "sdk/VeltDevice.h"

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

/// Delivers the device events to the registered callbacks, in order, on a thread of its own. The
/// first event starts the thread. Any thread may call these functions, the callbacks included.
class EventDispatcher
{
public:
    enum class Kind
    {
        DeviceManager,
        Initialisation
    };

    /// Drops the events not yet delivered; waits for a running callback.
    ~EventDispatcher();

    void add(Kind kind, VELT_DEVICE_CALLBACK callback);

    /// Returns false if the callback is not registered. On return no call of the callback is
    /// running, except a call that called this function.
    bool remove(Kind kind, VELT_DEVICE_CALLBACK callback);

    void raise(int event);

    /// Waits until all events raised so far are delivered. Returns false if that takes longer.
    bool wait(int milliseconds);

private:
    /// Registrations and events are numbered by one count: a registration receives the events with
    /// greater numbers than its own.
    struct Registration
    {
        uint64_t number;
        Kind kind;
        VELT_DEVICE_CALLBACK callback;
    };
    struct Event
    {
        uint64_t number;
        int code;
    };

    std::vector<Registration>::iterator find(Kind kind, VELT_DEVICE_CALLBACK callback);
    void run();
    void deliver(const Event &event, std::unique_lock<std::mutex> &lock);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Registration> m_registrations; ///< by ascending number
    std::deque<Event> m_events;
    uint64_t m_count = 0;
    uint64_t m_lastRaised = 0;
    uint64_t m_lastDelivered = 0;
    Registration m_running = {}; ///< whose callback is running; number 0 for none
    bool m_ending = false;
    std::thread m_worker;
};

#endif
