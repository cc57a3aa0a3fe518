// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsConfigParse.h"

#include "DiagnosticsLog.h"
#include "DiagnosticsResult.h"
#include "DiagnosticsSdkText.h"

#include "core/CommonUtils.h"
#include "sdk/VeltDevice.h"

#include <QFile>

#include <new>

using namespace DiagnosticsResult;

namespace {

const char LogSource[] = "../../src/DiagnosisPlugin/DiagnosticsConfigParse";

const char RootElement[] = "veltdoc";
const char FunctionElement[] = "function";
const char CdmaElement[] = "CDMADiagnostics";
const char TabElement[] = "tab";
const char ItemElement[] = "item";
const char CommonElement[] = "common";
const char CustomizeElement[] = "customize";
const char SimPromptElement[] = "simmsgprompt";

const char NameAttribute[] = "name";
const char ValueAttribute[] = "value";
const char ShowAttribute[] = "show";
const char ResourceAttribute[] = "resourceID";

bool isNamed(const QCoreXmlStreamReader &reader, const char *element)
{
    return reader.name() == QLatin1String(element);
}

QString attribute(const QCoreXmlStreamReader &reader, const char *name)
{
    return reader.attributes().value(QLatin1String(name)).toString();
}

/// The attributes that a tab and a row have in common.
template <typename Record>
void readCaption(const QCoreXmlStreamReader &reader, Record &record)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    record.name = attributes.value(QLatin1String(NameAttribute)).toString();
    record.resourceID = attributes.value(QLatin1String(ResourceAttribute)).toString();
    record.show = attributes.value(QLatin1String(ShowAttribute)) == QLatin1String("false") ? 0 : 1;
}

} // namespace

DiagnosticsConfigParse *DiagnosticsConfigParse::m_pInstance = nullptr;
int DiagnosticsConfigParse::m_iInstanceCount = 0;

DiagnosticsConfigParse *DiagnosticsConfigParse::GetInstance()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_pInstance)
        m_pInstance = new (std::nothrow) DiagnosticsConfigParse;
    ++m_iInstanceCount;
    return m_pInstance;
}

void DiagnosticsConfigParse::DestroyInstance()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!m_pInstance)
        return;
    if (m_iInstanceCount > 0) {
        --m_iInstanceCount;
        return;
    }
    delete m_pInstance;
    m_pInstance = nullptr;
}

DiagnosticsConfigParse::DiagnosticsConfigParse()
    : m_listDiagTab(nullptr), m_pHashSetting(nullptr), m_pHashCustomization(nullptr)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    m_listDiagTab = new (std::nothrow) QList<TabDetails>;
    m_pHashCustomization = new (std::nothrow) QHash<QString, QString>;
    m_pHashSetting = new (std::nothrow) QHash<QString, QString>;
    if (!m_listDiagTab || !m_pHashCustomization || !m_pHashSetting)
        qDebug("%s: %s: %s: m_pHashSetting/m_listDiagTab is NULL", LOG_AT);
}

DiagnosticsConfigParse::~DiagnosticsConfigParse()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    ReleaseData();
}

unsigned int DiagnosticsConfigParse::LoadFile(QString fileName)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    const QString path =
        CommonUtils::GetPluginLibraryPath() + QLatin1String("/plugins/DiagnosisPlugin/") + fileName;
    QFile file(path);
    if (!file.exists()) {
        qDebug("%s: %s: %s: called", LOG_AT);
        return CannotOpen;
    }
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qDebug("%s: %s: %s: Error open file:%s", LOG_AT, path.toLocal8Bit().constData());
        return CannotOpen;
    }
    QCoreXmlStreamReader reader(&file);
    const bool complete = readFile(reader);
    file.close();
    return complete ? Success : CannotOpen;
}

QList<TabDetails> *DiagnosticsConfigParse::GetTabInformation()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    return m_listDiagTab;
}

QHash<QString, QString> *DiagnosticsConfigParse::GetSettingInformation()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    return m_pHashSetting;
}

QHash<QString, QString> *DiagnosticsConfigParse::GetDeviceCustomizationInformation()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    return m_pHashCustomization;
}

void DiagnosticsConfigParse::ReleaseData()
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (m_listDiagTab) {
        for (const TabDetails &tab : *m_listDiagTab)
            delete tab.items;
        delete m_listDiagTab;
        m_listDiagTab = nullptr;
    }
    delete m_pHashCustomization;
    m_pHashCustomization = nullptr;
    delete m_pHashSetting;
    m_pHashSetting = nullptr;
}

bool DiagnosticsConfigParse::readFile(QCoreXmlStreamReader &reader)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (!reader.device()) {
        qDebug("%s: %s: %s:Stream reader not bind with device", LOG_AT);
        return false;
    }
    bool result = true;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.hasError()) {
            qDebug("%s: %s: %s: Read Error: n", LOG_AT);
            return false;
        }
        if (!reader.isStartElement() || !isNamed(reader, RootElement))
            continue;
        reader.readNext();
        while (!reader.atEnd()) {
            if (reader.isStartElement())
                populateHash(reader);
            reader.readNext();
            if (reader.hasError()) {
                qDebug("%s: %s: %s: GroupInfo Read Error", LOG_AT);
                result = false;
                break;
            }
        }
    }
    return result;
}

void DiagnosticsConfigParse::populateHash(QCoreXmlStreamReader &reader)
{
    qDebug("%s: %s: %s: called", LOG_AT);
    if (isNamed(reader, FunctionElement)) {
        m_strSection = QLatin1String(FunctionElement);
    } else if (isNamed(reader, CdmaElement)) {
        m_strSection = QLatin1String(CdmaElement);
    } else if (isNamed(reader, TabElement)) {
        readTabInfo(reader);
    } else if (isNamed(reader, ItemElement) && m_pHashSetting) {
        if (m_strSection == QLatin1String(FunctionElement))
            m_strValue = attribute(reader, ValueAttribute);
        else if (m_strSection == QLatin1String(CdmaElement))
            m_strValue = attribute(reader, ShowAttribute);
        else
            return;
        m_strKey = attribute(reader, NameAttribute);
        m_pHashSetting->insert(m_strKey, m_strValue);
    } else if (isNamed(reader, CommonElement)) {
        m_strCustomizeActive = QLatin1String("true");
    } else if (isNamed(reader, CustomizeElement)) {
        if (attribute(reader, NameAttribute) == getCustomizeName())
            m_strCustomizeActive = QLatin1String("true");
    } else if (isNamed(reader, SimPromptElement)) {
        if (m_strCustomizeActive != QLatin1String("true"))
            return;
        m_strCustomizeActive = QLatin1String("false");
        m_strValue = reader.readElementText();
        // After an error the reader may stand on another element, or on none.
        if (m_pHashCustomization && isNamed(reader, SimPromptElement))
            m_pHashCustomization->insert(QLatin1String(SimPromptElement), m_strValue);
    }
}

void DiagnosticsConfigParse::readTabInfo(QCoreXmlStreamReader &reader)
{
    TabDetails tab;
    tab.items = new QList<TabItem>;
    readCaption(reader, tab);
    reader.readNext();
    // A tab ends at the next tag of its name, start or end. It also ends where the document does: a
    // file that was cut off must not keep the host from starting.
    while (!reader.atEnd() && !isNamed(reader, TabElement)) {
        if (reader.isStartElement() && isNamed(reader, ItemElement)) {
            TabItem item;
            readCaption(reader, item);
            tab.items->append(item);
        }
        reader.readNext();
    }
    if (m_listDiagTab)
        m_listDiagTab->append(tab);
    else
        delete tab.items;
}

QString DiagnosticsConfigParse::getCustomizeName()
{
    SdkText<VELT_SIZE_CUSTOMIZE_NAME> name;
    qDebug("=======> %s: %s: %s: Calling VELT_DevSrv_getCustomizeName: %s", LOG_AT, name.text());
    const VELT_ERROR result = VELT_DevSrv_GetCustomizeName(name.buffer());
    qDebug("=======> %s: %s: %s: VELT_DevSrv_getCustomizeName returned %li", LOG_AT, result);
    if (result != VELT_SUCCESS)
        return QString();
    qDebug("=======> %s: %s: %s: VELT_DevSrv_getCustomizeName success: %s", LOG_AT, name.text());
    return name.toString();
}
