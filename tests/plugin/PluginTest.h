// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef PLUGINTEST_H
#define PLUGINTEST_H

#include "TestSupport.h"

#include <QObject>

class DiagnosticsUIPlugin;
class QPushButton;
class QTabWidget;

/// A plug-in in an English host with a window and a log, on the simulated WCDMA modem.
class PluginTest : public QObject
{
    Q_OBJECT

protected:
    /// An empty configuration stands for the shipped one.
    void setUp(const QByteArray &configuration = QByteArray());

    /// Ends all, both singletons included, so that what is then left is a leak; there may have been
    /// no warning.
    void tearDown();

    /// Writes the configuration, unless it is empty, initialises the plug-in and shows its window.
    void open(const QByteArray &configuration = QByteArray());

    /// What ShowWindow() says.
    int show();

    QString path(const char *file) const;
    QTabWidget *tabs() const;
    /// A button of the shown window by its object name, "DiagnosticsUIPlugin_pushButton" left out.
    QPushButton *button(const char *name) const;
    /// A line of the plug-in's log, of DiagnosticsUIPlugin if no source is given.
    static QString line(const char *message, const char *source = "DiagnosticsUIPlugin");

    /// Plays the commands of a section, "[name]", of a file beside the test, and compares what
    /// follows from them with the indented lines behind them: the SDK calls, or the rows of the
    /// window.
    ///     configuration XML | language NAME | modem NAME | set KEY=VALUE;... | fail FUNCTION
    ///     open | visit INDEX | refresh | unplug | plug | rows
    void play(const QString &file, const QString &section);

    /// Compares with the lines of a file beside the test; a difference leaves "<file>.actual" in
    /// the current folder.
    static void compareWithGolden(const QString &file, const QStringList &lines);

private:
    QStringList perform(const QString &command, const QString &argument);

protected:
    TestSupport::LogCapture *m_log = nullptr;
    TestSupport::ConfiguredHost *m_host = nullptr;
    QWidget *m_parent = nullptr;
    DiagnosticsUIPlugin *m_plugin = nullptr;
};

#endif
