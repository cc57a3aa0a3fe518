// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "HostCore.h"
#include "SdkControl.h"
#include "TestSupport.h"
#include "modem/HostPlugins.h"
#include "modem/ModemSource.h"
#include "window/Diagnostics.h"
#include "window/MainWindow.h"
#include "window/PluginLoader.h"

#include <QClipboard>
#include <QFileDialog>
#include <QHelpEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolTip>
#include <QtTest>

using namespace TestSupport;
using ModemService::DetailKind;
using Status = ModemService::Status;

/// The verdict on a modem, what a report makes of values, and the host's window.
class VerdictTest : public QObject
{
    Q_OBJECT

    ModemSource m_modem{DIAG_SOURCE_DIR "/host/modems"};

    static ModemState changed(const QString &changes)
    {
        const QStringList statuses = {"Detached",     "Starting", "NoBus",  "NoService",
                                      "NotAnswering", "NoModem",  "Present"};
        QString values;
        QMap<QString, QString> fields;
        for (const QString &change : changes.split(';', Qt::SkipEmptyParts)) {
            const QString name = change.section('=', 0, 0);
            if (name == "*")
                SdkControl::setResult("*", change.section('=', 1).toLong());
            else if (name.contains('/'))
                values += change + ';';
            else
                fields.insert(name, change.section('=', 1));
        }
        setValues(values);
        ModemState state = ModemState::read(fields.value("index").toInt());
        state.service = Status(qMax(0, statuses.indexOf(fields.value("service"))));
        state.condition = {fields.value("state").toInt(), fields.value("failedReason").toInt(),
                           fields.value("powerState").toInt()};
        state.rejection = fields.value("rejection");
        return state;
    }

    /// Where a label is marked, at the end of its line.
    static QString mark(QLabel *label)
    {
        const QImage image = label->grab().toImage();
        const auto isMarked = [&](int y) {
            return image.pixelColor(image.width() - 1, y) ==
                   label->palette().color(QPalette::WindowText);
        };
        return isMarked(image.height() / 2 - 5) ? "first line"
               : isMarked(image.height() - 2)   ? "last line"
                                                : "none";
    }

    /// Loads the real plug-in, in English.
    struct RealPlugin
    {
        const QDir built{DIAG_BINARY_DIR};
        const HostPlugins hostPlugins;
        PluginLoader loader{built.filePath(HOST_PLUGIN_DIR "/libDiagnosisPlugin.so")};

        RealPlugin()
        {
            setLanguage("en");
            HostCore::setPluginLibraryPath(built.filePath(HOST_LIBRARY_DIR));
            loader.start();
        }
    };

private Q_SLOTS:
    void init() { attachModem("wcdma"); }

    void verdict_data() { addRows(TEST_SOURCE_DIR "/verdict.txt", "verdict"); }
    void verdict()
    {
        QFETCH(QStringList, fields);
        setLanguage("en");
        const Verdict verdict(changed(fields.at(1)));
        QCOMPARE(verdict.code, fields.at(2));
        QCOMPARE(verdict.text, fields.at(3));
        QCOMPARE(verdict.noModem ? "9" : "0", fields.at(4));
        for (const char *language : {"ar", "de", "es", "fr", "zh_CN"}) {
            setLanguage(language);
            const QString text = Verdict(changed(fields.at(1))).text;
            QVERIFY2(text != verdict.text && !text.contains('%'), language);
        }
        const QString row = QString("\n| %1 | `%2` | %3 |\n");
        const QString document = contentOf(DIAG_SOURCE_DIR "/docs/report.md");
        QVERIFY(document.contains(row.arg(fields.at(0), fields.at(2), fields.at(4))));
        QCOMPARE(document.count(" | 0 |\n") + document.count(" | 9 |\n"),
                 section(TEST_SOURCE_DIR "/verdict.txt", "verdict").size());
    }

    /// A report of distinct values. None of those that identify may be left anywhere in a masked
    /// one, and all others must be.
    void mask()
    {
        RealPlugin plugin;
        Diagnostics diagnostics(m_modem, plugin.loader, QString(), "en");
        for (const char *name : {"wcdma", "cdma-pesn"}) {
            attachModem(name);
            setValues(
                "network/csLac=1A2B;network/csCellId=00C3D4E;connection/ipAddress=192.0.2.17");
            Report::Content content;
            QVERIFY(diagnostics.read(Diagnostics::Immediate, &content));
            content.details = {{"Modem", "Revision", "REV-7.08.1", DetailKind::Plain},
                               {"Modem", "Equipment", "DEVICE-352099001761481", DetailKind::Device},
                               {"SIM", "EID", "USER-89033023", DetailKind::User},
                               {"Cell", "eNodeB", "PLACE-51234", DetailKind::Place},
                               {"Bearer 1", "Address", "203.0.113.77", DetailKind::Address},
                               {"Bearer 1", "Address", "2001:db8::7b", DetailKind::Address}};
            const QStringList hidden = {"001017003100016",
                                        "TW3100A940016",
                                        "001010000000017",
                                        "89001010000000000117",
                                        "447700900",
                                        "1A2B",
                                        "00C3D4E",
                                        "0.2.17",
                                        "0.2.53",
                                        "0.2.54",
                                        "80D41F07",
                                        "A0000000000034",
                                        "001010000000034",
                                        "DEVICE-",
                                        "1761481",
                                        "USER-",
                                        "PLACE-",
                                        "51234",
                                        "0.113.77",
                                        "db8",
                                        "7b"};
            const Report shown(content, Report::Unmasked);
            const Report masked(content, Report::Masked);
            for (const QString &text : {masked.text(), QString::fromUtf8(masked.json())}) {
                for (const QString &value : hidden)
                    QVERIFY2(!text.contains(value), qPrintable(value));
                QVERIFY(text.contains("REV-7.08.1"));
            }
            int seen = 0;
            for (const QString &value : hidden)
                seen += int(shown.text().contains(value));
            QCOMPARE(seen, name == QByteArray("wcdma") ? 18 : 11); // the test would see a leak
        }
    }

    void printable()
    {
        Report::Content content;
        const QString value = QString::fromUtf8("a\u0007\u0085\u202e\u2028\u2029\u200f\U000e0041z");
        content.pages = {{"Tab", "T", {{"A", "A", value}, {"B", "B", "not implement"}}}};
        content.details = {{"G 12", "N", value.toStdString(), DetailKind::Plain}};
        content.lacksSignal = true;
        const Report report(content, Report::Unmasked);
        QVERIFY(report.text().contains("\n  Signal: ModemManager has not read it in time\n"));
        const QString cleaned = 'a' + QString(7, QChar::ReplacementCharacter) + "z\n";
        QVERIFY(report.text().contains("\nT\n  A: " + cleaned));
        QVERIFY(report.text().contains("\n  G 12, N: " + cleaned));
        const QJsonArray rows = QJsonDocument::fromJson(report.json())["tabs"][0]["rows"].toArray();
        QCOMPARE(rows[0].toObject()["value"].toString(), value);
        QVERIFY(rows[0].toObject()["known"].toBool() && !rows[1].toObject()["known"].toBool());
    }

    /// There is no service: only a window may show a simulated modem, and says why.
    void absence()
    {
        setLanguage("de");
        ModemSource modem(DIAG_SOURCE_DIR "/host/modems");
        QString error;
        QVERIFY(modem.attach("auto", ModemSource::Reported, &error));
        QVERIFY(!modem.isSimulated() && modem.verdict().noModem && modem.fallback().isEmpty());
        QVERIFY(modem.attach("auto", ModemSource::Replaced, &error));
        QVERIFY(modem.isSimulated() && !modem.verdict().noModem);
        QCOMPARE(modem.fallback(), QString("Der Nachrichtenbus des Systems antwortet nicht."));
    }

    /// Each failed function once, in the order of the questions, and nothing of what the host asks.
    void failures()
    {
        RealPlugin plugin;
        Diagnostics diagnostics(m_modem, plugin.loader, QString(), "en");
        SdkControl::setResult("VELT_NetSrv_GetEFFile", VELT_ERROR_NO_SIM);
        SdkControl::setResult("VELT_NetSrv_GetCSRegState", 77);
        for (const bool isOpen : {false, true}) {
            if (isOpen)
                QVERIFY(diagnostics.open());
            Report::Content content;
            QVERIFY(diagnostics.read(Diagnostics::Immediate, &content));
            QCOMPARE(DiagnosticsReader().window() != nullptr, isOpen);
            QVERIFY2(Report(content, Report::Masked)
                         .text()
                         .endsWith("\n\nFailed functions\n  VELT_NetSrv_GetCSRegState: error 77\n"
                                   "  VELT_NetSrv_GetEFFile: no SIM\n"),
                     qPrintable(Report(content, Report::Masked).text()));
        }
    }

    /// The diagnostics window does not block the host's, which follows events and makes reports.
    void hostWindow()
    {
        RealPlugin plugin;
        Diagnostics diagnostics(m_modem, plugin.loader, QString(), "en");
        MainWindow window(m_modem, diagnostics);
        window.show();
        const auto press = [&window](const char *name) {
            const auto *const button = window.findChild<QPushButton *>(
                QLatin1String("MainWindow_pushButton") + QLatin1String(name));
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                              button->mapTo(&window, button->rect().center()));
        };
        press("Diagnostics");
        const QPointer<QWidget> opened = DiagnosticsReader().window();
        QVERIFY(opened && opened->isModal());
        press("Diagnostics");
        QCOMPARE(DiagnosticsReader().window(), opened.data());
        const auto *const verdict = window.findChild<QLabel *>("MainWindow_labelVerdict");
        press("Unplug");
        QCOMPARE(verdict->text(), QString("No modem is plugged in."));
        SdkControl::plug();
        QVERIFY(SdkControl::waitForEvents(10000));
        settle();
        QCOMPARE(verdict->text(), QString("The modem is connected."));
        press("CopyReport");
        QVERIFY(QGuiApplication::clipboard()->text().contains("  IMEI: 00101700*******\n"));
        const QTemporaryDir folder;
        press("SaveReport");
        auto *const dialog = window.findChild<QFileDialog *>("MainWindow_fileDialog");
        dialog->findChild<QLineEdit *>()->setText(folder.filePath("report.json"));
        QVERIFY(QMetaObject::invokeMethod(dialog, "accept"));
        const auto saved = QJsonDocument::fromJson(contentOf(folder.filePath("report.json")));
        QCOMPARE(saved["identifiers"].toString(), QString("masked"));
        opened->close();
        press("Diagnostics");
        QVERIFY(DiagnosticsReader().window());
        QVERIFY(DiagnosticsReader().window()->geometry().center().x() > window.geometry().right());
        QCOMPARE(clipped(&window).join(" "), QString());
        window.close();
        QVERIFY(!DiagnosticsReader().window());
    }

    /// What wraps has room on the longest page. A word that is too long for the page is marked, and
    /// its tool tip shows it whole.
    void longValues()
    {
        const LogCapture log;
        HostCore::applyLook(*qApp);
        RealPlugin plugin;
        const QString apn(64, 'm');
        const QString address = "2001:0db8:85a3:08d3:1319:8a2e:0370:7344";
        setValues("network/operatorName=The Long Name of a Network for Testing;connection/apn=" +
                  apn + ";connection/ipAddress=" + address + ";connection/nameServers=" + address +
                  ", " + address);
        for (const QString &language :
             HostCore::languages(plugin.built.filePath(HOST_DATA_DIR "/translations"))) {
            setLanguage(qPrintable(language));
            Diagnostics diagnostics(m_modem, plugin.loader, QString(), language);
            QVERIFY(diagnostics.open());
            const DiagnosticsReader reader;
            QVERIFY(reader.selectTab("Network status"));
            settle();
            QCOMPARE(clipped(reader.window()).join(' '), QString());
            QVERIFY(reader.selectTab("Network settings"));
            auto *const value =
                reader.window()->findChild<QLabel *>("DiagnosticsUIPlugin_labelAPNValue");
            QCOMPARE(value->text(), apn);
            QCOMPARE(mark(value), "first line");
            QHelpEvent help(QEvent::ToolTip, QPoint(), QPoint());
            QCoreApplication::sendEvent(value, &help);
            QVERIFY(QToolTip::text().contains(apn));
            value->setText(QString("word ").repeated(1000));
            settle();
            QCOMPARE(mark(value), "last line");
            value->setText("short");
            QCOMPARE(mark(value), "none");
            diagnostics.close();
        }
        attachModem("cdma");
        setValues("device/firmwareVersion=" + apn.left(52));
        Diagnostics diagnostics(m_modem, plugin.loader, QString(), "en");
        QVERIFY(diagnostics.open());
        for (auto *value : DiagnosticsReader().window()->findChildren<QLabel *>())
            QCOMPARE(mark(value), value->text().startsWith("mmm") ? "first line" : "none");
    }
};

QTEST_MAIN(VerdictTest)
#include "verdict.moc"
