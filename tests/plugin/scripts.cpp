// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The plug-in in the hands of a host and a user: plays the sections of the *.actions files.
//
// A line is a command, and the indented lines behind it are what follows from it; where that is
// short, it may follow in the same line, behind "=>" and separated by " | ". Last come the SDK
// calls, unless the script is "quiet". In arguments and outcomes \n is the end of a line, \xE9 a
// byte of Latin-1, \uD800 a UTF-16 unit and x{24} what 24 times x would be.
//
// The host and the modem
//   configuration XML | write FILE TEXT | remove FILE      in the plug-in's folder
//   language NAME | text KEY=TEXT | host STATE             see setHost()
//   home FOLDER                                            the user's, from the plug-in's
//   asked KEY: COMMAND                                     when the host is next asked for KEY
//   modem NAME | set KEY=VALUE;... | fail FUNCTION[=CODE [filled]] | unplug | plug | event CODE
//   Init | ShowWindow | Notify CODE | OnDestroy | ReleaseData | drop-rows
//   delete-parent | delete-plug-in
//   open                                                   Init and ShowWindow, which succeed
// The user
//   visit INDEX | press BUTTON | close | Esc | Enter
//   save [FILE] [while DIALOG: COMMAND]                    no file cancels
//   swap                                                   hides the shown window, shows the hidden
// What there is to see
//   windows | rows | buttons | tab-order | clipped | caption ROW | property OBJECT NAME | question
//   file NAME | log [PART] | references | cost ACTION      of docs/sdk-calls.md
//   get GETTER[, KEY=VALUE;...] | value TAB, ROW | load FILE | xml CONTENT

#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUILogic.h"
#include "DiagnosticsUIPlugin.h"
#include "PluginTest.h"

#include "HostCore.h"
#include "SdkControl.h"
#include "core/Change.h"
#include "interfaces/IDialupUIService.h"
#include "interfaces/INetConnectSetting.h"
#include "interfaces/IStatusBarUI.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTranslator>
#include <QtTest>

#include <dlfcn.h>
#include <functional>
#include <map>
#include <stdexcept>

using namespace TestSupport;

namespace {

typedef DiagnosticsUILogic Logic;
typedef DiagnosticsConfigParse Store;

QMap<QString, QString> hostTexts; ///< by resource key, in place of the host's
std::function<void(const QString &key)> hostIsAsked;

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

/// The plug-ins that ours asks, in one object.
class HostPlugins : public QObject,
                    public IStatusBarUI,
                    public IDialupUIService,
                    public INetConnectSetting
{
    Q_OBJECT
    Q_INTERFACES(IStatusBarUI IDialupUIService INetConnectSetting)

public:
    int result = 0;
    QMap<QString, QString> values;

    int IGetServiceName(QString &name) override { return give("name", name); }
    int IGetNetworkType(QString &type) override { return give("type", type); }
    int IGetProfileName(QString &name) override { return give("profile", name); }
    int IGetProfileSettings(QString profile, NetProfileSettings *settings) override
    {
        settings->dialNumber = "*99#";
        settings->apn = "apn of " + profile;
        settings->apnMode = "static";
        return result;
    }

private:
    int give(const char *key, QString &text) const
    {
        hostIsAsked(key);
        text = values[key];
        return result;
    }
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

template <typename Object>
void clear(Object *&object)
{
    delete object;
    object = nullptr;
}

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

// In front of libcore's.
QString Change::tr(const QString &key, const QString &context)
{
    static const auto translate = reinterpret_cast<QString (*)(const QString &, const QString &)>(
        dlsym(RTLD_NEXT, "_ZN6Change2trERK7QStringS2_"));
    hostIsAsked(key);
    return hostTexts.contains(key) ? hostTexts[key] : translate(key, context);
}

class ScriptTest : public PluginTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void play_data();
    void play();
    void large();

private:
    void say(const QString &text) { m_said << escape(text); }
    void say(int number) { say(QString::number(number)); }
    void say(const QStringList &lines)
    {
        for (const QString &line : lines)
            say(line);
    }
    void act(const QString &line);
    void setHost(const QString &state);
    void fail(const QString &function, const QString &code);
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
    void sayAnswer(const QString &getter, const QString &values);
    void sayValue(const QString &tab, const QString &row);
    void sayStore(unsigned int result);
    void sayReferences();
    void sayCost(const QString &action);

    QString file(const QString &name) const { return m_host->folder() + name; }
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
    HostPlugins *m_plugins = nullptr;
    std::unique_ptr<HostCore::PluginRegister> m_container;
    TranslationRecorder m_recorder;
    QStringList m_said;  ///< what followed from a command
    QStringList m_calls; ///< of the SDK since the last "cost"
    const QDir m_home = QDir::home();
    QString m_asked; ///< "KEY: COMMAND"
    bool m_quiet = false;
};

void ScriptTest::init()
{
    setUp();
    write("host.ini", "[version]\nversion=2.1\n");
    HostCore::setSettingsFile(path("host.ini"));
    m_calls.clear();
    m_quiet = false;
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
    delete m_plugins;
    m_plugins = nullptr;
    tearDown();
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
            QTest::newRow(qPrintable(name)) << lines;
        }
    }
}

void ScriptTest::play()
{
    QFETCH(QStringList, lines);
    QStringList played;
    for (const QString &line : lines) {
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
        if (!m_quiet)
            m_said += calls;
        played << line.section(" => ", 0, 0);
        if (line.contains(" => "))
            played.last() += " => " + m_said.join(" | ");
        else
            played += m_said.replaceInStrings(QRegularExpression("^"), "    ");
    }
    compare(QTest::currentDataTag(), played, lines);
}

void ScriptTest::initTestCase()
{
    HostCore::applyLook(*qApp);
    typedef const QString &A;
    // clang-format off
    m_commands = {
        {"configuration", [this](A a) { write("DiagnosisConfig.xml", a.toUtf8()); }},
        {"write", [this](A a) { write(a.section(' ', 0, 0), a.section(' ', 1).toUtf8()); }},
        {"remove", [this](A a) { QFile::remove(file(a)); }},
        {"language", [](A a) { setLanguage(qPrintable(a)); }},
        {"text", [](A a) { hostTexts[a.section('=', 0, 0)] = a.section('=', 1); }},
        {"host", [this](A a) { setHost(a); }},
        {"home", [this](A a) { qputenv("HOME", file(a).toUtf8()); }},
        {"asked", [this](A a) { m_asked = a; }},
        {"modem", [](A a) { attachModem(qPrintable(a)); }},
        {"set", [](A a) { setValues(a); }},
        {"fail", [this](A a) { fail(a.section("=", 0, 0), a.section("=", 1)); }},
        {"unplug", [](A) { SdkControl::unplug(); }},
        {"plug", [](A) { SdkControl::plug(); }},
        {"event", [this](A a) { say(Logic::OnDevEvents(a.toInt(), nullptr)); }},
        {"quiet", [this](A) { m_quiet = true; }},

        {"Init", [this](A) { say(m_plugin->Init()); }},
        {"ShowWindow", [this](A) { say(show()); }},
        {"open", [this](A) { open(); }},
        {"Notify", [this](A a) { QCOMPARE(m_plugin->Notify(a.toUInt(), 4100, 4100), 0); }},
        {"OnDestroy", [this](A) { m_plugin->OnDestroy(); }},
        {"ReleaseData", [this](A) { store()->ReleaseData(); }},
        {"drop-rows", [this](A) { clear(store()->GetTabInformation()->first().items); }},
        {"delete-parent", [this](A) { clear(m_parent); }},
        {"delete-plug-in", [this](A) { clear(m_plugin); }},

        {"visit", [this](A a) { window()->findChild<QTabWidget *>()->setCurrentIndex(a.toInt()); }},
        {"press", [this](A a) { press(a); }},
        {"close", [this](A) { window()->close(); }},
        {"Esc", [this](A) { QTest::keyClick(window(), Qt::Key_Escape); }},
        {"Enter", [this](A) { enter(); }},
        {"swap", [this](A) { swap(); }},
        {"save", [this](A a) { saveTo(a.section("while ", 0, 0), a.section("while ", 1)); }},

        {"windows", [this](A) { sayWindows(); }},
        {"rows", [this](A) { say(flatten(window())); }},
        {"buttons", [this](A) { sayButtons(); }},
        {"clipped", [this](A) { say(clipped(window())); }},
        {"property", [this](A a) { sayProperty(a.section(" ", 0, -2), a.section(" ", -1)); }},
        {"question", [this](A) { sayQuestion(); }},
        {"tab-order", [this](A) { sayTabOrder(); }},
        {"caption", [this](A a) { sayCaption(a); }},
        {"file", [this](A a) { sayFile(a); }},
        {"log", [this](A a) { say(m_log->takeLog().filter(a).replaceInStrings(file(""), "")); }},
        {"references", [this](A) { sayReferences(); }},
        {"cost", [this](A a) { sayCost(a); }},
        {"get", [this](A a) { sayAnswer(a.section(", ", 0, 0), a.section(", ", 1)); }},
        {"value", [this](A a) { sayValue(a.section(", ", 0, 0), a.section(", ", 1)); }},
        {"load", [this](A a) { sayStore(store()->LoadFile(a)); }},
        {"xml", [this](A a) { write("test.xml", a.toLatin1()); act("load test.xml"); }},
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

/// The plug-ins that the host has: "KEY=VALUE;..." for ours, "failing" for the same, "gone" once
/// they are deleted, "strangers" where others have their names, "without-plug-ins",
/// "without-container".
void ScriptTest::setHost(const QString &state)
{
    if (!m_plugins)
        m_plugins = new HostPlugins;
    m_plugins->result = state == "failing";
    if (state.contains('='))
        m_plugins->values.clear();
    for (const QString &pair : state.split(';')) {
        if (pair.contains('='))
            m_plugins->values[pair.section('=', 0, 0)] = pair.mid(pair.indexOf('=') + 1);
    }
    m_container = std::make_unique<HostCore::PluginRegister>();
    QObject *const plugin = state == "strangers" ? this : static_cast<QObject *>(m_plugins);
    if (state != "without-plug-ins") {
        m_container->add(CLSID_STATUSBAR_UI, PLUGIN_TYPE_STATUSBAR_UI, plugin);
        m_container->add(CLSID_DIALUP_UI_SERVICE, PLUGIN_TYPE_DIALUP_UI_SERVICE, plugin);
        m_container->add(CLSID_NET_CONNECT_SETTING, PLUGIN_TYPE_NET_CONNECT_SETTING, plugin);
    }
    HostCore::setPluginContainer(state == "without-container" ? nullptr : m_container.get());
    if (state == "gone") {
        delete m_plugins;
        m_plugins = nullptr;
    }
}

/// The code 1 if none is given; "CODE filled" with the answer filled in all the same.
void ScriptTest::fail(const QString &function, const QString &code)
{
    SdkControl::setResult(
        function.toStdString(), code.isEmpty() ? 1 : code.section(' ', 0, 0).toInt(),
        code.endsWith("filled") ? SdkControl::FillOutputs : SdkControl::KeepOutputs);
}

void ScriptTest::press(const QString &name)
{
    QPushButton *const found = button(qPrintable(name));
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
    const QString path = name.isEmpty() ? QString() : file(name.trimmed());
    const auto act = [&](const char *dialog) {
        const bool now = meanwhile.startsWith(dialog);
        if (now)
            this->act(std::exchange(meanwhile, QString()).section(": ", 1));
        return now;
    };
    say(save(button("Save"), path, act));
}

void ScriptTest::sayWindows()
{
    for (const QDialog *window : windows())
        say(QString("%1 \"%2\", modality %3, focus on %4%5")
                .arg(window->isVisible() ? "shown" : "hidden", window->windowTitle())
                .arg(window->windowModality())
                .arg(window->focusWidget() ? window->focusWidget()->objectName().section('_', 1)
                                           : "nothing",
                     window->testAttribute(Qt::WA_DeleteOnClose) ? ", deleted on close" : ""));
}

/// The buttons below the tabs or the frame, and the gaps in pixels between them and behind them.
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
    for (const QString &line : QString(contentOf(file(name))).split('\n'))
        say('|' + line);
}

void ScriptTest::sayProperty(const QString &object, const QString &property)
{
    const QObject *found = object == "window"
                               ? window()
                               : window()->findChild<QObject *>("DiagnosticsUIPlugin_" + object);
    const QVariant value = found ? found->property(qPrintable(property)) : QVariant();
    const QSize size = value.toSize();
    say(size.isValid() ? QString("%1 x %2").arg(size.width()).arg(size.height())
                       : QString::number(value.toInt()));
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

void ScriptTest::sayAnswer(const QString &getter, const QString &values)
{
    setValues(values);
    const auto found = getters.find(getter);
    if (found == getters.end())
        return say("no such getter");
    say('"' + found->second(logic()) + '"');
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
}

/// Takes two references to query layer and store, and then says how many can be given back. None
/// are left, so the plug-in must have given back its own.
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
    open("<veltdoc><tab name='Device' resourceID='IDS_TAB_DEVICE'>" + rows + "</tab></veltdoc>");
    QCOMPARE(flatten(window()).size(), 1001);
    QCOMPARE(flatten(window()).last(), QString("APN = Unknown"));

    const int depth = 20000;
    m_host->write("test.xml", "<veltdoc><tab>" + rows.repeated(100) + "</tab>" +
                                  QByteArray("<a>").repeated(depth) + "<tab name='deep'/>" +
                                  QByteArray("</a>").repeated(depth) + "</veltdoc>");
    QCOMPARE(store()->LoadFile("test.xml"), 0u);
    QCOMPARE(store()->GetTabInformation()->at(1).items->size(), 100000);
    QCOMPARE(store()->GetTabInformation()->at(1).items->last().name, QString("row 999"));
    QCOMPARE(store()->GetTabInformation()->last().name, QString("deep"));
}

QTEST_MAIN(ScriptTest)
#include "scripts.moc"
