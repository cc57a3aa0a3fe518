// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef DIAGNOSTICSWINDOW_H
#define DIAGNOSTICSWINDOW_H

#include <QHash>
#include <QString>

class ExtendDialog;
class QHBoxLayout;
class QObject;
class QPushButton;
class QWidget;

/// What both windows have in common: the frame and the buttons. GUI thread.
class DiagnosticsWindow
{
public:
    /// Creates the host's frame for a window; returns null if there is no memory for it.
    static ExtendDialog *createFrame(QWidget *parent);

    /// Whether the settings ask for a Save button; \a settings may be null.
    static bool hasSaveButton(const QHash<QString, QString> *settings);

    /// Gives a button the text of a resource key, and connects its clicked() to a slot.
    static void setUpButton(QPushButton *button, const char *textKey, QObject *receiver,
                            const char *slot);

    /// Lays out the buttons, aligned right, with a gap between them and a margin behind them, both
    /// in pixels. The Tab key goes through them in this order; Cancel has the focus and is the
    /// default. \a save may be null.
    static void layOutButtons(QHBoxLayout *layout, QPushButton *save, QPushButton *refresh,
                              QPushButton *cancel, int gap, int rightMargin);

    /// Shows a window in the middle of its parent, or of the screen if it has none. The window
    /// deletes itself when it is closed.
    static void show(ExtendDialog *window);
};

#endif
