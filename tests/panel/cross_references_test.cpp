// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/verse_index.h"
#include "data/check_data.h"
#include "data/data_store.h"
#include "jet/data_control.h"
#include "jet/error.h"
#include "panel/cross_references.h"
#include "panel/reference_panel.h"
#include "support/active_window.h"
#include "support/fake_reader.h"
#include "support/module_files.h"
#include "support/tiny_data.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTest>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr int kGenesis = 0;
constexpr int kJohn = 42;

/// A reader with a base version that a test chooses.
class VersionReader : public FakeReader
{
public:
    int versionCode(int) const override { return code; }
    int code = 101;
};

QVariantList row(int chapter, int verse, const QString& references)
{
    return {BibleCode::GetChapKey(kGenesis, chapter), verse, DES::ScrambleField(references)};
}

class CrossReferencesTest : public testing::Test
{
protected:
    CrossReferencesTest()
    {
        writeModule(
            world.folders.data(u"CRef.dts"_s),
            {{{u"cref"_s,
               {{u"chap"_s}, {u"verse"_s, FieldType::Long, 0}, {u"cref"_s}},
               {{u"place"_s, {u"chap"_s, u"verse"_s}}}},
              {row(1, 1, u"창1:2;요1:3"_s), row(1, 2, u"창1:2;요1:3;"_s),
               row(1, 3, u"요3:16;시119:176;창2:3;창1:10;창1:9"_s), row(1, 4, {}),
               row(1, 5, u"계22:21"_s), row(1, 6, u"창1:5"_s), row(1, 7, u"없음9:9;;창1:1"_s)}}});
        world.state.installed = {};
        CheckData(world.state, world.files, world.jet);
        stand(101, u"개역한글"_s);
        auto made = std::make_unique<CrossReferences>(
            PanelHost{.services = world.services,
                      .state = world.state,
                      .reader = reader,
                      .dacRefTab = dacRefTab,
                      .baseModule = [this] { return dacBasis.Database(); }});
        tab = made.get();
        panel.onStatus = [this](const QString& text) { status = text; };
        panel.addTab(std::move(made));
        panel.resize(900, 300);
        showActive(panel);
    }

    void stand(int code, const QString& table)
    {
        reader.code = code;
        reader.versions = QStringList{table};
        dacBasis.DatabaseName = u"C:\\lumenscript\\Data\\%1.dts"_s.arg(code);
        dacBasis.Connect = QString::fromUtf16(connect_text::kDataControl);
        dacBasis.RecordSource = u"select * from ["_s + table + u"] where chap = '창01'"_s;
        dacBasis.Refresh();
    }
    void expandAt(int verse)
    {
        goTo(verse);
        if (panel.state() == PanelState::Collapsed)
            panel.toggle();
        QCoreApplication::processEvents(); // lays the page out
    }
    void goTo(int verse)
    {
        reader.range = QString::number(verse);
        panel.showPlace();
    }
    QStringList shown() const
    {
        QStringList items;
        for (int i = 0; i < tab->lst관주목록->ListCount(); ++i)
            items << tab->lst관주목록->List(i);
        return items;
    }
    void clickItem(int index, bool twice = false)
    {
        QWidget* const view = tab->lst관주목록->viewport();
        const QPoint at = tab->lst관주목록->visualItemRect(tab->lst관주목록->item(index)).center();
        QTest::mouseClick(view, Qt::LeftButton, {}, at);
        if (twice)
            QTest::mouseDClick(view, Qt::LeftButton, {}, at);
    }
    QString text() const { return tab->tx관주본문->Text(); }

    TestServices world;
    TinyData data{world};
    VersionReader reader;
    DataControl dacRefTab{world.jet};
    DataControl dacBasis{world.jet};
    QString status;
    CrossReferences* tab = nullptr;
    ReferencePanel panel{world.services};
};

TEST_F(CrossReferencesTest, ReferencesStandInCanonOrderWithAndWithoutALastSemicolon)
{
    expandAt(1);
    EXPECT_EQ(shown(), (QStringList{u"창1:2"_s, u"요1:3"_s}));
    EXPECT_EQ(status, u"검색된 관주 수: 2"_s);
    goTo(2);
    EXPECT_EQ(shown(), (QStringList{u"창1:2"_s, u"요1:3"_s}));
    goTo(3);
    EXPECT_EQ(shown(),
              (QStringList{u"창1:9"_s, u"창1:10"_s, u"창2:3"_s, u"시119:176"_s, u"요3:16"_s}));
    EXPECT_EQ(status, u"검색된 관주 수: 5"_s);
    EXPECT_EQ(dacRefTab.RecordSource, u"select cref from cref where chap = '창01' and verse = 3"_s);
    EXPECT_EQ(text(), TinyData::text(101, kGenesis, 1, 9)) << "the first one is chosen";
}

TEST_F(CrossReferencesTest, AVerseWithoutReferencesShowsOneItemThatDoesNothing)
{
    reader.bookNumber = kGenesis;
    for (const int verse : {4, 20}) {
        SCOPED_TRACE(verse);
        expandAt(1);
        goTo(verse);
        EXPECT_EQ(shown(), QStringList{u"관주 없음"_s});
        EXPECT_EQ(status, QString());
        EXPECT_EQ(text(), QString());
        clickItem(0, true);
        EXPECT_EQ(text(), QString());
        EXPECT_EQ(reader.range, QString::number(verse));
    }
    // The item counts when the tab is come back to.
    panel.toggle();
    panel.toggle();
    EXPECT_EQ(status, u"검색된 관주 수: 1"_s);
}

TEST_F(CrossReferencesTest, AClickShowsTheTextAndLeavesTheReadersChapterAlone)
{
    expandAt(1);
    clickItem(1);
    EXPECT_EQ(text(), TinyData::text(101, kJohn, 1, 3));
    EXPECT_EQ(dacBasis.Recordset()->RecordCount(), 31);
    // A verse that the version lacks, and one that is Null.
    for (const int verse : {5, 6}) {
        SCOPED_TRACE(verse);
        goTo(1);
        goTo(verse);
        EXPECT_EQ(text(), QString());
        EXPECT_EQ(status, u"검색된 관주 수: 1"_s);
    }
}

TEST_F(CrossReferencesTest, ADoubleClickLeadsTheReaderThere)
{
    expandAt(3);
    clickItem(4, true);
    EXPECT_EQ(reader.bookNumber, kJohn);
    EXPECT_EQ(reader.chapterNumber, 3);
    EXPECT_EQ(reader.range, u"16"_s);
}

TEST_F(CrossReferencesTest, HebrewIsDividedToTheWidthOfTheBoxAndStandsAtTheRight)
{
    stand(301, u"BHS"_s);
    expandAt(3);
    clickItem(0);
    const QString whole = TinyData::text(301, kGenesis, 1, 9);
    const QStringList lines = text().split(u'\n');
    ASSERT_GT(lines.size(), 0);
    // The first line holds the end of the stored text, where the verse begins.
    EXPECT_TRUE(whole.trimmed().endsWith(lines.first().trimmed()));
    EXPECT_EQ(tab->tx관주본문->document()->defaultTextOption().alignment(), Qt::AlignRight);
    EXPECT_EQ(tab->tx관주본문->font().family(), u"OrvaneHeb"_s);
    tab->tx관주본문->setFixedWidth(80);
    QCoreApplication::processEvents();
    tab->tx관주본문->onResizeEnded();
    EXPECT_GT(text().split(u'\n').size(), lines.size());
    stand(101, u"개역한글"_s);
    clickItem(0);
    EXPECT_EQ(tab->tx관주본문->document()->defaultTextOption().alignment(), Qt::AlignLeft);
    EXPECT_EQ(text(), TinyData::text(101, kGenesis, 1, 9));
}

TEST_F(CrossReferencesTest, ADamagedModuleLeavesNoReferencesOfAnotherVerse)
{
    expandAt(1);
    dacRefTab.Close();
    QFile file(world.folders.data(u"CRef.dts"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("no database at all");
    file.close();
    EXPECT_THROW(goTo(2), JetError);
    EXPECT_EQ(shown(), QStringList());
    EXPECT_EQ(status, QString());
}

} // namespace
} // namespace lumen
