// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The fixed window of CDMA devices: its rows, what refreshes and saves them, how it ends.

#include "DiagnosticsCdmaUI.h"
#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUILogic.h"
#include "DiagnosticsUIPlugin.h"
#include "TestSupport.h"

#include "HostCore.h"
#include "ModemControl.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using namespace TestSupport;

namespace {

QString name(const char *object)
{
    return QLatin1String("DiagnosticsUIPlugin_") + QLatin1String(object);
}

QStringList texts(std::initializer_list<const char *> latin1)
{
    QStringList list;
    for (const char *text : latin1)
        list.append(QString::fromLatin1(text));
    return list;
}

QByteArray configuration(const char *save, const char *carriers)
{
    return QByteArray("<veltdoc><function>") + save + "</function><CDMADiagnostics>" + carriers +
           "</CDMADiagnostics><common><simmsgprompt>SIM/USIM</simmsgprompt></common></veltdoc>";
}

const char SaveOn[] = "<item name='SaveButton' value='true'/>";
const char CarriersOn[] = "<item name='Carriers' show='true'/>";

const char *const AllRows[] = {"Messages in UIM = 5 / 30",     "Contacts in UIM = 12 / 250",
                               "Messages in device = 7 / 100", "Contacts in device = 3 / 500",
                               "IMSI = 001010000000017",       "Firmware version = FW",
                               "Hardware version = HW",        "Voltage = 3900",
                               "PRL version = 60001",          "Number of carriers = 3",
                               "Pseudo-ESN = 80A1B2C3",        "MEID = A1000012345678"};

/// The rows of AllRows but for those at the given places, with the plain caption of the ESN.
QStringList rowsWithout(std::initializer_list<int> places, bool pseudoEsn)
{
    QStringList rows;
    for (int place = 0; place < 12; ++place) {
        if (std::find(places.begin(), places.end(), place) == places.end())
            rows.append(QString::fromLatin1(AllRows[place]));
    }
    if (!pseudoEsn)
        rows.replaceInStrings(QLatin1String("Pseudo-ESN = 80"), QLatin1String("ESN = 7F"));
    return rows;
}

} // namespace

class CdmaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { HostCore::applyLook(*qApp); }
    void init();
    void cleanup();

    void rows_data();
    void rows();
    void refreshKeepsTheRows();
    void emptyValues();
    void saveButton_data();
    void saveButton();
    void savedFile();
    void saveFailures_data();
    void saveFailures();
    void windowGoesWhileSaving();
    void instanceGoesWhileSaving();
    void instance();
    void shownTwice();
    void notification();
    void tabbedWindowForgetsTheInstance();
    void log();
    void everyCallFails();

private:
    void write(const QByteArray &xml) { m_host->write("DiagnosisConfig.xml", xml); }
    void open()
    {
        QCOMPARE(m_plugin->Init(), 1);
        QRect rect;
        QCOMPARE(m_plugin->ShowWindow(m_parent, rect), 1);
        QVERIFY(window());
    }
    QDialog *window() { return m_parent->findChild<QDialog *>(name("dialogCdma")); }
    QPushButton *button(const char *object)
    {
        return window()->findChild<QPushButton *>(name(object));
    }
    QStringList shownRows()
    {
        QStringList rows;
        auto *form = qobject_cast<QFormLayout *>(
            window()->findChild<QFrame *>(name("frameCdmaDiag"))->layout());
        const auto text = [form](int row, QFormLayout::ItemRole role) {
            return qobject_cast<QLabel *>(form->itemAt(row, role)->widget())->text();
        };
        for (int row = 0; row < form->rowCount(); ++row)
            rows.append(text(row, QFormLayout::LabelRole) + QLatin1String(" = ") +
                        text(row, QFormLayout::FieldRole));
        return rows;
    }

    LogCapture *m_log = nullptr;
    ConfiguredHost *m_host = nullptr;
    QWidget *m_parent = nullptr;
    DiagnosticsUIPlugin *m_plugin = nullptr;
};

void CdmaTest::init()
{
    m_log = new LogCapture;
    m_host = new ConfiguredHost(configuration(SaveOn, CarriersOn));
    attachModem("cdma");
    const char *const values[][2] = {
        {"device/esn", "80A1B2C3"},       {"device/meid", "A1000012345678"},
        {"device/firmwareVersion", "FW"}, {"device/hardwareVersion", "HW"},
        {"device/voltage", "3900"},       {"device/prlVersion", "60001"},
        {"device/carriers", "3"},         {"device/messagesUsed", "7"},
        {"device/messagesTotal", "100"},  {"device/contactsUsed", "3"},
        {"device/contactsTotal", "500"},  {"sim/simStatus", "1"},
        {"sim/messagesUsed", "5"},        {"sim/messagesTotal", "30"},
        {"sim/contactsUsed", "12"},       {"sim/contactsTotal", "250"},
        {"sim/imsi", "001010000000017"},
    };
    for (const auto &value : values)
        ModemControl::setValue(value[0], value[1]);
    m_parent = new QWidget;
    m_parent->show();
    m_plugin = new DiagnosticsUIPlugin;
}

void CdmaTest::cleanup()
{
    delete m_parent;
    settle();
    delete m_plugin;
    DiagnosticsCdmaUI::DestroyInstance();
    for (int reference = 0; reference < 3; ++reference)
        DiagnosticsUILogic::Destroy();
    for (int reference = 0; reference < 3; ++reference)
        DiagnosticsConfigParse::DestroyInstance();
    delete m_host;
    QStringList warnings = m_log->takeWarnings();
    warnings.removeAll(QLatin1String("QLayout: Cannot add a null widget to QHBoxLayout/"
                                     "DiagnosticsUIPlugin_hboxLayoutCdmaBottom"));
    QCOMPARE(warnings, QStringList());
    delete m_log;
}

void CdmaTest::rows_data()
{
    QTest::addColumn<QByteArray>("changes"); ///< "key=value", separated by semicolons
    QTest::addColumn<QByteArray>("carriers");
    QTest::addColumn<QStringList>("expected");
    const QByteArray on(CarriersOn);
    QTest::newRow("all twelve") << QByteArray() << on << rowsWithout({}, true);
    QTest::newRow("all but seven")
        << QByteArray("sim/simStatus=240;device/prlVersion=;device/esn=7FA1B2C3") << QByteArray()
        << rowsWithout({0, 1, 8, 9, 11}, false);
    QTest::newRow("status that is not roaming")
        << QByteArray("sim/simStatus=") << on << rowsWithout({}, true);
    QTest::newRow("no pseudo-ESN")
        << QByteArray("device/esn=7FA1B2C3") << on << rowsWithout({11}, false);
    QTest::newRow("carriers in capitals")
        << QByteArray() << QByteArray("<item name='Carriers' show='UNTRUE'/>")
        << rowsWithout({}, true);
    QTest::newRow("carriers in another section")
        << QByteArray() << QByteArray("<function/><item name='Carriers' value='true'/>")
        << rowsWithout({}, true);
    QTest::newRow("no carriers") << QByteArray() << QByteArray("<item name='Carriers' show='yes'/>")
                                 << rowsWithout({9}, true);
}

void CdmaTest::rows()
{
    QFETCH(QByteArray, changes);
    QFETCH(QByteArray, carriers);
    QFETCH(QStringList, expected);
    write(configuration(SaveOn, carriers.constData()));
    for (const QByteArray &change : changes.split(';')) {
        const int at = change.indexOf('=');
        if (at > 0)
            ModemControl::setValue(change.left(at).toStdString(), change.mid(at + 1).toStdString());
    }
    open();
    QCOMPARE(shownRows(), expected);
    const auto *frame = window()->findChild<QFrame *>(name("frameCdmaDiag"));
    QCOMPARE(frame->size(), QSize(356, 35 * int(expected.size())));
    QCOMPARE(frame->frameShape(), QFrame::Box);
    QCOMPARE(window()->windowModality(), Qt::WindowModal);
    QCOMPARE(window()->windowTitle(), QString::fromLatin1("Diagnostics"));
    QVERIFY(window()->testAttribute(Qt::WA_DeleteOnClose));
    // Nothing is clipped: every label has the size it asks for, within the frame.
    for (const QLabel *label : frame->findChildren<QLabel *>()) {
        QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
        QVERIFY2(label->height() >= label->sizeHint().height(), qPrintable(label->text()));
        QVERIFY(frame->rect().contains(label->geometry()));
    }
}

void CdmaTest::refreshKeepsTheRows()
{
    ModemControl::setValue("device/esn", "7FA1B2C3");
    open();
    ModemControl::setValue("sim/simStatus", "240");
    ModemControl::setValue("device/prlVersion", "");
    ModemControl::setValue("device/esn", "80000000");
    ModemControl::setValue("device/voltage", "4000");
    QTest::mouseClick(button("pushButtonCdmaRefresh"), Qt::LeftButton);
    QStringList expected = rowsWithout({11}, false);
    expected[7] = QLatin1String("Voltage = 4000");
    expected[8] = QLatin1String("PRL version = Unknown");
    expected[10] = QLatin1String("ESN = 80000000");
    QCOMPARE(shownRows(), expected);
}

void CdmaTest::emptyValues()
{
    open();
    ModemControl::setResult("*", 4);
    QTest::mouseClick(button("pushButtonCdmaRefresh"), Qt::LeftButton);
    const QStringList rows = shownRows();
    QCOMPARE(rows.filter(QLatin1String(" = Unknown")).size(), 11);
    QCOMPARE(rows.at(9), QString::fromLatin1("Number of carriers = Not available"));
    auto *cdma = DiagnosticsCdmaUI::CreateInstance();
    QCOMPARE(cdma->getLabelValue(QLatin1String("IDS_MAINFRM_ESN")), QString());
    QCOMPARE(cdma->getLabelValue(QLatin1String("IDS_TAB_SIM")), QString::fromLatin1("Unknown"));
}

void CdmaTest::saveButton_data()
{
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<bool>("shown");
    QTest::newRow("true") << QByteArray(SaveOn) << true;
    QTest::newRow("capital") << QByteArray("<item name='SaveButton' value='True'/>") << false;
    QTest::newRow("missing") << QByteArray() << false;
}

void CdmaTest::saveButton()
{
    QFETCH(QByteArray, setting);
    QFETCH(bool, shown);
    write(configuration(setting.constData(), ""));
    open();
    const QPushButton *refresh = button("pushButtonCdmaRefresh");
    const QPushButton *cancel = button("pushButtonCdmaCancel");
    QCOMPARE(button("pushButtonCdmaSave") != nullptr, shown);
    QCOMPARE(cancel->x() - refresh->x() - refresh->width(), 5);
    if (shown)
        QCOMPARE(refresh->x() - button("pushButtonCdmaSave")->geometry().right() - 1, 5);
    const auto *bottom = window()->findChild<QHBoxLayout *>(name("hboxLayoutCdmaBottom"));
    QCOMPARE(bottom->alignment(), Qt::Alignment(Qt::AlignRight));
}

void CdmaTest::savedFile()
{
    open();
    ModemControl::setValue("device/hardwareVersion", "caf\xE9"); // not yet on the screen
    const QString path = m_host->folder() + QLatin1String("report");
    const MessageBoxes boxes = save(button("pushButtonCdmaSave"), path);
    QCOMPARE(boxes.shown, texts({"Information|The diagnostics were saved."}));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray expected;
    for (const char *row : AllRows)
        expected += QByteArray(row).replace(" = ", " ") + "\n\n";
    expected.replace("version HW", "version caf\xC3\xA9");
    QCOMPARE(file.readAll(), expected);
}

void CdmaTest::saveFailures_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("cancelled") << QByteArray() << QStringList();
    QTest::newRow("below a file") << QByteArray("DiagnosisConfig.xml/report.txt")
                                  << texts({"Error|The diagnostics could not be saved."});
}

void CdmaTest::saveFailures()
{
    QFETCH(QByteArray, path);
    QFETCH(QStringList, expected);
    open();
    m_log->takeLog();
    const QString whole = path.isEmpty() ? QString() : m_host->folder() + QString::fromLatin1(path);
    QCOMPARE(save(button("pushButtonCdmaSave"), whole).shown, expected);
    QCOMPARE(m_log->takeLog().filter(QLatin1String("saveFile: Error in opening file")).size(),
             int(expected.size()));
}

void CdmaTest::windowGoesWhileSaving()
{
    open();
    const QPointer<QWidget> shown = window();
    QTimer::singleShot(0, m_parent, [this] { m_plugin->Notify(4100, 0, 0); });
    QTest::mouseClick(button("pushButtonCdmaSave"), Qt::LeftButton); // blocks in the file dialog
    settle();
    QVERIFY(!shown);
    QVERIFY(m_log->takeLog().filter(QLatin1String("saveFile")).isEmpty());
}

void CdmaTest::instanceGoesWhileSaving()
{
    open();
    const QString path = m_host->folder() + QLatin1String("report.txt");
    QTimer::singleShot(0, m_parent, [this, &path] {
        m_plugin->OnDestroy();
        answer(qobject_cast<QFileDialog *>(QApplication::activeModalWidget()), path);
    });
    QTest::mouseClick(button("pushButtonCdmaSave"), Qt::LeftButton);
    QVERIFY(!QFile::exists(path));
}

void CdmaTest::instance()
{
    const QString entered =
        QLatin1String("TIME: ../../src/DiagnosisPlugin/DiagnosticsCdmaUI: %1: Entered");
    DiagnosticsCdmaUI::DestroyInstance();
    QCOMPARE(m_log->takeLog(), QStringList(entered.arg(QLatin1String("DestroyInstance"))));
    auto *first = DiagnosticsCdmaUI::CreateInstance();
    QCOMPARE(m_log->takeLog().at(0), entered.arg(QLatin1String("CreateInstance")));
    QCOMPARE(DiagnosticsCdmaUI::CreateInstance(), first);
    QCOMPARE(m_log->takeLog().size(), 1);
    QVERIFY(!first->visible());
    QSignalSpy gone(first, SIGNAL(destroyed()));
    QSignalSpy logicGone(DiagnosticsUILogic::GetInstance(), SIGNAL(destroyed()));
    DiagnosticsUILogic::Destroy(); // the one just taken
    DiagnosticsCdmaUI::DestroyInstance();
    QCOMPARE(gone.count(), 1);
    QCOMPARE(logicGone.count(), 0); // it gave one reference back, which left none
    DiagnosticsUILogic::Destroy();
    QCOMPARE(logicGone.count(), 1);
}

void CdmaTest::shownTwice()
{
    open();
    const QPointer<QDialog> first = window();
    auto *instance = DiagnosticsCdmaUI::CreateInstance();
    ModemControl::setValue("sim/simStatus", "240"); // too late for the rows
    QRect rect;
    QCOMPARE(m_plugin->ShowWindow(m_parent, rect), 1);
    QCOMPARE(DiagnosticsCdmaUI::CreateInstance(), instance);
    const auto windows = m_parent->findChildren<QDialog *>(name("dialogCdma"));
    QCOMPARE(windows.size(), 2);
    QVERIFY(first && first->isVisible()); // dropped, not deleted
    QVERIFY(instance->CloseCdmaDiagWidget());
    settle();
    QVERIFY(!instance->visible());
    QVERIFY(first);
    QCOMPARE(shownRows().size(), 12);
    first->close();
    settle();
    QVERIFY(!first);
}

void CdmaTest::notification()
{
    open();
    const QPointer<DiagnosticsCdmaUI> instance = DiagnosticsCdmaUI::CreateInstance();
    window()->hide();
    QCOMPARE(m_plugin->Notify(4100, 0, 0), 0);
    QVERIFY(instance && window());
    window()->show();
    QCOMPARE(m_plugin->Notify(4099, 0, 0), 0);
    QVERIFY(instance && instance->visible());
    QCOMPARE(m_plugin->Notify(4100, 0, 0), 0);
    QVERIFY(!instance);
    QCOMPARE(m_plugin->Notify(4100, 0, 0), 0);
    settle();
    QVERIFY(!window());
    QRect rect;
    QCOMPARE(m_plugin->ShowWindow(m_parent, rect), 1);
    QTest::mouseClick(button("pushButtonCdmaCancel"), Qt::LeftButton);
    settle();
    QVERIFY(!window());
}

void CdmaTest::tabbedWindowForgetsTheInstance()
{
    open();
    const QPointer<DiagnosticsCdmaUI> instance = DiagnosticsCdmaUI::CreateInstance();
    const QPointer<QDialog> cdmaWindow = window();
    ModemControl::setValue("device/productType", "0");
    QRect rect;
    QCOMPARE(m_plugin->ShowWindow(m_parent, rect), 1);
    QCOMPARE(m_plugin->Notify(4100, 0, 0), 0); // closes the tabbed one only
    settle();
    QVERIFY(instance && cdmaWindow && cdmaWindow->isVisible());
    m_plugin->OnDestroy();
    QVERIFY(instance);
}

void CdmaTest::log()
{
    QCOMPARE(m_plugin->Init(), 1);
    m_log->takeLog();
    QRect rect;
    QCOMPARE(m_plugin->ShowWindow(m_parent, rect), 1);
    QTest::mouseClick(button("pushButtonCdmaRefresh"), Qt::LeftButton);
    QTest::mouseClick(button("pushButtonCdmaCancel"), Qt::LeftButton);
    settle();
    QStringList said;
    const QString at = QLatin1String("TIME: ../../src/DiagnosisPlugin/DiagnosticsCdmaUI: ");
    for (const QString &line : m_log->takeLog()) {
        if (line.startsWith(at))
            said.append(line.mid(at.size()));
    }
    const QStringList value = texts({"getLabelValuebyName: called", "getLabelValue: called"});
    QStringList expected = texts({"CreateInstance: Entered", "populateList: called"});
    for (int row = 0; row < 12; ++row)
        expected += value;
    expected += texts(
        {"createCdmaLabels:  label creation successful", "createCdmaDialog: bSetVisible is false",
         "ShowCdmaDiagWidget: Creation of dialog is successful", "changeSimString: called",
         "ShowCdmaDiagWidget: Creation of dialog is successful", "onRefreshClicked: called"});
    for (int row = 0; row < 12; ++row)
        expected += value;
    expected += texts({"onCancelClicked: called", "onDlgClose: called"});
    QCOMPARE(said, expected);
}

void CdmaTest::everyCallFails()
{
    QCOMPARE(m_plugin->Init(), 1);
    auto *instance = DiagnosticsCdmaUI::CreateInstance();
    QVERIFY(instance);
    DiagnosticsCdmaUI::DestroyInstance();
    ModemControl::setResult("*", 1);
    ModemControl::setResult("VELT_DevSrv_GetProductType", 0, ModemControl::FillOutputs);
    QRect rect;
    QCOMPARE(m_plugin->ShowWindow(m_parent, rect), 1);
    const QStringList rows = shownRows();
    QCOMPARE(rows.size(), 10); // no PRL, no pseudo-ESN
    QCOMPARE(rows.filter(QLatin1String(" = Unknown")).size(), 9);
}

QTEST_MAIN(CdmaTest)
#include "cdma.moc"
