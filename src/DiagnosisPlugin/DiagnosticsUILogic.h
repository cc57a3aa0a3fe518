// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICSUILOGIC_H
#define DIAGNOSTICSUILOGIC_H

#include <QObject>
#include <QString>

class DiagnosticsConfigParse;
class IStatusBarUI;

/// The query layer. It calls the device SDK, turns the device's events into signals and answers
/// each query with display text.
///
/// A getter asks the device anew each time. It returns plain text, or a resource key ("IDS_...")
/// that the caller translates. On a failure it returns an empty text, unless its comment names
/// another, and logs the SDK's result.
///
/// A counted singleton: each GetInstance() counts one reference, and only the Destroy() that finds
/// the count at 0 deletes the object. Used on the GUI thread, except OnDevEvents().
class DiagnosticsUILogic : public QObject
{
    Q_OBJECT

public:
    // Message stores, for GetMessageCount().
    static const int SimStorage;
    static const int DeviceStorage;

    static DiagnosticsUILogic *GetInstance();
    static void Destroy();

    /// The callback for the device's events, called on a thread of the SDK's own. Returns 1 for an
    /// event that it handles, else 0.
    static int OnDevEvents(int event, void *data);

    void RegisterWithDevice();
    void UnRegisterDevice();

    /// An RSSI reading of 0 to 31 (3GPP TS 27.007) in dBm; the unknown key for any other reading.
    QString returnString(int rssi);
    /// Sets *text to the resource key of a registration state, see VELT_REGISTRATION.
    void switchCase(int state, QString *text);

    QString GetSoftwareVersion();
    QString GetFirmwareVersion();
    QString GetHardwareVersion();
    QString GetIMEI();
    QString GetSerialNumber();
    QString GetApplicationPort();
    QString GetDeviceName();
    /// "WCDMA", "CDMA", "TD_SCDMA" or "UNKNOWN".
    QString GetDeviceType();
    QString GetEsn();
    /// Whether the ESN is a pseudo-ESN, which is derived from the MEID; false on failure.
    bool IsPesn();
    QString GetMeid();
    QString GetPrlVersion();
    QString GetVoltage();
    QString GetMulticarrier();

    /// Name and type of the network, as the host's status bar shows them.
    QString GetNetworkName();
    QString GetNetworkType();
    /// "3G" on UTRAN, else "UNKNOWN".
    QString getNetwork();
    /// A resource key.
    QString GetSelectionMode();
    /// Resource keys.
    QString GetCsRegister();
    QString GetPsRegister();
    QString GetPsAttachment();
    /// In dBm, or the unknown key; the scale depends on the device type.
    QString GetRSSI();
    /// The raw RSSI and bit error rate class.
    QString GetSignalStrength();
    QString GetRSQUAL();
    QString GetRSCP();
    QString GetECIO();
    QString GetECNO();
    /// Both leave the device in the report mode that includes the location.
    QString GetCellID();
    QString GetLACCode();

    /// "Roaming" or "Unknown", plain texts.
    QString GetSimStatus();
    /// A resource key.
    QString GetPinStatus();
    QString GetIMSINumber();
    QString GetICCID();
    QString GetOwnNumber();
    QString GetSMSC();
    /// Counts are "used / capacity".
    QString GetContactCountinSim();
    QString GetContactCountinDevice();
    /// \a storage is SimStorage or DeviceStorage.
    QString GetMessageCount(int storage);

    /// Of the current connection profile and the device name that was read last.
    QString GetIPAddress();
    QString GetDNSServer();
    /// Of the current connection profile.
    QString GetAPN();
    QString getProfileName();
    /// The host's status bar, or null. The host owns it and may delete it: do not keep it.
    IStatusBarUI *getStatusBarInstance();

Q_SIGNALS:
    void DeviceAvailable();
    void DeviceUnavailable();

private:
    DiagnosticsUILogic();
    ~DiagnosticsUILogic() override;
    Q_DISABLE_COPY(DiagnosticsUILogic)

    void loadConfigFile();

    static DiagnosticsUILogic *_Instance;
    static int m_iInstanceCount;

    DiagnosticsConfigParse *m_pConfigParse;
    QString m_strDeviceName; ///< the name that GetDeviceName() read last
};

#endif
