// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/verse_index.h"
#include "jet/data_control.h"
#include "panel/lookup/concordance_words.h"
#include "panel/lookup/verse_box.h"
#include "panel/panel_host.h"
#include "panel/panel_tab.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <functional>
#include <vector>

namespace lumen {

/// The controls of one window that words are looked up by.
struct ConcordanceControls
{
    QWidget& page;
    ComboBox& version; ///< the item data is the version's code
    QLineEdit& word;
    QRadioButton& holds;
    QPushButton& search;
    FlexGrid& words;
    ListBox& verses;
    TextControl& text;
};

/// Looks words up in the index of one translation: the words, the verses of the chosen one, the
/// text of the chosen verse. The reader's panel and the map have one each.
class ConcordanceLookup
{
public:
    ConcordanceLookup(Services& services, const AppState& state,
                      const ConcordanceControls& controls);

    /// Fills the combo with the versions and chooses one by its place in the lists.
    void fillVersions(int index);
    /// Whether the chosen version has a concordance.
    bool hasModule() const;
    /// `word` comes back cleaned. May throw a JetError.
    void search(QString& word);
    /// The count of the words on show, "" without any.
    QString status() const;

    std::function<void(const QString&)> tell;
    /// A verse was chosen by a double click.
    std::function<void(const VersePlace&)> onVerse;

private:
    int code() const { return m_controls.version.ItemData(m_controls.version.ListIndex()); }
    QString versionTable() const;
    void wire();
    void versionChanged();
    void showFonts();
    void clear();
    bool open(const QString& word);
    void fillWords();
    void showPlaces();
    void showVerse();
    void tellFound();

    Services& m_services;
    const AppState& m_state;
    ConcordanceControls m_controls;
    DataControl m_result;
    VerseBox m_verse;
    int m_firstChoice = 0;                ///< the version that a missing module leads back to
    std::vector<ConcordanceWord> m_found; ///< in the order of the grid
};

/// The tab "성구사전".
class Concordance : public PanelTab
{
public:
    /// The name of the versions' list differs from window to window.
    explicit Concordance(const PanelHost& host, QStringView versionBox = u"cbConcVer");

    QStringView caption() const override { return panel_caption::kConcordance; }
    QWidget* page() override { return m_page; }
    void enter() override;
    void showPlace() override {}

    /// Lists the versions and chooses one by its place in the lists. Without it the first enter()
    /// chooses the reader's base version.
    void fillVersions(int index);
    /// False where a lookup could only tell that the version has no concordance.
    bool hasModule() const { return m_lookup.hasModule(); }
    /// `word` comes back as it was looked up.
    void Proc성구사전검색(QString& word) { m_lookup.search(word); }

private:
    PanelHost m_host;
    QWidget* m_page; // before the controls, which it takes over

public:
    ComboBox* cbConcVer; ///< under the name that the window gives it
    QLineEdit* tx성구사전검색어 = named<QLineEdit>(u"tx성구사전검색어", u"검색어");
    QRadioButton* op성구시작 = named<QRadioButton>(u"op성구시작", u"시작");
    QRadioButton* op성구포함 = named<QRadioButton>(u"op성구포함", u"포함");
    QPushButton* cmd성구사전검색 = named<QPushButton>(u"cmd성구사전검색", u"검색");
    FlexGrid* flex성구결과 = named<FlexGrid>(u"flex성구결과", u"찾은 단어");
    ListBox* lst성구인덱스 = named<ListBox>(u"lst성구인덱스", u"성구");
    TextControl* tx성구본문 = named<TextControl>(u"tx성구본문", u"성구 본문");

private:
    void layOut();

    ConcordanceLookup m_lookup;
    bool m_filled = false;
};

} // namespace lumen
