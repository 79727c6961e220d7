// SPDX-License-Identifier: GPL-2.0-or-later
// The scripted services must fail a test where a user would have been surprised.
#include "support/scripted_dialogs.h"
#include "support/scripted_message_boxes.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(ScriptedMessageBoxes, AnswerInOrderAndRunTheUsersPart)
{
    ScriptedMessageBoxes boxes;
    int during = 0;
    boxes.expect(u"a"_s, u"first"_s, 52, Answer::No, [&] { during = boxes.shownCount(); });
    boxes.expect(u"b"_s, u"second"_s, 48);
    EXPECT_EQ(boxes.show(nullptr, u"a"_s, u"first"_s, 52), Answer::No);
    EXPECT_EQ(boxes.show(nullptr, u"b"_s, u"second"_s, 48), Answer::Ok);
    EXPECT_EQ(during, 1);
}

TEST(ScriptedMessageBoxes, AnyDifferenceFailsTheTest)
{
    ScriptedMessageBoxes boxes;
    const auto show = [&boxes] { boxes.show(nullptr, u"title"_s, u"text"_s, 48); };
    EXPECT_NONFATAL_FAILURE(show(), "unexpected message box");
    boxes.expect(u"other"_s, u"text"_s, 48);
    EXPECT_NONFATAL_FAILURE(show(), "title of a message box");
    boxes.expect(u"title"_s, u"text "_s, 48);
    EXPECT_NONFATAL_FAILURE(show(), "text of a message box");
    boxes.expect(u"title"_s, u"text"_s, 64);
    EXPECT_NONFATAL_FAILURE(show(), "flags of the message box");
    boxes.expect(u"title"_s, u"text"_s, 48);
    EXPECT_NONFATAL_FAILURE(boxes.verify(), "a message box never came");
}

TEST(ScriptedModal, ShowsTheDialogAndEndsItAsTheUserDid)
{
    ScriptedModal modal;
    QDialog dialog;
    dialog.setObjectName(u"dlog"_s);
    modal.expect([](QDialog& shown) {
        EXPECT_TRUE(shown.isVisible());
        shown.accept();
    });
    EXPECT_EQ(modal.run(dialog), QDialog::Accepted);
    modal.expect([](QDialog&) {});
    EXPECT_EQ(modal.run(dialog), QDialog::Rejected) << "a dialog that stays open is closed";
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(modal.shown, (QStringList{u"dlog"_s, u"dlog"_s}));
    EXPECT_NONFATAL_FAILURE(modal.run(dialog), "unexpected modal dialog");
}

TEST(ScriptedFileDialogs, AnswersAreUsedUpInOrder)
{
    ScriptedFileDialogs dialogs;
    dialogs.answerSave(u"/a.txt"_s);
    dialogs.answerSave(std::nullopt);
    EXPECT_EQ(dialogs.save(nullptr, {u"one"_s, {}, {}, {}}), u"/a.txt"_s);
    EXPECT_EQ(dialogs.save(nullptr, {u"two"_s, {}, {}, {}}), std::nullopt);
    EXPECT_EQ(dialogs.saveRequests.size(), 2);
    EXPECT_NONFATAL_FAILURE(dialogs.save(nullptr, {}), "unexpected save dialog");
    EXPECT_NONFATAL_FAILURE(dialogs.color(nullptr, 0), "unexpected colour dialog");
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedFileDialogs unused;
            unused.answerColor(3);
        },
        "a colour dialog never came");
}

} // namespace
} // namespace lumen
