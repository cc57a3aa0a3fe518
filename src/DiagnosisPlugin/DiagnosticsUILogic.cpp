// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsUILogic.h"

#include "DiagnosticsConfigParse.h"
#include "DiagnosticsLog.h"
#include "DiagnosticsSdkText.h"
#include "DiagnosticsText.h"

#include "core/CommonUtils.h"
#include "core/Startup.h"
#include "interfaces/IDialupUIService.h"
#include "interfaces/INetConnectSetting.h"
#include "interfaces/IStatusBarUI.h"
#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"
#include "sdk/VeltPhonebook.h"
#include "sdk/VeltSms.h"

#include <memory>
#include <new>

namespace {

const char LogSource[] = "../../src/DiagnosisPlugin/DiagnosticsUILogic";

using DiagnosticsText::UnknownKey;

struct CodeText
{
    int code;
    const char *text;
};

/// The text for a code of the device; \a other for a code that is not in the table.
template <std::size_t size>
QString textOf(const CodeText (&table)[size], int code, const char *other)
{
    for (const CodeText &row : table) {
        if (row.code == code)
            return QLatin1String(row.text);
    }
    return QLatin1String(other);
}

// clang-format off
const CodeText RegistrationStates[] = {
    {VELT_REG_NOT_REGISTERED, "IDS_LANG_NOT_REGISTERED"},
    {VELT_REG_HOME,           "IDS_LANG_REGISTERED"},
    {VELT_REG_SEARCHING,      "IDS_LANG_REGISTERING"},
    {VELT_REG_DENIED,         "IDS_LANG_REG_DENIED"},
    {VELT_REG_UNKNOWN,        UnknownKey},
    {VELT_REG_ROAMING,        "IDS_LANG_ROAMING"},
};

const CodeText DeviceTypes[] = {
    {VELT_PRODUCT_WCDMA,    "WCDMA"},
    {VELT_PRODUCT_CDMA,     "CDMA"},
    {VELT_PRODUCT_TD_SCDMA, "TD_SCDMA"},
};

const CodeText SelectionModes[] = {
    {VELT_SELECTION_AUTOMATIC, "IDS_LANG_AUTOMATIC"},
    {VELT_SELECTION_MANUAL,    "IDS_LANG_MANUAL"},
};

const CodeText PsAttachments[] = {
    {VELT_PS_DETACHED, "IDS_LANG_NOT_ATTACHED"},
    {VELT_PS_ATTACHED, "IDS_LANG_ATTACHED"},
    {VELT_PS_UNKNOWN,  UnknownKey},
};

const CodeText PinStates[] = {
    {VELT_PIN_NOT_INITIALIZED, "IDS_LANG_PIN_NOT_INITIALIZED"},
    {VELT_PIN_READY,           "IDS_LANG_READY"},
    {VELT_PIN_REQUIRED,        "IDS_LANG_PIN_REQUIRED"},
    {VELT_PIN_PUK_REQUIRED,    "IDS_LANG_PUK_REQUIRED"},
    {VELT_PIN_BLOCKED,         "IDS_LANG_PIN_BLOCKED"},
    {VELT_PIN2_REQUIRED,       "IDS_LANG_PIN2_REQUIRED"},
    {VELT_PIN_PUK2_REQUIRED,   "IDS_LANG_PUK2_REQUIRED"},
    {VELT_PIN_UNKNOWN,         UnknownKey},
    {VELT_PIN_DISABLED,        "IDS_LANG_READY"},
};
// clang-format on

/// The firmware or the hardware version. One SDK function gives both, and the log lines name that
/// function. \a function is the getter's name.
template <std::size_t size>
QString versionField(const char *function, char (VELT_VERSION_INFO::*field)[size])
{
    qDebug("%s: %s: %s: called", LOG_AS(function));
    VELT_VERSION_INFO version = VELT_VERSION_INFO();
    qDebug("=======> %s: %s: %s: Calling VELT_DevSrv_GetFirmwareVersion: %s", LOG_AS(function),
           SdkText<size>(version.*field).text());
    const VELT_ERROR result = VELT_DevSrv_GetFirmwareVersion(&version);
    const SdkText<size> text(version.*field);
    qDebug("<======= %s: %s: %s: VELT_DevSrv_GetFirmwareVersion returned: %s, %li:",
           LOG_AS(function), text.text(), result);
    if (result != VELT_SUCCESS)
        return QString();
    qDebug("%s: %s: %s: VELT_DevSrv_GetFirmwareVersion success: %s, %li:", LOG_AS(function),
           text.text(), result);
    return text.toString();
}

/// The ESN or the MEID, in the same way.
template <std::size_t size>
QString esnField(const char *function, char (VELT_ESN_INFO::*field)[size])
{
    qDebug("%s: %s: %s: called", LOG_AS(function));
    VELT_ESN_INFO esn = VELT_ESN_INFO();
    qDebug("========> %s: %s: %s: calling VELT_DevSrv_GetESN(%s)", LOG_AS(function),
           SdkText<size>(esn.*field).text());
    const VELT_ERROR result = VELT_DevSrv_GetESN(&esn);
    const SdkText<size> text(esn.*field);
    qDebug("========> %s: %s: %s: VELT_DevSrv_GetESN(%s) returning %li", LOG_AS(function),
           text.text(), result);
    if (result != VELT_SUCCESS)
        return QString();
    qDebug("========> %s: %s: %s: VELT_DevSrv_GetESN(%s) success", LOG_AS(function), text.text());
    return text.toString();
}

/// Cell ID or location area code. The device reports them in one report mode only, so it is put
/// into that mode between two calls, and stays in it.
template <std::size_t size>
QString locationField(const char *function, char (VELT_REG_STATE::*field)[size])
{
    qDebug("%s: %s: %s: called", LOG_AS(function));
    VELT_REG_STATE state = VELT_REG_STATE();
    qDebug("=======> %s: %s: %s: calling VELT_NetSrv_GetCSRegState(%d)", LOG_AS(function),
           state.reportMode);
    VELT_ERROR result = VELT_NetSrv_GetCSRegState(&state);
    qDebug("<======= %s: %s: %s: VELT_NetSrv_GetCSRegState(%d) returned %li:", LOG_AS(function),
           state.reportMode, result);
    if (result != VELT_SUCCESS)
        return QString();
    if (state.reportMode != VELT_REG_REPORT_LOCATION)
        VELT_NetSrv_SetCSRegReport(VELT_REG_REPORT_LOCATION);
    qDebug("=======> %s: %s: %s: calling VELT_NetSrv_GetCSRegState(%s)", LOG_AS(function),
           SdkText<size>(state.*field).text());
    result = VELT_NetSrv_GetCSRegState(&state);
    if (result != VELT_SUCCESS)
        return QString();
    const SdkText<size> text(state.*field);
    qDebug("<======= %s: %s: %s: VELT_NetSrv_GetCSRegState(%s) returned %li:", LOG_AS(function),
           text.text(), result);
    return text.toString();
}

/// One reading of the signal quality: RSCP or Ec/Io.
VELT_ERROR signalQuality(const char *function, int16_t VELT_SIGNAL_PAIR::*reading, int16_t *value)
{
    qDebug("%s: %s: %s: called", LOG_AS(function));
    VELT_SIGNAL_PAIR signal = VELT_SIGNAL_PAIR();
    qDebug("=======> %s: %s: %s: calling VELT_NetSrv_GetSignalQuality(%d)", LOG_AS(function),
           signal.*reading);
    const VELT_ERROR result = VELT_NetSrv_GetSignalQuality(&signal);
    *value = signal.*reading;
    qDebug("<======= %s: %s: %s: VELT_NetSrv_GetSignalQuality(%d) returned %li:", LOG_AS(function),
           *value, result);
    return result;
}

/// An address of the current connection; \a sdkName is the name of the SDK function \a ask.
QString addressText(const char *function, const char *sdkName, const QString &deviceName,
                    const QString &profileName,
                    VELT_ERROR (*ask)(const char *, const char *, char *, int32_t))
{
    const int32_t sizeForSdk = 64; // the buffer is larger, in case a device ignores this
    SdkText<255> address;
    const QByteArray device = deviceName.toLatin1();
    const QByteArray profile = profileName.toLatin1();
    qDebug("=======> %s: %s: %s: calling %s(%s)", LOG_AS(function), sdkName, address.text());
    const VELT_ERROR result =
        ask(device.constData(), profile.constData(), address.buffer(), sizeForSdk);
    qDebug("<======= %s: %s: %s: %s(%s) returned %li:", LOG_AS(function), sdkName, address.text(),
           result);
    if (result != VELT_SUCCESS)
        return QString();
    qDebug("%s: %s: %s: %s(%s) success %li:", LOG_AS(function), sdkName, address.text(), result);
    return QString::fromLocal8Bit(address.text());
}

QString counts(int used, int capacity)
{
    return QString::number(used) + QLatin1String(" / ") + QString::number(capacity);
}

/// A plug-in of the host as one of its interfaces; null if there is no container or no such
/// plug-in, or if the plug-in does not have the interface.
template <typename Interface>
Interface *hostPlugin(const char *function, const char *classIdentifier, int pluginType)
{
    PluginContainer *container = Startup::GetPluginContainer();
    if (!container)
        return nullptr;
    qDebug("%s: %s: %s:Get plugin container succsess", LOG_AS(function));
    QObject *plugin = container->GetPlugin(QLatin1String(classIdentifier), pluginType);
    if (!plugin)
        return nullptr;
    qDebug("%s: %s: %s:get plugin success", LOG_AS(function));
    return qobject_cast<Interface *>(plugin);
}

} // namespace

DiagnosticsUILogic *DiagnosticsUILogic::_Instance = nullptr;
int DiagnosticsUILogic::m_iInstanceCount = 0;
const int DiagnosticsUILogic::SimStorage = VELT_SMS_SIM;
const int DiagnosticsUILogic::DeviceStorage = VELT_SMS_DEVICE;

DiagnosticsUILogic::DiagnosticsUILogic() : QObject(nullptr), m_pConfigParse(nullptr)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    m_pConfigParse = DiagnosticsConfigParse::GetInstance();
    loadConfigFile();
}

DiagnosticsUILogic::~DiagnosticsUILogic()
{
    if (m_pConfigParse) {
        DiagnosticsConfigParse::DestroyInstance();
        m_pConfigParse = nullptr;
    }
}

DiagnosticsUILogic *DiagnosticsUILogic::GetInstance()
{
    if (!_Instance)
        _Instance = new (std::nothrow) DiagnosticsUILogic;
    ++m_iInstanceCount;
    return _Instance;
}

void DiagnosticsUILogic::Destroy()
{
    if (!_Instance)
        return;
    if (m_iInstanceCount > 0) {
        --m_iInstanceCount;
        return;
    }
    delete _Instance;
    _Instance = nullptr;
}

void DiagnosticsUILogic::loadConfigFile()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_pConfigParse || m_pConfigParse->LoadFile(QLatin1String("DiagnosisConfig.xml")) != 0)
        qDebug("%s: %s: %s:Error in loading Config File", LOG_AT);
    else
        qDebug("%s: %s: %s:Config File Loaded successfully", LOG_AT);
}

void DiagnosticsUILogic::RegisterWithDevice()
{
    qDebug("%s: %s: %s: Entered", LOG_AT);
    if (VELT_DevSrv_RegisterDevMgrCallback(OnDevEvents) != VELT_SUCCESS)
        qDebug("%s: %s: VELT_DevSrv_RegisterDevMgrCallback failed", LogSource, __func__);
    if (VELT_DevSrv_RegisterDevInitEventCallback(OnDevEvents) != VELT_SUCCESS)
        qDebug("%s: %s: VELT_DevSrv_RegisterDevInitEventCallback failed", LogSource, __func__);
}

void DiagnosticsUILogic::UnRegisterDevice()
{
    qDebug("%s: %s: %s: Entered", LOG_AT);
    qDebug("%s: %s: %s: Calling VELT_DevSrv_UnRegisterDevInitEventCallback()", LOG_AT);
    if (VELT_DevSrv_UnRegisterDevInitEventCallback(OnDevEvents) != VELT_SUCCESS)
        qDebug("%s: %s: %s: VELT_DevSrv_UnRegisterDevInitEventCallback failed", LOG_AT);
    qDebug("%s: %s: %s: Calling VELT_DevSrv_UnRegisterDevMgrCallback ()", LOG_AT);
    if (VELT_DevSrv_UnRegisterDevMgrCallback(OnDevEvents) != VELT_SUCCESS)
        qDebug("%s: %s: %s: VELT_DevSrv_UnRegisterDevMgrCallback   failed", LOG_AT);
    qDebug("%s: %s: %s: Exited", LOG_AT);
}

int DiagnosticsUILogic::OnDevEvents(int event, void *)
{
    qDebug("%s: %s: %s:  Entered", LOG_AT);
    qDebug("%s: %s: %s:  Dev Evenet(%d)", LOG_AT, event);
    if (!_Instance) {
        qDebug("%s: %s: %s: _Instance is NULL ", LOG_AT);
        return 0;
    }
    int handled = 1;
    switch (event) {
    case VELT_EVENT_DEV_ARRIVAL:
    case VELT_EVENT_DEV_READY:
        Q_EMIT _Instance->DeviceAvailable();
        break;
    case VELT_EVENT_DEV_DEVICE_INIT_FINISH: {
        qDebug("%s: %s: %s: VELT_EVENT_DEV_DEVICE_INIT_FINISH ", LOG_AT);
        int32_t status = 0;
        if (VELT_DevSrv_GetDevStatus(&status) == VELT_SUCCESS && status == VELT_DEV_STATUS_READY)
            Q_EMIT _Instance->DeviceAvailable();
        break;
    }
    case VELT_EVENT_DEV_REMOVAL:
    case VELT_EVENT_DEV_LOST:
        Q_EMIT _Instance->DeviceUnavailable();
        break;
    default:
        handled = 0;
    }
    qDebug("%s: %s: %s:  Exit", LOG_AT);
    return handled;
}

QString DiagnosticsUILogic::returnString(int rssi)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    switch (rssi) {
    case 0:
        return QLatin1String("<= -113dBm");
    case 1:
        return QLatin1String("-111dBm");
    case 31:
        return QLatin1String(">= -51dBm");
    default:
        if (rssi < 2 || rssi > 30)
            return QLatin1String(UnknownKey);
        return QString::number(2 * rssi - 113) + QLatin1String("dBm");
    }
}

void DiagnosticsUILogic::switchCase(int state, QString *text)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    *text = textOf(RegistrationStates, state, UnknownKey);
}

QString DiagnosticsUILogic::GetSoftwareVersion()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    qDebug("=======> %s: %s: %s: Calling CommonUtils GetSettings():", LOG_AT);
    const QString version =
        CommonUtils::GetSettings(QLatin1String("version"), QLatin1String("version"));
    qDebug("=======> %s: %s: %s: CommonUtils GetSettings() returned %s", LOG_AT,
           version.toLocal8Bit().constData());
    return version;
}

QString DiagnosticsUILogic::GetFirmwareVersion()
{
    return versionField(__func__, &VELT_VERSION_INFO::firmware);
}

QString DiagnosticsUILogic::GetHardwareVersion()
{
    return versionField(__func__, &VELT_VERSION_INFO::hardware);
}

QString DiagnosticsUILogic::GetIMEI()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    SdkText<VELT_SIZE_IMEI> imei;
    qDebug("=======> %s: %s: %s: CallingVELT_DevSrv_GetImeiInfo: %s", LOG_AT, imei.text());
    const VELT_ERROR result = VELT_DevSrv_GetImeiInfo(imei.buffer());
    qDebug("<======= %s: %s: %s: VELT_DevSrv_GetImeiInfo returned: %s, %li:", LOG_AT, imei.text(),
           result);
    if (result != VELT_SUCCESS)
        return QString();
    qDebug("%s: %s: %s: Calling VELT_DevSrv_GetImeiInfo success: %s, %li:", LOG_AT, imei.text(),
           result);
    return imei.toString();
}

QString DiagnosticsUILogic::GetSerialNumber()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    SdkText<VELT_SIZE_SERIAL_NUMBER> number;
    qDebug("=======> %s: %s: %s: VELT_DevSrv_GetSN()calling: %s", LOG_AT, number.text());
    const VELT_ERROR result = VELT_DevSrv_GetSN(number.buffer());
    qDebug("<======= %s: %s: %s: Calling VELT_DevSrv_GetSN returned: %s, %li:", LOG_AT,
           number.text(), result);
    if (result != VELT_SUCCESS)
        return QString();
    qDebug("%s: %s: %s: Calling VELT_DevSrv_GetSN success: %s, %li:", LOG_AT, number.text(),
           result);
    return number.toString();
}

QString DiagnosticsUILogic::GetApplicationPort()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    int32_t port = 0;
    qDebug("=======> %s: %s: %s: Calling VELT_DevSrv_GetDevicePort: %d", LOG_AT, port);
    const VELT_ERROR result = VELT_DevSrv_GetDevicePort(&port);
    qDebug("<======= %s: %s: %s: Calling VELT_DevSrv_GetDevicePort returned: %d, %li:", LOG_AT,
           port, result);
    if (result != VELT_SUCCESS)
        return QString();
    qDebug("%s: %s: %s: Calling VELT_DevSrv_GetDevicePort success: %d, %li:", LOG_AT, port, result);
    return QLatin1String("KORVENMOBILE-Pcui");
}

QString DiagnosticsUILogic::GetDeviceName()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    SdkText<VELT_SIZE_DEVICE_NAME> name;
    qDebug("=======> %s: %s: %s: Calling VELT_DevSrv_GetDeviceName: %s", LOG_AT, name.text());
    const VELT_ERROR result = VELT_DevSrv_GetDeviceName(name.buffer());
    qDebug("<======= %s: %s: %s: VELT_DevSrv_GetDeviceName(%s)returned %li", LOG_AT, name.text(),
           result);
    if (result != VELT_SUCCESS)
        return QString();
    qDebug("%s: %s: %s: VELT_DevSrv_GetDeviceName(%s)returned success %li", LOG_AT, name.text(),
           result);
    m_strDeviceName = name.toString();
    return m_strDeviceName;
}

QString DiagnosticsUILogic::GetDeviceType()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    int32_t type = VELT_PRODUCT_UNKNOWN;
    qDebug("=======> %s: %s: %s: Calling VELT_DevSrv_GetProductType: %d", LOG_AT, type);
    const VELT_ERROR result = VELT_DevSrv_GetProductType(&type);
    qDebug("=======> %s: %s: %s: VELT_DevSrv_GetProductType(%d) returned %li:", LOG_AT, type,
           result);
    if (result != VELT_SUCCESS)
        return QString();
    return textOf(DeviceTypes, type, "UNKNOWN");
}

QString DiagnosticsUILogic::GetEsn()
{
    return esnField(__func__, &VELT_ESN_INFO::esn);
}

bool DiagnosticsUILogic::IsPesn()
{
    return esnField(__func__, &VELT_ESN_INFO::esn).startsWith(QLatin1String("80"));
}

QString DiagnosticsUILogic::GetMeid()
{
    return esnField(__func__, &VELT_ESN_INFO::meid);
}

QString DiagnosticsUILogic::GetPrlVersion()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    SdkText<VELT_SIZE_PRL_VERSION> version;
    qDebug("========> %s: %s: %s: calling VELT_NetSrv_GetPrlVer(%s)", LOG_AT, version.text());
    const VELT_ERROR result = VELT_NetSrv_GetPrlVer(version.buffer());
    qDebug("========> %s: %s: %s: VELT_NetSrv_GetPrlVer(%s) returned %li", LOG_AT, version.text(),
           result);
    if (result != VELT_SUCCESS)
        return QString();
    qDebug("========> %s: %s: %s: VELT_NetSrv_GetPrlVer(%s) success", LOG_AT, version.text());
    return version.toString();
}

QString DiagnosticsUILogic::GetVoltage()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    uint32_t voltage = 0;
    qDebug("========> %s: %s: %s: calling VELT_DevSrv_GetVoltage(%u)", LOG_AT, voltage);
    const VELT_ERROR result = VELT_DevSrv_GetVoltage(&voltage);
    qDebug("========> %s: %s: %s: calling VELT_DevSrv_GetVoltage(%u) returned %li", LOG_AT, voltage,
           result);
    if (result != VELT_SUCCESS)
        return QString();
    qDebug("========> %s: %s: %s: calling VELT_DevSrv_GetVoltage(%u) success", LOG_AT, voltage);
    return QString::number(voltage);
}

QString DiagnosticsUILogic::GetMulticarrier()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    int32_t count = 0;
    qDebug("========> %s: %s: %s: calling VELT_DevSrv_GetNumberOfCarrier()", LOG_AT);
    const VELT_ERROR result = VELT_DevSrv_GetNumberOfCarrier(&count);
    qDebug("========> %s: %s: %s: VELT_DevSrv_GetNumberOfCarrier  returned", LOG_AT);
    if (result != VELT_SUCCESS)
        return QLatin1String("");
    qDebug("========> %s: %s: %s: VELT_DevSrv_GetNumberOfCarrier success", LOG_AT);
    return QString::number(count);
}

QString DiagnosticsUILogic::GetNetworkName()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    qDebug("%s: %s: %s: calling getStatusBarInstance():", LOG_AT);
    IStatusBarUI *statusBar = getStatusBarInstance();
    if (!statusBar)
        return QString();
    qDebug("%s: %s: %s: calling IGetServiceName:", LOG_AT);
    QString name;
    if (statusBar->IGetServiceName(name) != 0)
        return QString();
    qDebug("%s: %s: %s: IGetServiceName success:", LOG_AT);
    return name;
}

QString DiagnosticsUILogic::GetNetworkType()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    IStatusBarUI *statusBar = getStatusBarInstance();
    QString type;
    if (!statusBar || statusBar->IGetNetworkType(type) != 0)
        return QString();
    return type;
}

QString DiagnosticsUILogic::getNetwork()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    int32_t mode = -1;
    VELT_OPERATOR plmn = VELT_OPERATOR();
    qDebug("========> %s: %s: %s: calling VELT_NetSrv_GetCurPlmn()", LOG_AT);
    const VELT_ERROR result = VELT_NetSrv_GetCurPlmn(&mode, &plmn);
    qDebug("<======= %s: %s: %s: VELT_NetSrv_GetCurPlmn() returned %li:", LOG_AT, result);
    if (result != VELT_SUCCESS)
        return QString();
    return QLatin1String(plmn.accessTechnology == VELT_ACCESS_UTRAN ? "3G" : "UNKNOWN");
}

QString DiagnosticsUILogic::GetSelectionMode()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    int32_t mode = -1;
    VELT_OPERATOR plmn = VELT_OPERATOR();
    qDebug("========> %s: %s: %s: calling VELT_NetSrv_GetCurPlmn(%d)", LOG_AT, mode);
    const VELT_ERROR result = VELT_NetSrv_GetCurPlmn(&mode, &plmn);
    qDebug("<======= %s: %s: %s: VELT_NetSrv_GetCurPlmn(%d) returned %li:", LOG_AT, mode, result);
    // The result does not matter: a failing call leaves the preset, which has no text.
    return textOf(SelectionModes, mode, "");
}

QString DiagnosticsUILogic::GetCsRegister()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    VELT_REG_STATE state = VELT_REG_STATE();
    qDebug("=======> %s: %s: %s: Calling VELT_NetSrv_GetCSRegState(%d):", LOG_AT, state.state);
    const VELT_ERROR result = VELT_NetSrv_GetCSRegState(&state);
    qDebug("<======= %s: %s: %s: VELT_NetSrv_GetCSRegState(%d) returned %li:", LOG_AT, state.state,
           result);
    if (result != VELT_SUCCESS)
        return QString();
    QString text;
    switchCase(state.state, &text);
    return text;
}

QString DiagnosticsUILogic::GetPsRegister()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    VELT_REG_STATE state = VELT_REG_STATE();
    qDebug("=======> %s: %s: %s: calling VELT_NetSrv_GetPSRegState(%d):", LOG_AT, state.state);
    const VELT_ERROR result = VELT_NetSrv_GetPSRegState(&state);
    qDebug("<======= %s: %s: %s: VELT_NetSrv_GetPSRegState(%d) returned %li:", LOG_AT, state.state,
           result);
    if (result != VELT_SUCCESS)
        return QString();
    qDebug("%s: %s: %s: VELT_NetSrv_GetPSRegState(%d) success %li:", LOG_AT, state.state, result);
    QString text;
    switchCase(state.state, &text);
    return text;
}

QString DiagnosticsUILogic::GetPsAttachment()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    int32_t state = VELT_PS_UNKNOWN;
    qDebug("=======> %s: %s: %s: calling VELT_NetSrv_GetPSState(%d):", LOG_AT, state);
    const VELT_ERROR result = VELT_NetSrv_GetPSState(&state);
    qDebug("<======== %s: %s: %s: VELT_NetSrv_GetPSState(%d) returned %li:", LOG_AT, state, result);
    if (result != VELT_SUCCESS)
        return QString();
    qDebug("%s: %s: %s: VELT_NetSrv_GetPSState(%d) success %li:", LOG_AT, state, result);
    return textOf(PsAttachments, state, "");
}

QString DiagnosticsUILogic::GetRSSI()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    VELT_SIGNAL_PAIR signal = VELT_SIGNAL_PAIR();
    qDebug("=======> %s: %s: %s: Calling VELT_NetSrv_GetRowRSSI(%d):", LOG_AT, signal.first);
    const VELT_ERROR result = VELT_NetSrv_GetRowRSSI(&signal);
    qDebug("<======= %s: %s: %s: VELT_NetSrv_GetRowRSSI(%d) returned %li:", LOG_AT, signal.first,
           result);
    if (result != VELT_SUCCESS)
        return QLatin1String(UnknownKey);
    qDebug("%s: %s: %s: VELT_NetSrv_GetRowRSSI(%d) success %li:", LOG_AT, signal.first, result);
    const int raw = signal.first;
    if (GetDeviceType() != QLatin1String("TD_SCDMA"))
        return returnString(raw);
    // On a TD-SCDMA device a step is 1 dB.
    switch (raw) {
    case 0:
        return QLatin1String("<= -116dBm");
    case 1:
        return QLatin1String("-115dBm");
    case 91:
        return QLatin1String(">=-25dBm");
    default:
        if (raw < 2 || raw > 90)
            return QLatin1String(UnknownKey);
        return QString::number(raw - 116) + QLatin1String("dBm");
    }
}

QString DiagnosticsUILogic::GetSignalStrength()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    VELT_SIGNAL_PAIR signal = VELT_SIGNAL_PAIR();
    qDebug("=======> %s: %s: %s: calling VELT_NetSrv_GetRowRSSI(%d, %d)", LOG_AT, signal.first,
           signal.second);
    const VELT_ERROR result = VELT_NetSrv_GetRowRSSI(&signal);
    qDebug("<======= %s: %s: %s: VELT_NetSrv_GetRowRSSI(%d, %d) returned %li:", LOG_AT,
           signal.first, signal.second, result);
    if (result != VELT_SUCCESS)
        return QString();
    return QString::number(signal.first) + QLatin1String(", ") + QString::number(signal.second);
}

QString DiagnosticsUILogic::GetRSQUAL()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    VELT_SIGNAL_PAIR signal = VELT_SIGNAL_PAIR();
    qDebug("========> %s: %s: %s: calling VELT_NetSrv_GetRowRSSI(%d)", LOG_AT, signal.second);
    const VELT_ERROR result = VELT_NetSrv_GetRowRSSI(&signal);
    qDebug("<======= %s: %s: %s: VELT_NetSrv_GetRowRSSI(%d) returned %li:", LOG_AT, signal.second,
           result);
    return result == VELT_SUCCESS ? QString::number(signal.second) : QString();
}

QString DiagnosticsUILogic::GetRSCP()
{
    int16_t rscp;
    const VELT_ERROR result = signalQuality(__func__, &VELT_SIGNAL_PAIR::first, &rscp);
    if (result != VELT_SUCCESS)
        return QString();
    qDebug("%s: %s: %s: VELT_NetSrv_GetSignalQuality(%d) success %li:", LOG_AT, rscp, result);
    return QString::number(rscp);
}

QString DiagnosticsUILogic::GetECIO()
{
    int16_t ecio;
    const VELT_ERROR result = signalQuality(__func__, &VELT_SIGNAL_PAIR::second, &ecio);
    return result == VELT_SUCCESS ? QString::number(ecio) : QString();
}

QString DiagnosticsUILogic::GetECNO()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    return QLatin1String("not implement");
}

QString DiagnosticsUILogic::GetCellID()
{
    return locationField(__func__, &VELT_REG_STATE::cellId);
}

QString DiagnosticsUILogic::GetLACCode()
{
    return locationField(__func__, &VELT_REG_STATE::lac);
}

QString DiagnosticsUILogic::GetSimStatus()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    int32_t status = VELT_SIM_NONE;
    qDebug("========> %s: %s: %s: calling VELT_DevSrv_GetSimStatus(%d)", LOG_AT, status);
    const VELT_ERROR result = VELT_DevSrv_GetSimStatus(&status);
    qDebug("========> %s: %s: %s: VELT_DevSrv_GetSimStatus(%d) returned", LOG_AT, status);
    if (result != VELT_SUCCESS)
        return QString();
    return QLatin1String(status == VELT_SIM_ROAMING ? "Roaming" : "Unknown");
}

QString DiagnosticsUILogic::GetPinStatus()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    int32_t status = 0;
    char pinAttempts = '0';
    char pukAttempts = '0';
    char pinEnabled = '1';
    qDebug("=======> %s: %s: %s: CallingVELT_DevSrv_GetPinStatus(%d)", LOG_AT, status);
    const VELT_ERROR result =
        VELT_DevSrv_GetPinStatus(0, &status, &pinAttempts, &pukAttempts, &pinEnabled);
    qDebug("<======= %s: %s: %s: VELT_DevSrv_GetPinStatus(%d)returned %li:", LOG_AT, status,
           result);
    return result == VELT_SUCCESS ? textOf(PinStates, status, UnknownKey) : QString();
}

QString DiagnosticsUILogic::GetIMSINumber()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    SdkText<VELT_SIZE_IMSI> imsi;
    qDebug("=======> %s: %s: %s: calling VELT_DevSrv_GetImsiInfo(%s)", LOG_AT, imsi.text());
    VELT_ERROR result = VELT_DevSrv_GetImsiInfo(imsi.buffer());
    qDebug("<======= %s: %s: %s: VELT_DevSrv_GetImsiInfo(%s) returned %li:", LOG_AT, imsi.text(),
           result);
    // Asked twice: only the second answer counts.
    result = VELT_DevSrv_GetImsiInfo(imsi.buffer());
    return result == VELT_SUCCESS ? imsi.toString() : QString();
}

QString DiagnosticsUILogic::GetICCID()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    SdkText<VELT_SIZE_EF_FILE> iccid;
    qDebug("========> %s: %s: %s: calling VELT_NetSrv_GetEFFile(%d, %s)", LOG_AT, VELT_EF_ICCID,
           iccid.text());
    const VELT_ERROR result = VELT_NetSrv_GetEFFile(VELT_EF_ICCID, iccid.buffer());
    qDebug("<======= %s: %s: %s: VELT_NetSrv_GetEFFile() returned value: %s, VELT_ERROR= %li :",
           LOG_AT, iccid.text(), result);
    return result == VELT_SUCCESS ? iccid.toString() : QString();
}

QString DiagnosticsUILogic::GetOwnNumber()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    int32_t capacity = 0;
    int32_t firstIndex = 0;
    int32_t used = 0;
    int32_t numberLength = 0;
    int32_t nameLength = 0;
    qDebug("<======= %s: %s: %s: Calling VELT_DevSrv_GetUserNumMemAbility(%d, %d):", LOG_AT,
           firstIndex, used);
    VELT_ERROR result =
        VELT_DevSrv_GetUserNumMemAbility(&capacity, &firstIndex, &used, &numberLength, &nameLength);
    qDebug("<======= %s: %s: %s: Calling VELT_DevSrv_GetUserNumMemAbility(%d, %d) returnes %li:",
           LOG_AT, firstIndex, used, result);
    if (result != VELT_SUCCESS || used == 0)
        return QString();
    const std::unique_ptr<VELT_USER_NUMBER> item(new (std::nothrow) VELT_USER_NUMBER());
    if (!item)
        return QString();
    qDebug("<======= %s: %s: %s: Calling VELT_DevSrv_ReadUserNumItem(%d, %s):", LOG_AT, firstIndex,
           SdkText<sizeof item->number>(item->number).text());
    result = VELT_DevSrv_ReadUserNumItem(firstIndex, item.get());
    const SdkText<sizeof item->number> number(item->number);
    qDebug("<======= %s: %s: %s: VELT_DevSrv_ReadUserNumItem(%d, %s) returned %li:", LOG_AT,
           firstIndex, number.text(), result);
    return result == VELT_SUCCESS ? number.toString() : QString();
}

QString DiagnosticsUILogic::GetSMSC()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    int32_t length = 0;
    SdkText<VELT_SIZE_SMS_CENTRE / sizeof(uint16_t), uint16_t> number;
    VELT_ERROR result = VELT_SMSSrv_GetSMSCentreNumber(&length, number.buffer(), 0);
    if (result != VELT_SUCCESS)
        return QString();
    qDebug("=======> %s: %s: %s: Calling VELT_SMSSrv_GetSMSCentreNumber(%d,%d)", LOG_AT, length,
           length);
    result = VELT_SMSSrv_GetSMSCentreNumber(&length, number.buffer(), length);
    const QString text = number.toString();
    qDebug("<======= %s: %s: %s: VELT_SMSSrv_GetSMSCentreNumber()returned VALUE: %s, "
           "VELT_ERROR = %li:",
           LOG_AT, text.toLocal8Bit().constData(), result);
    return result == VELT_SUCCESS ? text : QString();
}

QString DiagnosticsUILogic::GetContactCountinSim()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    int32_t used = 0;
    int32_t total = 0;
    qDebug("=======> %s: %s: %s: Calling VELT_PBSrv_PBGetMemAbility(%d, %d)", LOG_AT, used, total);
    const VELT_ERROR result = VELT_PBSrv_PBGetMemAbility(&used, &total);
    qDebug("=======> %s: %s: %s: VELT_PBSrv_PBGetMemAbility(%d, %d) return: %li", LOG_AT, used,
           total, result);
    return result == VELT_SUCCESS ? counts(used, total) : QString();
}

QString DiagnosticsUILogic::GetContactCountinDevice()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    int32_t size = 0;
    int32_t capacity = 0;
    qDebug("=======> %s: %s: %s: Calling VELT_PBSrv_GetSize(%d)", LOG_AT, size);
    const VELT_ERROR sizeResult = VELT_PBSrv_GetSize(VELT_PHONEBOOK_DEVICE, &size);
    qDebug("<======= %s: %s: %s: VELT_PBSrv_GetSize(%d)returned %li:", LOG_AT, size, sizeResult);
    qDebug("=======> %s: %s: %s: Calling VELT_PBSrv_GetCapacity(%d)", LOG_AT, capacity);
    const VELT_ERROR capacityResult = VELT_PBSrv_GetCapacity(VELT_PHONEBOOK_DEVICE, &capacity);
    qDebug("<======= %s: %s: %s: VELT_PBSrv_GetCapacity(%d)returned %li:", LOG_AT, capacity,
           capacityResult);
    if (sizeResult != VELT_SUCCESS || capacityResult != VELT_SUCCESS)
        return QString();
    return counts(size, capacity);
}

QString DiagnosticsUILogic::GetMessageCount(int storage)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    int32_t count = 0;
    int32_t total = 0;
    int32_t unread = 0;
    qDebug("========> %s: %s: %s: calling VELT_SMSSrv_SMSRecordSetGetRecordCount(%d, %d):", LOG_AT,
           count, storage);
    const VELT_ERROR countResult = VELT_SMSSrv_SMSRecordSetGetRecordCount(&count, storage);
    qDebug("<======= %s: %s: %s: VELT_SMSSrv_SMSRecordSetGetRecordCount(%d, %d) returned %li:",
           LOG_AT, count, storage, countResult);
    qDebug("=======> %s: %s: %s: calling VELT_SMSSrv_GetRecordInfo(%d, %d):", LOG_AT, total,
           storage);
    const VELT_ERROR infoResult = VELT_SMSSrv_GetRecordInfo(&total, &unread, storage);
    qDebug("<======= %s: %s: %s: VELT_SMSSrv_GetRecordInfo(%d, %d) returned %li:", LOG_AT, total,
           storage, infoResult);
    if (countResult != VELT_SUCCESS || infoResult != VELT_SUCCESS)
        return QString();
    return counts(count, total);
}

QString DiagnosticsUILogic::GetIPAddress()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    const QString deviceName = m_strDeviceName;
    return addressText(__func__, "VELT_NetSrv_GetIPAddress", deviceName, getProfileName(),
                       VELT_NetSrv_GetIPAddress);
}

QString DiagnosticsUILogic::GetDNSServer()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    const QString deviceName = m_strDeviceName;
    return addressText(__func__, "VELT_NetSrv_GetDNS", deviceName, getProfileName(),
                       VELT_NetSrv_GetDNS);
}

QString DiagnosticsUILogic::GetAPN()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    const QString profileName = getProfileName();
    if (profileName.isNull())
        return QString();
    INetConnectSetting *connections = hostPlugin<INetConnectSetting>(
        __func__, CLSID_NET_CONNECT_SETTING, PLUGIN_TYPE_NET_CONNECT_SETTING);
    if (!connections)
        return QString();
    NetProfileSettings settings;
    if (connections->IGetProfileSettings(profileName, &settings) != 0)
        return QString();
    return settings.apn;
}

QString DiagnosticsUILogic::getProfileName()
{
    QString name;
    IDialupUIService *dialup = hostPlugin<IDialupUIService>(__func__, CLSID_DIALUP_UI_SERVICE,
                                                            PLUGIN_TYPE_DIALUP_UI_SERVICE);
    if (dialup)
        dialup->IGetProfileName(name);
    return name;
}

IStatusBarUI *DiagnosticsUILogic::getStatusBarInstance()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    return hostPlugin<IStatusBarUI>(__func__, CLSID_STATUSBAR_UI, PLUGIN_TYPE_STATUSBAR_UI);
}
