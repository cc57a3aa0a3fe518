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
//   configuration XML | edit OLD -> NEW | write FILE TEXT | remove FILE    in the plug-in's folder
//   language NAME | text KEY=TEXT | codec NAME | home FOLDER
//   host STATE                            complete, without-container, without-plug-ins, strangers
//   asked KEY: COMMAND                    when the host is next asked for KEY, or a "plug-in"
//   modem NAME | set KEY=VALUE;... | unplug | plug | event CODE
//   fail FUNCTION[=CODE][, filled][, call N]    the N-th call alone
//   no-memory N                           for the N-th object from now
//   Init | ShowWindow | Notify CODE | OnDestroy | ReleaseData | drop-rows | saveToFile FILE
//   restart                               OnDestroy and the end of both singletons
//   delete-parent | delete-plug-in
//   open                                  Init and ShowWindow, which succeed
// The user
//   visit INDEX | press BUTTON | close | Esc | Enter
//   save [FILE] [while DIALOG: COMMAND]   no file cancels
//   swap                                  hides the shown window, shows the hidden
// What there is to see
//   windows | rows | changes | buttons | tab-order | clipped | caption ROW | heights ROW
//   property OBJECT NAME
//   question | box                        of an open dialog
//   file NAME | log [PATTERN] | references | cost ACTION      of docs/sdk-calls.md
//   get GETTER[, KEY=VALUE;...] | each GETTER, KEY: VALUE ... | value TAB, ROW | load FILE | xml
//   CONTENT traced                                from now on "get" tells log and calls losses
//   COMMAND                        Init or ShowWindow without memory for each of its objects

#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUILogic.h"
#include "DiagnosticsUIPlugin.h"
#include "PluginTest.h"

#include "ConfigSchema.h"
#include "HostCore.h"
#include "SdkControl.h"
#include "core/Change.h"
#include "core/CommonUtils.h"
#include "core/ExtendDialog.h"
#include "sdk/VeltDevice.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QThread>
#include <QTranslator>
#include <QtTest>
#if QT_VERSION < 0x060000
#include <QTextCodec>
#endif

#include <dlfcn.h>
#include <functional>
#include <limits>
#include <map>
#include <new>
#include <stdexcept>

using namespace TestSupport;

namespace {

typedef DiagnosticsUILogic Logic;
typedef DiagnosticsConfigParse Store;

QMap<QString, QString> hostTexts; ///< by resource key, in place of the host's
std::function<void(const QString &key)> hostIsAsked;
int frameType;
QString pinPresets;

int objects;      ///< asked for since "no-memory"
int firstMissing; ///< its number; 0 for none
int lastMissing;

bool hasMemory()
{
    ++objects;
    return objects < firstMissing || objects > lastMissing;
}

/// The function of a library that the test has put one of its own in front of.
template <typename Function>
Function *original(const char *symbol)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, symbol));
}

/// The getters of the query layer by their names.
const std::map<QString, std::function<QString(Logic *)>> getters = {
// clang-format off
#define GETTER(name) {#name, &Logic::name}
    GETTER(GetSoftwareVersion), GETTER(GetFirmwareVersion), GETTER(GetHardwareVersion),
    GETTER(GetIMEI), GETTER(GetSerialNumber), GETTER(GetApplicationPort), GETTER(GetDeviceName),
    GETTER(GetDeviceType), GETTER(GetEsn), GETTER(GetMeid), GETTER(GetPrlVersion),
    GETTER(GetVoltage), GETTER(GetMulticarrier), GETTER(GetNetworkName), GETTER(GetNetworkType),
    GETTER(getNetwork), GETTER(GetSelectionMode), GETTER(GetCsRegister), GETTER(GetPsRegister),
    GETTER(GetPsAttachment), GETTER(GetRSSI), GETTER(GetSignalStrength), GETTER(GetRSQUAL),
    GETTER(GetRSCP), GETTER(GetECIO), GETTER(GetECNO), GETTER(GetCellID), GETTER(GetLACCode),
    GETTER(GetSimStatus), GETTER(GetPinStatus), GETTER(GetIMSINumber), GETTER(GetICCID),
    GETTER(GetOwnNumber), GETTER(GetSMSC), GETTER(GetContactCountinSim),
    GETTER(GetContactCountinDevice), GETTER(GetIPAddress), GETTER(GetDNSServer), GETTER(GetAPN),
#undef GETTER
    // clang-format on
    {"IsPesn", [](Logic *logic) { return QString::number(logic->IsPesn()); }},
    {"GetMessageCount(1)", [](Logic *logic) { return logic->GetMessageCount(1); }},
    {"GetMessageCount(2)", [](Logic *logic) { return logic->GetMessageCount(2); }},
};

/// The host's container of plug-ins, or a poorer one.
struct Container : PluginContainer
{
    QObject *GetPlugin(const QString &classIdentifier, int pluginType) override
    {
        hostIsAsked("plug-in");
        return state == "strangers"          ? qApp
               : state == "without-plug-ins" ? nullptr
                                             : host->GetPlugin(classIdentifier, pluginType);
    }
    PluginContainer *host = nullptr;
    QString state;
};

/// Notes who asks the toolkit for a text: a resource key handed over as a literal would go there,
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

/// What unescape() takes for the text.
QString escape(const QString &text)
{
    QString escaped;
    for (int at = 0, end = 0; at < text.size(); at = end) {
        while (end < text.size() && text[end] == text[at])
            ++end;
        const QChar unit = text[at];
        if (unit == '\n')
            escaped += QString("\\n").repeated(end - at);
        else if (unit < ' ' || unit.isSurrogate())
            escaped += QString("\\u%1").arg(unit.unicode(), 4, 16, QChar('0')).repeated(end - at);
        else if (end - at < 16)
            escaped += text.mid(at, end - at);
        else
            escaped += QString("%1{%2}").arg(unit).arg(end - at);
    }
    return escaped;
}

} // namespace

// In front of the libraries' own.

QString Change::tr(const QString &key, const QString &context)
{
    static auto *const translate =
        original<QString(const QString &, const QString &)>("_ZN6Change2trERK7QStringS2_");
    hostIsAsked(key);
    return hostTexts.contains(key) ? hostTexts[key] : translate(key, context);
}

#define FRAME "_ZN12ExtendDialogC1EP7QWidget6QFlagsIN2Qt10WindowTypeEEi"
extern "C" void constructFrame(ExtendDialog *, QWidget *, int, int) __asm__(FRAME);
extern "C" void constructFrame(ExtendDialog *frame, QWidget *parent, int flags, int type)
{
    frameType = type;
    original<decltype(constructFrame)>(FRAME)(frame, parent, flags, type);
}

VELT_ERROR VELT_DevSrv_GetPinStatus(int32_t which, int32_t *status, char *pinAttempts,
                                    char *pukAttempts, char *pinEnabled)
{
    pinPresets =
        QString("%1 %2 %3 %4").arg(*status).arg(*pinAttempts).arg(*pukAttempts).arg(*pinEnabled);
    return original<decltype(VELT_DevSrv_GetPinStatus)>(__func__)(which, status, pinAttempts,
                                                                  pukAttempts, pinEnabled);
}

// Only the plug-in allocates in this way.
void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return hasMemory() ? ::operator new(size) : nullptr;
}

void *operator new[](std::size_t size, const std::nothrow_t &) noexcept
{
    return hasMemory() ? ::operator new[](size) : nullptr;
}

class ScriptTest : public QObject, PluginTest
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
    void say(const QString &text) { m_said << escape(text); }
    void say(int number) { say(QString::number(number)); }
    void say(const QStringList &lines)
    {
        for (const QString &line : lines)
            say(line);
    }
    static void compare(QStringList actual, QStringList expected);
    void act(const QString &line);
    void playLike(const QString &section);
    void edit(const QString &from, const QString &to);
    static void setCodec(const QString &name);
    void setHost(const QString &state);
    static void fail(const QStringList &how);
    static void loseMemory(int first, int last);
    void open();
    void restart();
    void press(const QString &name);
    void enter();
    void swap();
    void saveTo(const QString &name, QString meanwhile);
    void sayWindows();
    void sayButtons();
    void sayTabOrder();
    void sayCaption(const QString &row);
    void sayFile(const QString &name);
    void sayProperty(const QString &object, const QString &property);
    void sayQuestion();
    void sayBox();
    void sayHeights(const QString &row);
    static QString place(const QWidget *window);
    void sayChanges();
    void sayEach(const QString &getter, const QString &values);
    void sayTimes(const QStringList &lines);
    void sayLosses(const QString &command);
    QStringList takeLog();
    void sayAnswer(const QString &getter, const QString &values);
    void sayValue(const QString &tab, const QString &row);
    void sayStore(unsigned int result);
    void sayReferences();
    void sayCost(const QString &action);

    void write(const QString &name, const QByteArray &content)
    {
        m_host->write(qPrintable(name), content);
    }
    QList<QDialog *> windows() const
    {
        return m_parent ? m_parent->findChildren<QDialog *>(QString(), Qt::FindDirectChildrenOnly)
                        : QList<QDialog *>();
    }
    QDialog *window() const
    {
        for (QDialog *window : windows()) {
            if (window->isVisible())
                return window;
        }
        throw std::runtime_error("no window is shown");
    }
    /// Leaves the number of references as it was.
    template <typename Singleton>
    static Singleton *get(void (*giveBack)())
    {
        Singleton *const singleton = Singleton::GetInstance();
        giveBack();
        return singleton;
    }
    static Logic *logic() { return get<Logic>(Logic::Destroy); }
    static Store *store() { return get<Store>(Store::DestroyInstance); }

    std::map<QString, std::function<void(const QString &)>> m_commands;
    QMap<QString, QStringList> m_sections; ///< by "FILE: NAME"
    Container m_container;
    TranslationRecorder m_recorder;
    QStringList m_said;  ///< what followed from a command
    QStringList m_calls; ///< of the SDK since the last "cost"
    const QDir m_home = QDir::home();
    QString m_asked;    ///< "KEY: COMMAND"
    QStringList m_rows; ///< told last
    bool m_tellsCalls = false;
    bool m_traced = false;
};

void ScriptTest::init()
{
    setUp();
    write("host.ini", "[version]\nversion=2.1\n");
    HostCore::setSettingsFile(path("host.ini"));
    m_container.host = Startup::GetPluginContainer();
    m_container.state.clear();
    HostCore::setPluginContainer(&m_container);
    m_calls.clear();
    m_rows.clear();
    m_tellsCalls = m_traced = false;
    firstMissing = lastMissing = 0;
    hostTexts.clear();
    hostIsAsked = [this](const QString &key) {
        if (m_asked.startsWith(key + ": "))
            act(std::exchange(m_asked, QString()).section(": ", 1));
    };
    m_asked.clear();
    m_recorder.contexts.clear();
    QCoreApplication::installTranslator(&m_recorder);
}

void ScriptTest::cleanup()
{
    QCoreApplication::removeTranslator(&m_recorder);
    qputenv("HOME", m_home.path().toUtf8());
    m_commands["codec"]("UTF-8");
    qApp->setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(tearDown(), QStringList());
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
        m_said.clear();
        try {
            act(line.section(" => ", 0, 0));
        } catch (const std::runtime_error &problem) {
            say(problem.what());
        }
        SdkControl::waitForEvents(10000);
        settle();
        const QStringList calls = takeCalls();
        m_calls += calls;
        if (m_tellsCalls)
            m_said += calls;
        played << line.section(" => ", 0, 0);
        if (line.contains(" => ")) {
            const bool inOne = !lines.value(at + 1).startsWith(' ');
            const QStringList behind = m_said.mid(0, inOne ? -1 : 1);
            played.last() += " => " + behind.join(" | ");
            m_said = m_said.mid(behind.size());
        }
        played += m_said.replaceInStrings(QRegularExpression("^"), "    ");
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

void ScriptTest::initMain()
{
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "XXX-5:30");
}

void ScriptTest::initTestCase()
{
    HostCore::applyLook(*qApp);
    typedef const QString &A;
    // clang-format off
    m_commands = {
        {"like", [this](A a) { playLike(a); }},
        {"configuration", [this](A a) { write("DiagnosisConfig.xml", a.toUtf8()); }},
        {"edit", [this](A a) { edit(a.section(" -> ", 0, 0), a.section(" -> ", 1)); }},
        {"write", [this](A a) { write(a.section(' ', 0, 0), a.section(' ', 1).toUtf8()); }},
        {"remove", [this](A a) { QFile::remove(path(a)); }},
        {"language", [](A a) { setLanguage(qPrintable(a)); }},
        {"text", [](A a) { hostTexts[a.section('=', 0, 0)] = a.section('=', 1); }},
        {"codec", [](A a) { setCodec(a); }},
        {"home", [this](A a) { qputenv("HOME", path(a).toUtf8()); }},
        {"host", [this](A a) { setHost(a); }},
        {"asked", [this](A a) { m_asked = a; }},
        {"modem", [](A a) { attachModem(qPrintable(a)); }},
        {"set", [](A a) { setValues(a); }},
        {"fail", [](A a) { fail(a.split(", ")); }},
        {"no-memory", [](A a) { loseMemory(a.toInt(), a.toInt()); }},
        {"unplug", [](A) { SdkControl::unplug(); }},
        {"plug", [](A) { SdkControl::plug(); }},
        {"event", [this](A a) { say(Logic::OnDevEvents(a.toInt(), nullptr)); }},
        {"calls", [this](A) { m_tellsCalls = true; }},
        {"traced", [this](A) { m_traced = true; }},

        {"Init", [this](A) { say(m_plugin->Init()); }},
        {"ShowWindow", [this](A) { say(show()); }},
        {"open", [this](A) { open(); }},
        {"Notify", [this](A a) { QCOMPARE(m_plugin->Notify(a.toUInt(), 4100, 4100), 0); }},
        {"OnDestroy", [this](A) { m_plugin->OnDestroy(); }},
        {"ReleaseData", [](A) { store()->ReleaseData(); }},
        {"drop-rows", [](A) { delete std::exchange(store()->GetTabInformation()->first().items, nullptr); }},
        {"restart", [this](A) { restart(); }},
        {"saveToFile", [this](A a) { say(m_plugin->saveToFile(path(a))); }},
        {"delete-parent", [this](A) { delete m_parent; }},
        {"delete-plug-in", [this](A) { delete m_plugin; }},
        {"losses", [this](A a) { sayLosses(a); }},

        {"visit", [this](A a) { window()->findChild<QTabWidget *>()->setCurrentIndex(a.toInt()); }},
        {"press", [this](A a) { press(a); }},
        {"close", [this](A) { window()->close(); }},
        {"Esc", [this](A) { QTest::keyClick(window(), Qt::Key_Escape); }},
        {"Enter", [this](A) { enter(); }},
        {"swap", [this](A) { swap(); }},
        {"save", [this](A a) { saveTo(a.section("while ", 0, 0), a.section("while ", 1)); }},

        {"windows", [this](A) { sayWindows(); }},
        {"rows", [this](A) { say(m_rows = flatten(window())); }},
        {"changes", [this](A) { sayChanges(); }},
        {"buttons", [this](A) { sayButtons(); }},
        {"clipped", [this](A) { say(clipped(window())); }},
        {"heights", [this](A a) { sayHeights(a); }},
        {"property", [this](A a) { sayProperty(a.section(" ", 0, -2), a.section(" ", -1)); }},
        {"question", [this](A) { sayQuestion(); }},
        {"box", [this](A) { sayBox(); }},
        {"tab-order", [this](A) { sayTabOrder(); }},
        {"caption", [this](A a) { sayCaption(a); }},
        {"file", [this](A a) { sayFile(a); }},
        {"log", [this](A a) { say(takeLog().filter(QRegularExpression(a))); }},
        {"references", [this](A) { sayReferences(); }},
        {"cost", [this](A a) { sayCost(a); }},
        {"get", [this](A a) { sayAnswer(a.section(", ", 0, 0), a.section(", ", 1)); }},
        {"each", [this](A a) { sayEach(a.section(", ", 0, 0), a.section(", ", 1)); }},
        {"presets", [this](A) { say(pinPresets); }},
        {"value", [this](A a) { sayValue(a.section(", ", 0, 0), a.section(", ", 1)); }},
        {"load", [this](A a) { sayStore(store()->LoadFile(a)); }},
        {"xml", [this](A a) { release(); write("test.xml", a.toLatin1()); act("load test.xml"); }},
    };
    // clang-format on
}

void ScriptTest::act(const QString &line)
{
    const auto command = m_commands.find(line.section(' ', 0, 0));
    if (command == m_commands.end())
        return say("no such command");
    command->second(unescape(line.section(' ', 1)));
}

void ScriptTest::playLike(const QString &section)
{
    const QString file = QString(QTest::currentDataTag()).section(": ", 0, 0);
    for (const QString &line : m_sections.value(file + ": " + section, {"no such section"})) {
        if (!line.startsWith(' '))
            act(line.section(" => ", 0, 0));
        settle();
    }
    m_said = m_said.filter("no such");
    takeCalls();
}

void ScriptTest::edit(const QString &from, const QString &to)
{
    const QString old = contentOf(path("DiagnosisConfig.xml"));
    if (!old.contains(from))
        say("no such text");
    write("DiagnosisConfig.xml", QString(old).replace(from, to).toUtf8());
}

/// Of Qt 5; Qt 6 writes and reads UTF-8.
void ScriptTest::setCodec(const QString &name)
{
#if QT_VERSION < 0x060000
    QTextCodec::setCodecForLocale(QTextCodec::codecForName(qPrintable(name)));
#else
    Q_UNUSED(name)
#endif
}

void ScriptTest::setHost(const QString &state)
{
    m_container.state = state;
    HostCore::setPluginContainer(state == "without-container" ? nullptr : &m_container);
}

void ScriptTest::fail(const QStringList &how)
{
    const QString code = how[0].section('=', 1);
    SdkControl::setResult(
        how[0].section('=', 0, 0).toStdString(), code.isEmpty() ? 1 : code.toInt(),
        how.contains("filled") ? SdkControl::FillOutputs : SdkControl::KeepOutputs,
        how.filter("call ").value(0).mid(5).toInt());
}

/// The numbers of the objects that there is no memory for, counted from now.
void ScriptTest::loseMemory(int first, int last)
{
    objects = 0;
    firstMissing = first;
    lastMissing = last;
}

void ScriptTest::open()
{
    QCOMPARE(m_plugin->Init(), 1);
    takeCalls();
    QCOMPARE(show(), 1);
}

/// Ends all, both singletons included.
void ScriptTest::restart()
{
    m_plugin->OnDestroy();
    qDeleteAll(windows());
    release();
}

void ScriptTest::press(const QString &name)
{
    QPushButton *const found = button(name);
    if (found)
        found->click();
    else
        say("no such button");
}

/// Presses Enter, and tells of a file dialog that this opens.
void ScriptTest::enter()
{
    QTimer answers;
    connect(&answers, &QTimer::timeout, [this] {
        if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
            say("file dialog");
            dialog->reject();
        }
    });
    answers.start(1);
    QTest::keyClick(window()->focusWidget(), Qt::Key_Enter);
}

/// Hides the windows that are shown, and shows the hidden ones.
void ScriptTest::swap()
{
    for (QDialog *window : windows())
        window->setVisible(!window->isVisible());
}

/// \a meanwhile is "file dialog: COMMAND" or "message box: COMMAND", empty for nothing.
void ScriptTest::saveTo(const QString &name, QString meanwhile)
{
    const QString file = name.isEmpty() ? QString() : path(name.trimmed());
    const auto act = [&](const char *dialog) {
        const bool now = meanwhile.startsWith(dialog);
        if (now)
            this->act(std::exchange(meanwhile, QString()).section(": ", 1));
        return now;
    };
    say(save(button("Save"), file, act));
    for (const QDialog *window : windows()) {
        if (window->findChild<QDialog *>())
            say("a dialog is left");
    }
}

void ScriptTest::sayWindows()
{
    for (const QDialog *window : windows()) {
        QStringList words{window->isVisible() ? "shown" : "hidden",
                          '"' + window->windowTitle() + '"'};
        words << QString("type %1").arg(frameType)
              << QString("modality %1").arg(window->windowModality());
        words << (window->minimumSize() == window->maximumSize() ? "fixed" : "resizable");
        words << place(window);
        words << "focus on " + (window->focusWidget()
                                    ? window->focusWidget()->objectName().section('_', 1)
                                    : "nothing");
        if (window->testAttribute(Qt::WA_DeleteOnClose))
            words << "deleted on close";
        say(words.join(", "));
    }
}

/// Where a window stands on its parent.
QString ScriptTest::place(const QWidget *window)
{
    const QPoint away = window->frameGeometry().center() -
                        window->parentWidget()->window()->frameGeometry().center();
    return away.manhattanLength() <= 2 ? "in the middle"
                                       : QString("%1, %2 off").arg(away.x()).arg(away.y());
}

/// How the rows differ from those that "rows" told.
void ScriptTest::sayChanges()
{
    const QStringList rows = flatten(window());
    for (const QString &row : m_rows) {
        if (!rows.contains(row))
            say("- " + row);
    }
    for (const QString &row : rows) {
        if (!m_rows.contains(row))
            say("+ " + row);
    }
}

/// The buttons below the tabs or the frame, and the gaps in pixels between them and behind
/// them.
void ScriptTest::sayButtons()
{
    const auto *above =
        window()->findChildren<QWidget *>(QRegularExpression("_(tabWidget|frame)")).first();
    QMap<int, QPushButton *> buttons;
    for (QPushButton *button : window()->findChildren<QPushButton *>())
        buttons[button->mapTo(window(), QPoint()).x()] = button;
    QStringList row;
    int end = -1;
    for (const QPushButton *button : buttons) {
        const QRect place(button->mapTo(window(), QPoint()), button->size());
        if (place.top() <= above->mapTo(window(), above->rect().bottomLeft()).y())
            row << "not below";
        if (end >= 0)
            row << QString::number(place.left() - end);
        row << button->text();
        end = place.right() + 1;
    }
    say(row.join(' ') + ' ' + QString::number(window()->width() - end));
}

/// What the Tab key goes through, beginning with the focus.
void ScriptTest::sayTabOrder()
{
    QStringList order;
    const QWidget *widget = window()->focusWidget();
    do {
        if (widget->isVisible() && widget->focusPolicy() & Qt::TabFocus)
            order.append(widget->objectName().section('_', 1));
        widget = widget->nextInFocusChain();
    } while (widget != window()->focusWidget());
    say(order.join(", "));
}

/// What assistive technology is told the value of a row is of, and whether the caption is drawn
/// otherwise than its text stands: an ampersand can be taken for the mark of a shortcut.
void ScriptTest::sayCaption(const QString &row)
{
    auto *value = window()->findChild<QLabel *>("DiagnosticsUIPlugin_label" + row + "Value");
    auto *caption = window()->findChild<QLabel *>("DiagnosticsUIPlugin_label" + row);
    QLabel plain(caption->text(), caption->parentWidget());
    plain.setAlignment(caption->alignment());
    plain.resize(caption->size());
    const auto draw = [](QWidget *label) {
        QImage image(label->size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        label->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    };
    if (draw(caption) != draw(&plain))
        say("drawn otherwise than " + caption->text());
    for (const auto &relation :
         QAccessible::queryAccessibleInterface(value)->relations(QAccessible::Label))
        say(relation.first->text(QAccessible::Name) + ": " + value->text());
}

/// Each line behind a '|', so that none looks empty.
void ScriptTest::sayFile(const QString &name)
{
    for (const QString &line : QString(contentOf(path(name))).split('\n'))
        say('|' + line);
}

void ScriptTest::sayProperty(const QString &object, const QString &property)
{
    const QObject *found = object == "window" ? window()
                           : object == "form"
                               ? window()->findChild<QFormLayout *>()
                               : window()->findChild<QObject *>("DiagnosticsUIPlugin_" + object);
    const QVariant value = found ? found->property(qPrintable(property)) : QVariant();
    const QSize size = value.toSize();
    say(size.isValid() ? QString("%1 x %2").arg(size.width()).arg(size.height())
                       : QString::number(value.toInt()));
}

/// How high the labels of a row have to be, where that is not the height of the caption's text.
void ScriptTest::sayHeights(const QString &row)
{
    const auto *caption = window()->findChild<QLabel *>("DiagnosticsUIPlugin_label" + row);
    const auto *value = window()->findChild<QLabel *>(caption->objectName() + "Value");
    int width = 0;
    int height = 0;
    CommonUtils::GetApplicationStringHeightAndWidth(caption->text(), width, height);
    for (const int other :
         {caption->minimumHeight(), value->minimumHeight(), value->maximumHeight()})
        if (other != height)
            say(other);
}

/// What an open file dialog asks.
void ScriptTest::sayQuestion()
{
    const auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    QString text;
    QDebug(&text) << dialog->nameFilters().join(", ")
                  << m_home.relativeFilePath(dialog->directory().path())
                  << dialog->findChild<QLineEdit *>()->text() << dialog->acceptMode()
                  << dialog->fileMode() << dialog->options() << dialog->defaultSuffix()
                  << dialog->supportedSchemes().join(", ");
    say(text.trimmed());
}

/// Icon, place, buttons and flag of an open message box.
void ScriptTest::sayBox()
{
    const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    say(QString("icon %1, %2, modality %3, %4, \"%5\"")
            .arg(box->icon())
            .arg(place(box))
            .arg(box->windowModality())
            .arg(box->windowFlags() & Qt::WindowCloseButtonHint ? "with a close button"
                                                                : "not to close")
            .arg(box->buttons().value(0)->text()));
}

/// Without the constant fields, and without the path of the plug-in's folder.
QStringList ScriptTest::takeLog()
{
    return m_log->takeLog()
        .replaceInStrings("TIME: ../../src/DiagnosisPlugin/Diagnostics", "")
        .replaceInStrings(path(""), "");
}

/// Where it is traced: the calls, and the log without its first line and without the getter's
/// name.
void ScriptTest::sayAnswer(const QString &getter, const QString &values)
{
    setValues(values);
    const auto found = getters.find(getter);
    if (found == getters.end())
        return say("no such getter");
    if (m_traced) {
        m_log->takeLog();
        takeCalls();
    }
    QString answer = '"' + found->second(logic()) + '"';
    if (!m_traced)
        return say(answer);
    const QString function = "UILogic: " + getter.section('(', 0, 0) + ": ";
    QStringList log = takeLog();
    if (log.value(0) == function + "called")
        log.removeFirst();
    else
        log.prepend("not called");
    const QStringList calls = takeCalls();
    say(calls.isEmpty() ? answer : answer + " of " + calls.join(", "));
    say(log.replaceInStrings(function, ""));
}

void ScriptTest::sayEach(const QString &getter, const QString &values)
{
    for (const QString &value : values.section(": ", 1).split(' ')) {
        sayAnswer(getter, values.section(": ", 0, 0) + '=' + value);
        m_said.last().prepend(value + ' ');
    }
}

void ScriptTest::sayValue(const QString &tab, const QString &row)
{
    QString value;
    m_plugin->getValueLabelVal(tab, row, &value);
    say(value);
}

/// The result of a loading, and what the store holds after it.
void ScriptTest::sayStore(unsigned int result)
{
    QStringList tabs;
    for (const TabDetails &tab :
         store()->GetTabInformation() ? *store()->GetTabInformation() : QList<TabDetails>()) {
        QStringList rows;
        for (const TabItem &row : *tab.items)
            rows << QString("%1:%2:%3").arg(row.name, row.resourceID).arg(row.show);
        tabs << QString("%1:%2:%3{%4}")
                    .arg(tab.name, tab.resourceID)
                    .arg(tab.show)
                    .arg(rows.join(','));
    }
    const QStringList errors = takeLog().filter("rror");
    say(int(result));
    say(store()->GetTabInformation() ? tabs.join(' ') : "none");
    for (const auto *hash :
         {store()->GetSettingInformation(), store()->GetDeviceCustomizationInformation()}) {
        QStringList pairs;
        for (const QString &key : hash ? hash->keys() : QStringList())
            pairs << key + '=' + hash->value(key);
        pairs.sort();
        say(hash ? pairs.join(',') : "none");
    }
    say(errors);
}

/// Takes two references to query layer and store, and then says how many can be given back.
/// None are left, so the plug-in must have given back its own.
void ScriptTest::sayReferences()
{
    Logic::GetInstance();
    int count = 0;
    for (const QPointer<Logic> ending(Logic::GetInstance()); ending; ++count)
        Logic::Destroy();
    say("query layer " + QString::number(count));
    Store::GetInstance();
    Store::GetInstance();
    m_log->takeLog();
    for (count = 0; m_log->takeLog().filter("~DiagnosticsConfigParse").isEmpty() && count < 9;
         ++count)
        Store::DestroyInstance();
    say("store " + QString::number(count));
}

/// Lines that follow each other, once each.
void ScriptTest::sayTimes(const QStringList &lines)
{
    for (int at = 0, end = 0; at < lines.size(); at = end) {
        while (end < lines.size() && lines[end] == lines[at])
            ++end;
        say(QString("%1 x %2").arg(end - at).arg(lines[at]));
    }
}

/// What comes of a command that cannot have one object, and of one that can have none from it
/// on: the result and the first line of the log that tells of it; and whether it works
/// afterwards.
void ScriptTest::sayLosses(const QString &command)
{
    const QRegularExpression trouble("ailed|null|NULL|problem");
    QStringList all;
    for (int number = 1;; ++number) {
        QString outcomes[2];
        for (const bool more : {false, true}) {
            if (command == "ShowWindow")
                m_plugin->Init();
            m_log->takeLog();
            loseMemory(number, more ? std::numeric_limits<int>::max() : number);
            const int result = command == "Init" ? m_plugin->Init() : show();
            const int asked = objects;
            loseMemory(0, 0);
            if (asked < number)
                return sayTimes(all);
            outcomes[more] = QString::number(result) + ' ' + takeLog().filter(trouble).value(0);
            if (m_plugin->Init() != 1 || show() != 1)
                outcomes[more] += ", nor later";
            else
                press("Refresh");
            restart();
        }
        all << (outcomes[0] == outcomes[1] ? outcomes[0]
                                           : outcomes[0] + "; and more: " + outcomes[1]);
    }
}

/// The calls since the last time as a row of docs/sdk-calls.md, if it lacks that.
void ScriptTest::sayCost(const QString &action)
{
    QStringList names;
    for (const QString &call : m_calls)
        names << call.section('(', 0, 0);
    const int calls = names.size();
    QStringList functions = names;
    functions.removeDuplicates();
    for (QString &function : functions) {
        const int count = names.count(function);
        function = '`' + function + '`' + (count > 1 ? QString(" (%1)").arg(count) : QString());
    }
    const QString row =
        QString("| %1 | %2 | %3 |").arg(action).arg(calls).arg(functions.join(", "));
    const QStringList documented =
        QString(contentOf(DIAG_SOURCE_DIR "/docs/sdk-calls.md")).split('\n');
    if (!documented.contains(row))
        say(row);
    m_calls.clear();
}

/// More than anyone will configure.
void ScriptTest::large()
{
    QByteArray rows;
    for (int row = 0; row < 1000; ++row)
        rows += "<item name='row " + QByteArray::number(row) + "' resourceID='IDS_DIAGNOSE_APN'/>";
    write("DiagnosisConfig.xml",
          "<veltdoc><tab name='Device' resourceID='IDS_TAB_DEVICE'>" + rows + "</tab></veltdoc>");
    open();
    QCOMPARE(flatten(window()).size(), 1001);
    QCOMPARE(flatten(window()).last(), QString("APN = Unknown"));

    const int depth = 20000;
    write("test.xml", "<veltdoc><tab>" + rows.repeated(100) + "</tab>" +
                          QByteArray("<a>").repeated(depth) + "<tab name='deep'/>" +
                          QByteArray("</a>").repeated(depth) + "</veltdoc>");
    QCOMPARE(store()->LoadFile("test.xml"), 0u);
    QCOMPARE(store()->GetTabInformation()->at(1).items->size(), 100000);
    QCOMPARE(store()->GetTabInformation()->at(1).items->last().name, QString("row 999"));
    QCOMPARE(store()->GetTabInformation()->last().name, QString("deep"));
}

/// Local time, to the millisecond.
void ScriptTest::logTime()
{
    static QString line;
    for (int round = 0; round < 30; ++round) {
        QThread::msleep(1);
        const QTime before = QTime::currentTime();
        const auto handler = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &message) { line = message; });
        m_plugin->Notify(0, 0, 0);
        qInstallMessageHandler(handler);
        const QTime logged = QTime::fromString(line.section(": ", 0, 0), "hh:mm:ss:zzz");
        QVERIFY2(before <= logged && logged <= QTime::currentTime(), qPrintable(line));
    }
}

/// Each row that the schema of the configuration lists asks the query layer, and the shipped
/// configuration has no others.
void ScriptTest::schema()
{
    QCOMPARE(m_plugin->Init(), 1);
    const QMap<QString, QStringList> rowsOfTabs =
        ConfigSchema::rowsOfTabs(contentOf(DIAG_SOURCE_DIR "/config/DiagnosisConfig.xsd"));
    for (const QString &tab : rowsOfTabs.keys()) {
        for (const QString &row : rowsOfTabs[tab]) {
            takeLog();
            sayValue(tab, row);
            QVERIFY2(!takeLog().filter("UILogic: ").isEmpty(), qPrintable(tab + ": " + row));
        }
    }
    for (const TabDetails &tab : *store()->GetTabInformation()) {
        for (const TabItem &row : *tab.items)
            QVERIFY2(rowsOfTabs[tab.name].contains(row.name), qPrintable(row.name));
    }
}

QTEST_MAIN(ScriptTest)
#include "scripts.moc"
