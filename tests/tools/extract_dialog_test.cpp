// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/active_window.h"
#include "support/tiny_data.h"
#include "text/original/original_unicode.h"
#include "tools/extract_dialog.h"
#include "tools/insert_dialog.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLineEdit>
#include <QTest>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr int kGenesis = 0;
constexpr int kJohn = 42;

class ExtractDialogTest : public testing::Test
{
protected:
    template <typename Dialog, typename... More>
    std::unique_ptr<Dialog> open(More... more)
    {
        auto dialog = std::make_unique<Dialog>(world.services, world.state, more...);
        dialog->Form_Load();
        showActive(*dialog);
        return dialog;
    }
    static void choose(VerseRangeDialog& dialog, const QString& version, int book, int chapter)
    {
        dialog.cb버전->setListIndex(dialog.cb버전->findItem(version));
        dialog.cb책명->setListIndex(65 - book); // another one, so that the lists are filled anew
        dialog.cb책명->setListIndex(book);
        dialog.cb장->setListIndex(chapter - 1);
    }
    static void type(ComboBox& box, const QString& text)
    {
        box.setFocus();
        box.lineEdit()->selectAll();
        QTest::keyClicks(box.lineEdit(), text);
    }
    static void verses(VerseRangeDialog& dialog, const QString& first, const QString& last)
    {
        type(*dialog.cb시작절, first);
        type(*dialog.cb끝절, last);
    }
    static void press(QWidget& dialog, QStringView button)
    {
        QTest::mouseClick(dialog.findChild<QPushButton*>(button.toString()), Qt::LeftButton);
    }
    void expectDone(Answer again)
    {
        world.messages.expect(
            u"추출 확인"_s,
            u"클립보드로의 추출이 완료되었습니다. 워드프로세서에서 붙이기(Ctrl-V)를 "
            "하면 됩니다.\r\n추출을 계속 하시겠습니까?"_s,
            68, again);
    }
    static QString johnText(int verse) { return TinyData::text(101, kJohn, 3, verse); }

    TestServices world;
    TinyData data{world};
};

TEST_F(ExtractDialogTest, ListsFollowVersionBookAndChapter)
{
    const auto dialog = open<dlog성서추출>();
    choose(*dialog, u"개역한글"_s, kGenesis, 1);
    EXPECT_EQ(dialog->cb장->ListCount(), 2);
    EXPECT_EQ(dialog->cb시작절->ListCount(), 31);
    EXPECT_EQ(dialog->cb끝절->Text(), u"31"_s);
    type(*dialog->cb장, u"2"_s);
    dialog->cb시작절->setFocus();
    EXPECT_EQ(dialog->cb끝절->ListCount(), 3) << "a typed chapter fills the lists too";
}

TEST_F(ExtractDialogTest, AnotherVersionKeepsChapterAndVerses)
{
    const auto dialog = open<dlog성서추출>();
    const auto range = [&dialog] {
        return dialog->cb장->currentText() + u':' + dialog->cb시작절->currentText() + u'-' +
               dialog->cb끝절->currentText();
    };
    const auto chooseVersion = [&dialog](const QString& name) {
        dialog->cb버전->setListIndex(dialog->cb버전->findItem(name));
    };
    choose(*dialog, u"개역한글"_s, kJohn, 3);
    verses(*dialog, u"4"_s, u"7"_s);
    chooseVersion(u"KJV"_s);
    EXPECT_EQ(range(), u"3:4-7"_s);
    chooseVersion(u"BHS"_s); // without John
    chooseVersion(u"개역한글"_s);
    EXPECT_EQ(range(), u"3:4-7"_s);

    choose(*dialog, u"개역한글"_s, kGenesis, 1);
    chooseVersion(u"KJV"_s);
    EXPECT_EQ(range(), u"1:1-29"_s) << "a range to the end stays one";
}

TEST_F(ExtractDialogTest, WhatLeavesTheProgramIsUnicodeWithoutEmptyVerses)
{
    const auto dialog = open<dlog성서추출>();
    choose(*dialog, u"BHS"_s, kGenesis, 1);
    verses(*dialog, u"1"_s, u"1"_s);
    expectDone(Answer::Yes);
    press(*dialog, u"cmd추출");
    EXPECT_EQ(world.clipboard.plainText(),
              hebrewToUnicode(TinyData::text(301, kGenesis, 1, 1)) + u' ');

    choose(*dialog, u"개역한글"_s, kGenesis, 1);
    verses(*dialog, u"5"_s, u"6"_s); // the first of them has no text
    dialog->chkVerNum->setChecked(true);
    expectDone(Answer::Yes);
    press(*dialog, u"cmd추출");
    EXPECT_EQ(world.clipboard.plainText(), u"6 "_s + TinyData::text(101, kGenesis, 1, 6) + u' ');
}

TEST_F(ExtractDialogTest, VersesGoToTheClipboardInTheChosenForm)
{
    const auto dialog = open<dlog성서추출>();
    choose(*dialog, u"개역한글"_s, kJohn, 3);
    verses(*dialog, u"2"_s, u"3"_s);
    dialog->opt클립보드->setChecked(true);

    expectDone(Answer::Yes);
    press(*dialog, u"cmd추출");
    EXPECT_EQ(world.clipboard.plainText(), johnText(2) + u' ' + johnText(3) + u' ');
    EXPECT_TRUE(dialog->isVisible());

    dialog->chkVerNum->setChecked(true);
    dialog->chkVerLf->setChecked(true);
    dialog->chkTail->setChecked(true);
    expectDone(Answer::No);
    QTest::keyClick(dialog.get(), Qt::Key_Return);
    EXPECT_EQ(world.clipboard.plainText(),
              u"2 "_s + johnText(2) + u"\r\n3 "_s + johnText(3) + u"\r\n(요한복음 3:2~3)"_s);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(ExtractDialogTest, ABadRangeIsToldAndMended)
{
    const auto dialog = open<dlog성서추출>();
    choose(*dialog, u"개역한글"_s, kJohn, 3);
    verses(*dialog, u"99"_s, u"5"_s);
    dialog->chkTail->setChecked(true);
    world.messages.expect(u"범위 조정"_s,
                          u"시작 절이 끝 절보다 큽니다. 두 값을 바꾸어 처리합니다."_s, 48);
    world.messages.expect(u"범위 조정"_s,
                          u"끝절 수가 실제 절수보다 크므로 마지막 절로 설정합니다."_s, 48);
    expectDone(Answer::Yes);
    press(*dialog, u"cmd추출");
    EXPECT_TRUE(world.clipboard.plainText().endsWith(u"(요한복음 3:5~16)"));
    EXPECT_EQ(dialog->cb시작절->Text(), u"5"_s);
    EXPECT_EQ(dialog->cb끝절->Text(), u"16"_s);
}

TEST_F(ExtractDialogTest, TheSaveDialogOpensInTheFolderOfTheLastFile)
{
    auto dialog = open<dlog성서추출>();
    dialog->OptFile->setChecked(true);
    world.fileDialogs.answerSave(world.folders.root() + u"/verses.txt"_s);
    world.messages.expect(u"추출 확인"_s,
                          u"파일로의 추출이 완료되었습니다. 추출을 계속 하시겠습니까?"_s, 68,
                          Answer::No);
    press(*dialog, u"cmd추출");
    dialog = open<dlog성서추출>();
    world.fileDialogs.answerSave({});
    press(*dialog, u"cmd추출");
    EXPECT_EQ(world.fileDialogs.saveRequests.first().folder, QString());
    EXPECT_EQ(world.fileDialogs.saveRequests.last().folder, world.folders.root());
}

TEST_F(ExtractDialogTest, ABookThatTheVersionLacksLeavesTheClipboardAlone)
{
    const auto dialog = open<dlog성서추출>();
    choose(*dialog, u"ISV 신약"_s, kGenesis, 1);
    EXPECT_EQ(dialog->cb장->ListCount(), 0);
    world.messages.expect(u"추출 내용 없음"_s,
                          u"추출하고자 하는 본문이 없습니다. 구약 혹은 신약만 있는 역본이 아닌지 "
                          "확인하시기 바랍니다."_s,
                          48);
    press(*dialog, u"cmd추출");
    EXPECT_EQ(world.clipboard.setCount, 0);
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(ExtractDialogTest, AnAbsentVersionIsRefusedAndTheFormerOneStays)
{
    const auto dialog = open<dlog성서추출>();
    choose(*dialog, u"KJV"_s, kGenesis, 1);
    world.messages.expect(u"역본 미설치"_s, u"해당 역본이 설치되어 있지 않습니다."_s, 48);
    dialog->cb버전->setListIndex(dialog->cb버전->findItem(u"NKJV(없음)"_s));
    EXPECT_EQ(dialog->cb버전->Text(), u"KJV"_s);
    world.messages.expect(u"CD 삽입 후 재실행 요망"_s,
                          u"루멘 스크립트 CD를 넣은 후 프로그램을 재실행 하십시요."_s, 48);
    dialog->cb버전->setListIndex(dialog->cb버전->findItem(u"NIV(없음)"_s));
    EXPECT_EQ(dialog->cb버전->Text(), u"KJV"_s);
}

TEST_F(ExtractDialogTest, AFileIsWrittenAndOverwrittenOnlyWhenTheUserAgrees)
{
    const QString path = world.folders.root() + u"/verses.txt"_s;
    const auto contentOf = [&path] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    };
    const auto dialog = open<dlog성서추출>();
    choose(*dialog, u"KJV"_s, kJohn, 3);
    verses(*dialog, u"1"_s, u"1"_s);
    dialog->OptFile->setChecked(true);
    world.fileDialogs.answerSave(path);
    world.messages.expect(u"추출 확인"_s,
                          u"파일로의 추출이 완료되었습니다. 추출을 계속 하시겠습니까?"_s, 68,
                          Answer::Yes);
    press(*dialog, u"cmd추출");
    EXPECT_EQ(contentOf(), TinyData::text(201, kJohn, 3, 1) + u" \r\n"_s);
    ASSERT_EQ(world.fileDialogs.saveRequests.size(), 1);
    const SaveRequest& request = world.fileDialogs.saveRequests.first();
    EXPECT_EQ(request.title, u"텍스트 파일로 추출"_s);
    EXPECT_EQ(request.filter, u"텍스트 파일 (*.txt)|*.txt"_s);
    EXPECT_EQ(request.defaultExtension, u".txt"_s);
    EXPECT_EQ(request.name, u"요한복음 3장1~1절"_s);

    verses(*dialog, u"2"_s, u"2"_s);
    world.fileDialogs.answerSave(path);
    world.messages.expect(u"확인"_s,
                          u"해당 파일명의 텍스트 파일이 이미 존재합니다. 이를 겹쳐쓰기 할까요?"_s,
                          52, Answer::No);
    press(*dialog, u"cmd추출");
    EXPECT_EQ(contentOf(), TinyData::text(201, kJohn, 3, 1) + u" \r\n"_s);
    EXPECT_EQ(world.clipboard.setCount, 0);
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(ExtractDialogTest, TheRangeIsThereAgainTheNextTime)
{
    auto dialog = open<dlog성서추출>();
    choose(*dialog, u"KJV"_s, kJohn, 3);
    verses(*dialog, u"4"_s, u"7"_s);
    dialog->OptFile->setChecked(true);
    dialog->chkVerNum->setChecked(true);
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());

    dialog = open<dlog성서추출>();
    EXPECT_EQ(dialog->cb버전->Text(), u"KJV"_s);
    EXPECT_EQ(dialog->cb책명->ListIndex(), kJohn);
    EXPECT_EQ(dialog->cb장->Text(), u"3"_s);
    EXPECT_EQ(dialog->cb시작절->Text(), u"4"_s);
    EXPECT_EQ(dialog->cb끝절->Text(), u"7"_s);
    EXPECT_TRUE(dialog->OptFile->isChecked());
    EXPECT_TRUE(dialog->chkVerNum->isChecked());
}

TEST_F(ExtractDialogTest, TheInsertionGoesToTheClipboardOrIntoTheTextAndCloses)
{
    QString inserted;
    const auto insert = [&inserted](const QString& text) { inserted = text; };
    auto dialog = open<dlog성구삽입>(insert);
    choose(*dialog, u"개역한글"_s, kJohn, 3);
    verses(*dialog, u"16"_s, u"16"_s);
    dialog->chkTail->setChecked(true);
    world.messages.expect(
        u"성구 삽입 완료"_s,
        u"클립보드로의 성구 삽입이 성공적으로 완료되었습니다. 이제 워드프로세서로 "
        "가셔서 붙이기(Ctrl-V)를 하시면 됩니다."_s,
        64);
    press(*dialog, u"cmd삽입");
    EXPECT_EQ(world.clipboard.plainText(), johnText(16) + u" (요한복음 3:16)"_s);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(inserted, QString());

    dialog = open<dlog성구삽입>(insert);
    verses(*dialog, u"15"_s, u"16"_s);
    dialog->chkVerLf->setChecked(true);
    dialog->chkTail->setChecked(false);
    press(*dialog, u"cmd넣기");
    EXPECT_EQ(inserted, johnText(15) + u'\n' + johnText(16) + u'\n');
    EXPECT_FALSE(dialog->isVisible());
}

} // namespace
} // namespace lumen
