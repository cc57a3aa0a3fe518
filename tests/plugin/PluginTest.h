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
    /// A visible button by its object name without "DiagnosticsUIPlugin_pushButton" or, in the
    /// window of CDMA devices, "DiagnosticsUIPlugin_pushButtonCdma".
    QPushButton *button(const char *name) const;
    /// Compares lines; a difference leaves those there are in "<name>.actual" in the current
    /// folder.
    static void compare(const QString &name, const QStringList &actual,
                        const QStringList &expected);
    /// The same with the lines of a file beside the test.
    static void compareWithGolden(const QString &file, const QStringList &lines);

    TestSupport::LogCapture *m_log = nullptr;
    TestSupport::ConfiguredHost *m_host = nullptr;
    QWidget *m_parent = nullptr;
    DiagnosticsUIPlugin *m_plugin = nullptr;
};

#endif
