// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICSROW_H
#define DIAGNOSTICSROW_H

#include <QString>

class QLabel;
class QWidget;

/// A row of either window: a caption and a value label, which are found by their object names. GUI
/// thread.
class DiagnosticsRow
{
public:
    enum
    {
        CaptionWidth = 185 ///< in pixels
    };

    /// Names the two labels after the row, sets the caption's text and makes the value show plain
    /// text, which can be selected and copied.
    static void setUp(QLabel *caption, QLabel *value, const QString &rowName, const QString &text);

    /// A label of a row among the descendants of a widget, which may be null; null if there is
    /// none.
    static QLabel *caption(const QWidget *below, const QString &rowName);
    static QLabel *value(const QWidget *below, const QString &rowName);

    /// Sets the caption's text of a row, if there is such a row.
    static void setCaption(const QWidget *below, const QString &rowName, const QString &text);

    /// Replaces "SIM/USIM" in the caption of a row, if there is such a row.
    static void replaceSimWording(const QWidget *below, const QString &rowName,
                                  const QString &wording);
};

#endif
