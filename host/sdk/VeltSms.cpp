// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "sdk/VeltSms.h"

#include "Call.h"

#include <QString>

#include <algorithm>

VELT_ERROR VELT_SMSSrv_GetSMSCentreNumber(int32_t *length, uint16_t *number, int32_t request)
{
    return Call(__func__, request).answer([=](Answer &answer) {
        if (!number)
            return answer.note(VELT_ERROR_BAD_ARGUMENT);
        const int32_t capacity = VELT_SIZE_SMS_CENTRE / sizeof(uint16_t);
        const QString centre =
            QString::fromUtf8(answer.text(TextValue::SmsCentre).c_str()).left(capacity);
        const int32_t size = static_cast<int32_t>(centre.size());
        const VELT_ERROR result = answer.give(length, size);
        if (result == VELT_SUCCESS && request != 0) {
            // With the zero at its end, if there is room for it.
            std::copy_n(centre.utf16(), std::min(size + 1, capacity), number);
        }
        return result;
    });
}

VELT_ERROR VELT_SMSSrv_SMSRecordSetGetRecordCount(int32_t *count, int32_t storage)
{
    return Call(__func__, storage).answer([=](Answer &answer) {
        switch (storage) {
        case VELT_SMS_SIM:
            return answer.give(count, NumberValue::SimMessagesUsed);
        case VELT_SMS_DEVICE:
            return answer.give(count, NumberValue::DeviceMessagesUsed);
        default:
            return answer.note(VELT_ERROR_BAD_ARGUMENT);
        }
    });
}

VELT_ERROR VELT_SMSSrv_GetRecordInfo(int32_t *total, int32_t *unread, int32_t storage)
{
    return Call(__func__, storage).answer([=](Answer &answer) {
        switch (storage) {
        case VELT_SMS_SIM:
            return answer.give(total, NumberValue::SimMessagesTotal, //
                               unread, NumberValue::SimMessagesUnread);
        case VELT_SMS_DEVICE:
            return answer.give(total, NumberValue::DeviceMessagesTotal, //
                               unread, NumberValue::DeviceMessagesUnread);
        default:
            return answer.note(VELT_ERROR_BAD_ARGUMENT);
        }
    });
}
