// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/dialogs/qt_message_boxes.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kButtonBits = 0x0f;
constexpr int kIconBits = 0x70;
// The second or third button as the one that Enter presses.
constexpr int kDefaultShift = 8;
constexpr int kDefaultMask = 3;

constexpr char kAnswerProperty[] = "answer";

struct Button
{
    Answer answer;
    const char16_t* caption;
    QMessageBox::ButtonRole role;
};

constexpr Button kOk{Answer::Ok, u"확인", QMessageBox::AcceptRole};
constexpr Button kCancel{Answer::Cancel, u"취소", QMessageBox::RejectRole};
constexpr Button kYes{Answer::Yes, u"예", QMessageBox::YesRole};
constexpr Button kNo{Answer::No, u"아니요", QMessageBox::NoRole};

QList<Button> buttonsOf(int flags)
{
    switch (flags & kButtonBits) {
    case 1:
        return {kOk, kCancel};
    case 3:
        return {kYes, kNo, kCancel};
    case 4:
        return {kYes, kNo};
    default:
        return {kOk};
    }
}

QMessageBox::Icon iconOf(int flags)
{
    switch (flags & kIconBits) {
    case 16:
        return QMessageBox::Critical;
    case 32:
        return QMessageBox::Question;
    case 48:
        return QMessageBox::Warning;
    case 64:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

} // namespace

void setUpMessageBox(QMessageBox& box, const QString& title, const QString& text, int flags)
{
    box.setWindowTitle(title);
    // A text of the program's may hold what looks like markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setIcon(iconOf(flags));
    const QList<Button> buttons = buttonsOf(flags);
    const int chosen = qMin<int>(flags >> kDefaultShift & kDefaultMask, int(buttons.size()) - 1);
    for (int i = 0; i < buttons.size(); ++i) {
        QPushButton* button =
            box.addButton(QString::fromUtf16(buttons[i].caption), buttons[i].role);
        button->setProperty(kAnswerProperty, static_cast<int>(buttons[i].answer));
        if (i == chosen)
            box.setDefaultButton(button);
        // The last one is the way out: Cancel where there is one, else No, else OK.
        box.setEscapeButton(button);
    }
}

Answer answerOf(const QMessageBox& box)
{
    const QAbstractButton* clicked = box.clickedButton();
    if (clicked == nullptr)
        clicked = box.escapeButton();
    return static_cast<Answer>(clicked->property(kAnswerProperty).toInt());
}

Answer QtMessageBoxes::show(QWidget* parent, const QString& title, const QString& text, int flags,
                            const QString& advice)
{
    // A window that isn't shown has no place for a box to stand over: the screen's middle then.
    QMessageBox box(parent != nullptr && parent->isVisible() ? parent : nullptr);
    setUpMessageBox(box, title, text, flags);
    box.setInformativeText(advice);
    box.exec();
    return answerOf(box);
}

} // namespace lumen
