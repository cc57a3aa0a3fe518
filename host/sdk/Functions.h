// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef FUNCTIONS_H
#define FUNCTIONS_H

/// The names of all functions of the SDK, in the order of the headers of include/sdk.
// clang-format off
#define SDK_FUNCTIONS(FUNCTION) \
    FUNCTION(VELT_DevSrv_RegisterDevMgrCallback) \
    FUNCTION(VELT_DevSrv_RegisterDevInitEventCallback) \
    FUNCTION(VELT_DevSrv_UnRegisterDevMgrCallback) \
    FUNCTION(VELT_DevSrv_UnRegisterDevInitEventCallback) \
    FUNCTION(VELT_DevSrv_GetDevStatus) \
    FUNCTION(VELT_DevSrv_GetProductType) \
    FUNCTION(VELT_DevSrv_GetCustomizeName) \
    FUNCTION(VELT_DevSrv_GetDeviceName) \
    FUNCTION(VELT_DevSrv_GetDevicePort) \
    FUNCTION(VELT_DevSrv_GetFirmwareVersion) \
    FUNCTION(VELT_DevSrv_GetImeiInfo) \
    FUNCTION(VELT_DevSrv_GetSN) \
    FUNCTION(VELT_DevSrv_GetESN) \
    FUNCTION(VELT_DevSrv_GetVoltage) \
    FUNCTION(VELT_DevSrv_GetNumberOfCarrier) \
    FUNCTION(VELT_DevSrv_GetSimStatus) \
    FUNCTION(VELT_DevSrv_GetPinStatus) \
    FUNCTION(VELT_DevSrv_GetImsiInfo) \
    FUNCTION(VELT_DevSrv_GetUserNumMemAbility) \
    FUNCTION(VELT_DevSrv_ReadUserNumItem) \
    FUNCTION(VELT_NetSrv_GetCurPlmn) \
    FUNCTION(VELT_NetSrv_GetCSRegState) \
    FUNCTION(VELT_NetSrv_GetPSRegState) \
    FUNCTION(VELT_NetSrv_SetCSRegReport) \
    FUNCTION(VELT_NetSrv_GetPSState) \
    FUNCTION(VELT_NetSrv_GetRowRSSI) \
    FUNCTION(VELT_NetSrv_GetSignalQuality) \
    FUNCTION(VELT_NetSrv_GetEFFile) \
    FUNCTION(VELT_NetSrv_GetPrlVer) \
    FUNCTION(VELT_NetSrv_GetIPAddress) \
    FUNCTION(VELT_NetSrv_GetDNS) \
    FUNCTION(VELT_PBSrv_PBGetMemAbility) \
    FUNCTION(VELT_PBSrv_GetSize) \
    FUNCTION(VELT_PBSrv_GetCapacity) \
    FUNCTION(VELT_SMSSrv_GetSMSCentreNumber) \
    FUNCTION(VELT_SMSSrv_SMSRecordSetGetRecordCount) \
    FUNCTION(VELT_SMSSrv_GetRecordInfo)
// clang-format on

#endif
