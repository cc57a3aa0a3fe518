// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "TestSupport.h"

#include "HostCore.h"
#include "SdkControl.h"
#include "report/DiagnosticsReader.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMutex>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

namespace {

QMutex mutex;
QStringList logLines;
QStringList warnings;
QtMessageHandler previousHandler = nullptr;
std::shared_ptr<SimulatedModem> attached;

void collect(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    // The offscreen platform says so of itself, for windows with size constraints.
    if (message == "This plugin does not support propagateSizeHints()")
        return;
    static const QRegularExpression time("\\d\\d:\\d\\d:\\d\\d:\\d\\d\\d");
    const QRegularExpressionMatch found = time.match(message);
    QString line = message;
    if (found.hasMatch())
        line.replace(found.capturedStart(), found.capturedLength(), "TIME");
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
        const int digits = text.mid(at + 1, 1) == "x" ? 2 : 4;
        text.replace(at, 2 + digits, QChar(text.mid(at + 2, digits).toUShort(nullptr, 16)));
    }
    const QRegularExpression run("(.)\\{(\\d+)\\}");
    for (auto found = run.match(text); found.hasMatch(); found = run.match(text))
        text.replace(found.capturedStart(), found.capturedLength(),
                     found.captured(1).repeated(found.captured(2).toInt()));
    return text;
}

QStringList section(const char *fileName, const char *name)
{
    QStringList lines;
    bool inSection = false;
    for (const QByteArray &line : contentOf(fileName).replace("\n    ", " | ").split('\n')) {
        if (line.startsWith('['))
            inSection = line == '[' + QByteArray(name) + ']';
        else if (inSection && !line.isEmpty() && !line.startsWith('#'))
            lines.append(QString::fromLatin1(line));
    }
    return lines;
}

void addRows(const char *fileName, const char *name)
{
    QTest::addColumn<QStringList>("fields");
    for (const QString &line : section(fileName, name))
        QTest::newRow(line.toLatin1()) << unescape(line).split(" | ");
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
            modem().setValue(change.left(at).toStdString(), change.mid(at + 1).toStdString());
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
    attached = SimulatedModem::load(std::string(MODEM_DIR "/") + name + ".ini", &error);
    if (!attached)
        qFatal("%s", error.c_str());
    SdkControl::attach(attached);
}

SimulatedModem &modem()
{
    return *attached;
}

void setLanguage(const char *language)
{
    if (!HostCore::setLanguage(QLatin1String(TRANSLATION_DIR), QLatin1String(language)))
        qFatal("no language %s", language);
}

QStringList takeCalls()
{
    QStringList calls;
    for (const SdkControl::RecordedCall &call : SdkControl::recordedCalls())
        calls.append(QString::fromStdString(call.function + "(" + call.arguments + ")"));
    SdkControl::startRecording();
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
    SdkControl::stopRecording();
    SdkControl::attach(nullptr);
}

void ConfiguredHost::write(const char *fileName, const QByteArray &content)
{
    QFile file(folder() + QLatin1String(fileName));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", fileName);
}

QWidget *diagnosticsWindow()
{
    return DiagnosticsReader().window();
}

QStringList flatten(QWidget *window)
{
    const DiagnosticsReader reader(window);
    QStringList rows;
    for (const ShownPage &page : reader.pages()) {
        if (!reader.tabNames().isEmpty())
            rows.append('[' + page.title + ']');
        for (const ShownRow &row : page.rows)
            rows.append(row.caption + " = " + row.value);
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
    answers.start(1);
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
