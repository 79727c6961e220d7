// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/colors.h"

#include <QEvent>
#include <QWidget>

#include <cmath>
#include <utility>

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

/// Hears of the application's palette on behalf of a widget. The toolkit tells windows only; what
/// it hands down to their widgets is the change of their own palettes.
class SchemeWatch : public QObject
{
public:
    SchemeWatch(QWidget& owner, std::function<void()> follow)
        : QObject(&owner), m_follow(std::move(follow))
    {
        owner.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::PaletteChange) {
            // Else it is the owner itself that sets its colours.
            const qint64 desktop = QPalette().cacheKey();
            if (std::exchange(m_desktop, desktop) != desktop)
                m_follow();
        }
        return false;
    }

private:
    std::function<void()> m_follow;
    qint64 m_desktop = QPalette().cacheKey();
};

} // namespace

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

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
        // As it will be painted: finer parts than the screen has could pass.
        readable = QColor(QColor::fromHslF(hue < 0 ? 0 : hue, color.hslSaturationF(),
                                           start + (end - start) * share)
                              .rgb());
    }
    return readable;
}

QColor groundInScheme(const QColor& chosen, QPalette::ColorRole role)
{
    const QPalette desktop;
    const bool isLight = contrast(chosen, Qt::black) > contrast(chosen, Qt::white);
    return isDark(desktop) && isLight ? desktop.color(role) : chosen;
}

QColor textInScheme(const QColor& ground, const QColor& chosen)
{
    return isDark(QPalette()) ? readableOn(ground, chosen) : chosen;
}

void showScheme(QWidget& control, std::optional<RgbLong> ground)
{
    QPalette look; // the desktop's, none of its roles set: what is not set here goes on following
    const QColor selected = look.color(QPalette::Active, QPalette::HighlightedText);
    const QColor selection =
        readableOn(selected, look.color(QPalette::Active, QPalette::Highlight));
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        look.setColor(group, QPalette::HighlightedText, selected);
        look.setColor(group, QPalette::Highlight, selection);
    }
    if (ground) {
        const QColor shown = groundInScheme(toColor(*ground));
        look.setColor(QPalette::Base, shown);
        look.setColor(QPalette::Text, readableOn(shown, look.color(QPalette::Text)));
    }
    control.setPalette(look);
}

void onSchemeChange(QWidget& owner, std::function<void()> follow)
{
    new SchemeWatch(owner, std::move(follow));
}

} // namespace lumen
