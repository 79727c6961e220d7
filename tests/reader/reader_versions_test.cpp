// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/reader_fixture.h"

#include <QFile>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

/// Versions that come, go and fail.
class ReaderVersionsTest : public ReaderTest
{
};

TEST_F(ReaderVersionsTest, MenusAndCombosChooseTheSameVersion)
{
    start();
    click(u"ID_대역본1-201");
    EXPECT_EQ(combo(u"ID_cb대역본1").Text(), u"대역본1 - KJV"_s);
    EXPECT_EQ(reader->model.versionName(1), u"KJV"_s);
    click(u"ID_대역본0-201");
    EXPECT_EQ(reader->model.versionName(0), u"KJV"_s) << "the same version may stand in two slots";
    EXPECT_TRUE(reader->txCont->Text().startsWith(u"1\t"_s + TinyData::text(201, 0, 1, 1)));
    click(u"ID_대역본1-없음");
    EXPECT_EQ(reader->model.versionCode(1), 0);
}

TEST_F(ReaderVersionsTest, AnAbsentVersionIsRefusedAndTheFormerOneStays)
{
    start();
    const QString before = reader->txCont->Text();
    expectWarning(u"CD 삽입 후 재실행 요망"_s,
                  u"루멘 스크립트 CD를 넣은 후 프로그램을 재실행 하십시요."_s);
    pickVersion(u"ID_cb기본버전", 204);
    EXPECT_EQ(combo(u"ID_cb기본버전").Text(), u"개역한글"_s);
    expectWarning(u"역본 미설치"_s, u"해당 역본이 설치되어 있지 않습니다."_s);
    pickVersion(u"ID_cb대역본1", 305);
    EXPECT_EQ(combo(u"ID_cb대역본1").Text(), u"대역본1 - 없음"_s);
    EXPECT_EQ(reader->model.versionName(1), u"None"_s);

    // The module goes while the program runs.
    ASSERT_TRUE(QFile::remove(services.folders.data(u"201.dts"_s)));
    expectWarning(u"CD 삽입 후 재시행 요망"_s,
                  u"루멘 스크립트 CD를 넣은 후 프로그램을 재실행 하십시요."_s);
    click(u"ID_대역본0-201");
    EXPECT_EQ(reader->model.versionName(0), u"개역한글"_s);
    EXPECT_TRUE(reader->atbar.tool(u"ID_대역본0-101").checked());
    EXPECT_FALSE(reader->atbar.tool(u"ID_대역본0-201").checked());
    EXPECT_EQ(reader->txCont->Text(), before);
}

TEST_F(ReaderVersionsTest, ABaseVersionWithoutTheBookEmptiesTheViews)
{
    start();
    pickVersion(u"ID_cb기본버전", 215);
    EXPECT_EQ(reader->txCont->Text(), QString());
    EXPECT_EQ(place(), u"창세기 1장"_s);
    click(u"ID_테이블형식");
    for (const int code : {101, 215}) {
        pickVersion(u"ID_cb기본버전", code);
        EXPECT_EQ(reader->hflex본문->TextMatrix(0, 2), combo(u"ID_cb기본버전").Text());
    }
    EXPECT_EQ(reader->hflex본문->Rows(), 1);
    quickMove(u"창 1:3"_s); // selects nothing and says nothing
    combo(u"ID_cb책명").setListIndex(42);
    EXPECT_EQ(reader->hflex본문->Rows(), 6);
}

TEST_F(ReaderVersionsTest, OneThatCannotBeReadIsEmptyWithItsReasonBesideTheOthers)
{
    start();
    pickVersion(u"ID_cb대역본1", 201);
    click(u"ID_테이블형식");
    close();
    // As a disc that gives other bytes back at the next start.
    QFile module(services.folders.data(u"201.dts"_s));
    ASSERT_TRUE(module.open(QIODevice::ReadWrite));
    module.write(QByteArray(static_cast<qsizetype>(module.size()), 'x'));
    module.close();
    const auto expectUnread = [this, &module] {
        expectWarning(u"역본 읽기 실패"_s,
                      u"다음 역본은 읽을 수 없어 비워 둡니다. 모듈 파일을 다시 만들거나 "
                      "설치하시기 바랍니다.\r\nKJV: 알 수 없는 형식이거나 손상된 "
                      "데이터베이스입니다.\n"_s +
                          module.fileName());
    };
    expectUnread();
    start();
    FlexGrid& grid = *reader->hflex본문;
    quickMove(u"요 3:2"_s); // told once
    EXPECT_EQ(place(), u"요한복음 3장 2절"_s);
    EXPECT_EQ(grid.TextMatrix(2, 2), TinyData::text(101, 42, 3, 2));
    EXPECT_EQ(grid.TextMatrix(2, 3), QString()) << "not the verse of the chapter before";
    pickVersion(u"ID_cb대역본1", 0);
    expectUnread();
    pickVersion(u"ID_cb기본버전", 201);
    EXPECT_EQ(grid.Rows(), 1);
    pickVersion(u"ID_cb기본버전", 101);
    EXPECT_EQ(grid.TextMatrix(1, 2), TinyData::text(101, 42, 3, 1));
}

TEST_F(ReaderVersionsTest, HebrewLinesAppearOnceTheWindowIsShown)
{
    start();
    pickVersion(u"ID_cb기본버전", 301);
    start();
    ASSERT_EQ(reader->model.versionName(0), u"BHS"_s);
    const QString text = reader->txCont->Text();
    EXPECT_TRUE(text.startsWith(u"1   "_s));
    EXPECT_GT(text.split(u'\n').first().size(), 10) << text.left(60).toStdString();
}

} // namespace
} // namespace lumen
