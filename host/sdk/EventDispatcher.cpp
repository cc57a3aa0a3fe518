// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "EventDispatcher.h"

#include <algorithm>
#include <chrono>

EventDispatcher::~EventDispatcher()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_ending = true;
    }
    m_changed.notify_all();
    if (m_worker.joinable())
        m_worker.join();
}

std::vector<EventDispatcher::Registration>::iterator
EventDispatcher::find(Kind kind, VELT_DEVICE_CALLBACK callback)
{
    return std::find_if(m_registrations.begin(), m_registrations.end(),
                        [=](const Registration &registration) {
                            return registration.kind == kind && registration.callback == callback;
                        });
}

void EventDispatcher::add(Kind kind, VELT_DEVICE_CALLBACK callback)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (find(kind, callback) == m_registrations.end())
        m_registrations.push_back({++m_count, kind, callback});
}

bool EventDispatcher::remove(Kind kind, VELT_DEVICE_CALLBACK callback)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const auto registration = find(kind, callback);
    const bool found = registration != m_registrations.end();
    if (found)
        m_registrations.erase(registration);

    // A callback that unregistered itself may still be running when another thread unregisters it.
    // So wait even if no registration was found.
    const Registration running = m_running;
    if (running.kind == kind && running.callback == callback &&
        std::this_thread::get_id() != m_worker.get_id())
        m_changed.wait(lock, [&] { return m_running.number != running.number; });
    return found;
}

void EventDispatcher::raise(int event)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_lastRaised = ++m_count;
    m_events.push_back({m_lastRaised, event});
    if (!m_worker.joinable())
        m_worker = std::thread(&EventDispatcher::run, this);
    m_changed.notify_all(); // in the lock: the library may end as soon as it is free
}

bool EventDispatcher::wait(int milliseconds)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const uint64_t last = m_lastRaised;
    return m_changed.wait_for(lock, std::chrono::milliseconds(milliseconds),
                              [&] { return m_lastDelivered >= last; });
}

void EventDispatcher::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_ending || !m_events.empty(); });
        if (m_ending)
            return;
        const Event event = m_events.front();
        m_events.pop_front();
        deliver(event, lock);
        m_lastDelivered = event.number;
        m_changed.notify_all();
    }
}

void EventDispatcher::deliver(const Event &event, std::unique_lock<std::mutex> &lock)
{
    const Kind kind = event.code == VELT_EVENT_DEV_DEVICE_INIT_FINISH ? Kind::Initialisation
                                                                      : Kind::DeviceManager;
    // The registrations may change during each call: look for the next one by its number.
    for (uint64_t last = 0;;) {
        const auto next = std::find_if(
            m_registrations.begin(), m_registrations.end(), [&](const Registration &registration) {
                return registration.kind == kind && registration.number > last &&
                       registration.number < event.number;
            });
        if (next == m_registrations.end())
            return;
        m_running = *next;
        last = next->number;
        lock.unlock();
        m_running.callback(event.code, nullptr);
        lock.lock();
        m_running = {};
        m_changed.notify_all();
    }
}
