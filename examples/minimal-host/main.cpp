// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

/// The least that a host brings: the core classes of include/core, a device SDK that it is linked
/// with, and what loads the module. Usage: minimal-host MODULE TEXTS.qm [PICTURE]

#include "core/Change.h"
#include "core/CommonUtils.h"
#include "core/ExtendDialog.h"
#include "core/Startup.h"
#include "interfaces/IUIPlugin.h"
#include <QtWidgets>

static QTranslator texts;
static QString libraries; // the module is in its plugins/DiagnosisPlugin

// clang-format off
QString Change::tr(const QString &key, const QString &context)
{
    return texts.translate(context.toLatin1(), key.toLatin1());
}

PluginContainer *Startup::GetPluginContainer() { return nullptr; }
QString CommonUtils::GetPluginLibraryPath() { return libraries; }
QString CommonUtils::GetSettings(const QString &, const QString &) { return QStringLiteral("1.0"); }
void CommonUtils::MoveCentre(QDialog *) {}
int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget *parent, QString caption, QString text, QString,
                             QString, QString, bool, Qt::WindowFlags, QDialog **, QString, bool)
{
    auto *const box = new QMessageBox(icon, caption, text, QMessageBox::Ok, parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    return box->exec() == QMessageBox::Ok;
}
void CommonUtils::GetApplicationStringHeightAndWidth(const QString &text, int &height, int &width)
{
    const QFontMetrics metrics((QApplication::font()));
    height = metrics.boundingRect(text).width(); // the contract has it this way round
    width = metrics.height();
}

ExtendDialog::ExtendDialog(QWidget *parent, Qt::WindowFlags flags, int)
    : QDialog(parent, flags), m_layout(new QVBoxLayout(this)), m_content(nullptr), m_ended(false) {}
ExtendDialog::~ExtendDialog() { end(); }
void ExtendDialog::AddMainWidget(QWidget *widget) { m_layout->addWidget(m_content = widget); }
void ExtendDialog::setWindowTitle(const QString &title) { QDialog::setWindowTitle(title); }
void ExtendDialog::changeSize(const QSize &size) { setFixedSize(size); }
void ExtendDialog::closeEvent(QCloseEvent *event) { QDialog::closeEvent(event); } // comes to done()
void ExtendDialog::done(int result) { QDialog::done(result); end(); }
void ExtendDialog::end() { if (!m_ended) { m_ended = true; Q_EMIT dlgCloseEvent(); } }
// clang-format on

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 3 || !texts.load(arguments[2]))
        return 1;
    libraries = QFileInfo(arguments[1]).absoluteDir().filePath(QStringLiteral("../.."));
    QLibrary module(arguments[1]);
    const auto entry = reinterpret_cast<QObject *(*)()>(module.resolve("qt_plugin_instance"));
    auto *const plugin = entry ? qobject_cast<IUIPlugin *>(entry()) : nullptr;
    QWidget window;
    QRect area;
    if (!plugin || plugin->Init() != 1 || plugin->ShowWindow(&window, area) != 1)
        return qCritical("%s", qPrintable(module.errorString())), 2;
    auto *const dialog = window.findChild<ExtendDialog *>();
    if (arguments.size() > 3) { // prints the rows, writes a picture and ends
        for (auto *tabs : dialog->findChildren<QTabWidget *>())
            for (int index = tabs->count() - 1; index >= 0; --index)
                tabs->setCurrentIndex(index); // reads the values
        for (QLabel *label : dialog->findChildren<QLabel *>())
            QTextStream(stdout) << label->text() << '\n';
        QTimer::singleShot(0, dialog, [&] { dialog->grab().save(arguments[3]), dialog->close(); });
    }
    QObject::connect(dialog, &ExtendDialog::dlgCloseEvent, &application, &QApplication::quit);
    const int code = application.exec();
    plugin->OnDestroy();
    delete entry();
    return module.unload() ? code : 3;
}
