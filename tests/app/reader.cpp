// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "DiagnosticsReader.h"

#include <QDialog>
#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QTabWidget>
#include <QtTest>

namespace {

void addRow(QWidget *page, const char *name, const char *caption, const char *value)
{
    auto *form = qobject_cast<QFormLayout *>(page->layout());
    if (!form)
        form = new QFormLayout(page);
    const QString objectName = QStringLiteral("DiagnosticsUIPlugin_label") + QLatin1String(name);
    auto *const captionLabel = new QLabel(QLatin1String(caption));
    auto *const valueLabel = new QLabel(QLatin1String(value));
    captionLabel->setObjectName(objectName);
    valueLabel->setObjectName(objectName + QStringLiteral("Value"));
    form->addRow(captionLabel, valueLabel);
}

} // namespace

class ReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tabs()
    {
        QWidget host;
        host.show();
        QVERIFY(!DiagnosticsReader().window());
        QDialog dialog(&host);
        QTabWidget tabs(&dialog);
        tabs.setObjectName(QStringLiteral("DiagnosticsUIPlugin_tabWidgetDiag"));
        for (const char *name : {"Device", "A/B Tab"}) {
            auto *const page = new QWidget;
            page->setObjectName(
                QStringLiteral("DiagnosticsUIPlugin_%1Tab").arg(QLatin1String(name)));
            tabs.addTab(page, QStringLiteral("Title of %1").arg(QLatin1String(name)));
        }
        addRow(tabs.widget(0), "IMEI", "IMEI number", "001");
        addRow(tabs.widget(1), "x", "Twice", "first");
        addRow(tabs.widget(1), "x", "Twice", "");
        qobject_cast<QFormLayout *>(tabs.widget(1)->layout())
            ->addRow(QStringLiteral("Not ours"), new QLabel(QStringLiteral("x")));
        // A page is filled when it is visited, as in the real window.
        connect(&tabs, &QTabWidget::currentChanged, this, [&](int index) {
            if (index == 1)
                tabs.findChildren<QLabel *>(QStringLiteral("DiagnosticsUIPlugin_labelxValue"))
                    .last()
                    ->setText(QStringLiteral("visited"));
        });
        QVERIFY(!DiagnosticsReader().window());
        dialog.show();

        const DiagnosticsReader reader;
        QCOMPARE(reader.window(), &dialog);
        QCOMPARE(reader.tabNames(),
                 QStringList({QStringLiteral("Device"), QStringLiteral("A/B Tab")}));
        QCOMPARE(reader.text(), QStringLiteral("Title of Device\n  IMEI number: 001\n\n"
                                               "Title of A/B Tab\n  Twice: first\n"
                                               "  Twice: visited\n"));
        QCOMPARE(tabs.currentIndex(), 0);
        QVERIFY(!reader.selectTab(QStringLiteral("Title of Device")));
        QVERIFY(reader.selectTab(QStringLiteral("A/B Tab")));
        QCOMPARE(tabs.currentIndex(), 1);
    }

    void box()
    {
        auto *const dialog = new QDialog;
        dialog->setWindowTitle(QStringLiteral("Diagnostics"));
        auto *const box = new QFrame(dialog);
        box->setObjectName(QStringLiteral("DiagnosticsUIPlugin_frameCdmaDiag"));
        addRow(box, "IDS_MAINFRM_ESN", "ESN", "80ABCDEF");
        dialog->show();
        const DiagnosticsReader reader;
        QCOMPARE(reader.text(), QStringLiteral("Diagnostics\n  ESN: 80ABCDEF\n"));
        QCOMPARE(reader.tabNames(), QStringList());
        QVERIFY(!reader.selectTab(QString()));
        delete dialog;
        QVERIFY(!reader.window());
        QCOMPARE(reader.text(), QString());
    }
};

QTEST_MAIN(ReaderTest)
#include "reader.moc"
