// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/record_fixture.h"
#include "records/search/record_search_window.h"
#include "support/active_window.h"

#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// The search's window over a notebook of five records.
class RecordSearchWindowTest : public RecordFixture
{
protected:
    explicit RecordSearchWindowTest(const RecordProfile& of = record_profile::kSermon)
        : RecordFixture(of)
    {
        open();
        for (int number = 1; number <= 5; ++number) {
            if (number > 1) {
                EXPECT_EQ(manager->addNew(), SaveOutcome::Stored);
                show();
            }
            type(RecordPart::Title, u"제목\t%1"_s.arg(number));
            type(RecordPart::Body, u"본문 %1 "_s.arg(number) + QString(number * 10, u'가'));
            boxes.preached = boxes.written = QDate(2003, 1, number);
            manager->changed(RecordPart::WrittenDay);
            if (profile.hasPreachedDay())
                manager->changed(RecordPart::PreachedDay);
            boxes.categoryText = number % 2 == 0 ? u"금요철야"_s : u"기타"_s;
            manager->changed(RecordPart::Category);
            EXPECT_EQ(manager->save(), SaveOutcome::Stored);
        }
        window = std::make_unique<RecordSearchWindow>(profile, services.services, services.state);
        window->onOpenRecord = [this](int key) { opened << key; };
        window->Form_Load();
        showActive(*window);
    }

    void run(const QString& tool) { window->atbar.tool(tool).action()->trigger(); }
    void easy(const QString& word, const QString& target, int scope = 0)
    {
        run(u"ID_내용별쉬운검색"_s);
        window->easy->cb대상->setListIndex(window->easy->cb대상->findItem(target));
        window->easy->cb범위->setListIndex(scope);
        window->easy->cb검색->setEditText(word);
        QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    }
    /// The numbers of the records in the grid.
    QStringList keys() const
    {
        QStringList found;
        for (int row = 1; row < window->flex결과->Rows(); ++row)
            found << window->flex결과->TextMatrix(row, window->flex결과->Cols() - 1);
        return found;
    }
    QString status() const { return window->statusPanel1->text(); }

    std::unique_ptr<RecordSearchWindow> window;
    QList<int> opened;
};

class QuietTimeSearchWindowTest : public RecordSearchWindowTest
{
protected:
    QuietTimeSearchWindowTest() : RecordSearchWindowTest(record_profile::kQuietTime) {}
};

TEST_F(RecordSearchWindowTest, AWordIsFoundAndLeadsToItsRecord)
{
    easy(u"  본문 2 "_s, u"본문"_s);
    EXPECT_EQ(window->easy->cb검색->Text(), u"본문 2"_s);
    EXPECT_EQ(keys(), QStringList{u"2"_s});
    EXPECT_EQ(status(), u"총 1개의 항목이 검색되었습니다."_s);
    EXPECT_EQ(window->easy->cb검색->ListCount(), 1);
    const FlexGrid& grid = *window->flex결과;
    EXPECT_EQ(grid.TextMatrix(1, 0), u"2003-01-02"_s);
    EXPECT_EQ(grid.TextMatrix(1, 3), u"제목 2"_s);
    EXPECT_EQ(grid.TextMatrix(1, 5), u"본문 2 "_s + QString(20, u'가'));
    EXPECT_TRUE(grid.ColHidden(8));
    window->flex결과->setFocus();
    QTest::keyClick(window->flex결과, Qt::Key_Return);
    const QPoint cell =
        window->flex결과->visualRect(window->flex결과->model()->index(0, 3)).center();
    QTest::mouseDClick(window->flex결과->viewport(), Qt::LeftButton, {}, cell);
    EXPECT_EQ(opened, (QList<int>{2, 2}));

    easy(u"없는 말"_s, u"본문"_s);
    EXPECT_EQ(status(), u"검색된 항목이 없습니다."_s);
    EXPECT_EQ(grid.Rows(), 2) << "an empty line";
    EXPECT_EQ(window->easy->cb검색->ListCount(), 1) << "only what was found is remembered";
    easy(QString(), u"본문"_s);
    EXPECT_EQ(status(), u"검색된 항목이 없습니다."_s) << "nothing at all happens";
}

TEST_F(RecordSearchWindowTest, NarrowingLooksWithinTheResultOrSaysThatThereIsNone)
{
    services.messages.expect(
        u"기존 검색 결과 없음"_s,
        u"앞서 검색된 내용이 없으므로, 전체 설교 항목에 대한 검색을 시행합니다."_s, 48);
    easy(u"제목"_s, u"제목"_s, 1);
    EXPECT_EQ(keys().size(), 5);
    EXPECT_EQ(window->easy->cb범위->ListIndex(), 0);
    easy(QString(20, u'가'), u"본문"_s, 1);
    EXPECT_EQ(keys(), (QStringList{u"2"_s, u"3"_s, u"4"_s, u"5"_s}));
    easy(QString(40, u'가'), u"본문"_s, 1);
    EXPECT_EQ(keys(), (QStringList{u"4"_s, u"5"_s}));
    easy(u"3"_s, u"제목"_s, 1);
    EXPECT_EQ(status(), u"검색된 항목이 없습니다."_s);
}

TEST_F(RecordSearchWindowTest, DaysAndCategories)
{
    DaySearchPanel& days = *window->days;
    days.dtp날짜일치->setDate(QDate(2003, 1, 3));
    EXPECT_TRUE(days.op날짜일치->isChecked());
    run(u"ID_검색"_s);
    EXPECT_EQ(keys(), QStringList{u"3"_s});
    days.dtp날짜시작->setDate(QDate(2003, 1, 4));
    days.dtp날짜끝->setDate(QDate(2003, 1, 2));
    EXPECT_TRUE(days.op날짜범위->isChecked());
    QTest::mouseClick(days.cmd검색, Qt::LeftButton);
    EXPECT_EQ(keys(), (QStringList{u"2"_s, u"3"_s, u"4"_s}));
    EXPECT_EQ(days.dtp날짜시작->date(), QDate(2003, 1, 2)) << "exchanged on the screen";
    days.cb분류->setListIndex(days.cb분류->findItem(u"기타"_s));
    EXPECT_TRUE(days.Op분류->isChecked());
    run(u"ID_검색"_s);
    EXPECT_EQ(keys(), (QStringList{u"1"_s, u"3"_s, u"5"_s}));
    run(u"ID_전체목록보기"_s);
    EXPECT_EQ(keys().size(), 5);
}

TEST_F(RecordSearchWindowTest, PowerSearchJoinsItsTerms)
{
    run(u"ID_내용별파워검색"_s);
    PowerRecordSearchPanel& power = *window->power;
    EXPECT_EQ(window->focusWidget(), power.txPSearch1);
    services.messages.expect(
        u"검색 문자열이 없음"_s,
        u"첫번째 검색 대상은 반드시 입력되어야 합니다. 검색하고자 하는 문자열을 "
        u"입력한 후 [검색] 단추를 누르시기 바랍니다."_s,
        64);
    QTest::keyClick(power.txPSearch2, Qt::Key_Return);
    power.cbP대상->setListIndex(power.cbP대상->findItem(u"본문"_s));
    power.txPSearch1->setText(u"본문 1"_s);
    power.txPSearch3->setText(u"본문 5"_s);
    power.cbCond2->setListIndex(1);
    QTest::keyClick(power.txPSearch3, Qt::Key_Return);
    EXPECT_EQ(keys(), (QStringList{u"1"_s, u"5"_s})) << "the first connector goes with its term";
}

TEST_F(RecordSearchWindowTest, TheEditMenuCopiesACellAndServesTheBoxes)
{
    EXPECT_EQ(unpairedTools(window->atbar.rows(), window->toolClicks()).withoutHandler,
              QStringList());
    run(u"ID_전체목록보기"_s);
    window->flex결과->setCell(2, 3);
    window->flex결과->setFocus();
    run(u"ID_복사"_s);
    EXPECT_EQ(services.clipboard.plainText(), u"제목 2"_s);
    services.jet.OpenDatabase(manager->data().DatabaseName)
        ->Execute(u"delete * from 설교 where 일련번호 = 2"_s);
    run(u"ID_전체목록보기"_s);
    EXPECT_EQ(status(), u"총 4개의 항목이 검색되었습니다."_s);
    window->close();
    window->Form_Load();
    EXPECT_EQ(window->flex결과->Rows(), 1);
}

TEST_F(QuietTimeSearchWindowTest, HasOneDateAndWordsOfItsOwn)
{
    EXPECT_FALSE(window->days->cb날짜일치->isVisible());
    window->days->dtp날짜일치->setDate(QDate(2003, 1, 3));
    run(u"ID_검색"_s);
    EXPECT_EQ(keys(), QStringList{u"3"_s});
    EXPECT_EQ(window->flex결과->TextMatrix(0, 6), u"적용"_s);
}

} // namespace
} // namespace lumen
