// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsUIPlugin.h"

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

#include "core/ExtendDialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <new>

using namespace DiagnosticsResult;

/// The getter of a row, by the row's configured name.
struct DiagnosticsUIPlugin::ValueRow
{
    const char *name;
    QString (DiagnosticsUILogic::*get)();
    bool translated; ///< the answer is a resource key
};

namespace {

typedef DiagnosticsUIPlugin::ValueRow ValueRow;

const char LogSource[] = "../../src/DiagnosisPlugin/DiagnosticsUIPlugin";

const char SimMessagesItem[] = "Messages in SIM/USIM";
const char SimContactsItem[] = "Contacts in SIM/USIM";

// clang-format off
const ValueRow DeviceRows[] = {
    {"Device name",            &DiagnosticsUILogic::GetDeviceName,      false},
    {"Application port",       &DiagnosticsUILogic::GetApplicationPort, false},
    {"Serial number",          &DiagnosticsUILogic::GetSerialNumber,    false},
    {"IMEI",                   &DiagnosticsUILogic::GetIMEI,            false},
    {"Hardware version",       &DiagnosticsUILogic::GetHardwareVersion, false},
    {"Fireware version",       &DiagnosticsUILogic::GetFirmwareVersion, false},
    {"Software version",       &DiagnosticsUILogic::GetSoftwareVersion, false},
    {"APN",                    &DiagnosticsUILogic::GetAPN,             false},
    {"Network selection mode", &DiagnosticsUILogic::GetSelectionMode,   true},
};

const ValueRow NetworkRows[] = {
    {"Network name",    &DiagnosticsUILogic::GetNetworkName,    false},
    {"Network type",    &DiagnosticsUILogic::GetNetworkType,    false},
    {"Signal strength", &DiagnosticsUILogic::GetSignalStrength, false},
    {"RSQUAL(BER)",     &DiagnosticsUILogic::GetRSQUAL,         false},
    {"RSCP",            &DiagnosticsUILogic::GetRSCP,           false},
    {"Ec/Io",           &DiagnosticsUILogic::GetECIO,           false},
    {"Ec/No",           &DiagnosticsUILogic::GetECNO,           false},
    {"Cell ID",         &DiagnosticsUILogic::GetCellID,         false},
};

const ValueRow RegistrationRows[] = {
    {"LAC Code",                &DiagnosticsUILogic::GetLACCode,      false},
    {"CS network registration", &DiagnosticsUILogic::GetCsRegister,   true},
    {"PS network registration", &DiagnosticsUILogic::GetPsRegister,   true},
    {"PS network attachment",   &DiagnosticsUILogic::GetPsAttachment, true},
    {"IP address",              &DiagnosticsUILogic::GetIPAddress,    false},
    {"DNS server",              &DiagnosticsUILogic::GetDNSServer,    false},
};

const ValueRow SimRows[] = {
    {"IMSI number",                  &DiagnosticsUILogic::GetIMSINumber,        false},
    {"Own number(MSISDN)",           &DiagnosticsUILogic::GetOwnNumber,         false},
    {SimContactsItem,                &DiagnosticsUILogic::GetContactCountinSim, false},
    {"SMSC(Message center number)",  &DiagnosticsUILogic::GetSMSC,              false},
    {"ICCID",                        &DiagnosticsUILogic::GetICCID,             false},
};
// clang-format on

template <std::size_t size>
const ValueRow *findRow(const ValueRow (&rows)[size], const QString &itemName)
{
    for (const ValueRow &row : rows) {
        if (itemName == QLatin1String(row.name))
            return &row;
    }
    return nullptr;
}

QString pageName(const TabDetails &tab)
{
    return QLatin1String("DiagnosticsUIPlugin_") + tab.name + QLatin1String("Tab");
}

/// The two rows that are read without a device too; their values come from the host.
bool isReadWithoutDevice(const QString &itemName)
{
    return itemName == QLatin1String("Software version") || itemName == QLatin1String("APN");
}

} // namespace

DiagnosticsUIPlugin::DiagnosticsUIPlugin()
    : QObject(nullptr), m_pLogic(nullptr), m_pConfigParse(nullptr), m_pCdmaUI(nullptr),
      m_bDeviceAvailable(1), m_pvboxLayoutMain(nullptr), m_phboxLayoutTop(nullptr),
      m_phboxLayoutBottom(nullptr), m_ppushButtonSave(nullptr), m_ppushButtonCancel(nullptr),
      m_ppushButtonRefresh(nullptr), m_pTabFilled(nullptr), m_iTabFilledCount(0)
{
}

DiagnosticsUIPlugin::~DiagnosticsUIPlugin()
{
    destroy();
}

// ---- Life in the host ----

int DiagnosticsUIPlugin::Init()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_pLogic || !m_pConfigParse) {
        m_pLogic = DiagnosticsUILogic::GetInstance();
        m_pConfigParse = DiagnosticsConfigParse::GetInstance();
    }
    if (!m_pLogic || !m_pConfigParse)
        return 0;
    m_pLogic->RegisterWithDevice();
    connect(m_pLogic, SIGNAL(DeviceAvailable()), this, SLOT(onDeviceAvailable()));
    connect(m_pLogic, SIGNAL(DeviceUnavailable()), this, SLOT(onDeviceUnavailable()));
    return 1;
}

int DiagnosticsUIPlugin::ShowWindow(QWidget *parent, QRect &)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_pLogic)
        return 0;
    if (m_pLogic->GetDeviceType() != QLatin1String("CDMA"))
        return createWcdmaDialog(parent);
    if (!m_pCdmaUI)
        m_pCdmaUI = DiagnosticsCdmaUI::CreateInstance();
    return m_pCdmaUI && m_pCdmaUI->ShowCdmaDiagWidget(parent) ? 1 : 0;
}

int DiagnosticsUIPlugin::Notify(unsigned int code, unsigned int, unsigned int)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (code != NOTIFY_CLOSE_WINDOWS)
        return 0;
    if (m_pdialogDiagnostics)
        m_pdialogDiagnostics->close();
    if (m_pCdmaUI && m_pCdmaUI->visible()) {
        m_pCdmaUI->CloseCdmaDiagWidget();
        DiagnosticsCdmaUI::DestroyInstance();
        m_pCdmaUI = nullptr;
    }
    return 0;
}

void DiagnosticsUIPlugin::OnDestroy()
{
    destroy();
}

void DiagnosticsUIPlugin::destroy()
{
    if (m_pLogic) {
        m_pLogic->UnRegisterDevice();
        DiagnosticsUILogic::Destroy();
        m_pLogic = nullptr;
    }
    if (m_pConfigParse) {
        DiagnosticsConfigParse::DestroyInstance();
        m_pConfigParse = nullptr;
    }
    if (m_pCdmaUI) {
        DiagnosticsCdmaUI::DestroyInstance();
        m_pCdmaUI = nullptr;
    }
    delete[] m_pTabFilled;
    m_pTabFilled = nullptr;
    m_iTabFilledCount = 0;
}

void DiagnosticsUIPlugin::onDeviceAvailable()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    m_bDeviceAvailable = 1;
}

void DiagnosticsUIPlugin::onDeviceUnavailable()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    m_bDeviceAvailable = 0;
}

void DiagnosticsUIPlugin::onDlgClose()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (m_pdialogDiagnostics) {
        m_pdialogDiagnostics->deleteLater();
        m_pdialogDiagnostics = nullptr;
    }
}

void DiagnosticsUIPlugin::onButtonCancelClicked()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (m_pdialogDiagnostics)
        m_pdialogDiagnostics->close();
}

QString DiagnosticsUIPlugin::tr(QString key)
{
    return DiagnosticsText::of(key);
}

int DiagnosticsUIPlugin::DoModal()
{
    return 0;
}

void DiagnosticsUIPlugin::Hide() {}

void DiagnosticsUIPlugin::FitSize(QRect &) {}

bool DiagnosticsUIPlugin::IsReady()
{
    return false;
}

int DiagnosticsUIPlugin::GetPluginType()
{
    return 0;
}

QString DiagnosticsUIPlugin::GetCLSID()
{
    return QString();
}

int DiagnosticsUIPlugin::GetVersion()
{
    return 0;
}

QString DiagnosticsUIPlugin::GetPluginName()
{
    return QLatin1String("DiagnosticsUIPlugin");
}

bool DiagnosticsUIPlugin::IsAllowRelease()
{
    return false;
}

void DiagnosticsUIPlugin::Release() {}

int DiagnosticsUIPlugin::GetLastError()
{
    return 0;
}

int DiagnosticsUIPlugin::QueryInterface(int, QObject **)
{
    return 0;
}

bool DiagnosticsUIPlugin::ChangeLang(const QString &language)
{
    return !language.isEmpty();
}

// ---- The window ----

int DiagnosticsUIPlugin::createWcdmaDialog(QWidget *parent)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    m_pCdmaUI = nullptr; // forgotten, not destroyed
    m_pdialogDiagnostics = nullptr;
    m_ppushButtonRefresh = nullptr;
    m_ppushButtonCancel = nullptr;
    m_phboxLayoutBottom = nullptr;
    m_phboxLayoutTop = nullptr;
    m_pvboxLayoutMain = nullptr;
    m_ppushButtonSave = nullptr;

    if (createDiagWidget(parent) != Success) {
        qDebug("%s: %s: %s: Creation of dialog is failed", LOG_AT);
        return 0;
    }
    qDebug("%s: %s: %s: Creation of dialog is successful", LOG_AT);
    m_pdialogDiagnostics->setWindowTitle(tr(QLatin1String("IDS_PLUGIN_NAME")));
    m_pdialogDiagnostics->setWindowModality(Qt::WindowModal);
    m_pdialogDiagnostics->setFixedSize(460, 426);
    DiagnosticsWindow::show(m_pdialogDiagnostics);
    return 1;
}

int DiagnosticsUIPlugin::createDiagWidget(QWidget *parent)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_pConfigParse) {
        qDebug("%s: %s: %s: Config instance is null", LOG_AT);
        return Missing;
    }
    m_pdialogDiagnostics = DiagnosticsWindow::createFrame(parent);
    if (!m_pdialogDiagnostics) {
        qDebug("%s: %s: %s: Memory Allocation Failed for main dialog", LOG_AT);
        return Missing;
    }
    m_pwidgetDiagnostic = new (std::nothrow) QWidget(m_pdialogDiagnostics);
    m_pdialogDiagnostics->AddMainWidget(m_pwidgetDiagnostic);
    m_ptabWidgetDiag = nullptr;
    if (m_pwidgetDiagnostic) { // without it they would have no parent
        m_ptabWidgetDiag = new (std::nothrow) QTabWidget(m_pwidgetDiagnostic);
        m_ppushButtonCancel = new (std::nothrow) QPushButton(m_pwidgetDiagnostic);
        m_ppushButtonRefresh = new (std::nothrow) QPushButton(m_pwidgetDiagnostic);
    }
    if (!m_pwidgetDiagnostic || !m_ptabWidgetDiag || !m_ppushButtonCancel ||
        !m_ppushButtonRefresh) {
        qDebug("%s: %s: %s: Memory Allocation Failed", LOG_AT);
        return Missing;
    }
    m_pwidgetDiagnostic->setObjectName(QLatin1String("DiagnosticsUIPlugin_widgetDiagnostic"));
    m_ptabWidgetDiag->setObjectName(QLatin1String("DiagnosticsUIPlugin_tabWidgetDiag"));
    m_ppushButtonCancel->setObjectName(QLatin1String("DiagnosticsUIPlugin_pushButtonCancel"));
    m_ppushButtonRefresh->setObjectName(QLatin1String("DiagnosticsUIPlugin_pushButtonRefresh"));
    m_ptabWidgetDiag->setMaximumSize(450, 365);

    if (dynamicTabCreation() != Success) {
        qDebug("%s: %s: %s: dynamic Tab creation Failed", LOG_AT);
        return Missing;
    }
    if (applyDeviceCustomization() != Success) {
        qDebug("%s: %s: %s: Applying Device Customization Failed", LOG_AT);
        return Missing;
    }

    if (DiagnosticsWindow::hasSaveButton(m_pConfigParse->GetSettingInformation())) {
        m_ppushButtonSave = new (std::nothrow) QPushButton(m_pwidgetDiagnostic);
        if (!m_ppushButtonSave) {
            qDebug("%s: %s: %s: Creation of Save Button Failed", LOG_AT);
            return Missing;
        }
        m_ppushButtonSave->setObjectName(QLatin1String("DiagnosticsUIPlugin_pushButtonSave"));
        qDebug("%s: %s: %s: bSetVisible is false", LOG_AT);
        DiagnosticsWindow::setUpButton(m_ppushButtonSave, "IDS_MAINFRM_SAVE_PROMPT", this,
                                       SLOT(onButtonSaveClicked()));
    }
    DiagnosticsWindow::setUpButton(m_ppushButtonRefresh, "IDS_MAINFRM_REFRESH_PROMPT", this,
                                   SLOT(onButtonRefreshClicked()));
    DiagnosticsWindow::setUpButton(m_ppushButtonCancel, "IDS_MAINFRM_CANCEL_PROMPT", this,
                                   SLOT(onButtonCancelClicked()));
    connect(m_pdialogDiagnostics, SIGNAL(dlgCloseEvent()), this, SLOT(onDlgClose()));
    // Only now: dynamicTabCreation() fills the first tab itself.
    connect(m_ptabWidgetDiag, SIGNAL(currentChanged(int)), this, SLOT(onTabChange(int)));

    if (createLayout() != Success) {
        qDebug("%s: %s: %s: Layout creation failed", LOG_AT);
        return Missing;
    }
    return Success;
}

int DiagnosticsUIPlugin::createLayout()
{
    m_pvboxLayoutMain = new (std::nothrow) QVBoxLayout;
    m_phboxLayoutTop = new (std::nothrow) QHBoxLayout;
    m_phboxLayoutBottom = new (std::nothrow) QHBoxLayout;
    if (!m_pvboxLayoutMain || !m_phboxLayoutTop || !m_phboxLayoutBottom || !m_pwidgetDiagnostic) {
        qDebug("%s: %s: %s: Memory assignment Failed", LOG_AT);
        // They have no parent yet.
        delete m_pvboxLayoutMain;
        delete m_phboxLayoutTop;
        delete m_phboxLayoutBottom;
        m_pvboxLayoutMain = nullptr;
        m_phboxLayoutTop = nullptr;
        m_phboxLayoutBottom = nullptr;
        return Missing;
    }
    m_pvboxLayoutMain->setObjectName(QLatin1String("DiagnosticsUIPlugin_vboxLayoutMain"));
    m_phboxLayoutTop->setObjectName(QLatin1String("DiagnosticsUIPlugin_hboxLayoutTop"));
    m_phboxLayoutBottom->setObjectName(QLatin1String("DiagnosticsUIPlugin_hboxLayoutBottom"));

    m_pvboxLayoutMain->addLayout(m_phboxLayoutTop);
    m_pvboxLayoutMain->addLayout(m_phboxLayoutBottom);
    m_pwidgetDiagnostic->setLayout(m_pvboxLayoutMain);

    m_phboxLayoutTop->addWidget(m_ptabWidgetDiag);

    const int buttonSpacing = 26;
    const int rightMargin = 15;
    DiagnosticsWindow::layOutButtons(m_phboxLayoutBottom, m_ppushButtonSave, m_ppushButtonRefresh,
                                     m_ppushButtonCancel, buttonSpacing, rightMargin);
    return Success;
}

int DiagnosticsUIPlugin::dynamicTabCreation()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_pConfigParse) {
        qDebug("%s: %s: %s: Config instance is null", LOG_AT);
        return Missing;
    }
    const QList<TabDetails> *tabs = m_pConfigParse->GetTabInformation();
    if (!tabs) {
        qDebug("%s: %s: %s: Memory Allocation Failed", LOG_AT);
        return Missing;
    }
    delete[] m_pTabFilled;
    m_iTabFilledCount = 0;
    m_pTabFilled = new (std::nothrow) int[static_cast<std::size_t>(tabs->size())];
    if (!m_pTabFilled)
        return Missing;

    int result = Success;
    for (const TabDetails &tab : *tabs) {
        m_pTabFilled[m_iTabFilledCount++] = 0;
        if (!tab.show)
            continue;
        QWidget *page = new (std::nothrow) QWidget(m_ptabWidgetDiag);
        if (!page) {
            qDebug("%s: %s: %s: tabWidget is null", LOG_AT);
            result = Missing;
            break;
        }
        page->setObjectName(pageName(tab));
        m_ptabWidgetDiag->addTab(page, tr(tab.resourceID));
    }
    for (TabDetails tab : *tabs) {
        if (tab.show && createTab(&tab) != Success) {
            qDebug("%s: %s: %s: tab creation failed", LOG_AT);
            result = Missing;
            break;
        }
    }
    onTabChange(0);
    return m_ptabWidgetDiag ? result : Missing; // the host may have closed the window meanwhile
}

int DiagnosticsUIPlugin::createTab(TabDetails *tab)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_ptabWidgetDiag) {
        qDebug("%s: %s: %s: Diag widget is null", LOG_AT);
        return Missing;
    }
    QWidget *page = tab ? m_ptabWidgetDiag->findChild<QWidget *>(pageName(*tab)) : nullptr;
    // Tabs of one name share a page and its form.
    QFormLayout *layout = page ? qobject_cast<QFormLayout *>(page->layout()) : nullptr;
    if (!layout)
        layout = new (std::nothrow) QFormLayout(page);
    if (!page || !layout) {
        qDebug("%s: %s: %s: Memory Allocation Failed", LOG_AT);
        delete layout;
        return Missing;
    }
    if (!tab->items) {
        qDebug("%s: %s: %s: Input Parameter has a problem", LOG_AT);
        delete layout;
        return Missing;
    }
    int result = Success;
    for (const TabItem &item : *tab->items) {
        if (!item.show)
            continue;
        QLabel *caption = new (std::nothrow) QLabel(page);
        QLabel *value = new (std::nothrow) QLabel(page);
        if (!caption || !value) {
            qDebug("%s: %s: %s: tabItemNameLabel is null", LOG_AT);
            delete layout;
            layout = nullptr;
            delete caption;
            delete value;
            result = Missing;
            break;
        }
        DiagnosticsRow::setUp(caption, value, tr(item.resourceID));
        caption->setFixedWidth(DiagnosticsRow::CaptionWidth);
        caption->setObjectName(DiagnosticsRow::captionName(item.name));
        value->setObjectName(DiagnosticsRow::valueName(item.name));
        value->setWordWrap(true);
        layout->addRow(caption, value);
    }
    if (layout)
        page->setLayout(layout);
    qDebug("%s: %s: %s: %s Tab creation successful", LOG_AT, tab->name.toLocal8Bit().constData());
    return result;
}

int DiagnosticsUIPlugin::applyDeviceCustomization()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_pConfigParse) {
        qDebug("%s: %s: %s: config instance is NULL", LOG_AT);
        return Missing;
    }
    const QHash<QString, QString> *customization =
        m_pConfigParse->GetDeviceCustomizationInformation();
    if (!customization) {
        qDebug("%s: %s: %s: No customization for Device: ", LOG_AT);
        return Missing;
    }
    const QString simText = customization->value(QLatin1String("simmsgprompt"));
    if (simText == QLatin1String("SIM/USIM")) {
        qDebug("%s: %s: %s: No customization for Device: ", LOG_AT);
        return Success;
    }
    if (!m_ptabWidgetDiag) {
        qDebug("%s: %s: %s: tab widget is null: ", LOG_AT);
        return Missing;
    }
    int simTab = 0;
    for (int index = 0; index < m_ptabWidgetDiag->count(); ++index) {
        if (m_ptabWidgetDiag->tabText(index).contains(QLatin1String("sim"), Qt::CaseInsensitive)) {
            simTab = index;
            break;
        }
    }
    m_ptabWidgetDiag->setTabText(simTab, simText);
    for (const char *item : {SimMessagesItem, SimContactsItem})
        DiagnosticsRow::replaceSimWording(m_ptabWidgetDiag, QLatin1String(item), simText);
    return Success;
}

// ---- Filling the tabs ----

/// Whether m_pTabFilled has an entry for a tab.
bool DiagnosticsUIPlugin::isMarkable(int index) const
{
    return index >= 0 && index < m_iTabFilledCount;
}

/// Reads the shown rows of a tab into their value labels, which are below \a page. The host,
/// which is asked for some values, may close the window meanwhile.
void DiagnosticsUIPlugin::showRows(const TabDetails &tab, QPointer<QWidget> page)
{
    if (!tab.items)
        return;
    for (const TabItem &item : *tab.items) {
        if (!item.show)
            continue;
        const QPointer<QLabel> label = DiagnosticsRow::value(page, item.name);
        if (!label)
            continue;
        QString value;
        if (m_bDeviceAvailable || isReadWithoutDevice(item.name))
            getValueLabelVal(tab.name, item.name, &value);
        else
            value = DiagnosticsText::unknown();
        if (label)
            label->setText(value);
    }
}

void DiagnosticsUIPlugin::onButtonRefreshClicked()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_pConfigParse || !m_ptabWidgetDiag)
        return;
    const QString caption = m_ptabWidgetDiag->tabText(m_ptabWidgetDiag->currentIndex());
    const QList<TabDetails> *tabs = m_pConfigParse->GetTabInformation();
    if (!tabs)
        return;
    for (const TabDetails &tab : *tabs) {
        if (!tab.show || caption != tr(tab.resourceID))
            continue;
        showRows(tab, m_ptabWidgetDiag->findChild<QWidget *>(pageName(tab)));
        break;
    }
}

void DiagnosticsUIPlugin::onTabChange(int index)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (isMarkable(index) && m_pTabFilled[index])
        return;
    if (index == -1 || !m_ptabWidgetDiag || !m_pConfigParse) {
        qDebug("%s: %s: %s: no more tab to switch or widget is null", LOG_AT);
        return;
    }
    // First the caption; after a match, the tab's configured name. The test at the end compares
    // what it then holds.
    QString text = m_ptabWidgetDiag->tabText(index);
    const QList<TabDetails> *tabs = m_pConfigParse->GetTabInformation();
    if (!tabs) {
        qDebug("%s: %s: %s: tabInfolst is null", LOG_AT);
        return;
    }
    for (const TabDetails &tab : *tabs) {
        if (!tr(tab.resourceID).contains(text, Qt::CaseInsensitive) || !tab.show)
            continue;
        text = tab.name;
        showRows(tab, m_pwidgetDiagnostic);
        break;
    }
    if (isMarkable(index) && text != tr(QLatin1String("IDS_TAB_NETWORK_STATUS")))
        m_pTabFilled[index] = 1;
}

// ---- The values ----

void DiagnosticsUIPlugin::getValueLabelVal(QString tabName, QString itemName, QString *value)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (tabName == QLatin1String("Device") || tabName == QLatin1String("Network settings"))
        *value = getDeviceNetTabItemValue(itemName);
    else if (tabName == QLatin1String("SIM/USIM"))
        *value = getSimTabItemValue(itemName);
    else if (tabName == QLatin1String("Network status"))
        *value = getNetSetTabItemValue(itemName);
    if (value->isEmpty())
        *value = DiagnosticsText::unknown();
}

/// Reads the value of a row of the dispatch; null stands for a name without a row.
QString DiagnosticsUIPlugin::valueOf(const ValueRow *row)
{
    if (!row)
        return DiagnosticsText::unknown();
    const QString value = (m_pLogic->*row->get)();
    return row->translated ? tr(value) : value;
}

QString DiagnosticsUIPlugin::getDeviceNetTabItemValue(QString itemName)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_pLogic)
        return DiagnosticsText::unknown();
    return valueOf(findRow(DeviceRows, itemName));
}

QString DiagnosticsUIPlugin::getNetSetTabItemValue(QString itemName)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_pLogic)
        return DiagnosticsText::unknown();
    if (itemName == QLatin1String("RSSI")) {
        const QString level = m_pLogic->GetRSSI();
        return level == QLatin1String(DiagnosticsText::UnknownKey) ? tr(level) : level;
    }
    const ValueRow *row = findRow(NetworkRows, itemName);
    return row ? valueOf(row) : getNetSetTabItemValueVer2(itemName);
}

QString DiagnosticsUIPlugin::getNetSetTabItemValueVer2(QString itemName)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_pLogic)
        return DiagnosticsText::unknown();
    return valueOf(findRow(RegistrationRows, itemName));
}

QString DiagnosticsUIPlugin::getSimTabItemValue(QString itemName)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_pLogic)
        return DiagnosticsText::unknown();
    if (itemName == QLatin1String(SimMessagesItem))
        return m_pLogic->GetMessageCount(DiagnosticsUILogic::SimStorage);
    if (itemName == QLatin1String("PIN code status")) {
        const QString key = m_pLogic->GetPinStatus();
        const QString text = tr(key);
        if (key == QLatin1String("IDS_LANG_PIN_NOT_INITIALIZED") && text.isEmpty())
            return QLatin1String("the PIN doesn't Initialized");
        return text;
    }
    return valueOf(findRow(SimRows, itemName));
}

// ---- Export ----

void DiagnosticsUIPlugin::onButtonSaveClicked()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    const QPointer<DiagnosticsUIPlugin> alive(this); // the host may delete it meanwhile
    const QString path = DiagnosticsSaveDialogs::askPath(m_pwidgetDiagnostic);
    if (alive && !path.isNull() && saveToFile(path) != Success)
        DiagnosticsSaveDialogs::showFailure(m_pwidgetDiagnostic);
}

int DiagnosticsUIPlugin::saveToFile(QString path)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    DiagnosticsReportFile file(path);
    if (!m_pConfigParse || !m_ptabWidgetDiag) {
        qDebug("%s: %s: %s: ConfigInstance or m_ptabWidgetDiag is null", LOG_AT);
        return Missing;
    }
    const QList<TabDetails> *tabs = m_pConfigParse->GetTabInformation();
    if (!file.open()) {
        qDebug("%s: %s: %s: Error in opening file", LOG_AT);
        return CannotOpen;
    }
    for (int index = 0; tabs && index < tabs->size(); ++index) {
        const TabDetails &tab = tabs->at(index);
        if (!tab.show)
            continue;
        file.writeLine(tr(tab.resourceID));
        for (int row = 0; tab.items && row < tab.items->size(); ++row) {
            const TabItem &item = tab.items->at(row);
            if (!item.show)
                continue;
            const QString caption = tr(item.resourceID);
            QString value;
            getValueLabelVal(tab.name, item.name, &value);
            file.writeRow(caption, value);
        }
        file.writeLine();
    }
    file.close();
    qDebug("%s: %s: %s: file writing success", LOG_AT);
    DiagnosticsSaveDialogs::showSuccess(m_pwidgetDiagnostic);
    return Success;
}

DIAGNOSTICS_EXPORT_PLUGIN(DiagnosisPlugin, DiagnosticsUIPlugin)
