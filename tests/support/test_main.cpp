// SPDX-License-Identifier: GPL-2.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryFile>

namespace {

// The second screen is the smaller one, and its head lies lower. Their dots grow with the scale:
// the pixels of windows stay as many, and so does the layout.
QByteArray twoScreens(double scale)
{
    const auto dots = [scale](int pixels) { return QByteArray::number(qRound(pixels * scale)); };
    const QByteArray resolution = R"("logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1)";
    return R"({"screens": [{"name": "main", "x": 0, "y": 0, "width": )" + dots(800) +
           R"(, "height": )" + dots(800) + ", " + resolution + R"(}, {"name": "second", "x": )" +
           dots(800) + R"(, "y": )" + dots(100) + R"(, "width": )" + dots(700) + R"(, "height": )" +
           dots(600) + ", " + resolution + "}]}";
}

} // namespace

int main(int argc, char** argv)
{
    // The screen that the tests run on has no say; a test of scales names its own.
    const QByteArray scale = qEnvironmentVariableIsSet("LUMEN_TEST_SCALE")
                                 ? qgetenv("LUMEN_TEST_SCALE")
                                 : QByteArray("1");
    QTemporaryFile screens;
    if (!screens.open() || screens.write(twoScreens(scale.toDouble())) < 0 || !screens.flush())
        return 1;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
    qputenv("QT_SCALE_FACTOR", scale);
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
