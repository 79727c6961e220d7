// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>

namespace lumen {

/// Shows a window, lays it out and makes it the active one, as keys and focus need it.
inline void showActive(QWidget& window)
{
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

} // namespace lumen
