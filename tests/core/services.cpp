// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "HostCore.h"
#include "core/CommonUtils.h"

#include <QtTest>

class ServicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settings()
    {
        const auto value = [](const char *group, const char *key) {
            const QString text = CommonUtils::GetSettings(QLatin1String(group), QLatin1String(key));
            return text.isNull() ? QByteArray("null") : text.toUtf8();
        };
        QCOMPARE(value("version", "version"), QByteArray("null"));
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write("[version]\nversion=1.2.3\nbuild=a,b\n");
        file.close();
        HostCore::setSettingsFile(file.fileName());
        QCOMPARE(value("version", "version"), QByteArray("1.2.3"));
        QCOMPARE(value("version", "build"), QByteArray("a, b"));
        QCOMPARE(value("version", "other"), QByteArray("null"));
        QCOMPARE(value("other", "version"), QByteArray("null"));
        HostCore::setSettingsFile(QString());
    }

    void container()
    {
        HostCore::PluginRegister plugins;
        HostCore::setPluginContainer(&plugins);
        PluginContainer *const container = Startup::GetPluginContainer();
        QObject first;
        auto *second = new QObject;
        const QString identifier = "3D0F6A21";
        plugins.add(identifier, 4100, &first);
        plugins.add(identifier, 4100, second);
        QCOMPARE(container->GetPlugin(identifier, 4100), second);
        QCOMPARE(container->GetPlugin(identifier, 4101), nullptr);
        QCOMPARE(container->GetPlugin(identifier.toLower(), 4100), nullptr);
        delete second;
        QCOMPARE(container->GetPlugin(identifier, 4100), &first);
        HostCore::setPluginContainer(nullptr);
        QVERIFY(!Startup::GetPluginContainer());
    }
};

QTEST_GUILESS_MAIN(ServicesTest)
#include "services.moc"
