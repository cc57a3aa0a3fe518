// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MODEMSERVICE_H
#define MODEMSERVICE_H

#include "SdkExport.h"

#include <string>

/// Attaches a modem of ModemManager, the system's modem service, to libsdk.
///
/// libsdk reads from the service. It changes one thing: where nobody has set up the reading of the
/// signal yet, it asks the service to read it every 5 s. The SDK's functions answer from the last
/// reading. If the service has not confirmed that for 15 s, they give VELT_ERROR_TIMEOUT; without a
/// modem, a service or a bus VELT_ERROR_NO_DEVICE. The modem's arrival, the end of its
/// initialisation and its removal are raised as device events.
///
/// Any thread may call these functions; a callback of the SDK may not call attach() and detach().
/// Only isPresent() waits for the service.
namespace ModemService {

/// Attaches the usable modem with this number, 0 for the first, in place of any other modem. If it
/// goes and comes back, it is attached again, even under another number. Call detach() before the
/// application object is deleted and before another modem is attached.
SDK_EXPORT void attach(int index = 0);

/// Ends attach(), without any event; does nothing if no modem of the service is attached. Waits for
/// the worker thread, 1 s at most. Returns false if the thread hangs, because the message bus does:
/// Qt would then hang at the end of the program as well, so leave by std::_Exit().
SDK_EXPORT bool detach();

/// Returns true if the modem is there and its last reading still counts. Waits for the service's
/// first answer, \a milliseconds at most.
SDK_EXPORT bool isPresent(int milliseconds);

/// A sentence for the user that says what is missing or does not answer; empty if nothing is.
SDK_EXPORT std::string problem();

} // namespace ModemService

#endif
