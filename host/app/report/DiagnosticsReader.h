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
    QString name; ///< the configured name; in the window of CDMA devices the resource key
    QString caption;
    QString value;

    /// Whether the value is neither empty nor the unknown text.
    bool isKnown() const;
};

struct ShownPage
{
    QString name; ///< the configured name; null for the window of CDMA devices
    QString title;
    QList<ShownRow> rows;
};

/// Reads the open diagnostics window, which the host knows by the names of its objects only.
class DiagnosticsReader
{
public:
    /// Takes the visible diagnostics window.
    DiagnosticsReader();

    /// Takes this window, or the one below it.
    explicit DiagnosticsReader(QWidget *window);

    /// The window; null when none is open, or no longer.
    QWidget *window() const { return m_window; }

    /// The configured names of the tabs, in their order; none for the window of CDMA devices.
    QStringList tabNames() const;

    /// Shows the tab with this configured name; false when there is none.
    bool selectTab(const QString &name) const;

    /// All pages as they are; a tab that was never visited has no values.
    QList<ShownPage> pages() const;

    /// All pages. Each tab is visited, which fills it, and the one shown now is shown again.
    QList<ShownPage> read() const;

private:
    QPointer<QWidget> m_window;
};

#endif
