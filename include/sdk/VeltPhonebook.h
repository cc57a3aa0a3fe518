// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

/// The SDK's phonebook service. VeltTypes.h has the rules for all functions.

#ifndef VELTPHONEBOOK_H
#define VELTPHONEBOOK_H

#include "VeltTypes.h"

/// Phonebooks other than the SIM's.
enum VELT_PHONEBOOK
{
    VELT_PHONEBOOK_DEVICE = 1 ///< the device's own
};

/// The SIM's phonebook: how many entries are used and how many it can hold.
VELT_API VELT_ERROR VELT_PBSrv_PBGetMemAbility(int32_t *used, int32_t *total);

/// How many entries of a phonebook are used, see VELT_PHONEBOOK.
VELT_API VELT_ERROR VELT_PBSrv_GetSize(int32_t phonebook, int32_t *size);

/// How many entries a phonebook can hold, see VELT_PHONEBOOK.
VELT_API VELT_ERROR VELT_PBSrv_GetCapacity(int32_t phonebook, int32_t *capacity);

#endif
