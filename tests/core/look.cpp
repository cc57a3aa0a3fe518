// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "HostCore.h"
#include "core/Change.h"
#include "core/CommonUtils.h"
#include "core/ExtendDialog.h"

#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

namespace {

QString text(const QString &key)
{
    return Change::tr(QLatin1String("IDS_") + key, QStringLiteral("DiagnosisPlugin"));
}

/// The captions of the shipped files, the longest page's first.
const char captionKeys[] =
    "DIAGNOSE_NETWORK_NAME DIAGNOSE_NETWORK_TYPE DIAGNOSE_SIGNAL_STRENGTH DIAGNOSE_RSSI "
    "DIAGNOSE_RSQUAL DIAGNOSE_RSCP DIAGNOSE_ECIO DIAGNOSE_ECNO DIAGNOSE_CELL_ID DIAGNOSE_LAC "
    "DIAGNOSE_CS_REGISTRATION DIAGNOSE_PS_REGISTRATION DIAGNOSE_PS_ATTACHMENT "
    "DIAGNOSE_IP_ADDRESS DIAGNOSE_DNS_SERVER DIAGNOSE_DEVICE_NAME DIAGNOSE_APPLICATION_PORT "
    "DIAGNOSE_SERIAL_NUMBER DIAGNOSE_IMEI DIAGNOSE_HARDWARE_VERSION "
    "DIAGNOSE_FIRMWARE_VERSION DIAGNOSE_SOFTWARE_VERSION DIAGNOSE_APN "
    "DIAGNOSE_SELECTION_MODE DIAGNOSE_IMSI DIAGNOSE_OWN_NUMBER DIAGNOSE_SIM_MESSAGES "
    "DIAGNOSE_SIM_CONTACTS DIAGNOSE_SMSC DIAGNOSE_PIN_STATUS DIAGNOSE_ICCID "
    "MAINFRM_SIM_MESSAGE_CONTENT_PROMPT MAINFRM_SIM_CONTACT_CONTENT "
    "MAINFRM_NV_MESSAGE_CONTENT MAINFRM_NV_CONTACT_CONTENT MAINFRM_IMSI "
    "MAINFRM_FIRMWARE_VERSION MAINFRM_HARDWARE_VERSION MAINFRM_VOLTAGE DIAGNOSE_PRL_VER "
    "NUM_CARRIERS_PROMPT MAINFRM_ESN MAINFRM_PESN DIAGNOSE_MEID";
const QStringList captions = QString::fromLatin1(captionKeys).split(QLatin1Char(' '));

} // namespace

class LookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { HostCore::applyLook(*qApp); }

    void captionsFit_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << QStringLiteral("en");
        QTest::newRow("German") << QStringLiteral("de");
    }
    void pageOf15Rows_data() { captionsFit_data(); }

    void captionsFit()
    {
        QFETCH(QString, language);
        QVERIFY(HostCore::setLanguage(QStringLiteral(TRANSLATIONS_DIR), language));
        for (const QString &key : captions) {
            const QLabel caption(text(key));
            QVERIFY2(caption.sizeHint().width() <= 185, qPrintable(key));
            QVERIFY2(!caption.text().isEmpty() && !caption.text().contains(QLatin1Char(':')),
                     qPrintable(key));
        }
    }

    void pageOf15Rows()
    {
        QFETCH(QString, language);
        QVERIFY(HostCore::setLanguage(QStringLiteral(TRANSLATIONS_DIR), language));
        ExtendDialog dialog(nullptr, Qt::WindowCloseButtonHint, 1);
        auto *content = new QWidget(&dialog);
        dialog.AddMainWidget(content);
        auto *tabs = new QTabWidget(content);
        tabs->setMaximumSize(450, 365);
        auto *page = new QWidget(tabs);
        for (const char *tab : {"TAB_DEVICE", "TAB_NETWORK_SETTINGS", "TAB_SIM"})
            tabs->addTab(new QWidget(tabs), text(QLatin1String(tab)));
        tabs->setCurrentIndex(tabs->addTab(page, text(QStringLiteral("TAB_NETWORK_STATUS"))));
        auto *form = new QFormLayout(page);
        for (int i = 0; i < 15; ++i) {
            auto *caption = new QLabel(text(captions.at(i)), page);
            auto *value = new QLabel(QStringLiteral("89490200001234567890"), page);
            caption->setFixedWidth(185);
            value->setWordWrap(true);
            value->setTextFormat(Qt::PlainText);
            value->setTextInteractionFlags(Qt::TextSelectableByMouse);
            form->addRow(caption, value);
        }
        auto *main = new QVBoxLayout;
        auto *top = new QHBoxLayout;
        auto *bottom = new QHBoxLayout;
        main->addLayout(top);
        main->addLayout(bottom);
        content->setLayout(main);
        top->addWidget(tabs);
        for (const char *key : {"SAVE", "REFRESH", "CANCEL"}) {
            if (bottom->count() > 0)
                bottom->addSpacing(26);
            bottom->addWidget(new QPushButton(
                text(QStringLiteral("MAINFRM_%1_PROMPT").arg(QLatin1String(key))), content));
        }
        bottom->setContentsMargins(0, 0, 15, 0);
        main->setAlignment(bottom, Qt::AlignRight);
        dialog.setFixedSize(460, 426);
        dialog.show();

        QVERIFY(content->sizeHint().height() <= 426);
        QVERIFY(content->minimumSizeHint().width() <= 460);
        QVERIFY(tabs->sizeHint().height() <= 365);
        QVERIFY(tabs->width() >= 440);
        QVERIFY(tabs->tabBar()->sizeHint().width() <= tabs->width());
        const QWidgetList widgets =
            content->findChildren<QWidget *>(QRegularExpression(QStringLiteral("^(?!qt_)")));
        for (const QWidget *widget : widgets) {
            if (!widget->isVisible() || !(qobject_cast<const QLabel *>(widget) ||
                                          qobject_cast<const QPushButton *>(widget)))
                continue;
            const QSize hint = widget->sizeHint();
            QVERIFY2(widget->width() >= hint.width() && widget->height() >= hint.height(),
                     qPrintable(widget->property("text").toString()));
            const QRect place(widget->mapTo(content, QPoint()), widget->size());
            QVERIFY(content->rect().contains(place));
        }
    }

    /// The window of CDMA devices gives each of its rows 35 pixels of a box.
    void rowsOfTheBox()
    {
        for (int rows : {7, 12}) {
            QFrame box;
            box.setFrameStyle(QFrame::Box);
            auto *form = new QFormLayout(&box);
            form->setVerticalSpacing(20);
            for (int i = 0; i < rows; ++i) {
                int width = 0;
                int rowHeight = 0;
                CommonUtils::GetApplicationStringHeightAndWidth(text(captions.at(i)), width,
                                                                rowHeight);
                auto *caption = new QLabel(text(captions.at(i)), &box);
                auto *value = new QLabel(QStringLiteral("89490200001234567890"), &box);
                QCOMPARE(width, caption->fontMetrics().horizontalAdvance(caption->text()));
                QVERIFY(rowHeight >= value->sizeHint().height());
                caption->setMinimumSize(185, rowHeight);
                value->setFixedHeight(rowHeight);
                form->addRow(caption, value);
            }
            QVERIFY(box.sizeHint().height() <= rows * 35);
            QVERIFY(box.sizeHint().width() <= 356);
        }
    }
};

QTEST_MAIN(LookTest)
#include "look.moc"
