// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef LIBRARY_H
#define LIBRARY_H

#include "EventDispatcher.h"
#include "Modem.h"
#include "ModemControl.h"

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

/// What a function does instead of its answer, see ModemControl::setResult().
struct SetResult
{
    VELT_ERROR code;
    ModemControl::Outputs outputs;
};

/// By function name, or "*".
using SetResults = std::map<std::string, SetResult>;

/// The state of libsdk.
struct Library
{
    static Library &instance();

    std::mutex mutex; ///< guards all down to the next empty line
    std::shared_ptr<Modem> modem;
    bool plugged = false;
    SetResults results;
    std::vector<ModemControl::Call> record;

    std::atomic<bool> recording{false};

    /// Goes first, since the callbacks use all the others until its thread has ended.
    EventDispatcher events;
};

#endif
