// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "HostCore.h"

#include <QApplication>
#include <QFont>
#include <QProxyStyle>

namespace {

/// Fusion, with the margins and spacings that the plug-in's windows of a fixed size need.
class HostStyle : public QProxyStyle
{
public:
    HostStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

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
        case PM_LayoutVerticalSpacing:
            return 6;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }
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
    application.setFont(font);
    application.setStyle(new HostStyle);
}
