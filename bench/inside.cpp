// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// What the plug-in costs, measured in this process; bench/run makes the files that it reads.

#include "DiagnosticsConfigParse.h"
#include "DiagnosticsLog.h"
#include "DiagnosticsToolkit.h"
#include "DiagnosticsUILogic.h"
#include "DiagnosticsUIPlugin.h"
#include "HostCore.h"
#include "Line.h"
#include "SdkControl.h"
#include "core/Change.h"
#include "core/CommonUtils.h"
#include "core/ExtendDialog.h"
#include "modem/HostPlugins.h"
#include "sdk/VeltDevice.h"
#include "simulated/SimulatedModem.h"

#include <QtWidgets>
#include <err.h>

/// Takes the place of libcore's, whose box would wait for a user.
int CommonUtils::ShowMessage(QMessageBox::Icon, QWidget *, QString, QString, QString, QString,
                             QString, bool, Qt::WindowFlags, QDialog **, QString, bool)
{
    return 1;
}

namespace {

typedef DiagnosticsUILogic Logic;
const auto exportPath = QStringLiteral("export.txt");
const char LogSource[] = "../../src/DiagnosisPlugin/DiagnosticsUILogic";

void logFormattedTime()
{
    const QString time = QTime::currentTime().toString(QStringLiteral("hh:mm:ss:zzz"));
    qDebug("%s: %s: %s: called", time.toLatin1().constData(), LogSource, __func__);
}

/// The plug-in's getter, written out.
QString GetIMEI()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    char imei[VELT_SIZE_IMEI + 1] = "";
    qDebug("=======> %s: %s: %s: CallingVELT_DevSrv_GetImeiInfo: %s", LOG_AT, imei);
    const VELT_ERROR result = VELT_DevSrv_GetImeiInfo(imei);
    qDebug("<======= %s: %s: %s: VELT_DevSrv_GetImeiInfo returned: %s, %li:", LOG_AT, imei, result);
    qDebug("%s: %s: %s: Calling VELT_DevSrv_GetImeiInfo success: %s, %li:", LOG_AT, imei, result);
    return QString::fromLatin1(imei);
}

void load(const char *name)
{
    if (DiagnosticsConfigParse::GetInstance()->LoadFile(QLatin1String(name)) != 0)
        errx(1, "cannot load %s", name);
    DiagnosticsConfigParse::DestroyInstance(); // gives the reference back
    DiagnosticsConfigParse::DestroyInstance(); // deletes the store
}

/// What any reader does: each tag, and the three attributes of tabs and rows.
void walk(const char *name)
{
    QFile file(QLatin1String("plugins/DiagnosisPlugin/") + QLatin1String(name));
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (!reader.readNextStartElement())
            continue;
        for (const char *attribute : {"name", "resourceID", "show"})
            static_cast<void>(reader.attributes().value(QLatin1String(attribute)).toString());
    }
}

/// Of the rows of the shipped configuration.
const auto simMessages = [](Logic *logic) { return logic->GetMessageCount(1); };
const QList<QList<std::function<QString(Logic *)>>> getters = {
    {&Logic::GetDeviceName, &Logic::GetApplicationPort, &Logic::GetSerialNumber, &Logic::GetIMEI,
     &Logic::GetHardwareVersion, &Logic::GetFirmwareVersion, &Logic::GetSoftwareVersion},
    {&Logic::GetAPN, &Logic::GetSelectionMode},
    {&Logic::GetNetworkName, &Logic::GetNetworkType, &Logic::GetSignalStrength, &Logic::GetRSSI,
     &Logic::GetRSQUAL, &Logic::GetRSCP, &Logic::GetECIO, &Logic::GetECNO, &Logic::GetCellID,
     &Logic::GetLACCode, &Logic::GetCsRegister, &Logic::GetPsRegister, &Logic::GetPsAttachment,
     &Logic::GetIPAddress, &Logic::GetDNSServer},
    {&Logic::GetIMSINumber, &Logic::GetOwnNumber, simMessages, &Logic::GetContactCountinSim,
     &Logic::GetSMSC, &Logic::GetPinStatus, &Logic::GetICCID}};

QString text(const QString &key)
{
    const QString text = Change::tr(key, QStringLiteral("DiagnosisPlugin"));
    return text.isEmpty() ? key : text;
}

/// \a labels are caption and value in turns.
void fill(int tab, const QList<QLabel *> &labels, Logic *logic)
{
    for (int row = 0; row < getters[tab].size(); ++row)
        labels[2 * row + 1]->setText(getters[tab][row](logic));
}

/// The widgets of the plug-in's window as plain Qt code.
void openByHand(QWidget *parent, Logic *logic)
{
    auto *dialog = new ExtendDialog(parent, Qt::WindowCloseButtonHint, 1);
    auto *widget = new QWidget(dialog);
    auto *layout = new QVBoxLayout(widget);
    auto *buttons = new QHBoxLayout;
    auto *tabs = new QTabWidget(widget);
    dialog->AddMainWidget(widget);
    layout->addWidget(tabs);
    layout->addLayout(buttons);
    tabs->setMaximumSize(450, 365);
    for (const TabDetails &tab : *DiagnosticsConfigParse::GetInstance()->GetTabInformation()) {
        auto *page = new QWidget(tabs);
        auto *form = new QFormLayout(page);
        tabs->addTab(page, text(tab.resourceID));
        for (const TabItem &item : *tab.items) {
            auto *caption = new QLabel(text(item.resourceID), page);
            auto *value = new QLabel(page);
            caption->setFixedWidth(185);
            caption->setBuddy(value);
            value->setTextFormat(Qt::PlainText);
            value->setTextInteractionFlags(Qt::TextSelectableByMouse);
            value->setWordWrap(true);
            form->addRow(caption, value);
        }
    }
    for (const char *name : {"Save", "Refresh", "Cancel"})
        buttons->addWidget(new QPushButton(QLatin1String(name), widget));
    fill(0, tabs->widget(0)->findChildren<QLabel *>(), logic);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setFixedSize(460, 426);
    dialog->show();
    CommonUtils::MoveCentre(dialog);
}

QTextStream &endLine(QTextStream &stream)
{
    stream << '\n';
    stream.flush();
    return stream;
}

void exportByHand(const QTabWidget *tabs, const QList<QList<QLabel *>> &labels, Logic *logic)
{
    QFile file(exportPath);
    file.open(QIODevice::WriteOnly | QIODevice::Text);
    QTextStream stream(&file);
    setUtf8(stream);
    for (int tab = 0; tab < tabs->count(); ++tab) {
        stream << tabs->tabText(tab) << endLine;
        for (int row = 0; row < getters[tab].size(); ++row)
            stream << labels[tab][2 * row]->text() << " " << getters[tab][row](logic) << endLine;
        stream << endLine;
    }
}

void measureWindow(Logic *logic)
{
    QWidget parent;
    QRect rect;
    QStringList shown;
    DiagnosticsUIPlugin plugin;
    plugin.Init();
    const char *const actions[] = {"open the window", "visit every tab", "export"};
    // Does all with a window, and gives the seconds of one action.
    const auto sample = [&](bool product, int action) {
        double passed[3];
        passed[0] = seconds(1, [&] {
            product ? void(plugin.ShowWindow(&parent, rect)) : openByHand(&parent, logic);
        });
        QCoreApplication::processEvents();
        auto *tabs = parent.findChild<QTabWidget *>();
        QList<QList<QLabel *>> labels;
        for (int tab = 0; tab < tabs->count(); ++tab)
            labels << tabs->widget(tab)->findChildren<QLabel *>();
        passed[1] = seconds(1, [&] {
            for (const int tab : {1, 2, 3, 0}) {
                tabs->setCurrentIndex(tab);
                if (!product && tab != 0)
                    fill(tab, labels[tab], logic);
            }
        });
        passed[2] = seconds(1, [&] {
            product ? void(plugin.saveToFile(exportPath)) : exportByHand(tabs, labels, logic);
        });
        QStringList texts;
        for (const QLabel *label : tabs->findChildren<QLabel *>())
            texts << text(label->text());
        if (product)
            shown = texts;
        else if (texts != shown)
            errx(1, "the yardstick does not show what the product does");
        delete tabs->window();
        return passed[action];
    };
    for (const int action : {0, 1, 2})
        printLine(actions[action], "us", 1e6, 1.15, 300,
                  [&](bool product) { return sample(product, action); });
}

/// What the plug-in does with an event.
int onEvent(int event, void *)
{
    qDebug("%s: %s: %s:  Entered", LOG_AS("OnDevEvents"));
    qDebug("%s: %s: %s:  Dev Evenet(%d)", LOG_AS("OnDevEvents"), event);
    static Logic *const sender = Logic::GetInstance();
    Q_EMIT sender->DeviceAvailable();
    qDebug("%s: %s: %s:  Exit", LOG_AS("OnDevEvents"));
    return 1;
}

/// The seconds of one of many events, from the SDK's thread to the end of its slot.
double eventToSlot(bool product, const Logic *logic)
{
    const int events = 100;
    DiagnosticsUIPlugin receiver;
    if (product) {
        receiver.Init();
    } else {
        const auto slot = [] { qDebug("%s: %s: %s: called", LOG_AS("onDeviceAvailable")); };
        QObject::connect(logic, &Logic::DeviceAvailable, &receiver, slot, Qt::QueuedConnection);
        VELT_DevSrv_RegisterDevMgrCallback(onEvent);
    }
    const double passed = seconds(1, [] {
        for (int event = 0; event < events; ++event)
            SdkControl::raiseEvent(VELT_EVENT_DEV_ARRIVAL);
        SdkControl::waitForEvents(1000);
        QCoreApplication::sendPostedEvents();
    });
    VELT_DevSrv_UnRegisterDevMgrCallback(onEvent);
    return passed / events;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    // Log lines are formatted, but written nowhere.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    std::string error;
    const auto modem = SimulatedModem::load(BENCH_DATA_DIR "/modems/wcdma.ini", &error);
    if (!modem)
        errx(1, "%s", error.c_str());
    SdkControl::attach(modem);
    const HostPlugins hostPlugins;
    HostCore::setSettingsFile(QStringLiteral(BENCH_DATA_DIR "/host.ini"));
    HostCore::setLanguage(QStringLiteral(BENCH_DATA_DIR "/translations"), QStringLiteral("en"));
    HostCore::applyLook(application);
    HostCore::setPluginLibraryPath(QStringLiteral("."));
    printLine("load a configuration of 10 x 1,000 rows", "ms", 1e3, 1.2, 200,
              [](bool product) { return seconds(1, [=] { product ? load("10") : walk("10"); }); });
    printLine("growth: a row of 100,000 against one of 1,000", "ns", 1e4, 1.1, 15,
              [](bool product) {
                  return product ? seconds(1, [] { load("100"); })
                                 : seconds(100, [] { load("1"); }) * 100;
              });
    HostCore::setPluginLibraryPath(QStringLiteral(BENCH_LIBRARY_DIR));
    Logic *const logic = Logic::GetInstance();
    printLine("one log line", "ns", 1e9, 0.4, 50, [](bool product) {
        return product ? seconds(2000, [] { qDebug("%s: %s: %s: called", LOG_AT); })
                       : seconds(2000, logFormattedTime);
    });
    printLine("one getter", "ns", 1e9, 1.1, 100, [=](bool product) {
        return seconds(2000, [=] { product ? logic->GetIMEI() : GetIMEI(); });
    });
    measureWindow(logic);
    printLine("SDK event to slot", "ns", 1e9, 1.2, 1000,
              [=](bool product) { return eventToSlot(product, logic); });
}
