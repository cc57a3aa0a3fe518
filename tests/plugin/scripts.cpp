// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The plug-in in the hands of a host and a user: plays the sections of the *.actions files.
//
// A line is a command, and the indented lines behind it are what follows from it. The first of
// them, or all, separated by " | ", may follow in the same line, behind "=>". The SDK's calls come
// last, where the section has "calls". In arguments and outcomes \n is the end of a line, \xE9 a
// byte of Latin-1, \uD800 a UTF-16 unit and x{24} what 24 times x would be. Log lines stand without
// their constant fields: "UILogic: GetIMEI: called".
//
// The host and the modem
//   like SECTION                          plays another section of the file, unchecked
//   configuration XML or @FILE | edit OLD -> NEW     of the plug-in's configuration
//   write FILE TEXT | remove FILE                    in the plug-in's folder
//   language NAME | text KEY=TEXT | codec NAME | home FOLDER
//   host STATE                            complete, without-container, without-plug-ins, strangers
//   asked KEY: COMMAND                    when the host is next asked for KEY, or a "plug-in"
//   modem NAME | set KEY=VALUE;... | unplug | plug | event CODE
//   fail FUNCTION[=CODE][, filled][, call N]         the N-th call alone
//   no-memory N                           for the N-th object from now
//   Init | ShowWindow | Notify CODE | OnDestroy | ReleaseData
//   drop-rows | saveToFile FILE
//   restart                               OnDestroy and the end of both singletons
//   delete-parent | delete-plug-in
//   open                                  Init and ShowWindow, which succeed
// The user
//   visit INDEX | tab-change INDEX | press BUTTON | close | Esc | Tab | Enter
//   save [FILE] [while DIALOG: COMMAND]   no file cancels
//   swap                                  hides the shown window, shows the hidden
// What there is to see
//   windows | rows [PATTERN] | changes | buttons | tab-order | clipped | caption ROW | heights ROW
//   property OBJECT NAME
//   question | box                        of the open file dialog, or the last message box
//   file NAME | log [PATTERN] | references
//   get GETTER[, KEY=VALUE;...] | each GETTER, KEY: VALUE ...
//   traced                                from now on "get" tells log and calls
//   presets                               of the outputs of the last call for the PIN
//   value TAB, ROW | load FILE | xml CONTENT
//   losses COMMAND                        Init or ShowWindow without memory for its objects in turn

#include "Player.h"

#include "config/ConfigSchema.h"

using namespace TestSupport;

namespace {

/// Notes who asks Qt for a text: a resource key handed over as a literal would go there,
/// with the class as its context, and not to the host.
class TranslationRecorder : public QTranslator
{
public:
    QString translate(const char *context, const char *, const char *, int) const override
    {
        contexts << context;
        return QString();
    }
    bool isEmpty() const override { return false; }
    mutable QStringList contexts;
};

} // namespace

class ScriptTest : public QObject
{
    Q_OBJECT

public:
    static void initMain();

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void play_data();
    void play();
    void large();
    void logTime();
    void schema();

private:
    static void compare(QStringList actual, QStringList expected);

    QMap<QString, QStringList> m_sections; ///< by "FILE: NAME"
    std::unique_ptr<Player> m_player;
    TranslationRecorder m_recorder;
};

/// Nothing depends on what the tests are started with.
void ScriptTest::initMain()
{
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "XXX-5:30");
}

/// A count that is wrong shows with the first instances of all.
void ScriptTest::initTestCase()
{
    HostCore::applyLook(*qApp);
    Player first(m_sections);
    QCOMPARE(first.play("references"), QStringList({"query layer 3", "store 1"}));
    QCOMPARE(first.end(), QStringList());
}

void ScriptTest::init()
{
    m_player.reset(new Player(m_sections));
    m_recorder.contexts.clear();
    QCoreApplication::installTranslator(&m_recorder);
}

void ScriptTest::cleanup()
{
    QCoreApplication::removeTranslator(&m_recorder);
    QCOMPARE(m_player->end(), QStringList());
    m_player.reset();
    QCOMPARE(m_recorder.contexts.filter("Diagnostics"), QStringList());
}

void ScriptTest::play_data()
{
    QTest::addColumn<QStringList>("lines");
    for (const QString &file : QDir(TEST_SOURCE_DIR).entryList({"*.actions"})) {
        const QString script = contentOf(TEST_SOURCE_DIR "/" + file);
        for (const QString &section : script.split("\n[").mid(1)) {
            QStringList lines = section.split(QRegularExpression("\n(#.*)?"), Qt::SkipEmptyParts);
            const QString name = file.section('.', 0, 0) + ": " + lines.takeFirst().chopped(1);
            QTest::newRow(qPrintable(name)) << (m_sections[name] = lines);
        }
    }
}

void ScriptTest::play()
{
    QFETCH(QStringList, lines);
    QStringList played;
    for (int at = 0; at < lines.size(); ++at) {
        const QString &line = lines[at];
        if (line.startsWith(' '))
            continue;
        QStringList said = m_player->play(line.section(" => ", 0, 0));
        played << line.section(" => ", 0, 0);
        if (line.contains(" => ")) {
            const bool inOne = !lines.value(at + 1).startsWith(' ');
            const QStringList behind = said.mid(0, inOne ? -1 : 1);
            played.last() += " => " + behind.join(" | ");
            said = said.mid(behind.size());
        }
        played += said.replaceInStrings(QRegularExpression("^"), "    ");
    }
    compare(played, lines);
}

/// Shows both sides of what differs.
void ScriptTest::compare(QStringList actual, QStringList expected)
{
    QString last;
    while (!actual.isEmpty() && !expected.isEmpty() && actual.first() == expected.first()) {
        last = actual.takeFirst();
        expected.removeFirst();
    }
    while (!actual.isEmpty() && !expected.isEmpty() && actual.last() == expected.last()) {
        actual.removeLast();
        expected.removeLast();
    }
    const QString sides = QString("behind \"%1\"\n  played:\n%2\n  the script:\n%3")
                              .arg(last, actual.join('\n'), expected.join('\n'));
    QVERIFY2(actual == expected, qPrintable(sides));
}

/// More than anyone will configure.
void ScriptTest::large()
{
    QString rows;
    for (int row = 0; row < 1000; ++row)
        rows += QString("<item name='row %1' resourceID='IDS_DIAGNOSE_APN'/>").arg(row);
    m_player->play("configuration <veltdoc><tab name='Device'>" + rows + "</tab></veltdoc>");
    m_player->play("open");
    const QStringList shown = m_player->play("rows");
    QCOMPARE(shown.size(), 1001);
    QCOMPARE(shown.last(), QString("APN = Unknown"));

    const int depth = 20000;
    const QStringList store = m_player->play("xml <veltdoc><tab>" + rows.repeated(10) + "</tab>" +
                                             QString("<a>").repeated(depth) + "<tab name='deep'/>" +
                                             QString("</a>").repeated(depth) + "</veltdoc>");
    QCOMPARE(store.value(0), QString("0"));
    QCOMPARE(store.value(1).count("row 999:IDS_DIAGNOSE_APN:1"), 10);
    QVERIFY(store.value(1).endsWith("} deep::1{}"));
}

/// Local time, to the millisecond.
void ScriptTest::logTime()
{
    static QString line;
    const auto handler = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &message) { line = message; });
    for (int round = 0; round < 30; ++round) {
        QThread::msleep(1);
        const QTime before = QTime::currentTime().addMSecs(-1); // newer versions of Qt round
        m_player->play("Notify 0");
        const QTime logged = QTime::fromString(line.section(": ", 0, 0), "hh:mm:ss:zzz");
        QVERIFY2(before <= logged && logged <= QTime::currentTime(), qPrintable(line));
    }
    qInstallMessageHandler(handler);
}

/// Each row that the schema of the configuration lists asks the query layer, and the shipped
/// configuration has no others.
void ScriptTest::schema()
{
    m_player->play("Init");
    const QMap<QString, QStringList> rowsOfTabs =
        ConfigSchema::rowsOfTabs(contentOf(DIAG_SOURCE_DIR "/config/DiagnosisConfig.xsd"));
    for (const QString &tab : rowsOfTabs.keys()) {
        for (const QString &row : rowsOfTabs[tab]) {
            m_player->play("log");
            m_player->play("value " + tab + ", " + row);
            QVERIFY2(!m_player->play("log UILogic: ").isEmpty(), qPrintable(tab + ": " + row));
        }
    }
    for (const TabDetails &tab : *Store::GetInstance()->GetTabInformation()) {
        for (const TabItem &row : *tab.items)
            QVERIFY2(rowsOfTabs[tab.name].contains(row.name), qPrintable(row.name));
    }
}

QTEST_MAIN(ScriptTest)
#include "scripts.moc"
