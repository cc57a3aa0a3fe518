// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "sdk/VeltDevice.h"

#include "Call.h"

namespace {

using Kind = EventDispatcher::Kind;

VELT_ERROR registerCallback(const char *function, Kind kind, VELT_DEVICE_CALLBACK callback)
{
    return Call(function, callback).result([=]() -> VELT_ERROR {
        if (!callback)
            return VELT_ERROR_BAD_ARGUMENT;
        Library::instance().events.add(kind, callback);
        return VELT_SUCCESS;
    });
}

VELT_ERROR unregisterCallback(const char *function, Kind kind, VELT_DEVICE_CALLBACK callback)
{
    return Call(function, callback).result([=]() -> VELT_ERROR {
        if (!callback)
            return VELT_ERROR_BAD_ARGUMENT;
        return Library::instance().events.remove(kind, callback) ? VELT_SUCCESS
                                                                 : VELT_ERROR_NOT_REGISTERED;
    });
}

/// A number from 0 to 9 as a character; '?' if the modem does not tell it.
char digit(Answer &answer, NumberValue value)
{
    const int32_t number = answer.number<int32_t>(value);
    if (number >= 0 && number <= 9)
        return static_cast<char>('0' + number);
    if (number != notTold)
        answer.note(VELT_ERROR_FAILURE);
    return '?';
}

} // namespace

// ---- Events ----

VELT_ERROR VELT_DevSrv_RegisterDevMgrCallback(VELT_DEVICE_CALLBACK callback)
{
    return registerCallback(__func__, Kind::DeviceManager, callback);
}

VELT_ERROR VELT_DevSrv_RegisterDevInitEventCallback(VELT_DEVICE_CALLBACK callback)
{
    return registerCallback(__func__, Kind::Initialisation, callback);
}

VELT_ERROR VELT_DevSrv_UnRegisterDevMgrCallback(VELT_DEVICE_CALLBACK callback)
{
    return unregisterCallback(__func__, Kind::DeviceManager, callback);
}

VELT_ERROR VELT_DevSrv_UnRegisterDevInitEventCallback(VELT_DEVICE_CALLBACK callback)
{
    return unregisterCallback(__func__, Kind::Initialisation, callback);
}

VELT_ERROR VELT_DevSrv_GetDevStatus(int32_t *status)
{
    return answerNumbers(__func__, status, NumberValue::DeviceStatus);
}

// ---- Identity ----

VELT_ERROR VELT_DevSrv_GetProductType(int32_t *type)
{
    return answerNumbers(__func__, type, NumberValue::ProductType);
}

VELT_ERROR VELT_DevSrv_GetCustomizeName(char *name)
{
    return answerText(__func__, TextValue::CustomizeName, name, VELT_SIZE_CUSTOMIZE_NAME);
}

VELT_ERROR VELT_DevSrv_GetDeviceName(char *name)
{
    return answerText(__func__, TextValue::DeviceName, name, VELT_SIZE_DEVICE_NAME);
}

VELT_ERROR VELT_DevSrv_GetDevicePort(int32_t *port)
{
    return answerNumbers(__func__, port, NumberValue::DevicePort);
}

VELT_ERROR VELT_DevSrv_GetFirmwareVersion(VELT_VERSION_INFO *version)
{
    return Call(__func__).answer([=](Answer &answer) {
        VELT_VERSION_INFO read = {};
        copyText(answer.text(TextValue::FirmwareVersion), read.firmware);
        copyText(answer.text(TextValue::HardwareVersion), read.hardware);
        return answer.give(version, read);
    });
}

VELT_ERROR VELT_DevSrv_GetImeiInfo(char *imei)
{
    return answerText(__func__, TextValue::Imei, imei, VELT_SIZE_IMEI);
}

VELT_ERROR VELT_DevSrv_GetSN(char *serialNumber)
{
    return answerText(__func__, TextValue::SerialNumber, serialNumber, VELT_SIZE_SERIAL_NUMBER);
}

VELT_ERROR VELT_DevSrv_GetESN(VELT_ESN_INFO *esn)
{
    return Call(__func__).answer([=](Answer &answer) {
        VELT_ESN_INFO read = {};
        copyText(answer.text(TextValue::Esn), read.esn);
        copyText(answer.text(TextValue::Meid), read.meid);
        return answer.give(esn, read);
    });
}

VELT_ERROR VELT_DevSrv_GetVoltage(uint32_t *voltage)
{
    return answerNumbers(__func__, voltage, NumberValue::Voltage);
}

VELT_ERROR VELT_DevSrv_GetNumberOfCarrier(int32_t *count)
{
    return answerNumbers(__func__, count, NumberValue::Carriers);
}

// ---- SIM ----

VELT_ERROR VELT_DevSrv_GetSimStatus(int32_t *status)
{
    return answerNumbers(__func__, status, NumberValue::SimStatus);
}

VELT_ERROR VELT_DevSrv_GetPinStatus(int32_t pin, int32_t *status, char *pinAttempts,
                                    char *pukAttempts, char *pinEnabled)
{
    return Call(__func__, pin).answer([=](Answer &answer) {
        if (pin != 0)
            return answer.note(VELT_ERROR_BAD_ARGUMENT);
        return answer.give(status, NumberValue::PinStatus,                       //
                           pinAttempts, digit(answer, NumberValue::PinAttempts), //
                           pukAttempts, digit(answer, NumberValue::PukAttempts), //
                           pinEnabled, digit(answer, NumberValue::PinEnabled));
    });
}

VELT_ERROR VELT_DevSrv_GetImsiInfo(char *imsi)
{
    return answerText(__func__, TextValue::Imsi, imsi, VELT_SIZE_IMSI);
}

VELT_ERROR VELT_DevSrv_GetUserNumMemAbility(int32_t *capacity, int32_t *firstIndex, int32_t *used,
                                            int32_t *numberLength, int32_t *nameLength)
{
    return answerNumbers(__func__,                                   //
                         capacity, NumberValue::OwnNumbersTotal,     //
                         firstIndex, NumberValue::OwnNumbersFirst,   //
                         used, NumberValue::OwnNumbersUsed,          //
                         numberLength, NumberValue::OwnNumberLength, //
                         nameLength, NumberValue::OwnNameLength);
}

VELT_ERROR VELT_DevSrv_ReadUserNumItem(int32_t index, VELT_USER_NUMBER *item)
{
    return Call(__func__, index).answer([=](Answer &answer) {
        std::string name;
        std::string number;
        answer.note(answer.modem().readOwnNumber(index, name, number));
        VELT_USER_NUMBER read = {};
        read.index = index;
        copyText(name, read.name);
        copyText(number, read.number);
        return answer.give(item, read);
    });
}
