// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/registry/registry_store.h"
#include "search/search_fixture.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// The third tab as far as it works without its engine.
class ParsingPanelTest : public SearchFixture
{
protected:
    void openTab()
    {
        open();
        QTest::keyClick(&*window, Qt::Key_3, Qt::ControlModifier);
    }

    bool shown(const QString& name) { return control<QWidget>(name).isVisible(); }
};

TEST_F(ParsingPanelTest, APatternTakesThePlaceOfTheWord)
{
    openTab();
    EXPECT_TRUE(shown(u"txHGSearch(0)"_s));
    EXPECT_FALSE(shown(u"lstParsing(0)"_s));
    pick(u"cbType(0)"_s, static_cast<int>(ConditionKind::Parsing));
    EXPECT_FALSE(shown(u"txHGSearch(0)"_s));
    EXPECT_FALSE(shown(u"cmdInput(0)"_s));
    EXPECT_TRUE(shown(u"lstParsing(0)"_s));
    EXPECT_TRUE(shown(u"cmdSetParsing(0)"_s));
    pick(u"cbType(0)"_s, static_cast<int>(ConditionKind::Lemma));
    EXPECT_TRUE(shown(u"txHGSearch(0)"_s));
    EXPECT_FALSE(shown(u"lstParsing(0)"_s));
}

TEST_F(ParsingPanelTest, TheLanguageChangesFontsAndEmptiesPatternsButStrongNumbersStayAsTheyAre)
{
    openTab();
    pick(u"cbType(1)"_s, static_cast<int>(ConditionKind::Strong));
    control<ListBox>(u"lstParsing(2)"_s).AddItem(u"명사"_s);
    EXPECT_EQ(box(u"txHGSearch(0)"_s).font().family(), u"OrvaneHeb"_s);
    EXPECT_TRUE(box(u"txHGSearch(0)"_s).alignment().testFlag(Qt::AlignRight));
    pick(u"cbParVer"_s, 1);
    EXPECT_EQ(box(u"txHGSearch(0)"_s).font().family(), u"OrvaneGrk"_s);
    EXPECT_EQ(box(u"txHGSearch(0)"_s).font().pointSize(), 14);
    EXPECT_TRUE(box(u"txHGSearch(0)"_s).alignment().testFlag(Qt::AlignLeft));
    EXPECT_EQ(box(u"txHGSearch(1)"_s).font().family(), u"굴림"_s);
    EXPECT_EQ(control<ListBox>(u"lstParsing(2)"_s).ListCount(), 0);
}

TEST_F(ParsingPanelTest, ThePanesComeBackInTheirSizes)
{
    openTab();
    window->parsingResults.splitParsing->setPaneTwips(0, 2400);
    window->parsingResults.verseSplitter->setPaneTwips(0, 1200);
    const int width = window->parsingResults.splitParsing->paneTwips(0);
    const int height = window->parsingResults.verseSplitter->paneTwips(0);
    window->close();
    test.registry.OpenKey(u"HKEY_CURRENT_USER\\Software\\ORVANE\\Lumenscript 2.0\\BibleSearch"_s);
    EXPECT_EQ(test.registry.GetValue(u"ResultWidth"_s, ValueKind::Long), QString::number(width));

    openTab();
    EXPECT_EQ(window->parsingResults.splitParsing->paneTwips(0), width);
    EXPECT_EQ(window->parsingResults.verseSplitter->paneTwips(0), height);
    window->close();
    // A window whose third tab was never opened keeps the sizes.
    open();
    window->close();
    test.registry.OpenKey(u"HKEY_CURRENT_USER\\Software\\ORVANE\\Lumenscript 2.0\\BibleSearch"_s);
    EXPECT_EQ(test.registry.GetValue(u"VerseHeight"_s, ValueKind::Long), QString::number(height));
}

} // namespace
} // namespace lumen
