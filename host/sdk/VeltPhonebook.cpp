// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "sdk/VeltPhonebook.h"

#include "Call.h"

namespace {

VELT_ERROR answerPhonebook(const char *function, int32_t phonebook, int32_t *out, NumberValue value)
{
    return Call(function, phonebook).answer([=](Answer &answer) {
        if (phonebook != VELT_PHONEBOOK_DEVICE)
            return answer.note(VELT_ERROR_BAD_ARGUMENT);
        return answer.give(out, value);
    });
}

} // namespace

VELT_ERROR VELT_PBSrv_PBGetMemAbility(int32_t *used, int32_t *total)
{
    return answerNumbers(__func__, used, NumberValue::SimContactsUsed, //
                         total, NumberValue::SimContactsTotal);
}

VELT_ERROR VELT_PBSrv_GetSize(int32_t phonebook, int32_t *size)
{
    return answerPhonebook(__func__, phonebook, size, NumberValue::DeviceContactsUsed);
}

VELT_ERROR VELT_PBSrv_GetCapacity(int32_t phonebook, int32_t *capacity)
{
    return answerPhonebook(__func__, phonebook, capacity, NumberValue::DeviceContactsTotal);
}
