// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/dialogs/progress_dialog.h"
#include "support/scripted_dialogs.h"

#include <gtest/gtest.h>

#include <QTest>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(ProgressDialogTest, ItBlocksTheOwnerAndTheUserCantCloseIt)
{
    ScriptedModal modal;
    QWidget owner;
    owner.show();
    {
        dlog진행정도 dialog(modal, u"전송 중..."_s, 0, 40, &owner);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_TRUE(dialog.isModal());
        EXPECT_EQ(dialog.windowTitle(), u"전송 중..."_s);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        dialog.close();
        EXPECT_TRUE(dialog.isVisible());
    }
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(ProgressDialogTest, EachStepIsPaintedBeforeTheWorkGoesOn)
{
    ScriptedModal modal;
    int painted = 0;
    modal.whileEventsRun = [&painted] { ++painted; };
    dlog진행정도 dialog(modal, u"검색 중..."_s, 0, 100, nullptr);
    for (const int value : {10, 10, 55, 100})
        dialog.setValue(value);
    EXPECT_EQ(dialog.bar->value(), 100);
    // Once shown, and once for each value that is new.
    EXPECT_EQ(painted, 4);
}

} // namespace
} // namespace lumen
