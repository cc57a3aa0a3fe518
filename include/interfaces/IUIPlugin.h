// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef IUIPLUGIN_H
#define IUIPLUGIN_H

#include "IBasePlugin.h"

class QRect;
class QWidget;

/// A plug-in that shows a window. All operations are called on the GUI thread.
class IUIPlugin : public IBasePlugin
{
public:
    /// Shows the plug-in's window without blocking. \a parent is the host widget that the window
    /// belongs to and is deleted with; it may be null. \a rect is the area that the host offers,
    /// which a plug-in may ignore. 1 when a window is shown, 0 otherwise.
    virtual int ShowWindow(QWidget *parent, QRect &rect) = 0;

    /// Shows the window and blocks until it is closed; returns the dialog's result code.
    virtual int DoModal() = 0;

    /// Hides an embedded window.
    virtual void Hide() = 0;

    /// Lets the plug-in change the rectangle, in pixels, that the host plans for it.
    virtual void FitSize(QRect &rect) = 0;

    /// Whether an embedded window may be shown.
    virtual bool IsReady() = 0;

    /// The user chose another language, given by its name. True when the plug-in accepts it.
    virtual bool ChangeLang(const QString &language) = 0;
};

Q_DECLARE_INTERFACE(IUIPlugin, "com.velt.IUIPlugin")

#endif
