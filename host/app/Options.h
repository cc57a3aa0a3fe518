// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef OPTIONS_H
#define OPTIONS_H

#include <QString>
#include <QStringList>

/// The options of the command line. Texts that were not given are null.
struct Options
{
    /// Reads the arguments. Returns false, with the reason in *\a error, if they are wrong. If
    /// they ask for help or the version, nothing but \a information is set.
    bool parse(const QStringList &arguments, QString *error);

    /// Whether the arguments ask for something that shows no window. Can be called before the
    /// application object is made.
    static bool needNoScreen(int count, const char *const *arguments);

    /// Whether the program ends without its user closing a window.
    bool endsByItself() const { return print || report || !screenshot.isNull(); }

    QString information; ///< the help or the version, to be printed
    QString modem;
    QString language;
    QString log;
    QString tab;
    QString screenshot;
    QString reportFile; ///< null and "-" stand for standard output
    QString configFile; ///< to be checked
    bool listModems = false;
    bool open = false;
    bool print = false;
    bool report = false;
    bool json = false;
    bool mask = false;
};

#endif
