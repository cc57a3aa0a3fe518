// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICSROW_H
#define DIAGNOSTICSROW_H

#include <QString>

class QLabel;
class QWidget;

/// What the rows of both windows have in common: a caption and a value label, which are found again
/// by their object names. GUI thread.
class DiagnosticsRow
{
public:
    enum
    {
        CaptionWidth = 185 ///< in pixels
    };

    /// Names the two labels after the row, gives the caption its text and prepares the value for
    /// texts from outside.
    static void setUp(QLabel *caption, QLabel *value, const QString &rowName, const QString &text);

    /// The labels of a row below a widget, which may be null; null where there is none.
    static QLabel *caption(const QWidget *below, const QString &rowName);
    static QLabel *value(const QWidget *below, const QString &rowName);

    /// Changes the caption of a row, if there is such a row.
    static void setCaption(const QWidget *below, const QString &rowName, const QString &text);

    /// Puts another wording in place of "SIM/USIM" in the caption of a row, if there is such a row.
    static void replaceSimWording(const QWidget *below, const QString &rowName,
                                  const QString &wording);
};

#endif
