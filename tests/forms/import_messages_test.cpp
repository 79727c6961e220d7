// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/files/import_messages.h"
#include "support/scripted_message_boxes.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QProgressDialog>
#include <QPushButton>
#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class ImportMessagesTest : public testing::Test
{
protected:
    static QProgressDialog* shownProgress()
    {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* progress = qobject_cast<QProgressDialog*>(window); progress != nullptr)
                return progress->isVisible() ? progress : nullptr;
        return nullptr;
    }
    void expectReadOnly(const QString& path)
    {
        boxes.expect(
            u"자료 가져오기"_s,
            path + u" 파일은 폴더에 쓸 수 없어 읽기 전용으로 보여 줍니다. 고친 것은 저장되지 "
                   u"않습니다.\r\n고치려면 파일을 쓸 수 있는 폴더로 옮기거나 폴더의 쓰기 권한을 "
                   u"얻은 뒤에 다시 실행하시기 바랍니다."_s,
            48);
    }

    ScriptedMessageBoxes boxes;
    ImportMessages messages{boxes};
    const QStringList losses{u"읽지 못한 행: 5"_s};
};

TEST_F(ImportMessagesTest, EachFileIsAskedAboutOnceAndTheAnswerHolds)
{
    for (const auto& [path, answer] :
         {std::pair(u"/a/qt.mdb"_s, Answer::No), std::pair(u"/a/myc.mdb"_s, Answer::Yes)}) {
        boxes.expect(u"자료 가져오기"_s,
                     path + u" 파일이 손상되어 다 읽지 못했습니다.\r\n읽지 못한 행: 5\r\n\r\n"
                            u"읽은 것만으로 바꾸어 쓸까요? 원본은 이름 끝에 .jet을 붙여 같은 "
                            u"폴더에 남겨 둡니다.\r\n[아니요]를 누르면 원본을 그대로 두고 읽기 "
                            u"전용으로 보여 줍니다."_s,
                     52, answer);
        EXPECT_EQ(messages.takesIncomplete(path, losses), answer == Answer::Yes);
        EXPECT_EQ(messages.takesIncomplete(path, losses), answer == Answer::Yes);
        messages.isReadOnly(path, losses); // who was asked knows
    }
}

TEST_F(ImportMessagesTest, AReadOnlyFileIsToldOnceUnlessNothingIsStoredAnyway)
{
    for (const QString& path : {u"/a/qt.mdb"_s, u"/a/myc.mdb"_s}) {
        expectReadOnly(path);
        messages.isReadOnly(path, {});
        messages.isReadOnly(path, {});
    }
    messages.setNothingIsStored();
    messages.isReadOnly(u"/a/sermons.mdb"_s, {});
    boxes.expect(u"자료 가져오기"_s,
                 u"/a/other.mdb 파일은 폴더에 쓸 수 없어 읽기 전용으로 보여 줍니다. 고친 것은 "
                 u"저장되지 않습니다.\r\n또 손상되어 다 읽지 못했습니다.\r\n읽지 못한 행: 5"_s,
                 48);
    messages.isReadOnly(u"/a/other.mdb"_s, losses);
}

TEST_F(ImportMessagesTest, ALongImportShowsItselfAndEndsAtTheUsersWish)
{
    const QString path = u"/a-long-folder"_s.repeated(20) + u"/qt.mdb"_s;
    EXPECT_TRUE(messages.goesOn(path, 900));
    EXPECT_EQ(shownProgress(), nullptr);
    EXPECT_TRUE(messages.goesOn(path, 1100));
    QProgressDialog* progress = shownProgress();
    ASSERT_NE(progress, nullptr);
    EXPECT_TRUE(progress->labelText().contains(path));
    EXPECT_EQ(progress->windowModality(), Qt::ApplicationModal);
    auto* button = progress->findChild<QPushButton*>();
    EXPECT_TRUE(progress->rect().contains(button->geometry()));
    EXPECT_TRUE(progress->screen()->geometry().contains(progress->geometry()))
        << "a long path leaves the button in reach";
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(messages.goesOn(path, 1200));
    messages.ended();
    EXPECT_EQ(shownProgress(), nullptr);
    EXPECT_TRUE(messages.goesOn(path, 1100)) << "the next one begins anew";
}

} // namespace
} // namespace lumen
