// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MODEMSERVICE_H
#define MODEMSERVICE_H

#include "SdkExport.h"

#include <functional>
#include <string>
#include <vector>

/// Attaches a modem of ModemManager, the system's modem service, to libsdk.
///
/// libsdk reads from the service. It changes one thing: where nobody has set up the reading of the
/// signal yet, it asks the service to read it every 5 s until detach(). The SDK's functions answer
/// from the last reading; if that is older than 200 ms, they start another. If the service has not
/// confirmed it for 15 s, they give VELT_ERROR_TIMEOUT; without a modem, a service or a bus
/// VELT_ERROR_NO_DEVICE. The modem's arrival, the end of its initialisation and its removal are
/// raised as device events.
///
/// Any thread may call these functions; a callback of the SDK may not call attach() and detach().
/// Only isPresent() and waitForSignal() wait for the service.
namespace ModemService {

/// Attaches the modem with this number, 0 for the first, in place of any other modem. Modems that
/// failed for another reason than their SIM come after all others. If it goes and comes back, it is
/// attached again, even under another number. Call detach() before the application object is
/// deleted and before another modem is attached.
SDK_EXPORT void attach(int index = 0);

/// Ends attach(), without any event; does nothing if no modem of the service is attached. Waits for
/// the worker thread, 1 s at most. Returns false if the thread hangs, because the message bus does:
/// Qt would then hang at the end of the program as well, so leave by std::_Exit().
SDK_EXPORT bool detach();

/// Returns true if the modem is there and its last reading still counts. Waits for the service's
/// first answer, \a milliseconds at most.
SDK_EXPORT bool isPresent(int milliseconds);

enum class Status
{
    Detached,
    Starting, ///< no answer yet
    NoBus,
    NoService,
    NotAnswering, ///< for 15 s
    NoModem,      ///< with the wanted number
    Present       ///< a modem that failed is present, too
};

SDK_EXPORT Status status();

/// Of the service's MMModemState.
enum State
{
    Failed = -1,
    Initialising = 1,
    Locked = 2,
    Disabled = 3,
    Disabling = 4,
    Enabling = 5,
    Enabled = 6,
    Searching = 7,
    Registered = 8,
    Connected = 11
};

/// Of its MMModemStateFailedReason.
enum FailedReason
{
    SimMissing = 2,
    SimError = 3,
    UnknownCapabilities = 4,
    SimWithoutProfiles = 5
};

/// Of its MMModemPowerState.
enum PowerState
{
    PowerOff = 1,
    PowerLow = 2
};

/// The state of the modem, in the service's numbers: also those that have no name above.
struct Condition
{
    int state;
    int failedReason;
    int powerState;
};

/// As the last reading has it. All 0 if there is no modem or its last reading no longer counts.
SDK_EXPORT Condition condition();

/// What a value tells of, so that a report can hide it.
enum class DetailKind
{
    Plain,
    Device,
    User,
    Place,
    Address
};

/// A value of the modem that the SDK's functions do not give. The group ("LTE", "Bearer 1") and the
/// name ("RSRP") are fixed English identifiers; the value is UTF-8, with its unit ("-104 dBm").
struct Detail
{
    std::string group;
    std::string name;
    std::string value;
    DetailKind kind;
};

/// All that the last reading has, in the order to be shown in. Empty if there is no modem or its
/// last reading no longer counts.
SDK_EXPORT std::vector<Detail> details();

/// Waits for the first reading with a signal if the modem is present and libsdk asked the service
/// to read its signal. Returns false if there is none after \a milliseconds.
SDK_EXPORT bool waitForSignal(int milliseconds);

/// Calls \a changed on a thread of libsdk after each change of the status, the modem or its values.
/// It may call the functions above but attach(), detach() and those that wait. Replaces the
/// listener before, which does not run any more on return; an empty one ends the calls.
SDK_EXPORT void setListener(const std::function<void()> &changed);

} // namespace ModemService

#endif
