// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "HostPlugins.h"
#include "MainWindow.h"
#include "ModemControl.h"
#include "PluginLoader.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

/// The host's loader against plug-ins that misbehave, its window, and its own plug-ins.
class PluginsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        for (const char *counter : {"destroyed", "deleted", "notified", "opens", "ready"})
            qApp->setProperty(counter, 0);
        std::string error;
        QVERIFY2(ModemControl::attach(MODEM_FILE, &error), error.c_str());
    }

    void loader_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("reached");
        QTest::addColumn<QString>("error");
        QTest::addColumn<int>("destroyed");
        QTest::addColumn<int>("deleted");
        const QString prefix = QStringLiteral(TEST_PLUGINS);
        QTest::newRow("missing") << prefix + QStringLiteral("none.so") << int(PluginLoader::Named)
                                 << QStringLiteral("no such file") << 0 << 0;
        QTest::newRow("a folder") << QStringLiteral(TEST_SOURCE_DIR) << int(PluginLoader::Named)
                                  << QStringLiteral("no such file") << 0 << 0;
        QTest::newRow("not a library")
            << QStringLiteral(TEST_SOURCE_DIR "/CMakeLists.txt") << int(PluginLoader::Found)
            << QStringLiteral("CMakeLists.txt") << 0 << 0;
        QTest::newRow("not a plug-in")
            << QStringLiteral(DIAG_BINARY_DIR "/" HOST_LIBRARY_DIR "/libsdk.so")
            << int(PluginLoader::Found) << QStringLiteral("libsdk.so") << 0 << 0;
        QTest::newRow("wrong interface")
            << prefix + QStringLiteral("wrong_interface.so") << int(PluginLoader::Loaded)
            << QStringLiteral("com.velt.IUIPlugin") << 0 << 1;
        QTest::newRow("only one interface")
            << prefix + QStringLiteral("half_interface.so") << int(PluginLoader::Loaded)
            << QStringLiteral("com.velt.INotify") << 0 << 1;
        QTest::newRow("Init fails")
            << prefix + QStringLiteral("init_fails.so") << int(PluginLoader::Recognised)
            << QStringLiteral("initialisation failed") << 1 << 1;
        QTest::newRow("good") << prefix + QStringLiteral("good.so") << int(PluginLoader::Started)
                              << QString() << 1 << 1;
    }

    void loader()
    {
        QFETCH(QString, file);
        QFETCH(int, reached);
        QFETCH(QString, error);
        {
            PluginLoader loader(file);
            QCOMPARE(loader.start(), reached == PluginLoader::Started);
            // Once more from where it stands: neither better nor worse.
            loader.start();
            QCOMPARE(int(loader.state()), reached);
            QVERIFY2(loader.error().contains(error), qPrintable(loader.error()));
            QCOMPARE(loader.error().isEmpty(), error.isEmpty());
            QCOMPARE(loader.plugin() != nullptr, reached >= PluginLoader::Recognised);
            QCOMPARE(loader.notify() != nullptr, reached >= PluginLoader::Recognised);
            QCOMPARE(qApp->property("deleted").toInt(), 0);
        }
        QTEST(qApp->property("destroyed").toInt(), "destroyed");
        QTEST(qApp->property("deleted").toInt(), "deleted");
    }

    void anotherTry()
    {
        PluginLoader loader(QStringLiteral(TEST_PLUGINS "init_fails.so"));
        QVERIFY(!loader.start());
        qApp->setProperty("ready", 1);
        QVERIFY(loader.start());
        QCOMPARE(loader.error(), QString());
    }

    void window()
    {
        PluginLoader loader(QStringLiteral(TEST_PLUGINS "good.so"));
        QVERIFY(loader.start());
        MainWindow window(QStringLiteral("wcdma"), loader);
        window.show();
        QWidget *modem = nullptr;
        for (QWidget *other : QApplication::topLevelWidgets()) {
            if (other->inherits("ModemWindow"))
                modem = other;
        }
        QVERIFY(modem && modem->isVisible() && modem->windowModality() == Qt::NonModal);
        const auto partOf = [&](const char *name) {
            return qstrncmp(name, "Main", 4) == 0 ? static_cast<QWidget *>(&window) : modem;
        };
        const auto label = [&](const char *name) {
            return partOf(name)->findChild<QLabel *>(QLatin1String(name))->text();
        };
        const auto button = [&](const char *name) {
            return partOf(name)->findChild<QPushButton *>(QLatin1String(name));
        };
        button("MainWindow_pushButtonDiagnostics")->click();
        QCOMPARE(label("MainWindow_labelMessage"),
                 QStringLiteral("The diagnostics window could not be opened."));
        qApp->setProperty("opens", 1);
        QVERIFY(window.openDiagnostics());
        QCOMPARE(label("MainWindow_labelMessage"), QString());

        button("ModemWindow_pushButtonUnplug")->click();
        QVERIFY(!ModemControl::isPlugged());
        QCOMPARE(label("ModemWindow_labelState"), QStringLiteral("Unplugged"));
        QVERIFY(!button("ModemWindow_pushButtonUnplug")->isEnabled());
        button("ModemWindow_pushButtonPlugIn")->click();
        QVERIFY(ModemControl::isPlugged());
        QCOMPARE(label("ModemWindow_labelState"), QStringLiteral("Plugged in"));
        QVERIFY(!button("ModemWindow_pushButtonPlugIn")->isEnabled());

        QCOMPARE(qApp->property("notified").toInt(), 0);
        window.close();
        QCOMPARE(qApp->property("notified").toInt(), 1);
        QVERIFY(!modem->isVisible());
    }

    /// All answers of the host's plug-ins, found as other plug-ins find them; "-" for a failure.
    QStringList answers()
    {
        PluginContainer *const container = Startup::GetPluginContainer();
        auto *const status = qobject_cast<IStatusBarUI *>(
            container->GetPlugin(QStringLiteral("3D0F6A21-7C4B-4e19-8A52-0B9E7D14C6A3"), 4100));
        auto *const dialup = qobject_cast<IDialupUIService *>(
            container->GetPlugin(QStringLiteral("5B7E2C90-1F3A-4D6E-9C08-7A41E25F0B96"), 16401));
        auto *const settings = qobject_cast<INetConnectSetting *>(
            container->GetPlugin(QStringLiteral("6E19A4D7-2B85-4c30-B7F6-13D08C9A5E42"), 28689));
        QString name = QStringLiteral("kept");
        QString type = name;
        QString profile = name;
        NetProfileSettings record;
        record.apn = name;
        const bool failed[] = {status->IGetServiceName(name) != 0,
                               status->IGetNetworkType(type) != 0,
                               dialup->IGetProfileName(profile) != 0,
                               settings->IGetProfileSettings(QStringLiteral("P"), &record) != 0};
        QStringList all = {name, type, profile, record.apn};
        for (int i = 0; i < 4; ++i) {
            if (failed[i])
                all[i].replace(QLatin1String("kept"), QLatin1String("-"));
        }
        return all;
    }

    void hostPlugins_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("expected");
        QTest::newRow("all") << QByteArray() << QByteArray() << QStringLiteral("N T P A");
        QTest::newRow("Latin-1") << QByteArray("network/operatorName") << QByteArray("N\xE9")
                                 << QString::fromUtf8("N\xC3\xA9 T P A");
        QTest::newRow("no name") << QByteArray("network/operatorName") << QByteArray()
                                 << QStringLiteral("- T P A");
        QTest::newRow("no type") << QByteArray("network/networkType") << QByteArray()
                                 << QStringLiteral("N - P A");
        QTest::newRow("no profile")
            << QByteArray("connection/profile") << QByteArray() << QStringLiteral("N T - -");
        QTest::newRow("other profile")
            << QByteArray("connection/profile") << QByteArray("Q") << QStringLiteral("N T Q -");
        QTest::newRow("no access point")
            << QByteArray("connection/apn") << QByteArray() << QStringLiteral("N T P -");
    }

    void hostPlugins()
    {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, value);
        QFETCH(QString, expected);
        QVERIFY(!Startup::GetPluginContainer());
        {
            const HostPlugins plugins;
            ModemControl::setValue("network/operatorName", "N");
            ModemControl::setValue("network/networkType", "T");
            ModemControl::setValue("connection/profile", "P");
            ModemControl::setValue("connection/apn", "A");
            if (!key.isEmpty())
                ModemControl::setValue(key.toStdString(), value.toStdString());
            QCOMPARE(answers().join(QLatin1Char(' ')), expected);
            ModemControl::unplug();
            QCOMPARE(answers().join(QLatin1Char(' ')), QStringLiteral("- - - -"));
            ModemControl::plug();
            QCOMPARE(answers().join(QLatin1Char(' ')), expected);
        }
        QVERIFY(!Startup::GetPluginContainer());
    }
};

QTEST_MAIN(PluginsTest)
#include "plugins.moc"
