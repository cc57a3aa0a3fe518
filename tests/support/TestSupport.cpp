// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "TestSupport.h"

#include "HostCore.h"
#include "ModemControl.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMutex>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QtTest>

namespace {

QMutex mutex;
QStringList logLines;
QStringList warnings;
QtMessageHandler previousHandler = nullptr;

/// Whether a text has the form of "hh:mm:ss:zzz".
bool isTime(const QString &text)
{
    QString pattern = text;
    for (QChar &character : pattern) {
        if (character.isDigit())
            character = '9';
    }
    return pattern == "99:99:99:999";
}

void collect(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    // The offscreen platform says so of itself, for windows with size constraints.
    if (message == "This plugin does not support propagateSizeHints()")
        return;
    QString line = message;
    for (int at = 0; at + 12 <= line.size(); ++at) {
        if (isTime(line.mid(at, 12))) {
            line.replace(at, 12, "TIME");
            break;
        }
    }
    QMutexLocker lock(&mutex);
    (type == QtDebugMsg ? logLines : warnings).append(line);
}

QStringList take(QStringList &lines)
{
    QMutexLocker lock(&mutex);
    const QStringList taken = lines;
    lines.clear();
    return taken;
}

} // namespace

namespace TestSupport {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

QString unescape(QString text)
{
    text.replace("\\n", "\n");
    for (int at = text.indexOf('\\'); at >= 0; at = text.indexOf('\\', at + 1)) {
        const int digits = text.midRef(at + 1, 1) == "x" ? 2 : 4;
        text.replace(at, 2 + digits, QChar(text.mid(at + 2, digits).toUShort(nullptr, 16)));
    }
    const QRegularExpression run("(.)\\{(\\d+)\\}");
    for (auto found = run.match(text); found.hasMatch(); found = run.match(text))
        text.replace(found.capturedStart(), found.capturedLength(),
                     found.captured(1).repeated(found.captured(2).toInt()));
    return text;
}

void addRows(const char *fileName, const char *section)
{
    QTest::addColumn<QStringList>("fields");
    bool inSection = false;
    for (const QByteArray &line : contentOf(fileName).split('\n')) {
        if (line.startsWith('['))
            inSection = line == '[' + QByteArray(section) + ']';
        else if (inSection && !line.isEmpty() && !line.startsWith('#'))
            QTest::newRow(line.constData()) << unescape(QString::fromLatin1(line)).split(" | ");
    }
}

QStringList list(const char *texts)
{
    return QString::fromLatin1(texts).split('|');
}

void setValues(const QString &changes)
{
    for (const QByteArray &change : changes.toLatin1().split(';')) {
        const int at = change.indexOf('=');
        if (at > 0)
            ModemControl::setValue(change.left(at).toStdString(), change.mid(at + 1).toStdString());
    }
}

LogCapture::LogCapture()
{
    take(logLines);
    take(warnings);
    previousHandler = qInstallMessageHandler(collect);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(previousHandler);
}

QStringList LogCapture::takeLog()
{
    return take(logLines);
}

QStringList LogCapture::takeWarnings()
{
    return take(warnings);
}

void attachModem(const char *name)
{
    std::string error;
    if (!ModemControl::attach(std::string(MODEM_DIR "/") + name + ".ini", &error))
        qFatal("%s", error.c_str());
}

void setLanguage(const char *language)
{
    if (!HostCore::setLanguage(QLatin1String(TRANSLATION_DIR), QLatin1String(language)))
        qFatal("no language %s", language);
}

QStringList takeCalls()
{
    QStringList calls;
    for (const ModemControl::Call &call : ModemControl::recordedCalls())
        calls.append(QString::fromStdString(call.function + "(" + call.arguments + ")"));
    ModemControl::startRecording();
    return calls;
}

ConfiguredHost::ConfiguredHost() : ConfiguredHost(contentOf(SHIPPED_CONFIG)) {}

ConfiguredHost::ConfiguredHost(const QByteArray &configuration)
{
    QDir().mkpath(folder());
    write("DiagnosisConfig.xml", configuration);
    HostCore::setPluginLibraryPath(m_folder.path());
    setLanguage("en");
}

ConfiguredHost::~ConfiguredHost()
{
    HostCore::setPluginLibraryPath(QString());
    HostCore::setSettingsFile(QString());
    HostCore::setPluginContainer(nullptr);
    ModemControl::stopRecording();
    ModemControl::detach();
}

void ConfiguredHost::write(const char *fileName, const QByteArray &content)
{
    QFile file(folder() + QLatin1String(fileName));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", fileName);
}

QWidget *diagnosticsWindow()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        const auto *tabs = window->findChild<QWidget *>("DiagnosticsUIPlugin_tabWidgetDiag");
        if (window->isVisible() && tabs && tabs->window() == window)
            return window;
    }
    return nullptr;
}

QStringList flatten(QWidget *window)
{
    QStringList rows;
    const auto addForm = [&rows](const QWidget *page) {
        const auto *form = qobject_cast<QFormLayout *>(page->layout());
        const auto text = [form](int row, QFormLayout::ItemRole role) {
            return qobject_cast<QLabel *>(form->itemAt(row, role)->widget())->text();
        };
        for (int row = 0; form && row < form->rowCount(); ++row)
            rows.append(text(row, QFormLayout::LabelRole) + " = " +
                        text(row, QFormLayout::FieldRole));
    };
    const auto *frame = window->findChild<QFrame *>("DiagnosticsUIPlugin_frameCdmaDiag");
    if (frame)
        addForm(frame);
    const auto *tabs = window->findChild<QTabWidget *>("DiagnosticsUIPlugin_tabWidgetDiag");
    for (int index = 0; tabs && index < tabs->count(); ++index) {
        rows.append('[' + tabs->tabText(index) + ']');
        addForm(tabs->widget(index));
    }
    return rows;
}

QStringList clipped(const QWidget *window)
{
    QStringList names;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->isVisible() ||
            !(qobject_cast<const QLabel *>(widget) || qobject_cast<const QPushButton *>(widget)))
            continue;
        const QSize needed = widget->hasHeightForWidth()
                                 ? QSize(widget->width(), widget->heightForWidth(widget->width()))
                                 : widget->sizeHint();
        if (widget->size().expandedTo(needed) != widget->size() ||
            !widget->parentWidget()->rect().contains(widget->geometry()))
            names.append(widget->objectName());
    }
    return names;
}

QStringList save(QPushButton *button, const QString &path,
                 const std::function<bool(const char *)> &meanwhile)
{
    QStringList boxes;
    QTimer answers; // runs in the event loops that the dialogs block in
    QObject::connect(&answers, &QTimer::timeout, [&] {
        const QPointer<QDialog> dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (meanwhile && dialog &&
            meanwhile(qobject_cast<QFileDialog *>(dialog) ? "file dialog" : "message box"))
            return;
        if (auto *box = qobject_cast<QMessageBox *>(dialog)) {
            boxes.append(box->windowTitle() + ": " + box->text());
            box->buttons().at(0)->click();
        } else if (dialog && path.isNull()) {
            dialog->reject();
        } else if (dialog) {
            dialog->findChild<QLineEdit *>()->setText(path);
            dialog->done(QDialog::Accepted); // past the question to overwrite
        }
    });
    answers.start(10);
    button->click();
    return boxes;
}

void settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace TestSupport
