// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/colors.h"

#include <QWidget>

#include <cmath>

namespace lumen {
namespace {

// Contrast that the accessibility guidelines ask of running text.
constexpr double kReadableContrast = 4.5;

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

// Relative luminance of an sRGB colour, 0 black to 1 white.
double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

} // namespace

QColor toColor(RgbLong color)
{
    return {redPart(color), greenPart(color), bluePart(color)};
}

RgbLong toRgbLong(const QColor& color)
{
    return RGB(color.red(), color.green(), color.blue());
}

bool isDark(const QPalette& palette)
{
    return luminance(palette.color(QPalette::Base)) < luminance(palette.color(QPalette::Text));
}

QColor readableOn(const QColor& ground, const QColor& color)
{
    const bool lighten = contrast(ground, Qt::white) > contrast(ground, Qt::black);
    QColor readable = color;
    constexpr int kSteps = 20;
    for (int step = 1; step <= kSteps && contrast(ground, readable) < kReadableContrast; ++step) {
        const float hue = color.hslHueF();
        const float start = color.lightnessF();
        const float end = lighten ? 1.0F : 0.0F;
        const float share = static_cast<float>(step) / kSteps;
        readable = QColor::fromHslF(hue < 0 ? 0 : hue, color.hslSaturationF(),
                                    start + (end - start) * share);
    }
    return readable;
}

void keepSelectionColors(QWidget& control)
{
    QPalette look = control.palette();
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText})
        look.setColor(QPalette::Inactive, role, look.color(QPalette::Active, role));
    control.setPalette(look);
}

} // namespace lumen
