// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#ifndef PLAYER_H
#define PLAYER_H

#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUILogic.h"
#include "PluginTest.h"
#include "StandIns.h"

#include "HostCore.h"
#include "SdkControl.h"
#include "core/CommonUtils.h"

#include <QtTest>
#include <QtWidgets>
#if QT_VERSION < 0x060000
#include <QTextCodec>
#endif

#include <limits>
#include <map>
#include <stdexcept>

typedef DiagnosticsUILogic Logic;
typedef DiagnosticsConfigParse Store;

namespace TestSupport {

/// The host's container of plug-ins, or a poorer one.
struct Container : PluginContainer
{
    QObject *GetPlugin(const QString &classIdentifier, int pluginType) override
    {
        StandIns::hostIsAsked("plug-in");
        return state == "strangers"          ? qApp
               : state == "without-plug-ins" ? nullptr
                                             : host->GetPlugin(classIdentifier, pluginType);
    }
    PluginContainer *host = nullptr;
    QString state;
};

/// The getters of the query layer by their names.
static const std::map<QString, std::function<QString(Logic *)>> getters = {
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

/// Carries out the commands of the scripts, and notes what follows from them.
class Player : public PluginTest
{
public:
    /// The sections by "FILE: NAME".
    explicit Player(const QMap<QString, QStringList> &sections) : m_sections(sections)
    {
        write("host.ini", "[version]\nversion=2.1\n");
        HostCore::setSettingsFile(path("host.ini"));
        m_container.host = Startup::GetPluginContainer();
        setHost("complete");
        StandIns::hostIsAsked = [this](const QString &key) {
            if (m_asked.startsWith(key + ": "))
                act(std::exchange(m_asked, QString()).section(": ", 1));
        };
    }

    ~Player()
    {
        StandIns::reset();
        qputenv("HOME", m_home.path().toUtf8());
        setCodec("UTF-8");
    }

    /// Returns what follows from a command.
    QStringList play(const QString &command)
    {
        m_said.clear();
        try {
            act(command);
        } catch (const std::runtime_error &problem) {
            say(problem.what());
        }
        SdkControl::waitForEvents(10000);
        settle();
        const QStringList calls = takeCalls();
        return m_tellsCalls ? m_said + calls : m_said;
    }

private:
    void say(const QString &text) { m_said << escape(text); }
    void say(int number) { say(QString::number(number)); }
    void say(const QStringList &lines)
    {
        for (const QString &line : lines)
            say(line);
    }

    void act(const QString &line)
    {
        const auto command = m_commands.find(line.section(' ', 0, 0));
        if (command == m_commands.end())
            return say("no such command");
        command->second(unescape(line.section(' ', 1)));
    }

    void playLike(const QString &section)
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

    void edit(const QString &from, const QString &to)
    {
        const QString old = contentOf(path("DiagnosisConfig.xml"));
        if (!old.contains(from))
            say("no such text");
        write("DiagnosisConfig.xml", QString(old).replace(from, to).toUtf8());
    }

    /// Of Qt 5; Qt 6 writes and reads UTF-8.
    static void setCodec(const QString &name)
    {
#if QT_VERSION < 0x060000
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(qPrintable(name)));
#else
        Q_UNUSED(name)
#endif
    }

    void setHost(const QString &state)
    {
        m_container.state = state;
        HostCore::setPluginContainer(state == "without-container" ? nullptr : &m_container);
    }

    static void fail(const QStringList &how)
    {
        const QString code = how[0].section('=', 1);
        SdkControl::setResult(
            how[0].section('=', 0, 0).toStdString(), code.isEmpty() ? 1 : code.toInt(),
            how.contains("filled") ? SdkControl::FillOutputs : SdkControl::KeepOutputs,
            how.filter("call ").value(0).mid(5).toInt());
    }

    void open()
    {
        QCOMPARE(m_plugin->Init(), 1);
        takeCalls();
        QCOMPARE(show(), 1);
    }

    /// Ends all, both singletons included.
    void restart()
    {
        m_plugin->OnDestroy();
        qDeleteAll(windows());
        release();
    }

    void press(const QString &name)
    {
        QPushButton *const found = button(name);
        if (found)
            found->click();
        else
            say("no such button");
    }

    /// Presses Enter, and tells of a file dialog that this opens.
    void enter()
    {
        QTimer answers;
        QObject::connect(&answers, &QTimer::timeout, [this] {
            if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
                say("file dialog");
                dialog->reject();
            }
        });
        answers.start(1);
        QTest::keyClick(window()->focusWidget(), Qt::Key_Enter);
    }

    /// \a meanwhile is "file dialog: COMMAND" or "message box: COMMAND", empty for nothing.
    void saveTo(const QString &name, QString meanwhile)
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

    void sayWindows()
    {
        for (const QDialog *window : windows()) {
            const QWidget *focus = window->focusWidget();
            say(QString("%1 \"%2\", type %3, modality %4, %5, %6, focus on %7%8")
                    .arg(window->isVisible() ? "shown" : "hidden", window->windowTitle())
                    .arg(StandIns::frameType)
                    .arg(window->windowModality())
                    .arg(window->minimumSize() == window->maximumSize() ? "fixed" : "resizable",
                         StandIns::centred.contains(window) ? "centred" : "anywhere",
                         focus ? focus->objectName().section('_', 1) : "nothing",
                         window->testAttribute(Qt::WA_DeleteOnClose) ? ", deleted on close" : ""));
        }
    }

    /// How the rows differ from those that "rows" told.
    void sayChanges()
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
    void sayButtons()
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
    void sayTabOrder()
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
    void sayCaption(const QString &row)
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
    void sayFile(const QString &name)
    {
        for (const QString &line : QString(contentOf(path(name))).split('\n'))
            say('|' + line);
    }

    void sayProperty(const QString &object, const QString &property)
    {
        const QObject *found =
            object == "window" ? window()
            : object == "form" ? window()->findChild<QFormLayout *>()
                               : window()->findChild<QObject *>("DiagnosticsUIPlugin_" + object);
        const QVariant value = found ? found->property(qPrintable(property)) : QVariant();
        const QSize size = value.toSize();
        say(size.isValid() ? QString("%1 x %2").arg(size.width()).arg(size.height())
                           : QString::number(value.toInt()));
    }

    /// How high the labels of a row have to be, where that is not the height of the caption's text.
    void sayHeights(const QString &row)
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
    void sayQuestion()
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

    /// Without the constant fields, and without the path of the plug-in's folder.
    QStringList takeLog()
    {
        return m_log.takeLog()
            .replaceInStrings("TIME: ../../src/DiagnosisPlugin/Diagnostics", "")
            .replaceInStrings(path(""), "");
    }

    /// Where it is traced: the calls, and the log without its first line and without the getter's
    /// name.
    void sayAnswer(const QString &getter, const QString &values)
    {
        setValues(values);
        const auto found = getters.find(getter);
        if (found == getters.end())
            return say("no such getter");
        if (m_traced) {
            m_log.takeLog();
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

    void sayEach(const QString &getter, const QString &values)
    {
        for (const QString &value : values.section(": ", 1).split(' ')) {
            sayAnswer(getter, values.section(": ", 0, 0) + '=' + value);
            m_said.last().prepend(value + ' ');
        }
    }

    void sayValue(const QString &tab, const QString &row)
    {
        QString value;
        m_plugin->getValueLabelVal(tab, row, &value);
        say(value);
    }

    /// The result of a loading, and what the store holds after it.
    void sayStore(unsigned int result)
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

    /// Takes two references to the query layer, and then says how many can be given back to it and
    /// to the store. None are left, so the plug-in must have given back its own.
    void sayReferences()
    {
        Logic::GetInstance();
        int count = 0;
        for (const QPointer<Logic> ending(Logic::GetInstance()); ending; ++count)
            Logic::Destroy();
        say("query layer " + QString::number(count));
        m_log.takeLog();
        for (count = 0; m_log.takeLog().filter("~DiagnosticsConfigParse").isEmpty() && count < 9;
             ++count)
            Store::DestroyInstance();
        say("store " + QString::number(count));
    }

    /// What comes of a command that cannot have one object, and of one that can have none from it
    /// on: the result and the first line of the log that tells of it; and whether it works
    /// afterwards.
    void sayLosses(const QString &command)
    {
        const QRegularExpression trouble("ailed|null|NULL|problem");
        for (int number = 1;; ++number) {
            QString outcomes[2];
            for (const bool more : {false, true}) {
                if (command == "ShowWindow")
                    m_plugin->Init();
                m_log.takeLog();
                StandIns::loseMemory(number, more ? std::numeric_limits<int>::max() : number);
                const int result = command == "Init" ? m_plugin->Init() : show();
                const int asked = StandIns::objectCount();
                StandIns::loseMemory(0, 0);
                if (asked < number)
                    return;
                outcomes[more] = QString::number(result) + ' ' + takeLog().filter(trouble).value(0);
                if (m_plugin->Init() != 1 || show() != 1)
                    outcomes[more] += ", nor later";
                else
                    press("Refresh");
                restart();
            }
            if (outcomes[1] != outcomes[0])
                outcomes[0] += "; and more: " + outcomes[1];
            if (m_said.isEmpty() || !m_said.last().endsWith(" " + outcomes[0]))
                say("0 x " + outcomes[0]);
            const int times = m_said.last().section(' ', 0, 0).toInt() + 1;
            m_said.last() = QString::number(times) + " x " + outcomes[0];
        }
    }

    /// Writes the configuration, or copies it from a file beside the scripts.
    void configure(const QString &content)
    {
        write("DiagnosisConfig.xml", content.startsWith('@')
                                         ? contentOf(TEST_SOURCE_DIR "/" + content.mid(1))
                                         : content.toUtf8());
    }

    void write(const QString &name, const QByteArray &content)
    {
        m_host.write(qPrintable(name), content);
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

    const QMap<QString, QStringList> &m_sections;
    Container m_container;
    QStringList m_said; ///< what followed from a command
    const QDir m_home = QDir::home();
    QString m_asked;    ///< "KEY: COMMAND"
    QStringList m_rows; ///< told last
    bool m_tellsCalls = false;
    bool m_traced = false;

    typedef const QString &A;
    // clang-format off
    const std::map<QString, std::function<void(const QString &)>> m_commands = {
        {"like", [this](A a) { playLike(a); }},
        {"configuration", [this](A a) { configure(a); }},
        {"edit", [this](A a) { edit(a.section(" -> ", 0, 0), a.section(" -> ", 1)); }},
        {"write", [this](A a) { write(a.section(' ', 0, 0), a.section(' ', 1).toUtf8()); }},
        {"remove", [this](A a) { QFile::remove(path(a)); }},
        {"language", [](A a) { setLanguage(qPrintable(a)); }},
        {"text", [](A a) { StandIns::hostTexts[a.section('=', 0, 0)] = a.section('=', 1); }},
        {"codec", [](A a) { setCodec(a); }},
        {"home", [this](A a) { qputenv("HOME", path(a).toUtf8()); }},
        {"host", [this](A a) { setHost(a); }},
        {"asked", [this](A a) { m_asked = a; }},
        {"modem", [](A a) { attachModem(qPrintable(a)); }},
        {"set", [](A a) { setValues(a); }},
        {"fail", [](A a) { fail(a.split(", ")); }},
        {"no-memory", [](A a) { StandIns::loseMemory(a.toInt(), a.toInt()); }},
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
        {"tab-change", [this](A a) { QMetaObject::invokeMethod(m_plugin, "onTabChange", Q_ARG(int, a.toInt())); }},
        {"press", [this](A a) { press(a); }},
        {"close", [this](A) { window()->close(); }},
        {"Esc", [this](A) { QTest::keyClick(window(), Qt::Key_Escape); }},
        {"Tab", [this](A) { QTest::keyClick(window()->focusWidget(), Qt::Key_Tab); }},
        {"Enter", [this](A) { enter(); }},
        {"swap", [this](A) { for (QDialog *w : windows()) w->setVisible(!w->isVisible()); }},
        {"save", [this](A a) { saveTo(a.section("while ", 0, 0), a.section("while ", 1)); }},

        {"windows", [this](A) { sayWindows(); }},
        {"rows", [this](A a) { say(m_rows = flatten(window()).filter(QRegularExpression(a))); }},
        {"changes", [this](A) { sayChanges(); }},
        {"buttons", [this](A) { sayButtons(); }},
        {"clipped", [this](A) { say(clipped(window())); }},
        {"heights", [this](A a) { sayHeights(a); }},
        {"property", [this](A a) { sayProperty(a.section(" ", 0, -2), a.section(" ", -1)); }},
        {"question", [this](A) { sayQuestion(); }},
        {"box", [this](A) { say(StandIns::messageBox); }},
        {"tab-order", [this](A) { sayTabOrder(); }},
        {"caption", [this](A a) { sayCaption(a); }},
        {"file", [this](A a) { sayFile(a); }},
        {"log", [this](A a) { say(takeLog().filter(QRegularExpression(a))); }},
        {"references", [this](A) { sayReferences(); }},
        {"get", [this](A a) { sayAnswer(a.section(", ", 0, 0), a.section(", ", 1)); }},
        {"each", [this](A a) { sayEach(a.section(", ", 0, 0), a.section(", ", 1)); }},
        {"presets", [this](A) { say(StandIns::pinPresets); }},
        {"value", [this](A a) { sayValue(a.section(", ", 0, 0), a.section(", ", 1)); }},
        {"load", [this](A a) { sayStore(store()->LoadFile(a)); }},
        {"xml", [this](A a) { restart(); write("test.xml", a.toLatin1()); act("load test.xml"); }},
    };
    // clang-format on
};

} // namespace TestSupport

#endif
