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
};

TEST_F(ReaderMovesTest, TheListsLeadAndFollow)
{
    start();
    EXPECT_EQ(combo(u"ID_cb책명").count(), 66);
    EXPECT_EQ(combo(u"ID_cb장").count(), 50);
    click(u"ID_이전장");
    EXPECT_EQ(combo(u"ID_cb장").ListIndex(), 49);
    combo(u"ID_cb장").setListIndex(1);
    EXPECT_EQ(place(), u"창세기 2장 1절"_s);
    combo(u"ID_cb책명").setListIndex(65);
    EXPECT_EQ(combo(u"ID_cb장").count(), 22);
    EXPECT_EQ(combo(u"ID_cb장").ListIndex(), 0);
    reader->model.goTo(42, 3, 2);
    EXPECT_EQ(combo(u"ID_cb책명").Text(), u"요한복음"_s);
    EXPECT_EQ(combo(u"ID_cb장").ListIndex(), 2);
    EXPECT_EQ(place(), u"요한복음 3장 2절"_s);
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

TEST_F(ReaderMovesTest, ATypedReferenceMarksItsVerseAndGoesIntoTheHistory)
{
    start();
    quickMove(u"요한복음 3장16절"_s);
    EXPECT_EQ(place(), u"요한복음 3장 16절"_s);
    EXPECT_EQ(reader->model.GetCurVerseRange(), u"16"_s);
    EXPECT_EQ(reader->quickMove->history(), QStringList{u"요3:16"_s});
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
    }
    const FlexGrid& grid = *reader->hflex본문;
    EXPECT_EQ(grid.TextMatrix(2, 3), QString()) << "KJV has no second verse here";
    EXPECT_EQ(grid.TextMatrix(3, 3), u"KJV 4절"_s);
}

} // namespace
} // namespace lumen
