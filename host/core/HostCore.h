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
class QPoint;
class QRect;
class QWidget;

/// The host's side of libcore: the host sets here what plug-ins read through include/core. All
/// functions must be called on the GUI thread.
namespace HostCore {

/// Sets what CommonUtils::GetPluginLibraryPath() returns.
CORE_EXPORT void setPluginLibraryPath(const QString &path);

/// Sets the INI file that CommonUtils::GetSettings() reads. With a null name there are no settings.
CORE_EXPORT void setSettingsFile(const QString &fileName);

/// Sets the language of Change::tr() and of Qt's own texts. \a folder has the files
/// "host_<language>.qm". Texts that the language lacks are English. Returns false, and changes
/// nothing, if there is no file for the language.
CORE_EXPORT bool setLanguage(const QString &folder, const QString &language);

/// The languages of the files in \a folder, sorted.
CORE_EXPORT QStringList languages(const QString &folder);

/// The language of the system if \a folder has a file for it, else English.
CORE_EXPORT QString systemLanguage(const QString &folder);

/// The diagnostics plug-in's text for a resource key.
CORE_EXPORT QString pluginText(const QString &key);

/// The resource keys that have a text.
CORE_EXPORT QStringList resourceKeys();

/// Sets what Startup::GetPluginContainer() returns. May be null. Not owned.
CORE_EXPORT void setPluginContainer(PluginContainer *container);

/// Sets the host's font, style and spacing. With them a page of 15 rows fits the fixed size of the
/// diagnostics window.
CORE_EXPORT void applyLook(QApplication &application);

/// Sets whether dialogs that are made from now on stay off the screen, because they are only read.
CORE_EXPORT void setDialogsUnseen(bool unseen);

/// Places a window as CommonUtils::MoveCentre() does, with the middle of its frame at \a centre,
/// but for what would not be on \a screen.
CORE_EXPORT void placeFrame(QWidget *window, const QRect &screen, const QPoint &centre);

/// The host's container. It forgets a plug-in that is deleted.
class CORE_EXPORT PluginRegister : public PluginContainer
{
public:
    /// Adds a plug-in, which is not owned. It hides earlier ones of the same identifier and type.
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
