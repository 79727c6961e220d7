// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/check_data.h"
#include "jet/data_control.h"
#include "jet/error.h"
#include "panel/reference_panel.h"
#include "panel/words/word_analysis_tab.h"
#include "support/active_window.h"
#include "support/fake_reader.h"
#include "support/module_files.h"
#include "support/original_modules.h"
#include "support/test_services.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr int kGenesis = 0;
constexpr int kJohn = 42;

QList<OriginalVerse> verses()
{
    OriginalVerse full{kGenesis, 1, 3, {}};
    for (int word = 1; word <= 74; ++word)
        full.words << OriginalWord{u"w%1"_s.arg(word), word, u"l%1"_s.arg(word), {}};
    return {
        {kGenesis,
         1,
         1,
         {{u"ba"_s, 1, u"ab"_s, u"@nc____S___E-H_3_"_s},
          {u"{gd}"_s, 2, u"dg"_s, {}},
          {u"wh"_s, 0, {}, u"@c"_s}}},
        full,
        {kJohn,
         1,
         1,
         {{u"lo3goj"_s, 8853, u"lo3goj"_s, u"n-nsm"_s}, {u"h3n"_s, 8854, u"ei0mi3"_s, {}}}},
    };
}

QVariant stored(const QString& text)
{
    return text.isNull() ? QVariant() : QVariant(DES::ScrambleField(text));
}

/// A dictionary with the entries 1 (all columns) and 8853 (a word alone).
void writeDictionary(const QString& path, const QString& reference, const QString& word)
{
    const auto memo = [](const QString& name) { return ColumnDef{name, FieldType::Memo, 0}; };
    ModuleTable table{{u"StrongDic"_s,
                       {{u"Num"_s, FieldType::Long, 0},
                        memo(u"Word"_s),
                        memo(u"PronEng"_s),
                        memo(u"PronKor"_s),
                        memo(u"ParsKor"_s),
                        memo(u"Source"_s),
                        memo(reference),
                        memo(u"AV"_s),
                        memo(u"ContKor"_s),
                        memo(u"ContEng"_s)},
                       {{u"Num"_s, {u"Num"_s}}}},
                      {}};
    table.rows << QVariantList{1,
                               stored(word),
                               stored(u"awb"_s),
                               stored(u"아브"_s),
                               stored(u"명사"_s),
                               stored(u"a root {x}"_s),
                               stored(u"4a"_s),
                               stored(u"chief, father"_s),
                               stored(u"첫째 뜻\r\n둘째 뜻"_s),
                               stored(u"one\r\ntwo"_s)};
    QVariantList bare{8853, stored(word)};
    bare.resize(10);
    table.rows << bare;
    writeModule(path, {table});
}

class WordAnalysisTabTest : public testing::Test
{
protected:
    WordAnalysisTabTest()
    {
        writeOriginalModules(world.folders.program() + u"/Data"_s, verses());
        writeDictionary(world.folders.data(u"StrongDicH.dts"_s), u"TWOT"_s, u"ba"_s);
        writeDictionary(world.folders.data(u"StrongDicG.dts"_s), u"TDNT"_s, u"lo3goj"_s);
        CheckData(world.state, world.files, world.jet);
        auto made = std::make_unique<WordAnalysisTab>(PanelHost{
            .services = world.services,
            .state = world.state,
            .reader = reader,
            .dacRefTab = dacRefTab,
            .openStrongList = [this](const QString& language,
                                     const QString& number) { lists << language + u' ' + number; },
            .popUpEditMenu = [this](const QPoint&) { ++menus; }});
        tab = made.get();
        panel.onStatus = [this](const QString& text) { status = text; };
        panel.addTab(std::move(made));
        panel.resize(1000, 500);
        showActive(panel);
        panel.sst관주사전->selectCaption(u"원전분해"_s);
        panel.toggle();
        QCoreApplication::processEvents(); // lays the page out
    }

    void goTo(int book, int verse)
    {
        reader.bookNumber = book;
        reader.range = QString::number(verse);
        panel.showPlace();
        QCoreApplication::processEvents();
    }
    FlexGrid& grid() { return *tab->flex원전분해; }
    QStringList row(int number)
    {
        QStringList cells;
        for (int col = 0; col < grid().Cols(); ++col)
            cells << grid().TextMatrix(number, col);
        return cells;
    }
    QPoint cell(int number, int col)
    {
        return grid().visualRect(grid().model()->index(number, col)).center();
    }
    void click(int number, int col, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(grid().viewport(), button, {}, cell(number, col));
    }
    QStringList lines(const TextControl& text) { return text.Text().split(u'\n'); }

    TestServices world;
    FakeReader reader;
    QStringList lists;
    DataControl dacRefTab{world.jet};
    QString status;
    int menus = 0;
    WordAnalysisTab* tab = nullptr;
    ReferencePanel panel{world.services};
};

TEST_F(WordAnalysisTabTest, HebrewReadsFromTheRight)
{
    // The tab came up at Genesis 1:1.
    ASSERT_EQ(grid().Rows(), 6);
    EXPECT_EQ(row(0), (QStringList{u"스트롱"_s, {}, u"2"_s, u"1"_s}));
    EXPECT_EQ(row(1), (QStringList{u"본문"_s, u"wh"_s, u"{gd}"_s, u"ba"_s}));
    EXPECT_EQ(row(4), (QStringList{u"분해"_s, u"wh"_s, u"{gd}"_s, u"ba"_s}));
    EXPECT_EQ(row(5), (QStringList{u"표제어"_s, {}, u"dg"_s, u"ab"_s}));
    EXPECT_EQ(grid().TextMatrix(2, 0), u"KJV"_s);
    EXPECT_EQ(grid().TextMatrix(3, 0), u"대표값"_s);
    EXPECT_EQ(grid().ColSel(), 3) << "the first word stands at the right end";
    EXPECT_EQ(dacRefTab.RecordSource,
              u"select * from 원전분해 where chap = '창01' and verse = 1"_s);
}

TEST_F(WordAnalysisTabTest, InANarrowBoxTheWordStaysOnOneLineAndItsGrammarWraps)
{
    tab->txParsing->setFixedWidth(60); // the word alone is wider
    QCoreApplication::processEvents();
    goTo(kGenesis, 1);
    const QTextBlock head = tab->txParsing->document()->firstBlock();
    EXPECT_EQ(head.layout()->lineCount(), 1) << head.text().toStdString();
    int lines = 0;
    for (QTextBlock block = head.next(); block.isValid(); block = block.next())
        lines = std::max(lines, block.layout()->lineCount());
    EXPECT_GT(lines, 1);
}

TEST_F(WordAnalysisTabTest, TheChosenWordIsAnalysedAndLookedUp)
{
    EXPECT_EQ(tab->txCodeNum->text(), u"1"_s);
    click(1, 2);
    EXPECT_EQ(lines(*tab->txParsing),
              (QStringList{u"원어: {gd}"_s, u""_s, u"문법 분해 없음 "_s, u""_s}));
    EXPECT_EQ(tab->tx스트롱->Text(), u"해당 스트롱 코드 항목이 없습니다."_s) << "number 2";
    EXPECT_FALSE(tab->cmd원어관주->isEnabled());
    EXPECT_EQ(tab->txCodeNum->text(), QString());

    QTest::keyClick(&grid(), Qt::Key_Right);
    EXPECT_EQ(tab->txCodeNum->text(), u"1"_s);
    EXPECT_TRUE(tab->cmd원어관주->isEnabled());
    EXPECT_GT(lines(*tab->txParsing).size(), 4) << "each phrase has its line";
    EXPECT_FALSE(tab->txParsing->Text().contains(u','));

    click(0, 1); // a word without a number
    EXPECT_EQ(tab->tx스트롱->Text(), u"해당 스트롱 코드 항목이 없습니다."_s);
}

TEST_F(WordAnalysisTabTest, AnEntryHasAllItsLines)
{
    QStringList expected{u"어근: ba "_s, u"발음: [awb : 아브] "_s,
                         u""_s,          u"품사:  명사 "_s,
                         u""_s,          u"어원:  a root {x} "_s,
                         u""_s,          u"TWOT:  4a "_s,
                         u""_s,          u"KJV: chief, father "_s,
                         u""_s,          u"의미:  첫째 뜻 "_s,
                         u"둘째 뜻 "_s,  u""_s,
                         u" one "_s,     u"two"_s,
                         u" "_s,         u""_s};
    EXPECT_EQ(lines(*tab->tx스트롱), expected);
    goTo(kJohn, 1);
    tab->txCodeNum->setText(u"1"_s);
    QTest::keyClick(tab->txCodeNum, Qt::Key_Return);
    expected[0] = u"어근: lo3goj "_s;
    expected[7] = u"TDNT:  4a "_s;
    EXPECT_EQ(lines(*tab->tx스트롱), expected);
}

TEST_F(WordAnalysisTabTest, NumberBoxAndArrowsLookNumbersUp)
{
    tab->txCodeNum->clear();
    QTest::keyClicks(tab->txCodeNum, u"8a8-5 3"_s);
    EXPECT_EQ(tab->txCodeNum->text(), u"8853"_s);
    QTest::keyClick(tab->txCodeNum, Qt::Key_Return);
    EXPECT_TRUE(tab->cmd원어관주->isEnabled());
    const QPoint upper(tab->updnCode->width() / 2, tab->updnCode->height() / 4);
    QTest::mouseClick(tab->updnCode, Qt::LeftButton, {}, upper);
    EXPECT_FALSE(tab->cmd원어관주->isEnabled());
    EXPECT_EQ(tab->txCodeNum->text(), QString());
    tab->updnCode->stepDown();
    EXPECT_EQ(tab->txCodeNum->text(), u"8853"_s);
    // The keys of the arrows belong to the number box; both get past a number without an entry.
    tab->txCodeNum->setFocus();
    QTest::keyClick(tab->txCodeNum, Qt::Key_Down);
    EXPECT_EQ(tab->txCodeNum->text(), QString());
    QTest::keyClick(tab->txCodeNum, Qt::Key_Up);
    EXPECT_EQ(tab->txCodeNum->text(), u"8853"_s);

    // The arrows take what was typed, also before Enter.
    tab->txCodeNum->selectAll();
    QTest::keyClicks(tab->txCodeNum, u"2"_s);
    QTest::mouseClick(tab->updnCode, Qt::LeftButton, {}, upper);
    EXPECT_EQ(tab->updnCode->Value(), 3);

    tab->txCodeNum->clear();
    QTest::keyClicks(tab->txCodeNum, u"1.9"_s);
    QTest::keyClick(tab->txCodeNum, Qt::Key_Return);
    EXPECT_EQ(tab->txCodeNum->text(), u"1"_s);
}

TEST_F(WordAnalysisTabTest, DoubleClickAndButtonAskForTheListOfVerses)
{
    click(1, 3);
    QTest::mouseDClick(grid().viewport(), Qt::LeftButton, {}, cell(1, 3));
    EXPECT_EQ(lists, QStringList{u"히브리어 1"_s});
    goTo(kJohn, 1);
    QTest::mouseClick(tab->cmd원어관주, Qt::LeftButton);
    EXPECT_EQ(lists.last(), u"헬라어 8853"_s);
    click(1, 1, Qt::RightButton);
    EXPECT_EQ(menus, 1);
}

TEST_F(WordAnalysisTabTest, AVerseThatIsNotThereLeavesAllAsItWas)
{
    const QStringList before = row(1);
    const QString entry = tab->tx스트롱->Text();
    goTo(kGenesis, 2);
    EXPECT_EQ(row(1), before);
    EXPECT_EQ(tab->tx스트롱->Text(), entry);
    // The same place again asks nothing.
    dacRefTab.RecordSource = u"another tab was here"_s;
    status = u"검색된 관주 수: 2"_s;
    panel.toggle();
    panel.toggle();
    EXPECT_EQ(dacRefTab.RecordSource, u"another tab was here"_s);
    EXPECT_EQ(status, QString()) << "what another tab has told";
    goTo(kGenesis, 0);
    EXPECT_EQ(dacRefTab.RecordSource, u"another tab was here"_s);
}

TEST_F(WordAnalysisTabTest, AbsentDictionaryIsToldAndTheGridStays)
{
    ASSERT_TRUE(QFile::remove(world.folders.data(u"StrongDicG.dts"_s)));
    EXPECT_THROW(goTo(kJohn, 1), JetError);
    EXPECT_EQ(grid().Cols(), 3);
    EXPECT_EQ(lines(*tab->txParsing).first(), u"원어: lo3goj"_s);
}

TEST(WordAnalysis, WordsThatAreAskedForStandOut)
{
    TestServices world;
    writeOriginalModules(world.folders.program() + u"/Data"_s, verses());
    writeDictionary(world.folders.data(u"StrongDicH.dts"_s), u"TWOT"_s, u"ba"_s);
    FlexGrid grid;
    TextControl parsing;
    TextControl dictionary;
    QStringList asked;
    WordAnalysis words(world.services, world.state,
                       {.grid = grid,
                        .txParsing = parsing,
                        .dictionary = dictionary,
                        .marksWord =
                            [&asked](const QString& number) {
                                asked << number;
                                return number == u"2"_s;
                            },
                        .passesOverEmptyCells = true});
    const auto database = world.jet.OpenDatabase(u"C:\\lumenscript\\Data\\z101.dts"_s, false, true,
                                                 u";pwd=qolvetrinam"_s);
    const auto rows =
        database->OpenRecordset(u"select * from 원전분해 where chap = '창01' and verse = 1"_s);
    words.Proc원전분해결과채우기(*rows, Testament::Old);
    EXPECT_EQ(asked, (QStringList{u"1"_s, u"2"_s}));
    auto* const model = grid.findChild<GridModel*>();
    ASSERT_NE(model, nullptr);
    for (int line = 0; line < 6; ++line) {
        EXPECT_TRUE(model->style(line, 2).back.has_value());
        EXPECT_FALSE(model->style(line, 3).back.has_value());
    }
    EXPECT_EQ(model->style(1, 2).family, u"OrvaneHeb"_s);

    // Here a click on a cell without a text leaves the chosen word.
    const QString first = parsing.Text();
    grid.setCell(2, 2);
    grid.onKeyUp(Qt::Key_Left);
    EXPECT_EQ(parsing.Text(), first);
    grid.setCell(1, 2);
    grid.onKeyUp(Qt::Key_Up);
    EXPECT_TRUE(parsing.Text().startsWith(u"원어: {gd}"_s));
}

} // namespace
} // namespace lumen
