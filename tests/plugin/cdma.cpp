// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The fixed window of CDMA devices: its rows, what refreshes and saves them, how it ends.

#include "DiagnosticsCdmaUI.h"
#include "DiagnosticsUILogic.h"
#include "DiagnosticsUIPlugin.h"
#include "PluginTest.h"

#include "HostCore.h"
#include "ModemControl.h"

#include <QApplication>
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

QByteArray configuration(const char *save, const QByteArray &carriers)
{
    return QByteArray("<veltdoc><function>") + save + "</function><CDMADiagnostics>" + carriers +
           "</CDMADiagnostics><common><simmsgprompt>SIM/USIM</simmsgprompt></common></veltdoc>";
}

const char SaveOn[] = "<item name='SaveButton' value='true'/>";
const char CarriersOn[] = "<item name='Carriers' show='true'/>";

} // namespace

class CdmaTest : public PluginTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { HostCore::applyLook(*qApp); }
    void init();
    void cleanup() { tearDown(); }

    void rows_data() { addRows(TEST_SOURCE_DIR "/cdma.txt", "rows"); }
    void rows();
    void refreshKeepsTheRows();
    void everyCallFails();
    void saveButton();
    void savedFile();
    void saveFailures();
    void windowGoesWhileSaving();
    void instanceGoesWhileSaving();
    void instance();
    void shownTwice();
    void notification();
    void tabbedWindowForgetsTheInstance();
    void log();

private:
    QDialog *window() const
    {
        return m_parent->findChild<QDialog *>(QLatin1String("DiagnosticsUIPlugin_dialogCdma"));
    }
    QStringList shownRows() const
    {
        QStringList rows;
        const auto *form = window()->findChild<QFormLayout *>();
        const auto text = [form](int row, QFormLayout::ItemRole role) {
            return qobject_cast<QLabel *>(form->itemAt(row, role)->widget())->text();
        };
        for (int row = 0; row < form->rowCount(); ++row)
            rows.append(text(row, QFormLayout::LabelRole) + QLatin1Char(' ') +
                        text(row, QFormLayout::FieldRole));
        return rows;
    }

    const QStringList m_allRows =
        list("Messages in UIM 5 / 30|Contacts in UIM 12 / 250|Messages in device 7 / 100|"
             "Contacts in device 3 / 500|IMSI 001010000000017|Firmware version FW|"
             "Hardware version HW|Voltage 3900|PRL version 60001|Number of carriers 3|"
             "Pseudo-ESN 80A1B2C3|MEID A1000012345678");
};

void CdmaTest::init()
{
    setUp(configuration(SaveOn, CarriersOn));
    attachModem("cdma");
    setValues(QLatin1String(
        "device/esn=80A1B2C3;device/meid=A1000012345678;device/firmwareVersion=FW;"
        "device/hardwareVersion=HW;device/voltage=3900;device/prlVersion=60001;device/carriers=3;"
        "device/messagesUsed=7;device/messagesTotal=100;device/contactsUsed=3;"
        "device/contactsTotal=500;sim/simStatus=1;sim/messagesUsed=5;sim/messagesTotal=30;"
        "sim/contactsUsed=12;sim/contactsTotal=250;sim/imsi=001010000000017"));
}

void CdmaTest::rows()
{
    QFETCH(QStringList, fields);
    setValues(fields.at(0));
    open(configuration(SaveOn, fields.at(1).toLatin1()));
    QStringList expected;
    for (const QString &number : fields.at(2).split(QLatin1Char(' ')))
        expected.append(m_allRows.at(number.toInt()));
    if (fields.at(3) == QLatin1String("ESN"))
        expected.replaceInStrings(QLatin1String("Pseudo-ESN 80"), QLatin1String("ESN 7F"));
    QCOMPARE(shownRows(), expected);
    const auto *frame =
        window()->findChild<QFrame *>(QLatin1String("DiagnosticsUIPlugin_frameCdmaDiag"));
    QCOMPARE(frame->size(), QSize(356, 35 * int(expected.size())));
    QCOMPARE(frame->frameShape(), QFrame::Box);
    QCOMPARE(window()->windowModality(), Qt::WindowModal);
    QCOMPARE(window()->windowTitle(), QString::fromLatin1("Diagnostics"));
    QVERIFY(window()->testAttribute(Qt::WA_DeleteOnClose));
    for (const QLabel *label : frame->findChildren<QLabel *>()) { // nothing is clipped
        QVERIFY2(label->width() >= label->sizeHint().width() &&
                     label->height() >= label->sizeHint().height(),
                 qPrintable(label->text()));
        QVERIFY(frame->rect().contains(label->geometry()));
    }
}

void CdmaTest::refreshKeepsTheRows()
{
    ModemControl::setValue("device/esn", "7FA1B2C3");
    open();
    setValues(QLatin1String("sim/simStatus=240;device/prlVersion=;device/esn=80000000"));
    button("CdmaRefresh")->click();
    QStringList expected = m_allRows;
    expected.removeLast();
    expected[8] = QLatin1String("PRL version Unknown");
    expected[10] = QLatin1String("ESN 80000000");
    QCOMPARE(shownRows(), expected);
}

void CdmaTest::everyCallFails()
{
    QCOMPARE(m_plugin->Init(), 1);
    ModemControl::setResult("*", 1);
    ModemControl::setResult("VELT_DevSrv_GetProductType", 0, ModemControl::FillOutputs);
    QCOMPARE(show(), 1);
    QCOMPARE(shownRows().size(), 10); // no PRL, no pseudo-ESN
    QCOMPARE(shownRows().filter(QLatin1String(" Unknown")).size(), 9);
    QCOMPARE(shownRows().at(8), QString::fromLatin1("Number of carriers Not available"));
    auto *cdma = DiagnosticsCdmaUI::CreateInstance();
    QCOMPARE(cdma->getLabelValue(QLatin1String("IDS_MAINFRM_ESN")), QString());
    QCOMPARE(cdma->getLabelValue(QLatin1String("IDS_TAB_SIM")), QString::fromLatin1("Unknown"));
}

void CdmaTest::saveButton()
{
    open(configuration("<item name='SaveButton' value='True'/>", QByteArray()));
    QVERIFY(!button("CdmaSave"));
    QCOMPARE(button("CdmaCancel")->x() - button("CdmaRefresh")->geometry().right() - 1, 5);
    const auto *bottom = window()->findChild<QHBoxLayout *>(
        QLatin1String("DiagnosticsUIPlugin_hboxLayoutCdmaBottom"));
    QCOMPARE(bottom->alignment(), Qt::Alignment(Qt::AlignRight));
}

void CdmaTest::savedFile()
{
    open();
    QCOMPARE(button("CdmaRefresh")->x() - button("CdmaSave")->geometry().right() - 1, 5);
    ModemControl::setValue("device/hardwareVersion", "caf\xE9"); // not yet on the screen
    QCOMPARE(save(button("CdmaSave"), path("report")),
             list("Information: The diagnostics were saved."));
    QFile file(path("report"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QString expected = m_allRows.join(QLatin1String("\n\n")) + QLatin1String("\n\n");
    expected.replace(QLatin1String("version HW"), QString::fromLatin1("version caf\xE9"));
    QCOMPARE(file.readAll(), expected.toUtf8());
}

void CdmaTest::saveFailures()
{
    open();
    QCOMPARE(save(button("CdmaSave"), QString()), QStringList());
    m_log->takeLog();
    QCOMPARE(save(button("CdmaSave"), path("DiagnosisConfig.xml/report.txt")),
             list("Error: The diagnostics could not be saved."));
    QVERIFY(
        m_log->takeLog().contains(line("saveFile: Error in opening file", "DiagnosticsCdmaUI")));
}

void CdmaTest::windowGoesWhileSaving()
{
    open();
    const QPointer<QWidget> shown = window();
    QTimer::singleShot(0, m_parent, [this] { m_plugin->Notify(4100, 0, 0); });
    button("CdmaSave")->click(); // blocks in the file dialog
    settle();
    QVERIFY(!shown);
    QVERIFY(m_log->takeLog().filter(QLatin1String("saveFile")).isEmpty());
}

void CdmaTest::instanceGoesWhileSaving()
{
    open();
    QTimer::singleShot(0, m_parent, [this] {
        m_plugin->OnDestroy();
        answer(qobject_cast<QFileDialog *>(QApplication::activeModalWidget()), path("report.txt"));
    });
    button("CdmaSave")->click();
    QVERIFY(!QFile::exists(path("report.txt")));
}

void CdmaTest::instance()
{
    DiagnosticsCdmaUI::DestroyInstance();
    QCOMPARE(m_log->takeLog(), QStringList(line("DestroyInstance: Entered", "DiagnosticsCdmaUI")));
    const QPointer<DiagnosticsCdmaUI> first = DiagnosticsCdmaUI::CreateInstance();
    QCOMPARE(m_log->takeLog().at(0), line("CreateInstance: Entered", "DiagnosticsCdmaUI"));
    QCOMPARE(DiagnosticsCdmaUI::CreateInstance(), first.data());
    QVERIFY(!first->visible());
    const QPointer<DiagnosticsUILogic> logic = DiagnosticsUILogic::GetInstance();
    DiagnosticsUILogic::Destroy(); // the one just taken
    DiagnosticsCdmaUI::DestroyInstance();
    QVERIFY(!first && logic); // it gave its one reference back, which left none
    DiagnosticsUILogic::Destroy();
    QVERIFY(!logic);
}

void CdmaTest::shownTwice()
{
    open();
    const QPointer<QDialog> first = window();
    auto *instance = DiagnosticsCdmaUI::CreateInstance();
    ModemControl::setValue("sim/simStatus", "240"); // too late for the rows
    QCOMPARE(show(), 1);
    QCOMPARE(DiagnosticsCdmaUI::CreateInstance(), instance);
    QVERIFY(first && first->isVisible()); // dropped, not deleted
    const auto frames =
        m_parent->findChildren<QFrame *>(QLatin1String("DiagnosticsUIPlugin_frameCdmaDiag"));
    QCOMPARE(frames.size(), 2);
    QCOMPARE(frames.at(1)->height(), 12 * 35); // the rows are counted anew
    QVERIFY(instance->CloseCdmaDiagWidget());
    settle();
    QVERIFY(!instance->visible());
    QCOMPARE(window(), first.data());
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
    m_plugin->Notify(4100, 0, 0);
    QVERIFY(instance && window());
    window()->show();
    m_plugin->Notify(4099, 0, 0);
    QVERIFY(instance && instance->visible());
    m_plugin->Notify(4100, 0, 0);
    QVERIFY(!instance);
    m_plugin->Notify(4100, 0, 0);
    settle();
    QVERIFY(!window());
    QCOMPARE(show(), 1);
    button("CdmaCancel")->click();
    settle();
    QVERIFY(!window());
}

void CdmaTest::tabbedWindowForgetsTheInstance()
{
    open();
    const QPointer<DiagnosticsCdmaUI> instance = DiagnosticsCdmaUI::CreateInstance();
    ModemControl::setValue("device/productType", "0");
    QCOMPARE(show(), 1);
    m_plugin->Notify(4100, 0, 0); // closes the tabbed one only
    settle();
    QVERIFY(instance && instance->visible());
    m_plugin->OnDestroy();
    QVERIFY(instance);
}

void CdmaTest::log()
{
    QCOMPARE(m_plugin->Init(), 1);
    m_log->takeLog();
    QCOMPARE(show(), 1);
    button("CdmaRefresh")->click();
    button("CdmaCancel")->click();
    settle();
    compareWithGolden(QLatin1String("cdma.log"),
                      m_log->takeLog().filter(QLatin1String("DiagnosticsCdmaUI: ")));
}

QTEST_MAIN(CdmaTest)
#include "cdma.moc"
