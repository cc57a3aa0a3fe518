// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef ROWS_H
#define ROWS_H

#include <QtTest>

/// Adds the rows of a table that lies beside the test. Each line has a row's name and its columns,
/// separated by semicolons; "\n" stands for the end of a line, and '#' begins a comment.
inline void addRows(const char *file, std::initializer_list<const char *> columns)
{
    for (const char *column : columns)
        QTest::addColumn<QByteArray>(column);
    QFile table(QStringLiteral(TEST_SOURCE_DIR "/") + QLatin1String(file));
    QVERIFY(table.open(QIODevice::ReadOnly));
    while (!table.atEnd()) {
        const QByteArray line = table.readLine();
        if (line.startsWith('#'))
            continue;
        const QList<QByteArray> fields = line.split(';');
        QCOMPARE(size_t(fields.size()), columns.size() + 1);
        QTestData &row = QTest::newRow(fields.first().trimmed());
        for (const QByteArray &field : fields.mid(1))
            row << field.trimmed().replace("\\n", "\n");
    }
}

#endif
