// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/search_fixture.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// The third tab as far as it works without its engine.
class ParsingPanelTest : public SearchFixture
{
protected:
    ParsingPanelTest() { openParsing(); }
};

TEST_F(ParsingPanelTest, APatternTakesThePlaceOfTheWord)
{
    for (const ConditionKind kind : {ConditionKind::Parsing, ConditionKind::Lemma}) {
        pick(u"cbType(0)"_s, static_cast<int>(kind));
        const bool pattern = kind == ConditionKind::Parsing;
        for (const QString& name : {u"txHGSearch(0)"_s, u"cmdInput(0)"_s})
            EXPECT_EQ(control<QWidget>(name).isVisible(), !pattern);
        for (const QString& name : {u"lstParsing(0)"_s, u"cmdSetParsing(0)"_s})
            EXPECT_EQ(control<QWidget>(name).isVisible(), pattern);
    }
}

TEST_F(ParsingPanelTest, TheLanguageChangesFontsAndEmptiesPatternsButStrongNumbersStayAsTheyAre)
{
    QLineEdit& word = box(u"txHGSearch(0)"_s);
    EXPECT_TRUE(word.hasFocus());
    pick(u"cbType(1)"_s, static_cast<int>(ConditionKind::Strong));
    window->parsing->setPattern(2, u"@n"_s);
    EXPECT_EQ(word.font().family(), u"OrvaneHeb"_s);
    EXPECT_TRUE(word.alignment().testFlag(Qt::AlignRight));
    pick(u"cbParVer"_s, 1);
    EXPECT_EQ(word.font().family(), u"OrvaneGrk"_s);
    EXPECT_TRUE(word.alignment().testFlag(Qt::AlignLeft));
    EXPECT_EQ(box(u"txHGSearch(1)"_s).font().family(), u"굴림"_s);
    EXPECT_EQ(window->parsing->question().conditions[2].pattern, QString());
    EXPECT_EQ(control<ListBox>(u"lstParsing(2)"_s).ListCount(), 0);
}

TEST_F(ParsingPanelTest, ThePanesComeBackInTheirSizes)
{
    window->parsingResults.splitParsing->setPaneTwips(0, 2400);
    window->parsingResults.verseSplitter->setPaneTwips(0, 1200);
    const int width = window->parsingResults.splitParsing->paneTwips(0);
    const int height = window->parsingResults.verseSplitter->paneTwips(0);
    window->close();
    // A window whose third tab is never opened keeps the sizes.
    open();
    window->close();
    openParsing();
    EXPECT_EQ(window->parsingResults.splitParsing->paneTwips(0), width);
    EXPECT_EQ(window->parsingResults.verseSplitter->paneTwips(0), height);
}

} // namespace
} // namespace lumen
