// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/dialogs/message_boxes.h"

class QMessageBox;

namespace lumen {

/// Message boxes of the desktop with Korean captions.
class QtMessageBoxes : public MessageBoxes
{
public:
    using MessageBoxes::show;
    Answer show(QWidget* parent, const QString& title, const QString& text, int flags) override
    {
        return show(parent, title, text, flags, {});
    }
    Answer show(QWidget* parent, const QString& title, const QString& text, int flags,
                const QString& advice) override;
};

/// Gives a box its icon, its buttons and the one that Esc answers.
void setUpMessageBox(QMessageBox& box, const QString& title, const QString& text, int flags);
/// The answer of a box that has ended.
Answer answerOf(const QMessageBox& box);

} // namespace lumen
