// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "HostCore.h"

#include <QApplication>
#include <QFont>
#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QProxyStyle>
#include <QToolTip>

namespace {

/// Marks the labels that cannot show all of their text: a word is wider than the label, or there
/// are more lines than room. The mark lies upon the end of that line, and a tool tip shows the
/// whole text.
class ClippedTexts : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // While a label is deleted it gets other events, when it is only a QWidget.
        if (event->type() != QEvent::Paint && event->type() != QEvent::ToolTip)
            return false;
        auto *const label = static_cast<QLabel *>(watched);
        const int line = clippedLine(label);
        if (line < 0)
            return false;
        if (event->type() == QEvent::Paint) {
            watched->event(event);
            mark(label, line);
        } else {
            QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                               QLatin1String("<p>") + label->text().toHtmlEscaped(), label);
        }
        return true;
    }

private:
    /// The top of the line that is cut off; -1 if none is.
    static int clippedLine(const QLabel *label)
    {
        const QFontMetrics metrics = label->fontMetrics();
        if (metrics.horizontalAdvance(label->text()) <= label->width())
            return -1;
        const int missing = label->heightForWidth(label->width()) - label->height();
        if (missing > 0)
            return label->height() - metrics.height();
        const int above =
            label->wordWrap() ? -missing / 2 : (label->height() - metrics.height()) / 2;
        return label->minimumSizeHint().width() > label->width() ? above : -1;
    }

    static void mark(QLabel *label, int line)
    {
        const QString text(QChar(0x2026)); // an ellipsis
        const QFontMetrics metrics = label->fontMetrics();
        const int width = metrics.horizontalAdvance(text) + 4;
        const QRect box(label->width() - width, line, width, metrics.height());
        QPainter painter(label);
        painter.fillRect(box, label->palette().windowText());
        painter.setPen(label->palette().window().color());
        painter.drawText(box, Qt::AlignCenter, text);
    }
};

/// Fusion, with the margins and spacings that the plug-in's windows of a fixed size need.
class HostStyle : public QProxyStyle
{
public:
    HostStyle() : QProxyStyle(QStringLiteral("Fusion")), m_clippedTexts(new ClippedTexts(this)) {}

    using QProxyStyle::polish;
    void polish(QWidget *widget) override
    {
        QProxyStyle::polish(widget);
        if (qobject_cast<QLabel *>(widget))
            widget->installEventFilter(m_clippedTexts);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        switch (metric) {
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
            return 5;
        case PM_LayoutHorizontalSpacing:
            return 6;
        case PM_LayoutVerticalSpacing:
            return 3;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

private:
    QObject *const m_clippedTexts;
};

/// Keeps the application's font. Some platform themes set another one while the program runs.
class FontKeeper : public QObject
{
public:
    FontKeeper(QApplication *application, const QFont &font) : QObject(application), m_font(font)
    {
        application->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::ApplicationFontChange && QApplication::font() != m_font)
            QApplication::setFont(m_font);
        return false;
    }

private:
    const QFont m_font;
};

} // namespace

void HostCore::applyLook(QApplication &application)
{
    const QString family = QStringLiteral("DejaVu Sans");
    // DejaVu has no Chinese letters. Those of this font are no higher.
    QFont::insertSubstitution(family, QStringLiteral("WenQuanYi Micro Hei"));
    QFont font(family);
    font.setStyleHint(QFont::SansSerif);
    // In pixels, because the windows have fixed sizes in pixels.
    font.setPixelSize(12);
    // Else the style's measures follow the desktop's resolution, and the tabs do not fit.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    application.setFont(font);
    new FontKeeper(&application, font);
    application.setStyle(new HostStyle);
}
