// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

/// All that differs between the versions of Qt that the plug-in compiles with: 4.8, 5 and 6. No
/// other file of the plug-in has a condition on the version.

#ifndef DIAGNOSTICSTOOLKIT_H
#define DIAGNOSTICSTOOLKIT_H

#include <QStringList>
#include <QtPlugin>

#if QT_VERSION >= 0x060000
#include <QStringConverter>
#endif

// The export of the plug-in: the first macro stands in the class, the second in one source file.
// The first must stand between two of Qt's own macros, since the moc of Qt 4 does not expand it and
// can skip it only there.
#if QT_VERSION >= 0x050000
#define DIAGNOSTICS_PLUGIN_METADATA Q_PLUGIN_METADATA(IID "com.velt.DiagnosisPlugin")
#define DIAGNOSTICS_EXPORT_PLUGIN(name, className)                                                 \
    extern "C" Q_DECL_EXPORT const char *qt_plugin_query_verification_data();                      \
    const char *qt_plugin_query_verification_data()                                                \
    {                                                                                              \
        return "pattern=QT_PLUGIN_VERIFICATION_DATA\n"                                             \
               "version=4.6.2\n"                                                                   \
               "debug=false\n"                                                                     \
               "buildkey=" DIAGNOSTICS_BUILD_KEY;                                                  \
    }
#else
#define DIAGNOSTICS_PLUGIN_METADATA
#define DIAGNOSTICS_EXPORT_PLUGIN(name, className) Q_EXPORT_PLUGIN2(name, className)
#endif

// Templates, so that a file that needs only the macros includes neither streams nor widgets.

template <typename TextStream>
void setUtf8(TextStream &stream)
{
#if QT_VERSION >= 0x060000
    stream.setEncoding(QStringConverter::Utf8);
#else
    stream.setCodec("UTF-8");
#endif
}

/// Lets a file dialog offer local files only. Qt before 5.6 does not have this setting.
template <typename FileDialog>
void offerLocalFiles(FileDialog &dialog)
{
#if QT_VERSION >= 0x050600
    dialog.setSupportedSchemes(QStringList(QLatin1String("file")));
#else
    Q_UNUSED(dialog)
#endif
}

#endif
