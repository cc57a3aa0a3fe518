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

    /// The object names of a row's labels.
    static QString captionName(const QString &rowName);
    static QString valueName(const QString &rowName);

    /// Sets the caption's text and makes the value show plain text, which can be selected and
    /// copied.
    static void setUp(QLabel *caption, QLabel *value, const QString &text);

    /// Finds a label of a row below a widget. Returns null if there is none, or if \a below is
    /// null.
    static QLabel *caption(const QWidget *below, const QString &rowName);
    static QLabel *value(const QWidget *below, const QString &rowName);

    /// Sets the caption's text of a row, if there is such a row.
    static void setCaption(const QWidget *below, const QString &rowName, const QString &text);

    /// Replaces "SIM/USIM" in the caption of a row, if there is such a row.
    static void replaceSimWording(const QWidget *below, const QString &rowName,
                                  const QString &wording);
};

#endif
