// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/module_tab.h"
#include "platform/controls/named.h"
#include "platform/controls/text/text_control.h"

#include <optional>

namespace lumen {

/// The tab "웨슬리주석": the notes on the reader's chapter.
class Wesley : public ModuleTab
{
public:
    explicit Wesley(const PanelHost& host);

    QStringView caption() const override { return panel_caption::kWesley; }
    void enter() override;
    void showPlace() override { Proc웨슬리주석표시(); }

    /// Shows the notes of the reader's chapter, unless they are on show already.
    void Proc웨슬리주석표시();

    TextControl* tx웨슬리주석본문 = named<TextControl>(u"tx웨슬리주석본문", u"웨슬리 주석");

private:
    struct Chapter
    {
        int book = 0;
        int chapter = 0;

        friend bool operator==(const Chapter&, const Chapter&) = default;
    };

    std::optional<Chapter> m_shown;
};

} // namespace lumen
