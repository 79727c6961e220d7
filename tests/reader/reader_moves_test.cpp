// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/reader_fixture.h"
#include "support/module_files.h"

#include <QToolButton>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

/// From place to place: buttons, lists, the chapter window and typed references.
class ReaderMovesTest : public ReaderTest
{
protected:
    void expectWrongVerse(const QString& text) { expectWarning(u"절 입력 오류"_s, text); }
    void expectVerseTooLarge()
    {
        expectWrongVerse(u"입력하신 절이 실제 절 수보다 큽니다. 마지막 절을 선택합니다."_s);
    }
};

TEST_F(ReaderMovesTest, ChaptersGoRoundWithinTheBook)
{
    start();
    EXPECT_EQ(combo(u"ID_cb책명").count(), 66);
    EXPECT_EQ(combo(u"ID_cb장").count(), 50);
    click(u"ID_이전장");
    EXPECT_EQ(combo(u"ID_cb장").ListIndex(), 49);
    click(u"ID_다음장");
    EXPECT_EQ(place(), u"창세기 1장 1절"_s);
    click(u"ID_다음장");
    EXPECT_EQ(place(), u"창세기 2장 1절"_s);
    combo(u"ID_cb책명").setListIndex(65);
    EXPECT_EQ(combo(u"ID_cb장").count(), 22);
    combo(u"ID_cb장").setListIndex(21);
    click(u"ID_다음장");
    EXPECT_EQ(combo(u"ID_cb장").ListIndex(), 0);
    EXPECT_EQ(reader->book(), 65);
}

TEST_F(ReaderMovesTest, TheChapterWindowGoesToAChapter)
{
    start();
    const auto openChapters = [this](QStringView book) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        click(book);
        return reader->findChild<QFrame*>(u"frmHotMove"_s);
    };
    auto* const chapters = openChapters(u"ID_42");
    ASSERT_NE(chapters, nullptr);
    QTest::mouseClick(chapters->findChild<QToolButton*>(u"chapter(3)"_s), Qt::LeftButton);
    EXPECT_EQ(place(), u"요한복음 3장 1절"_s);

    auto* const keys = openChapters(u"ID_0");
    ASSERT_NE(keys, nullptr);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Return})
        QTest::keyClick(keys->focusWidget(), key);
    EXPECT_EQ(place(), u"창세기 12장"_s) << "ten chapters a row";
    click(u"ID_성서책18");
    EXPECT_EQ(combo(u"ID_cb책명").Text(), u"시편"_s);
    EXPECT_EQ(combo(u"ID_cb장").count(), 150);
}

TEST_F(ReaderMovesTest, TypedReferencesMoveOrTellWhatIsWrong)
{
    start();
    quickMove(u"요한복음 3장16절"_s);
    EXPECT_EQ(place(), u"요한복음 3장 16절"_s);
    EXPECT_EQ(reader->GetCurVerseRange(), u"16"_s);
    EXPECT_EQ(reader->quickMove->history(), QStringList{u"요3:16"_s});

    expectWarning(
        u"입력 오류"_s,
        u"입력이 잘못되었습니다. '요 3:16' 또는 '요한복음 3:16'과 같은 방식으로 입력하시기 바랍니다."_s);
    quickMove(u"창 3"_s);
    expectWrongVerse(u"입력하신 장이 실제 장 수보다 큽니다. 마지막 장을 선택합니다."_s);
    quickMove(u"창 99:1"_s);
    EXPECT_EQ(combo(u"ID_cb장").ListIndex(), 49);
    expectVerseTooLarge();
    quickMove(u"창 2:9"_s);
    EXPECT_EQ(place(), u"창세기 2장 3절"_s);
    EXPECT_EQ(reader->quickMove->history().first(), u"창2:3"_s);
}

TEST_F(ReaderMovesTest, AChapterWithHolesKeepsItsVerseNumbers)
{
    const auto write = [this](const QString& file, const QString& name, const QList<int>& numbers) {
        QList<PlainVerse> verses;
        for (const int verse : numbers)
            verses << PlainVerse{42, 3, verse, u"%1 %2절"_s.arg(name).arg(verse), {}, {}};
        writeVersion(services.folders.data(file), name, verses);
    };
    write(u"101.dts"_s, u"개역한글"_s, {1, 2, 4, 6});
    write(u"201.dts"_s, u"KJV"_s, {1, 3, 4, 5, 6});
    start();
    pickVersion(u"ID_cb대역본1", 201);
    for (const QStringView view : {u"ID_텍스트형식", u"ID_테이블형식"}) {
        SCOPED_TRACE(view.toString().toStdString());
        click(view);
        quickMove(u"요 3:6"_s);
        EXPECT_EQ(place(), u"요한복음 3장 6절"_s);
        addBookmark();
        EXPECT_EQ(reader->bookmarks->lst책갈피->Text(), u"요3:6"_s);
        EXPECT_TRUE(copied().startsWith(u"6\t개역한글 6절\r\n6\tKJV 6절"_s))
            << copied().toStdString();
        expectVerseTooLarge();
        quickMove(u"요 3:7"_s);
        EXPECT_EQ(place(), u"요한복음 3장 6절"_s);
        expectWrongVerse(u"기본 역본에는 입력하신 절이 없습니다. 그 앞의 절을 선택합니다."_s);
        quickMove(u"요 3:5"_s);
        EXPECT_EQ(place(), u"요한복음 3장 4절"_s);
    }
    const FlexGrid& grid = *reader->hflex본문;
    EXPECT_EQ(grid.TextMatrix(2, 3), QString()) << "KJV has no second verse here";
    EXPECT_EQ(grid.TextMatrix(3, 3), u"KJV 4절"_s);
}

TEST_F(ReaderMovesTest, ABookOfOneChapterStaysAtItsVerse)
{
    writeVersion(services.folders.data(u"101.dts"_s), u"개역한글"_s,
                 {{64, 1, 1, u"하나"_s, {}, {}}, {64, 1, 2, u"둘"_s, {}, {}}});
    start();
    click(u"ID_테이블형식");
    quickMove(u"유 1:2"_s);
    for (const QStringView step : {u"ID_다음장", u"ID_이전장"}) {
        click(step);
        EXPECT_EQ(reader->hflex본문->TextMatrix(2, 0), u"▶"_s);
        EXPECT_EQ(place(), u"유다서 1장 2절"_s);
    }
}

} // namespace
} // namespace lumen
