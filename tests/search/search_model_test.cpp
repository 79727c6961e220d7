// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/check_data.h"
#include "search/search_fixture.h"
#include "search/search_model.h"
#include "search/verses/power_search.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// The model over the made-up versions, without a window; what it tells is noted.
class SearchModelTest : public SearchFixture
{
protected:
    SearchModelTest()
    {
        CheckData(test.state, test.files, test.jet);
        model.emplace(test.services, test.state, nullptr);
        model->onChange = [this](const SearchChange& change) { changes.push_back(change); };
        model->chooseBooks = [this](std::optional<Testament>) { return books; };
        model->open();
        model->openTab(SearchTab::Easy);
        changes.clear();
    }

    bool search(const QString& word)
    {
        changes.clear();
        return model->search(SearchKind::Easy, easyCriterion(word), {word});
    }
    void chooseVersion(int code) { model->chooseVersion(model->versions().indexOf(code)); }
    QString query() const { return model->lookUps().dacSearch.RecordSource; }

    std::optional<SearchModel> model;
    std::optional<QString> books;
    std::vector<SearchChange> changes;
};

TEST_F(SearchModelTest, ASearchIsReadOnceAndItsPagesGoRound)
{
    EXPECT_TRUE(search(u"백절"_s));
    const auto told = [this](bool SearchChange::*what) {
        return std::ranges::count_if(changes, what);
    };
    EXPECT_EQ(told(&SearchChange::result), 1);
    EXPECT_EQ(told(&SearchChange::page), 1);
    EXPECT_EQ(told(&SearchChange::version) + told(&SearchChange::scope), 0);
    EXPECT_EQ(model->stateText(), u"100개 검색"_s);
    EXPECT_EQ(model->pageLabels().size(), 3) << "a full last page is followed by an empty one";
    for (const auto& [forward, page] : {std::pair{false, 2}, {false, 1}, {true, 2}, {true, 0}}) {
        model->turnPage(forward);
        EXPECT_EQ(model->page(), page);
    }
    search(u"없는말"_s);
    EXPECT_FALSE(model->paged());
    EXPECT_EQ(told(&SearchChange::page), 0) << "nothing to read";
    EXPECT_EQ(model->history(), QStringList{u"백절"_s});
}

TEST_F(SearchModelTest, NarrowingGoesOnInTheVersionOfTheFirstResultAndMarksAllWords)
{
    search(u"오백일절"_s);
    model->chooseScope(1);
    search(u"셋째"_s);
    EXPECT_EQ(model->count(), 167);
    chooseVersion(201);
    EXPECT_EQ(model->versionName(), u"KJV"_s);
    search(u"다섯째"_s);
    EXPECT_EQ(model->count(), 33);
    EXPECT_EQ(model->resultCode(), 101);
    EXPECT_EQ(model->foundWords().ranges(u"오백일절 셋째 다섯째"),
              (QList<TextRange>{{0, 4}, {5, 2}, {8, 3}}));
    model->chooseScope(kScopeAll);
    search(u"grace"_s);
    EXPECT_EQ(model->resultCode(), 201);
}

TEST_F(SearchModelTest, AnAbsentVersionIsToldAndTheFormerOneStays)
{
    chooseVersion(201);
    expectNoDisc();
    chooseVersion(205);
    test.messages.verify();
    test.messages.expect(u"역본 미설치"_s, u"해당 역본이 설치되어 있지 않습니다."_s, 48);
    chooseVersion(208);
    EXPECT_EQ(model->code(), 201);

    // Its module goes while the window is open: the first version comes back, the result stays.
    search(u"grace"_s);
    ASSERT_TRUE(QFile::remove(test.folders.data(u"201.dts"_s)));
    expectNoDisc();
    EXPECT_TRUE(search(u"peace"_s));
    EXPECT_EQ(model->code(), 101);
    EXPECT_EQ(model->count(), 1);
    EXPECT_EQ(model->resultCode(), 201);
}

TEST_F(SearchModelTest, BooksCancelledStayAsTheyWereAndNoBooksAreTheWholeRange)
{
    model->chooseScope(3);
    model->chooseScope(kScopeBooks); // cancelled
    EXPECT_EQ(model->scope(), kScopeBooks);
    search(u"은혜"_s);
    EXPECT_TRUE(query().endsWith(u") and Testa = '신' order by index"_s));
    books = u"출"_s;
    model->chooseScope(kScopeBooks);
    EXPECT_EQ(model->scopeText(), u"검색 대상: 출"_s);
    changes.clear();
    books = QString();
    model->chooseParsingScope(kParsingScopeBooks, Testament::New);
    EXPECT_EQ(model->scope(), kScopeAll);
    EXPECT_EQ(model->scopeText(), u"검색 범위: 전체"_s);
    EXPECT_TRUE(changes.back().language);
}

} // namespace
} // namespace lumen
