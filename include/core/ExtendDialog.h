// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef EXTENDDIALOG_H
#define EXTENDDIALOG_H

#include "CoreExport.h"

#include <QDialog>

class QVBoxLayout;

/// The host's dialog frame: a window with title bar and close button around one content widget.
/// Used on the GUI thread.
///
/// Plug-ins make it with new, so its size, its base class and the order of its virtual functions
/// are part of the binary contract: a plug-in is built with the header of the host that loads it.
class CORE_EXPORT ExtendDialog : public QDialog
{
    Q_OBJECT

public:
    /// \a parent owns the frame and may be null. \a flags are the hints of the title bar;
    /// the frame adds the title and what a dialog needs. \a widgetType chooses the frame: 1 is the
    /// plain dialog, and unknown types are shown like it.
    ExtendDialog(QWidget *parent, Qt::WindowFlags flags, int widgetType);
    ~ExtendDialog() override;

    /// Puts the content widget into the frame, which takes ownership of it. A later call replaces
    /// the content, and null is ignored.
    void AddMainWidget(QWidget *widget);

    /// The text of the title bar.
    void setWindowTitle(const QString &title);

    /// Resizes the frame so that its content has the given size, in pixels.
    void changeSize(const QSize &size);

    /// Ends the dialog (Cancel, Esc and accept() come here): hides it and emits dlgCloseEvent().
    void done(int result) override;

Q_SIGNALS:
    /// The dialog has ended: emitted exactly once in its life, in whichever way it ended (button,
    /// title bar, Esc, or destruction with its parent).
    void dlgCloseEvent();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void end();

    QVBoxLayout *m_layout;
    QWidget *m_content;
    bool m_ended;
};

#endif
