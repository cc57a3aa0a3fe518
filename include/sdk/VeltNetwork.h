// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

/// The SDK's network service: operator, registration, signal, addresses. VeltTypes.h has the rules
/// for all functions.

#ifndef VELTNETWORK_H
#define VELTNETWORK_H

#include "VeltTypes.h"

/// How the operator was chosen, as in +COPS (3GPP TS 27.007).
enum VELT_SELECTION_MODE
{
    VELT_SELECTION_AUTOMATIC = 0,
    VELT_SELECTION_MANUAL = 1
};

/// Access technologies, VELT_OPERATOR: some of the AcT values of +COPS (3GPP TS 27.007).
enum VELT_ACCESS_TECHNOLOGY
{
    VELT_ACCESS_GSM = 0,
    VELT_ACCESS_UTRAN = 2,
    VELT_ACCESS_E_UTRAN = 7
};

/// The current operator and how it was chosen. \a mode is one of VELT_SELECTION_MODE, and -1 where
/// the device tells the operator only.
VELT_API VELT_ERROR VELT_NetSrv_GetCurPlmn(int32_t *mode, VELT_OPERATOR *plmn);

/// States of a registration, VELT_REG_STATE: those of +CREG and +CGREG (3GPP TS 27.007).
enum VELT_REGISTRATION
{
    VELT_REG_NOT_REGISTERED = 0,
    VELT_REG_HOME = 1,
    VELT_REG_SEARCHING = 2,
    VELT_REG_DENIED = 3,
    VELT_REG_UNKNOWN = 4,
    VELT_REG_ROAMING = 5
};

/// What the device reports of a registration, VELT_REG_STATE: the n of +CREG (3GPP TS 27.007).
enum VELT_REG_REPORT_MODE
{
    VELT_REG_REPORT_NONE = 0,
    VELT_REG_REPORT_STATE = 1,
    VELT_REG_REPORT_LOCATION = 2 ///< state and location
};

/// The circuit-switched registration. The location fields are filled while the report mode is
/// VELT_REG_REPORT_LOCATION and empty otherwise.
VELT_API VELT_ERROR VELT_NetSrv_GetCSRegState(VELT_REG_STATE *state);

/// The packet-switched registration, under the same rules.
VELT_API VELT_ERROR VELT_NetSrv_GetPSRegState(VELT_REG_STATE *state);

/// Sets the report mode of the circuit-switched registration, see VELT_REG_REPORT_MODE. The device
/// keeps it.
VELT_API VELT_ERROR VELT_NetSrv_SetCSRegReport(int32_t mode);

/// States of the packet attachment.
enum VELT_PS_ATTACHMENT
{
    VELT_PS_DETACHED = 0,
    VELT_PS_ATTACHED = 1,
    VELT_PS_UNKNOWN = 255
};

/// The packet attachment, see VELT_PS_ATTACHMENT.
VELT_API VELT_ERROR VELT_NetSrv_GetPSState(int32_t *state);

/// The readings of +CSQ (3GPP TS 27.007): first the RSSI (0 to 31, on TD-SCDMA devices 0 to 91, 99
/// for not known), second the bit error rate class (0 to 7, 99 for not known).
VELT_API VELT_ERROR VELT_NetSrv_GetRowRSSI(VELT_SIGNAL_PAIR *signal);

/// The readings of a UTRAN cell: first the RSCP in dBm, second the Ec/Io in dB.
VELT_API VELT_ERROR VELT_NetSrv_GetSignalQuality(VELT_SIGNAL_PAIR *signal);

/// Files of the SIM, VELT_NetSrv_GetEFFile().
enum VELT_EF_FILE
{
    VELT_EF_ICCID = 1 ///< EF-ICCID as digits, 3GPP TS 31.102
};

/// A file of the SIM as text. \a content has VELT_SIZE_EF_FILE bytes.
VELT_API VELT_ERROR VELT_NetSrv_GetEFFile(int32_t file, char *content);

/// The version of a CDMA device's preferred roaming list. \a version has VELT_SIZE_PRL_VERSION
/// bytes.
VELT_API VELT_ERROR VELT_NetSrv_GetPrlVer(char *version);

/// The address of a connection, by the device's name and the connection profile's name, which may
/// both be empty: then it is the current connection's. \a address has \a size bytes.
VELT_API VELT_ERROR VELT_NetSrv_GetIPAddress(const char *device, const char *profile, char *address,
                                             int32_t size);

/// The name servers of a connection, under the same rules; several are separated by a comma.
VELT_API VELT_ERROR VELT_NetSrv_GetDNS(const char *device, const char *profile, char *servers,
                                       int32_t size);

#endif
