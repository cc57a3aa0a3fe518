// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef LIBRARY_H
#define LIBRARY_H

#include "EventDispatcher.h"
#include "SdkControl.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

/// The state of libsdk. SdkControl writes it.
struct Library
{
    static Library &instance();

    std::mutex mutex; ///< guards all down to the next empty line
    std::shared_ptr<Modem> modem;
    bool plugged = false;
    SdkControl::Results results;
    std::vector<SdkControl::RecordedCall> record;

    std::atomic<bool> recording{false};

    /// Goes first, since the callbacks use all the others until its thread has ended.
    EventDispatcher events;
};

#endif
