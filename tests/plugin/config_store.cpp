// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The configuration store: what each form of a file leaves in it, and how it ends.

#include "DiagnosticsConfigParse.h"
#include "PluginTest.h"

#include "ModemControl.h"

#include <QDir>
#include <QtTest>

using namespace TestSupport;

namespace {

const char Source[] = "DiagnosticsConfigParse";

QString sortedPairs(const QHash<QString, QString> &hash)
{
    QStringList pairs;
    for (auto entry = hash.begin(); entry != hash.end(); ++entry)
        pairs.append(entry.key() + QLatin1Char('=') + entry.value());
    pairs.sort();
    return pairs.join(QLatin1Char(','));
}

QString contents(DiagnosticsConfigParse *store)
{
    QStringList tabs;
    for (const TabDetails &tab : *store->GetTabInformation()) {
        QStringList rows;
        for (const TabItem &item : *tab.items)
            rows.append(
                QString::fromLatin1("%1:%2:%3").arg(item.name, item.resourceID).arg(item.show));
        tabs.append(QString::fromLatin1("%1:%2:%3{%4}")
                        .arg(tab.name, tab.resourceID)
                        .arg(tab.show)
                        .arg(rows.join(QLatin1Char(','))));
    }
    return QStringList({tabs.join(QLatin1Char(' ')), sortedPairs(*store->GetSettingInformation()),
                        sortedPairs(*store->GetDeviceCustomizationInformation())})
        .join(QLatin1Char(';'));
}

} // namespace

class ConfigStoreTest : public PluginTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        setUp();
        ModemControl::setValue("device/customizeName", "EDITION");
        m_store = DiagnosticsConfigParse::GetInstance();
    }
    void cleanup() { tearDown(); }

    void files_data() { addRows(TEST_SOURCE_DIR "/config_store.txt", "files"); }
    void files();
    void unreadable();
    void customizeName();
    void customizeNameFillsItsBuffer();
    void secondFileAddsToTheStore();
    void largeFiles();
    void countsReferences();
    void releasedStoreHandsOutNull();

private:
    unsigned int load(const QByteArray &xml)
    {
        m_host->write("test.xml", xml);
        m_log->takeLog();
        return m_store->LoadFile(QLatin1String("test.xml"));
    }

    DiagnosticsConfigParse *m_store = nullptr;
};

void ConfigStoreTest::files()
{
    QFETCH(QStringList, fields);
    QCOMPARE(load(fields.at(4).toLatin1()), fields.at(1).toUInt());
    QString errors;
    for (const QString &line : m_log->takeLog().filter(QLatin1String("readFile: ")))
        errors += line.section(QLatin1String("readFile: "), 1).remove(QLatin1String("called"));
    QCOMPARE(errors, fields.at(3));
    QCOMPARE(contents(m_store), fields.at(2));
}

void ConfigStoreTest::unreadable()
{
    m_log->takeLog();
    const QString called = line("LoadFile: called", Source);
    QCOMPARE(m_store->LoadFile(QLatin1String("missing.xml")), 3u);
    QCOMPARE(m_log->takeLog(), QStringList({called, called}));
    QDir().mkpath(path("folder.xml")); // unreadable even for root
    QCOMPARE(m_store->LoadFile(QLatin1String("folder.xml")), 3u);
    QCOMPARE(m_log->takeLog(), QStringList({called, line("LoadFile: Error open file:", Source) +
                                                        path("folder.xml")}));
    QCOMPARE(contents(m_store), QString::fromLatin1(";;"));
}

/// A name that cannot be read counts as empty.
void ConfigStoreTest::customizeName()
{
    const QByteArray xml("<veltdoc><customize name='EDITION'><simmsgprompt>E</simmsgprompt>"
                         "</customize><customize><simmsgprompt>none</simmsgprompt></customize>"
                         "</veltdoc>");
    const QString at = QLatin1String("=======> ") + line("getCustomizeName: ", Source);
    const QString asked = at + QLatin1String("Calling VELT_DevSrv_getCustomizeName: ");
    const QString returned = at + QLatin1String("VELT_DevSrv_getCustomizeName returned ");
    QCOMPARE(load(xml), 0u);
    QCOMPARE(contents(m_store), QString::fromLatin1(";;simmsgprompt=E"));
    QStringList once({asked, returned + QLatin1Char('0'),
                      at + QLatin1String("VELT_DevSrv_getCustomizeName success: EDITION")});
    QCOMPARE(m_log->takeLog().filter(QLatin1String("=======>")), once + once);

    ModemControl::setResult("VELT_DevSrv_GetCustomizeName", 5);
    QCOMPARE(load(xml), 0u);
    QCOMPARE(contents(m_store), QString::fromLatin1(";;simmsgprompt=none"));
    once = QStringList({asked, returned + QLatin1Char('5')});
    QCOMPARE(m_log->takeLog().filter(QLatin1String("=======>")), once + once);
}

void ConfigStoreTest::customizeNameFillsItsBuffer()
{
    const QByteArray name(64, 'N');
    ModemControl::setValue("device/customizeName", name.toStdString() + "cut off");
    QCOMPARE(load("<veltdoc><customize name='" + name +
                  "'><simmsgprompt>E</simmsgprompt></customize></veltdoc>"),
             0u);
    QCOMPARE(contents(m_store), QString::fromLatin1(";;simmsgprompt=E"));
}

void ConfigStoreTest::secondFileAddsToTheStore()
{
    load("<veltdoc><tab name='t'/></veltdoc>");
    load("<veltdoc><tab name='t'/></veltdoc>");
    QCOMPARE(contents(m_store), QString::fromLatin1("t::1{} t::1{};;"));
}

void ConfigStoreTest::largeFiles()
{
    QByteArray rows;
    for (int row = 0; row < 100000; ++row)
        rows += "<item name='row " + QByteArray::number(row) + "'/>";
    QCOMPARE(load("<veltdoc><tab name='t'>" + rows + "</tab></veltdoc>"), 0u);
    QCOMPARE(m_store->GetTabInformation()->at(0).items->size(), 100000);
    QCOMPARE(m_store->GetTabInformation()->at(0).items->last().name,
             QString::fromLatin1("row 99999"));
    const int depth = 20000;
    QCOMPARE(load("<veltdoc>" + QByteArray("<a>").repeated(depth) + "<tab name='deep'/>" +
                  QByteArray("</a>").repeated(depth) + "</veltdoc>"),
             0u);
    QCOMPARE(m_store->GetTabInformation()->last().name, QString::fromLatin1("deep"));
}

void ConfigStoreTest::countsReferences()
{
    const QString destroyed = line("~DiagnosticsConfigParse: called", Source);
    DiagnosticsConfigParse::DestroyInstance();
    QVERIFY(!m_log->takeLog().contains(destroyed));
    DiagnosticsConfigParse::DestroyInstance(); // one more than init() took
    QVERIFY(m_log->takeLog().contains(destroyed));
    DiagnosticsConfigParse::DestroyInstance();
    QCOMPARE(m_log->takeLog(), QStringList(line("DestroyInstance: called", Source)));
    m_store = DiagnosticsConfigParse::GetInstance();
    QCOMPARE(DiagnosticsConfigParse::GetInstance(), m_store);
}

void ConfigStoreTest::releasedStoreHandsOutNull()
{
    const QByteArray xml("<veltdoc><function/><tab name='t'/><item name='k' value='v'/><common/>"
                         "<simmsgprompt>S</simmsgprompt></veltdoc>");
    load(xml);
    m_store->ReleaseData();
    QVERIFY(!m_store->GetTabInformation());
    QVERIFY(!m_store->GetSettingInformation());
    QVERIFY(!m_store->GetDeviceCustomizationInformation());
    QCOMPARE(load(xml), 0u); // into nothing, harmlessly
}

QTEST_MAIN(ConfigStoreTest)
#include "config_store.moc"
