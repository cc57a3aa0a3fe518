// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef IDIALUPUISERVICE_H
#define IDIALUPUISERVICE_H

#include <QObject>
#include <QString>

/// Where the container holds the host's dial-up service.
static const char CLSID_DIALUP_UI_SERVICE[] = "5B7E2C90-1F3A-4D6E-9C08-7A41E25F0B96";
enum
{
    PLUGIN_TYPE_DIALUP_UI_SERVICE = 16401
};

/// The host's dial-up service, which knows the connection profile in use.
/// Implemented by a plug-in of the host, found through the container; called on the GUI thread.
class IDialupUIService
{
public:
    virtual ~IDialupUIService() {}

    /// The name of the current connection profile. 0 on success; without a profile \a name is left
    /// as it was.
    virtual int IGetProfileName(QString &name) = 0;
};

Q_DECLARE_INTERFACE(IDialupUIService, "com.velt.IDialupUIService")

#endif
