// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef STANDINS_H
#define STANDINS_H

#include <QList>
#include <QMap>
#include <QString>

#include <functional>

class QWidget;

/// What the tests have put in front of functions of libcore, libsdk and the C++ library.
namespace StandIns {

extern QMap<QString, QString> hostTexts; ///< by resource key, in place of the host's
/// Called with a resource key before the host gives its text.
extern std::function<void(const QString &key)> hostIsAsked;
extern int frameType;                  ///< of the host's frame made last
extern QList<const QWidget *> centred; ///< what the plug-in has moved to the middle of its parent
extern QString messageBox;             ///< the last one, by its arguments
extern QString pinPresets;             ///< what the outputs for the PIN were before the last call

/// Forgets all, and puts nothing in place of the host's any more.
void reset();

/// Of the objects that the plug-in asks memory for, counted from now, there is none for these.
void loseMemory(int first, int last);
/// The objects asked for since then.
int objectCount();

} // namespace StandIns

#endif
