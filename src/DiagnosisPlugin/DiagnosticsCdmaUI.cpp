// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsCdmaUI.h"

#include "DiagnosticsConfigParse.h"
#include "DiagnosticsLog.h"
#include "DiagnosticsReportFile.h"
#include "DiagnosticsResult.h"
#include "DiagnosticsRow.h"
#include "DiagnosticsSaveDialogs.h"
#include "DiagnosticsText.h"
#include "DiagnosticsUILogic.h"
#include "DiagnosticsWindow.h"

#include "core/CommonUtils.h"
#include "core/ExtendDialog.h"

#include <QFormLayout>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <new>

using namespace DiagnosticsResult;

namespace {

const char LogSource[] = "../../src/DiagnosisPlugin/DiagnosticsCdmaUI";

const int FrameWidth = 356;
const int FrameHeightPerRow = 35;

const char SimMessagesKey[] = "IDS_MAINFRM_SIM_MESSAGE_CONTENT_PROMPT";
const char SimContactsKey[] = "IDS_MAINFRM_SIM_CONTACT_CONTENT";
const char DeviceMessagesKey[] = "IDS_MAINFRM_NV_MESSAGE_CONTENT";
const char DeviceContactsKey[] = "IDS_MAINFRM_NV_CONTACT_CONTENT";
const char ImsiKey[] = "IDS_MAINFRM_IMSI";
const char FirmwareKey[] = "IDS_MAINFRM_FIRMWARE_VERSION";
const char HardwareKey[] = "IDS_MAINFRM_HARDWARE_VERSION";
const char VoltageKey[] = "IDS_MAINFRM_VOLTAGE";
const char PrlKey[] = "IDS_DIAGNOSE_PRL_VER";
const char CarriersKey[] = "IDS_NUM_CARRIERS_PROMPT";
const char EsnKey[] = "IDS_MAINFRM_ESN";
const char MeidKey[] = "IDS_DIAGNOSE_MEID";

/// The getter of a row, by the row's resource key.
struct ValueRow
{
    const char *key;
    QString (DiagnosticsUILogic::*get)();
};

// clang-format off
const ValueRow ValueRows[] = {
    {SimContactsKey,    &DiagnosticsUILogic::GetContactCountinSim},
    {ImsiKey,           &DiagnosticsUILogic::GetIMSINumber},
    {DeviceContactsKey, &DiagnosticsUILogic::GetContactCountinDevice},
    {FirmwareKey,       &DiagnosticsUILogic::GetFirmwareVersion},
    {HardwareKey,       &DiagnosticsUILogic::GetHardwareVersion},
    {PrlKey,            &DiagnosticsUILogic::GetPrlVersion},
    {MeidKey,           &DiagnosticsUILogic::GetMeid},
    {VoltageKey,        &DiagnosticsUILogic::GetVoltage},
    {EsnKey,            &DiagnosticsUILogic::GetEsn},
};
// clang-format on

} // namespace

DiagnosticsCdmaUI *DiagnosticsCdmaUI::m_pDiagCDMAInstance = nullptr;

DiagnosticsCdmaUI *DiagnosticsCdmaUI::CreateInstance()
{
    qDebug("%s: %s: %s: Entered", LOG_AT);
    if (!m_pDiagCDMAInstance)
        m_pDiagCDMAInstance = new (std::nothrow) DiagnosticsCdmaUI;
    return m_pDiagCDMAInstance;
}

void DiagnosticsCdmaUI::DestroyInstance()
{
    qDebug("%s: %s: %s: Entered", LOG_AT);
    delete m_pDiagCDMAInstance;
    m_pDiagCDMAInstance = nullptr;
}

DiagnosticsCdmaUI::DiagnosticsCdmaUI()
    : QObject(nullptr), m_pLogic(nullptr), m_pConfigParse(nullptr), m_pvboxLayoutCdmaMain(nullptr),
      m_phboxLayoutCdmaTop(nullptr), m_phboxLayoutCdmaBottom(nullptr), m_pframeCdmaDiag(nullptr),
      m_ppushButtonCdmaSave(nullptr), m_ppushButtonCdmaCancel(nullptr),
      m_ppushButtonCdmaRefresh(nullptr), m_plistCdma(nullptr), m_bPesn(0), m_iRowCount(0),
      m_pHashSetting(nullptr)
{
    m_pConfigParse = DiagnosticsConfigParse::GetInstance();
    m_pLogic = DiagnosticsUILogic::GetInstance();
    m_plistCdma = new (std::nothrow) QStringList;
    if (!m_pConfigParse || !m_pLogic || !m_plistCdma) {
        qDebug("%s: %s: %s: Memory allocation is null", LOG_AT);
        return;
    }
    m_pHashSetting = m_pConfigParse->GetSettingInformation();
    populateList();
}

DiagnosticsCdmaUI::~DiagnosticsCdmaUI()
{
    if (m_pConfigParse)
        DiagnosticsConfigParse::DestroyInstance();
    if (m_pLogic)
        DiagnosticsUILogic::Destroy();
    delete m_plistCdma;
    m_plistCdma = nullptr;
    m_pLogic = nullptr;
    m_pConfigParse = nullptr;
}

QString DiagnosticsCdmaUI::tr(QString key)
{
    return DiagnosticsText::of(key);
}

// ---- The window ----

bool DiagnosticsCdmaUI::ShowCdmaDiagWidget(QWidget *parent)
{
    m_iRowCount = 0;
    m_pdialogCdmaDiagnostics = nullptr;
    m_pwidgetCdmaDiagnostic = nullptr;
    m_pvboxLayoutCdmaMain = nullptr;
    m_phboxLayoutCdmaTop = nullptr;
    m_phboxLayoutCdmaBottom = nullptr;
    m_pframeCdmaDiag = nullptr;
    m_ppushButtonCdmaSave = nullptr;
    m_ppushButtonCdmaCancel = nullptr;
    m_ppushButtonCdmaRefresh = nullptr;

    if (createCdmaDialog(parent) != Success) {
        qDebug("%s: %s: %s: Creation of dialog is failed", LOG_AT);
        return false;
    }
    qDebug("%s: %s: %s: Creation of dialog is successful", LOG_AT);
    changeSimString();
    m_pdialogCdmaDiagnostics->changeSize(m_pwidgetCdmaDiagnostic->sizeHint());
    m_pdialogCdmaDiagnostics->setWindowModality(Qt::WindowModal);
    m_pdialogCdmaDiagnostics->setWindowTitle(tr(QLatin1String("IDS_PLUGIN_NAME")));
    DiagnosticsWindow::show(m_pdialogCdmaDiagnostics);
    qDebug("%s: %s: %s: Creation of dialog is successful", LOG_AT);
    return true;
}

bool DiagnosticsCdmaUI::visible()
{
    return m_pdialogCdmaDiagnostics && m_pdialogCdmaDiagnostics->isVisible();
}

bool DiagnosticsCdmaUI::CloseCdmaDiagWidget()
{
    onCancelClicked();
    return true;
}

void DiagnosticsCdmaUI::onCancelClicked()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (m_pdialogCdmaDiagnostics)
        m_pdialogCdmaDiagnostics->close();
}

void DiagnosticsCdmaUI::onDlgClose()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (m_pdialogCdmaDiagnostics) {
        m_pdialogCdmaDiagnostics->deleteLater();
        m_pdialogCdmaDiagnostics = nullptr;
    }
}

int DiagnosticsCdmaUI::createCdmaDialog(QWidget *parent)
{
    if (!m_pConfigParse) {
        qDebug("%s: %s: %s: Config instance is null", LOG_AT);
        return Missing;
    }
    m_pdialogCdmaDiagnostics = DiagnosticsWindow::createFrame(parent);
    if (!m_pdialogCdmaDiagnostics) {
        qDebug("%s: %s: %s: Memory Allocation Failed for main dialog", LOG_AT);
        return Missing;
    }
    m_pwidgetCdmaDiagnostic = new (std::nothrow) QWidget(m_pdialogCdmaDiagnostics);
    m_pdialogCdmaDiagnostics->AddMainWidget(m_pwidgetCdmaDiagnostic);
    m_pvboxLayoutCdmaMain = new (std::nothrow) QVBoxLayout;
    m_phboxLayoutCdmaTop = new (std::nothrow) QHBoxLayout;
    m_phboxLayoutCdmaBottom = new (std::nothrow) QHBoxLayout;
    if (m_pwidgetCdmaDiagnostic) // without it the frame would have no parent
        m_pframeCdmaDiag = new (std::nothrow) QFrame(m_pwidgetCdmaDiagnostic);
    if (m_pframeCdmaDiag) {
        m_ppushButtonCdmaCancel = new (std::nothrow) QPushButton(m_pframeCdmaDiag);
        m_ppushButtonCdmaRefresh = new (std::nothrow) QPushButton(m_pframeCdmaDiag);
    }
    if (!m_pvboxLayoutCdmaMain || !m_phboxLayoutCdmaTop || !m_phboxLayoutCdmaBottom ||
        !m_ppushButtonCdmaCancel || !m_ppushButtonCdmaRefresh) {
        qDebug("%s: %s: %s: Memory Allocation Failed", LOG_AT);
        // They have no parent yet.
        delete m_pvboxLayoutCdmaMain;
        delete m_phboxLayoutCdmaTop;
        delete m_phboxLayoutCdmaBottom;
        m_pvboxLayoutCdmaMain = nullptr;
        m_phboxLayoutCdmaTop = nullptr;
        m_phboxLayoutCdmaBottom = nullptr;
        return Missing;
    }
    m_pframeCdmaDiag->setFrameStyle(QFrame::Box);

    m_pdialogCdmaDiagnostics->setObjectName(QLatin1String("DiagnosticsUIPlugin_dialogCdma"));
    m_pwidgetCdmaDiagnostic->setObjectName(
        QLatin1String("DiagnosticsUIPlugin_widgetCdmaDiagnostic"));
    m_pvboxLayoutCdmaMain->setObjectName(QLatin1String("DiagnosticsUIPlugin_vboxLayoutCdmaMain"));
    m_phboxLayoutCdmaTop->setObjectName(QLatin1String("DiagnosticsUIPlugin_hboxLayoutCdmaTop"));
    m_phboxLayoutCdmaBottom->setObjectName(
        QLatin1String("DiagnosticsUIPlugin_hboxLayoutCdmaBottom"));
    m_pframeCdmaDiag->setObjectName(QLatin1String("DiagnosticsUIPlugin_frameCdmaDiag"));
    m_ppushButtonCdmaCancel->setObjectName(
        QLatin1String("DiagnosticsUIPlugin_pushButtonCdmaCancel"));
    m_ppushButtonCdmaRefresh->setObjectName(
        QLatin1String("DiagnosticsUIPlugin_pushButtonCdmaRefresh"));

    m_pvboxLayoutCdmaMain->addLayout(m_phboxLayoutCdmaTop);
    m_pvboxLayoutCdmaMain->addLayout(m_phboxLayoutCdmaBottom);
    m_pwidgetCdmaDiagnostic->setLayout(m_pvboxLayoutCdmaMain);
    m_phboxLayoutCdmaTop->addWidget(m_pframeCdmaDiag);

    if (createCdmaLabels() != Success) {
        qDebug("%s: %s: %s: dynamic Tab creation Failed", LOG_AT);
        return Missing;
    }
    m_pframeCdmaDiag->setFixedHeight(m_iRowCount * FrameHeightPerRow);
    m_pframeCdmaDiag->setFixedWidth(FrameWidth);

    if (DiagnosticsWindow::hasSaveButton(m_pHashSetting)) {
        m_ppushButtonCdmaSave = new (std::nothrow) QPushButton(m_pframeCdmaDiag);
        if (!m_ppushButtonCdmaSave) {
            qDebug("%s: %s: %s: Creation of Save Button Failed", LOG_AT);
            return Missing;
        }
        m_ppushButtonCdmaSave->setObjectName(
            QLatin1String("DiagnosticsUIPlugin_pushButtonCdmaSave"));
        qDebug("%s: %s: %s: bSetVisible is false", LOG_AT);
        DiagnosticsWindow::setUpButton(m_ppushButtonCdmaSave, "IDS_MAINFRM_SAVE_PROMPT", this,
                                       SLOT(onSaveClicked()));
    }
    DiagnosticsWindow::setUpButton(m_ppushButtonCdmaRefresh, "IDS_MAINFRM_REFRESH_PROMPT", this,
                                   SLOT(onRefreshClicked()));
    DiagnosticsWindow::setUpButton(m_ppushButtonCdmaCancel, "IDS_MAINFRM_CANCEL_PROMPT", this,
                                   SLOT(onCancelClicked()));
    connect(m_pdialogCdmaDiagnostics, SIGNAL(dlgCloseEvent()), this, SLOT(onDlgClose()));

    const int buttonSpacing = 5;
    const int rightMargin = 0;
    DiagnosticsWindow::layOutButtons(m_phboxLayoutCdmaBottom, m_ppushButtonCdmaSave,
                                     m_ppushButtonCdmaRefresh, m_ppushButtonCdmaCancel,
                                     buttonSpacing, rightMargin);
    return Success;
}

int DiagnosticsCdmaUI::createCdmaLabels()
{
    const int rowSpacing = 20;
    // Guarded, like the labels: the host, which is asked for some values, may delete all of them.
    const QPointer<QFormLayout> layout(new (std::nothrow) QFormLayout(m_pframeCdmaDiag));
    if (!layout || !m_plistCdma) {
        delete layout;
        qDebug("%s: %s: %s: Memory allocation failed", LOG_AT);
        return Missing;
    }
    layout->setVerticalSpacing(rowSpacing);
    int result = Success;
    const QPointer<DiagnosticsCdmaUI> alive(this);
    const QStringList keys = *m_plistCdma;
    for (const QString &key : keys) {
        ++m_iRowCount;
        const QPointer<QLabel> caption(new (std::nothrow) QLabel(m_pframeCdmaDiag));
        const QPointer<QLabel> value(new (std::nothrow) QLabel(m_pframeCdmaDiag));
        int rowHeight = 0;
        QString text;
        if (caption && value) {
            DiagnosticsRow::setUp(caption, value, tr(key));
            int textWidth = 0;
            CommonUtils::GetApplicationStringHeightAndWidth(caption->text(), textWidth, rowHeight);
            caption->setMinimumSize(DiagnosticsRow::CaptionWidth, rowHeight);
            caption->setObjectName(DiagnosticsRow::captionName(key));
            text = getLabelValuebyName(key);
        }
        if (!alive || !caption || !value) {
            qDebug("%s: %s: %s: labelName is null", LOG_AT);
            delete layout;
            delete caption;
            delete value;
            result = Missing;
            break;
        }
        value->setText(text);
        value->setFixedHeight(rowHeight);
        value->setObjectName(DiagnosticsRow::valueName(key));
        layout->addRow(caption, value);
    }
    if (result == Success)
        m_pframeCdmaDiag->setLayout(layout);
    qDebug("%s: %s: %s:  label creation successful", LOG_AT);
    return result;
}

// ---- Rows and values ----

int DiagnosticsCdmaUI::populateList()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    const auto add = [this](const char *key) { m_plistCdma->append(QLatin1String(key)); };
    if (m_pLogic->GetSimStatus() != QLatin1String("Roaming")) {
        add(SimMessagesKey);
        add(SimContactsKey);
    }
    add(DeviceMessagesKey);
    add(DeviceContactsKey);
    add(ImsiKey);
    add(FirmwareKey);
    add(HardwareKey);
    add(VoltageKey);
    if (!m_pLogic->GetPrlVersion().isEmpty())
        add(PrlKey);
    // A looser test than that of the Save button's setting.
    if (m_pHashSetting && m_pHashSetting->value(QLatin1String("Carriers"))
                              .contains(QLatin1String("true"), Qt::CaseInsensitive))
        add(CarriersKey);
    add(EsnKey);
    if (m_pLogic->IsPesn()) {
        add(MeidKey);
        m_bPesn = 1;
    }
    return Success;
}

QString DiagnosticsCdmaUI::getLabelValue(QString key)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_pLogic)
        return DiagnosticsText::unknown();
    if (key == QLatin1String(SimMessagesKey))
        return m_pLogic->GetMessageCount(DiagnosticsUILogic::SimStorage);
    if (key == QLatin1String(DeviceMessagesKey))
        return m_pLogic->GetMessageCount(DiagnosticsUILogic::DeviceStorage);
    if (key == QLatin1String(CarriersKey)) {
        const QString count = m_pLogic->GetMulticarrier();
        return count.isEmpty() ? tr(QLatin1String("IDS_CARRIERS_NUM_NA")) : count;
    }
    for (const ValueRow &row : ValueRows) {
        if (key == QLatin1String(row.key))
            return (m_pLogic->*row.get)();
    }
    return DiagnosticsText::unknown();
}

QString DiagnosticsCdmaUI::getLabelValuebyName(QString key)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    const QString value = getLabelValue(key);
    return value.isEmpty() ? DiagnosticsText::unknown() : value;
}

void DiagnosticsCdmaUI::changeSimString()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    for (const char *key : {SimMessagesKey, SimContactsKey})
        DiagnosticsRow::replaceSimWording(m_pwidgetCdmaDiagnostic, QLatin1String(key),
                                          QLatin1String("UIM"));
    if (m_bPesn)
        DiagnosticsRow::setCaption(m_pwidgetCdmaDiagnostic, QLatin1String(EsnKey),
                                   tr(QLatin1String("IDS_MAINFRM_PESN")));
}

void DiagnosticsCdmaUI::onRefreshClicked()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_plistCdma || !m_pwidgetCdmaDiagnostic) {
        qDebug("%s: %s: %s: cdma list or dialog is null", LOG_AT);
        return;
    }
    const QPointer<DiagnosticsCdmaUI> alive(this); // the host may destroy it meanwhile
    const QStringList keys = *m_plistCdma;
    for (const QString &key : keys) {
        const QPointer<QLabel> label = DiagnosticsRow::value(m_pwidgetCdmaDiagnostic, key);
        if (!label)
            continue;
        const QString value = getLabelValuebyName(key);
        if (!alive)
            return;
        if (label) // the host may have closed the window meanwhile
            label->setText(value);
    }
}

// ---- Export ----

void DiagnosticsCdmaUI::onSaveClicked()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    const QPointer<DiagnosticsCdmaUI> alive(this); // the host may destroy it meanwhile
    const QString path = DiagnosticsSaveDialogs::askPath(m_pwidgetCdmaDiagnostic);
    if (alive && !path.isNull() && saveFile(path) != Success && alive)
        DiagnosticsSaveDialogs::showFailure(m_pwidgetCdmaDiagnostic);
}

int DiagnosticsCdmaUI::saveFile(QString fileName)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_plistCdma || !m_pwidgetCdmaDiagnostic) {
        qDebug("%s: %s: %s: m_plistCdma/ m_pdialogCdmaDiagnostics is null", LOG_AT);
        return Missing;
    }
    DiagnosticsReportFile file(fileName);
    if (!file.open()) {
        qDebug("%s: %s: %s: Error in opening file", LOG_AT);
        return CannotOpen;
    }
    const QPointer<DiagnosticsCdmaUI> alive(this);
    const QStringList keys = *m_plistCdma;
    for (const QString &key : keys) {
        const QString value = getLabelValuebyName(key);
        if (!alive)
            return Missing;
        const QLabel *caption = DiagnosticsRow::caption(m_pwidgetCdmaDiagnostic, key);
        if (!caption)
            continue;
        file.writeRow(caption->text(), value);
        file.writeLine();
    }
    file.close();
    qDebug("%s: %s: %s: file writing success", LOG_AT);
    DiagnosticsSaveDialogs::showSuccess(m_pwidgetCdmaDiagnostic);
    return Success;
}
