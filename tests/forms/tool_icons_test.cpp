// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/tool_icons.h"
#include "platform/controls/bars/active_tool_bars.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QMainWindow>
#include <QPalette>

#include <cmath>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// As the accessibility guidelines define it.
double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

class ToolIconsTest : public testing::TestWithParam<QRgb>
{
protected:
    ~ToolIconsTest() override { QGuiApplication::setPalette(m_before); }

private:
    QPalette m_before = QGuiApplication::palette();
};

TEST_P(ToolIconsTest, LinesCanBeToldFromTheGround)
{
    const QColor ground = QColor::fromRgb(GetParam());
    const bool dark = luminance(ground) < 0.2;
    QPalette look(ground);
    look.setColor(QPalette::Window, ground);
    look.setColor(QPalette::Base, ground);
    look.setColor(QPalette::Text, dark ? Qt::white : Qt::black);
    QGuiApplication::setPalette(look);
    QMainWindow window;
    ActiveToolBars bars(window);
    const QString bar = u"모음"_s;
    int drawn = 0;
    for (const QStringView id : {u"search", u"extract", u"copy-unicode", u"quick-move"}) {
        bars.add(ToolRow{id, id, ToolKind::Button, bar, u"", id});
        setToolIcons(window, bars);
        const QImage image = bars.tool(id).action()->icon().pixmap(48).toImage();
        double least = 21;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (const QColor dot = image.pixelColor(x, y); dot.alpha() == 255) {
                    least = std::min(least, contrast(dot, ground));
                    ++drawn;
                }
        EXPECT_GE(least, 4.4) << id.toString().toStdString(); // 4.5 but for the rounding of dots
    }
    EXPECT_GT(drawn, 400) << "the icons are there";
}

INSTANTIATE_TEST_SUITE_P(Grounds, ToolIconsTest,
                         testing::Values(0xffefefef, 0xff353535, 0xff2d2d2d, 0xff101418));

} // namespace
} // namespace lumen
