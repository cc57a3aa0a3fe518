// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// One fault at a time, of the SDK, of the host or of memory: what a user then sees of a whole
// window is one line of sweep.expected.

#include "DiagnosticsUILogic.h"
#include "DiagnosticsUIPlugin.h"
#include "PluginTest.h"

#include "HostCore.h"
#include "SdkControl.h"
#include "core/Change.h"
#include "modem/HostPlugins.h"
#include "sdk/VeltDevice.h"

#include <QDialog>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

#include <dlfcn.h>
#include <functional>
#include <limits>
#include <new>

using namespace TestSupport;

namespace {

QStringList translatedKeys;
QString missingKey;

int replacedPlugin; ///< its type; 0 for none
QObject *replacement;

int allocations;
int firstFailing; ///< the number of an allocation
int lastFailing;  ///< 0 for none

bool mayAllocate()
{
    ++allocations;
    return allocations < firstFailing || allocations > lastFailing;
}

} // namespace

// In front of libcore's.
QString Change::tr(const QString &key, const QString &context)
{
    static const auto translate = reinterpret_cast<QString (*)(const QString &, const QString &)>(
        dlsym(RTLD_NEXT, "_ZN6Change2trERK7QStringS2_"));
    if (!translatedKeys.contains(key))
        translatedKeys.append(key);
    return key == missingKey ? QString() : translate(key, context);
}

// Only the plug-in allocates in this way.
void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return mayAllocate() ? ::operator new(size) : nullptr;
}

void *operator new[](std::size_t size, const std::nothrow_t &) noexcept
{
    return mayAllocate() ? ::operator new[](size) : nullptr;
}

namespace {

/// What came of a window.
struct Life
{
    QString window;
    QStringList shown;     ///< rows after a visit of each tab
    QStringList refreshed; ///< rows after a refresh of each tab
    QStringList saved;     ///< the report's lines, but for empty ones
    QStringList around;    ///< title, buttons, and what was said of the saving
    QStringList log;       ///< lines that tell of faults
    QStringList calls;
};

typedef std::function<void()> Fault;

/// The host's container, where one plug-in may be replaced.
class Container : public PluginContainer
{
public:
    Container() : m_host(Startup::GetPluginContainer()) { HostCore::setPluginContainer(this); }

    QObject *GetPlugin(const QString &classIdentifier, int pluginType) override
    {
        return pluginType == replacedPlugin ? replacement
                                            : m_host->GetPlugin(classIdentifier, pluginType);
    }

private:
    PluginContainer *const m_host;
};

QList<QStringList> inputs(const QByteArray &name)
{
    QList<QStringList> rows;
    for (const QString &line : section(TEST_SOURCE_DIR "/sweep.txt", name)) {
        rows.append(line.split('|'));
        for (QString &field : rows.last())
            field = field.trimmed();
    }
    return rows;
}

QString printable(const QString &text)
{
    QString printed;
    for (int at = 0, end = 0; at < text.size(); at = end) {
        while (end < text.size() && text.at(end) == text.at(at))
            ++end;
        const ushort unit = text.at(at).unicode();
        if (unit < 0x20 || (unit >= 0x7f && unit < 0xa0))
            printed += QString("\\x%1").arg(unit, 2, 16, QLatin1Char('0'));
        else if (end - at < 10)
            printed += text.mid(at, end - at);
        else
            printed += text.at(at) + QString("{%1}").arg(end - at);
    }
    return printed;
}

/// The rows as the lines that the report has for them.
QStringList reported(QStringList rows)
{
    for (QString &row : rows) {
        if (row.startsWith('['))
            row = row.mid(1, row.size() - 2);
        else
            row.replace(row.indexOf(" = "), 3, " ");
    }
    return rows.join('\n').split('\n', Qt::SkipEmptyParts);
}

QStringList without(QStringList lines, const QStringList &others)
{
    for (const QString &line : others)
        lines.removeOne(line);
    return lines;
}

/// The rows that the usual ones do not have, and "no ..." for those that are not there at all.
QString differences(const QStringList &rows, const QStringList &usual)
{
    const auto caption = [](const QString &row) { return row.section(" = ", 0, 0); };
    QStringList different = without(rows, usual);
    QStringList captions;
    for (const QString &row : different)
        captions.append(caption(row));
    for (const QString &row : without(usual, rows)) {
        if (!captions.contains(caption(row)))
            different.append("no " + caption(row));
    }
    return different.isEmpty() ? QString("as usual") : different.join(", ");
}

} // namespace

class SweepTest : public PluginTest
{
    Q_OBJECT

private Q_SLOTS:
    void sweep();

private:
    void use(Life &life);
    Life live(const Fault &fault);
    void addUsual(const QByteArray &modem, const QByteArray &configuration);
    void add(const QString &name, const Fault &fault);
    void addSdkFaults();
    void addHostFaults();
    void addMissingTexts(const QStringList &keys);
    void addMissingMemory(const QByteArray &objects);

    QByteArray m_modem;
    QByteArray m_configuration;
    Life m_usual;
    QStringList m_table;
    QMap<QString, int> m_windows;
};

/// What the user does with an open window.
void SweepTest::use(Life &life)
{
    const QPointer<QDialog> window = m_parent->findChild<QDialog *>();
    auto *tabs = window->findChild<QTabWidget *>();
    life.window += QLatin1String(tabs ? "tabs" : "CDMA");
    const QString quoted = "\"%1\"";
    life.around.append(quoted.arg(window->windowTitle()));
    for (const QPushButton *button : window->findChildren<QPushButton *>())
        life.around.append(quoted.arg(button->text()));

    for (int index = 0; tabs && index < tabs->count(); ++index)
        tabs->setCurrentIndex(index);
    life.shown = flatten(window);
    for (int index = tabs ? tabs->count() : 1; index > 0; --index) {
        if (tabs)
            tabs->setCurrentIndex(index - 1);
        button("Refresh")->click();
    }
    life.refreshed = flatten(window);
    if (button("Save")) {
        for (const QString &said : save(button("Save"), path("report")))
            life.around.append(quoted.arg(said));
        QFile report(path("report"));
        if (report.open(QIODevice::ReadOnly))
            life.saved = QString::fromUtf8(report.readAll()).split('\n', Qt::SkipEmptyParts);
    }
    button("Cancel")->click();
    settle();
    if (window)
        life.window += ", which stays open";
}

/// The whole life of a window, in a host with its plug-ins and settings where something fails.
Life SweepTest::live(const Fault &fault)
{
    Life life;
    setUp(m_configuration);
    HostPlugins plugins;
    Container container;
    m_host->write("host.ini", "[version]\nversion=2.1\n");
    HostCore::setSettingsFile(path("host.ini"));
    attachModem(m_modem.constData());
    allocations = 0;
    fault();

    if (m_plugin->Init() != 1) {
        life.window += "Init() fails, then ";
        lastFailing = 0;
        m_plugin->Init();
    }
    SdkControl::raiseEvent(VELT_EVENT_DEV_REMOVAL);
    SdkControl::raiseEvent(VELT_EVENT_DEV_DEVICE_INIT_FINISH);
    SdkControl::waitForEvents(10000);
    settle();
    bool opened = show() == 1;
    if (!opened) {
        life.window += "none, then ";
        m_plugin->Notify(NOTIFY_CLOSE_WINDOWS, 0, 0);
        settle();
        qDeleteAll(m_parent->findChildren<QDialog *>()); // as their parent would
        lastFailing = 0;
        opened = show() == 1;
    }
    if (opened)
        use(life);
    else
        life.window += "none";
    m_plugin->OnDestroy();
    SdkControl::raiseEvent(VELT_EVENT_DEV_ARRIVAL);
    SdkControl::waitForEvents(10000);

    life.calls = takeCalls();
    const QStringList log = m_log->takeLog();
    for (const QString &line : log) {
        for (const char *word : {"ailed", "rror", " null", " NULL", "problem"}) {
            if (line.contains(QLatin1String(word)))
                life.log.append(line.section("/Diagnostics", 1));
        }
    }
    life.log.removeDuplicates();
    if (log.last().contains("OnDevEvents"))
        life.log.append("called back after OnDestroy()");

    missingKey.clear();
    replacedPlugin = 0;
    replacement = nullptr;
    lastFailing = 0;
    SdkControl::clearResults();
    VELT_DevSrv_UnRegisterDevMgrCallback(DiagnosticsUILogic::OnDevEvents);
    VELT_DevSrv_UnRegisterDevInitEventCallback(DiagnosticsUILogic::OnDevEvents);
    tearDown();
    return life;
}

/// Begins a part of the table with a window where nothing fails.
void SweepTest::addUsual(const QByteArray &modem, const QByteArray &configuration)
{
    m_modem = modem;
    m_configuration = configuration;
    translatedKeys.clear();
    m_usual = live([] {});
    translatedKeys.removeAll(QString());
    m_table.append(QString("\n[%1%2]\nno fault | %3")
                       .arg(QLatin1String(modem),
                            QLatin1String(configuration.isEmpty() ? "" : ", a small configuration"),
                            m_usual.window));
    for (const QString &row : m_usual.around + m_usual.shown)
        m_table.append("    " + row);
    QCOMPARE(m_usual.refreshed, m_usual.shown);
    QCOMPARE(m_usual.saved, reported(m_usual.shown));
    QCOMPARE(m_usual.log, QStringList());
}

/// A fault's line: its name, the window, and what differs from the usual one.
void SweepTest::add(const QString &name, const Fault &fault)
{
    const Life life = live(fault);
    ++m_windows[life.window];
    QStringList columns{name, life.window};
    if (!life.around.isEmpty()) {
        columns.append(differences(life.shown, m_usual.shown));
        if (life.refreshed != life.shown)
            columns.append("refreshed: " + differences(life.refreshed, m_usual.shown));
        const QStringList report = reported(life.refreshed);
        if (life.saved.isEmpty() && !report.isEmpty())
            columns.append("not saved");
        else if (life.saved != report)
            columns.append("saved: " + without(life.saved, report).join(", "));
        if (life.around != m_usual.around)
            columns.append("also: " + differences(life.around, m_usual.around));
    }
    if (!life.log.isEmpty())
        columns.append("log: " + life.log.join(", "));
    m_table.append(printable(columns.join(" | ")));
}

void SweepTest::addSdkFaults()
{
    for (const QStringList &fields : inputs("sdk")) {
        const QString &name = fields.at(0);
        if (m_usual.calls.filter(name + '(').isEmpty()) {
            m_table.append(name + " is not called");
            continue;
        }
        const std::string function = name.toStdString();
        add(name + " fails", [&] { SdkControl::setResult(function, 1); });
        add(name + " fails and fills all the same",
            [&] { SdkControl::setResult(function, 1, SdkControl::FillOutputs); });
        add(name + " succeeds and fills nothing",
            [&] { SdkControl::setResult(function, 0, SdkControl::KeepOutputs); });
        if (fields.value(1).contains('='))
            add(name + " gives odd numbers", [&] { setValues(fields.at(1)); });
        const auto setTexts = [&](const std::string &text) {
            for (const QString &key : fields.at(2).split(';'))
                modem().setValue(key.toStdString(), text);
        };
        if (fields.size() == 3) {
            add(name + " gives odd texts", [&] { setTexts("\x80\xE9\x1B\n<b>&%s"); });
            add(name + " fills its buffers", [&] { setTexts(std::string(999, 'F')); });
        }
    }
}

void SweepTest::addHostFaults()
{
    add("no container of plug-ins", [] { HostCore::setPluginContainer(nullptr); });
    for (const QStringList &fields : inputs("plug-ins")) {
        add("no " + fields.at(0), [&] { replacedPlugin = fields.at(1).toInt(); });
        add(fields.at(0) + " without its interface", [&] {
            replacedPlugin = fields.at(1).toInt();
            replacement = qApp;
        });
    }
    for (const QStringList &fields : inputs("calls"))
        add(fields.at(0) + " fails", [&] { setValues(fields.at(1)); });
    add("no settings", [] { HostCore::setSettingsFile(QString()); });
    add("no configuration", [] { HostCore::setPluginLibraryPath(QString()); });
}

void SweepTest::addMissingTexts(const QStringList &keys)
{
    for (const QString &key : keys)
        add("no text for " + key, [&] { missingKey = key; });
    for (const QStringList &fields : inputs("texts")) {
        add("no text for " + fields.join(" with "), [&] {
            missingKey = fields.at(0);
            setValues(fields.at(1));
        });
    }
}

/// One object, then that one and all after it.
void SweepTest::addMissingMemory(const QByteArray &objects)
{
    const QList<QStringList> names = inputs(objects);
    QCOMPARE(allocations, int(names.size()));
    for (int number = 1; number <= names.size(); ++number) {
        const QString name = "no memory for " + names.at(number - 1).at(0);
        add(name, [=] { firstFailing = lastFailing = number; });
        add(name + " and what follows", [=] {
            firstFailing = number;
            lastFailing = std::numeric_limits<int>::max();
        });
    }
}

void SweepTest::sweep()
{
    m_table.append("fault | window | rows | what else differs");
    for (const char *modem : {"wcdma", "cdma-pesn"}) {
        addUsual(modem, QByteArray());
        const QStringList keys = translatedKeys;
        addSdkFaults();
        addHostFaults();
        addMissingTexts(keys);
    }
    for (const QStringList &fields : inputs("small configurations")) {
        addUsual(fields.at(0).toLatin1(), fields.at(1).toLatin1());
        addMissingMemory("objects on " + fields.at(0).toLatin1());
    }
    m_table.append("\n[windows]");
    for (const QString &window : m_windows.keys())
        m_table.append(QString("%1 x %2").arg(m_windows.value(window)).arg(window));
    compareWithGolden("sweep.expected", m_table.join('\n').split('\n'));
}

QTEST_MAIN(SweepTest)
#include "sweep.moc"
