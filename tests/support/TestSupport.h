// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef TESTSUPPORT_H
#define TESTSUPPORT_H

#include "simulated/SimulatedModem.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

class QPushButton;
class QWidget;

/// What the tests of the plug-in share: data files, the log, the modem, the configuration, the
/// window as text.
namespace TestSupport {

/// The lines of a section, "[name]", of a file, without comments; indented lines follow the one
/// before them behind " | ".
QStringList section(const char *fileName, const char *name);

/// Adds a row of test data for each line of a section: its fields, which " | " separates, in the
/// one column "fields". Fields may have escapes.
void addRows(const char *fileName, const char *name);

/// The content of a file, which must be readable.
QByteArray contentOf(const QString &path);

/// A text with its escapes replaced: \n, \xNN (Latin-1), \uNNNN (UTF-16), and c{N} for N times c.
QString unescape(QString text);

/// The texts between '|'.
QStringList list(const char *texts);

/// Changes values of the modem: "key=value", separated by semicolons.
void setValues(const QString &changes);

/// Takes Qt's messages while it lives. Debug lines are the plug-in's log; their time
/// field, if well-formed, reads "TIME". All other messages are warnings.
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();

    /// The lines since the last call.
    QStringList takeLog();
    QStringList takeWarnings();
};

/// Attaches a modem of host/modems, plugged in. None of its results is set.
void attachModem(const char *name);

/// The modem that attachModem() attached last.
SimulatedModem &modem();

/// Puts the host into a language of host/translations.
void setLanguage(const char *language);

/// The SDK calls recorded since the last startRecording(), "function(arguments)"; the record goes
/// on anew.
QStringList takeCalls();

/// An English host whose plug-in folder is temporary and holds the given configuration.
class ConfiguredHost
{
public:
    /// With the shipped configuration.
    ConfiguredHost();
    explicit ConfiguredHost(const QByteArray &configuration);
    ~ConfiguredHost();

    QString folder() const { return m_folder.path() + QLatin1String("/plugins/DiagnosisPlugin/"); }
    /// Writes a file into the plug-in's folder.
    void write(const char *fileName, const QByteArray &content);

private:
    QTemporaryDir m_folder;
};

/// The visible diagnostics window, or null.
QWidget *diagnosticsWindow();

/// A diagnostics window, or that below a widget, as text: "[title]" for each tab and "caption =
/// value" for each row; without visiting any tab.
QStringList flatten(QWidget *window);

/// What is squeezed or cut off of the visible labels and buttons of a window.
QStringList clipped(const QWidget *window);

/// Presses a Save button, answers its file dialog with a path, or cancels it for a null one, and
/// accepts all message boxes, of which it gives "caption: text". Before each answer it asks
/// \a meanwhile, with "file dialog" or "message box", whether to wait a little longer.
QStringList save(QPushButton *button, const QString &path,
                 const std::function<bool(const char *)> &meanwhile = nullptr);

/// Runs the event loop until all posted events, deferred deletions included, are delivered.
void settle();

} // namespace TestSupport

#endif
