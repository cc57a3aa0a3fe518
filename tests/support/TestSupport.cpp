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
            character = QLatin1Char('9');
    }
    return pattern == QLatin1String("99:99:99:999");
}

void collect(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    // The offscreen platform says so of itself, for windows with size constraints.
    if (message == QLatin1String("This plugin does not support propagateSizeHints()"))
        return;
    QString line = message;
    for (int at = 0; at + 12 <= line.size(); ++at) {
        if (isTime(line.mid(at, 12))) {
            line.replace(at, 12, QLatin1String("TIME"));
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

QByteArray contentOf(const char *fileName)
{
    QFile file(QString::fromUtf8(fileName));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", fileName);
    return file.readAll();
}

} // namespace

namespace TestSupport {

void addRows(const char *fileName, const char *section)
{
    QTest::addColumn<QStringList>("fields");
    bool inSection = false;
    for (QByteArray line : contentOf(fileName).split('\n')) {
        if (line.startsWith('[')) {
            inSection = line == '[' + QByteArray(section) + ']';
        } else if (inSection && !line.isEmpty() && !line.startsWith('#')) {
            const QByteArray name = line;
            line.replace("\\n", "\n");
            for (int at = line.indexOf("\\x"); at >= 0; at = line.indexOf("\\x", at + 1))
                line.replace(at, 4, QByteArray::fromHex(line.mid(at + 2, 2)));
            QTest::newRow(name.constData())
                << QString::fromLatin1(line).split(QLatin1String(" | "));
        }
    }
}

QStringList list(const char *texts)
{
    return QString::fromLatin1(texts).split(QLatin1Char('|'));
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
        const auto *tabs =
            window->findChild<QWidget *>(QLatin1String("DiagnosticsUIPlugin_tabWidgetDiag"));
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
            rows.append(text(row, QFormLayout::LabelRole) + QLatin1String(" = ") +
                        text(row, QFormLayout::FieldRole));
    };
    const auto *frame =
        window->findChild<QFrame *>(QLatin1String("DiagnosticsUIPlugin_frameCdmaDiag"));
    if (frame)
        addForm(frame);
    const auto *tabs =
        window->findChild<QTabWidget *>(QLatin1String("DiagnosticsUIPlugin_tabWidgetDiag"));
    for (int index = 0; tabs && index < tabs->count(); ++index) {
        rows.append(QLatin1Char('[') + tabs->tabText(index) + QLatin1Char(']'));
        addForm(tabs->widget(index));
    }
    return rows;
}

void answer(QFileDialog *dialog, const QString &path)
{
    dialog->findChild<QLineEdit *>()->setText(path);
    static_cast<QDialog *>(dialog)->done(QDialog::Accepted); // past the question to overwrite
}

QStringList save(QPushButton *button, const QString &path)
{
    QStringList boxes;
    QTimer answers; // runs in the event loops that the dialogs block in
    QObject::connect(&answers, &QTimer::timeout, [&boxes, &path] {
        QWidget *const dialog = QApplication::activeModalWidget();
        if (auto *box = qobject_cast<QMessageBox *>(dialog)) {
            boxes.append(box->windowTitle() + QLatin1String(": ") + box->text());
            box->buttons().at(0)->click();
        } else if (auto *question = qobject_cast<QFileDialog *>(dialog)) {
            if (path.isNull()) {
                question->reject();
                return;
            }
            answer(question, path);
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
