// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/hymnal/hymn_search_dialog.h"
#include "panel/hymnal/hymnal.h"
#include "panel/panel_fixture.h"

#include <QTest>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

QVariantList hymn(int number, const QString& title, const QString& words,
                  const QString& writer = {}, const QString& related = {},
                  const QString& verses = {})
{
    return {number,     scrambled(title),          scrambled(words),   scrambled(writer),
            QVariant(), scrambled(u"분류 하나"_s), scrambled(related), scrambled(verses)};
}

class HymnalTest : public PanelTabFixture<Hymnal>
{
protected:
    void openWith(const QList<QVariantList>& rows)
    {
        std::vector<ColumnDef> columns{{u"Num"_s, FieldType::Short}};
        for (const QString& name : {u"Title"_s, u"cont"_s, u"Writer"_s, u"Composer"_s,
                                    u"Category"_s, u"SongRef"_s, u"BibleRef"_s})
            columns.push_back(memoColumn(name));
        writeModule(world.folders.data(u"z201.dts"_s),
                    {ModuleTable{{u"Hymm"_s, columns, {}}, rows}});
        open();
    }
    static QList<QVariantList> threeHymns()
    {
        return {hymn(2, u"둘째 노래"_s, u"강가에 앉아"_s, u"Jizo"_s, u"12; 558"_s,
                     u"시46:3-7;요한3:16;시23"_s),
                hymn(12, u"열두째 노래"_s, u"it's 100% *"_s),
                hymn(558, u"끝 노래"_s, QString(), u"없는 이"_s)};
    }
    void openThree() { openWith(threeHymns()); }
    void type(const QString& number)
    {
        tab->tx찬송가장->setFocus();
        QTest::keyClicks(tab->tx찬송가장, number);
        QTest::keyClick(tab->tx찬송가장, Qt::Key_Return);
    }
    QString shown() const { return tab->tx찬송가장->text() + u' ' + tab->tx찬송가제목->text(); }
    static QStringList items(const ListBox& list)
    {
        QStringList texts;
        for (int i = 0; i < list.ListCount(); ++i)
            texts << list.List(i);
        return texts;
    }
    static void openItem(ListBox& list, int index)
    {
        list.setListIndex(index);
        QTest::keyClick(&list, Qt::Key_Return);
    }
    dlog찬송가검색& search()
    {
        QTest::mouseClick(tab->cmd찬송가검색, Qt::LeftButton);
        return static_cast<dlog찬송가검색&>(*panel.findChild<QDialog*>(u"dlog찬송가검색"_s));
    }
};

TEST_F(HymnalTest, ANumberShowsItsHymnOrTheNearestOne)
{
    openWith(threeHymns() << hymn(559, u"밖의 노래"_s, u"밖"_s));
    EXPECT_EQ(shown(), u"2 둘째 노래"_s) << "1 is none";
    EXPECT_EQ(tab->tx작사->text() + tab->tx작곡->text() + tab->tx분류->text(), u"Jizo분류 하나"_s);
    const struct
    {
        QString typed;
        QString shown;
    } rows[] = {{u"12"_s, u"12 열두째 노래"_s}, {u"557"_s, u"12 열두째 노래"_s},
                {u"1"_s, u"2 둘째 노래"_s},     {u"11"_s, u"2 둘째 노래"_s},
                {u"0"_s, u"2 둘째 노래"_s},     {u"12"_s, u"12 열두째 노래"_s},
                {u" "_s, u"12 열두째 노래"_s},  {u"559"_s, u"558 "_s}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed.toStdString());
        type(row.typed);
        EXPECT_EQ(shown(), row.shown);
    }
    EXPECT_EQ(tab->tx작사->text(), QString()) << "a hymn without words";
}

TEST_F(HymnalTest, TheArrowsPassNumbersThatTheHymnalLacks)
{
    openThree();
    const auto key = [this](Qt::Key pressed) { QTest::keyClick(tab->tx찬송가장, pressed); };
    tab->tx찬송가장->setFocus();
    key(Qt::Key_Down);
    EXPECT_EQ(shown(), u"2 둘째 노래"_s) << "the first one stays";
    key(Qt::Key_Up);
    EXPECT_EQ(shown(), u"12 열두째 노래"_s);
    QTest::mouseClick(tab->updn찬송가, Qt::LeftButton, {},
                      QPoint(tab->updn찬송가->width() / 2, tab->updn찬송가->height() / 4));
    EXPECT_EQ(shown(), u"558 "_s);
    key(Qt::Key_Up);
    EXPECT_EQ(shown(), u"558 "_s) << "the last one stays";
    key(Qt::Key_Down);
    EXPECT_EQ(shown(), u"12 열두째 노래"_s);
    QTest::keyClicks(tab->tx찬송가장, u"3"_s); // they go on from what is typed
    key(Qt::Key_Down);
    EXPECT_EQ(shown(), u"2 둘째 노래"_s);
}

TEST_F(HymnalTest, AHymnIsAskedForOnceAndNoVerseAsksForIt)
{
    openThree();
    type(u"12"_s);
    dacRefTab.RecordSource = u"another tab was here"_s;
    goTo(0, 1, 5);
    panel.toggle();
    panel.toggle();
    type(u"12"_s);
    EXPECT_EQ(dacRefTab.RecordSource, u"another tab was here"_s);
    EXPECT_EQ(status, QString());
}

TEST_F(HymnalTest, RelatedHymnsAndVersesAreOpened)
{
    openThree();
    EXPECT_EQ(items(*tab->lst관련찬송), (QStringList{u"12 장"_s, u"558 장"_s}));
    EXPECT_EQ(items(*tab->lst관련성구), (QStringList{u"시46:3-7"_s, u"요한3:16"_s, u"시23"_s}));
    openItem(*tab->lst관련성구, 0);
    EXPECT_EQ(reader.chapter(), 46);
    EXPECT_EQ(reader.range, u"3"_s);
    openItem(*tab->lst관련성구, 1); // no book of that name
    EXPECT_EQ(reader.chapter(), 46);
    openItem(*tab->lst관련성구, 2);
    EXPECT_EQ(reader.chapter(), 23);
    EXPECT_EQ(reader.range, u"1"_s);
    openItem(*tab->lst관련찬송, 0);
    EXPECT_EQ(shown(), u"12 열두째 노래"_s);
    EXPECT_EQ(tab->lst관련찬송->ListCount() + tab->lst관련성구->ListCount(), 0);
}

TEST_F(HymnalTest, TheTuneOfTheHymnInViewIsOpened)
{
    openThree();
    tab->tx찬송가장->setText(u"7"_s); // typed, without Enter
    QTest::mouseClick(tab->cmd찬송가연주, Qt::LeftButton);
    EXPECT_EQ(world.shell.opened, QStringList{u"C:\\lumenscript\\Hymn\\2.mid"_s});
    const struct
    {
        FailureKind kind;
        QString title;
        QString text;
    } rows[] = {
        {FailureKind::NotFound, u"곡 파일 없음"_s, u"이 찬송가의 곡 파일이 없습니다."_s},
        {FailureKind::System, u"연주 프로그램 없음"_s,
         u"MIDI 파일을 연주할 프로그램이 없습니다.\r\n"
         "연주 프로그램을 설치한 후 다시 실행하십시오."_s},
    };
    for (const auto& row : rows) {
        world.shell.failure = Failure{row.kind, {}};
        world.messages.expect(row.title, row.text + u"\r\nC:\\lumenscript\\Hymn\\2.mid"_s, 48,
                              Answer::Ok);
        QTest::mouseClick(tab->cmd찬송가연주, Qt::LeftButton);
    }
}

TEST_F(HymnalTest, WithoutTheModuleTheTabSaysSo)
{
    open();
    EXPECT_FALSE(tab->tx찬송가장->isEnabled());
    EXPECT_TRUE(tab->tx찬송가제목->placeholderText().contains(u"z201.dts"_s));
}

TEST_F(HymnalTest, AHymnalWithoutHymnsShowsNone)
{
    openWith({});
    EXPECT_EQ(shown(), u"1 "_s);
}

TEST_F(HymnalTest, TheSearchFindsWordsInTheFieldChosen)
{
    openThree();
    dlog찬송가검색& dialog = search();
    const struct
    {
        int field;
        QString word;
        QStringList found;
    } rows[] = {
        {0, u"노래"_s, {u"2 장\t둘째 노래"_s, u"12 장\t열두째 노래"_s, u"558 장\t끝 노래"_s}},
        {1, u"열두째"_s, {u"12 장\t열두째 노래"_s}},
        {1, u"강가"_s, {}},
        {2, u"강가에"_s, {u"2 장\t둘째 노래"_s}},
        {3, u"하나"_s, {u"2 장\t둘째 노래"_s, u"12 장\t열두째 노래"_s, u"558 장\t끝 노래"_s}},
        {4, u"없는"_s, {u"558 장\t끝 노래"_s}},
        {5, u"노래"_s, {}},
        // Signs of a pattern, and letters that become such signs when they are scrambled.
        {0, u"it's 100% *"_s, {u"12 장\t열두째 노래"_s}},
        {0, u"?"_s, {}},
        {4, u"Jizo"_s, {u"2 장\t둘째 노래"_s}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.field << ' ' << row.word.toStdString());
        dialog.fieldCombo->setListIndex(row.field);
        dialog.tx검색어->setText(row.word);
        QTest::keyClick(dialog.tx검색어, Qt::Key_Return);
        EXPECT_EQ(items(*dialog.lst검색결과), row.found);
        EXPECT_EQ(dialog.statusPanel1->text(),
                  u"검색 갯수: "_s + QString::number(row.found.size()));
    }
    EXPECT_EQ(hymnSearchQuery(4, u"가"_s),
              u"Select * from Hymm where Writer like '*치*'order by Num"_s);
    EXPECT_EQ(hymnSearchQuery(0, u"가"_s),
              u"Select * from Hymm where title like '*치*' or cont like '*치*' or composer like "
              "'*치*' or writer like '*치*' or category like '*치*'order by Num"_s);
}

TEST_F(HymnalTest, AFoundHymnComesOnShowAndTheSearchStaysOpen)
{
    openThree();
    dlog찬송가검색& dialog = search();
    QTest::keyClick(dialog.tx검색어, Qt::Key_Return);
    panel.sst관주사전->selectCaption(u"관주"_s);
    panel.toggle();
    openItem(*dialog.lst검색결과, 1);
    EXPECT_EQ(shown(), u"12 열두째 노래"_s);
    EXPECT_TRUE(tab->page()->isVisible());
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.lst검색결과->ListIndex(), 1) << "Enter searches anew only in the word's box";
    EXPECT_EQ(&search(), &dialog) << "one search, also when it is asked for again";
    tab->close();
    EXPECT_FALSE(dialog.isVisible());
}

} // namespace
} // namespace lumen
