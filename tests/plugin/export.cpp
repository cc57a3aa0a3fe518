// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The export of the tabbed window, and what each action costs in SDK calls.

#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUILogic.h"
#include "DiagnosticsUIPlugin.h"
#include "TestSupport.h"

#include "HostCore.h"
#include "ModemControl.h"
#include "interfaces/IStatusBarUI.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QtTest>

using namespace TestSupport;

namespace {

const char Common[] = "<function><item name='SaveButton' value='true'/></function>"
                      "<common><simmsgprompt>SIM/USIM</simmsgprompt></common>";

/// The operator's name from the air.
class StatusBar : public QObject, public IStatusBarUI
{
    Q_OBJECT
    Q_INTERFACES(IStatusBarUI)

public:
    QString name;

    int IGetServiceName(QString &text) override
    {
        text = name;
        return 0;
    }
    int IGetNetworkType(QString &text) override
    {
        text = QLatin1String("UMTS");
        return 0;
    }
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

} // namespace

class ExportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void fileDialog();
    void shipped_data();
    void shipped();
    void forms_data();
    void forms();
    void failures_data();
    void failures();
    void unavailableDeviceIsAsked();
    void ownWordingIsBlankOnScreenOnly();
    void textsFromTheAir_data();
    void textsFromTheAir();
    void windowGoes_data();
    void windowGoes();
    void tornDownBeforeSaving();
    void pluginGoesWhileSaving();
    void documentedCost();

private:
    void open(const QByteArray &configuration = QByteArray())
    {
        if (!configuration.isEmpty())
            m_host->write("DiagnosisConfig.xml", configuration);
        QCOMPARE(m_plugin->Init(), 1);
        QRect rect;
        QCOMPARE(m_plugin->ShowWindow(m_parent, rect), 1);
    }
    QPushButton *saveButton()
    {
        return diagnosticsWindow()->findChild<QPushButton *>(
            QLatin1String("DiagnosticsUIPlugin_pushButtonSave"));
    }
    QString path(const char *file) { return m_host->folder() + QLatin1String(file); }

    LogCapture *m_log = nullptr;
    ConfiguredHost *m_host = nullptr;
    HostCore::PluginRegister *m_container = nullptr;
    StatusBar *m_statusBar = nullptr;
    QWidget *m_parent = nullptr;
    DiagnosticsUIPlugin *m_plugin = nullptr;
};

void ExportTest::init()
{
    m_log = new LogCapture;
    m_host = new ConfiguredHost;
    m_host->write("host.ini", "[version]\nversion=2.1\n");
    HostCore::setSettingsFile(path("host.ini"));
    attachModem("wcdma");
    m_statusBar = new StatusBar;
    m_statusBar->name = QString::fromUtf8("Caf\xC3\xA9 \xE2\x82\xAC");
    m_container = new HostCore::PluginRegister;
    m_container->add(QLatin1String(CLSID_STATUSBAR_UI), PLUGIN_TYPE_STATUSBAR_UI, m_statusBar);
    HostCore::setPluginContainer(m_container);
    m_parent = new QWidget;
    m_parent->show();
    m_plugin = new DiagnosticsUIPlugin;
}

void ExportTest::cleanup()
{
    delete m_parent;
    settle();
    delete m_plugin;
    DiagnosticsUILogic::Destroy();
    DiagnosticsConfigParse::DestroyInstance();
    DiagnosticsConfigParse::DestroyInstance();
    delete m_container;
    delete m_statusBar;
    delete m_host;
    QCOMPARE(m_log->takeWarnings(), QStringList());
    delete m_log;
}

void ExportTest::fileDialog()
{
    open();
    QStringList asked;
    QTimer::singleShot(0, this, [&asked] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        asked = dialog->nameFilters();
        asked.append(dialog->directory().path());
        asked.append(dialog->findChild<QLineEdit *>()->text());
        if (dialog->acceptMode() == QFileDialog::AcceptSave &&
            dialog->fileMode() == QFileDialog::AnyFile &&
            !dialog->testOption(QFileDialog::DontConfirmOverwrite) &&
            dialog->defaultSuffix().isEmpty())
            asked.append(QLatin1String("save"));
        dialog->reject();
    });
    saveButton()->click();
    QCOMPARE(asked, QStringList({QLatin1String("Text Files (*.txt)"), QDir::homePath(),
                                 QLatin1String("*.txt"), QLatin1String("save")}));
}

void ExportTest::shipped_data()
{
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<QString>("message");
    QTest::newRow("English") << QByteArray("en")
                             << QString::fromLatin1("Information|The diagnostics were saved.");
    QTest::newRow("German") << QByteArray("de")
                            << QString::fromLatin1("Information|Die Diagnose wurde gespeichert.");
}

/// The whole report, byte for byte, of tabs of which only the first was opened.
void ExportTest::shipped()
{
    QFETCH(QByteArray, language);
    QFETCH(QString, message);
    setLanguage(language.constData());
    open();
    QCOMPARE(save(saveButton(), path("report.txt")).shown, QStringList(message));
    QCOMPARE(contentOf(path("report.txt")),
             contentOf(QLatin1String(TEST_SOURCE_DIR "/report.") + QLatin1String(language)));
    QVERIFY(flatten(diagnosticsWindow()).last().endsWith(QLatin1String(" = ")));
}

void ExportTest::forms_data()
{
    QTest::addColumn<QByteArray>("tabs");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray file("report.txt");
    QTest::newRow("two tabs of two rows")
        << QByteArray("<tab name='Device' resourceID='IDS_TAB_DEVICE'>"
                      "<item name='IMEI' resourceID='IDS_DIAGNOSE_IMEI'/>"
                      "<item name='?' resourceID='IDS_DIAGNOSE_APN'/></tab>"
                      "<tab name='?' resourceID='IDS_TAB_SIM'>"
                      "<item name='IMEI' resourceID='?'/><item name='x' resourceID='?'/></tab>")
        << file
        << QByteArray("Device\nIMEI 001017003100016\nAPN Unknown\n\n"
                      "SIM/USIM\n Unknown\n Unknown\n\n");
    QTest::newRow("hidden tab and row")
        << QByteArray("<tab name='Device' resourceID='IDS_TAB_DEVICE'>"
                      "<item name='IMEI' resourceID='IDS_DIAGNOSE_IMEI' show='false'/></tab>"
                      "<tab name='Device' resourceID='IDS_TAB_SIM' show='false'>"
                      "<item name='IMEI' resourceID='IDS_DIAGNOSE_IMEI'/></tab>")
        << file << QByteArray("Device\n\n");
    QTest::newRow("tab without rows")
        << QByteArray("<tab resourceID='IDS_TAB_DEVICE'/>") << file << QByteArray("Device\n\n");
    QTest::newRow("no shown tab") << QByteArray("<tab name='Device' show='false'/>") << file
                                  << QByteArray();
    QTest::newRow("no extension is added") << QByteArray("<tab resourceID='IDS_TAB_DEVICE'/>")
                                           << QByteArray("report") << QByteArray("Device\n\n");
}

void ExportTest::forms()
{
    QFETCH(QByteArray, tabs);
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, expected);
    open("<veltdoc>" + tabs + Common + "</veltdoc>");
    m_host->write(file.constData(), "an older and longer report\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n");
    m_log->takeLog();
    save(saveButton(), path(file.constData()));
    QCOMPARE(contentOf(path(file.constData())), expected);
    const QStringList said = m_log->takeLog();
    const QString at = QLatin1String("TIME: ../../src/DiagnosisPlugin/DiagnosticsUIPlugin: ");
    QCOMPARE(said.at(0), at + QLatin1String("onButtonSaveClicked: called"));
    QCOMPARE(said.at(1), at + QLatin1String("saveToFile: called"));
    QCOMPARE(said.last(), at + QLatin1String("saveToFile: file writing success"));
}

void ExportTest::failures_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("boxes");
    QTest::addColumn<int>("lines");
    const QStringList failure(QLatin1String("Error|The diagnostics could not be saved."));
    QTest::newRow("cancelled") << QByteArray() << QStringList() << 0;
    QTest::newRow("below a regular file") << QByteArray("host.ini/report.txt") << failure << 1;
    QTest::newRow("in no folder") << QByteArray("none/report.txt") << failure << 1;
    QTest::newRow("a folder") << QByteArray(".") << failure << 1;
}

void ExportTest::failures()
{
    QFETCH(QByteArray, file);
    QFETCH(QStringList, boxes);
    QFETCH(int, lines);
    open();
    ModemControl::startRecording();
    m_log->takeLog();
    QCOMPARE(save(saveButton(), file.isEmpty() ? QString() : path(file.constData())).shown, boxes);
    QCOMPARE(m_log->takeLog()
                 .filter(QLatin1String("DiagnosticsUIPlugin: saveToFile: Error in opening file"))
                 .size(),
             lines);
    QCOMPARE(takeCalls(), QStringList());
    QCOMPARE(contentOf(path("host.ini")), QByteArray("[version]\nversion=2.1\n"));
}

void ExportTest::unavailableDeviceIsAsked()
{
    open(QByteArray("<veltdoc><tab name='Device' resourceID='IDS_TAB_DEVICE'>"
                    "<item name='IMEI' resourceID='IDS_DIAGNOSE_IMEI'/></tab>") +
         Common + "</veltdoc>");
    DiagnosticsUILogic::OnDevEvents(6601, nullptr); // the modem itself still answers
    save(saveButton(), path("report.txt"));
    QCOMPARE(contentOf(path("report.txt")), QByteArray("Device\nIMEI 001017003100016\n\n"));
}

/// On a device with a wording of its own the SIM tab's title matches no configured caption.
void ExportTest::ownWordingIsBlankOnScreenOnly()
{
    QByteArray xml = contentOf(QLatin1String(DIAG_SOURCE_DIR "/config/DiagnosisConfig.xml"));
    xml.replace("<simmsgprompt>SIM/USIM<", "<simmsgprompt>UIM<");
    open(xml);
    auto *tabs = diagnosticsWindow()->findChild<QTabWidget *>();
    QCOMPARE(tabs->tabText(3), QString::fromLatin1("UIM"));
    tabs->setCurrentIndex(3);
    const QStringList rows = flatten(diagnosticsWindow());
    QCOMPARE(rows.at(rows.size() - 5), QString::fromLatin1("Messages in UIM = "));
    save(saveButton(), path("report.txt"));
    QVERIFY(contentOf(path("report.txt")).contains("\nMessages in SIM/USIM 4 / 30\n"));
}

void ExportTest::textsFromTheAir_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("markup") << QString::fromLatin1("<img src='x'><b>Net</b>&amp;");
    QTest::newRow("line breaks") << QString::fromLatin1("one\r\ntwo\n\n\tthree");
    QTest::newRow("long") << QString(10000, QLatin1Char('n'));
    QTest::newRow("half a character")
        << QString(QChar(0xD800)) + QLatin1String("x") + QChar(0xDC00);
    QTest::newRow("right to left") << QString::fromUtf8("\xD8\xB4\xD8\xA8\xD9\x83\xE2\x80\xAE x");
}

void ExportTest::textsFromTheAir()
{
    QFETCH(QString, name);
    m_statusBar->name = name;
    ModemControl::setValue("sim/smsCentre", std::string("\xFF\xFE\xED\xA0\x80", 5)); // not UTF-8
    open(QByteArray("<veltdoc><tab name='Network status' resourceID='IDS_TAB_NETWORK_STATUS'>"
                    "<item name='Network name' resourceID='IDS_DIAGNOSE_NETWORK_NAME'/></tab>"
                    "<tab name='SIM/USIM' resourceID='IDS_TAB_SIM'>"
                    "<item name='SMSC(Message center number)' resourceID='IDS_DIAGNOSE_SMSC'/>"
                    "</tab>") +
         Common + "</veltdoc>");
    const auto *label = diagnosticsWindow()->findChild<QLabel *>(
        QLatin1String("DiagnosticsUIPlugin_labelNetwork nameValue"));
    QCOMPARE(label->text(), name);
    save(saveButton(), path("report.txt"));
    const QByteArray report = contentOf(path("report.txt"));
    QVERIFY(report.startsWith("Network status\nNetwork name "));
    QCOMPARE(QString::fromUtf8(report).toUtf8(), report); // valid UTF-8
}

void ExportTest::windowGoes_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::addColumn<bool>("inMessageBox");
    QTest::newRow("notification, file dialog") << QByteArray("notify") << false;
    QTest::newRow("notification, message box") << QByteArray("notify") << true;
    QTest::newRow("host's window, file dialog") << QByteArray("parent") << false;
    QTest::newRow("host's window, message box") << QByteArray("parent") << true;
}

void ExportTest::windowGoes()
{
    QFETCH(QByteArray, way);
    QFETCH(bool, inMessageBox);
    open();
    const QPointer<QWidget> window = diagnosticsWindow();
    QTimer end;
    QObject::connect(&end, &QTimer::timeout, this, [&] {
        if (!window || (QApplication::activeModalWidget()->inherits("QMessageBox") != inMessageBox))
            return;
        end.stop();
        if (way == "notify") {
            m_plugin->Notify(4100, 0, 0);
        } else {
            delete m_parent;
            m_parent = nullptr;
        }
    });
    end.start(1);
    m_log->takeLog();
    if (inMessageBox)
        m_plugin->saveToFile(path("report.txt"));
    else
        saveButton()->click();
    settle();
    QVERIFY(!window);
    QCOMPARE(m_log->takeLog().filter(QLatin1String("saveToFile")).isEmpty(), !inMessageBox);
}

void ExportTest::tornDownBeforeSaving()
{
    open();
    m_plugin->OnDestroy();
    m_log->takeLog();
    QCOMPARE(save(saveButton(), path("report.txt")).shown,
             QStringList(QLatin1String("Error|The diagnostics could not be saved.")));
    QVERIFY(!QFile::exists(path("report.txt")));
    QCOMPARE(m_log->takeLog().last(),
             QString::fromLatin1("TIME: ../../src/DiagnosisPlugin/DiagnosticsUIPlugin: saveToFile: "
                                 "ConfigInstance or m_ptabWidgetDiag is null"));
}

void ExportTest::pluginGoesWhileSaving()
{
    open();
    QTimer::singleShot(0, this, [this] {
        delete m_plugin;
        m_plugin = nullptr;
        answer(qobject_cast<QFileDialog *>(QApplication::activeModalWidget()), path("report.txt"));
    });
    saveButton()->click();
    QVERIFY(!QFile::exists(path("report.txt")));
}

/// The table in docs/sdk-calls.md.
void ExportTest::documentedCost()
{
    QStringList table;
    const auto add = [&table](const QString &action) {
        QStringList calls = takeCalls();
        QStringList names;
        for (QString call : calls) {
            call = call.section(QLatin1Char('('), 0, 0);
            const QString quoted = QLatin1Char('`') + call + QLatin1Char('`');
            if (!names.contains(quoted))
                names.append(quoted);
        }
        for (QString &name : names) {
            int count = 0;
            for (const QString &call : calls)
                count += call.startsWith(name.mid(1, name.size() - 2) + QLatin1Char('('));
            if (count > 1)
                name += QString::fromLatin1(" (%1)").arg(count);
        }
        table.append(QString::fromLatin1("| %1 | %2 | %3 |")
                         .arg(action)
                         .arg(calls.size())
                         .arg(names.join(QLatin1String(", "))));
    };
    QCOMPARE(m_plugin->Init(), 1);
    ModemControl::startRecording();
    QRect rect;
    QCOMPARE(m_plugin->ShowWindow(m_parent, rect), 1);
    add(QLatin1String("Open the window"));
    auto *tabs = diagnosticsWindow()->findChild<QTabWidget *>();
    auto *refresh = diagnosticsWindow()->findChild<QPushButton *>(
        QLatin1String("DiagnosticsUIPlugin_pushButtonRefresh"));
    for (int index = 0; index < tabs->count(); ++index) {
        if (index > 0) {
            tabs->setCurrentIndex(index);
            add(QString::fromLatin1("Visit %1 for the first time").arg(tabs->tabText(index)));
        }
        refresh->click();
        add(QLatin1String("Refresh ") + tabs->tabText(index));
    }
    tabs->setCurrentIndex(2);
    add(QLatin1String("Visit Network status again"));
    tabs->setCurrentIndex(0);
    add(QLatin1String("Visit any other tab again"));
    save(saveButton(), path("report.txt"));
    add(QLatin1String("Save"));

    QStringList documented;
    for (const QByteArray &line :
         contentOf(QLatin1String(DIAG_SOURCE_DIR "/docs/sdk-calls.md")).split('\n')) {
        if (line.startsWith("| ") && !line.startsWith("| Action"))
            documented.append(QString::fromUtf8(line));
    }
    if (table != documented)
        keepActual("sdk-calls.md", table);
    QCOMPARE(table, documented);
}

QTEST_MAIN(ExportTest)
#include "export.moc"
