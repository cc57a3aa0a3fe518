// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef FUZZ_H
#define FUZZ_H

#include "DiagnosticsConfigParse.h"
#include "PluginTest.h"

#include <QtWidgets>

#include <cstdio>
#include <cstdlib>

/// The entry of libFuzzer.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

struct Application
{
    Application()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static int argc = 1;
        static char name[] = "fuzz";
        static char *argv[] = {name, nullptr};
        static QApplication application(argc, argv);
    }
};

/// One life of the plug-in. Nothing of it stays, so that no input sees an earlier one.
class Session : Application, PluginTest
{
public:
    ~Session()
    {
        const QString warnings = end().join(' ');
        require(warnings.isEmpty(), qPrintable(warnings));
    }

    /// Ends the program, as a find, unless the condition holds.
    static void require(bool condition, const char *rule)
    {
        if (condition)
            return;
        std::fprintf(stderr, "Not so: %s\n", rule);
        std::abort();
    }

    void write(const QByteArray &configuration)
    {
        m_host.write("DiagnosisConfig.xml", configuration);
    }

    const QList<TabDetails> &init()
    {
        m_plugin->Init();
        return *DiagnosticsConfigParse::GetInstance()->GetTabInformation();
    }

    /// Opens the window, visits and refreshes each of its tabs. Returns the values' labels.
    QList<QLabel *> use()
    {
        require(show() == 1, "the window opens");
        auto *tabs = m_parent->findChild<QTabWidget *>();
        for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
            if (tabs)
                tabs->setCurrentIndex(page);
            button("Refresh")->click();
        }
        return m_parent->findChildren<QLabel *>(QRegularExpression("Value$"));
    }
};

#endif
