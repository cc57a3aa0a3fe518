// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "SdkControl.h"
#include "TestSupport.h"
#include "config/ConfigCheck.h"
#include "config/ConfigSchema.h"
#include "modem/HostPlugins.h"
#include "modem/ModemSource.h"
#include "modemmanager/ModemService.h"
#include "report/DiagnosticsReader.h"
#include "report/Masking.h"
#include "report/Report.h"
#include "sdk/VeltDevice.h"
#include "window/Diagnostics.h"
#include "window/MainWindow.h"
#include "window/PluginLoader.h"

#include <QDialog>
#include <QFormLayout>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include <algorithm>

using namespace TestSupport;

/// The parts of the host: the loader with faulty plug-ins, the windows, the host's own plug-ins,
/// the check of configurations, masking.
class PartsTest : public QObject
{
    Q_OBJECT

    ModemSource m_modem{DIAG_SOURCE_DIR "/host/modems"};

    static int count(const char *what) { return qApp->property(what).toInt(); }

    static QString file(const QString &name) { return TEST_PLUGINS "/" + name; }

    /// What the host's plug-ins return to other plug-ins, with "-" for a failure.
    static QString answers()
    {
        PluginContainer *const container = Startup::GetPluginContainer();
        auto *const status = qobject_cast<IStatusBarUI *>(
            container->GetPlugin("3D0F6A21-7C4B-4e19-8A52-0B9E7D14C6A3", 4100));
        auto *const dialup = qobject_cast<IDialupUIService *>(
            container->GetPlugin("5B7E2C90-1F3A-4D6E-9C08-7A41E25F0B96", 16401));
        auto *const settings = qobject_cast<INetConnectSetting *>(
            container->GetPlugin("6E19A4D7-2B85-4c30-B7F6-13D08C9A5E42", 28689));
        QString name;
        QString type;
        QString profile;
        NetProfileSettings record;
        const auto shown = [](int result, const QString &text) {
            return result == 0 || !text.isEmpty() ? text : "-";
        };
        return QStringList({shown(status->IGetServiceName(name), name),
                            shown(status->IGetNetworkType(type), type),
                            shown(dialup->IGetProfileName(profile), profile),
                            shown(settings->IGetProfileSettings("P", &record), record.apn)})
            .join(' ');
    }

private Q_SLOTS:
    void init()
    {
        for (const char *counter : {"destroyed", "deleted", "notified", "opens", "ready"})
            qApp->setProperty(counter, 0);
        QString error;
        QVERIFY2(m_modem.attach("wcdma", ModemSource::Replaced, &error), qPrintable(error));
    }

    void modems()
    {
        QString error;
        QVERIFY(m_modem.attach("auto", ModemSource::Replaced, &error) && m_modem.isSimulated());
        QVERIFY(ModemService::status() == ModemService::Status::Detached);
        QVERIFY(!m_modem.fallback().isEmpty());
        QVERIFY(m_modem.attach("failing", ModemSource::Replaced, &error));
        int32_t status = 0;
        QCOMPARE(VELT_DevSrv_GetDevStatus(&status), 1L); // as its file says
    }

    void loader_data() { addRows(TEST_SOURCE_DIR "/parts.txt", "loader"); }
    void loader()
    {
        QFETCH(QStringList, fields);
        const QString reached = fields.at(2);
        const QString error = fields.at(3);
        const QStringList states = {"Named", "Found", "Loaded", "Recognised", "Started"};
        const bool recognised = states.indexOf(reached) >= PluginLoader::Recognised;
        {
            PluginLoader loader(file(fields.at(1)));
            QCOMPARE(loader.start(), reached == "Started");
            // A second start changes nothing.
            loader.start();
            QCOMPARE(states.at(loader.state()), reached);
            QVERIFY2(loader.error().contains(error), qPrintable(loader.error()));
            QCOMPARE(loader.error().isEmpty(), error.isEmpty());
            QCOMPARE(loader.plugin() != nullptr, recognised);
            QCOMPARE(loader.notify() != nullptr, recognised);
            QCOMPARE(count("deleted"), 0);
        }
        QCOMPARE(QString("%1,%2").arg(count("destroyed")).arg(count("deleted")), fields.at(4));
    }

    void anotherTry()
    {
        PluginLoader loader(file("libplugin_init_fails.so"));
        QVERIFY(!loader.start());
        qApp->setProperty("ready", 1);
        QVERIFY(loader.start());
        QCOMPARE(loader.error(), QString());
    }

    void hostWindow()
    {
        PluginLoader loader(file("libplugin_good.so"));
        QVERIFY(loader.start());
        Diagnostics diagnostics(m_modem, loader, QString(), "en");
        MainWindow window(m_modem, diagnostics);
        window.show();
        auto *const state = window.findChild<QLabel *>("MainWindow_labelState");
        auto *const verdict = window.findChild<QLabel *>("MainWindow_labelVerdict");
        QPushButton *const buttons[] = {
            window.findChild<QPushButton *>("MainWindow_pushButtonUnplug"),
            window.findChild<QPushButton *>("MainWindow_pushButtonPlugIn")};
        for (const bool plugged : {false, true}) {
            buttons[plugged]->click();
            QCOMPARE(SdkControl::isPlugged(), plugged);
            QCOMPARE(state->text(), plugged ? "Plugged in" : "Unplugged");
            QCOMPARE(verdict->text(),
                     plugged ? "The modem is connected." : "No modem is plugged in.");
            QVERIFY(!buttons[plugged]->isEnabled() && buttons[!plugged]->isEnabled());
        }
        auto *const message = window.findChild<QLabel *>("MainWindow_labelMessage");
        auto *const open = window.findChild<QPushButton *>("MainWindow_pushButtonDiagnostics");
        open->click();
        QCOMPARE(message->text(), "The diagnostics window could not be opened.");
        message->clear();
        window.findChild<QPushButton *>("MainWindow_pushButtonCopyReport")->click();
        QCOMPARE(message->text(), "The diagnostics window could not be opened.");
        int32_t status = 0;
        VELT_DevSrv_GetDevStatus(&status);
        QVERIFY(SdkControl::recordedCalls().empty());
        qApp->setProperty("opens", 1);
        open->click();
        QCOMPARE(message->text(), QString());
        const int before = count("notified");
        window.close();
        QCOMPARE(count("notified"), before + 1);
    }

    void hostPlugins_data() { addRows(TEST_SOURCE_DIR "/parts.txt", "host plug-ins"); }
    void hostPlugins()
    {
        QFETCH(QStringList, fields);
        {
            attachModem("wcdma");
            const HostPlugins plugins;
            setValues("network/operatorName=N;network/networkType=T;connection/"
                      "profile=P;connection/apn=A");
            setValues(fields.at(1));
            QCOMPARE(answers(), fields.at(2));
            SdkControl::unplug();
            QCOMPARE(answers(), "- - - -");
        }
        QVERIFY(!Startup::GetPluginContainer());
    }

    void config_data() { addRows(TEST_SOURCE_DIR "/config.txt", "config"); }
    /// One fault at a time, in a configuration without faults.
    void config()
    {
        QFETCH(QStringList, fields);
        const QString good = QString::fromUtf8(contentOf(TEST_SOURCE_DIR "/config.xml"));
        const int at = good.indexOf(fields.at(1));
        QVERIFY(at >= 0);
        QTemporaryFile faulty;
        QVERIFY(faulty.open());
        faulty.write(QString(good).replace(at, fields.at(1).size(), fields.at(2)).toUtf8());
        QVERIFY(faulty.flush());
        QStringList findings;
        QString error;
        QVERIFY(ConfigCheck::run(faulty.fileName(), DIAG_SOURCE_DIR "/config/DiagnosisConfig.xsd",
                                 &findings, &error));
        const QStringList rows = ConfigSchema::rowsOfTabs(
            contentOf(DIAG_SOURCE_DIR "/config/DiagnosisConfig.xsd"))["Device"];
        QCOMPARE(findings.join('\n'), QString(fields.at(3)).replace("@ROWS@", rows.join(", ")));
    }

    void mask_data() { addRows(TEST_SOURCE_DIR "/parts.txt", "mask"); }
    void mask()
    {
        QFETCH(QStringList, fields);
        QCOMPARE(maskedValue({fields.at(1), QString(), fields.at(2)}), fields.at(3));
    }

    void report()
    {
        setLanguage("en");
        const Report report({"missing",
                             "de",
                             "wcdma",
                             m_modem.verdict(),
                             true,
                             {{"SIM/USIM",
                               "SIM",
                               {{"IMSI number", "IMSI", "001010000000017"},
                                {"APN", "Zugang", ""},
                                {"Network name", "Netz", "a\x1B\n\x7F\u0085\u00E9"}}},
                              {QString(), "Diagnose", {}}},
                             {{"Cell", "eNodeB", "51234", ModemService::DetailKind::Place}},
                             {{"VELT_NetSrv_GetEFFile", VELT_ERROR_NO_SIM}}},
                            Report::Masked);
        const QRegularExpression date("  Date: [-0-9]{10}T[:0-9]{8}(Z|[-+:0-9]{6})\n");
        QCOMPARE(
            report.text().remove(date).replace(qVersion(), "V"),
            QString("Report\n  Host: diagnosis-host \n  Configuration: missing\n"
                    "  Toolkit: Qt V\n  Language: de\n  Modem: wcdma\n"
                    "  Signal: ModemManager has not read it in time\n  Identifiers: masked\n"
                    "  Verdict: The modem is connected. (connected)\n\nSIM\n  IMSI: "
                    "00101********17\n  Zugang: \n"
                    "  Netz: a\uFFFD\uFFFD\uFFFD\uFFFD\u00E9\n\nDiagnose\n\nRadio and service\n"
                    "  Cell, eNodeB: *****\n\nFailed functions\n"
                    "  VELT_NetSrv_GetEFFile: no SIM\n"));
        QJsonObject json = QJsonDocument::fromJson(report.json()).object();
        QVERIFY(!json.take("date").isUndefined());
        QCOMPARE(
            QString(QJsonDocument(json).toJson(QJsonDocument::Compact)).replace(qVersion(), "V"),
            QString("{'configuration':'missing','failedFunctions':[{'code':4,'function':"
                    "'VELT_NetSrv_GetEFFile','result':'no SIM'}],'host':'diagnosis-host ',"
                    "'identifiers':'masked','language':'de','modem':'wcdma','radioAndService':"
                    "[{'caption':'Cell, eNodeB','group':'Cell','name':'eNodeB','value':'*****'}],"
                    "'signal':'ModemManager has not read it in time','tabs':[{'caption':"
                    "'SIM','name':'SIM/USIM','rows':[{'caption':'IMSI','known':true,'name':"
                    "'IMSI number','value':'00101********17'},{'caption':'Zugang','known':false,"
                    "'name':'APN','value':''},{'caption':'Netz','known':true,'name':"
                    "'Network name','value':'a\\u001b\\n\x7F\u0085\u00E9'}]},{'caption':"
                    "'Diagnose','name':null,'rows':[]}],'toolkit':'Qt "
                    "V','verdict':{'code':'connected','text':"
                    "'The modem is connected.'}}")
                .replace('\'', '"'));
    }

    /// The host reads the shipped window. On its longest page, of 15 rows, nothing is squeezed or
    /// clipped.
    void realWindow()
    {
        const QDir built(DIAG_BINARY_DIR);
        HostCore::setPluginLibraryPath(built.filePath(HOST_LIBRARY_DIR));
        HostCore::applyLook(*qApp);
        const HostPlugins hostPlugins;
        PluginLoader loader(built.filePath(HOST_PLUGIN_DIR "/libDiagnosisPlugin.so"));
        QVERIFY2(loader.start(), qPrintable(loader.error()));
        QVERIFY(HostCore::setLanguage(built.filePath(HOST_DATA_DIR "/translations"), "de"));
        Diagnostics diagnostics(m_modem, loader, QString(), "de");
        MainWindow window(m_modem, diagnostics);
        window.show();
        QVERIFY(!DiagnosticsReader().window());
        QVERIFY(window.openDiagnostics());
        const DiagnosticsReader reader;
        QVERIFY(qobject_cast<QDialog *>(reader.window()));
        reader.window()->hide();
        QVERIFY(!DiagnosticsReader().window());
        reader.window()->show();
        QCOMPARE(reader.tabNames().join('|'), "Device|Network settings|Network status|SIM/USIM");
        QVERIFY(!reader.selectTab("Netzstatus"));
        QVERIFY(reader.selectTab("Network status"));
        auto *const tabs = reader.window()->findChild<QTabWidget *>();
        auto *const form = qobject_cast<QFormLayout *>(tabs->widget(0)->layout());
        form->addRow("Not ours", new QLabel);
        QCOMPARE(reader.read().at(0).rows.size(), form->rowCount() - 1);
        QCOMPARE(tabs->currentIndex(), 2);
        QVERIFY(tabs->tabBar()->sizeHint().width() <= tabs->width());
        QCOMPARE(clipped(reader.window()), QStringList());
        QApplication::setFont(QFont("DejaVu Serif", 20)); // as a platform theme does
        QCOMPARE(clipped(reader.window()), QStringList());
    }
};

QTEST_MAIN(PartsTest)
#include "parts.moc"
