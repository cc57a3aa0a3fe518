// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "HostCore.h"
#include "core/CommonUtils.h"
#include "core/ExtendDialog.h"

#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <QtTest>

namespace {

void closeByTitleBar(QWidget *window)
{
    QCloseEvent event;
    QApplication::sendEvent(window->windowHandle(), &event);
}

/// How a dialog ends.
struct DialogEnding
{
    const char *name;
    bool shown;
    bool destroys;
    void (*run)(ExtendDialog *d, QWidget *parent);
};

/// What happens to a message box, and the result.
struct BoxEnding
{
    const char *name;
    int result;
    void (*run)(QMessageBox *b, QWidget *parent);
};

// clang-format off
const DialogEnding dialogEndings[] = {
    {"close", true, false, [](ExtendDialog *d, QWidget *) { d->close(); }},
    {"title bar", true, false, [](ExtendDialog *d, QWidget *) { closeByTitleBar(d); }},
    {"Esc", true, false, [](ExtendDialog *d, QWidget *) { QTest::keyClick(d, Qt::Key_Escape); }},
    {"accept", true, false, [](ExtendDialog *d, QWidget *) { d->accept(); }},
    {"delete", true, true, [](ExtendDialog *d, QWidget *) { delete d; }},
    {"parent", true, true, [](ExtendDialog *, QWidget *p) { delete p; }},
    {"close, never shown", false, false, [](ExtendDialog *d, QWidget *) { d->close(); }},
    {"parent, never shown", false, true, [](ExtendDialog *, QWidget *p) { delete p; }},
};
enum Afterwards { Nothing, DeletedOnClose, SlotDeletesLater, SlotDeletes, FinishedDeletes };
const char *const afterwards[] = {"", ", deleted on close", ", slot deletes later", ", slot deletes",
                                  ", slot of finished() deletes"};

const BoxEnding boxEndings[] = {
    {"second button", 2, [](QMessageBox *b, QWidget *) { b->buttons().at(1)->click(); }},
    {"Return presses the first", 1, [](QMessageBox *b, QWidget *) { QTest::keyClick(b, Qt::Key_Return); }},
    {"Esc presses none", 0, [](QMessageBox *b, QWidget *) { QTest::keyClick(b, Qt::Key_Escape); }},
    {"title bar presses none", 0, [](QMessageBox *b, QWidget *) { closeByTitleBar(b); }},
    {"parent goes", 0, [](QMessageBox *, QWidget *p) { delete p; }},
    {"parent of a modeless one goes", 0, [](QMessageBox *, QWidget *p) { delete p; }},
};
// clang-format on

} // namespace

class DialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsOnce_data()
    {
        QTest::addColumn<int>("ending");
        QTest::addColumn<int>("after");
        for (const DialogEnding &ending : dialogEndings) {
            // A slot cannot delete what is being deleted, and only a visible dialog finishes.
            const Afterwards last = ending.destroys ? SlotDeletesLater
                                    : ending.shown  ? FinishedDeletes
                                                    : SlotDeletes;
            for (int after = Nothing; after <= last; ++after)
                QTest::addRow("%s%s", ending.name, afterwards[after])
                    << int(&ending - dialogEndings) << after;
        }
    }

    void endsOnce()
    {
        QFETCH(int, ending);
        QFETCH(int, after);
        QPointer<QWidget> parent(new QWidget);
        QPointer<ExtendDialog> dialog(new ExtendDialog(parent, Qt::WindowCloseButtonHint, 1));
        dialog->setAttribute(Qt::WA_DeleteOnClose, after == DeletedOnClose);
        int signalled = 0;
        connect(dialog, &ExtendDialog::dlgCloseEvent, this, [&] {
            ++signalled;
            if (after == SlotDeletesLater)
                dialog->deleteLater();
            else if (after == SlotDeletes)
                delete dialog;
        });
        if (after == FinishedDeletes)
            connect(dialog, &QDialog::finished, this, [&] { delete dialog; });
        if (dialogEndings[ending].shown)
            dialog->show();

        dialogEndings[ending].run(dialog, parent);
        QCOMPARE(signalled, 1);
        QVERIFY(!dialog || !dialog->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(dialog.isNull(), dialogEndings[ending].destroys || after != Nothing);
        delete parent;
        QCOMPARE(signalled, 1);
    }

    void frame()
    {
        ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, 1);
        QVERIFY(dialog.isWindow());
        QVERIFY(dialog.windowFlags().testFlag(Qt::WindowTitleHint));
        QVERIFY(dialog.windowFlags().testFlag(Qt::WindowCloseButtonHint));
        QPointer<QWidget> first(new QWidget);
        dialog.AddMainWidget(first);
        dialog.AddMainWidget(nullptr);
        dialog.AddMainWidget(first);
        QVERIFY(first);
        auto *second = new QWidget;
        dialog.AddMainWidget(second);
        QVERIFY(!first);
        delete second;
        auto *third = new QWidget;
        dialog.AddMainWidget(third);
        dialog.changeSize(QSize(356, 300));
        dialog.show();
        QCOMPARE(third->geometry(), QRect(0, 0, 356, 300));
        dialog.resize(500, 500);
        QCOMPARE(dialog.size(), QSize(356, 300));
    }

    void message_data()
    {
        QTest::addColumn<int>("ending");
        for (const BoxEnding &ending : boxEndings)
            QTest::newRow(ending.name) << int(&ending - boxEndings);
    }

    void message()
    {
        QFETCH(int, ending);
        const bool modal = ending % 2 == 0;
        QVERIFY(HostCore::setLanguage(TRANSLATIONS_DIR, "de"));
        QPointer<QWidget> parent(new QWidget);
        parent->setGeometry(100, 80, 400, 300);
        QDialog *out = nullptr;
        QStringList seen;
        QTimer::singleShot(0, this, [&] {
            auto *box = parent->findChild<QMessageBox *>("CommonUtils_messageBox");
            if (!box || box != out || !box->isVisible())
                return;
            seen << box->text() << box->detailedText();
            for (const QAbstractButton *button : box->buttons().mid(0, 2))
                seen << button->text();
            seen << (box->textFormat() == Qt::PlainText ? "plain" : "rich")
                 << (box->windowModality() == Qt::WindowModal ? "modal" : "modeless");
            // Qt would put it beside the centre, by a pixel or more.
            const QPoint middle = parent->frameGeometry().center();
            seen << (!modal || box->frameGeometry().center() == middle ? "placed" : "misplaced");
            boxEndings[ending].run(box, parent);
        });
        QTimer::singleShot(2000, parent, [] { qFatal("The box stays open."); });
        const int pressed = CommonUtils::ShowMessage(
            QMessageBox::Information, parent, QString(), "<b>Text", "IDS_MAINFRM_CANCEL_PROMPT",
            "Later", QString(), modal, Qt::WindowCloseButtonHint, &out, "Details", modal);
        QCOMPARE(seen.join('|'), QString("<b>Text|Details|A&bbrechen|Later|plain|%1|placed")
                                     .arg(modal ? "modal" : "modeless"));
        QCOMPARE(pressed, boxEndings[ending].result);
        QVERIFY(!out);
        QVERIFY(!parent || parent->findChildren<QMessageBox *>().isEmpty());
        delete parent;
    }

    /// In the middle of the parent, or against an edge of the screen.
    void centre()
    {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        struct
        {
            QRect parent;
            QPoint (QRect::*point)() const;
            QPoint expected;
        } const rows[] = {
            {QRect(100, 80, 400, 300), &QRect::center, QPoint(299, 229)},
            {QRect(screen.right() - 60, 80, 400, 300), &QRect::topRight,
             QPoint(screen.right(), 178)},
            {QRect(100, screen.bottom() - 60, 400, 300), &QRect::bottomLeft,
             QPoint(198, screen.bottom())},
            {QRect(-380, -280, 400, 300), &QRect::topLeft, screen.topLeft()},
            {QRect(), &QRect::center, screen.center()}, // without a parent
        };
        for (const auto &row : rows) {
            QWidget window;
            QWidget child(&window); // the dialog is centred on its window
            window.setGeometry(row.parent);
            QDialog dialog(row.parent.isNull() ? nullptr : &child);
            dialog.setFixedSize(200, 100);
            dialog.show();
            CommonUtils::MoveCentre(&dialog);
            QCOMPARE((dialog.frameGeometry().*row.point)(), row.expected);
        }
    }
};

QTEST_MAIN(DialogsTest)
#include "dialogs.moc"
