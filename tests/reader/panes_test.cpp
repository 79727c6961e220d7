// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/bookmarks/bookmark_pane.h"
#include "reader/move/move_history.h"
#include "reader/move/quick_move_pane.h"
#include "support/active_window.h"

#include <gtest/gtest.h>

#include <QTest>

#include <ostream>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

QStringList items(const ListBox& list)
{
    QStringList texts;
    for (int index = 0; index < list.ListCount(); ++index)
        texts << list.List(index);
    return texts;
}

void click(QWidget* button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

void doubleClick(ListBox& list, int row)
{
    const QPoint place = list.visualItemRect(list.item(row)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
}

class BookmarkPaneTest : public testing::Test
{
protected:
    BookmarkPaneTest()
    {
        pane.currentReference = [this] { return current; };
        pane.onMove = [this](const QString& reference) { moves << reference; };
        pane.resize(200, 400);
        showActive(pane);
    }

    QString current;
    QStringList moves;
    BookmarkPane pane;
};

TEST_F(BookmarkPaneTest, TheCurrentVerseGoesToTheHeadOnce)
{
    for (const QString& verse : {u"창1:1"_s, u"요3:16"_s}) {
        current = verse;
        click(pane.cmd책갈피추가);
    }
    EXPECT_EQ(items(*pane.lst책갈피), (QStringList{u"요3:16"_s, u"창1:1"_s}));
    EXPECT_EQ(pane.lst책갈피->ListIndex(), 0);
    current = u"창1:1"_s;
    click(pane.cmd책갈피추가);
    EXPECT_EQ(items(*pane.lst책갈피).size(), 2);
    EXPECT_EQ(pane.lst책갈피->ListIndex(), 0);
    current.clear(); // the window is loading
    click(pane.cmd책갈피추가);
    EXPECT_EQ(pane.references(), (QStringList{u"요3:16"_s, u"창1:1"_s}));
}

TEST_F(BookmarkPaneTest, ButtonsActOnTheSelectedBookmark)
{
    pane.setReferences({u"창1:1"_s, u"출2:2"_s, u"레3:3"_s});
    EXPECT_EQ(pane.lst책갈피->ListIndex(), -1);
    click(pane.cmd책갈피삭제);
    click(pane.cmd책갈피이동);
    EXPECT_EQ(moves, QStringList());

    pane.lst책갈피->setListIndex(1);
    click(pane.cmd책갈피위로);
    EXPECT_EQ(pane.references(), (QStringList{u"출2:2"_s, u"창1:1"_s, u"레3:3"_s}));
    click(pane.cmd책갈피아래로);
    click(pane.cmd책갈피아래로);
    EXPECT_EQ(items(*pane.lst책갈피), (QStringList{u"창1:1"_s, u"레3:3"_s, u"출2:2"_s}));
    click(pane.cmd책갈피이동);
    EXPECT_EQ(moves, QStringList{u"출2:2"_s});
    click(pane.cmd책갈피삭제);
    EXPECT_EQ(pane.lst책갈피->Text(), u"레3:3"_s);
    doubleClick(*pane.lst책갈피, 0);
    EXPECT_EQ(moves, (QStringList{u"출2:2"_s, u"창1:1"_s}));
}

TEST_F(BookmarkPaneTest, WorksByKeysAlone)
{
    pane.setReferences({u"창1:1"_s, u"출2:2"_s});
    ListBox& list = *pane.lst책갈피;
    list.setFocus();
    list.setListIndex(0);
    QTest::keyClick(&list, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(pane.references(), (QStringList{u"출2:2"_s, u"창1:1"_s}));
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(moves, QStringList{u"창1:1"_s});
    QTest::keyClick(&list, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(pane.references(), (QStringList{u"창1:1"_s, u"출2:2"_s}));
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(pane.references(), QStringList{u"출2:2"_s});
}

class QuickMovePaneTest : public testing::Test
{
protected:
    QuickMovePaneTest()
    {
        pane.onMove = [this](QString& reference) {
            moves << reference;
            pane.remember(entry.isEmpty() ? reference : entry);
        };
        pane.resize(200, 400);
        showActive(pane);
    }

    QString entry;
    QStringList moves;
    QuickMovePane pane;
};

TEST_F(QuickMovePaneTest, EnterAndButtonGoToTheTypedPlace)
{
    entry = u"요3:16"_s;
    pane.tx즉석이동->setText(u"요 3:16"_s);
    QTest::keyClick(pane.tx즉석이동, Qt::Key_Return);
    click(pane.cmd즉석이동);
    EXPECT_EQ(moves, (QStringList{u"요 3:16"_s, u"요 3:16"_s}));
    EXPECT_EQ(pane.lst즉석이동->List(0), u"요3:16"_s);
    EXPECT_EQ(pane.lst즉석이동->ListIndex(), 0);
}

TEST_F(QuickMovePaneTest, ADoubleClickGoesBackWithoutANewEntry)
{
    pane.remember(u"창1:1"_s);
    pane.remember(u"요3:16"_s);
    doubleClick(*pane.lst즉석이동, 1);
    EXPECT_EQ(moves, QStringList{u"창1:1"_s});
    EXPECT_EQ(items(*pane.lst즉석이동), (QStringList{u"요3:16"_s, u"창1:1"_s}));
    pane.lst즉석이동->setFocus();
    QTest::keyClick(pane.lst즉석이동, Qt::Key_Return);
    EXPECT_EQ(moves.size(), 2);
}

TEST(MoveHistoryTest, TheNewestThirtyPlacesStandOnceEach)
{
    MoveHistory history;
    for (int verse = 1; verse <= 31; ++verse)
        EXPECT_TRUE(history.add(u"시119:%1"_s.arg(verse)));
    EXPECT_FALSE(history.add(u"시119:7"_s));
    EXPECT_EQ(history.entries().size(), 30);
    EXPECT_EQ(history.entries().first(), u"시119:31"_s);
    EXPECT_EQ(history.entries().last(), u"시119:2"_s);
}

} // namespace
} // namespace lumen
