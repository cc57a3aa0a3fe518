// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef FUZZ_H
#define FUZZ_H

#include "DiagnosticsUIPlugin.h"

#include "TestSupport.h"

#include <QPushButton>

#include <cstddef>
#include <cstdint>

/// The entry of libFuzzer; without it, replay.cpp calls it for the files of the corpus.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

/// What both fuzz targets share.
namespace Fuzz {

/// Ends the program, as a find, unless the condition holds.
void require(bool condition, const char *rule, const QString &detail = QString());

/// The English host in which all inputs run; any warning of the toolkit is a find.
TestSupport::ConfiguredHost &host();

/// One life of the plug-in. Both singletons go with it, so that no input sees an earlier one.
class Session
{
public:
    Session();
    ~Session();

    /// What ShowWindow() says.
    int show();
    /// A button of the window by its object name, "DiagnosticsUIPlugin_pushButton" left out.
    QPushButton *button(const char *name) const;
    /// Presses a Save button, and gives what was written.
    QByteArray save(const char *name);

    DiagnosticsUIPlugin plugin;
    QWidget *const parent;
};

} // namespace Fuzz

#endif
