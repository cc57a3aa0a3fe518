// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

/// Types shared by all functions of the device SDK (libsdk).
///
/// The SDK is a set of free functions with C linkage that query the attached modem. Rules that hold
/// for all of them:
/// - Each returns a VELT_ERROR: 0 on success, any other value for a failure. A failing function
///   leaves its out-parameters as they were.
/// - None blocks: a modem that does not answer gives a result code.
/// - All memory belongs to the caller. Out-parameters must not be null.
/// - Texts are single-byte (Latin-1) and end at the first zero byte. A text that fills its buffer
///   or field has none, so a caller that needs it must add room for it. Text buffers have the sizes
///   given by the VELT_SIZE_ constants; the functions cannot check them.
/// - Any thread may call any function, a callback included.
///
/// The program diagnosis-sdk-check tries a library against these rules.

#ifndef VELTTYPES_H
#define VELTTYPES_H

#include <cstddef>
#include <cstdint>

#define VELT_DECL_EXPORT __attribute__((visibility("default")))
#define VELT_DECL_IMPORT

/// Marks the functions that libsdk exports.
#ifdef SDK_LIBRARY
#define VELT_API extern "C" VELT_DECL_EXPORT
#else
#define VELT_API extern "C" VELT_DECL_IMPORT
#endif

/// The result of every function.
typedef long VELT_ERROR;

/// Results that libsdk itself gives. A device may give others, so callers should compare with 0
/// only.
enum : VELT_ERROR
{
    VELT_SUCCESS = 0,
    VELT_ERROR_FAILURE = 1,       ///< the device refused
    VELT_ERROR_NO_DEVICE = 2,     ///< no modem is attached
    VELT_ERROR_NOT_SUPPORTED = 3, ///< the modem has no such value
    VELT_ERROR_NO_SIM = 4,        ///< no SIM in the modem
    VELT_ERROR_TIMEOUT = 5,       ///< the modem did not answer
    VELT_ERROR_BAD_ARGUMENT = 6,  ///< an argument is out of range
    VELT_ERROR_NOT_REGISTERED = 7 ///< this callback is not registered
};

/// Sizes, in bytes, of the text buffers that the caller hands in.
enum
{
    VELT_SIZE_CUSTOMIZE_NAME = 64,
    VELT_SIZE_DEVICE_NAME = 24,
    VELT_SIZE_IMEI = 24,
    VELT_SIZE_SERIAL_NUMBER = 24,
    VELT_SIZE_IMSI = 24,
    VELT_SIZE_PRL_VERSION = 64,
    VELT_SIZE_EF_FILE = 256,
    VELT_SIZE_SMS_CENTRE = 100 ///< 50 UTF-16 code units
};

/// Firmware and hardware version, VELT_DevSrv_GetFirmwareVersion().
struct VELT_VERSION_INFO
{
    char firmware[40];
    char hardware[40];
};
static_assert(offsetof(VELT_VERSION_INFO, hardware) == 40, "hardware version at byte 40");
static_assert(sizeof(VELT_VERSION_INFO) == 80, "version record of 80 bytes");

/// Identity of a CDMA device, VELT_DevSrv_GetESN().
struct VELT_ESN_INFO
{
    char esn[32];  ///< electronic serial number, 8 hexadecimal digits; "80..." is a pseudo-ESN
    char meid[32]; ///< mobile equipment identifier, 14 hexadecimal digits
};
static_assert(offsetof(VELT_ESN_INFO, meid) == 32, "MEID at byte 32");
static_assert(sizeof(VELT_ESN_INFO) == 64, "ESN record of 64 bytes");

/// One entry of the own-number phonebook, VELT_DevSrv_ReadUserNumItem().
struct VELT_USER_NUMBER
{
    int32_t index;
    char name[256];
    char number[128]; ///< MSISDN as stored on the SIM
};
static_assert(offsetof(VELT_USER_NUMBER, number) == 260, "own number at byte 260");
static_assert(sizeof(VELT_USER_NUMBER) == 388, "own-number record of 388 bytes");

/// Two readings of the radio, VELT_NetSrv_GetRowRSSI() and VELT_NetSrv_GetSignalQuality().
struct VELT_SIGNAL_PAIR
{
    int16_t first;
    int16_t second;
};
static_assert(offsetof(VELT_SIGNAL_PAIR, second) == 2, "second reading at byte 2");
static_assert(sizeof(VELT_SIGNAL_PAIR) == 4, "signal pair of 4 bytes");

/// Registration with a network, VELT_NetSrv_GetCSRegState() and VELT_NetSrv_GetPSRegState().
struct VELT_REG_STATE
{
    int32_t reportMode; ///< see VELT_REG_REPORT_MODE
    int32_t state;      ///< see VELT_REGISTRATION
    char lac[16];       ///< location area code, as the device writes it
    char cellId[16];    ///< cell ID, as the device writes it
};
static_assert(offsetof(VELT_REG_STATE, state) == 4, "state at byte 4");
static_assert(offsetof(VELT_REG_STATE, lac) == 8, "location area code at byte 8");
static_assert(offsetof(VELT_REG_STATE, cellId) == 24, "cell ID at byte 24");
static_assert(sizeof(VELT_REG_STATE) == 40, "registration record of 40 bytes");

/// The current operator, VELT_NetSrv_GetCurPlmn().
struct VELT_OPERATOR
{
    char longName[64];
    char shortName[16];
    char code[8];             ///< MCC and MNC, 5 or 6 digits
    uint8_t accessTechnology; ///< see VELT_ACCESS_TECHNOLOGY
    uint8_t reserved[7];
};
static_assert(offsetof(VELT_OPERATOR, accessTechnology) == 88, "access technology at byte 88");
static_assert(sizeof(VELT_OPERATOR) == 96, "operator record of 96 bytes");

#endif
