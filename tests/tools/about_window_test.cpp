// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/about_window.h"

#include <gtest/gtest.h>

#include <QTest>

namespace lumen {
namespace {

TEST(AboutWindowTest, AfterTheStartItIsABoxThatEnterAndEscClose)
{
    frmAbout window;
    window.showSplash();
    window.hideSplash();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        window.show();
        EXPECT_FALSE(window.progressBar->isVisible());
        EXPECT_TRUE(window.cmdOK->isVisible());
        QTest::keyClick(&window, key);
        EXPECT_FALSE(window.isVisible());
    }
}

} // namespace
} // namespace lumen
