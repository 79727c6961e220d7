// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/check_data.h"
#include "reader/reader_model.h"
#include "support/module_files.h"
#include "support/test_services.h"
#include "support/tiny_data.h"

#include <gtest/gtest.h>

#include <QFile>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr int kJohn = 42;
constexpr int kRevelation = 65;

/// The model over the tiny Data folder; what it tells is noted.
class ReaderModelTest : public testing::Test
{
protected:
    ReaderModelTest() { start({}); }

    void start(const ReaderSettings& left)
    {
        CheckData(services.state, services.files, services.jet);
        model.takeStock();
        model.onChange = [this](const ReaderChange& change) {
            changes.push_back(change);
            if (change.marked != 0) // as the view reports it
                model.settle(change.marked, QString::number(change.marked));
        };
        model.open(left);
        model.appear();
        changes.clear();
    }
    void type(QString reference) { model.Proc이동(reference); }
    void expectWarning(const QString& title, const QString& text)
    {
        services.messages.expect(title, text, 48);
    }
    VersePlace place() const { return {model.book(), model.chapter(), model.GetCurVerse()}; }
    QString firstText() const { return model.text().front().verses.front().cont; }

    TestServices services;
    TinyData data{services};
    ReaderModel model{services.services, services.state, nullptr};
    std::vector<ReaderChange> changes;
};

TEST_F(ReaderModelTest, ATypedMoveIsToldOnceWithItsVerse)
{
    QString reference = u"요3장"_s;
    model.Proc이동(reference);
    EXPECT_EQ(reference, u"요3장1"_s);
    type(u"요한복음 3장16절"_s);
    EXPECT_EQ(place(), (VersePlace{kJohn, 3, 16}));
    ASSERT_EQ(changes.size(), 2U);
    EXPECT_TRUE(changes[1].text);
    EXPECT_EQ(changes[1].marked, 16);
    EXPECT_EQ(changes[1].moved, u"요3:16"_s);
    EXPECT_EQ(model.reference(), u"요3:16"_s);
    EXPECT_EQ(firstText(), TinyData::text(101, kJohn, 3, 1));
}

TEST_F(ReaderModelTest, WhatATypedReferenceAsksTooMuchIsToldAndTheLastTaken)
{
    const QString verseTitle = u"절 입력 오류"_s;
    type(u"창 1:2"_s);
    expectWarning(
        u"입력 오류"_s,
        u"입력이 잘못되었습니다. '요 3:16' 또는 '요한복음 3:16'과 같은 방식으로 입력하시기 바랍니다."_s);
    type(u"창 3"_s);
    EXPECT_EQ(place(), (VersePlace{0, 1, 2})) << "nothing has moved";
    EXPECT_EQ(changes.size(), 1U);

    expectWarning(verseTitle, u"입력하신 장이 실제 장 수보다 큽니다. 마지막 장을 선택합니다."_s);
    type(u"창 99:1"_s);
    EXPECT_EQ(model.chapter(), 50);

    expectWarning(verseTitle, u"입력하신 절이 실제 절 수보다 큽니다. 마지막 절을 선택합니다."_s);
    type(u"창 2:9"_s);
    EXPECT_EQ(place(), (VersePlace{0, 2, 3}));
    EXPECT_EQ(changes.back().moved, u"창2:3"_s);
}

TEST_F(ReaderModelTest, AHoleInAChapterLeadsToTheVerseBeforeIt)
{
    QList<PlainVerse> verses;
    for (const int verse : {1, 2, 4, 6})
        verses << PlainVerse{kJohn, 3, verse, u"%1절"_s.arg(verse), {}, {}};
    writeVersion(services.folders.data(u"101.dts"_s), u"개역한글"_s, verses);
    start({});
    type(u"요 3:6"_s);
    EXPECT_EQ(model.reference(), u"요3:6"_s) << "by its number, not by its row";
    expectWarning(u"절 입력 오류"_s,
                  u"기본 역본에는 입력하신 절이 없습니다. 그 앞의 절을 선택합니다."_s);
    type(u"요 3:5"_s);
    EXPECT_EQ(place(), (VersePlace{kJohn, 3, 4}));
}

TEST_F(ReaderModelTest, ChaptersGoRoundWithinTheBook)
{
    struct Row
    {
        VersePlace from;
        int step;
        int chapter;
    };
    for (const Row& row : {Row{{0, 1, 1}, -1, 50}, Row{{0, 50, 1}, 1, 1},
                           Row{{kRevelation, 22, 1}, 1, 1}, Row{{kJohn, 3, 16}, 1, 4}}) {
        model.moveTo(row.from);
        model.stepChapter(row.step);
        EXPECT_EQ(model.book(), row.from.book);
        EXPECT_EQ(model.chapter(), row.chapter);
        EXPECT_EQ(changes.back().marked, 0) << "its head is shown";
    }
    model.goTo(63, 1, 2); // a book of one chapter
    changes.clear();
    model.stepChapter(1);
    EXPECT_TRUE(changes.empty());
    EXPECT_EQ(place(), (VersePlace{63, 1, 2}));
}

TEST_F(ReaderModelTest, AnAbsentVersionLeavesTheFormerOneAndPutsTheChoiceBack)
{
    const int former = model.choice(0).previousIndex();
    expectWarning(u"CD 삽입 후 재실행 요망"_s,
                  u"루멘 스크립트 CD를 넣은 후 프로그램을 재실행 하십시요."_s);
    model.chooseVersion(0, model.choice(0).indexOf(204));
    EXPECT_EQ(model.versionName(0), u"개역한글"_s);
    EXPECT_EQ(model.choice(0).previousIndex(), former);
    ASSERT_EQ(changes.size(), 1U);
    EXPECT_TRUE(changes[0].versions);
    EXPECT_FALSE(changes[0].text);

    model.chooseVersion(1, model.choice(1).indexOf(201));
    EXPECT_EQ(model.text().size(), 2U);
    EXPECT_TRUE(changes[1].text);
}

TEST_F(ReaderModelTest, AChapterThatCannotBeReadLeavesNoneOfTheFormerText)
{
    type(u"요 3:2"_s);
    model.close();
    QFile module(services.folders.data(u"101.dts"_s));
    ASSERT_TRUE(module.open(QIODevice::ReadWrite));
    module.write(QByteArray(static_cast<qsizetype>(module.size()), 'x'));
    module.close();
    type(u"요 3:3"_s);
    EXPECT_FALSE(model.hasText());
    EXPECT_EQ(model.reference(), QString());
    EXPECT_FALSE(model.text().front().problem.isEmpty());
    EXPECT_TRUE(changes.back().text);
    EXPECT_EQ(changes.back().moved, QString()) << "the history names no place without a verse";
}

TEST_F(ReaderModelTest, ThereIsNoCurrentVerseBeforeTheWindowIsSeen)
{
    ReaderModel hidden{services.services, services.state, nullptr};
    hidden.open({});
    hidden.settle(3, u"3-5"_s);
    EXPECT_EQ(hidden.GetCurVerse(), 0);
    EXPECT_EQ(hidden.GetCurVerseRange(), QString());
    hidden.appear();
    EXPECT_EQ(hidden.GetCurVerse(), 3);
    EXPECT_EQ(hidden.GetCurVerseRange(), u"3-5"_s);
}

} // namespace
} // namespace lumen
