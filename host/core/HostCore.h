// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef HOSTCORE_H
#define HOSTCORE_H

#include "core/CoreExport.h"
#include "core/Startup.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

class QApplication;

/// The host's side of libcore: what plug-ins read through include/core is set here.
/// All of it is used on the GUI thread.
namespace HostCore {

/// What CommonUtils::GetPluginLibraryPath() gives.
CORE_EXPORT void setPluginLibraryPath(const QString &path);

/// The INI file that CommonUtils::GetSettings() reads. A null name stands for no settings.
CORE_EXPORT void setSettingsFile(const QString &fileName);

/// Chooses the language of Change::tr() and of the toolkit's own texts from the files
/// "host_<language>.qm" in \a folder. English stands in for what the language lacks. False when the
/// folder has no file for the language, and then nothing changes.
CORE_EXPORT bool setLanguage(const QString &folder, const QString &language);

/// The languages that \a folder has files for, sorted.
CORE_EXPORT QStringList languages(const QString &folder);

/// The language of the system if \a folder has a file for it, else English.
CORE_EXPORT QString systemLanguage(const QString &folder);

/// The text of the diagnostics plug-in for a resource key.
CORE_EXPORT QString pluginText(const QString &key);

/// What Startup::GetPluginContainer() gives; null for none. Not owned.
CORE_EXPORT void setPluginContainer(PluginContainer *container);

/// Gives the application the host's font, style and spacing, in which a page of the diagnostics
/// window with 15 rows fits its fixed size.
CORE_EXPORT void applyLook(QApplication &application);

/// The host's container. Plug-ins that are deleted leave it by themselves.
class CORE_EXPORT PluginRegister : public PluginContainer
{
public:
    /// Registers a plug-in, not owned. A later one with the same identifier and type wins.
    void add(const QString &classIdentifier, int pluginType, QObject *plugin);

    QObject *GetPlugin(const QString &classIdentifier, int pluginType) override;

private:
    struct Entry
    {
        QString classIdentifier;
        int pluginType;
        QPointer<QObject> plugin;
    };
    QList<Entry> m_entries;
};

} // namespace HostCore

#endif
