// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The schema of the configuration against the rows that have values.

#include "DiagnosticsUIPlugin.h"
#include "PluginTest.h"
#include "config/ConfigSchema.h"

#include <QFile>
#include <QRegularExpression>
#include <QtTest>

class SchemaTest : public PluginTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void schemaListsTheRows();
};

/// The schema lists the rows that have values, and no others. Whatever a name is compared with
/// stands as a literal in the source.
void SchemaTest::schemaListsTheRows()
{
    QFile schema(QLatin1String(DIAG_SOURCE_DIR "/config/DiagnosisConfig.xsd"));
    QFile source(QLatin1String(DIAG_SOURCE_DIR "/src/DiagnosisPlugin/DiagnosticsUIPlugin.cpp"));
    QVERIFY(schema.open(QIODevice::ReadOnly) && source.open(QIODevice::ReadOnly));
    QStringList listed;
    const QMap<QString, QStringList> rowsOfTabs = ConfigSchema::rowsOfTabs(schema.readAll());
    for (const QString &tab : rowsOfTabs.keys()) {
        for (const QString &row : rowsOfTabs.value(tab))
            listed.append(tab + QLatin1String(": ") + row);
    }
    QStringList literals;
    auto match = QRegularExpression(QLatin1String("\"([^\"\n%]+)\""))
                     .globalMatch(QString::fromUtf8(source.readAll()));
    while (match.hasNext())
        literals.append(match.next().captured(1));
    literals.removeDuplicates();

    QCOMPARE(m_plugin->Init(), 1);
    QStringList unlisted;
    for (const QString &tab : literals) {
        for (const QString &row : literals) {
            m_log->takeLog();
            QString value;
            m_plugin->getValueLabelVal(tab, row, &value);
            // A known name asks the query layer, whose lines tell so.
            const bool known =
                !m_log->takeLog().filter(QLatin1String("DiagnosticsUILogic: ")).isEmpty();
            const QString name = tab + QLatin1String(": ") + row;
            if (known && !listed.removeOne(name))
                unlisted.append(name);
        }
    }
    QVERIFY2(unlisted.isEmpty(), qPrintable(unlisted.join(QLatin1Char('\n'))));
    QVERIFY2(listed.isEmpty(), qPrintable(listed.join(QLatin1Char('\n'))));
}

QTEST_MAIN(SchemaTest)
#include "schema.moc"
