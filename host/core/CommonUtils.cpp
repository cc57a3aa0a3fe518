// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "core/CommonUtils.h"
#include "HostCore.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QWindow>

namespace {

QString s_pluginLibraryPath;
QString s_settingsFile;

/// A message box that can always be closed. Closing it presses no button.
class MessageBox : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

protected:
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): QMessageBox's presses a button
    void closeEvent(QCloseEvent *event) override { QDialog::closeEvent(event); }

    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->matches(QKeySequence::Cancel))
            reject();
        else
            QMessageBox::keyPressEvent(event);
    }
};

/// The place of a window's frame.
struct Place
{
    QRect screen;
    QPoint centre;

    QPoint topLeft(QRect frame) const
    {
        frame.moveCenter(centre);
        // If the frame is larger than the screen, its upper left corner is visible.
        frame.moveLeft(qMax(screen.left(), qMin(frame.left(), screen.right() + 1 - frame.width())));
        frame.moveTop(qMax(screen.top(), qMin(frame.top(), screen.bottom() + 1 - frame.height())));
        return frame.topLeft();
    }
};

/// Places a window's frame when the window is first seen.
class FirstSight : public QObject
{
public:
    FirstSight(QWindow *window, const Place &place) : QObject(window), m_place(place)
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        auto *const window = static_cast<QWindow *>(object);
        if (event->type() == QEvent::Expose && window->isExposed()) {
            // QWidget::move() would do nothing if Qt has the window there already, but an earlier
            // move may still be on its way to the window manager.
            window->setFramePosition(m_place.topLeft(window->frameGeometry()));
            window->removeEventFilter(this);
            deleteLater();
        }
        return false;
    }

private:
    const Place m_place;
};

QString buttonText(const QString &text)
{
    return text.startsWith(QLatin1String("IDS_")) ? HostCore::pluginText(text) : text;
}

} // namespace

void HostCore::setPluginLibraryPath(const QString &path)
{
    s_pluginLibraryPath = path;
}

void HostCore::setSettingsFile(const QString &fileName)
{
    s_settingsFile = fileName;
}

void HostCore::placeFrame(QWidget *window, const QRect &screen, const QPoint &centre)
{
    const Place place{screen, centre};
    window->move(place.topLeft(window->frameGeometry()));
    QWindow *const native = window->windowHandle();
    if (native && !native->isExposed())
        new FirstSight(native, place);
}

QString CommonUtils::GetPluginLibraryPath()
{
    return s_pluginLibraryPath;
}

QString CommonUtils::GetSettings(const QString &group, const QString &key)
{
    if (s_settingsFile.isNull())
        return QString();
    const QSettings settings(s_settingsFile, QSettings::IniFormat);
    // QSettings returns a text with commas as a list.
    return settings.value(group + QLatin1Char('/') + key).toStringList().join(QLatin1String(", "));
}

int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget *parent, QString caption, QString text,
                             QString button1, QString button2, QString button3, bool modal,
                             Qt::WindowFlags flags, QDialog **box, QString details, bool centre)
{
    const Qt::WindowFlags dialogFlags =
        Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | flags;
    const QPointer<QMessageBox> messageBox(
        new MessageBox(icon, caption, text, QMessageBox::NoButton, parent, dialogFlags));
    messageBox->setObjectName(QStringLiteral("CommonUtils_messageBox"));
    messageBox->setTextFormat(Qt::PlainText);
    messageBox->setDetailedText(details);
    messageBox->setWindowModality(modal ? Qt::WindowModal : Qt::NonModal);
    QList<QAbstractButton *> buttons;
    for (const QString &button : {button1, button2, button3})
        buttons.append(button.isEmpty()
                           ? nullptr
                           : messageBox->addButton(buttonText(button), QMessageBox::AcceptRole));

    QEventLoop loop;
    QObject::connect(messageBox, &QDialog::finished, &loop, &QEventLoop::quit);
    QObject::connect(messageBox, &QObject::destroyed, &loop, [&loop, box] {
        // Not after the loop: *box may be a member of the parent, which may be deleted by then.
        if (box)
            *box = nullptr;
        loop.quit();
    });
    if (box)
        *box = messageBox;
    messageBox->show();
    if (centre)
        MoveCentre(messageBox);
    loop.exec(QEventLoop::DialogExec);

    if (!messageBox)
        return 0;
    QAbstractButton *const pressed = messageBox->clickedButton();
    const int number = pressed ? buttons.indexOf(pressed) + 1 : 0;
    delete messageBox;
    return number;
}

void CommonUtils::MoveCentre(QDialog *dialog)
{
    const QWidget *const parent =
        dialog->parentWidget() ? dialog->parentWidget()->window() : nullptr;
    const QRect screen = (parent ? parent : dialog)->screen()->availableGeometry();
    HostCore::placeFrame(dialog, screen,
                         parent ? parent->frameGeometry().center() : screen.center());
}

void CommonUtils::GetApplicationStringHeightAndWidth(const QString &text, int &height, int &width)
{
    const QFontMetrics metrics(QApplication::font());
    height = metrics.horizontalAdvance(text);
    // Letters that the font lacks are drawn in another font, which may be higher.
    width = metrics.size(Qt::TextSingleLine, text).height();
}
