// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef COMMONUTILS_H
#define COMMONUTILS_H

#include "CoreExport.h"

#include <QMessageBox>
#include <QString>

class QDialog;
class QWidget;

/// The host's utilities. All are called on the GUI thread.
class CORE_EXPORT CommonUtils
{
public:
    /// The folder of the host's libraries, absolute, without a slash at its end. Plug-ins live
    /// below it: "<path>/plugins/<plug-in>/".
    static QString GetPluginLibraryPath();

    /// A value of the host's settings file, by group and key; a null string where there is none.
    /// The diagnostics plug-in asks for "version" of the group "version", the host's software
    /// version.
    static QString GetSettings(const QString &group, const QString &key);

    /// Shows a message box and blocks, in an event loop of its own, until the user has answered or
    /// the parent is gone.
    ///
    /// \a parent may be null; the box goes when it is deleted. \a button1 to \a button3 are the
    /// texts of up to three buttons, an empty text for none; a text that is a resource key
    /// ("IDS_...") is translated. \a modal makes the box modal to the window of \a parent, else it
    /// is modeless while the call waits. \a flags are added to those of a dialog. *\a box, where
    /// \a box is not null, points to the box while it is shown and is null afterwards; the caller
    /// does not own it. \a details is a longer text that the user can unfold. \a centre puts the
    /// box in the middle of its parent.
    ///
    /// Returns the number of the pressed button, 1 to 3, or 0 when the box was closed in another
    /// way. \a parent and its children may have been deleted by then.
    static int ShowMessage(QMessageBox::Icon icon, QWidget *parent, QString caption, QString text,
                           QString button1, QString button2, QString button3, bool modal,
                           Qt::WindowFlags flags, QDialog **box, QString details, bool centre);

    /// Moves a dialog to the middle of its parent's window, or of the screen if it has none. Its
    /// whole frame, title bar included, is kept on the screen; if it is larger than the screen, its
    /// upper left corner is. A dialog that was shown but not seen yet is placed again when it is
    /// first seen, since the window manager has not told the size of its frame before.
    static void MoveCentre(QDialog *dialog);

    /// Measures a text, one line, in the application's font. \a height takes the width of the text
    /// and \a width the height of a row that shows it, both in pixels: the names are swapped,
    /// and callers rely on the order.
    static void GetApplicationStringHeightAndWidth(const QString &text, int &height, int &width);
};

#endif
