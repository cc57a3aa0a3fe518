// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The tabbed window: what it is built of, what fills it, what each action costs, how it ends.

#include "ConfigSchema.h"
#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUIPlugin.h"
#include "PluginTest.h"

#include "HostCore.h"
#include "ModemControl.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTranslator>
#include <QtTest>

using namespace TestSupport;

namespace {

const char TwoTabs[] = "<veltdoc><tab name='Device' resourceID='IDS_TAB_DEVICE'>"
                       "<item name='IMEI' resourceID='IDS_DIAGNOSE_IMEI'/></tab>"
                       "<tab name='Network status' resourceID='IDS_TAB_NETWORK_STATUS'>"
                       "<item name='RSCP' resourceID='IDS_DIAGNOSE_RSCP'/></tab>"
                       "<common><simmsgprompt>SIM/USIM</simmsgprompt></common></veltdoc>";

} // namespace

class WindowTest : public PluginTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        setUp();
        m_host->write("host.ini", "[version]\nversion=2.1\n");
        HostCore::setSettingsFile(path("host.ini"));
    }
    void cleanup() { tearDown(); }

    void widgets();
    void schemaListsTheRows();
    void actions_data() { addRows(TEST_SOURCE_DIR "/window.txt", "actions"); }
    void actions();
    void saveButton_data() { addRows(TEST_SOURCE_DIR "/window.txt", "save button"); }
    void saveButton();
    void noCustomizationOpensWindow();
    void releasedStore();
    void tabWithoutItemList();
    void values_data() { addRows(TEST_SOURCE_DIR "/window.txt", "values"); }
    void values();
    void valuesWithoutAnswer();
    void plainTextAndCopying();
    void thousandRows();
    void ends_data() { addRows(TEST_SOURCE_DIR "/window.txt", "ends"); }
    void ends();
    void twoWindows_data() { addRows(TEST_SOURCE_DIR "/window.txt", "two windows"); }
    void twoWindows();
    void tornDownUnderTheWindow();
    void toolkitTranslationIsNeverAsked();
};

void WindowTest::widgets()
{
    open(QByteArray());
    QWidget *window = diagnosticsWindow();
    QCOMPARE(window->minimumSize(), QSize(460, 426));
    QCOMPARE(window->maximumSize(), QSize(460, 426));
    QCOMPARE(tabs()->maximumSize(), QSize(450, 365));
    QCOMPARE(window->windowModality(), Qt::WindowModal);
    QCOMPARE(window->windowTitle(), QString::fromLatin1("Diagnostics"));
    QVERIFY(window->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(window->parentWidget(), m_parent);
    QCOMPARE(window->focusWidget()->objectName(),
             QLatin1String("DiagnosticsUIPlugin_pushButtonCancel"));

    auto *bottom =
        window->findChild<QHBoxLayout *>(QLatin1String("DiagnosticsUIPlugin_hboxLayoutBottom"));
    QCOMPARE(bottom->contentsMargins(), QMargins(0, 0, 15, 0));
    QCOMPARE(bottom->alignment(), Qt::Alignment(Qt::AlignRight));
    QCOMPARE(button("Cancel")->x() - button("Refresh")->geometry().right() - 1, 26);
    QCOMPARE(button("Refresh")->x() - button("Save")->geometry().right() - 1, 26);
    QVERIFY(button("Refresh")->y() > tabs()->geometry().bottom());

    const auto captions = tabs()->findChildren<QLabel *>();
    for (QLabel *label : captions) {
        if (label->objectName().endsWith(QLatin1String("Value")))
            QVERIFY(label->wordWrap());
        else
            QCOMPARE(label->width(), 185);
    }
    QCOMPARE(captions.size(), 2 * 31);
}

/// The schema lists the rows that have values, and no others. Whatever a name is compared with
/// stands as a literal in the source.
void WindowTest::schemaListsTheRows()
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

/// What each action costs in SDK calls, and what it shows.
void WindowTest::actions()
{
    QFETCH(QStringList, fields);
    play(QLatin1String("window.actions"), fields.at(0));
}

void WindowTest::saveButton()
{
    QFETCH(QStringList, fields);
    open("<veltdoc><function>" + fields.at(0).toLatin1() +
         "</function><common><simmsgprompt>SIM/USIM</simmsgprompt></common></veltdoc>");
    const bool shown = button("Save") != nullptr;
    QCOMPARE(shown ? QLatin1String("shown") : QLatin1String("none"), fields.at(1));
    QCOMPARE(m_log->takeLog().contains(line("createDiagWidget: bSetVisible is false")), shown);
}

void WindowTest::noCustomizationOpensWindow()
{
    // A file that is missing altogether: no tabs, and an empty wording, which has no tab to go to.
    QVERIFY(QFile::remove(m_host->folder() + QLatin1String("DiagnosisConfig.xml")));
    open(QByteArray());
    QCOMPARE(flatten(diagnosticsWindow()), QStringList());
    button("Refresh")->click();
    button("Cancel")->click();
    settle();
    QVERIFY(!diagnosticsWindow());
}

void WindowTest::releasedStore()
{
    QCOMPARE(m_plugin->Init(), 1);
    DiagnosticsConfigParse::GetInstance()->ReleaseData();
    m_log->takeLog();
    QCOMPARE(show(), 0);
    QVERIFY(!diagnosticsWindow());
    QStringList messages;
    for (const QString &line : m_log->takeLog().filter(QLatin1String("ailed")))
        messages.append(line.section(QLatin1String(": "), 2));
    QCOMPARE(messages,
             list("dynamicTabCreation: Memory Allocation Failed|createDiagWidget: dynamic Tab "
                  "creation Failed|createWcdmaDialog: Creation of dialog is failed"));
    DiagnosticsConfigParse::DestroyInstance();
}

/// The parser makes no such tab, but the store's list is open to others.
void WindowTest::tabWithoutItemList()
{
    m_host->write("DiagnosisConfig.xml", TwoTabs);
    QCOMPARE(m_plugin->Init(), 1);
    TabDetails &first = DiagnosticsConfigParse::GetInstance()->GetTabInformation()->first();
    delete first.items;
    first.items = nullptr;
    m_log->takeLog();
    QCOMPARE(show(), 0);
    QCOMPARE(
        m_log->takeLog().filter(QLatin1String("createTab: Input Parameter has a problem")).size(),
        1);
    DiagnosticsConfigParse::DestroyInstance();
}

void WindowTest::values()
{
    QFETCH(QStringList, fields);
    QString before;
    m_plugin->getValueLabelVal(fields.at(0), fields.at(1), &before);
    QCOMPARE(before, QString::fromLatin1("Unknown")); // there is no query layer yet
    QCOMPARE(m_plugin->Init(), 1);
    takeCalls();
    QString value;
    m_plugin->getValueLabelVal(fields.at(0), fields.at(1), &value);
    QCOMPARE(value, fields.at(2));
    QCOMPARE(takeCalls().size(), fields.at(3).toInt());
}

void WindowTest::valuesWithoutAnswer()
{
    open(TwoTabs);
    ModemControl::setResult("*", 1);
    QCOMPARE(m_plugin->getDeviceNetTabItemValue(QLatin1String("IMEI")), QString());
    QString value;
    m_plugin->getValueLabelVal(QLatin1String("Device"), QLatin1String("IMEI"), &value);
    QCOMPARE(value, QString::fromLatin1("Unknown"));
    m_plugin->getValueLabelVal(QLatin1String("Network status"), QLatin1String("RSSI"), &value);
    QCOMPARE(value, QString::fromLatin1("Unknown"));
    value = QLatin1String("left");
    m_plugin->getValueLabelVal(QLatin1String("none"), QLatin1String("none"), &value);
    QCOMPARE(value, QString::fromLatin1("left"));
}

void WindowTest::plainTextAndCopying()
{
    ModemControl::setValue("device/imei", "<b>1</b>&amp;\n2");
    open(TwoTabs);
    auto *label = diagnosticsWindow()->findChild<QLabel *>(
        QLatin1String("DiagnosticsUIPlugin_labelIMEIValue"));
    QCOMPARE(label->text(), QString::fromLatin1("<b>1</b>&amp;\n2"));
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY(label->textInteractionFlags() & Qt::TextSelectableByMouse);
}

void WindowTest::thousandRows()
{
    QByteArray xml("<veltdoc><tab name='Device' resourceID='IDS_TAB_DEVICE'>");
    for (int row = 0; row < 1000; ++row)
        xml += "<item name='row " + QByteArray::number(row) + "' resourceID='IDS_DIAGNOSE_APN'/>";
    open(xml + "</tab><common><simmsgprompt>SIM/USIM</simmsgprompt></common></veltdoc>");
    const QStringList rows = flatten(diagnosticsWindow());
    QCOMPARE(rows.size(), 1001);
    QCOMPARE(rows.last(), QString::fromLatin1("APN = Unknown"));
}

void WindowTest::ends()
{
    QFETCH(QStringList, fields);
    const QString way = fields.at(0);
    open(TwoTabs);
    const QPointer<QWidget> window = diagnosticsWindow();
    QSignalSpy ended(window, SIGNAL(dlgCloseEvent()));
    QCOMPARE(m_plugin->Notify(4101, 4100, 4100), 0);
    QVERIFY(window->isVisible());
    if (way == QLatin1String("Cancel")) {
        button("Cancel")->click();
    } else if (way == QLatin1String("title bar")) {
        window->close();
    } else if (way == QLatin1String("Esc")) {
        QTest::keyClick(window, Qt::Key_Escape);
    } else if (way == QLatin1String("notification")) {
        QCOMPARE(m_plugin->Notify(4100, 0, 0), 0);
    } else {
        delete m_parent;
        m_parent = nullptr;
    }
    settle();
    QVERIFY(!window);
    QCOMPARE(ended.count(), 1);
    QCOMPARE(m_plugin->Notify(4100, 0, 0), 0); // with no window
    QCOMPARE(show(), 1);                       // a new window, built as the first one was
    QCOMPARE(flatten(diagnosticsWindow()).at(1), QString::fromLatin1("IMEI = 001017003100016"));
    delete diagnosticsWindow();
}

/// The plug-in knows the newer window only: the older one must still be harmless.
void WindowTest::twoWindows()
{
    QFETCH(QStringList, fields);
    const bool newerFirst = fields.at(0) == QLatin1String("the newer closes first");
    open(TwoTabs);
    QPointer<QWidget> older = diagnosticsWindow();
    QPointer<QTabWidget> olderTabs = tabs();
    older->hide(); // so that diagnosticsWindow() is the newer one
    QCOMPARE(show(), 1);
    QPointer<QWidget> newer = diagnosticsWindow();
    QVERIFY(newer != older);
    older->show();
    (newerFirst ? newer : older)->close();
    settle();
    if (newerFirst) {
        QVERIFY(older && !newer);
        takeCalls();
        olderTabs->setCurrentIndex(1);
        for (QPushButton *button : older->findChildren<QPushButton *>())
            QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(takeCalls(), QStringList());
        older->close();
        settle();
    }
    QVERIFY(!older);
    delete newer;
}

void WindowTest::tornDownUnderTheWindow()
{
    open(TwoTabs);
    m_plugin->OnDestroy();
    m_plugin->OnDestroy();
    takeCalls();
    m_log->takeLog();
    tabs()->setCurrentIndex(1);
    QCOMPARE(m_log->takeLog(),
             list("TIME: ../../src/DiagnosisPlugin/DiagnosticsUIPlugin: onTabChange: called|TIME: "
                  "../../src/DiagnosisPlugin/DiagnosticsUIPlugin: onTabChange: no more tab to "
                  "switch or widget is null"));
    button("Refresh")->click();
    QCOMPARE(takeCalls(), QStringList());
    QCOMPARE(show(), 0);
    button("Cancel")->click();
    settle();
    QVERIFY(!diagnosticsWindow());
}

/// A resource key handed over as a literal would go to the toolkit's own tr(), whose context is the
/// class name.
void WindowTest::toolkitTranslationIsNeverAsked()
{
    class Recorder : public QTranslator
    {
    public:
        QString translate(const char *context, const char *, const char *, int) const override
        {
            contexts.append(QString::fromLatin1(context));
            return QString();
        }
        bool isEmpty() const override { return false; }
        mutable QStringList contexts;
    } recorder;
    QCoreApplication::installTranslator(&recorder);
    open(QByteArray());
    for (int index = 1; index < tabs()->count(); ++index)
        tabs()->setCurrentIndex(index);
    button("Refresh")->click();
    QCoreApplication::removeTranslator(&recorder);
    QVERIFY2(recorder.contexts.filter(QLatin1String("Diagnostics")).isEmpty(),
             qPrintable(recorder.contexts.join(QLatin1Char(' '))));
}

QTEST_MAIN(WindowTest)
#include "window.moc"
