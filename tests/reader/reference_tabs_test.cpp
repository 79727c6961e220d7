// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/verse_index.h"
#include "data/module_path.h"
#include "platform/controls/flat_spin.h"
#include "reader/reader_fixture.h"
#include "support/module_files.h"
#include "support/original_modules.h"
#include "text/field_scramble.h"

#include <QFile>
#include <QPlainTextEdit>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr int kGenesis = 0;
constexpr int kJohn = 42;

/// The reader with cross references and a word analysis of a few of its verses.
class ReferenceTabsTest : public ReaderTest
{
protected:
    ReferenceTabsTest()
    {
        writeOriginalModules(
            services.folders.program() + u"/Data"_s,
            {{kGenesis, 1, 1, {{u"ba"_s, 1, u"ab"_s, {}}}},
             {kGenesis,
              1,
              2,
              {{u"gd"_s, 7, u"gd"_s, {}}, {u"wh"_s, 8, u"wh"_s, {}}, {u"hw"_s, 9, u"hw"_s, {}}}},
             {kJohn, 3, 16, {{u"houtos"_s, 3779, u"houtos"_s, {}}}}},
            u"301.dts"_s);
        writeModule(
            services.folders.data(u"CRef.dts"_s),
            {{{u"cref"_s,
               {{u"chap"_s}, {u"verse"_s, FieldType::Long, 0}, {u"cref"_s}},
               {{u"place"_s, {u"chap"_s, u"verse"_s}}}},
              {{BibleCode::GetChapKey(kGenesis, 1), 1, DES::ScrambleField(u"요3:16;창1:3"_s)}}}});
        start();
    }

    void open(QStringView caption)
    {
        reader->panel->sst관주사전->selectCaption(caption.toString());
        if (reader->panel->state() == PanelState::Collapsed)
            reader->panel->toggle();
        QApplication::processEvents();
    }
    template <typename Control>
    Control& control(const QString& name)
    {
        auto* found = reader->findChild<Control*>(name);
        if (!found)
            qFatal("no control %s", qPrintable(name));
        return *found;
    }
    QStringList words()
    {
        const auto& grid = control<FlexGrid>(u"flex원전분해"_s);
        QStringList cells;
        for (int col = 1; col < grid.Cols(); ++col)
            cells << grid.TextMatrix(1, col);
        return cells;
    }
};

TEST_F(ReferenceTabsTest, TheWordsFollowTheVerseAndLeadToTheListOfTheirNumber)
{
    open(u"원전분해");
    EXPECT_EQ(words(), QStringList{u"ba"_s});
    quickMove(u"창 1:2"_s);
    EXPECT_EQ(words(), (QStringList{u"hw"_s, u"wh"_s, u"gd"_s}));
    EXPECT_EQ(control<QLineEdit>(u"txCodeNum"_s).text(), u"7"_s);
    control<QPushButton>(u"cmd원어관주"_s).click();
    quickMove(u"요 3:16"_s);
    EXPECT_EQ(words(), QStringList{u"houtos"_s});
    control<QPushButton>(u"cmd원어관주"_s).click();
    EXPECT_EQ(opener.strongLists, (QStringList{u"히브리어 7"_s, u"헬라어 3779"_s}));

    // In the table view as well.
    quickMove(u"창 1:1"_s);
    click(u"ID_테이블형식");
    EXPECT_EQ(words(), QStringList{u"ba"_s});
    quickMove(u"창 1:2"_s);
    EXPECT_EQ(words().size(), 3);
}

TEST_F(ReferenceTabsTest, BothTabsShareTheirDataControlAndKeepTheirOwnVerse)
{
    open(u"원전분해");
    open(u"관주");
    auto& list = control<ListBox>(u"lst관주목록"_s);
    EXPECT_EQ(list.ListCount(), 2);
    EXPECT_EQ(reader->statusPanel1->text(), u"검색된 관주 수: 2"_s);
    quickMove(u"창 1:2"_s);
    EXPECT_EQ(list.List(0), u"관주 없음"_s);
    // The tab that is not on show hasn't followed; it does when it is.
    EXPECT_EQ(words(), QStringList{u"ba"_s});
    open(u"원전분해");
    EXPECT_EQ(words().size(), 3);
    EXPECT_EQ(reader->statusPanel1->text(), QString());
}

TEST_F(ReferenceTabsTest, AReferenceShowsItsTextAndLeadsTheReaderInBothViews)
{
    for (const QStringView view : {u"ID_텍스트형식", u"ID_테이블형식"}) {
        SCOPED_TRACE(view.toString().toStdString());
        quickMove(u"창 1:1"_s);
        click(view);
        open(u"관주");
        auto& list = control<ListBox>(u"lst관주목록"_s);
        ASSERT_EQ(list.ListCount(), 2);
        list.setListIndex(1);
        EXPECT_EQ(list.Text(), u"요3:16"_s);
        EXPECT_EQ(control<TextControl>(u"tx관주본문"_s).Text(), data.text(101, kJohn, 3, 16));
        QTest::keyClick(&list, Qt::Key_Return);
        EXPECT_EQ(place(), u"요한복음 3장 16절"_s);
        EXPECT_EQ(list.List(0), u"관주 없음"_s);
        EXPECT_TRUE(reader->atbar.tool(view).checked());
    }
}

TEST_F(ReferenceTabsTest, AJumpToAnotherChapterAsksTheOpenTabOnce)
{
    ASSERT_TRUE(QFile::remove(services.folders.data(u"z101.dts"_s)));
    const QString missing =
        u"데이터베이스 파일을 찾을 수 없습니다.\n"_s + services.folders.data(u"z101.dts"_s);
    services.messages.expect(u"Lumenscript"_s, missing, 16);
    open(u"원전분해");
    services.messages.verify();
    services.messages.expect(u"Lumenscript"_s, missing, 16);
    quickMove(u"요 3:16"_s);
    services.messages.verify();
    services.messages.expect(u"Lumenscript"_s, missing, 16);
    reader->model.goTo(kGenesis, 1, 2);
}

TEST_F(ReferenceTabsTest, ANoteIsStoredAtMinimisingElseLaterAndKeepsTheWindowOpenUntilItIs)
{
    open(u"개인주석");
    control<QPushButton>(u"cmd개인주석추가"_s).click();
    control<QPlainTextEdit>(u"tx개인주석본문"_s).insertPlainText(u"글"_s);
    const auto notes = services.jet.OpenDatabase(services.state.AppPath + u"\\Data\\myc.mdb"_s);
    const auto count = [&] { return notes->OpenRecordset(u"select * from myc"_s)->RecordCount(); };
    const auto failToSave = [&] {
        notes->BeginTrans(); // the save can't begin its own
        services.messages.expect(u"Lumenscript"_s, u"인수가 올바르지 않습니다.\nBeginTrans"_s, 16);
    };
    failToSave();
    reader->setWindowState(Qt::WindowMinimized);
    services.messages.verify();
    EXPECT_EQ(count(), 0);
    reader->setWindowState(Qt::WindowNoState);
    EXPECT_EQ(count(), 1);

    control<QPlainTextEdit>(u"tx개인주석본문"_s).clear();
    reader->setWindowState(Qt::WindowMinimized);
    EXPECT_EQ(count(), 0);
    control<QPlainTextEdit>(u"tx개인주석본문"_s).insertPlainText(u"글"_s);
    for (int attempt = 0; attempt < 2; ++attempt) {
        failToSave();
        EXPECT_FALSE(reader->close());
        EXPECT_TRUE(reader->isVisible());
        services.messages.verify();
    }
    EXPECT_EQ(count(), 0);
    EXPECT_TRUE(reader->close());
    const auto stored = services.jet.OpenDatabase(services.state.AppPath + u"\\Data\\myc.mdb"_s);
    EXPECT_EQ(stored->OpenRecordset(u"select * from myc"_s)->RecordCount(), 1);
}

TEST_F(ReferenceTabsTest, TheEndFreesTheModulesOfTheTabs)
{
    open(u"관주");
    EXPECT_TRUE(services.jet.isOpen(services.folders.data(u"CRef.dts"_s)));
    open(u"원전분해");
    EXPECT_TRUE(services.jet.isOpen(services.folders.data(u"z101.dts"_s)));
    EXPECT_TRUE(reader->close());
    for (const QString& name : {u"CRef.dts"_s, u"z101.dts"_s, u"101.dts"_s}) {
        SCOPED_TRACE(name.toStdString());
        EXPECT_FALSE(services.jet.isOpen(services.folders.data(name)));
    }
}

} // namespace
} // namespace lumen
