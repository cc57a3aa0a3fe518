// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "ConfigCheck.h"
#include "DiagnosticsReader.h"
#include "HostPlugins.h"
#include "MainWindow.h"
#include "ModemControl.h"
#include "ModemSource.h"
#include "PluginLoader.h"
#include "Report.h"
#include "support/Rows.h"

#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

/// The host's loader against plug-ins that misbehave, its window, its own plug-ins, and its check
/// of configurations.
class PluginsTest : public QObject
{
    Q_OBJECT

    ModemSource m_modem{QStringLiteral(DIAG_SOURCE_DIR "/host/modems")};

    static int count(const char *what) { return qApp->property(what).toInt(); }

    static QString file(const char *name)
    {
        return QStringLiteral(TEST_PLUGINS "/") + QLatin1String(name);
    }

    /// The answers of the host's plug-ins, found as other plug-ins find them; "-" for a failure.
    static QString answers()
    {
        PluginContainer *const container = Startup::GetPluginContainer();
        auto *const status = qobject_cast<IStatusBarUI *>(
            container->GetPlugin(QStringLiteral("3D0F6A21-7C4B-4e19-8A52-0B9E7D14C6A3"), 4100));
        auto *const dialup = qobject_cast<IDialupUIService *>(
            container->GetPlugin(QStringLiteral("5B7E2C90-1F3A-4D6E-9C08-7A41E25F0B96"), 16401));
        auto *const settings = qobject_cast<INetConnectSetting *>(
            container->GetPlugin(QStringLiteral("6E19A4D7-2B85-4c30-B7F6-13D08C9A5E42"), 28689));
        QString name;
        QString type;
        QString profile;
        NetProfileSettings record;
        const auto shown = [](int result, const QString &text) {
            return result == 0 || !text.isEmpty() ? text : QStringLiteral("-");
        };
        return QStringList(
                   {shown(status->IGetServiceName(name), name),
                    shown(status->IGetNetworkType(type), type),
                    shown(dialup->IGetProfileName(profile), profile),
                    shown(settings->IGetProfileSettings(QStringLiteral("P"), &record), record.apn)})
            .join(QLatin1Char(' '));
    }

private Q_SLOTS:
    void init()
    {
        for (const char *counter : {"destroyed", "deleted", "notified", "opens", "ready"})
            qApp->setProperty(counter, 0);
        QString error;
        QVERIFY2(m_modem.attach(QStringLiteral("wcdma"), &error), qPrintable(error));
    }

    void loader_data() { addRows("loader.txt", {"fileName", "reached", "error", "counts"}); }
    void loader()
    {
        QFETCH(QByteArray, fileName);
        QFETCH(QByteArray, reached);
        QFETCH(QByteArray, error);
        QFETCH(QByteArray, counts);
        const QList<QByteArray> states = {"Named", "Found", "Loaded", "Recognised", "Started"};
        const bool recognised = states.indexOf(reached) >= PluginLoader::Recognised;
        {
            PluginLoader loader(file(fileName));
            QCOMPARE(loader.start(), reached == "Started");
            // Once more from where it stands: neither better nor worse.
            loader.start();
            QCOMPARE(states.at(loader.state()), reached);
            QVERIFY2(loader.error().contains(QLatin1String(error)), qPrintable(loader.error()));
            QCOMPARE(loader.error().isEmpty(), error.isEmpty());
            QCOMPARE(loader.plugin() != nullptr, recognised);
            QCOMPARE(loader.notify() != nullptr, recognised);
            QCOMPARE(count("deleted"), 0);
        }
        QCOMPARE(QByteArray::number(count("destroyed")) + ',' +
                     QByteArray::number(count("deleted")),
                 counts);
    }

    void anotherTry()
    {
        PluginLoader loader(file("libplugin_init_fails.so"));
        QVERIFY(!loader.start());
        qApp->setProperty("ready", 1);
        QVERIFY(loader.start());
        QCOMPARE(loader.error(), QString());
    }

    void modemWindow()
    {
        PluginLoader loader(file("libplugin_good.so"));
        QVERIFY(loader.start());
        MainWindow window(m_modem, loader);
        window.show();
        const QWidgetList windows = QApplication::topLevelWidgets();
        const auto found = std::find_if(windows.begin(), windows.end(), [](QWidget *other) {
            return other->inherits("ModemWindow");
        });
        QVERIFY(found != windows.end() && (*found)->isVisible());
        const QWidget *const modem = *found;
        auto *const state = modem->findChild<QLabel *>(QStringLiteral("ModemWindow_labelState"));
        QPushButton *const buttons[] = {
            modem->findChild<QPushButton *>(QStringLiteral("ModemWindow_pushButtonUnplug")),
            modem->findChild<QPushButton *>(QStringLiteral("ModemWindow_pushButtonPlugIn"))};
        for (const bool plugged : {false, true}) {
            buttons[plugged]->click();
            QCOMPARE(ModemControl::isPlugged(), plugged);
            QCOMPARE(state->text(),
                     plugged ? QStringLiteral("Plugged in") : QStringLiteral("Unplugged"));
            QVERIFY(!buttons[plugged]->isEnabled() && buttons[!plugged]->isEnabled());
        }
        QCOMPARE(count("notified"), 0);
        window.close();
        QCOMPARE(count("notified"), 1);
        QVERIFY(!modem->isVisible());
    }

    void hostPlugins_data() { addRows("host_plugins.txt", {"key", "value", "expected"}); }
    void hostPlugins()
    {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, value);
        QFETCH(QByteArray, expected);
        {
            const HostPlugins plugins;
            ModemControl::setValue("network/operatorName", "N");
            ModemControl::setValue("network/networkType", "T");
            ModemControl::setValue("connection/profile", "P");
            ModemControl::setValue("connection/apn", "A");
            ModemControl::setValue(key.toStdString(),
                                   QString::fromUtf8(value).toLatin1().toStdString());
            QCOMPARE(answers(), QString::fromUtf8(expected));
            ModemControl::unplug();
            QCOMPARE(answers(), QStringLiteral("- - - -"));
        }
        QVERIFY(!Startup::GetPluginContainer());
    }

    void config_data() { addRows("config.txt", {"text", "instead", "said"}); }
    /// One fault at a time in a configuration that has none.
    void config()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, instead);
        QFETCH(QByteArray, said);
        QFile good(QStringLiteral(TEST_SOURCE_DIR "/config.xml"));
        QTemporaryFile faulty;
        QVERIFY(good.open(QIODevice::ReadOnly) && faulty.open());
        QByteArray content = good.readAll();
        QVERIFY(content.contains(text));
        faulty.write(content.replace(content.indexOf(text), text.size(), instead));
        QVERIFY(faulty.flush());
        QStringList findings;
        QString error;
        QVERIFY(ConfigCheck::run(faulty.fileName(),
                                 QStringLiteral(DIAG_SOURCE_DIR "/config/DiagnosisConfig.xsd"),
                                 &findings, &error));
        QCOMPARE(findings.join(QLatin1Char('\n')), QString::fromUtf8(said));
    }

    void mask_data() { addRows("mask.txt", {"row", "value", "expected"}); }
    void mask()
    {
        QFETCH(QByteArray, row);
        QFETCH(QByteArray, value);
        QFETCH(QByteArray, expected);
        QCOMPARE(Report::masked({QString::fromLatin1(row), QString(), QString::fromLatin1(value)}),
                 QString::fromLatin1(expected));
    }

#ifdef WITH_DIAGNOSIS_PLUGIN
    /// The shipped window, read as the host reads it; its longest page, of 15 rows, has nothing
    /// squeezed or clipped.
    void realWindow()
    {
        const QDir built(QStringLiteral(DIAG_BINARY_DIR));
        HostCore::setPluginLibraryPath(built.filePath(QStringLiteral(HOST_LIBRARY_DIR)));
        HostCore::applyLook(*qApp);
        const HostPlugins hostPlugins;
        PluginLoader loader(built.filePath(
            QStringLiteral(HOST_LIBRARY_DIR "/plugins/DiagnosisPlugin/libDiagnosisPlugin.so")));
        QVERIFY2(loader.start(), qPrintable(loader.error()));
        for (const QString &language : {QStringLiteral("de"), QStringLiteral("en")}) {
            QVERIFY(HostCore::setLanguage(
                built.filePath(QStringLiteral(HOST_DATA_DIR "/translations")), language));
            MainWindow window(m_modem, loader);
            window.show();
            QVERIFY(!DiagnosticsReader().window());
            QVERIFY(window.openDiagnostics());
            const DiagnosticsReader reader;
            QVERIFY(qobject_cast<QDialog *>(reader.window()));
            QCOMPARE(reader.tabNames().join(QLatin1Char('|')),
                     QStringLiteral("Device|Network settings|Network status|SIM/USIM"));
            QVERIFY(!reader.selectTab(QStringLiteral("Netzstatus")));
            QVERIFY(reader.selectTab(QStringLiteral("Network status")));
            auto *const tabs = reader.window()->findChild<QTabWidget *>();
            qobject_cast<QFormLayout *>(tabs->widget(0)->layout())
                ->addRow(QStringLiteral("Not ours"), new QLabel);
            QCOMPARE(reader.read().at(0).rows.size(), 7);
            QCOMPARE(reader.read().at(2).rows.size(), 15);
            QCOMPARE(tabs->currentIndex(), 2);
            QVERIFY(tabs->tabBar()->sizeHint().width() <= tabs->width());
            for (const QWidget *widget : reader.window()->findChildren<QWidget *>()) {
                if (!widget->isVisible() || !(qobject_cast<const QLabel *>(widget) ||
                                              qobject_cast<const QPushButton *>(widget)))
                    continue;
                const QSize needed =
                    widget->hasHeightForWidth()
                        ? QSize(widget->width(), widget->heightForWidth(widget->width()))
                        : widget->sizeHint();
                QCOMPARE(widget->size().expandedTo(needed), widget->size());
                QVERIFY(reader.window()->rect().contains(
                    QRect(widget->mapTo(reader.window(), QPoint()), widget->size())));
            }
        }
    }
#endif
};

QTEST_MAIN(PluginsTest)
#include "plugins.moc"
