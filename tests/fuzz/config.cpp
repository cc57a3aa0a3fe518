// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The input is the configuration file. What the store holds is compared with a second reading by
// the rules of docs/configuration.md; a file with few rows is also shown and exported.

#include "Fuzz.h"

#include "DiagnosticsConfigParse.h"

#include "SdkControl.h"

#include <QBuffer>
#include <QLabel>
#include <QTabWidget>
#include <QXmlStreamReader>

using namespace Fuzz;

namespace {

const char DeviceCustomization[] = "EDITION";

QString attribute(const QXmlStreamReader &reader, const char *name)
{
    return reader.attributes().value(QLatin1String(name)).toString();
}

QString record(const char *kind, const QString &name, const QString &resource, bool shown)
{
    return QStringLiteral("%1 '%2' '%3' %4")
        .arg(QLatin1String(kind), name, resource, QLatin1String(shown ? "shown" : "hidden"));
}

QString record(const char *kind, const QXmlStreamReader &reader)
{
    return record(kind, attribute(reader, "name"), attribute(reader, "resourceID"),
                  attribute(reader, "show") != QLatin1String("false"));
}

/// What a file should leave in the store.
struct Content
{
    QStringList records; ///< tabs and rows
    QHash<QString, QString> settings;
    QHash<QString, QString> customization;
    unsigned int result = 0;
};

Content readAgain(const QByteArray &xml)
{
    Content content;
    enum
    {
        BeforeRoot,
        InRoot,
        InTab
    } at = BeforeRoot;
    bool atRoot = false;
    bool wordingHolds = false;
    const char *valueAttribute = nullptr;
    QBuffer file;
    file.setData(xml);
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    QXmlStreamReader reader(&file);
    for (reader.readNext(); !reader.atEnd(); reader.readNext()) {
        const bool begins = reader.isStartElement();
        const auto is = [&](const char *name) { return reader.name() == QLatin1String(name); };
        atRoot = at == BeforeRoot && begins && is("veltdoc");
        if (atRoot || (at == InTab && is("tab")))
            at = InRoot;
        else if (at == InTab && begins && is("item"))
            content.records.append(record("row", reader));
        else if (at != InRoot || !begins)
            continue;
        else if (is("tab")) {
            content.records.append(record("tab", reader));
            at = InTab;
        } else if (is("function"))
            valueAttribute = "value";
        else if (is("CDMADiagnostics"))
            valueAttribute = "show";
        else if (is("item") && valueAttribute)
            content.settings[attribute(reader, "name")] = attribute(reader, valueAttribute);
        else if (is("common"))
            wordingHolds = true;
        else if (is("customize"))
            wordingHolds |= attribute(reader, "name") == QLatin1String(DeviceCustomization);
        else if (is("simmsgprompt") && wordingHolds) {
            wordingHolds = false;
            const QString wording = reader.readElementText();
            if (is("simmsgprompt")) // still, after an error
                content.customization[QStringLiteral("simmsgprompt")] = wording;
        }
    }
    // An error right behind the root's tag is passed over.
    content.result = reader.hasError() && !atRoot ? 3 : 0;
    return content;
}

void showAndSave(Session &session, const QList<TabDetails> &tabs)
{
    int shownTabs = 0;
    int shownRows = 0;
    for (const TabDetails &tab : tabs) {
        shownTabs += tab.show;
        for (const TabItem &item : *tab.items)
            shownRows += tab.show * item.show;
    }
    if (shownTabs > 8 || shownRows > 40)
        return;
    require(session.show() == 1, "the window opens");
    auto *pages = session.parent->findChild<QTabWidget *>();
    require(pages->count() == shownTabs, "a page for each shown tab");
    for (int page = 0; page < shownTabs; ++page) {
        pages->setCurrentIndex(page);
        session.button("Refresh")->click();
    }
    const auto labels = pages->findChildren<QLabel *>();
    require(labels.size() == 2 * shownRows, "two labels for each shown row");
    if (session.button("Save"))
        require(session.save("Save").count('\n') == 2 * shownTabs + shownRows,
                "a line for each row, two for each tab");
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool attached = [] { // before the host, which takes it away at its end
        TestSupport::attachModem("wcdma");
        TestSupport::modem().setValue("device/customizeName", DeviceCustomization);
        return true;
    }();
    Q_UNUSED(attached)
    const QByteArray xml(reinterpret_cast<const char *>(data), static_cast<int>(size));
    host().write("DiagnosisConfig.xml", xml);
    Session session;
    DiagnosticsConfigParse *store = DiagnosticsConfigParse::GetInstance();
    QStringList records;
    for (const TabDetails &tab : *store->GetTabInformation()) {
        records.append(record("tab", tab.name, tab.resourceID, tab.show));
        for (const TabItem &item : *tab.items)
            records.append(record("row", item.name, item.resourceID, item.show));
    }
    const Content expected = readAgain(xml);
    require(records == expected.records, "the tabs and rows", records.join(QLatin1Char('\n')));
    require(*store->GetSettingInformation() == expected.settings, "the settings");
    require(*store->GetDeviceCustomizationInformation() == expected.customization, "the wording");
    showAndSave(session, *store->GetTabInformation());
    require(store->LoadFile(QLatin1String("DiagnosisConfig.xml")) == expected.result, "the result");
    return 0;
}
