// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/move_history.h"
#include "reader/note_list.h"

#include <gtest/gtest.h>

#include <ostream>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

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

std::vector<Note> threeNotes()
{
    return {{u"요3:1"_s, u"하나"_s}, {u"요3:2"_s, u"둘"_s}, {u"요3:3"_s, u"셋"_s}};
}

TEST(NoteListTest, APlaceHasOneNoteOnly)
{
    NoteList list;
    list.fill(threeNotes());
    EXPECT_FALSE(list.add(u"요3:2"_s));
    EXPECT_EQ(list.editedRow(), 0);
    EXPECT_TRUE(list.add(u"요3:2-3"_s));
    EXPECT_EQ(list.editedRow(), 3);
    EXPECT_EQ(list.notes().back(), (Note{u"요3:2-3"_s, QString()}));
}

TEST(NoteListTest, WhatIsTypedGoesToTheEditedRowAlone)
{
    NoteList list;
    list.setText(u"nowhere"_s);
    EXPECT_TRUE(list.empty());
    list.fill(threeNotes());
    list.edit(1);
    list.setText(u"고침"_s);
    list.edit(7);
    EXPECT_EQ(list.editedRow(), 1) << "there is no such row";
    EXPECT_EQ(list.notes()[0].text, u"하나"_s);
    EXPECT_EQ(list.editedText(), u"고침"_s);
    EXPECT_EQ(list.notes()[2].text, u"셋"_s);
}

TEST(NoteListTest, RemovingAndMovingFollowTheEditedNote)
{
    NoteList list;
    list.fill(threeNotes());
    EXPECT_FALSE(list.moveUp());
    EXPECT_TRUE(list.moveDown());
    EXPECT_EQ(list.editedText(), u"하나"_s);
    EXPECT_EQ(list.editedRow(), 1);
    EXPECT_TRUE(list.moveDown());
    EXPECT_FALSE(list.moveDown());
    list.remove();
    EXPECT_EQ(list.editedText(), u"셋"_s) << "the new last note is edited";
    list.edit(0);
    list.remove();
    EXPECT_EQ(list.editedText(), u"셋"_s);
    list.remove();
    EXPECT_EQ(list.editedRow(), -1);
    EXPECT_TRUE(list.empty());
}

} // namespace
} // namespace lumen
