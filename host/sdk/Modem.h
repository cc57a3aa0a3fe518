// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef MODEM_H
#define MODEM_H

#include "SdkExport.h"
#include "sdk/VeltTypes.h"

#include <cstdint>
#include <string>
#include <vector>

// The values of a modem: their enumerators, and their keys in the files of host/modems, whose
// README tells what each means.
// clang-format off
#define MODEM_TEXT_VALUES(VALUE)                        \
    VALUE(CustomizeName,     "device/customizeName")    \
    VALUE(DeviceName,        "device/deviceName")       \
    VALUE(FirmwareVersion,   "device/firmwareVersion")  \
    VALUE(HardwareVersion,   "device/hardwareVersion")  \
    VALUE(Imei,              "device/imei")             \
    VALUE(SerialNumber,      "device/serialNumber")     \
    VALUE(Esn,               "device/esn")              \
    VALUE(Meid,              "device/meid")             \
    VALUE(PrlVersion,        "device/prlVersion")       \
    VALUE(Imsi,              "sim/imsi")                \
    VALUE(Iccid,             "sim/iccid")               \
    VALUE(OwnName,           "sim/ownName")             \
    VALUE(OwnNumber,         "sim/ownNumber")           \
    VALUE(SmsCentre,         "sim/smsCentre")           \
    VALUE(OperatorLongName,  "network/plmnLongName")    \
    VALUE(OperatorShortName, "network/plmnShortName")   \
    VALUE(OperatorCode,      "network/plmnCode")        \
    VALUE(CsLac,             "network/csLac")           \
    VALUE(CsCellId,          "network/csCellId")        \
    VALUE(PsLac,             "network/psLac")           \
    VALUE(PsCellId,          "network/psCellId")        \
    VALUE(IpAddress,         "connection/ipAddress")    \
    VALUE(NameServers,       "connection/nameServers")  \
    /* Read by the host alone, in UTF-8. */             \
    VALUE(Description,       "modem/description")       \
    VALUE(ServiceName,       "network/operatorName")    \
    VALUE(NetworkType,       "network/networkType")     \
    VALUE(Profile,           "connection/profile")      \
    VALUE(Apn,               "connection/apn")

#define MODEM_NUMBER_VALUES(VALUE)                              \
    VALUE(DeviceStatus,         "device/deviceStatus")          \
    VALUE(ProductType,          "device/productType")           \
    VALUE(DevicePort,           "device/devicePort")            \
    VALUE(Voltage,              "device/voltage")               \
    VALUE(Carriers,             "device/carriers")              \
    VALUE(DeviceContactsUsed,   "device/contactsUsed")          \
    VALUE(DeviceContactsTotal,  "device/contactsTotal")         \
    VALUE(DeviceMessagesUsed,   "device/messagesUsed")          \
    VALUE(DeviceMessagesTotal,  "device/messagesTotal")         \
    VALUE(DeviceMessagesUnread, "device/messagesUnread")        \
    VALUE(SimStatus,            "sim/simStatus")                \
    VALUE(PinStatus,            "sim/pinStatus")                \
    VALUE(PinAttempts,          "sim/pinAttempts")              \
    VALUE(PukAttempts,          "sim/pukAttempts")              \
    VALUE(PinEnabled,           "sim/pinEnabled")               \
    VALUE(OwnNumbersTotal,      "sim/ownNumbersTotal")          \
    VALUE(OwnNumbersFirst,      "sim/ownNumbersFirst")          \
    VALUE(OwnNumbersUsed,       "sim/ownNumbersUsed")           \
    VALUE(OwnNumberLength,      "sim/ownNumberLength")          \
    VALUE(OwnNameLength,        "sim/ownNameLength")            \
    VALUE(SimContactsUsed,      "sim/contactsUsed")             \
    VALUE(SimContactsTotal,     "sim/contactsTotal")            \
    VALUE(SimMessagesUsed,      "sim/messagesUsed")             \
    VALUE(SimMessagesTotal,     "sim/messagesTotal")            \
    VALUE(SimMessagesUnread,    "sim/messagesUnread")           \
    VALUE(SelectionMode,        "network/selectionMode")        \
    VALUE(AccessTechnology,     "network/accessTechnology")     \
    VALUE(CsReportMode,         "network/csReportMode")         \
    VALUE(CsState,              "network/csState")              \
    VALUE(PsReportMode,         "network/psReportMode")         \
    VALUE(PsState,              "network/psState")              \
    VALUE(PsAttachment,         "network/psAttachment")         \
    VALUE(Rssi,                 "network/rssi")                 \
    VALUE(BitErrorRate,         "network/bitErrorRate")         \
    VALUE(Rscp,                 "network/rscp")                 \
    VALUE(EcIo,                 "network/ecIo")
// clang-format on

#define MODEM_ENUMERATOR(value, name) value,
enum class TextValue
{
    MODEM_TEXT_VALUES(MODEM_ENUMERATOR)
};
enum class NumberValue
{
    MODEM_NUMBER_VALUES(MODEM_ENUMERATOR)
};
#undef MODEM_ENUMERATOR

/// The keys of all values, by enumerator.
SDK_EXPORT const std::vector<const char *> &textKeys();
SDK_EXPORT const std::vector<const char *> &numberKeys();

/// Stands for a number that the modem does not tell, in a function whose other values are of use
/// without it.
const int64_t notTold = -1;

/// A modem behind the SDK's functions. It knows its values and nothing of records, buffers and
/// out-parameters. Any thread may call it, several at once; no call blocks.
class SDK_EXPORT Modem
{
public:
    virtual ~Modem();

    /// Reads a value. Without a card, a value of the card gives VELT_ERROR_NO_SIM. On failure the
    /// out-parameter is undefined.
    VELT_ERROR read(TextValue value, std::string &text) const;
    VELT_ERROR read(NumberValue value, int64_t &number) const;

    /// Reads a value of the connection with this profile, or of the current one if that is empty.
    virtual VELT_ERROR readConnection(TextValue value, const std::string &device,
                                      const std::string &profile, std::string &text) const = 0;

    /// Reads an entry of the own-number phonebook.
    virtual VELT_ERROR readOwnNumber(int32_t index, std::string &name,
                                     std::string &number) const = 0;

    /// Sets the report mode of the circuit-switched registration.
    virtual VELT_ERROR setReportMode(int32_t mode) = 0;

protected:
    virtual bool isCardMissing() const = 0;

    /// Reads a value, whether it needs a card or not. VELT_ERROR_NOT_SUPPORTED for a value that the
    /// modem does not have.
    virtual VELT_ERROR find(TextValue value, std::string &text) const = 0;
    virtual VELT_ERROR find(NumberValue value, int64_t &number) const = 0;
};

#endif
