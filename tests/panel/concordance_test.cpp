// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/concordance_word.h"
#include "panel/lookup/concordance.h"
#include "panel/panel_fixture.h"
#include "text/codepage949.h"
#include "text/original/original_unicode.h"

#include <QTest>

#include <utility>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

TEST(ConcordanceWords, AreCleanedAsTheIndexOfTheVersionIs)
{
    struct Row
    {
        int code;
        QString typed;
        QString cleaned;
    };
    const Row rows[] = {
        {102, u"abc(x)d"_s, u"abxd"_s},
        {102, u"태초(太初)에"_s, u"太初에"_s},
        {102, u"(太初)에"_s, u"太初에"_s},
        {101, u"태초(太初)에"_s, u"태초(太初)에"_s},
        {101, u"○말씀!.,'`\"?-:;〔〕"_s + fromCodePage949("\xA2\xD2"), u"말씀"_s},
        {201, u"God's"_s, u"Gods"_s},
        {201, u".,?"_s, {}},
        {401, u"O神，。；（）：－！"_s, u"神"_s},
        {301, u"b5;r2av`iyt:"_s, u"b5;r2av`iyt:"_s},
        {905, u"God's"_s, u"God's"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.typed.toStdString());
        EXPECT_EQ(cleanedConcordanceWord(row.typed, row.code), row.cleaned) << row.code;
    }
}

class ConcordanceTest : public PanelTabFixture<Concordance>
{
protected:
    ConcordanceTest()
    {
        writeIndex(101, {{u"말씀"_s, u"43요:001:001;01창:001:003"_s, 2},
                         {u"말씀"_s, u"66계:022:021"_s, 3},
                         {u"말씀을"_s, u"01창:001:003;부록"_s, 1},
                         {u"큰말씀"_s, u"01창:001:002"_s, 1}});
        writeIndex(301, {{u"abc"_s, u"01창:001:001"_s, 1}});
        writeVersion(world.folders.data(u"101.dts"_s), u"개역한글"_s,
                     {{0, 1, 2, u"둘째 절"_s, {}, {}},
                      {0, 1, 3, u"셋째 절"_s, {}, {}},
                      {42, 1, 1, u"요한의 절"_s, {}, {}}});
        writeVersion(world.folders.data(u"201.dts"_s), u"KJV"_s, {{0, 1, 1, u"text"_s, {}, {}}});
        writeVersion(world.folders.data(u"301.dts"_s), u"BHS"_s, {{0, 1, 1, u"abc def"_s, {}, {}}});
        reader.codes = {101};
        open();
    }

    struct IndexRow
    {
        QString word;
        QString positions;
        int count;
    };
    void writeIndex(int code, const QList<IndexRow>& rows)
    {
        ModuleTable table{{u"성구사전"_s,
                           {{u"Word"_s}, memoColumn(u"Pos"_s), {u"num"_s, FieldType::Long, 0}},
                           {{u"Word"_s, {u"Word"_s}}}},
                          {}};
        for (const IndexRow& row : rows)
            table.rows << QVariantList{scrambled(row.word), row.positions, row.count};
        writeModule(world.folders.data(u"%1c.dts"_s.arg(code)), {table});
    }

    void lookUp(const QString& word)
    {
        tab->tx성구사전검색어->setText(word);
        QTest::keyClick(tab->tx성구사전검색어, Qt::Key_Return);
    }
    void pick(int code) { tab->cbConcVer->setListIndex(tab->cbConcVer->findItemData(code)); }
    QStringList words() const
    {
        QStringList texts;
        for (int row = 0; row < tab->flex성구결과->Rows(); ++row)
            texts << tab->flex성구결과->TextMatrix(row, 0);
        return texts;
    }
    QStringList places() const
    {
        QStringList texts;
        for (int item = 0; item < tab->lst성구인덱스->ListCount(); ++item)
            texts << tab->lst성구인덱스->List(item);
        return texts;
    }
};

TEST_F(ConcordanceTest, AWordOfSeveralRowsIsOneAndItsVersesStandInCanonOrder)
{
    lookUp(u"말씀"_s);
    EXPECT_EQ(words(), (QStringList{u"말씀 (5)"_s, u"말씀을 (1)"_s}));
    EXPECT_EQ(places(), (QStringList{u"창1:3"_s, u"요1:1"_s, u"계22:21"_s}));
    EXPECT_EQ(tab->tx성구본문->Text(), u"셋째 절"_s);
    EXPECT_EQ(status, u"'개역한글'에서 검색된 성구 수: 2"_s);
    QTest::keyClick(tab->flex성구결과, Qt::Key_Down);
    EXPECT_EQ(places(), (QStringList{u"창1:3"_s, u"부록"_s}));

    tab->op성구포함->click();
    lookUp(u"말씀,"_s);
    EXPECT_EQ(words(), (QStringList{u"말씀 (5)"_s, u"말씀을 (1)"_s, u"큰말씀 (1)"_s}));
    EXPECT_EQ(tab->tx성구사전검색어->text(), u"말씀"_s) << "as it was looked up";
    panel.toggle();
    panel.toggle();
    EXPECT_EQ(status, u"검색된 단어 수: 3"_s);
    lookUp(u"없는말"_s);
    EXPECT_TRUE(words().isEmpty() && places().isEmpty());
    EXPECT_EQ(tab->tx성구본문->Text() + status, QString());
}

TEST_F(ConcordanceTest, AChosenVerseIsShownAndADoubleClickGoesThere)
{
    lookUp(u"말씀"_s);
    QWidget* const view = tab->lst성구인덱스->viewport();
    const QPoint second = tab->lst성구인덱스->visualItemRect(tab->lst성구인덱스->item(1)).center();
    QTest::mouseClick(view, Qt::LeftButton, {}, second);
    EXPECT_EQ(tab->tx성구본문->Text(), u"요한의 절"_s);
    QTest::mouseDClick(view, Qt::LeftButton, {}, second);
    EXPECT_EQ(reader.bookNumber, 42);
    EXPECT_EQ(reader.range, u"1"_s);
}

TEST_F(ConcordanceTest, AnotherVersionBeginsAnewAndHasItsOwnRules)
{
    lookUp(u"말씀"_s);
    pick(301);
    EXPECT_TRUE(words().isEmpty() && places().isEmpty());
    EXPECT_EQ(tab->tx성구사전검색어->text(), QString());
    EXPECT_EQ(tab->tx성구사전검색어->font().family(), u"OrvaneHeb"_s);
    // Hebrew stands at the right, and the caret before what is typed.
    QTest::keyClicks(tab->tx성구사전검색어, u"bc"_s);
    EXPECT_EQ(tab->tx성구사전검색어->text(), u"cb"_s);
    lookUp(u"ab"_s);
    EXPECT_EQ(words(), QStringList{u"abc"_s}) << "without a count, in small letters";
    const FlexGrid& grid = *tab->flex성구결과;
    EXPECT_GE(grid.rowHeight(0), grid.fontMetrics().height());
    EXPECT_LT(grid.rowHeight(0), 2 * grid.fontMetrics().height());
    EXPECT_GT(tab->cbConcVer->minimumSizeHint().width(),
              tab->cbConcVer->fontMetrics().horizontalAdvance(u"개역한글"_s));
    EXPECT_EQ(status, u"'BHS'에서 검색된 성구 수: 1 (현재 항목 수: 1)"_s);
}

TEST_F(ConcordanceTest, WhatCannotBeLookedUpIsTold)
{
    world.messages.expect(u"검색할 수 없는 검색어"_s,
                          u"선택 또는 입력한 단어나 어구를 검색할 수 없습니다."_s, 16);
    lookUp(u".,?"_s);
    pick(201);
    world.messages.expect(u"성구 사전 모듈 미설치"_s,
                          u"'KJV'에 대한 성구 사전 모듈이 하드 디스크에 설치되어 있지 않습니다. "
                          u"ORVANE Lumen Script CD-ROM을 넣어 주십시요."_s,
                          48);
    lookUp(u"text"_s);
    EXPECT_EQ(tab->cbConcVer->Text(), u"개역한글"_s);
    // Signs of patterns are letters like others, where the cleaning leaves them.
    tab->op성구포함->click();
    for (const auto& [word, count] : {std::pair(u"말*"_s, 0), {u"[말]"_s, 0}, {u"?말씀'"_s, 3}}) {
        lookUp(word);
        EXPECT_EQ(words().size(), count) << word.toStdString();
    }
}

} // namespace
} // namespace lumen
