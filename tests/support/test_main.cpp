// SPDX-License-Identifier: GPL-2.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryFile>

namespace {

// The second screen is the smaller one, and its head lies lower.
constexpr const char* kTwoScreens = R"({"screens": [
    {"name": "main", "x": 0, "y": 0, "width": 800, "height": 800,
     "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
    {"name": "second", "x": 800, "y": 100, "width": 700, "height": 600,
     "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

} // namespace

int main(int argc, char** argv)
{
    QTemporaryFile screens;
    if (!screens.open() || screens.write(kTwoScreens) < 0 || !screens.flush())
        return 1;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
    // Screens of every size must give the same layout in tests.
    qputenv("QT_SCALE_FACTOR", "1");
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
