// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/module_tab.h"
#include "platform/controls/flat_spin.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"

#include <QLineEdit>
#include <QPushButton>

#include <optional>

class QLayout;

namespace lumen {

class dlog찬송가검색;

/// The tab "찬송가": one hymn of the hymnal by its number, with its tune. It follows no verse.
class Hymnal : public ModuleTab
{
public:
    explicit Hymnal(const PanelHost& host);

    QStringView caption() const override { return panel_caption::kHymnal; }
    void enter() override;
    void showPlace() override {}
    void close() override;

    /// Shows the hymn whose number stands in tx찬송가장, unless it is on show already. A number
    /// that the hymnal lacks turns to the nearest one below it, and below the first to that.
    void Proc찬송가표시();

    QLineEdit* tx찬송가장 = named<QLineEdit>(u"tx찬송가장", u"찬송가 장");
    FlatSpin* updn찬송가 = named<FlatSpin>(u"updn찬송가", u"앞뒤 찬송가");
    QLineEdit* tx찬송가제목 = named<QLineEdit>(u"tx찬송가제목", u"제목");
    QLineEdit* tx작사 = named<QLineEdit>(u"tx작사", u"작사");
    QLineEdit* tx작곡 = named<QLineEdit>(u"tx작곡", u"작곡");
    QLineEdit* tx분류 = named<QLineEdit>(u"tx분류", u"분류");
    ListBox* lst관련찬송 = named<ListBox>(u"lst관련찬송", u"관련 찬송");
    ListBox* lst관련성구 = named<ListBox>(u"lst관련성구", u"관련 성구");
    QPushButton* cmd찬송가연주 = named<QPushButton>(u"cmd찬송가연주", u"연주");
    QPushButton* cmd찬송가검색 = named<QPushButton>(u"cmd찬송가검색", u"찬송가 검색...");

private:
    enum class Towards { Lower, Higher };

    void layOut();
    QLayout* fieldColumn();
    void wire();
    /// Shows a hymn, or the next one in that direction that the hymnal has, else the last one in
    /// the other.
    void show(int number, Towards towards);
    void showTyped();
    bool showRecord(int number);
    std::optional<int> nextNumber(int number, Towards towards);
    void setNumber(int number);
    void clear();
    void openVerse();
    void play();
    void openSearch();

    std::optional<int> m_shown;
    dlog찬송가검색* m_search = nullptr; // made when it is first asked for, owned by the window
};

} // namespace lumen
