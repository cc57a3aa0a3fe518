// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

/// The SDK's device service: events, identity, SIM. VeltTypes.h has the rules for all functions.

#ifndef VELTDEVICE_H
#define VELTDEVICE_H

#include "VeltTypes.h"

// ---- Events ----

/// Codes of the device events. Each is raised with one of the two registrations.
enum VELT_DEVICE_EVENT
{
    VELT_EVENT_DEV_ARRIVAL = 6000,            ///< device manager: a modem was plugged in
    VELT_EVENT_DEV_READY = 6011,              ///< device manager: the modem answers its ports
    VELT_EVENT_DEV_DEVICE_INIT_FINISH = 6014, ///< initialisation: finished, see the device status
    VELT_EVENT_DEV_REMOVAL = 6601,            ///< device manager: the modem was unplugged
    VELT_EVENT_DEV_LOST = 6603                ///< device manager: the modem no longer answers
};

/// Receives the device events, on a thread of the SDK's own, one event at a time. \a data is
/// reserved and null. Returns 1 for an event that it handles, else 0; the SDK ignores the result.
/// A callback may call any function of the SDK, unregistering itself included.
typedef int (*VELT_DEVICE_CALLBACK)(int event, void *data);

/// Registers for the events of the device manager. Registering a callback again succeeds and
/// changes nothing. Events raised before the registration are not delivered.
VELT_API VELT_ERROR VELT_DevSrv_RegisterDevMgrCallback(VELT_DEVICE_CALLBACK callback);

/// Registers for the events of the device's initialisation, under the same rules.
VELT_API VELT_ERROR VELT_DevSrv_RegisterDevInitEventCallback(VELT_DEVICE_CALLBACK callback);

/// Ends a registration. When it returns on another thread than the callback's, no call of the
/// callback by this registration is running or will come, so what it uses may be deleted.
/// VELT_ERROR_NOT_REGISTERED for a callback that is not registered.
VELT_API VELT_ERROR VELT_DevSrv_UnRegisterDevMgrCallback(VELT_DEVICE_CALLBACK callback);

/// Ends a registration for the events of the initialisation, under the same rules.
VELT_API VELT_ERROR VELT_DevSrv_UnRegisterDevInitEventCallback(VELT_DEVICE_CALLBACK callback);

/// How far the device's initialisation is.
enum VELT_DEVICE_STATUS
{
    VELT_DEV_STATUS_NONE = 0,
    VELT_DEV_STATUS_FOUND = 1,
    VELT_DEV_STATUS_INITIALISING = 2,
    VELT_DEV_STATUS_READY = 3
};

/// The device's status, see VELT_DEVICE_STATUS.
VELT_API VELT_ERROR VELT_DevSrv_GetDevStatus(int32_t *status);

// ---- Identity ----

/// Kinds of devices.
enum VELT_PRODUCT_TYPE
{
    VELT_PRODUCT_WCDMA = 0,
    VELT_PRODUCT_CDMA = 1,
    VELT_PRODUCT_TD_SCDMA = 2,
    VELT_PRODUCT_UNKNOWN = 3
};

/// The kind of the device, see VELT_PRODUCT_TYPE.
VELT_API VELT_ERROR VELT_DevSrv_GetProductType(int32_t *type);

/// The name of the device's customization (the operator's edition), empty for the standard one.
/// \a name has VELT_SIZE_CUSTOMIZE_NAME bytes.
VELT_API VELT_ERROR VELT_DevSrv_GetCustomizeName(char *name);

/// The model name. \a name has VELT_SIZE_DEVICE_NAME bytes.
VELT_API VELT_ERROR VELT_DevSrv_GetDeviceName(char *name);

/// The number of the port that application software uses (the N of ttyUSBN, say).
VELT_API VELT_ERROR VELT_DevSrv_GetDevicePort(int32_t *port);

/// Firmware and hardware version; a version that the device does not know is empty.
VELT_API VELT_ERROR VELT_DevSrv_GetFirmwareVersion(VELT_VERSION_INFO *version);

/// The IMEI, 15 digits (3GPP TS 23.003). \a imei has VELT_SIZE_IMEI bytes.
VELT_API VELT_ERROR VELT_DevSrv_GetImeiInfo(char *imei);

/// The maker's serial number. \a serialNumber has VELT_SIZE_SERIAL_NUMBER bytes.
VELT_API VELT_ERROR VELT_DevSrv_GetSN(char *serialNumber);

/// ESN and MEID of a CDMA device; a device without one of them leaves it empty.
VELT_API VELT_ERROR VELT_DevSrv_GetESN(VELT_ESN_INFO *esn);

/// The supply voltage, in millivolts.
VELT_API VELT_ERROR VELT_DevSrv_GetVoltage(uint32_t *voltage);

/// The number of carriers that a CDMA device can use at once.
VELT_API VELT_ERROR VELT_DevSrv_GetNumberOfCarrier(int32_t *count);

// ---- SIM ----

/// States of the SIM.
enum VELT_SIM_STATUS
{
    VELT_SIM_INVALID = 0,
    VELT_SIM_VALID = 1,
    VELT_SIM_ROAMING = 240, ///< a roaming card, as in a CDMA device without its own card
    VELT_SIM_NONE = 255     ///< no card
};

/// The state of the SIM, see VELT_SIM_STATUS.
VELT_API VELT_ERROR VELT_DevSrv_GetSimStatus(int32_t *status);

/// PIN states, VELT_DevSrv_GetPinStatus().
enum VELT_PIN_STATUS
{
    VELT_PIN_NOT_INITIALIZED = 0,
    VELT_PIN_READY = 1,
    VELT_PIN_REQUIRED = 2,
    VELT_PIN_PUK_REQUIRED = 3,
    VELT_PIN_BLOCKED = 4,
    VELT_PIN2_REQUIRED = 5,
    VELT_PIN_PUK2_REQUIRED = 6,
    VELT_PIN_UNKNOWN = 7,
    VELT_PIN_DISABLED = 8
};

/// The state of a PIN, see VELT_PIN_STATUS. \a pin chooses it: 0 is PIN 1. The three bytes tell, as
/// the characters '0' to '9': the attempts left for the PIN, those left for its PUK, and whether
/// the PIN is asked for at start ('1') or not ('0'); '?' stands for what the device does not tell.
VELT_API VELT_ERROR VELT_DevSrv_GetPinStatus(int32_t pin, int32_t *status, char *pinAttempts,
                                             char *pukAttempts, char *pinEnabled);

/// The IMSI, up to 15 digits. \a imsi has VELT_SIZE_IMSI bytes.
VELT_API VELT_ERROR VELT_DevSrv_GetImsiInfo(char *imsi);

/// What the SIM's own-number phonebook can hold: how many entries, the index of its first entry,
/// how many entries are used, and the longest number and name, in characters; -1 stands for what
/// the device does not tell.
VELT_API VELT_ERROR VELT_DevSrv_GetUserNumMemAbility(int32_t *capacity, int32_t *firstIndex,
                                                     int32_t *used, int32_t *numberLength,
                                                     int32_t *nameLength);

/// One entry of the own-number phonebook, by its index.
VELT_API VELT_ERROR VELT_DevSrv_ReadUserNumItem(int32_t index, VELT_USER_NUMBER *item);

#endif
