// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The tabbed window: what it is built of, what fills it, what each action costs, how it ends.

#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUILogic.h"
#include "DiagnosticsUIPlugin.h"
#include "TestSupport.h"

#include "HostCore.h"
#include "ModemControl.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

using namespace TestSupport;

namespace {

const char TwoTabs[] = "<veltdoc><tab name='Device' resourceID='IDS_TAB_DEVICE'>"
                       "<item name='IMEI' resourceID='IDS_DIAGNOSE_IMEI'/></tab>"
                       "<tab name='Network status' resourceID='IDS_TAB_NETWORK_STATUS'>"
                       "<item name='RSCP' resourceID='IDS_DIAGNOSE_RSCP'/></tab>"
                       "<common><simmsgprompt>SIM/USIM</simmsgprompt></common></veltdoc>";

QStringList texts(std::initializer_list<const char *> latin1)
{
    QStringList list;
    for (const char *text : latin1)
        list.append(QString::fromLatin1(text));
    return list;
}

QString name(const char *object)
{
    return QLatin1String("DiagnosticsUIPlugin_") + QLatin1String(object);
}

} // namespace

class WindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void widgets();
    void shippedConfiguration();
    void everyNameIsKnown();
    void costOfActions();
    void networkStatusInAnotherLanguage();
    void hiddenAndDoubleRows();
    void captionLookups();
    void unavailableDevice();
    void customization_data();
    void customization();
    void saveButton_data();
    void saveButton();
    void noCustomizationOpensWindow();
    void releasedStore();
    void tabWithoutItemList();
    void valuesOfUnknownNames();
    void plainTextAndCopying();
    void thousandRows();
    void ends_data();
    void ends();
    void twoWindows_data();
    void twoWindows();
    void tornDownUnderTheWindow();
    void toolkitTranslationIsNeverAsked();

private:
    void open(const QByteArray &configuration);
    QTabWidget *tabs()
    {
        return diagnosticsWindow()->findChild<QTabWidget *>(name("tabWidgetDiag"));
    }
    void click(const char *button)
    {
        QTest::mouseClick(diagnosticsWindow()->findChild<QPushButton *>(name(button)),
                          Qt::LeftButton);
    }

    LogCapture *m_log = nullptr;
    ConfiguredHost *m_host = nullptr;
    QWidget *m_parent = nullptr;
    DiagnosticsUIPlugin *m_plugin = nullptr;
};

void WindowTest::init()
{
    m_log = new LogCapture;
    m_host = new ConfiguredHost;
    attachModem("wcdma");
    m_parent = new QWidget;
    m_parent->resize(600, 500);
    m_parent->show();
    m_plugin = new DiagnosticsUIPlugin;
}

void WindowTest::cleanup()
{
    delete m_parent;
    settle();
    QVERIFY(!diagnosticsWindow());
    delete m_plugin;
    // What the counting rule leaves alive: one query layer, which holds the store.
    DiagnosticsUILogic::Destroy();
    DiagnosticsConfigParse::DestroyInstance();
    DiagnosticsConfigParse::DestroyInstance();
    delete m_host;
    QStringList warnings = m_log->takeWarnings();
    // Without a Save button the toolkit says that it passes over it.
    warnings.removeAll(QLatin1String("QLayout: Cannot add a null widget to QHBoxLayout/"
                                     "DiagnosticsUIPlugin_hboxLayoutBottom"));
    QCOMPARE(warnings, QStringList());
    delete m_log;
}

void WindowTest::open(const QByteArray &configuration)
{
    if (!configuration.isEmpty())
        m_host->write("DiagnosisConfig.xml", configuration);
    QCOMPARE(m_plugin->Init(), 1);
    ModemControl::startRecording();
    QRect rect;
    QCOMPARE(m_plugin->ShowWindow(m_parent, rect), 1);
    QVERIFY(diagnosticsWindow());
}

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
    QCOMPARE(window->focusWidget()->objectName(), name("pushButtonCancel"));

    auto *bottom = window->findChild<QHBoxLayout *>(name("hboxLayoutBottom"));
    QCOMPARE(bottom->contentsMargins(), QMargins(0, 0, 15, 0));
    QCOMPARE(bottom->alignment(), Qt::Alignment(Qt::AlignRight));
    QWidget *refresh = window->findChild<QPushButton *>(name("pushButtonRefresh"));
    QWidget *cancel = window->findChild<QPushButton *>(name("pushButtonCancel"));
    QCOMPARE(cancel->x() - refresh->x() - refresh->width(), 26);
    QVERIFY(refresh->geometry().top() >= tabs()->geometry().bottom());

    const auto captions = tabs()->findChildren<QLabel *>();
    for (QLabel *label : captions) {
        if (label->objectName().endsWith(QLatin1String("Value")))
            QVERIFY(label->wordWrap());
        else
            QCOMPARE(label->width(), 185);
    }
    QCOMPARE(captions.size(), 2 * 31);
}

void WindowTest::shippedConfiguration()
{
    open(QByteArray());
    const QStringList opened =
        texts({"[Device]", "Device name = TM-W310", "Application port = KORVENMOBILE-Pcui",
               "Serial number = TW3100A940016", "IMEI = 001017003100016",
               "Hardware version = W3B1TCPU Ver.A", "Firmware version = 11.433.09.00.00",
               "Software version = Unknown", "[Network settings]",
               "APN = ", "Network selection = ", "[Network status]"});
    QCOMPARE(QStringList(flatten(diagnosticsWindow()).mid(0, opened.size())), opened);

    for (int index = 1; index < tabs()->count(); ++index)
        tabs()->setCurrentIndex(index);
    const QStringList visited = texts({"[Network settings]",
                                       "APN = Unknown",
                                       "Network selection = Automatic",
                                       "[Network status]",
                                       "Network name = Unknown",
                                       "Network type = Unknown",
                                       "Signal strength = 19, 99",
                                       "RSSI = -75dBm",
                                       "RSQUAL (BER) = 99",
                                       "RSCP = -87",
                                       "Ec/Io = -6",
                                       "Ec/No = not implement",
                                       "Cell ID = 00C3D4E",
                                       "Location area code (LAC) = 1A2B",
                                       "CS registration = Registered",
                                       "PS registration = Registered",
                                       "PS attachment = Attached",
                                       "IP address = 192.0.2.17",
                                       "DNS server = 192.0.2.53, 192.0.2.54",
                                       "[SIM/USIM]",
                                       "IMSI = 001010000000017",
                                       "Own number (MSISDN) = +447700900017",
                                       "Messages in SIM/USIM = 4 / 30",
                                       "Contacts in SIM/USIM = 12 / 250",
                                       "Message centre (SMSC) = +447700900900",
                                       "PIN status = Ready",
                                       "ICCID = 89001010000000000117"});
    QCOMPARE(QStringList(flatten(diagnosticsWindow()).mid(8)), visited);
}

/// Each name of the shipped file has a value of its own, and all that the dispatch knows is
/// shipped.
void WindowTest::everyNameIsKnown()
{
    open(QByteArray());
    QFile file(QLatin1String(DIAG_SOURCE_DIR "/config/DiagnosisConfig.xml"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    QString tab;
    QStringList unanswered;
    int rows = 0;
    ModemControl::setResult("*", 1);
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement() ||
            !reader.attributes().hasAttribute(QLatin1String("resourceID")))
            continue;
        const QString given = reader.attributes().value(QLatin1String("name")).toString();
        if (reader.name() == QLatin1String("tab")) {
            tab = given;
            continue;
        }
        ++rows;
        m_log->takeLog();
        QString value;
        m_plugin->getValueLabelVal(tab, given, &value);
        // A known name asks the query layer, whose lines tell so.
        if (m_log->takeLog().filter(QLatin1String("DiagnosticsUILogic: ")).isEmpty())
            unanswered.append(given);
    }
    QCOMPARE(unanswered, QStringList());
    QCOMPARE(rows, 31);
}

/// The SDK calls that each action costs.
void WindowTest::costOfActions()
{
    open(TwoTabs);
    const QStringList imei = texts({"VELT_DevSrv_GetImeiInfo()"});
    const QStringList rscp = texts({"VELT_NetSrv_GetSignalQuality()"});
    QCOMPARE(takeCalls(), texts({"VELT_DevSrv_GetProductType()"}) + imei);
    tabs()->setCurrentIndex(1);
    QCOMPARE(takeCalls(), rscp);
    m_log->takeLog();
    tabs()->setCurrentIndex(0);
    QCOMPARE(takeCalls(), QStringList());
    QCOMPARE(m_log->takeLog(),
             texts({"TIME: ../../src/DiagnosisPlugin/DiagnosticsUIPlugin: onTabChange: called"}));
    tabs()->setCurrentIndex(1);
    QCOMPARE(takeCalls(), rscp); // the network status is read on each visit
    ModemControl::setValue("device/imei", "1");
    ModemControl::setValue("network/rscp", "-1");
    click("pushButtonRefresh");
    QCOMPARE(takeCalls(), rscp);
    QCOMPARE(flatten(diagnosticsWindow()),
             texts({"[Device]", "IMEI = 001017003100016", "[Network status]", "RSCP = -1"}));
    tabs()->setCurrentIndex(0);
    click("pushButtonRefresh");
    QCOMPARE(takeCalls(), imei);
    tabs()->setCurrentIndex(1);
    tabs()->setCurrentIndex(0);
    QCOMPARE(takeCalls(), rscp); // Refresh changed no mark
}

void WindowTest::networkStatusInAnotherLanguage()
{
    setLanguage("de");
    open(TwoTabs);
    tabs()->setCurrentIndex(1);
    takeCalls();
    tabs()->setCurrentIndex(0);
    tabs()->setCurrentIndex(1);
    QCOMPARE(takeCalls(), QStringList());
}

void WindowTest::hiddenAndDoubleRows()
{
    open("<veltdoc><tab name='SIM/USIM' resourceID='IDS_TAB_SIM' show='false'>"
         "<item name='ICCID' resourceID='IDS_DIAGNOSE_ICCID'/></tab>"
         "<tab name='Device' resourceID='IDS_TAB_DEVICE'>"
         "<item name='IMEI' resourceID='IDS_DIAGNOSE_IMEI'/>"
         "<item name='Serial number' resourceID='IDS_DIAGNOSE_SERIAL_NUMBER' show='false'/>"
         "<item name='IMEI' resourceID='IDS_DIAGNOSE_IMEI'/></tab>"
         "<tab name='Empty' resourceID='IDS_TAB_NETWORK_SETTINGS'/>"
         "<common><simmsgprompt>SIM/USIM</simmsgprompt></common></veltdoc>");
    tabs()->setCurrentIndex(1);
    tabs()->setCurrentIndex(0);
    QCOMPARE(flatten(diagnosticsWindow()),
             texts({"[Device]", "IMEI = 001017003100016", "IMEI = ", "[Network settings]"}));
    QCOMPARE(takeCalls().count(QLatin1String("VELT_DevSrv_GetImeiInfo()")), 2);
    QCOMPARE(takeCalls().size(), 0);
}

/// A tab change takes the first caption that contains the tab's, Refresh only an equal one.
void WindowTest::captionLookups()
{
    // "Device" is contained in "Device name", letter case ignored.
    open("<veltdoc><tab name='Network status' resourceID='IDS_DIAGNOSE_DEVICE_NAME'>"
         "<item name='RSCP' resourceID='IDS_DIAGNOSE_RSCP'/></tab>"
         "<tab name='Device' resourceID='IDS_TAB_DEVICE'>"
         "<item name='IMEI' resourceID='IDS_DIAGNOSE_IMEI'/></tab>"
         "<tab name='Same caption' resourceID='IDS_TAB_DEVICE'>"
         "<item name='Serial number' resourceID='IDS_DIAGNOSE_SERIAL_NUMBER'/></tab>"
         "<common><simmsgprompt>SIM/USIM</simmsgprompt></common></veltdoc>");
    const QStringList rscp = texts({"VELT_NetSrv_GetSignalQuality()"});
    const QStringList imei = texts({"VELT_DevSrv_GetImeiInfo()"});
    takeCalls();
    tabs()->setCurrentIndex(1);
    QCOMPARE(takeCalls(), rscp);
    click("pushButtonRefresh");
    QCOMPARE(takeCalls(), imei);
    tabs()->setCurrentIndex(2);
    QCOMPARE(takeCalls(), rscp);
    click("pushButtonRefresh");
    QCOMPARE(takeCalls(), imei); // of two equal captions the first
    QCOMPARE(flatten(diagnosticsWindow()).last(), QString::fromLatin1("Serial number = "));
}

void WindowTest::unavailableDevice()
{
    m_host->write("host.ini", "[version]\nversion=2.1\n");
    HostCore::setSettingsFile(m_host->folder() + QLatin1String("host.ini"));
    open("<veltdoc><tab name='Device' resourceID='IDS_TAB_DEVICE'>"
         "<item name='IMEI' resourceID='IDS_DIAGNOSE_IMEI'/>"
         "<item name='Software version' resourceID='IDS_DIAGNOSE_SOFTWARE_VERSION'/></tab>"
         "<tab name='Network status' resourceID='IDS_TAB_NETWORK_STATUS'>"
         "<item name='RSCP' resourceID='IDS_DIAGNOSE_RSCP'/></tab>"
         "<common><simmsgprompt>SIM/USIM</simmsgprompt></common></veltdoc>");
    const QStringList present = texts({"[Device]", "IMEI = 001017003100016",
                                       "Software version = 2.1", "[Network status]", "RSCP = "});
    QCOMPARE(flatten(diagnosticsWindow()), present);

    ModemControl::unplug();
    QVERIFY(ModemControl::waitForEvents(10000));
    settle();
    takeCalls();
    QCOMPARE(flatten(diagnosticsWindow()), present); // an event alone changes no row
    tabs()->setCurrentIndex(1);
    tabs()->setCurrentIndex(0);
    click("pushButtonRefresh");
    QCOMPARE(takeCalls(), QStringList());
    QCOMPARE(flatten(diagnosticsWindow()),
             texts({"[Device]", "IMEI = Unknown", "Software version = 2.1", "[Network status]",
                    "RSCP = Unknown"}));

    ModemControl::plug();
    QVERIFY(ModemControl::waitForEvents(10000));
    settle();
    click("pushButtonRefresh");
    tabs()->setCurrentIndex(1);
    QCOMPARE(flatten(diagnosticsWindow()),
             texts({"[Device]", "IMEI = 001017003100016", "Software version = 2.1",
                    "[Network status]", "RSCP = -87"}));
}

void WindowTest::customization_data()
{
    QTest::addColumn<QByteArray>("prompt");
    QTest::addColumn<QByteArray>("simTab");
    QTest::addColumn<QStringList>("expected");
    const QByteArray sim("IDS_TAB_SIM");
    QTest::newRow("the common wording")
        << QByteArray("<common><simmsgprompt>SIM/USIM</simmsgprompt></common>") << sim
        << texts({"[Device]", "[SIM/USIM]", "Messages in SIM/USIM = ", "Contacts in SIM/USIM = "});
    QTest::newRow("a wording of its own leaves the tab blank")
        << QByteArray("<common><simmsgprompt>UIM</simmsgprompt></common>") << sim
        << texts({"[Device]", "[UIM]", "Messages in UIM = ", "Contacts in UIM = "});
    QTest::newRow("no wording") << QByteArray() << sim
                                << texts({"[Device]", "[]", "Messages in  = ", "Contacts in  = "});
    QTest::newRow("no title with sim: the first tab")
        << QByteArray("<common><simmsgprompt>UIM</simmsgprompt></common>")
        << QByteArray("IDS_TAB_NETWORK_SETTINGS")
        << texts({"[UIM]", "[Network settings]", "Messages in UIM = ", "Contacts in UIM = "});
}

void WindowTest::customization()
{
    QFETCH(QByteArray, prompt);
    QFETCH(QByteArray, simTab);
    QFETCH(QStringList, expected);
    open("<veltdoc><tab name='Device' resourceID='IDS_TAB_DEVICE'/>"
         "<tab name='SIM/USIM' resourceID='" +
         simTab +
         "'>"
         "<item name='Messages in SIM/USIM' resourceID='IDS_DIAGNOSE_SIM_MESSAGES'/>"
         "<item name='Contacts in SIM/USIM' resourceID='IDS_DIAGNOSE_SIM_CONTACTS'/></tab>" +
         prompt + "</veltdoc>");
    QCOMPARE(flatten(diagnosticsWindow()), expected);
    tabs()->setCurrentIndex(1);
    click("pushButtonRefresh");
    const bool found = tabs()->tabText(1) == QLatin1String("SIM/USIM") ||
                       tabs()->tabText(1) == QLatin1String("Network settings");
    // An empty title is contained in the first tab's, a wording of its own in none.
    QCOMPARE(flatten(diagnosticsWindow()).last().endsWith(QLatin1String("12 / 250")), found);
}

void WindowTest::saveButton_data()
{
    QTest::addColumn<QByteArray>("function");
    QTest::addColumn<bool>("shown");
    QTest::newRow("true") << QByteArray("<item name='SaveButton' value='true'/>") << true;
    QTest::newRow("capital") << QByteArray("<item name='SaveButton' value='True'/>") << false;
    QTest::newRow("digit") << QByteArray("<item name='SaveButton' value='1'/>") << false;
    QTest::newRow("empty") << QByteArray("<item name='SaveButton'/>") << false;
    QTest::newRow("missing") << QByteArray() << false;
}

void WindowTest::saveButton()
{
    QFETCH(QByteArray, function);
    QFETCH(bool, shown);
    open("<veltdoc><function>" + function +
         "</function><common><simmsgprompt>SIM/USIM</simmsgprompt></common></veltdoc>");
    auto *save = diagnosticsWindow()->findChild<QPushButton *>(name("pushButtonSave"));
    QCOMPARE(save != nullptr, shown);
    if (!shown)
        return;
    auto *refresh = diagnosticsWindow()->findChild<QPushButton *>(name("pushButtonRefresh"));
    QCOMPARE(save->text(), QString::fromLatin1("&Save"));
    QCOMPARE(refresh->x() - save->x() - save->width(), 26);
    QVERIFY(m_log->takeLog().contains(
        QLatin1String("TIME: ../../src/DiagnosisPlugin/DiagnosticsUIPlugin: createDiagWidget: "
                      "bSetVisible is false")));
}

void WindowTest::noCustomizationOpensWindow()
{
    // A file that is missing altogether: no tabs, and an empty wording, which has no tab to go to.
    QVERIFY(QFile::remove(m_host->folder() + QLatin1String("DiagnosisConfig.xml")));
    open(QByteArray());
    QCOMPARE(flatten(diagnosticsWindow()), QStringList());
    click("pushButtonRefresh");
    click("pushButtonCancel");
    settle();
    QVERIFY(!diagnosticsWindow());
}

void WindowTest::releasedStore()
{
    QCOMPARE(m_plugin->Init(), 1);
    DiagnosticsConfigParse::GetInstance()->ReleaseData();
    m_log->takeLog();
    QRect rect;
    QCOMPARE(m_plugin->ShowWindow(m_parent, rect), 0);
    QVERIFY(!diagnosticsWindow());
    QStringList messages;
    for (const QString &line : m_log->takeLog().filter(QLatin1String("ailed")))
        messages.append(line.section(QLatin1String(": "), 2));
    QCOMPARE(messages, texts({"dynamicTabCreation: Memory Allocation Failed",
                              "createDiagWidget: dynamic Tab creation Failed",
                              "createWcdmaDialog: Creation of dialog is failed"}));
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
    QRect rect;
    QCOMPARE(m_plugin->ShowWindow(m_parent, rect), 0);
    QCOMPARE(
        m_log->takeLog().filter(QLatin1String("createTab: Input Parameter has a problem")).size(),
        1);
    DiagnosticsConfigParse::DestroyInstance();
}

void WindowTest::valuesOfUnknownNames()
{
    const auto value = [this](const char *tab, const char *item) {
        QString text;
        m_plugin->getValueLabelVal(QLatin1String(tab), QLatin1String(item), &text);
        return text;
    };
    const QString unknown = QLatin1String("Unknown");
    QCOMPARE(value("SIM/USIM", "ICCID"), unknown); // before Init
    open(TwoTabs);
    ModemControl::setValue("network/rssi", "99");
    QCOMPARE(value("Network settings", "IMEI"), QString::fromLatin1("001017003100016"));
    QCOMPARE(value("Device", "Network selection mode"), QString::fromLatin1("Automatic"));
    QCOMPARE(value("Network status", "RSSI"), unknown);
    takeCalls();
    const char *unknowns[][2] = {{"device", "IMEI"},
                                 {"Device", "imei"},
                                 {"Device", "Firmware version"},
                                 {"Network status", "IMEI"},
                                 {"SIM/USIM", "Messages in Device"},
                                 {"", ""}};
    for (const auto &names : unknowns)
        QCOMPARE(value(names[0], names[1]), unknown);
    QCOMPARE(takeCalls(), QStringList());
    // A getter's empty answer is replaced by the outer function alone.
    ModemControl::setResult("VELT_DevSrv_GetImeiInfo", 1);
    QCOMPARE(m_plugin->getDeviceNetTabItemValue(QLatin1String("IMEI")), QString());
    QCOMPARE(value("Device", "IMEI"), unknown);
    QString left = QLatin1String("left");
    m_plugin->getValueLabelVal(QLatin1String("none"), QLatin1String("none"), &left);
    QCOMPARE(left, QString::fromLatin1("left"));
}

void WindowTest::plainTextAndCopying()
{
    ModemControl::setValue("device/imei", "<b>1</b>&amp;\n2");
    open(TwoTabs);
    auto *label = diagnosticsWindow()->findChild<QLabel *>(name("labelIMEIValue"));
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

void WindowTest::ends_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::newRow("cancel") << QByteArray("cancel");
    QTest::newRow("title bar") << QByteArray("close");
    QTest::newRow("Esc") << QByteArray("escape");
    QTest::newRow("notification") << QByteArray("notify");
    QTest::newRow("the host's window goes") << QByteArray("parent");
}

void WindowTest::ends()
{
    QFETCH(QByteArray, way);
    open(TwoTabs);
    QPointer<QWidget> window = diagnosticsWindow();
    QSignalSpy ended(window, SIGNAL(dlgCloseEvent()));
    QCOMPARE(m_plugin->Notify(4101, 4100, 4100), 0);
    QVERIFY(window->isVisible());
    if (way == "cancel") {
        click("pushButtonCancel");
    } else if (way == "close") {
        window->close();
    } else if (way == "escape") {
        QTest::keyClick(window, Qt::Key_Escape);
    } else if (way == "notify") {
        QCOMPARE(m_plugin->Notify(4100, 0, 0), 0);
    } else {
        delete m_parent;
        m_parent = nullptr;
    }
    settle();
    QVERIFY(!window);
    QCOMPARE(ended.count(), 1);
    QCOMPARE(m_plugin->Notify(4100, 0, 0), 0); // with no window
    // A new window is built as the first one was.
    QRect rect;
    QCOMPARE(m_plugin->ShowWindow(m_parent, rect), 1);
    QCOMPARE(flatten(diagnosticsWindow()).at(1), QString::fromLatin1("IMEI = 001017003100016"));
    delete diagnosticsWindow();
}

void WindowTest::twoWindows_data()
{
    QTest::addColumn<bool>("newerFirst");
    QTest::newRow("the newer closes first") << true;
    QTest::newRow("the older closes first") << false;
}

/// The plug-in knows the newer window only: the older one must still be harmless.
void WindowTest::twoWindows()
{
    QFETCH(bool, newerFirst);
    open(TwoTabs);
    QPointer<QWidget> older = diagnosticsWindow();
    QPointer<QTabWidget> olderTabs = tabs();
    older->hide(); // so that diagnosticsWindow() is the newer one
    QRect rect;
    QCOMPARE(m_plugin->ShowWindow(m_parent, rect), 1);
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
             texts({"TIME: ../../src/DiagnosisPlugin/DiagnosticsUIPlugin: onTabChange: called",
                    "TIME: ../../src/DiagnosisPlugin/DiagnosticsUIPlugin: onTabChange: no more tab "
                    "to switch or widget is null"}));
    click("pushButtonRefresh");
    QCOMPARE(takeCalls(), QStringList());
    QRect rect;
    QCOMPARE(m_plugin->ShowWindow(m_parent, rect), 0);
    click("pushButtonCancel");
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
    click("pushButtonRefresh");
    QCoreApplication::removeTranslator(&recorder);
    QVERIFY2(recorder.contexts.filter(QLatin1String("Diagnostics")).isEmpty(),
             qPrintable(recorder.contexts.join(QLatin1Char(' '))));
}

QTEST_MAIN(WindowTest)
#include "window.moc"
