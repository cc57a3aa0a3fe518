// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "sdk/VeltNetwork.h"

#include "Call.h"

namespace {

VELT_ERROR answerRegistration(const char *function, VELT_REG_STATE *state, NumberValue mode,
                              NumberValue registration, TextValue lac, TextValue cellId)
{
    return Call(function).answer([=](Answer &answer) {
        VELT_REG_STATE read = {};
        read.reportMode = answer.number<int32_t>(mode);
        read.state = answer.number<int32_t>(registration);
        if (read.reportMode == VELT_REG_REPORT_LOCATION) {
            copyText(answer.text(lac), read.lac);
            copyText(answer.text(cellId), read.cellId);
        }
        return answer.give(state, read);
    });
}

VELT_ERROR answerConnection(const char *function, TextValue value, const char *device,
                            const char *profile, char *buffer, int32_t size)
{
    return Call(function, device, profile, size).answer([=](Answer &answer) {
        if (!device || !profile || size <= 0)
            return answer.note(VELT_ERROR_BAD_ARGUMENT);
        std::string text;
        answer.note(answer.modem().readConnection(value, device, profile, text));
        return answer.giveText(buffer, static_cast<size_t>(size), text);
    });
}

VELT_ERROR answerSignal(const char *function, VELT_SIGNAL_PAIR *signal, NumberValue first,
                        NumberValue second)
{
    return Call(function).answer([=](Answer &answer) {
        const VELT_SIGNAL_PAIR read = {answer.number<int16_t>(first),
                                       answer.number<int16_t>(second)};
        return answer.give(signal, read);
    });
}

} // namespace

VELT_ERROR VELT_NetSrv_GetCurPlmn(int32_t *mode, VELT_OPERATOR *plmn)
{
    return Call(__func__).answer([=](Answer &answer) {
        VELT_OPERATOR read = {};
        copyText(answer.text(TextValue::OperatorLongName), read.longName);
        copyText(answer.text(TextValue::OperatorShortName), read.shortName);
        copyText(answer.text(TextValue::OperatorCode), read.code);
        read.accessTechnology = answer.number<uint8_t>(NumberValue::AccessTechnology);
        return answer.give(mode, NumberValue::SelectionMode, plmn, read);
    });
}

VELT_ERROR VELT_NetSrv_GetCSRegState(VELT_REG_STATE *state)
{
    return answerRegistration(__func__, state, NumberValue::CsReportMode, NumberValue::CsState,
                              TextValue::CsLac, TextValue::CsCellId);
}

VELT_ERROR VELT_NetSrv_GetPSRegState(VELT_REG_STATE *state)
{
    return answerRegistration(__func__, state, NumberValue::PsReportMode, NumberValue::PsState,
                              TextValue::PsLac, TextValue::PsCellId);
}

VELT_ERROR VELT_NetSrv_SetCSRegReport(int32_t mode)
{
    return Call(__func__, mode).answer([=](Answer &answer) {
        if (mode < VELT_REG_REPORT_NONE || mode > VELT_REG_REPORT_LOCATION)
            return answer.note(VELT_ERROR_BAD_ARGUMENT);
        return answer.note(answer.modem().setReportMode(mode));
    });
}

VELT_ERROR VELT_NetSrv_GetPSState(int32_t *state)
{
    return answerNumbers(__func__, state, NumberValue::PsAttachment);
}

VELT_ERROR VELT_NetSrv_GetRowRSSI(VELT_SIGNAL_PAIR *signal)
{
    return answerSignal(__func__, signal, NumberValue::Rssi, NumberValue::BitErrorRate);
}

VELT_ERROR VELT_NetSrv_GetSignalQuality(VELT_SIGNAL_PAIR *signal)
{
    return answerSignal(__func__, signal, NumberValue::Rscp, NumberValue::EcIo);
}

VELT_ERROR VELT_NetSrv_GetEFFile(int32_t file, char *content)
{
    return Call(__func__, file).answer([=](Answer &answer) {
        if (file != VELT_EF_ICCID)
            return answer.note(VELT_ERROR_BAD_ARGUMENT);
        return answer.giveText(content, VELT_SIZE_EF_FILE, answer.text(TextValue::Iccid));
    });
}

VELT_ERROR VELT_NetSrv_GetPrlVer(char *version)
{
    return answerText(__func__, TextValue::PrlVersion, version, VELT_SIZE_PRL_VERSION);
}

VELT_ERROR VELT_NetSrv_GetIPAddress(const char *device, const char *profile, char *address,
                                    int32_t size)
{
    return answerConnection(__func__, TextValue::IpAddress, device, profile, address, size);
}

VELT_ERROR VELT_NetSrv_GetDNS(const char *device, const char *profile, char *servers, int32_t size)
{
    return answerConnection(__func__, TextValue::NameServers, device, profile, servers, size);
}
