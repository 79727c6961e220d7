// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/module_tab.h"
#include "panel/words/word_analysis.h"
#include "platform/controls/flat_spin.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/named.h"
#include "platform/controls/text/text_control.h"

#include <QLineEdit>
#include <QPushButton>

#include <optional>

namespace lumen {

/// The tab "원전분해": the reader's verse word by word, with analysis and dictionary of the chosen
/// word and a box that looks up any Strong's number.
class WordAnalysisTab : public ModuleTab
{
public:
    explicit WordAnalysisTab(const PanelHost& host);

    QStringView caption() const override { return panel_caption::kWordAnalysis; }
    void enter() override;
    void showPlace() override { Proc원전분해표시(); }

    /// Shows the reader's verse, unless it is on show already. A verse without analysis leaves all
    /// as it was.
    void Proc원전분해표시();

    FlexGrid* flex원전분해 = named<FlexGrid>(u"flex원전분해", u"원전분해");
    TextControl* txParsing = named<TextControl>(u"txParsing", u"파싱");
    TextControl* tx스트롱 = named<TextControl>(u"tx스트롱", u"스트롱 사전");
    QLineEdit* txCodeNum = named<QLineEdit>(u"txCodeNum", u"스트롱 번호");
    FlatSpin* updnCode = named<FlatSpin>(u"updnCode", u"스트롱 번호 이동");
    QPushButton* cmd원어관주 = named<QPushButton>(u"cmd원어관주", u"원어 관주(&W)");

private:
    void layOut();
    void wire();
    void entryShown(const std::optional<QString>& number);
    void lookUp(int number);
    void openList();

    WordAnalysis m_analysis;
    std::optional<VersePlace> m_shown; ///< what was asked for last
};

} // namespace lumen
