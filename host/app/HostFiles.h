// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef HOSTFILES_H
#define HOSTFILES_H

#include <QCoreApplication>
#include <QDir>

/// The files and folders of the host, relative to the folder above the program's. The build tree is
/// laid out like an installed one.
namespace HostFiles {

const char Libraries[] = HOST_LIBRARY_DIR;
const char Plugin[] = HOST_PLUGIN_DIR "/libDiagnosisPlugin.so";
const char Configuration[] = HOST_PLUGIN_DIR "/DiagnosisConfig.xml";
const char ConfigurationSchema[] = HOST_PLUGIN_DIR "/DiagnosisConfig.xsd";
const char Modems[] = HOST_DATA_DIR "/modems";
const char Translations[] = HOST_DATA_DIR "/translations";
const char Settings[] = HOST_DATA_DIR "/host.ini";
const char Icon[] = HOST_ICON;

/// The absolute path of one of these. The application object must exist.
inline QString path(const char *file)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String("/../") +
                           QLatin1String(file));
}

} // namespace HostFiles

#endif
