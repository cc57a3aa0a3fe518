// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "HostCore.h"
#include "core/Change.h"
#include "core/CommonUtils.h"

#include <QLabel>
#include <QtTest>

class LookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void captionsFit()
    {
        HostCore::applyLook(*qApp);
        const QString folder = QStringLiteral(TRANSLATIONS_DIR);
        for (const QString &language : HostCore::languages(folder)) {
            QVERIFY(HostCore::setLanguage(folder, language));
            QFile captions(QStringLiteral(TEST_SOURCE_DIR "/captions.txt"));
            QVERIFY(captions.open(QIODevice::ReadOnly));
            while (!captions.atEnd()) {
                const QByteArray key = captions.readLine().trimmed();
                const QString text =
                    Change::tr(QLatin1String(key), QStringLiteral("DiagnosisPlugin"));
                const QLabel caption(text);
                QVERIFY2(!text.isEmpty() && !text.contains(QLatin1Char(':')), key);
                QVERIFY2(caption.sizeHint().width() <= 185, key);
                // The window of CDMA devices gives each row 35 pixels, 20 of them between the rows.
                int width = 0;
                int rowHeight = 0;
                CommonUtils::GetApplicationStringHeightAndWidth(text, width, rowHeight);
                QCOMPARE(width, caption.fontMetrics().horizontalAdvance(text));
                QVERIFY(rowHeight >= caption.sizeHint().height() && rowHeight <= 15);
            }
        }
    }
};

QTEST_MAIN(LookTest)
#include "look.moc"
