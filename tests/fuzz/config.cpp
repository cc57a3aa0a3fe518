// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The input is the configuration file. One with few rows is also shown.

#include "Fuzz.h"

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Session session;
    session.write(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    int shownRows = 0;
    int shownTabs = 0;
    for (const TabDetails &tab : session.init()) {
        shownTabs += tab.show;
        for (const TabItem &item : *tab.items)
            shownRows += tab.show * item.show;
    }
    if (shownTabs <= 8 && shownRows <= 40)
        session.use();
    return 0;
}
