// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ModemControl.h"

#include "Library.h"
#include "SimulatedModem.h"

#include <utility>

namespace {

using Lock = std::lock_guard<std::mutex>;

Library &library()
{
    return Library::instance();
}

void attachModem(std::shared_ptr<Modem> modem, SetResults results)
{
    Lock lock(library().mutex);
    library().plugged = modem != nullptr;
    library().modem = std::move(modem);
    library().results = std::move(results);
}

/// Null when none is attached.
std::shared_ptr<SimulatedModem> attachedModem()
{
    Lock lock(library().mutex);
    return std::dynamic_pointer_cast<SimulatedModem>(library().modem);
}

/// False when no modem is attached.
bool setPlugged(bool plugged)
{
    Lock lock(library().mutex);
    library().plugged = plugged && library().modem;
    return library().modem != nullptr;
}

} // namespace

namespace ModemControl {

// ---- The attached modem ----

bool attach(const std::string &iniFile, std::string *error)
{
    SetResults results;
    std::shared_ptr<Modem> modem = SimulatedModem::load(iniFile, &results, error);
    if (!modem)
        return false;
    attachModem(std::move(modem), std::move(results));
    return true;
}

void detach()
{
    attachModem(nullptr, {});
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

// ---- Values and results ----

std::string value(const std::string &key)
{
    const auto modem = attachedModem();
    return modem ? modem->value(key) : std::string();
}

void setValue(const std::string &key, const std::string &value)
{
    if (const auto modem = attachedModem())
        modem->setValue(key, value);
}

void setResult(const std::string &function, VELT_ERROR code, Outputs outputs)
{
    Lock lock(library().mutex);
    library().results[function] = {code, outputs};
}

void clearResults()
{
    Lock lock(library().mutex);
    library().results.clear();
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

std::vector<Call> recordedCalls()
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

} // namespace ModemControl
