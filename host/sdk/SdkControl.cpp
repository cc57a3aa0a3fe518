// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "SdkControl.h"

#include "Library.h"

namespace {

using Lock = std::lock_guard<std::mutex>;

Library &library()
{
    return Library::instance();
}

/// The only writer of the attached modem and whether it is plugged in. The caller holds the lock.
void setModem(const std::shared_ptr<Modem> &modem, bool plugged)
{
    library().modem = modem;
    library().plugged = modem && plugged;
}

/// Returns false if no modem is attached.
bool setPlugged(bool plugged)
{
    Lock lock(library().mutex);
    setModem(library().modem, plugged);
    return library().modem != nullptr;
}

} // namespace

namespace SdkControl {

// ---- Results that are set ----

void setResult(const std::string &function, VELT_ERROR code, Outputs outputs, int call)
{
    Lock lock(library().mutex);
    library().results[function] = {code, outputs, call};
}

void clearResults()
{
    Lock lock(library().mutex);
    library().results.clear();
}

// ---- The attached modem ----

void attach(const std::shared_ptr<Modem> &modem, const Results &results)
{
    Lock lock(library().mutex);
    setModem(modem, true);
    library().results = results;
}

void update(const std::shared_ptr<Modem> &modem)
{
    Lock lock(library().mutex);
    setModem(modem, true);
}

void plug()
{
    if (setPlugged(true)) {
        raiseEvent(VELT_EVENT_DEV_ARRIVAL);
        raiseEvent(VELT_EVENT_DEV_DEVICE_INIT_FINISH);
    }
}

void unplug()
{
    if (setPlugged(false))
        raiseEvent(VELT_EVENT_DEV_REMOVAL);
}

bool isPlugged()
{
    Lock lock(library().mutex);
    return library().plugged;
}

std::string text(TextValue value)
{
    std::shared_ptr<Modem> modem;
    {
        Lock lock(library().mutex);
        modem = library().modem;
    }
    std::string text;
    return modem && modem->read(value, text) == VELT_SUCCESS ? text : std::string();
}

// ---- Events ----

void raiseEvent(int event)
{
    library().events.raise(event);
}

bool waitForEvents(int milliseconds)
{
    return library().events.wait(milliseconds);
}

// ---- Record of calls ----

void startRecording()
{
    Lock lock(library().mutex);
    library().record.clear();
    library().recording = true;
}

std::vector<RecordedCall> recordedCalls()
{
    Lock lock(library().mutex);
    return library().record;
}

void stopRecording()
{
    Lock lock(library().mutex);
    library().recording = false;
    library().record.clear();
}

} // namespace SdkControl
