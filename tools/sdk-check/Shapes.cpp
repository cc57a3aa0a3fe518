// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Shapes.h"

#include <dlfcn.h>

#include <algorithm>
#include <type_traits>
#include <utility>

namespace {

template <typename T>
Field field(const char *name, size_t offset)
{
    const bool isText = std::is_array<T>::value;
    return {name, offset, sizeof(T), isText ? sizeof(std::remove_extent_t<T>) : 0};
}
#define FIELD(record, member) field<decltype(record::member)>(#member, offsetof(record, member))

using Values = std::vector<int32_t>;

Argument given(const Values &values)
{
    return {Argument::Number, "", values, 0, {}};
}

Argument givenBack()
{
    return {Argument::Result, "", {}, 0, {}};
}

Argument emptyText(const char *name)
{
    return {Argument::EmptyText, name, {}, 0, {}};
}

template <typename T>
Argument number(const char *name)
{
    return {Argument::Out, name, {}, sizeof(T), {{name, 0, sizeof(T), 0}}};
}

Argument integer(const char *name)
{
    return number<int32_t>(name);
}

template <typename Character = char>
Argument text(const char *name, const Values &sizes)
{
    return {Argument::Out, name, sizes, 0, {{name, 0, 0, sizeof(Character)}}};
}

template <typename Record>
Argument record(const char *name, const std::vector<Field> &fields)
{
    return {Argument::Out, name, {}, sizeof(Record), fields};
}

Argument registration()
{
    return record<VELT_REG_STATE>("state",
                                  {FIELD(VELT_REG_STATE, reportMode), FIELD(VELT_REG_STATE, state),
                                   FIELD(VELT_REG_STATE, lac), FIELD(VELT_REG_STATE, cellId)});
}

Argument readings()
{
    return record<VELT_SIGNAL_PAIR>(
        "signal", {FIELD(VELT_SIGNAL_PAIR, first), FIELD(VELT_SIGNAL_PAIR, second)});
}

template <typename... Parameters, size_t... Indices>
VELT_ERROR call(VELT_ERROR (*function)(Parameters...), const std::vector<Value> &values,
                std::index_sequence<Indices...>)
{
    return function(values[Indices]...);
}

template <typename... Parameters, typename... Arguments>
Shape shape(const char *name, VELT_ERROR (*Sdk::*function)(Parameters...),
            const Arguments &...arguments)
{
    static_assert(sizeof...(Parameters) == sizeof...(Arguments), "each parameter has an argument");
    return {name, {arguments...}, [function](const Sdk &sdk, const std::vector<Value> &values) {
                return call(sdk.*function, values, std::index_sequence_for<Parameters...>());
            }};
}
#define SHAPE(function, ...) shape(#function, &Sdk::function, __VA_ARGS__)

} // namespace

bool Sdk::load(const char *file)
{
    // As in a host: all symbols at once, for all that is loaded later.
    m_handle = dlopen(file, RTLD_NOW | RTLD_GLOBAL);
    if (!m_handle)
        return false;
#define LOOK_UP(name) name = reinterpret_cast<decltype(name)>(dlsym(m_handle, #name));
    SDK_FUNCTIONS(LOOK_UP)
#undef LOOK_UP
    return true;
}

bool Sdk::has(const char *function) const
{
    return dlsym(m_handle, function) != nullptr;
}

int32_t Argument::valueAt(size_t call) const
{
    return values[std::min(call, values.size() - 1)];
}

size_t Argument::sizeAt(size_t call) const
{
    return values.empty() ? size : static_cast<size_t>(valueAt(call));
}

std::vector<Field> Argument::fieldsAt(size_t call) const
{
    std::vector<Field> result = fields;
    if (!values.empty())
        result[0].size = sizeAt(call);
    return result;
}

size_t Shape::calls() const
{
    size_t calls = 1;
    for (const Argument &argument : arguments)
        calls = std::max(calls, argument.values.size());
    return calls;
}

const std::vector<Shape> &shapes()
{
    const int32_t unknown = 99; // a number that stands for nothing: such a call should fail
    const auto storage = given({VELT_SMS_SIM, VELT_SMS_DEVICE, unknown});
    const auto phonebook = given({VELT_PHONEBOOK_DEVICE, unknown});
    // The plug-in tells 64 bytes.
    const Values addressSizes = {64, 8, 1};
    // clang-format off
    static const std::vector<Shape> all = {
        SHAPE(VELT_DevSrv_GetDevStatus, integer("status")),
        SHAPE(VELT_DevSrv_GetProductType, integer("type")),
        SHAPE(VELT_DevSrv_GetCustomizeName, text("name", {VELT_SIZE_CUSTOMIZE_NAME})),
        SHAPE(VELT_DevSrv_GetDeviceName, text("name", {VELT_SIZE_DEVICE_NAME})),
        SHAPE(VELT_DevSrv_GetDevicePort, integer("port")),
        SHAPE(VELT_DevSrv_GetFirmwareVersion, record<VELT_VERSION_INFO>("version", {
            FIELD(VELT_VERSION_INFO, firmware), FIELD(VELT_VERSION_INFO, hardware)})),
        SHAPE(VELT_DevSrv_GetImeiInfo, text("imei", {VELT_SIZE_IMEI})),
        SHAPE(VELT_DevSrv_GetSN, text("serialNumber", {VELT_SIZE_SERIAL_NUMBER})),
        SHAPE(VELT_DevSrv_GetESN, record<VELT_ESN_INFO>("esn", {
            FIELD(VELT_ESN_INFO, esn), FIELD(VELT_ESN_INFO, meid)})),
        SHAPE(VELT_DevSrv_GetVoltage, number<uint32_t>("voltage")),
        SHAPE(VELT_DevSrv_GetNumberOfCarrier, integer("count")),
        SHAPE(VELT_DevSrv_GetSimStatus, integer("status")),
        SHAPE(VELT_DevSrv_GetPinStatus, given({0, unknown}), integer("status"),
              number<char>("pinAttempts"), number<char>("pukAttempts"), number<char>("pinEnabled")),
        SHAPE(VELT_DevSrv_GetImsiInfo, text("imsi", {VELT_SIZE_IMSI})),
        SHAPE(VELT_DevSrv_GetUserNumMemAbility, integer("capacity"), integer("firstIndex"),
              integer("used"), integer("numberLength"), integer("nameLength")),
        SHAPE(VELT_DevSrv_ReadUserNumItem, given({1, 0, -1}), record<VELT_USER_NUMBER>("item", {
            FIELD(VELT_USER_NUMBER, index), FIELD(VELT_USER_NUMBER, name),
            FIELD(VELT_USER_NUMBER, number)})),
        SHAPE(VELT_NetSrv_GetCurPlmn, integer("mode"), record<VELT_OPERATOR>("plmn", {
            FIELD(VELT_OPERATOR, longName), FIELD(VELT_OPERATOR, shortName),
            FIELD(VELT_OPERATOR, code), FIELD(VELT_OPERATOR, accessTechnology)})),
        SHAPE(VELT_NetSrv_GetCSRegState, registration()),
        SHAPE(VELT_NetSrv_GetPSRegState, registration()),
        SHAPE(VELT_NetSrv_SetCSRegReport, given({2})),
        SHAPE(VELT_NetSrv_GetPSState, integer("state")),
        SHAPE(VELT_NetSrv_GetRowRSSI, readings()),
        SHAPE(VELT_NetSrv_GetSignalQuality, readings()),
        SHAPE(VELT_NetSrv_GetEFFile, given({VELT_EF_ICCID, unknown}), text("content", {VELT_SIZE_EF_FILE})),
        SHAPE(VELT_NetSrv_GetPrlVer, text("version", {VELT_SIZE_PRL_VERSION})),
        SHAPE(VELT_NetSrv_GetIPAddress, emptyText("device"), emptyText("profile"),
              text("address", addressSizes), given(addressSizes)),
        SHAPE(VELT_NetSrv_GetDNS, emptyText("device"), emptyText("profile"),
              text("servers", addressSizes), given(addressSizes)),
        SHAPE(VELT_PBSrv_PBGetMemAbility, integer("used"), integer("total")),
        SHAPE(VELT_PBSrv_GetSize, phonebook, integer("size")),
        SHAPE(VELT_PBSrv_GetCapacity, phonebook, integer("capacity")),
        // The first call asks with 0, the second with the length that it gave.
        SHAPE(VELT_SMSSrv_GetSMSCentreNumber, integer("length"),
              text<uint16_t>("number", {VELT_SIZE_SMS_CENTRE, VELT_SIZE_SMS_CENTRE}), givenBack()),
        SHAPE(VELT_SMSSrv_SMSRecordSetGetRecordCount, integer("count"), storage),
        SHAPE(VELT_SMSSrv_GetRecordInfo, integer("total"), integer("unread"), storage),
    };
    // clang-format on
    return all;
}
