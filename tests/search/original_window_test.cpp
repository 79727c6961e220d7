// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "data/data_store.h"
#include "platform/dialogs/progress_dialog.h"
#include "search/made_originals.h"
#include "search/search_fixture.h"
#include "search/verses/book_selection_dialog.h"

#include <QDir>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// The third tab of the real window over made-up originals.
class OriginalWindowTest : public SearchFixture
{
protected:
    OriginalWindowTest()
    {
        if (!createUserDatabases(test.state.AppPath, test.files, test.drives, QDate(2024, 1, 1)))
            qFatal("no scratch tables");
        writeOriginalModules(dataFolder(), verses);
    }

    QString dataFolder() const { return test.folders.program() + u"/Data"_s; }

    /// Fills a condition as a user does, on its own page.
    void ask(int condition, ConditionKind kind, const QString& text)
    {
        window->parsing->sstHGSearch->setTab(condition);
        combo(u"cbType(%1)"_s.arg(condition)).setListIndex(static_cast<int>(kind));
        if (kind == ConditionKind::Parsing)
            window->parsing->setPattern(condition, text);
        else
            box(u"txHGSearch(%1)"_s.arg(condition)).setText(text);
    }

    void searchFor(ConditionKind kind, const QString& text)
    {
        ask(0, kind, text);
        click(u"cmdParsingSearch"_s);
    }

    QStringList listed()
    {
        QStringList references;
        ListBox& list = control<ListBox>(u"lstResult"_s);
        for (int i = 0; i < list.ListCount(); ++i)
            references << list.List(i);
        return references;
    }

    QStringList expected(const OriginalQuestion& question) const
    {
        QStringList references;
        for (const QString& key : plainAnswer(verses, question))
            references << BibleCode::IndexToRef(key);
        return references;
    }
    /// What one condition in the language of the tab finds in all books.
    QStringList expected(const OriginalCondition& condition) const
    {
        OriginalQuestion question;
        question.language = window->parsing->question().language;
        question.conditions[0] = condition;
        question.scopeTag = u"All"_s;
        return expected(question);
    }

    /// The bar of the dialog that a search shows while it runs.
    QProgressBar* progressBar() const
    {
        // The window itself, whose child the dialog is, has the bar among its descendants too.
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget != &*window && widget->isVisible())
                if (auto* bar = widget->findChild<QProgressBar*>(u"bar"_s))
                    return bar;
        return nullptr;
    }

    QString shownVerse() { return control<TextControl>(u"txBibleVerse"_s).Text(); }

    const QList<OriginalVerse> verses = madeOriginals();
};

TEST_F(OriginalWindowTest, ASearchListsItsVersesAndShowsTheChosenOneInKorean)
{
    openParsing();
    bool progressSeen = false;
    test.modal.whileEventsRun = [&] { progressSeen |= progressBar() != nullptr; };
    const QStringList references = expected(OriginalCondition{ConditionKind::Root, u"<yhla"_s, {}});
    searchFor(ConditionKind::Root, u"<yhla"_s);
    EXPECT_TRUE(progressSeen);
    EXPECT_EQ(progressBar(), nullptr);
    EXPECT_EQ(panel(2), u" %1개 검색"_s.arg(references.size()));
    EXPECT_EQ(listed(), references);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);

    ListBox& list = control<ListBox>(u"lstResult"_s);
    EXPECT_EQ(list.ListIndex(), 0);
    const auto chosen = std::ranges::find_if(korean, [&](const PlainVerse& verse) {
        return verse.book > 0 && references.contains(bookAbbreviation(verse.book) + u"1:1"_s);
    });
    ASSERT_NE(chosen, korean.end());
    const QString reference = bookAbbreviation(chosen->book) + u"1:1"_s;
    list.setListIndex(static_cast<int>(references.indexOf(reference)));
    EXPECT_EQ(shownVerse(), reference + u" ("_s + *chosen->cont + u")"_s);
    contextMenu(*control<FlexGrid>(u"flexParsing"_s).viewport());
    EXPECT_TRUE(window->atbar.menu(u"ID_편집")->isVisible());
    window->atbar.menu(u"ID_편집")->hide();
}

TEST_F(OriginalWindowTest, TheWordsOfTheVerseStandBelowAndTheSearchedRootsAreMarked)
{
    openParsing();
    // A number isn't a root that was looked up: nothing stands out.
    for (const ConditionKind kind : {ConditionKind::Root, ConditionKind::Strong}) {
        searchFor(kind, kind == ConditionKind::Root ? u"<yhla"_s : u"430"_s);
        FlexGrid& grid = control<FlexGrid>(u"flexParsing"_s);
        const auto verse = std::ranges::find_if(verses, [&](const OriginalVerse& made) {
            return BibleCode::IndexToRef(made.key()) == listed().first();
        });
        ASSERT_NE(verse, verses.end());
        ASSERT_EQ(grid.Cols(), verse->words.size() + 1);
        const QImage picture = grid.viewport()->grab().toImage();
        for (qsizetype word = 0; word < verse->words.size(); ++word) {
            // Hebrew reads from the right.
            const int col = grid.Cols() - 1 - static_cast<int>(word);
            const int strong = verse->words.at(word).strong;
            EXPECT_EQ(grid.TextMatrix(1, col), verse->words.at(word).form);
            const QRect cell = grid.visualRect(grid.model()->index(1, col));
            const bool yellow = picture.pixelColor(cell.topLeft() + QPoint(2, 2)).blue() < 150;
            EXPECT_EQ(yellow, kind == ConditionKind::Root && strong == 430) << col;
        }
        // The entry of the first word in reading order.
        const int first = verse->words.first().strong;
        EXPECT_TRUE(control<TextControl>(u"txStrongDic"_s)
                        .Text()
                        .contains(first > 0 ? u"뜻 %1"_s.arg(first)
                                            : u"해당 스트롱 코드 항목이 없습니다."_s));
    }
}

TEST_F(OriginalWindowTest, FiveConditionsOfALanguageAreReadFromTheirControls)
{
    openParsing();
    combo(u"cbParVer"_s).setListIndex(1);
    const QList<OriginalCondition> conditions{{ConditionKind::Strong, u"3056"_s, {}},
                                              {ConditionKind::Parsing, {}, u"$n__s"_s},
                                              {ConditionKind::Literal, u"zwh"_s, {}},
                                              {ConditionKind::Lemma, u"kai"_s, {}},
                                              {ConditionKind::Parsing, {}, u"$v_____"_s}};
    OriginalQuestion question;
    question.language = OriginalLanguage::Greek;
    question.scopeTag = u"요,행"_s;
    std::ranges::copy(conditions, question.conditions.begin());
    question.conjunctions = {Conjunction::And, Conjunction::Or, Conjunction::And, Conjunction::Or};
    for (int i = 0; i < kConditionCount; ++i) {
        const OriginalCondition& condition = conditions.at(i);
        ask(i, condition.kind, condition.word + condition.pattern);
        if (i == 1 || i == 3)
            pick(u"cbAndOr(%1)"_s.arg(i), 1);
    }
    test.modal.expect([](QDialog& dialog) {
        auto& books = static_cast<dlog책별선택&>(dialog);
        books.chk책명(42)->click();
        books.chk책명(43)->click();
        books.cmd승인->click();
    });
    click(u"cmd책별선택(2)"_s);
    window->atbar_event9(u"ID_검색"_s);
    EXPECT_FALSE(listed().isEmpty());
    EXPECT_EQ(listed(), expected(question));
}

TEST_F(OriginalWindowTest, TypedHebrewGrowsToTheLeftWhateverVersionTheOtherTabsSearch)
{
    openParsing();
    QLineEdit& word = box(u"txHGSearch(0)"_s);
    EXPECT_TRUE(word.hasFocus());
    type(word, u"bra"_s);
    EXPECT_EQ(word.text(), u"arb"_s);
    combo(u"cbType(0)"_s).setListIndex(static_cast<int>(ConditionKind::Strong));
    type(word, u"430"_s);
    EXPECT_EQ(word.text(), u"430"_s);
    combo(u"cbType(0)"_s).setListIndex(static_cast<int>(ConditionKind::Root));
    combo(u"cbParVer"_s).setListIndex(1);
    window->atbar_event9(u"ID_대역본0-301"_s);
    type(word, u"logov"_s);
    EXPECT_EQ(word.text(), u"logov"_s);
}

TEST_F(OriginalWindowTest, EnterSearchesAndBlanksOrGapsAreTold)
{
    openParsing();
    // A pattern counts by its code, a word that stands behind it doesn't.
    ask(0, ConditionKind::Root, u"arb"_s);
    for (const ConditionKind kind : {ConditionKind::Parsing, ConditionKind::Root}) {
        ask(0, kind, kind == ConditionKind::Root ? u"  "_s : QString());
        test.messages.expect(
            u"검색 문자열이 없음"_s,
            u"첫번째 검색 대상은 반드시 입력되어야 합니다. 검색하고자 하는 문자열을 "
            u"입력한 후 [검색] 단추를 누르시기 바랍니다."_s,
            64);
        kind == ConditionKind::Root ? QTest::keyClick(&box(u"txHGSearch(0)"_s), Qt::Key_Return)
                                    : click(u"cmdParsingSearch"_s);
        test.messages.verify();
    }
    ask(0, ConditionKind::Root, u"arb"_s);
    ask(3, ConditionKind::Strong, u"430"_s);
    test.messages.expect(
        u"중간 항목이 비었음"_s,
        u"단어 3 항목이 비었습니다.\r\n중간에 빈 검색 항목이 들어갈 수 없습니다. "_s, 16);
    click(u"cmdParsingSearch"_s);
    test.messages.verify();
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(OriginalWindowTest, SearchesWithinResultsNarrowUntilNothingIsLeft)
{
    openParsing();
    const QList<OriginalCondition> steps{
        {ConditionKind::Parsing, {}, u"@n____S___E_H_R_"_s},
        {ConditionKind::Root, u"ba"_s, {}},
        {ConditionKind::Literal, u"arb"_s, {}},
        {ConditionKind::Strong, u"8000"_s, {}},
        {ConditionKind::Strong, u"430"_s, {}},
    };
    std::optional<QStringList> found;
    for (const OriginalCondition& step : steps) {
        searchFor(step.kind, step.word + step.pattern);
        EXPECT_EQ(listed().isEmpty(), step.kind == ConditionKind::Strong);
        const QStringList alone = expected(step);
        QStringList narrowed;
        for (const QString& reference : found.value_or(alone))
            if (alone.contains(reference))
                narrowed << reference;
        EXPECT_EQ(listed(), narrowed);
        found = narrowed;
        pick(u"cbParRange"_s, 1);
    }
    EXPECT_EQ(panel(2), u" 0개 검색"_s);
    EXPECT_EQ(shownVerse(), QString());
    EXPECT_EQ(control<FlexGrid>(u"flexParsing"_s).Cols(), 2);
}

TEST_F(OriginalWindowTest, WithoutTheAnalysisNothingIsSearchedAndTheFirstVersionComesBack)
{
    open();
    window->atbar_event9(u"ID_대역본0-201"_s);
    window->sstSearch->setTab(2);
    ASSERT_TRUE(QFile::remove(test.folders.data(u"z101.dts"_s)));
    test.messages.expect(
        u"파일 손실"_s,
        u"z101.dts 파일을 찾을 수 없습니다. 루멘 스크립트를 재설치하시기 바랍니다."_s, 48);
    searchFor(ConditionKind::Strong, u"430"_s);
    EXPECT_EQ(combo(u"cb역본"_s).ListIndex(), 0);
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(panel(2), QString());
}

TEST_F(OriginalWindowTest, ADamagedScratchFileIsToldOnceAndThenMadeAnew)
{
    openParsing();
    searchFor(ConditionKind::Strong, u"430"_s);
    const QStringList found = listed();
    QFile damaged(test.folders.data(u"z199.dts"_s));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write(QByteArray(5000, 'x'));
    damaged.close();
    test.messages.expect(u"파일 손실"_s,
                         u"Data 디렉토리내의 z199.dts 파일이 손실되었습니다. 검색 작업이 "
                         u"불가능하므로 재설치 하십시요."_s,
                         16);
    searchFor(ConditionKind::Strong, u"1254"_s);
    test.messages.verify();
    EXPECT_EQ(listed(), found);
    click(u"cmdParsingSearch"_s);
    EXPECT_EQ(listed(), expected(window->parsing->question().conditions[0]));
}

TEST_F(OriginalWindowTest, WhatAKilledRunLeftIsNoBaseOfASearchWithinResults)
{
    // Also where the file can't be made anew, as while another window has it open.
    for (const bool heldOpen : {false, true}) {
        ScratchTables killed(test.jet, test.files, test.state.AppPath);
        ASSERT_TRUE(killed.prepare());
        QStringList all;
        for (const OriginalVerse& verse : verses)
            all << verse.key();
        killed.StringToDB(all.join(u';'), ScratchTables::kLast);
        killed.StringToDB(all.join(u';'), ScratchTables::kShown);
        killed.close();
        std::unique_ptr<Database> holder;
        if (heldOpen)
            holder = test.jet.OpenDatabase(u"C:\\lumenscript\\Data\\z199.dts"_s, false, false,
                                           u";pwd=qolvetrinam"_s);
        openParsing();
        EXPECT_EQ(listed(), QStringList());
        pick(u"cbParRange"_s, 1);
        searchFor(ConditionKind::Strong, u"430"_s);
        EXPECT_EQ(panel(2), u" 0개 검색"_s);
        window.reset();
    }
}

TEST_F(OriginalWindowTest, AMissingModuleIsToldAndTheListStays)
{
    openParsing();
    searchFor(ConditionKind::Strong, u"430"_s);
    const QStringList found = listed();
    for (const QString& name : {u"310.dts"_s, u"101.dts"_s, u"StrongDicG.dts"_s})
        ASSERT_TRUE(QFile::remove(test.folders.data(name)));
    combo(u"cbParVer"_s).setListIndex(1);
    expectMissing(u"310.dts"_s);
    searchFor(ConditionKind::Literal, u"kai"_s);
    test.messages.verify();
    EXPECT_EQ(listed(), found);
    EXPECT_EQ(panel(2), QString());
    EXPECT_EQ(progressBar(), nullptr);
    // Neither the Korean text nor the dictionary is a condition of this search.
    expectMissing(u"StrongDicG.dts"_s);
    searchFor(ConditionKind::Strong, u"3056"_s);
    EXPECT_EQ(listed().first(), expected(window->parsing->question().conditions[0]).first());
    EXPECT_EQ(shownVerse(), QString());
}

TEST_F(OriginalWindowTest, ADoubleClickOrEnterReadsTheVerse)
{
    openParsing();
    searchFor(ConditionKind::Strong, u"430"_s);
    ListBox& list = control<ListBox>(u"lstResult"_s);
    const VersePlace place = BibleCode::ParseRef(list.List(0));
    const QStringList read{u"%1 %2:%3"_s.arg(place.book).arg(place.chapter).arg(place.verse),
                           u"front"_s};
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(reader.calls, read);
    const QPoint first = list.visualItemRect(list.item(0)).center();
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ(reader.calls, read + read);
}

TEST_F(OriginalWindowTest, TheRightButtonShowsTheVerseThatItChooses)
{
    openParsing();
    searchFor(ConditionKind::Strong, u"430"_s);
    ListBox& list = control<ListBox>(u"lstResult"_s);
    QTest::mouseClick(list.viewport(), Qt::RightButton, {},
                      list.visualItemRect(list.item(1)).center());
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_TRUE(shownVerse().startsWith(list.List(1) + u" ("_s));
}

TEST_F(OriginalWindowTest, ClosingEmptiesAndFreesTheFiles)
{
    openParsing();
    searchFor(ConditionKind::Parsing, u"@n____S___E_H_R_"_s);
    window->close();
    for (const QString& file : QDir(dataFolder()).entryList(QDir::Files))
        EXPECT_FALSE(test.jet.isOpen(test.folders.data(file))) << file.toStdString();
    ScratchTables after(test.jet, test.files, test.state.AppPath);
    EXPECT_EQ(after.keys(ScratchTables::kShown), QStringList());
    EXPECT_EQ(after.keys(ScratchTables::kLast), QStringList());
    EXPECT_FALSE(QFile::exists(test.folders.data(u"z199c.dts"_s)));
    after.close();
    // Loaded again, nothing of the former search is on the screen.
    window->Form_Load();
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(box(u"txHGSearch(0)"_s).text(), QString());
    EXPECT_TRUE(window->parsing->question().conditions[0].isEmpty());
}

} // namespace
} // namespace lumen
