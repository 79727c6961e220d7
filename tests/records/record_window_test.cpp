// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/data_store.h"
#include "platform/controls/twips.h"
#include "print/preview_window.h"
#include "records/history/history_dialog.h"
#include "records/record_window.h"
#include "support/active_window.h"
#include "support/recording_opener.h"
#include "support/test_services.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// A notebook's window over the databases of a first start, driven by keys and tools.
class RecordWindowTest : public testing::Test
{
protected:
    explicit RecordWindowTest(const RecordProfile& of = record_profile::kSermon) : profile(of)
    {
        EXPECT_TRUE(createUserDatabases(services.state.AppPath, services.files, services.drives,
                                        QDate(2003, 5, 1)));
    }

    void open()
    {
        window = std::make_unique<RecordWindow>(profile, services.services, services.state, opener);
        window->Form_Load();
        showActive(*window);
        QTest::qWait(0);
        box(0).setFocus();
    }
    RichTextBox& box(std::size_t text) { return *window->boxes[text]; }
    void type(const QString& text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(window->focusWidget(), &event);
    }
    void write(std::size_t text, const QString& words)
    {
        box(text).setFocus();
        box(text).selectAll();
        type(words);
    }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(window->focusWidget(), code, modifiers);
    }
    void run(const QString& tool) { window->atbar.tool(tool).action()->trigger(); }
    /// Records with these titles, the first one being that of the first start.
    void make(const QStringList& titles)
    {
        for (const QString& title : titles) {
            if (title != titles.front())
                run(profile.tools.create.id.toString());
            write(0, title);
        }
        run(u"ID_저장"_s);
    }
    QString status() const { return window->statusPanel2->text(); }
    QString file() const
    {
        return services.folders.data(profile.hasPreachedDay() ? u"설교매니저.mdb"_s : u"qt.mdb"_s);
    }
    void execute(const QString& statement)
    {
        sqlite3* other = nullptr;
        ASSERT_EQ(sqlite3_open(file().toUtf8().constData(), &other), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(other, statement.toUtf8().constData(), nullptr, nullptr, nullptr),
                  SQLITE_OK)
            << sqlite3_errmsg(other);
        sqlite3_close(other);
    }
    /// A value as another reader of the file sees it.
    QString stored(const QString& column, int record)
    {
        sqlite3* other = nullptr;
        sqlite3_stmt* row = nullptr;
        EXPECT_EQ(sqlite3_open(file().toUtf8().constData(), &other), SQLITE_OK);
        const QString query =
            u"select %1 from \"%2\" order by \"일련번호\" limit 1 offset %3"_s.arg(
                column, profile.table.toString(), QString::number(record));
        EXPECT_EQ(sqlite3_prepare_v2(other, query.toUtf8().constData(), -1, &row, nullptr),
                  SQLITE_OK);
        QString value = u"<none>"_s;
        if (sqlite3_step(row) == SQLITE_ROW)
            value =
                sqlite3_column_type(row, 0) == SQLITE_NULL
                    ? u"<null>"_s
                    : QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(row, 0)));
        sqlite3_finalize(row);
        sqlite3_close(other);
        return value;
    }

    const RecordProfile& profile;
    TestServices services;
    RecordingOpener opener;
    std::unique_ptr<RecordWindow> window;
};

class QuietTimeWindowTest : public RecordWindowTest
{
protected:
    QuietTimeWindowTest() : RecordWindowTest(record_profile::kQuietTime) {}
};

TEST_F(RecordWindowTest, WhatIsTypedIsStoredByMovingOn)
{
    open();
    EXPECT_EQ(window->focusWidget(), &box(0));
    EXPECT_EQ(status(), u"1/1"_s);
    type(u"하나님의 사랑"_s);
    key(Qt::Key_3, Qt::ControlModifier);
    type(u"본문"_s);
    key(Qt::Key_Return);
    type(u"둘째 줄"_s);
    window->cb분류->lineEdit()->setFocus();
    window->cb분류->lineEdit()->selectAll();
    QTest::keyClicks(window->cb분류->lineEdit(), u"own"_s);
    key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(status(), u"2/2"_s);
    EXPECT_EQ(box(0).Text(), QString());
    EXPECT_EQ(window->focusWidget(), &box(0));
    EXPECT_EQ(window->cb분류->Text(), u"주일 낮"_s);
    EXPECT_EQ(window->dtp설교일->date(), services.clock.time.date());
    EXPECT_EQ(stored(u"제목"_s, 0), u"하나님의 사랑"_s);
    EXPECT_EQ(stored(u"본문"_s, 0), u"본문\n둘째 줄"_s);
    EXPECT_EQ(stored(u"분류"_s, 0), u"own"_s);
    EXPECT_TRUE(stored(u"rtf본문"_s, 0).startsWith(u"{\\rtf1"_s));

    type(QString(200, u'가'));
    key(Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_EQ(status(), u"1/2"_s) << "the list wraps";
    EXPECT_EQ(box(2).Text(), u"본문\n둘째 줄"_s);
    EXPECT_EQ(stored(u"제목"_s, 1), QString(130, u'가'));
    key(Qt::Key_PageUp, Qt::AltModifier);
    EXPECT_EQ(box(0).Text(), QString(200, u'가')) << "the whole title is kept as RTF";
}

TEST_F(RecordWindowTest, LookingAtRecordsChangesNoByteOfThem)
{
    const QString odd = u"{\\rtf1\\ansi 옛 글\\zz1 \\'b0\\'a1  {\\*\\x 1}}"_s;
    execute(u"update 설교 set 제목='옛', rtf제목='%1', rtf본문='%1', 본문='다른 것', 설교일=null, "
            "분류=null"_s.arg(QString(odd).replace(u'\'', u"''"_s)));
    open();
    EXPECT_EQ(box(2).Text(), u"옛 글가  "_s);
    EXPECT_EQ(box(3).Text(), QString()) << "the plain column is not shown";
    make({box(0).Text(), u"둘"_s});
    key(Qt::Key_PageUp, Qt::AltModifier);
    box(2).setFocus();
    box(2).selectAll();
    run(u"ID_저장"_s);
    write(3, u"기도"_s);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(stored(u"rtf본문"_s, 0), odd);
    EXPECT_EQ(stored(u"본문"_s, 0), u"다른 것"_s);
    EXPECT_EQ(stored(u"설교일"_s, 0), u"<null>"_s) << "though the picker shows a day";
    EXPECT_EQ(stored(u"분류"_s, 0), u"<null>"_s);
    EXPECT_EQ(stored(u"기도"_s, 0), u"기도"_s);
}

TEST_F(RecordWindowTest, ABlankTitleHoldsTheUserAndIsNamedAtTheEnd)
{
    open();
    make({u"하나"_s});
    run(u"ID_신규설교"_s);
    write(2, u"제목 없이 쓴 글"_s);
    for (const QString& tool :
         {u"ID_다음설교"_s, u"ID_처음설교"_s, u"ID_신규설교"_s, u"ID_저장"_s}) {
        services.messages.expect(u"설교 제목 공란"_s,
                                 u"설교 제목란이 비어있습니다.내용을 입력하여 주십시요."_s, 16);
        run(tool);
        services.messages.verify();
        EXPECT_EQ(status(), u"2/2"_s);
        EXPECT_EQ(box(2).Text(), u"제목 없이 쓴 글"_s);
    }
    EXPECT_TRUE(window->close());
    EXPECT_EQ(stored(u"제목"_s, 1), u"제목 없음"_s);
    EXPECT_EQ(stored(u"본문"_s, 1), u"제목 없이 쓴 글"_s);
}

TEST_F(RecordWindowTest, DeletingAsksAndLeavesTheLastRecord)
{
    open();
    make({u"하나"_s, u"둘"_s});
    services.messages.expect(u"설교 레코드 삭제 확인"_s, u"현재의 설교를 삭제하시겠습니까?"_s, 20,
                             Answer::No);
    run(u"ID_설교삭제"_s);
    EXPECT_EQ(status(), u"2/2"_s);
    services.messages.expect(u"설교 레코드 삭제 확인"_s, u"현재의 설교를 삭제하시겠습니까?"_s, 20,
                             Answer::Yes);
    run(u"ID_설교삭제"_s);
    EXPECT_EQ(status(), u"1/1"_s);
    EXPECT_EQ(box(0).Text(), u"하나"_s);
    services.messages.expect(u"설교 레코드 삭제"_s, u"마지막 레코드는 삭제할 수 없습니다."_s, 64);
    run(u"ID_설교삭제"_s);
    EXPECT_EQ(stored(u"제목"_s, 0), u"하나"_s);
}

TEST_F(RecordWindowTest, ToolsFollowTheSelectionAndChangeIt)
{
    open();
    write(2, u"굵은 글"_s);
    box(2).select(0, 2);
    for (const QString& tool : {u"ID_굵게"_s, u"ID_밑줄"_s, u"ID_파랑"_s, u"ID_우측정렬"_s})
        run(tool);
    ComboBox& sizes = window->atbar.tool(u"ID_크기").combo();
    ComboBox& fonts = window->atbar.tool(u"ID_서체").combo();
    sizes.setEditText(u"17"_s);
    sizes.setFocus();
    QTest::keyClick(sizes.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(window->focusWidget(), &box(2));
    EXPECT_EQ(box(2).SelFontSize(), 17);
    const auto checked = [this](const QString& tool) { return window->atbar.tool(tool).checked(); };
    EXPECT_TRUE(checked(u"ID_굵게"_s));
    EXPECT_FALSE(checked(u"ID_기울임꼴"_s));
    EXPECT_TRUE(checked(u"ID_우측정렬"_s));
    EXPECT_FALSE(checked(u"ID_좌측정렬"_s));
    EXPECT_TRUE(checked(u"ID_파랑"_s));
    EXPECT_TRUE(window->atbar.tool(u"ID_복사").enabled());
    box(2).select(1, 2);
    EXPECT_FALSE(checked(u"ID_굵게"_s)) << "mixed";
    EXPECT_EQ(sizes.Text(), u"17"_s) << "what is mixed shows what was there";
    box(2).select(3, 1);
    EXPECT_FALSE(checked(u"ID_파랑"_s));
    EXPECT_TRUE(checked(u"ID_검정"_s));
    EXPECT_EQ(sizes.Text(), u"10"_s);
    EXPECT_EQ(fonts.Text(), u"굴림체"_s);
    fonts.setListIndex(0);
    EXPECT_EQ(box(2).SelFontName(), fonts.List(0));
    box(2).select(0, 0);
    EXPECT_FALSE(window->atbar.tool(u"ID_복사").enabled());
}

TEST_F(RecordWindowTest, OnlyOneBoxKeepsASelection)
{
    open();
    write(1, u"말씀"_s);
    write(2, u"본문"_s);
    write(3, u"본문"_s);
    for (const std::size_t text : {1U, 2U, 3U})
        box(text).selectAll();
    box(3).clearFocus();
    box(3).setFocus();
    EXPECT_EQ(box(1).SelLength(), 0);
    EXPECT_EQ(box(2).SelLength(), 2) << "a box of the same text counts as the same";
    window->tabs->setTab(1);
    EXPECT_EQ(window->focusWidget(), &box(4));
    EXPECT_EQ(box(2).SelLength(), 0);
}

TEST_F(RecordWindowTest, TheEditMenuServesTheTextsAlone)
{
    open();
    QApplication::clipboard()->setText(u"붙일 글"_s);
    write(2, u"본문"_s);
    box(2).selectAll();
    QMenu& menu = *window->atbar.menu(u"ID_mn편집");
    const auto enabled = [&](const QString& tool) { return window->atbar.tool(tool).enabled(); };
    const auto aboutToShow = [&menu] { Q_EMIT menu.aboutToShow(); };
    aboutToShow();
    for (const QString& tool :
         {u"ID_잘라내기"_s, u"ID_복사"_s, u"ID_지우기"_s, u"ID_붙여넣기"_s, u"ID_전체선택"_s})
        EXPECT_TRUE(enabled(tool)) << tool.toStdString();
    run(u"ID_지우기"_s);
    EXPECT_EQ(box(2).Text(), QString());
    run(u"ID_실행취소"_s);
    EXPECT_EQ(box(2).Text(), u"본문"_s);
    run(u"ID_Redo"_s);
    run(u"ID_붙여넣기"_s);
    EXPECT_EQ(box(2).Text(), u"붙일 글"_s);
    window->cb분류->setFocus();
    aboutToShow();
    EXPECT_FALSE(enabled(u"ID_붙여넣기"_s));
    EXPECT_FALSE(enabled(u"ID_전체선택"_s));
}

TEST_F(RecordWindowTest, VersesComeToTheCaret)
{
    open();
    write(2, u"앞뒤"_s);
    box(2).select(1, 0);
    Q_EMIT window->atbar.menu(u"ID_mn도구")->aboutToShow();
    EXPECT_TRUE(window->atbar.tool(u"ID_성구삽입").enabled());
    opener.verses = u"1 한 절\n2 또 한 절"_s;
    run(u"ID_성구삽입"_s);
    EXPECT_EQ(box(2).Text(), u"앞1 한 절\n2 또 한 절뒤"_s);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box(2).Text(), u"앞뒤"_s);
    window->dtp작성일->setFocus();
    Q_EMIT window->atbar.menu(u"ID_mn도구")->aboutToShow();
    EXPECT_FALSE(window->atbar.tool(u"ID_성구삽입").enabled());
}

TEST_F(RecordWindowTest, UnsavedTextIsOfferedAfterACrash)
{
    open();
    make({u"하나"_s, u"둘"_s});
    write(2, u"오후 내내 쓴 글"_s);
    window->keepUnsaved();
    window.reset(); // without closing
    const QString when = services.clock.time.toString(u"yyyy-MM-dd HH:mm"_s);
    const QString text = u"\"제목 없음\"에 %1까지 쓰고 저장하지 못한 내용이 남아 있습니다. "
                         u"불러올까요?\r\n('아니오'를 "
                         "누르면 지우고, '취소'를 누르면 다음에 다시 묻습니다.)"_s.arg(when);
    services.messages.expect(u"저장되지 않은 내용"_s, text, 35, Answer::Cancel);
    open();
    EXPECT_EQ(box(0).Text(), u"둘"_s) << "the record that it is about";
    EXPECT_EQ(box(2).Text(), QString());
    window.reset();
    services.messages.expect(u"저장되지 않은 내용"_s, text, 35, Answer::Yes);
    open();
    EXPECT_EQ(status(), u"2/2"_s);
    EXPECT_EQ(box(2).Text(), u"오후 내내 쓴 글"_s);
    EXPECT_EQ(stored(u"본문"_s, 1), u"<null>"_s);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(stored(u"본문"_s, 1), u"오후 내내 쓴 글"_s);
    open();
}

TEST_F(RecordWindowTest, FormerStatesAndDeletedRecordsComeBackAsNewOnes)
{
    open();
    make({u"하나"_s, u"둘"_s});
    write(2, u"첫 글"_s);
    run(u"ID_저장"_s);
    services.clock.time = services.clock.time.addSecs(3600);
    write(2, u"다시 쓴 글"_s);
    run(u"ID_저장"_s);
    services.modal.expect([](QDialog& shown) {
        auto& dialog = static_cast<HistoryDialog&>(shown);
        EXPECT_TRUE(dialog.txState->Text().contains(u"첫 글"_s));
        EXPECT_TRUE(dialog.lstStates->List(0).endsWith(u"둘"_s));
        QTest::mouseClick(dialog.cmd되살리기, Qt::LeftButton);
    });
    run(u"ID_History"_s);
    EXPECT_EQ(status(), u"3/3"_s);
    EXPECT_EQ(box(2).Text(), u"첫 글"_s);
    services.messages.expectAny(u"설교 레코드 삭제 확인"_s, 20, Answer::Yes);
    run(u"ID_설교삭제"_s);
    services.modal.expect([](QDialog& shown) {
        auto& dialog = static_cast<HistoryDialog&>(shown);
        dialog.opDeleted->click();
        EXPECT_EQ(dialog.lstStates->ListCount(), 1);
        QTest::keyClick(dialog.lstStates, Qt::Key_Return);
    });
    run(u"ID_History"_s);
    EXPECT_EQ(status(), u"3/3"_s);
    EXPECT_EQ(box(2).Text(), u"첫 글"_s);
    services.modal.expect([](QDialog& shown) {
        auto& dialog = static_cast<HistoryDialog&>(shown);
        dialog.opDeleted->click();
        EXPECT_FALSE(dialog.cmd되살리기->isEnabled());
    });
    run(u"ID_History"_s);
    EXPECT_EQ(stored(u"본문"_s, 1), u"다시 쓴 글"_s);
}

TEST_F(RecordWindowTest, AFailedStepKeepsTheTextAndTheWindow)
{
    open();
    make({u"하나"_s, u"둘"_s});
    write(2, u"쓰던 글"_s);
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(file().toUtf8().constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "begin exclusive", nullptr, nullptr, nullptr), SQLITE_OK);
    services.messages.expectAny(u"Lumenscript"_s, 16);
    run(u"ID_다음설교"_s);
    services.messages.verify();
    EXPECT_EQ(status(), u"2/2"_s);
    EXPECT_EQ(box(2).Text(), u"쓰던 글"_s);
    services.messages.expectAny(u"Lumenscript"_s, 16);
    services.messages.expectAny(u"저장하지 못한 내용"_s, 276, Answer::No);
    EXPECT_FALSE(window->close());
    sqlite3_exec(other, "rollback", nullptr, nullptr, nullptr);
    sqlite3_close(other);
    run(u"ID_다음설교"_s);
    EXPECT_EQ(stored(u"본문"_s, 1), u"쓰던 글"_s);
}

TEST_F(RecordWindowTest, ClosingLeavesTwoGenerations)
{
    const QString folder = services.folders.root() + u"/OrvaneBackup/"_s;
    open();
    make({u"하나"_s});
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(QFile::exists(folder + u"설교매니저.mdb"_s));
    EXPECT_TRUE(QFile::exists(folder + u"전자우편주소록.mdb"_s));
    EXPECT_FALSE(QFile::exists(folder + u"설교매니저bak.mdb"_s));
    open();
    EXPECT_EQ(box(0).Text(), u"하나"_s);
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(QFile::exists(folder + u"설교매니저bak.mdb"_s));
    open();
    write(1, u"아직"_s);
    run(u"ID_종료"_s);
    EXPECT_EQ(opener.ends, 1);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(RecordWindowTest, TheTitleTakesTheHeightOfItsLines)
{
    open();
    const auto height = [this] { return toTwips(box(0).height()); };
    EXPECT_NEAR(height(), 375, 15);
    write(0, u"한 줄"_s);
    EXPECT_NEAR(height(), std::max(375, box(0).textHeight() + 200), 15);
    key(Qt::Key_Return);
    type(u"두 줄"_s);
    const int two = height();
    EXPECT_NEAR(two, box(0).textHeight() + 200, 15);
    for (int line = 0; line < 6; ++line)
        key(Qt::Key_Return);
    EXPECT_NEAR(height(), 1000, 15);
}

TEST_F(RecordWindowTest, EachToolHasItsCommand)
{
    open();
    ToolFaults faults =
        unpairedTools(window->atbar.rows(), window->toolClicks(), window->toolCombos());
    EXPECT_EQ(faults.withoutHandler, QStringList());
    EXPECT_EQ(faults.withoutTool, QStringList());
    run(u"ID_QT매니저"_s);
    run(u"ID_성서"_s);
    run(u"ID_성서지도"_s);
    run(u"ID_인터넷"_s);
    EXPECT_EQ(opener.opened,
              (std::vector<WindowId>{WindowId::QuietTime, WindowId::Reader, WindowId::Map}));
    EXPECT_EQ(opener.homePages, 1);
}

TEST_F(QuietTimeWindowTest, IsTheSameWindowWithWordsOfItsOwn)
{
    open();
    EXPECT_EQ(window->objectName(), u"frmQT매니저"_s);
    const ToolFaults faults =
        unpairedTools(window->atbar.rows(), window->toolClicks(), window->toolCombos());
    EXPECT_EQ(faults.withoutHandler + faults.withoutTool, QStringList());
    for (const QString& tool : {u"ID_HTML로저장"_s, u"ID_설교문발송"_s, u"ID_전자우편환경설정"_s})
        EXPECT_FALSE(window->atbar.tool(tool).exists()) << tool.toStdString();
    EXPECT_FALSE(window->dtp설교일->isVisible());
    services.messages.expect(u"QT 제목 공란"_s,
                             u"QT 제목란이 비어있습니다.내용을 입력하여 주십시요."_s, 16);
    run(u"ID_다음QT"_s);
    write(0, u"아침"_s);
    run(u"ID_Box5"_s);
    type(u"적용할 것"_s);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(stored(u"적용"_s, 0), u"적용할 것"_s);
    EXPECT_TRUE(QFile::exists(services.folders.root() + u"/OrvaneBackup/QT.mdb"_s));
}

TEST_F(RecordWindowTest, TheRecordOnTheScreenIsPrintedAndAllGoToThePrinter)
{
    open();
    make({u"첫 설교"_s, u"둘째 설교"_s, u"셋째 설교"_s});
    write(2, u"포도원 이야기"_s); // not stored yet
    box(2).select(0, 3);
    const auto textsOf = [](const std::vector<PrintPage>& pages) {
        QStringList texts;
        for (const PrintPage& page : pages)
            for (const PageItem& item : page.items)
                if (const auto* const text = std::get_if<PageText>(&item))
                    texts << text->text;
        return texts;
    };
    services.modal.expect([&](QDialog& shown) {
        auto& preview = dynamic_cast<frm미리보기&>(shown);
        const QStringList texts = textsOf(preview.printer.pages());
        EXPECT_TRUE(texts.contains(u"셋째 설교"_s));
        EXPECT_TRUE(texts.contains(u"포도원 이야기"_s));
        preview.Op선택->click();
        EXPECT_TRUE(textsOf(preview.printer.pages()).contains(u"포도원"_s));
    });
    run(u"ID_인쇄"_s);

    services.messages.expect(
        u"전체 자료 인쇄"_s,
        u"설교 매니저 데이터 베이스에 수록되어 있는 모든 자료를 인쇄합니다.계속하시겠습니까?"_s,
        49);
    run(u"ID_전체자료인쇄"_s);
    ASSERT_EQ(services.printers.jobs.size(), 3u);
    EXPECT_EQ(services.printers.jobs[0].title, u"첫 설교"_s);
    EXPECT_TRUE(textsOf(services.printers.jobs[2].pages).contains(u"포도원 이야기"_s));
    EXPECT_EQ(status(), u"3/3"_s);

    services.printers.jobs.clear();
    services.printers.devices = {{services.printers.file, {{}, true}}};
    services.messages.expectAny(u"전체 자료 인쇄"_s, 49);
    services.fileDialogs.answerSave(services.folders.root() + u"/all.pdf"_s);
    run(u"ID_전체자료인쇄"_s);
    ASSERT_EQ(services.printers.jobs.size(), 1u);
    EXPECT_EQ(services.printers.jobs[0].pages.size(), 3u);
}

} // namespace
} // namespace lumen
