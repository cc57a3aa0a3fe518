// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICSREADER_H
#define DIAGNOSTICSREADER_H

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

struct ShownRow
{
    QString name; ///< the configured name, or the resource key in the window of CDMA devices
    QString caption;
    QString value;

    /// Returns false if the value is empty, the unknown text or "not implement".
    bool isKnown() const;
};

struct ShownPage
{
    QString name; ///< the configured name. Null for the window of CDMA devices
    QString title;
    QList<ShownRow> rows;
};

/// Reads the open diagnostics window. It finds the widgets by their object names.
class DiagnosticsReader
{
public:
    /// Reads the visible diagnostics window.
    DiagnosticsReader();

    /// Reads \a window, or the diagnostics window among its children.
    explicit DiagnosticsReader(QWidget *window);

    /// Null if no window was open, or if it has been deleted since.
    QWidget *window() const { return m_window; }

    /// The configured names of the tabs, in their order. Empty for the window of CDMA devices.
    QStringList tabNames() const;

    /// Shows the tab with a configured name. Returns false if there is none.
    bool selectTab(const QString &name) const;

    /// All pages as they are. A tab that was never shown has no values.
    QList<ShownPage> pages() const;

    /// All pages, with values: shows each tab once, and then again the one that is shown now.
    QList<ShownPage> read() const;

    /// The same, but the values of each tab are read from the modem again.
    QList<ShownPage> readAgain() const;

private:
    void visit(void (*each)(const QWidget *window)) const;

    QPointer<QWidget> m_window;
};

#endif
