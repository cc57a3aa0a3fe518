// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MODEMSERVICE_H
#define MODEMSERVICE_H

#include "SdkExport.h"

#include <string>

/// The modem of the system's modem service (ModemManager) behind libsdk.
///
/// The service is only read, but for one request: that it read the signal every 5 s, where nobody
/// has asked it to yet. The SDK answers from what the service told last, which counts for 15 s;
/// then its functions give VELT_ERROR_TIMEOUT. Without a modem, a service or a bus they give
/// VELT_ERROR_NO_DEVICE. The modem's arrival, the end of its initialisation and its removal are
/// raised as device events.
///
/// Any thread may call these functions, callbacks of the SDK included (but for attach() and
/// detach()). No call waits for the service, but for isPresent();
/// detach() waits for the worker, 1 s at most.
namespace ModemService {

/// Makes the service's modem the one attached modem, in place of a simulated one: the usable modem
/// with this number, from 0 on. A modem that was away is taken again, whatever its number then is.
/// Ends with detach(), which must come before the application object goes and before another modem
/// is attached.
SDK_EXPORT void attach(int index = 0);

/// Takes the service's modem away, without any event. Does nothing when it isn't attached. False
/// when the worker could not be ended, because the message bus hangs: the toolkit would then hang
/// at the end of the program too, which should leave by std::_Exit().
SDK_EXPORT bool detach();

/// Whether the service has told of the modem in time. Waits for its first answer, no longer than
/// \a milliseconds.
SDK_EXPORT bool isPresent(int milliseconds);

/// What is missing or doesn't answer, a sentence for the user; empty while all is well.
SDK_EXPORT std::string problem();

} // namespace ModemService

#endif
