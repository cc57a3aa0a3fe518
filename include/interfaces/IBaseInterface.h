// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef IBASEINTERFACE_H
#define IBASEINTERFACE_H

/// The root of every interface of the host's plug-in framework.
///
/// The host calls plug-ins through the virtual tables of these interfaces, so the order of the
/// virtual functions, here and in every derived interface, is part of the binary contract. All
/// operations are called on the host's GUI thread.
class IBaseInterface
{
public:
    virtual ~IBaseInterface() {}

    /// The host has no further use for the plug-in's resources. It does not delete the object.
    virtual void Release() = 0;

    /// The code of the last error, 0 for none. The codes are the plug-in's own.
    virtual int GetLastError() = 0;
};

#endif
