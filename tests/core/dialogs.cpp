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

struct Ending
{
    const char *name;
    bool shown;
    bool destroys;
    void (*run)(ExtendDialog *dialog, QWidget *parent);
};

const Ending endings[] = {
    {"close", true, false, [](ExtendDialog *d, QWidget *) { d->close(); }},
    {"title bar", true, false,
     [](ExtendDialog *d, QWidget *) {
         QCloseEvent event;
         QApplication::sendEvent(d->windowHandle(), &event);
     }},
    {"Esc", true, false, [](ExtendDialog *d, QWidget *) { QTest::keyClick(d, Qt::Key_Escape); }},
    {"reject", true, false, [](ExtendDialog *d, QWidget *) { d->reject(); }},
    {"accept", true, false, [](ExtendDialog *d, QWidget *) { d->accept(); }},
    {"delete", true, true, [](ExtendDialog *d, QWidget *) { delete d; }},
    {"parent", true, true, [](ExtendDialog *, QWidget *p) { delete p; }},
    {"close, never shown", false, false, [](ExtendDialog *d, QWidget *) { d->close(); }},
    {"delete, never shown", false, true, [](ExtendDialog *d, QWidget *) { delete d; }},
    {"parent, never shown", false, true, [](ExtendDialog *, QWidget *p) { delete p; }},
};

enum Afterwards
{
    Nothing,
    DeletesOnClose,
    SlotDeletesLater,
    SlotDeletes
};

/// What the user does with the message box of the test.
struct Answer
{
    const char *name;
    int expected;
    void (*run)(QMessageBox *box, QWidget *parent);
};

const Answer answers[] = {
    {"first button", 1, [](QMessageBox *b, QWidget *) { b->buttons().at(0)->click(); }},
    {"second button", 2, [](QMessageBox *b, QWidget *) { b->buttons().at(1)->click(); }},
    {"Return presses the first", 1,
     [](QMessageBox *b, QWidget *) { QTest::keyClick(b, Qt::Key_Return); }},
    {"Esc presses none", 0, [](QMessageBox *b, QWidget *) { QTest::keyClick(b, Qt::Key_Escape); }},
    {"title bar presses none", 0, [](QMessageBox *b, QWidget *) { b->close(); }},
    {"parent goes", 0, [](QMessageBox *, QWidget *p) { delete p; }},
};

} // namespace

class DialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(HostCore::setLanguage(QStringLiteral(TRANSLATIONS_DIR), QStringLiteral("en")));
    }

    void endsOnce_data()
    {
        QTest::addColumn<int>("ending");
        QTest::addColumn<int>("afterwards");
        const char *const names[] = {"", ", deleted on close", ", slot deletes later",
                                     ", slot deletes"};
        for (int i = 0; i < int(sizeof endings / sizeof *endings); ++i) {
            // A slot that deletes what is being deleted has no chance.
            for (int after = Nothing;
                 after <= (endings[i].destroys ? SlotDeletesLater : SlotDeletes); ++after)
                QTest::addRow("%s%s", endings[i].name, names[after]) << i << after;
        }
    }

    void endsOnce()
    {
        QFETCH(int, ending);
        QFETCH(int, afterwards);
        QPointer<QWidget> parent(new QWidget);
        QPointer<ExtendDialog> dialog(new ExtendDialog(parent, Qt::WindowCloseButtonHint, 1));
        dialog->setAttribute(Qt::WA_DeleteOnClose, afterwards == DeletesOnClose);
        int signalled = 0;
        connect(dialog, &ExtendDialog::dlgCloseEvent, this, [&] {
            ++signalled;
            if (afterwards == SlotDeletesLater)
                dialog->deleteLater();
            else if (afterwards == SlotDeletes)
                delete dialog;
        });
        if (endings[ending].shown)
            dialog->show();

        endings[ending].run(dialog, parent);
        QCOMPARE(signalled, 1);
        QVERIFY(!dialog || !dialog->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(dialog.isNull(), endings[ending].destroys || afterwards != Nothing);
        delete parent;
        QCOMPARE(signalled, 1);
    }

    void frame()
    {
        ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, 1);
        QVERIFY(dialog.isWindow());
        QVERIFY(dialog.windowFlags() & Qt::WindowTitleHint);
        QVERIFY(dialog.windowFlags() & Qt::WindowCloseButtonHint);
        QPointer<QWidget> first(new QWidget);
        auto *second = new QWidget;
        dialog.AddMainWidget(first);
        dialog.AddMainWidget(nullptr);
        dialog.AddMainWidget(first);
        QVERIFY(first);
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
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("modal");
        for (int i = 0; i < int(sizeof answers / sizeof *answers); ++i) {
            QTest::addRow("%s", answers[i].name) << i << true;
            QTest::addRow("%s, modeless", answers[i].name) << i << false;
        }
    }

    void message()
    {
        QFETCH(int, answer);
        QFETCH(bool, modal);
        QPointer<QWidget> parent(new QWidget);
        QDialog *out = nullptr;
        QString seen;
        QTimer::singleShot(0, this, [&] {
            auto *box = parent->findChild<QMessageBox *>(QStringLiteral("CommonUtils_messageBox"));
            QVERIFY(box && box == out && box->isVisible());
            seen = box->text() + QLatin1Char('|') + box->detailedText() + QLatin1Char('|') +
                   box->buttons().at(0)->text() + QLatin1Char('|') + box->buttons().at(1)->text();
            QCOMPARE(box->textFormat(), Qt::PlainText);
            QCOMPARE(box->windowModality(), modal ? Qt::WindowModal : Qt::NonModal);
            answers[answer].run(box, parent);
        });
        const int pressed = CommonUtils::ShowMessage(
            QMessageBox::Information, parent, QStringLiteral("Caption"), QStringLiteral("<b>Text"),
            QStringLiteral("IDS_OK"), QStringLiteral("Later"), QString(), modal,
            Qt::WindowCloseButtonHint, &out, QStringLiteral("Details"), true);
        QCOMPARE(seen, QStringLiteral("<b>Text|Details|OK|Later"));
        QCOMPARE(pressed, answers[answer].expected);
        QVERIFY(!out);
        QVERIFY(!parent || parent->findChildren<QMessageBox *>().isEmpty());
        delete parent;
    }

    void centre_data()
    {
        QTest::addColumn<QRect>("parent");
        QTest::addColumn<QPoint>("expected");
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QTest::newRow("middle of the parent") << QRect(100, 80, 400, 300) << QPoint(300, 230);
        QTest::newRow("kept on the screen, lower right")
            << QRect(screen.right() - 60, screen.bottom() - 60, 400, 300)
            << screen.bottomRight() - QPoint(100, 50);
        QTest::newRow("kept on the screen, upper left")
            << QRect(-380, -280, 400, 300) << screen.topLeft() + QPoint(100, 50);
        QTest::newRow("no parent") << QRect() << screen.center();
    }

    void centre()
    {
        QFETCH(QRect, parent);
        QFETCH(QPoint, expected);
        QWidget window;
        // The child's window counts, not the child.
        QWidget child(&window);
        window.setGeometry(parent);
        QDialog dialog(parent.isNull() ? nullptr : &child);
        dialog.setFixedSize(200, 100);
        dialog.show();
        CommonUtils::MoveCentre(&dialog);
        const QPoint distance = dialog.frameGeometry().center() - expected;
        // The window frame's width may come to it.
        QVERIFY(distance.manhattanLength() <= 8);
    }
};

QTEST_MAIN(DialogsTest)
#include "dialogs.moc"
