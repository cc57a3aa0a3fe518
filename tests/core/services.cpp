// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "HostCore.h"
#include "core/CommonUtils.h"

#include <QtTest>

class ServicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settings_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        QTest::newRow("value") << QStringLiteral("version") << QStringLiteral("version")
                               << QStringLiteral("1.2.3");
        QTest::newRow("commas") << QStringLiteral("version") << QStringLiteral("build")
                                << QStringLiteral("a, b");
        QTest::newRow("no key") << QStringLiteral("version") << QStringLiteral("other")
                                << QString();
        QTest::newRow("no group") << QStringLiteral("other") << QStringLiteral("version")
                                  << QString();
    }

    void settings()
    {
        QFETCH(QString, group);
        QFETCH(QString, key);
        QFETCH(QString, expected);
        QVERIFY(CommonUtils::GetSettings(group, key).isNull());
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write("[version]\nversion=1.2.3\nbuild=a,b\n");
        file.close();
        HostCore::setSettingsFile(file.fileName());
        const QString value = CommonUtils::GetSettings(group, key);
        HostCore::setSettingsFile(QString());
        QCOMPARE(value, expected);
        QCOMPARE(value.isNull(), expected.isNull());
    }

    void container()
    {
        HostCore::PluginRegister plugins;
        QVERIFY(!Startup::GetPluginContainer());
        HostCore::setPluginContainer(&plugins);
        PluginContainer *const container = Startup::GetPluginContainer();
        QObject first;
        auto *second = new QObject;
        const QString identifier = QStringLiteral("3D0F6A21");
        plugins.add(identifier, 4100, &first);
        plugins.add(identifier, 4100, second);

        QCOMPARE(container->GetPlugin(identifier, 4100), second);
        QCOMPARE(container->GetPlugin(identifier, 4101), nullptr);
        QCOMPARE(container->GetPlugin(identifier.toLower(), 4100), nullptr);
        QCOMPARE(container->GetPlugin(QString(), 4100), nullptr);
        delete second;
        QCOMPARE(container->GetPlugin(identifier, 4100), &first);
        plugins.remove(&first);
        QCOMPARE(container->GetPlugin(identifier, 4100), nullptr);
        HostCore::setPluginContainer(nullptr);
        QVERIFY(!Startup::GetPluginContainer());
    }
};

QTEST_GUILESS_MAIN(ServicesTest)
#include "services.moc"
