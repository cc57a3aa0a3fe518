// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The configuration store: what each form of a file leaves in it, and how it ends.

#include "DiagnosticsConfigParse.h"
#include "TestSupport.h"

#include "HostCore.h"
#include "ModemControl.h"

#include <QDir>
#include <QtTest>

using namespace TestSupport;

Q_DECLARE_METATYPE(QStringList)

namespace {

const unsigned int Loaded = 0;
const unsigned int NotLoaded = 3;

QStringList sortedPairs(const QHash<QString, QString> &hash)
{
    QStringList pairs;
    for (auto entry = hash.begin(); entry != hash.end(); ++entry)
        pairs.append(entry.key() + QLatin1Char('=') + entry.value());
    pairs.sort();
    return pairs;
}

/// The store in one line: each tab "name:resource:show{rows}", the settings, the customization.
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
    return tabs.join(QLatin1Char(' ')) + QLatin1Char('|') +
           sortedPairs(*store->GetSettingInformation()).join(QLatin1Char(',')) + QLatin1Char('|') +
           sortedPairs(*store->GetDeviceCustomizationInformation()).join(QLatin1Char(','));
}

QString lineOf(const char *function, const char *message)
{
    return QString::fromLatin1("TIME: ../../src/DiagnosisPlugin/DiagnosticsConfigParse: %1: %2")
        .arg(QLatin1String(function), QLatin1String(message));
}

} // namespace

class ConfigStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_log = new LogCapture;
        m_host = new ConfiguredHost("");
        attachModem("wcdma");
        ModemControl::setValue("device/customizeName", "EDITION");
        m_store = DiagnosticsConfigParse::GetInstance();
    }

    void cleanup()
    {
        DiagnosticsConfigParse::DestroyInstance();
        DiagnosticsConfigParse::DestroyInstance();
        delete m_host;
        delete m_log;
    }

    void files_data();
    void files();
    void unreadable_data();
    void unreadable();
    void failingCustomizeNameMatchesAnEmptyOne();
    void customizeNameFillsItsBuffer();
    void secondFileAddsToTheStore();
    void hugeFile();
    void deeplyNestedFile();
    void countsReferences();
    void releasedStoreHandsOutNull();

private:
    LogCapture *m_log = nullptr;
    ConfiguredHost *m_host = nullptr;
    DiagnosticsConfigParse *m_store = nullptr;
};

void ConfigStoreTest::files_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<unsigned int>("result");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("message"); ///< the reader's error line, without time, path, function

    const QString none;
    const QString readError = QLatin1String("Read Error: n");
    const QString groupError = QLatin1String("GroupInfo Read Error");
    const auto text = [](const char *latin1) { return QString::fromLatin1(latin1); };

    QTest::newRow("every construct")
        << QByteArray("<veltdoc><function><item name='SaveButton' value='true'/></function>"
                      "<CDMADiagnostics><item name='Carriers' show='TRUE'/></CDMADiagnostics>"
                      "<tab name='Device' resourceID='IDS_D' show='true'>"
                      "<item name='IMEI' resourceID='IDS_I' show='true'/>"
                      "<item name='APN' resourceID='IDS_A' show='false'/></tab>"
                      "<common><simmsgprompt>SIM/USIM</simmsgprompt></common></veltdoc>")
        << Loaded
        << text("Device:IDS_D:1{IMEI:IDS_I:1,APN:IDS_A:0}|Carriers=TRUE,SaveButton=true|"
                "simmsgprompt=SIM/USIM")
        << none;
    QTest::newRow("only the exact word false hides")
        << QByteArray("<veltdoc><tab name='a' show='False'><item name='b' show='0'/></tab>"
                      "<tab name='c' show='no'><item name='d'/></tab>"
                      "<tab name='e' show='false'><item name='f' show='false'/></tab></veltdoc>")
        << Loaded << text("a::1{b::1} c::1{d::1} e::0{f::0}||") << none;
    QTest::newRow("item before any section is ignored")
        << QByteArray("<veltdoc><item name='early' value='x' show='y'/></veltdoc>") << Loaded
        << text("||") << none;
    QTest::newRow("each section has its own value attribute")
        << QByteArray("<veltdoc><CDMADiagnostics/><item name='c' show='s' value='v'/>"
                      "<function/><item name='f' show='s' value='v'/><item/></veltdoc>")
        << Loaded << text("|=,c=s,f=v|") << none;
    QTest::newRow("later setting replaces the earlier")
        << QByteArray("<veltdoc><function><item name='k' value='1'/><item name='k' value='2'/>"
                      "</function></veltdoc>")
        << Loaded << text("|k=2|") << none;
    QTest::newRow("tab within a tab ends it unread")
        << QByteArray("<veltdoc><tab name='outer'><item name='a'/><tab name='inner'>"
                      "<item name='b'/></tab></tab></veltdoc>")
        << Loaded << text("outer::1{a::1}||") << none;
    QTest::newRow("unknown elements and text in a tab")
        << QByteArray(
               "<veltdoc><tab name='t'>text<x><item name='a'/></x><!-- c --></tab></veltdoc>")
        << Loaded << text("t::1{a::1}||") << none;
    QTest::newRow("duplicate and rowless tabs are kept in order")
        << QByteArray("<veltdoc><tab name='t'/><tab name='t'><item name='a'/></tab></veltdoc>")
        << Loaded << text("t::1{} t::1{a::1}||") << none;
    QTest::newRow("root within another element")
        << QByteArray("<x><tab name='before'/><veltdoc><tab name='in'/></veltdoc>"
                      "<tab name='after'/></x>")
        << Loaded << text("in::1{} after::1{}||") << none;
    QTest::newRow("device block overrides the common one")
        << QByteArray("<veltdoc><common><simmsgprompt>C</simmsgprompt></common>"
                      "<customize name='EDITION'><simmsgprompt>E</simmsgprompt></customize>"
                      "</veltdoc>")
        << Loaded << text("||simmsgprompt=E") << none;
    QTest::newRow("block of another device")
        << QByteArray("<veltdoc><customize name='edition'><simmsgprompt>E</simmsgprompt>"
                      "</customize></veltdoc>")
        << Loaded << text("||") << none;
    QTest::newRow("open block serves a later one")
        << QByteArray("<veltdoc><common/><customize name='other'><simmsgprompt>L</simmsgprompt>"
                      "</customize></veltdoc>")
        << Loaded << text("||simmsgprompt=L") << none;
    QTest::newRow("one prompt a block")
        << QByteArray("<veltdoc><common><simmsgprompt>1</simmsgprompt><simmsgprompt>2"
                      "</simmsgprompt></common></veltdoc>")
        << Loaded << text("||simmsgprompt=1") << none;
    QTest::newRow("encoding of the declaration")
        << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><veltdoc><common><simmsgprompt>"
                      "\xE9</simmsgprompt></common></veltdoc>")
        << Loaded << (text("||simmsgprompt=") + QChar(0xE9)) << none;
    QTest::newRow("other root") << QByteArray("<config><tab name='t'/></config>") << Loaded
                                << text("||") << none;
    QTest::newRow("empty") << QByteArray() << NotLoaded << text("||") << readError;
    QTest::newRow("not XML") << QByteArray("SaveButton=true\n") << NotLoaded << text("||")
                             << readError;
    QTest::newRow("broken before the root")
        << QByteArray("<x><y></x>") << NotLoaded << text("||") << readError;
    QTest::newRow("broken between tabs")
        << QByteArray("<veltdoc><tab name='t'><item name='a'/></tab><function></veltdoc>")
        << NotLoaded << text("t::1{a::1}||") << groupError;
    QTest::newRow("cut off between tabs")
        << QByteArray("<veltdoc><function><item name='k' value='v'/></function><tab name='t'/>")
        << NotLoaded << text("t::1{}|k=v|") << groupError;
    QTest::newRow("cut off inside a tab")
        << QByteArray("<veltdoc><tab name='t'><item name='a'/><item name='b'/>") << NotLoaded
        << text("t::1{a::1,b::1}||") << groupError;
    QTest::newRow("cut off inside a tag of a tab")
        << QByteArray("<veltdoc><tab name='t'><item name='a'/><item na") << NotLoaded
        << text("t::1{a::1}||") << groupError;
    QTest::newRow("broken inside a tab")
        << QByteArray("<veltdoc><tab name='t'><item name='a'/></item></tab></veltdoc>") << NotLoaded
        << text("t::1{a::1}||") << groupError;
}

void ConfigStoreTest::files()
{
    QFETCH(QByteArray, xml);
    QFETCH(unsigned int, result);
    QFETCH(QString, expected);
    QFETCH(QString, message);

    m_host->write("test.xml", xml);
    m_log->takeLog();
    QCOMPARE(m_store->LoadFile(QLatin1String("test.xml")), result);
    const QStringList errors = m_log->takeLog().filter(QLatin1String("Error"));
    QCOMPARE(errors, message.isEmpty()
                         ? QStringList()
                         : QStringList(lineOf("readFile", message.toLatin1().constData())));
    QCOMPARE(contents(m_store), expected);
}

void ConfigStoreTest::unreadable_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("message");
    QTest::newRow("missing") << QString::fromLatin1("missing.xml") << QString::fromLatin1("called");
    // Readable by nobody, root included.
    QTest::newRow("a folder") << QString::fromLatin1("folder.xml")
                              << QString::fromLatin1("Error open file:%1");
}

void ConfigStoreTest::unreadable()
{
    QFETCH(QString, fileName);
    QFETCH(QString, message);
    QDir().mkpath(m_host->folder() + QLatin1String("folder.xml"));
    if (message.contains(QLatin1Char('%')))
        message = message.arg(m_host->folder() + fileName);

    m_log->takeLog();
    QCOMPARE(m_store->LoadFile(fileName), NotLoaded);
    QCOMPARE(m_log->takeLog(), QStringList({lineOf("LoadFile", "called"),
                                            lineOf("LoadFile", message.toLatin1().constData())}));
    QCOMPARE(contents(m_store), QString::fromLatin1("||"));
}

void ConfigStoreTest::failingCustomizeNameMatchesAnEmptyOne()
{
    ModemControl::setResult("VELT_DevSrv_GetCustomizeName", 5);
    m_host->write("test.xml", "<veltdoc><customize name='EDITION'><simmsgprompt>E</simmsgprompt>"
                              "</customize><customize><simmsgprompt>none</simmsgprompt></customize>"
                              "</veltdoc>");
    QCOMPARE(m_store->LoadFile(QLatin1String("test.xml")), Loaded);
    QCOMPARE(contents(m_store), QString::fromLatin1("||simmsgprompt=none"));
    const QString at =
        QLatin1String("=======> TIME: ../../src/DiagnosisPlugin/DiagnosticsConfigParse: "
                      "getCustomizeName: ");
    const QStringList once({at + QLatin1String("Calling VELT_DevSrv_getCustomizeName: "),
                            at + QLatin1String("VELT_DevSrv_getCustomizeName returned 5")});
    QCOMPARE(m_log->takeLog().filter(QLatin1String("=======>")), once + once);
}

void ConfigStoreTest::customizeNameFillsItsBuffer()
{
    const QByteArray name(VELT_SIZE_CUSTOMIZE_NAME, 'N');
    ModemControl::setValue("device/customizeName", name.toStdString() + "cut off");
    m_host->write("test.xml", "<veltdoc><customize name='" + name +
                                  "'><simmsgprompt>E</simmsgprompt></customize></veltdoc>");
    QCOMPARE(m_store->LoadFile(QLatin1String("test.xml")), Loaded);
    QCOMPARE(contents(m_store), QString::fromLatin1("||simmsgprompt=E"));
}

void ConfigStoreTest::secondFileAddsToTheStore()
{
    m_host->write("test.xml", "<veltdoc><tab name='t'/></veltdoc>");
    QCOMPARE(m_store->LoadFile(QLatin1String("test.xml")), Loaded);
    QCOMPARE(m_store->LoadFile(QLatin1String("test.xml")), Loaded);
    QCOMPARE(contents(m_store), QString::fromLatin1("t::1{} t::1{}||"));
}

void ConfigStoreTest::hugeFile()
{
    QByteArray xml("<veltdoc><tab name='t'>");
    for (int row = 0; row < 100000; ++row)
        xml += "<item name='row " + QByteArray::number(row) + "' resourceID='IDS_R'/>";
    m_host->write("test.xml", xml + "</tab></veltdoc>");
    QCOMPARE(m_store->LoadFile(QLatin1String("test.xml")), Loaded);
    const QList<TabItem> &items = *m_store->GetTabInformation()->at(0).items;
    QCOMPARE(items.size(), 100000);
    QCOMPARE(items.last().name, QString::fromLatin1("row 99999"));
}

void ConfigStoreTest::deeplyNestedFile()
{
    const int depth = 20000;
    m_host->write("test.xml", "<veltdoc>" + QByteArray("<a>").repeated(depth) + "<tab name='t'/>" +
                                  QByteArray("</a>").repeated(depth) + "</veltdoc>");
    QCOMPARE(m_store->LoadFile(QLatin1String("test.xml")), Loaded);
    QCOMPARE(contents(m_store), QString::fromLatin1("t::1{}||"));
}

void ConfigStoreTest::countsReferences()
{
    m_log->takeLog();
    DiagnosticsConfigParse::DestroyInstance();
    DiagnosticsConfigParse::DestroyInstance(); // init() counted one
    const QString destroyed = lineOf("~DiagnosticsConfigParse", "called");
    QVERIFY(m_log->takeLog().contains(destroyed));
    DiagnosticsConfigParse::DestroyInstance();
    QCOMPARE(m_log->takeLog(), QStringList(lineOf("DestroyInstance", "called")));

    m_store = DiagnosticsConfigParse::GetInstance();
    QCOMPARE(DiagnosticsConfigParse::GetInstance(), m_store);
    DiagnosticsConfigParse::DestroyInstance();
    DiagnosticsConfigParse::DestroyInstance();
    QVERIFY(!m_log->takeLog().contains(destroyed));
    QVERIFY(m_store->GetTabInformation());
}

void ConfigStoreTest::releasedStoreHandsOutNull()
{
    m_host->write("test.xml", "<veltdoc><function/><tab name='t'/><item name='k' value='v'/>"
                              "<common/><simmsgprompt>S</simmsgprompt></veltdoc>");
    m_store->LoadFile(QLatin1String("test.xml"));
    m_store->ReleaseData();
    QVERIFY(!m_store->GetTabInformation());
    QVERIFY(!m_store->GetSettingInformation());
    QVERIFY(!m_store->GetDeviceCustomizationInformation());
    QCOMPARE(m_store->LoadFile(QLatin1String("test.xml")), Loaded); // into nothing, harmlessly
}

QTEST_MAIN(ConfigStoreTest)
#include "config_store.moc"
