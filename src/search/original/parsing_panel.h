// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/settings.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "platform/controls/splitter.h"
#include "platform/controls/tab_control.h"
#include "platform/controls/text/text_control.h"
#include "search/original/original_query.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include <array>
#include <optional>

namespace lumen {

/// The tab "원전분해 검색": up to five conditions on the words of the original texts.
class ParsingPanel : public QWidget // no Q_OBJECT: moc cannot read the members
{
public:
    ParsingPanel();

    /// Fills the kinds and conjunctions anew, chooses the first of each and empties the boxes.
    void reset();
    bool isHebrew() const { return cbParVer->ListIndex() != 1; }
    /// Whether what is typed into a condition's box is Hebrew; nothing for all other boxes.
    std::optional<bool> takesHebrew(const QLineEdit& box) const;
    /// The conditions as they stand; the scope is left open.
    OriginalQuestion question() const;
    /// Gives a condition its parsing code and shows the phrases of it; "" takes the code away.
    void setPattern(int condition, const QString& code);
    /// Puts the focus where the first condition is given.
    void focusFirst();
    void cbParVer_Click();
    void cbType_Click(int condition);

    ComboBox* cbParVer = named<ComboBox>(u"cbParVer", u"언어");
    ComboBox* cbParRange = named<ComboBox>(u"cbParRange", u"범위");
    QPushButton* cmd책별선택 = named<QPushButton>(u"cmd책별선택(2)", u"책별 선택(&L)...");
    QPushButton* cmdParsingSearch = named<QPushButton>(u"cmdParsingSearch", u"검색(&S)");
    TabControl* sstHGSearch = named<TabControl>(u"sstHGSearch", u"단어");
    ControlArray<ComboBox, kConditionCount> cbType{u"cbType", [](int) { return u"원어 조건"; }};
    ControlArray<QLineEdit, kConditionCount> txHGSearch{u"txHGSearch",
                                                        [](int) { return u"원어 검색어"; }};
    ControlArray<QPushButton, kConditionCount> cmdInput{u"cmdInput",
                                                        [](int) { return u"자판(&K)..."; }};
    ControlArray<QLabel, kConditionCount> lblParsing{u"lblParsing", [](int) { return u"파싱:"; }};
    ControlArray<ListBox, kConditionCount> lstParsing{u"lstParsing"};
    ControlArray<QPushButton, kConditionCount> cmdSetParsing{
        u"cmdSetParsing", [](int) { return u"파싱 설정(&G)..."; }};
    ControlArray<ComboBox, kConditionCount - 1> cbAndOr{u"cbAndOr",
                                                        [](int) { return u"다음 조건과의 관계"; }};

private:
    QWidget* conditionPage(int condition);
    bool isStrongNumber(int condition) const;
    void showFont(int condition);

    std::array<QString, kConditionCount> m_patterns; ///< the codes behind the phrases
};

/// The panes below the third tab: the verses found, the words of one verse with analysis and
/// dictionary, and the verse in Korean.
class ParsingResults
{
public:
    ParsingResults();

    /// Shows the panes; for the first time in the sizes that are kept.
    void open(const SearchSettings& settings);
    /// Notes the sizes, if the panes have been shown.
    void store(SearchSettings& settings) const;

    Splitter* splitParsing = named<Splitter>(u"splitParsing");
    ListBox* lstResult = named<ListBox>(u"lstResult", u"검색된 절");
    FlexGrid* flexParsing = named<FlexGrid>(u"flexParsing", u"원전분해");
    TextControl* txParsing = named<TextControl>(u"txParsing", u"파싱");
    TextControl* txStrongDic = named<TextControl>(u"txStrongDic", u"스트롱 사전");
    TextControl* txBibleVerse = named<TextControl>(u"txBibleVerse", u"한글 본문");
    Splitter* verseSplitter = new Splitter(Qt::Vertical);
    Splitter* wordSplitter = new Splitter(Qt::Vertical);
    Splitter* dictionarySplitter = new Splitter(Qt::Horizontal);

private:
    bool m_opened = false;
};

} // namespace lumen
