// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/data_store.h"
#include "records/illustrations/illustration_window.h"
#include "support/active_window.h"
#include "support/test_services.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// The collection over the database of a first start, with four illustrations in it.
class IllustrationWindowTest : public testing::Test
{
protected:
    IllustrationWindowTest()
    {
        EXPECT_TRUE(createUserDatabases(services.state.AppPath, services.files, services.drives,
                                        QDate(2003, 5, 1)));
        IllustrationBook book(services.jet, services.state);
        book.open();
        book.save({0, u"등대"_s, u"믿음"_s, u"불빛 하나"_s});
        book.save({0, u"농부"_s, u"소망"_s, u"씨앗 100%를 뿌렸다"_s});
        book.save({0, u"빈 제목"_s, u""_s, u"분류가 없다"_s});
        book.save({0, u"나무"_s, u"믿음"_s, u"O'Neil의 뿌리"_s});
        book.close();
        open();
    }

    void open()
    {
        window = std::make_unique<frm예화사전>(services.services, services.state);
        window->Form_Load();
        showActive(*window);
    }
    QStringList nodes() const
    {
        QStringList found;
        for (int i = 0; i < window->Tree예화->topLevelItemCount(); ++i) {
            QTreeWidgetItem* node = window->Tree예화->topLevelItem(i);
            node->setExpanded(true);
            found << node->text(0);
            for (int j = 0; j < node->childCount(); ++j)
                found << u"- "_s + node->child(j)->text(0);
        }
        return found;
    }
    void search(const QString& term, int scope = 0)
    {
        window->ATab예화->setTab(1);
        window->cb검색범위->setListIndex(scope);
        window->tx검색어->setText(term);
        QTest::keyClick(window->tx검색어, Qt::Key_Return);
    }
    QStringList found() const
    {
        QStringList titles;
        for (int i = 0; i < window->lst결과->ListCount(); ++i)
            titles << window->lst결과->List(i);
        return titles;
    }
    static void press(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    void fill(const QString& title, const QString& category, const QString& body)
    {
        window->tx제목->setText(title);
        window->cb분류->setEditText(category);
        window->tx본문->setPlainText(body);
    }

    TestServices services;
    std::unique_ptr<frm예화사전> window;
};

TEST_F(IllustrationWindowTest, TheTreeLeadsToTheText)
{
    EXPECT_EQ(nodes(), (QStringList{u"내용 없음"_s, u"- 빈 제목"_s, u"믿음"_s, u"- 나무"_s,
                                    u"- 등대"_s, u"소망"_s, u"- 농부"_s}));
    window->Tree예화->setFocus();
    window->Tree예화->setCurrentItem(window->Tree예화->topLevelItem(1));
    QTest::keyClick(window->Tree예화, Qt::Key_Down);
    EXPECT_EQ(window->tx열람->Text(), u"O'Neil의 뿌리"_s);
    EXPECT_EQ(window->lbl제목->text(), u"나무"_s);
    window->ATab예화->setTab(2);
    EXPECT_EQ(window->tx제목->text(), u"나무"_s);
    EXPECT_TRUE(window->tx제목->isReadOnly());
    EXPECT_EQ(window->cb분류->ListCount(), 2) << "no entry for those without";
    EXPECT_TRUE(window->cmd수정->isEnabled());
    EXPECT_FALSE(window->cmd저장->isEnabled());
}

TEST_F(IllustrationWindowTest, ASearchLooksWhereItIsToldWithoutWildcards)
{
    search(u" 믿음 "_s);
    EXPECT_EQ(found(), (QStringList{u"등대"_s, u"나무"_s}));
    EXPECT_EQ(window->lbl개수->text(), u"( 2 )"_s);
    search(u"믿음"_s, 1);
    EXPECT_EQ(window->lbl개수->text(), u"( 0 )"_s);
    search(u"100"_s, 3);
    EXPECT_EQ(found(), QStringList{u"농부"_s});
    search(u"O'Neil"_s, 3);
    EXPECT_EQ(found(), QStringList()) << "the quote is taken out, and stands in the text";
    search(u"*"_s);
    EXPECT_EQ(found().size(), 4);
    window->lst결과->setListIndex(1);
    EXPECT_EQ(window->tx열람->Text(), u"씨앗 100%를 뿌렸다"_s);
}

TEST_F(IllustrationWindowTest, ANewOneNeedsAllItsPartsAndShowsAtOnce)
{
    window->ATab예화->setTab(2);
    press(window->cmd신규);
    EXPECT_FALSE(window->Tree예화->isEnabled());
    const std::tuple<QString, QString, QString, QString> steps[] = {
        {u" "_s, u"a"_s, u"b"_s, u"제목이 없습니다. 제목을 입력하여 주십시요"_s},
        {u"새것"_s, u""_s, u"b"_s, u"분류 항목이 없습니다. 분류 항목을 입력하여 주십시요"_s},
        {u"새것"_s, u"사랑"_s, u"\n"_s, u"본문이 없습니다. 본문 내용을 입력하여 주십시요"_s},
    };
    for (const auto& [title, category, body, text] : steps) {
        fill(title, category, body);
        services.messages.expect(u"예화 저장"_s, text, 48);
        press(window->cmd저장);
    }
    fill(u" 새것 "_s, u"사랑"_s, u" 글 "_s);
    press(window->cmd저장);
    EXPECT_TRUE(nodes().contains(u"사랑"_s));
    EXPECT_EQ(window->tx열람->Text(), u"글"_s);
    EXPECT_TRUE(window->tx제목->isReadOnly());

    press(window->cmd수정);
    window->tx본문->setPlainText(u"고친 글"_s);
    press(window->cmd저장);
    search(u"고친"_s);
    EXPECT_EQ(found(), QStringList{u"새것"_s});
}

TEST_F(IllustrationWindowTest, CancelAndDeleteAsk)
{
    search(u"등대"_s);
    window->lst결과->setListIndex(0);
    window->ATab예화->setTab(2);
    press(window->cmd수정);
    window->tx본문->setPlainText(u"버릴 글"_s);
    services.messages.expect(u"편집 취소"_s, u"편집 작업을 취소하시겠습니까?"_s, 36, Answer::No);
    press(window->cmd취소);
    EXPECT_EQ(window->tx본문->toPlainText(), u"버릴 글"_s);
    services.messages.expect(u"편집 취소"_s, u"편집 작업을 취소하시겠습니까?"_s, 36, Answer::Yes);
    press(window->cmd취소);
    EXPECT_EQ(window->tx본문->toPlainText(), u"불빛 하나"_s);
    press(window->cmd신규);
    fill(u"없던 것"_s, u"분류"_s, u"글"_s);
    services.messages.expect(u"편집 취소"_s, u"편집 작업을 취소하시겠습니까?"_s, 36, Answer::Yes);
    press(window->cmd취소);
    EXPECT_FALSE(nodes().contains(u"분류"_s)) << "leaves no row";
    services.messages.expect(u"삭제 확인"_s, u"현재의 예화 자료를 삭제하시겠습니까?"_s, 52,
                             Answer::Yes);
    press(window->cmd삭제);
    EXPECT_FALSE(nodes().contains(u"- 등대"_s));
    EXPECT_FALSE(window->cmd수정->isEnabled());
}

TEST_F(IllustrationWindowTest, TheEndKeepsWhatIsWrittenAndBacksUp)
{
    EXPECT_EQ(unpairedTools(window->atbar.rows(), window->toolClicks()).withoutHandler,
              QStringList());
    window->ATab예화->setTab(2);
    press(window->cmd신규);
    fill(u"끝"_s, u"끝"_s, u"글"_s);
    window->tx본문->document()->setModified(true);
    services.messages.expectAny(u"예화 저장"_s, 35, Answer::Cancel);
    EXPECT_FALSE(window->close());
    services.messages.expectAny(u"예화 저장"_s, 35, Answer::Yes);
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(QFile::exists(services.folders.root() + u"/OrvaneBackup/예화.dts"_s));
    open();
    EXPECT_TRUE(nodes().contains(u"- 끝"_s));
    window->close();
    EXPECT_TRUE(QFile::exists(services.folders.root() + u"/OrvaneBackup/예화bak.dts"_s));
}

} // namespace
} // namespace lumen
