// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ModemService.h"

#include "SdkControl.h"
#include "ServiceWatcher.h"
#include "sdk/VeltDevice.h"

#include <QThread>

#include <condition_variable>
#include <mutex>

using ModemService::Status;

namespace {

using Lock = std::unique_lock<std::mutex>;
using Milliseconds = std::chrono::milliseconds;

class Worker : public QThread
{
public:
    Worker(int index, int generation)
        : m_index(index), m_generation(generation), m_timing(serviceTiming())
    {
    }

protected:
    void run() override;

private:
    const int m_index;
    const int m_generation;
    const ServiceTiming m_timing;
};

struct Attachment
{
    std::mutex changing; ///< held while the worker is started or stopped
    std::unique_ptr<Worker> worker;

    std::mutex mutex; ///< guards all below
    std::condition_variable changed;
    int generation = 0; ///< number of the current worker; reports of earlier ones are dropped
    Status status = Status::Detached;
    ServiceWatcher *watcher = nullptr; ///< the worker's
    std::shared_ptr<ServiceModem> modem;
    ServiceModem::Clock::time_point validUntil;
    int confirmation = 0; ///< ms

    std::mutex listening; ///< held while the listener runs or is replaced
    std::function<void()> listener;

    void confirm(Status newStatus)
    {
        status = newStatus;
        validUntil = ServiceModem::Clock::now() + Milliseconds(confirmation);
    }

    void callListener()
    {
        std::lock_guard<std::mutex> lock(listening);
        if (listener)
            listener();
    }

    /// Null if there is none or its reading no longer counts.
    std::shared_ptr<ServiceModem> validModem() const
    {
        return modem && modem->isValid() ? modem : nullptr;
    }
};

Attachment &attachment()
{
    static Attachment attachment;
    return attachment;
}

/// How long detach() waits for the worker. The worker ends at once, unless the bus hangs.
const unsigned long patience = 1000; // ms

/// Takes a report of the worker.
void report(int generation, Status status, const std::shared_ptr<ServiceModem> &modem, bool changed)
{
    Attachment &state = attachment();
    Lock lock(state.mutex);
    if (generation != state.generation)
        return;
    if (status == Status::NotAnswering) {
        lock.unlock();
        state.callListener();
        return;
    }
    const std::shared_ptr<ServiceModem> before = state.modem;
    const bool isNew = changed || status != state.status;
    state.confirm(status);
    state.modem = modem;
    SdkControl::update(modem);
    lock.unlock();
    state.changed.notify_all();

    const bool same = before && modem && before->path() == modem->path();
    if (before && !same)
        SdkControl::raiseEvent(VELT_EVENT_DEV_REMOVAL);
    if (modem && !same)
        SdkControl::raiseEvent(VELT_EVENT_DEV_ARRIVAL);
    if (modem && modem->isReady() && !(same && before->isReady()))
        SdkControl::raiseEvent(VELT_EVENT_DEV_DEVICE_INIT_FINISH);

    if (isNew)
        state.callListener();
}

/// Asks for a newer reading.
void readAgain()
{
    Attachment &state = attachment();
    Lock lock(state.mutex);
    if (state.watcher)
        QMetaObject::invokeMethod(state.watcher, "read", Qt::QueuedConnection);
}

void Worker::run()
{
    Attachment &state = attachment();
    const auto takeReport = [this](Status status, const std::shared_ptr<ServiceModem> &modem,
                                   bool changed) { report(m_generation, status, modem, changed); };
    ServiceWatcher watcher(m_index, m_timing, takeReport, readAgain);
    const auto offer = [&](ServiceWatcher *offered) {
        Lock lock(state.mutex);
        // A worker that hung may get here after detach().
        if (m_generation == state.generation)
            state.watcher = offered;
    };
    offer(&watcher);
    exec();
    offer(nullptr);
}

} // namespace

ServiceTiming &serviceTiming()
{
    static ServiceTiming timing;
    return timing;
}

namespace ModemService {

void attach(int index)
{
    detach();
    Attachment &state = attachment();
    std::lock_guard<std::mutex> changing(state.changing);
    int generation = 0;
    {
        Lock lock(state.mutex);
        generation = ++state.generation;
        state.confirmation = serviceTiming().confirmation;
        state.confirm(Status::Starting);
        state.modem.reset();
        SdkControl::attach(nullptr);
    }
    state.worker = std::make_unique<Worker>(index, generation);
    state.worker->start();
}

bool detach()
{
    Attachment &state = attachment();
    std::lock_guard<std::mutex> changing(state.changing);
    if (!state.worker)
        return true;
    state.worker->quit();
    const bool ended = state.worker->wait(patience);
    Lock lock(state.mutex);
    if (!ended)
        static_cast<void>(state.worker.release()); // it must not be destroyed while it runs
    state.worker.reset();
    ++state.generation;
    state.status = Status::Detached;
    state.watcher = nullptr;
    state.modem.reset();
    SdkControl::attach(nullptr);
    return ended;
}

bool isPresent(int milliseconds)
{
    Attachment &state = attachment();
    Lock lock(state.mutex);
    state.changed.wait_for(lock, Milliseconds(milliseconds),
                           [&] { return state.status != Status::Starting; });
    return state.validModem() != nullptr;
}

Status status()
{
    Attachment &state = attachment();
    Lock lock(state.mutex);
    const bool answers = state.status != Status::NoBus && state.status != Status::NoService &&
                         state.status != Status::Detached;
    return answers && ServiceModem::Clock::now() > state.validUntil ? Status::NotAnswering
                                                                    : state.status;
}

Condition condition()
{
    Attachment &state = attachment();
    Lock lock(state.mutex);
    const auto modem = state.validModem();
    return modem ? modem->readings().condition : Condition{0, 0, 0};
}

std::vector<Detail> details()
{
    Attachment &state = attachment();
    Lock lock(state.mutex);
    const auto modem = state.validModem();
    return modem ? modem->readings().details : std::vector<Detail>();
}

bool waitForSignal(int milliseconds)
{
    Attachment &state = attachment();
    Lock lock(state.mutex);
    return state.changed.wait_for(lock, Milliseconds(milliseconds), [&] {
        return !state.modem || !state.modem->readings().awaitsSignal;
    });
}

void setListener(const std::function<void()> &changed)
{
    Attachment &state = attachment();
    std::lock_guard<std::mutex> listening(state.listening);
    state.listener = changed;
}

} // namespace ModemService
