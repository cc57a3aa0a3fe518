// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef INETCONNECTSETTING_H
#define INETCONNECTSETTING_H

#include <QObject>
#include <QString>

/// Where the container holds the host's connection settings.
static const char CLSID_NET_CONNECT_SETTING[] = "6E19A4D7-2B85-4c30-B7F6-13D08C9A5E42";
enum
{
    PLUGIN_TYPE_NET_CONNECT_SETTING = 28689
};

/// One connection profile. All fields are texts, empty where the profile says nothing; their order
/// is part of the binary contract.
struct NetProfileSettings
{
    QString profileName;
    QString connectionType;
    QString dialNumber;
    QString userName;
    QString password;
    QString authentication;
    QString pdpType;
    QString pdpAddress;
    QString apn; ///< the ninth field: the access point name, 3GPP TS 23.003
    QString apnMode;
    QString ipMode;
    QString ipAddress;
    QString dnsMode;
    QString primaryDns;
    QString secondaryDns;
    QString primaryWins;
    QString secondaryWins;
    QString idleTimeout;
    QString readOnly;
};

/// The host's connection settings.
/// Implemented by a plug-in of the host, found through the container; called on the GUI thread.
class INetConnectSetting
{
public:
    virtual ~INetConnectSetting() {}

    /// Fills the caller's record with the settings of the named profile. 0 on success; any other
    /// value, for a profile that does not exist say, leaves the record as it was.
    virtual int IGetProfileSettings(QString profileName, NetProfileSettings *settings) = 0;
};

Q_DECLARE_INTERFACE(INetConnectSetting, "com.velt.INetConnectSetting")

#endif
