// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/matthew_henry.h"
#include "panel/panel_fixture.h"
#include "panel/wesley.h"

#include <QTest>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr int kGenesis = 0;
constexpr int kJohn = 42;

ModuleTable commentary(const QString& name, const QList<QVariantList>& rows)
{
    return {{name, {{u"book"_s}, {u"verse"_s}, memoColumn(u"Kcont"_s), memoColumn(u"cont"_s)}, {}},
            rows};
}

class MatthewHenryTest : public PanelTabFixture<MatthewHenry>
{
protected:
    MatthewHenryTest()
    {
        const auto section = [](const QString& book, const QString& verses, const QString& english,
                                const QString& korean = {}) {
            return QVariantList{book, verses, scrambled(korean), scrambled(english)};
        };
        writeModule(
            world.folders.data(u"mhcc.dts"_s),
            {commentary(u"절별주석"_s, {section(u"창1"_s, u"1-3"_s, u"one to three"_s),
                                        section(u"창1"_s, u"5"_s, u"five"_s, u"다섯"_s),
                                        section(u"창1"_s, u"9,12"_s, u"nine on"_s),
                                        section(u"요3"_s, u""_s, u"all of it"_s)}),
             commentary(u"책별주석"_s, {section(u"창1"_s, u"1"_s, u"first part"_s),
                                        section(u"창1"_s, u"4"_s, u"second"_s, u"둘째"_s)})});
        open();
    }

    QString english() const { return tab->txMH주석영문->Text(); }
    QString index() const { return tab->tx주석인덱스->text(); }
};

TEST_F(MatthewHenryTest, AVerseShowsTheSectionThatHoldsIt)
{
    struct Row
    {
        int book;
        int chapter;
        int verse;
        QString index;
        QString english;
    };
    const Row rows[] = {
        {kGenesis, 1, 1, u"창1:1-3"_s, u"one to three"_s},
        {kGenesis, 1, 5, u"창1:5"_s, u"five"_s},
        {kGenesis, 1, 4, {}, {}},
        {kGenesis, 1, 10, u"창1:9,12"_s, u"nine on"_s}, // numbers, not texts
        {kGenesis, 1, 13, {}, {}},
        {kJohn, 3, 16, u"요3 전체"_s, u"all of it"_s},
        {kJohn, 4, 1, {}, {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.book << ' ' << row.chapter << ':' << row.verse);
        goTo(row.book, row.chapter, row.verse);
        EXPECT_EQ(index(), row.index);
        EXPECT_EQ(english(), row.english);
    }
    goTo(kGenesis, 1, 5);
    EXPECT_EQ(tab->txMH주석한글->Text(), u"다섯"_s);
    EXPECT_TRUE(tab->txMH주석한글->isVisible());
    goTo(kGenesis, 1, 2);
    EXPECT_FALSE(tab->txMH주석한글->isVisible()) << "an empty half gives its room away";
}

TEST_F(MatthewHenryTest, MovesWithinTheSectionAskNothing)
{
    goTo(kGenesis, 1, 1);
    dacRefTab.RecordSource = u"another tab was here"_s;
    for (const int verse : {2, 3})
        goTo(kGenesis, 1, verse);
    panel.toggle();
    panel.toggle();
    EXPECT_EQ(dacRefTab.RecordSource, u"another tab was here"_s);
    goTo(kGenesis, 1, 4); // no section: known from now on
    dacRefTab.RecordSource = u"another tab was here"_s;
    goTo(kGenesis, 1, 4);
    EXPECT_EQ(dacRefTab.RecordSource, u"another tab was here"_s);
    goTo(kGenesis, 1, 3);
    EXPECT_EQ(dacRefTab.RecordSource, u"select * from 절별주석 where book = '창1'"_s);
}

TEST_F(MatthewHenryTest, TheChapterJoinsItsRowsAndFollowsNoVerse)
{
    QTest::mouseClick(tab->Opt장별주석, Qt::LeftButton, {},
                      QPoint(8, tab->Opt장별주석->height() / 2));
    EXPECT_EQ(index(), u"창1"_s);
    EXPECT_EQ(english().simplified(), u"first part second"_s);
    EXPECT_EQ(tab->txMH주석한글->Text().simplified(), u"둘째"_s);
    dacRefTab.RecordSource = u"another tab was here"_s;
    goTo(kGenesis, 1, 9);
    EXPECT_EQ(dacRefTab.RecordSource, u"another tab was here"_s);
    goTo(kGenesis, 2, 1);
    EXPECT_EQ(english() + index(), QString());
}

class WesleyTest : public PanelTabFixture<Wesley>
{
protected:
    WesleyTest()
    {
        writeModule(world.folders.data(u"Wesley.dts"_s),
                    {{{u"Wesley"_s, {{u"book"_s}, {u"Chap"_s}, memoColumn(u"cont"_s)}, {}},
                      {{scrambled(u"창"_s), scrambled(u"1"_s), u"notes, plain"_s},
                       {scrambled(u"창"_s), scrambled(u"11"_s), QVariant()}}}});
        open();
    }
};

TEST_F(WesleyTest, NotesOfTheChapterAreShownOnce)
{
    goTo(kGenesis, 1, 1);
    EXPECT_EQ(tab->tx웨슬리주석본문->Text(), u"notes, plain"_s);
    dacRefTab.RecordSource = u"another tab was here"_s;
    goTo(kGenesis, 1, 7);
    EXPECT_EQ(dacRefTab.RecordSource, u"another tab was here"_s);
    for (const int chapter : {11, 2}) {
        goTo(kGenesis, 1, 1);
        goTo(kGenesis, chapter, 1);
        EXPECT_EQ(tab->tx웨슬리주석본문->Text(), QString()) << chapter;
    }
}

} // namespace
} // namespace lumen
