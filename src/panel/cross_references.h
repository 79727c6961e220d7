// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/lookup/verse_box.h"
#include "panel/module_tab.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "platform/controls/text/text_control.h"

#include <optional>

namespace lumen {

/// The tab "관주": the cross references of the reader's verse in canon order, and the text of the
/// chosen one in the base version. A double click leads the reader there.
class CrossReferences : public ModuleTab
{
public:
    explicit CrossReferences(const PanelHost& host);

    QStringView caption() const override { return panel_caption::kCrossReferences; }
    void enter() override { Proc관주표시(); }
    void showPlace() override { Proc관주표시(); }

    /// Shows the references of the reader's verse, unless they are on show already.
    void Proc관주표시();
    /// Empties lists and text and clears the status panel.
    void ClearCRefArea();
    /// Fills the list from the open record of dacRefTab and chooses the first reference.
    void FillCRefArea();
    /// Shows the text of the chosen reference; none where the base version doesn't hold it.
    void DispCRefCont();

    ListBox* lst관주목록 = named<ListBox>(u"lst관주목록", u"관주 목록");
    TextControl* tx관주본문 = named<TextControl>(u"tx관주본문", u"관주 본문");
    ListBox* lst정렬 = named<ListBox>(u"lst정렬"); ///< never shown: puts keys in canon order

private:
    void tellCount();
    void openChosen();
    std::optional<QString> readVerse(const QString& key) const;

    VerseBox m_verse;
    std::optional<VersePlace> m_shown; ///< what the list was filled for
};

} // namespace lumen
