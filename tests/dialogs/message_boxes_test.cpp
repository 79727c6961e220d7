// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/dialogs/qt_message_boxes.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Shows a real box and does something in it once it is up.
Answer answerTo(int flags, const std::function<void(QMessageBox&)>& user)
{
    QtMessageBoxes boxes;
    QTimer::singleShot(0, qApp, [&user] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        user(*box);
    });
    return boxes.show(nullptr, u"제목"_s, u"본문"_s, flags, u"할 일"_s);
}

QStringList captions(const QMessageBox& box)
{
    QStringList result;
    for (const QAbstractButton* button : box.buttons())
        result << button->text();
    result.sort();
    return result;
}

void click(QMessageBox& box, const QString& caption)
{
    for (QAbstractButton* button : box.buttons())
        if (button->text() == caption)
            return button->click();
    ADD_FAILURE() << "no button " << caption.toStdString();
    box.reject();
}

TEST(QtMessageBoxes, FlagsChooseButtonsIconsAndTheAnswerOfEsc)
{
    struct Row
    {
        int flags;
        QStringList captions;
        QMessageBox::Icon icon;
        Answer esc;
        QString enter;
    };
    const Row rows[] = {
        {48, {u"확인"_s}, QMessageBox::Warning, Answer::Ok, u"확인"_s},
        {64, {u"확인"_s}, QMessageBox::Information, Answer::Ok, u"확인"_s},
        {49, {u"취소"_s, u"확인"_s}, QMessageBox::Warning, Answer::Cancel, u"확인"_s},
        {17, {u"취소"_s, u"확인"_s}, QMessageBox::Critical, Answer::Cancel, u"확인"_s},
        {35, {u"아니요"_s, u"예"_s, u"취소"_s}, QMessageBox::Question, Answer::Cancel, u"예"_s},
        {52, {u"아니요"_s, u"예"_s}, QMessageBox::Warning, Answer::No, u"예"_s},
        {68, {u"아니요"_s, u"예"_s}, QMessageBox::Information, Answer::No, u"예"_s},
        {292, {u"아니요"_s, u"예"_s}, QMessageBox::Question, Answer::No, u"아니요"_s},
        {0, {u"확인"_s}, QMessageBox::NoIcon, Answer::Ok, u"확인"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.flags);
        const Answer answer = answerTo(row.flags, [&row](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), u"제목"_s);
            EXPECT_EQ(box.text(), u"본문"_s);
            EXPECT_EQ(box.icon(), row.icon);
            QStringList expected = row.captions;
            expected.sort();
            EXPECT_EQ(captions(box), expected);
            ASSERT_NE(box.defaultButton(), nullptr);
            EXPECT_EQ(box.defaultButton()->text(), row.enter);
            QTest::keyClick(&box, Qt::Key_Escape);
        });
        EXPECT_EQ(answer, row.esc);
    }
}

TEST(QtMessageBoxes, EachButtonGivesItsAnswer)
{
    const auto answerOfClick = [](int flags, const QString& caption) {
        return answerTo(flags, [&caption](QMessageBox& box) { click(box, caption); });
    };
    EXPECT_EQ(answerOfClick(33, u"확인"_s), Answer::Ok);
    EXPECT_EQ(answerOfClick(33, u"취소"_s), Answer::Cancel);
    EXPECT_EQ(answerOfClick(35, u"예"_s), Answer::Yes);
    EXPECT_EQ(answerOfClick(35, u"아니요"_s), Answer::No);
    EXPECT_EQ(answerOfClick(35, u"취소"_s), Answer::Cancel);
    EXPECT_EQ(answerOfClick(36, u"예"_s), Answer::Yes);
}

TEST(QtMessageBoxes, AdviceStandsBelowTheText)
{
    answerTo(48, [](QMessageBox& box) {
        EXPECT_EQ(box.text(), u"본문"_s);
        EXPECT_EQ(box.informativeText(), u"할 일"_s);
        box.reject();
    });
}

TEST(QtMessageBoxes, MarkupInATextIsShownAsItIs)
{
    QMessageBox box;
    setUpMessageBox(box, u"제목"_s, u"<b>1</b>"_s, 64);
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
}

} // namespace
} // namespace lumen
