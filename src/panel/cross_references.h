// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "forms/services.h"
#include "jet/data_control.h"
#include "panel/panel_tab.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "platform/controls/text_control.h"
#include "text/hebrew_division.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace lumen {

class ReaderPlace;

/// The tab "관주": the cross references of the reader's verse in canon order, and the text of the
/// chosen one in the base version. A double click leads the reader there.
class CrossReferences : public PanelTab
{
public:
    /// The open module of the base version, nullptr while there is none.
    using BaseModule = std::function<Database*()>;

    /// `dacRefTab` is shared by the tabs and pointed anew by each.
    CrossReferences(Services& services, const AppState& state, ReaderPlace& reader,
                    DataControl& dacRefTab, BaseModule baseModule);

    QStringView caption() const override { return panel_caption::kCrossReferences; }
    QWidget* page() override { return m_page; }
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

private:
    QWidget* m_page; // before the controls, which it takes over

public:
    ListBox* lst관주목록 = named<ListBox>(u"lst관주목록", u"관주 목록");
    TextControl* tx관주본문 = named<TextControl>(u"tx관주본문", u"관주 본문");
    ListBox* lst정렬 = named<ListBox>(u"lst정렬"); ///< never shown: puts keys in canon order

private:
    struct Place
    {
        QString chapter;
        int verse = 0;

        friend bool operator==(const Place&, const Place&) = default;
    };

    void openReferences(const Place& place);
    void tellCount();
    void openChosen();
    void showText(const QString& verse, int code);
    std::optional<QString> readVerse(const QString& key) const;

    Services& m_services;
    const AppState& m_state;
    ReaderPlace& m_reader;
    DataControl& m_dacRefTab;
    BaseModule m_baseModule;
    FontLineBreaker m_lineBreaker;
    std::optional<Place> m_shown; ///< what the list was filled for
};

} // namespace lumen
