// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/lookup/dictionary_tabs.h"
#include "panel/panel_fixture.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

const QString kAskTitle = u"확인"_s;

class BibleDictionaryTest : public PanelTabFixture<BibleDictionary>
{
protected:
    void writeAndOpen()
    {
        const auto entry = [number = 0](const QString& word, const QString& text,
                                        const QString& source) mutable {
            return QVariantList{scrambled(word), scrambled(text), source, ++number};
        };
        auto add = entry;
        writeModule(
            world.folders.data(u"BibleDic.dts"_s),
            {{{u"성경사전"_s,
               {{u"word"_s}, memoColumn(u"def"_s), {u"class"_s}, {u"no"_s, FieldType::Long, 0}},
               {}},
              {add(u"moses"_s, u"drawn out of the Nile"_s, u"e"_s),
               add(u"mo"_s, u"a short head"_s, u"h"_s), add(u"moab"_s, {}, u"i"_s),
               add(u"모세"_s, u"백성을 이끌었다"_s, u"t"_s),
               add(u"amos"_s, u"a shepherd, not of the NILE"_s, u"e"_s),
               add(u"zz"_s, u"with F> in it"_s, u"e"_s)}}});
        open();
    }

    void typeAndEnter(const QString& word)
    {
        tab->cb성경사전검색어->setEditText(word);
        QTest::keyClick(tab->cb성경사전검색어, Qt::Key_Return); // it has the focus, not its box
    }

    void click(QRadioButton* option) { option->click(); }

    QStringList words() const
    {
        QStringList items;
        for (int i = 0; i < tab->lst성경사전근접어->ListCount(); ++i)
            items << tab->lst성경사전근접어->List(i);
        return items;
    }

    QString meaning() const { return tab->tx성경사전의미->Text(); }

    void expectQuestion(const QString& word, Answer answer)
    {
        world.messages.expect(kAskTitle,
                              u"'%1'에 대한 '내용 중' 검색 옵션은 시스템에 따라 수분 이상의 시간이 "
                              u"소요될 수 있습니다. "
                              u"\r\n계속하시겠습니까?\r\n(참고: 한글 검색 시 사전 선택을 '오르베인 "
                              u"한글'로 설정하시면 "
                              u"시간이 절약됩니다.)"_s.arg(word),
                              52, answer);
    }
};

TEST_F(BibleDictionaryTest, WordsStandSortedAndTheChosenOneTellsItsSource)
{
    writeAndOpen();
    panel.showTab(panel.sst관주사전->currentIndex());
    EXPECT_EQ(QApplication::focusWidget(), tab->cb성경사전검색어) << "to type at once";
    typeAndEnter(u" MO "_s);
    EXPECT_EQ(words(), (QStringList{u"MO"_s, u"MOAB"_s, u"MOSES"_s}));
    EXPECT_EQ(meaning(), u"a short head"_s);
    EXPECT_EQ(status, u"출처 : 히치코크 인명사전"_s);
    QTest::keyClick(tab->lst성경사전근접어, Qt::Key_Down);
    EXPECT_EQ(meaning(), u"Not Entered Yet!"_s);
    QTest::keyClick(tab->lst성경사전근접어, Qt::Key_Down);
    EXPECT_EQ(meaning(), u"drawn out of the Nile"_s);
    EXPECT_EQ(status, u"출처 : 이스턴 성경사전"_s);

    // Coming back to the tab tells the count.
    panel.toggle();
    panel.toggle();
    EXPECT_EQ(status, u"검색된 단어 수: 3"_s);
}

TEST_F(BibleDictionaryTest, OptionsAndWorksNarrowTheWords)
{
    writeAndOpen();
    click(tab->opt포함);
    typeAndEnter(u"mo"_s);
    EXPECT_EQ(words(), (QStringList{u"AMOS"_s, u"MO"_s, u"MOAB"_s, u"MOSES"_s}));
    tab->cb사전선택->setListIndex(3); // Easton
    typeAndEnter(u"mo"_s);
    EXPECT_EQ(words(), (QStringList{u"AMOS"_s, u"MOSES"_s}));
    tab->cb사전선택->setListIndex(1);
    typeAndEnter(u"모"_s);
    EXPECT_EQ(words(), QStringList{u"모세"_s});
    EXPECT_EQ(status, u"출처 : 오르베인 한글 성경사전"_s);
    typeAndEnter(u"없는 말"_s);
    EXPECT_EQ(words(), QStringList());
    EXPECT_EQ(meaning(), u"정의된 단어가 없습니다."_s);
    EXPECT_EQ(status, QString());
}

TEST_F(BibleDictionaryTest, TextsAreSearchedAfterAQuestion)
{
    writeAndOpen();
    typeAndEnter(u"moses"_s);
    click(tab->opt내용);
    expectQuestion(u"Nile"_s, Answer::No);
    typeAndEnter(u"Nile"_s);
    EXPECT_EQ(words(), QStringList{u"MOSES"_s}) << "declined: all stays as it was";
    tab->tx성경사전의미->setText(QString());
    expectQuestion(u"Nile"_s, Answer::Yes);
    typeAndEnter(u"Nile"_s);
    EXPECT_EQ(words(), QStringList{u"MOSES"_s}) << "the case counts in texts";
    EXPECT_EQ(meaning(), u"drawn out of the Nile"_s);
    expectQuestion(u"F>"_s, Answer::Yes);
    typeAndEnter(u"F>"_s);
    EXPECT_EQ(words(), QStringList{u"ZZ"_s}) << "stored as a quote and a bar";
}

TEST_F(BibleDictionaryTest, UsedWordsAreKeptOnceAndLookedUpAgain)
{
    writeAndOpen();
    for (const QString& word : {u"moses"_s, u"amos"_s, u"moses"_s, u"없는 말"_s})
        typeAndEnter(word);
    EXPECT_EQ(tab->cb성경사전검색어->ListCount(), 2);
    tab->cb성경사전검색어->setEditText(u"mos"_s);
    QTest::mouseClick(tab->cmd성경사전검색, Qt::LeftButton);
    EXPECT_EQ(words(), QStringList{u"MOSES"_s});
    EXPECT_EQ(tab->cb성경사전검색어->currentText(), u"mos"_s);
    ComboBox& used = *tab->cb성경사전검색어;
    QTest::keyClick(&used, Qt::Key_F4);
    QTest::keyClick(used.view(), Qt::Key_Home);
    QTest::keyClick(used.view(), Qt::Key_Down);
    QTest::keyClick(used.view(), Qt::Key_Return);
    EXPECT_EQ(words(), QStringList{u"AMOS"_s});
    // Signs of patterns are letters like others.
    for (const QString& word : {u"mo*"_s, u"m?"_s, u"[m]"_s, u"m'o"_s, u"mo|"_s}) {
        typeAndEnter(word);
        EXPECT_EQ(words(), QStringList()) << word.toStdString();
    }
}

TEST_F(BibleDictionaryTest, AModuleThatCannotBeReadIsNoUnknownWord)
{
    writeModule(world.folders.data(u"BibleDic.dts"_s),
                {{{u"another"_s, {{u"word"_s}}, {}}, {{u"moses"_s}}}});
    open();
    world.messages.expect(u"Lumenscript"_s, u"테이블을 찾을 수 없습니다.\n성경사전"_s, 16);
    typeAndEnter(u"moses"_s);
    EXPECT_EQ(meaning(), QString());
}

TEST_F(BibleDictionaryTest, WithoutTheModuleThePageTakesNoInput)
{
    open();
    EXPECT_FALSE(tab->cb성경사전검색어->isEnabled());
    EXPECT_EQ(status, QString());
}

class EnglishDictionaryTest : public PanelTabFixture<EnglishDictionary>
{
protected:
    EnglishDictionaryTest()
    {
        writeModule(world.folders.data(u"EKDic.dts"_s),
                    {{{u"영한영사전"_s, {{u"word"_s}, memoColumn(u"def"_s)}, {}},
                      {{scrambled(u"oath"_s), scrambled(u"맹세"_s)},
                       {scrambled(u"oat"_s), QVariant()},
                       {scrambled(u"맹세"_s), scrambled(u"oath"_s)}}}});
        open();
    }

    QString lookUp(QRadioButton* option, const QString& word)
    {
        option->click();
        tab->cb영한사전검색어->setEditText(word);
        QTest::keyClick(tab->cb영한사전검색어, Qt::Key_Return);
        QStringList items;
        for (int i = 0; i < tab->lst영한사전근접어->ListCount(); ++i)
            items << tab->lst영한사전근접어->List(i);
        return items.join(u' ');
    }
};

TEST_F(EnglishDictionaryTest, WordsAreFoundInEachWayAndCounted)
{
    EXPECT_EQ(lookUp(tab->ekopt일치, u"Oat"_s), u"OAT"_s);
    EXPECT_EQ(tab->tx영한사전의미->Text(), u"Not Exists!"_s);
    EXPECT_EQ(lookUp(tab->ekopt시작, u"oat"_s), u"OAT OATH"_s);
    EXPECT_EQ(status, u"검색된 단어 수: 2"_s);
    EXPECT_EQ(lookUp(tab->ekopt포함, u"세"_s), u"맹세"_s);
    EXPECT_EQ(tab->tx영한사전의미->Text(), u"oath"_s);
    world.messages.expect(kAskTitle,
                          u"'내용 중' 검색 옵션은 시스템에 따라 수분 이상의 시간이 소요될 수 "
                          u"있습니다. \r\n계속하시겠습니까?"_s,
                          52, Answer::Yes);
    EXPECT_EQ(lookUp(tab->ekopt내용, u"맹"_s), u"OATH"_s);
    EXPECT_EQ(status, u"검색된 단어 수: 1"_s);
}

} // namespace
} // namespace lumen
