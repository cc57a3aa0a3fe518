// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

/// The SDK's message service. VeltTypes.h has the rules for all functions.

#ifndef VELTSMS_H
#define VELTSMS_H

#include "VeltTypes.h"

/// Where messages are stored.
enum VELT_SMS_STORAGE
{
    VELT_SMS_SIM = 1,
    VELT_SMS_DEVICE = 2
};

/// The number of the message centre, UTF-16, into a buffer of VELT_SIZE_SMS_CENTRE bytes; a number
/// that fills the buffer has no zero at its end. *\a length takes the number of code units.
/// \a request is 0 for a first call, which finds out the length, and that length for the call that
/// fetches the number.
VELT_API VELT_ERROR VELT_SMSSrv_GetSMSCentreNumber(int32_t *length, uint16_t *number,
                                                   int32_t request);

/// How many messages a store holds, see VELT_SMS_STORAGE.
VELT_API VELT_ERROR VELT_SMSSrv_SMSRecordSetGetRecordCount(int32_t *count, int32_t storage);

/// How many messages a store can hold, and how many of its messages are unread.
VELT_API VELT_ERROR VELT_SMSSrv_GetRecordInfo(int32_t *total, int32_t *unread, int32_t storage);

#endif
