// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MODEMCONTROL_H
#define MODEMCONTROL_H

#include "sdk/VeltTypes.h"

#include <string>
#include <vector>

#ifdef SDK_LIBRARY
#define MODEM_CONTROL_API VELT_DECL_EXPORT
#else
#define MODEM_CONTROL_API VELT_DECL_IMPORT
#endif

/// Control of the simulated modem behind libsdk, for the reference host and the tests.
///
/// A simulated modem is an INI file: values by "section/key" (all files of host/modems have the
/// same keys, host/modems/README.md lists them), and under [results] the code that a function
/// returns instead of its answer, by the function's name or "*" for every function.
///
/// Any thread may call these functions, callbacks of the SDK included (but for waitForEvents()).
namespace ModemControl {

// ---- The attached modem ----

/// Makes the modem described by \a iniFile the one attached modem; it is plugged in, without any
/// event. The results that its file sets take the place of all that were set. On a failure nothing
/// changes and *\a error, which must not be null, says why.
MODEM_CONTROL_API bool attach(const std::string &iniFile, std::string *error);

/// Takes the modem and all set results away, without any event: every function but the registration
/// of callbacks then gives VELT_ERROR_NO_DEVICE.
MODEM_CONTROL_API void detach();

/// Plugs the attached modem in again and raises its arrival and the end of its initialisation.
MODEM_CONTROL_API void plug();

/// Unplugs the attached modem and raises its removal. While it is unplugged every function but the
/// registration of callbacks gives VELT_ERROR_NO_DEVICE. Its values are kept.
MODEM_CONTROL_API void unplug();

MODEM_CONTROL_API bool isPlugged();

// ---- Values and results ----

/// The value under "section/key"; empty where there is none.
MODEM_CONTROL_API std::string value(const std::string &key);

/// Changes a value. Texts are bytes as the device would send them (the SMS centre's are UTF-8,
/// which the SDK turns into UTF-16); numbers are decimal.
MODEM_CONTROL_API void setValue(const std::string &key, const std::string &value);

/// What a function with a set result does with its out-parameters.
enum Outputs
{
    KeepOutputs, ///< leaves them as they were, as a well-behaved SDK does
    FillOutputs  ///< fills them all the same
};

/// Lets a function, or every function for "*", return \a code. With the code 0 it answers as usual,
/// but with KeepOutputs it fills and changes nothing: a function that claims success.
///
/// What is set for a function's own name goes before "*". Without a plugged-in modem a function
/// gives VELT_ERROR_NO_DEVICE, whatever is set for it; only the four functions that register and
/// unregister callbacks, which need no modem, give what is set even then.
MODEM_CONTROL_API void setResult(const std::string &function, VELT_ERROR code,
                                 Outputs outputs = KeepOutputs);

/// Ends what setResult() set and the file's [results]: all functions answer again.
MODEM_CONTROL_API void clearResults();

// ---- Events ----

/// Raises a device event, which the SDK delivers on its own thread to the callbacks registered for
/// its kind. Codes that the SDK does not know go to the device manager's callbacks.
MODEM_CONTROL_API void raiseEvent(int event);

/// Waits until all events raised so far are delivered; false if that took longer than
/// \a milliseconds. Must not be called inside a callback.
MODEM_CONTROL_API bool waitForEvents(int milliseconds);

// ---- Record of calls ----

/// One call of an SDK function.
struct Call
{
    std::string function;
    /// The in-arguments, separated by ", ": numbers in decimal, texts in double quotes, a callback
    /// as "callback". Empty where the function has none.
    std::string arguments;
};

/// Starts a new record of the calls of all SDK functions. Nothing is recorded before.
MODEM_CONTROL_API void startRecording();

/// The calls recorded since startRecording(), in their order.
MODEM_CONTROL_API std::vector<Call> recordedCalls();

/// Ends the record and drops it.
MODEM_CONTROL_API void stopRecording();

} // namespace ModemControl

#endif
