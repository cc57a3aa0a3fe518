// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// Runs a fuzz target once for each file of a folder, where there is no libFuzzer.

#include "Fuzz.h"

#include <QDir>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QDir corpus(QString::fromLocal8Bit(argv[argc - 1]));
    const QStringList names = corpus.entryList(QDir::Files);
    for (const QString &name : names) {
        std::fprintf(stderr, "%s\n", name.toUtf8().constData());
        QFile file(corpus.filePath(name));
        Fuzz::require(file.open(QIODevice::ReadOnly), "the file can be read");
        const QByteArray input = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.constData()),
                               static_cast<size_t>(input.size()));
    }
    Fuzz::require(!names.isEmpty(), "there is a corpus");
}
