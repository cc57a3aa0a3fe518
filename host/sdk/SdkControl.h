// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef SDKCONTROL_H
#define SDKCONTROL_H

#include "Modem.h"
#include "SdkExport.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

/// The control of libsdk, for the reference host and the tests: which modem answers, what functions
/// return instead, events, and a record of the calls.
///
/// Any thread may call these functions, callbacks of the SDK included (but for waitForEvents()).
namespace SdkControl {

// ---- Results that are set ----

/// What a function with a set result does with its out-parameters.
enum Outputs
{
    KeepOutputs, ///< leaves them as they were, as a well-behaved SDK does
    FillOutputs  ///< fills them all the same
};

/// What a function returns instead of its answer. With the code 0 it answers as usual, but with
/// KeepOutputs it fills and changes nothing: a function that claims success.
struct Result
{
    VELT_ERROR code;
    Outputs outputs;
    int call; ///< 0 for each call, n for the n-th from now on alone
};

/// By the function's name, or "*" for every function that is not named.
using Results = std::map<std::string, Result>;

/// Sets the result of a function, or of every function for "*".
///
/// Without a plugged-in modem a function gives VELT_ERROR_NO_DEVICE, whatever is set for it; only
/// the four functions that register and unregister callbacks, which need no modem, give what is set
/// even then.
SDK_EXPORT void setResult(const std::string &function, VELT_ERROR code,
                          Outputs outputs = KeepOutputs, int call = 0);

/// Ends all results that were set: all functions answer again.
SDK_EXPORT void clearResults();

// ---- The attached modem ----

/// Makes \a modem the one attached modem; it is plugged in, without any event. \a results take the
/// place of all that were set. With null no modem is attached: every function but the registration
/// of callbacks then gives VELT_ERROR_NO_DEVICE.
SDK_EXPORT void attach(const std::shared_ptr<Modem> &modem, const Results &results = {});

/// Puts a newer state of the attached modem in its place, plugged in, or null while it is away.
/// There is no event, and the set results stay.
SDK_EXPORT void update(const std::shared_ptr<Modem> &modem);

/// Plugs the attached modem in again and raises its arrival and the end of its initialisation.
SDK_EXPORT void plug();

/// Unplugs the attached modem and raises its removal. While it is unplugged every function but the
/// registration of callbacks gives VELT_ERROR_NO_DEVICE. Its values are kept.
SDK_EXPORT void unplug();

SDK_EXPORT bool isPlugged();

/// A text of the attached modem, plugged in or not; empty where it has none.
SDK_EXPORT std::string text(TextValue value);

// ---- Events ----

/// Raises a device event, which the SDK delivers on its own thread to the callbacks registered for
/// its kind. Codes that the SDK does not know go to the device manager's callbacks.
SDK_EXPORT void raiseEvent(int event);

/// Waits until all events raised so far are delivered; returns false if that took longer than
/// \a milliseconds. Must not be called inside a callback.
SDK_EXPORT bool waitForEvents(int milliseconds);

// ---- Record of calls ----

/// One call of an SDK function that has returned.
struct RecordedCall
{
    std::string function;
    /// The in-arguments, separated by ", ": numbers in decimal, texts in double quotes, a callback
    /// as "callback". Empty where the function has none.
    std::string arguments;
    VELT_ERROR result;
};

/// Starts a new record of the calls of all SDK functions. Nothing is recorded before.
SDK_EXPORT void startRecording();

/// The calls recorded since startRecording(), in the order of their returns.
SDK_EXPORT std::vector<RecordedCall> recordedCalls();

/// Ends the record and drops it.
SDK_EXPORT void stopRecording();

} // namespace SdkControl

#endif
