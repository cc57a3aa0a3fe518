// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The export of the tabbed window, and what each action costs in SDK calls.

#include "DiagnosticsUILogic.h"
#include "DiagnosticsUIPlugin.h"
#include "PluginTest.h"

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

class ExportTest : public PluginTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { tearDown(); }
    void fileDialog();
    void shipped_data() { addRows(TEST_SOURCE_DIR "/export.txt", "languages"); }
    void shipped();
    void forms_data() { addRows(TEST_SOURCE_DIR "/export.txt", "forms"); }
    void forms();
    void failures_data() { addRows(TEST_SOURCE_DIR "/export.txt", "failures"); }
    void failures();
    void unavailableDeviceIsAsked();
    void ownWordingIsBlankOnScreenOnly();
    void textsFromTheAir_data();
    void textsFromTheAir();
    void windowGoes_data() { addRows(TEST_SOURCE_DIR "/export.txt", "window goes"); }
    void windowGoes();
    void tornDownBeforeSaving();
    void pluginGoesWhileSaving();
    void documentedCost();

private:
    HostCore::PluginRegister m_container;
    StatusBar m_statusBar;
};

void ExportTest::init()
{
    setUp();
    m_host->write("host.ini", "[version]\nversion=2.1\n");
    HostCore::setSettingsFile(path("host.ini"));
    m_statusBar.name = QString::fromUtf8("Caf\xC3\xA9 \xE2\x82\xAC");
    m_container.add(QLatin1String(CLSID_STATUSBAR_UI), PLUGIN_TYPE_STATUSBAR_UI, &m_statusBar);
    HostCore::setPluginContainer(&m_container);
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
    button("Save")->click();
    QCOMPARE(asked, QStringList({QLatin1String("Text Files (*.txt)"), QDir::homePath(),
                                 QLatin1String("*.txt"), QLatin1String("save")}));
}

/// The whole report, byte for byte, of tabs of which only the first was opened.
void ExportTest::shipped()
{
    QFETCH(QStringList, fields);
    setLanguage(fields.at(0).toLatin1().constData());
    open();
    QCOMPARE(save(button("Save"), path("report.txt")), QStringList(fields.at(1)));
    QCOMPARE(contentOf(path("report.txt")),
             contentOf(QLatin1String(TEST_SOURCE_DIR "/report.") + fields.at(0)));
    QVERIFY(flatten(diagnosticsWindow()).last().endsWith(QLatin1String(" = ")));
}

void ExportTest::forms()
{
    QFETCH(QStringList, fields);
    open("<veltdoc>" + fields.at(3).toLatin1() + Common + "</veltdoc>");
    const QByteArray file = fields.at(1).toLatin1();
    m_host->write(file.constData(), QByteArray("an older and longer report\n").repeated(20));
    m_log->takeLog();
    save(button("Save"), path(file.constData()));
    QCOMPARE(contentOf(path(file.constData())), fields.at(2).toLatin1());
    const QStringList said = m_log->takeLog();
    QCOMPARE(said.at(0), line("onButtonSaveClicked: called"));
    QCOMPARE(said.at(1), line("saveToFile: called"));
    QCOMPARE(said.last(), line("saveToFile: file writing success"));
}

void ExportTest::failures()
{
    QFETCH(QStringList, fields);
    open();
    takeCalls();
    m_log->takeLog();
    const bool cancelled = fields.at(0) == QLatin1String("cancelled");
    QCOMPARE(
        save(button("Save"), cancelled ? QString() : path(fields.at(1).toLatin1().constData())),
        cancelled ? QStringList() : list("Error: The diagnostics could not be saved."));
    QCOMPARE(m_log->takeLog().contains(line("saveToFile: Error in opening file")), !cancelled);
    QCOMPARE(takeCalls(), QStringList());
    QCOMPARE(contentOf(path("host.ini")), QByteArray("[version]\nversion=2.1\n"));
}

void ExportTest::unavailableDeviceIsAsked()
{
    open(QByteArray("<veltdoc><tab name='Device' resourceID='IDS_TAB_DEVICE'>"
                    "<item name='IMEI' resourceID='IDS_DIAGNOSE_IMEI'/></tab>") +
         Common + "</veltdoc>");
    DiagnosticsUILogic::OnDevEvents(6601, nullptr); // the modem itself still answers
    save(button("Save"), path("report.txt"));
    QCOMPARE(contentOf(path("report.txt")), QByteArray("Device\nIMEI 001017003100016\n\n"));
}

/// With a wording of its own the SIM tab's title matches no configured caption.
void ExportTest::ownWordingIsBlankOnScreenOnly()
{
    QByteArray xml = contentOf(QLatin1String(DIAG_SOURCE_DIR "/config/DiagnosisConfig.xml"));
    xml.replace("<simmsgprompt>SIM/USIM<", "<simmsgprompt>UIM<");
    open(xml);
    tabs()->setCurrentIndex(3);
    const QStringList rows = flatten(diagnosticsWindow());
    QCOMPARE(rows.at(rows.size() - 8), QString::fromLatin1("[UIM]"));
    QCOMPARE(rows.at(rows.size() - 5), QString::fromLatin1("Messages in UIM = "));
    save(button("Save"), path("report.txt"));
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
    m_statusBar.name = name;
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
    save(button("Save"), path("report.txt"));
    const QByteArray report = contentOf(path("report.txt"));
    QVERIFY(report.startsWith("Network status\nNetwork name "));
    QCOMPARE(QString::fromUtf8(report).toUtf8(), report); // valid UTF-8
}

void ExportTest::windowGoes()
{
    QFETCH(QStringList, fields);
    const bool inMessageBox = fields.at(1) == QLatin1String("message box");
    open();
    const QPointer<QWidget> window = diagnosticsWindow();
    QTimer end;
    QObject::connect(&end, &QTimer::timeout, this, [&] {
        if (QApplication::activeModalWidget()->inherits("QMessageBox") != inMessageBox)
            return;
        end.stop();
        if (fields.at(0) == QLatin1String("notification")) {
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
        button("Save")->click();
    settle();
    QVERIFY(!window);
    QCOMPARE(m_log->takeLog().filter(QLatin1String("saveToFile")).isEmpty(), !inMessageBox);
}

void ExportTest::tornDownBeforeSaving()
{
    open();
    m_plugin->OnDestroy();
    QCOMPARE(save(button("Save"), path("report.txt")),
             list("Error: The diagnostics could not be saved."));
    QVERIFY(!QFile::exists(path("report.txt")));
    QCOMPARE(m_log->takeLog().last(),
             line("saveToFile: ConfigInstance or m_ptabWidgetDiag is null"));
}

void ExportTest::pluginGoesWhileSaving()
{
    open();
    QTimer::singleShot(0, this, [this] {
        delete m_plugin;
        m_plugin = nullptr;
        answer(qobject_cast<QFileDialog *>(QApplication::activeModalWidget()), path("report.txt"));
    });
    button("Save")->click();
    QVERIFY(!QFile::exists(path("report.txt")));
}

/// The table in docs/sdk-calls.md.
void ExportTest::documentedCost()
{
    QStringList table;
    const auto add = [&table](const QString &action) {
        QStringList names;
        QHash<QString, int> counts;
        const QStringList calls = takeCalls();
        for (const QString &call : calls) {
            const QString name = call.section(QLatin1Char('('), 0, 0);
            if (counts[name]++ == 0)
                names.append(name);
        }
        for (QString &name : names) {
            const int count = counts.value(name);
            name = QLatin1Char('`') + name + QLatin1Char('`');
            if (count > 1)
                name += QString::fromLatin1(" (%1)").arg(count);
        }
        table.append(QString::fromLatin1("| %1 | %2 | %3 |")
                         .arg(action)
                         .arg(calls.size())
                         .arg(names.join(QLatin1String(", "))));
    };
    open();
    add(QLatin1String("Open the window"));
    for (int index = 0; index < tabs()->count(); ++index) {
        const QString caption = tabs()->tabText(index);
        tabs()->setCurrentIndex(index);
        if (index > 0)
            add(QString::fromLatin1("Visit %1 for the first time").arg(caption));
        button("Refresh")->click();
        add(QLatin1String("Refresh ") + caption);
    }
    tabs()->setCurrentIndex(2);
    add(QLatin1String("Visit Network status again"));
    tabs()->setCurrentIndex(0);
    add(QLatin1String("Visit any other tab again"));
    save(button("Save"), path("report.txt"));
    add(QLatin1String("Save"));

    QStringList documented;
    const QString docs =
        QString::fromUtf8(contentOf(QLatin1String(DIAG_SOURCE_DIR "/docs/sdk-calls.md")));
    for (const QString &row : docs.split(QLatin1Char('\n'))) {
        if (row.startsWith(QLatin1String("| ")) && !row.startsWith(QLatin1String("| Action")))
            documented.append(row);
    }
    QCOMPARE(table, documented);
}

QTEST_MAIN(ExportTest)
#include "export.moc"
