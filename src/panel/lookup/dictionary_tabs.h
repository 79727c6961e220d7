// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/lookup/dictionary.h"
#include "panel/module_tab.h"
#include "platform/controls/named.h"

#include <QPushButton>

namespace lumen {

/// What the two dictionary tabs share: the lookup follows no place, and coming back to the tab
/// tells how many words are on show.
class DictionaryTab : public ModuleTab
{
public:
    void enter() override;
    void showPlace() override {}

protected:
    using ModuleTab::ModuleTab;

    void layOut(const DictionaryControls& controls, QPushButton& search);
    virtual DictionaryLookup& lookup() = 0;
};

/// The tab "성경사전": the Bible dictionary with its four works.
class BibleDictionary : public DictionaryTab
{
public:
    explicit BibleDictionary(const PanelHost& host);

    QStringView caption() const override { return panel_caption::kBibleDictionary; }
    void Proc성경사전검색(const QString& word) { m_lookup.search(word); }

    ComboBox* cb성경사전검색어 = named<ComboBox>(u"cb성경사전검색어", u"검색어");
    ComboBox* cb사전선택 = named<ComboBox>(u"cb사전선택", u"사전 선택");
    QRadioButton* opt시작 = named<QRadioButton>(u"opt시작", u"시작");
    QRadioButton* opt포함 = named<QRadioButton>(u"opt포함", u"포함");
    QRadioButton* opt내용 = named<QRadioButton>(u"opt내용", u"내용 중");
    QPushButton* cmd성경사전검색 = named<QPushButton>(u"cmd성경사전검색", u"검색");
    ListBox* lst성경사전근접어 = named<ListBox>(u"lst성경사전근접어", u"찾은 단어");
    TextControl* tx성경사전의미 = named<TextControl>(u"tx성경사전의미", u"성경사전 내용");

private:
    DictionaryLookup& lookup() override { return m_lookup; }

    DictionaryControls m_controls{.page = *m_page,
                                  .word = *cb성경사전검색어,
                                  .near = *lst성경사전근접어,
                                  .meaning = *tx성경사전의미,
                                  .matches = {nullptr, opt시작, opt포함, opt내용},
                                  .source = cb사전선택};
    DictionaryLookup m_lookup;
};

/// The tab "영한영사전": English words in Korean, Korean ones in English.
class EnglishDictionary : public DictionaryTab
{
public:
    explicit EnglishDictionary(const PanelHost& host);

    QStringView caption() const override { return panel_caption::kEnglishDictionary; }
    void Proc영한영사전검색(const QString& word) { m_lookup.search(word); }

    ComboBox* cb영한사전검색어 = named<ComboBox>(u"cb영한사전검색어", u"검색어");
    QRadioButton* ekopt일치 = named<QRadioButton>(u"ekopt일치", u"일치");
    QRadioButton* ekopt시작 = named<QRadioButton>(u"ekopt시작", u"시작");
    QRadioButton* ekopt포함 = named<QRadioButton>(u"ekopt포함", u"포함");
    QRadioButton* ekopt내용 = named<QRadioButton>(u"ekopt내용", u"내용 중");
    QPushButton* cmd영한영사전검색 = named<QPushButton>(u"cmd영한영사전검색", u"검색");
    ListBox* lst영한사전근접어 = named<ListBox>(u"lst영한사전근접어", u"찾은 단어");
    TextControl* tx영한사전의미 = named<TextControl>(u"tx영한사전의미", u"영한영사전 내용");

private:
    DictionaryLookup& lookup() override { return m_lookup; }

    DictionaryControls m_controls{.page = *m_page,
                                  .word = *cb영한사전검색어,
                                  .near = *lst영한사전근접어,
                                  .meaning = *tx영한사전의미,
                                  .matches = {ekopt일치, ekopt시작, ekopt포함, ekopt내용}};
    DictionaryLookup m_lookup;
};

} // namespace lumen
