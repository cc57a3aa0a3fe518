// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// Names that Qt 4.8 lacks. The plug-in's sources are compiled behind this header: a use of one of
// them is an error. Qt's own headers use them too, so they come first. Left out are the names that
// DiagnosticsToolkit.h uses under its conditions, and those that 4.8 has in another class.

#include <QtWidgets>

// clang-format off
// Macros: what Qt's macros that remain expand to does not change.
#undef QByteArrayLiteral
#undef QStringLiteral
#undef QStringViewLiteral
#undef Q_ASSUME
#undef Q_DECLARE_LOGGING_CATEGORY
#undef Q_DECL_FINAL
#undef Q_DECL_NOEXCEPT
#undef Q_DECL_OVERRIDE
#undef Q_ENUM
#undef Q_FALLTHROUGH
#undef Q_FLAG
#undef Q_LOGGING_CATEGORY
#undef Q_NULLPTR
#undef Q_STATIC_ASSERT
#undef Q_UNREACHABLE
#undef qCDebug
#undef qCWarning
#undef qInfo
#undef qUtf16Printable
#undef qUtf8Printable
#pragma GCC poison QByteArrayLiteral QStringLiteral QStringViewLiteral Q_ASSUME
#pragma GCC poison Q_DECLARE_LOGGING_CATEGORY Q_DECL_FINAL Q_DECL_NOEXCEPT Q_DECL_OVERRIDE Q_ENUM
#pragma GCC poison Q_FALLTHROUGH Q_FLAG Q_LOGGING_CATEGORY Q_NULLPTR Q_STATIC_ASSERT Q_UNREACHABLE
#pragma GCC poison qCDebug qCWarning qInfo qUtf16Printable qUtf8Printable

// Functions
#pragma GCC poison qAsConst qEnvironmentVariable qEnvironmentVariableIsSet qInstallMessageHandler
#pragma GCC poison qOverload qScopeGuard qSetMessagePattern

// Classes
#pragma GCC poison QCommandLineParser QDeadlineTimer QGuiApplication QJsonArray QJsonDocument
#pragma GCC poison QJsonObject QLockFile QLoggingCategory QMessageLogContext QOverload
#pragma GCC poison QRandomGenerator QRegularExpression QSaveFile QScreen QSignalBlocker
#pragma GCC poison QStandardPaths QStringView QTemporaryDir QTimeZone QVersionNumber

// Members
#pragma GCC poison chopped constFirst constLast currentSecsSinceEpoch fromSignal grab horizontalAdvance
#pragma GCC poison isSignalConnected methodSignature readLineInto setTabBarAutoHide setTabVisible
#pragma GCC poison setTabletTracking setToolTipDuration swapItemsAt toHtmlEscaped toSecsSinceEpoch
