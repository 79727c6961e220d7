// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "search/verses/easy_panel.h"
#include "search/verses/power_search.h"

#include <array>

namespace lumen {

/// The tab "파워 검색": up to three texts in one translation.
class PowerPanel : public QWidget // no Q_OBJECT: moc cannot read the members
{
public:
    PowerPanel();

    /// What the boxes and conjunctions hold, texts trimmed.
    PowerTerms terms() const;
    /// From now on each box has room for twelve letters of a width in pixels; the boxes stand in as
    /// many rows as that takes.
    void keepRoomForLetters(int letterWidth);
    std::array<QLineEdit*, 3> boxes() const { return {txPSearch1, txPSearch2, txPSearch3}; }

    QWidget* pbxPowerSearch = named<QWidget>(u"pbxPowerSearch");
    ComboBox* cbPVersion = named<ComboBox>(u"cbPVersion", u"역본");
    ComboBox* cbP범위 = named<ComboBox>(u"cbP범위", u"범위");
    QPushButton* cmd책별선택 = named<QPushButton>(u"cmd책별선택(1)", u"책별 선택(&L)...");
    QLineEdit* txPSearch1 = named<QLineEdit>(u"txPSearch1", u"첫번째 검색어");
    ComboBox* cbCond1 = named<ComboBox>(u"cbCond1", u"첫번째 조건");
    QLineEdit* txPSearch2 = named<QLineEdit>(u"txPSearch2", u"두번째 검색어");
    ComboBox* cbCond2 = named<ComboBox>(u"cbCond2", u"두번째 조건");
    QLineEdit* txPSearch3 = named<QLineEdit>(u"txPSearch3", u"세번째 검색어");
    QPushButton* cmdPSearch = named<QPushButton>(u"cmdPSearch", u"검색(&S)");
    QPushButton* cmdPKeyboard = named<QPushButton>(u"cmdPKeyboard", u"자판(&K)...");
    PageMover mover{u"pbxPPageMover", u"imgPPrev", u"cbPPage", u"imgPNext"};
};

} // namespace lumen
