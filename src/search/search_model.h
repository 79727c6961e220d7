// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/canon_table.h"
#include "forms/services.h"
#include "forms/versions/version_choice.h"
#include "search/verses/bible_search.h"
#include "search/verses/easy_search.h"
#include "search/verses/found_words.h"
#include "search/verses/search_scope.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace lumen {

/// The tabs of the search window; the values are their numbers.
enum class SearchTab { Easy, Power, Parsing };

/// What a call of the model has changed, told once at its end; the window shows just that.
struct SearchChange
{
    bool version = false;
    bool scope = false;    ///< an entry or text of either scope
    bool language = false; ///< the third tab goes back to its first language
    bool tab = false;
    bool state = false;  ///< the text of state or count
    bool result = false; ///< another result, or none: its pages
    bool page = false;   ///< another page of it is to be read
};

/// The state of the search window without its controls: version, scopes, tab, the open result with
/// its page, words and history. The easy and the power tab share version, scope and result. Refused
/// choices and failed searches are told to the user here.
class SearchModel
{
public:
    /// `window` is what messages belong to.
    SearchModel(Services& services, const AppState& state, QWidget* window);

    std::function<void(const SearchChange&)> onChange;
    /// Lets the user tick books, those of one testament where it is given. A comma list of their
    /// abbreviations, "" for no choice of books after all, nothing when the user cancels.
    std::function<std::optional<QString>(std::optional<Testament> only)> chooseBooks;

    /// Begins afresh: the first installed version, the whole range, no history. A tab is to be
    /// opened next.
    void open();
    /// Closes the result and frees the module.
    void close();

    /// Takes a row of the list of versions; the former one stays, after a message, when it is
    /// absent. An open result stays in the version in which it was found.
    void chooseVersion(int index);
    /// Takes a row of kScopes or kParsingScopes; the last one asks for books each time.
    void chooseScope(int index);
    void chooseParsingScope(int index, Testament language);
    /// A tab begins with its whole range and, but for the third, with an empty result. False when
    /// the version's module is not there any more.
    bool openTab(SearchTab tab);
    /// Searches by a criterion, which `words` are marked by. False when there is no result to
    /// search within: then the scope is the whole range now, after a message.
    bool search(SearchKind kind, const QString& criterion, const QStringList& words);
    void showPage(int page);
    /// Goes round at both ends.
    void turnPage(bool forward);

    SearchTab tab() const { return m_tab; }
    const VersionChoice& versions() const { return m_versions; }
    /// The chosen row of the list, its code and its name, which is the table's.
    int version() const { return m_version; }
    int code() const;
    QString versionName() const;
    int scope() const { return m_scope; }
    int parsingScope() const { return m_parsingScope; }
    /// Tags of the scope tables or comma lists of book abbreviations.
    const QString& scopeTag() const { return m_scopeTag; }
    const QString& parsingScopeTag() const { return m_parsingScopeTag; }
    const QString& scopeText() const { return m_scopeText; }
    const QString& stateText() const { return m_stateText; }
    /// The texts of the first tab that have found something, each once.
    const QStringList& history() const { return m_history; }

    int count() const { return m_search.count(); }
    int page() const { return m_page; }
    /// The labels of the pages; none without a result.
    QStringList pageLabels() const;
    /// The result spans more than one page.
    bool paged() const { return m_paged; }
    /// The version of the open result, whichever is chosen since.
    int resultCode() const { return m_resultCode; }
    const FoundWords& foundWords() const { return m_foundWords; }
    Recordset& records() { return *m_search.dacSearch.Recordset(); }
    /// The data control, which the third tab uses for its look-ups too.
    BibleSearch& lookUps() { return m_search; }
    const BibleSearch& lookUps() const { return m_search; }

private:
    bool take(int index, bool loading);
    bool findModule();
    void takeScope(int index);
    void takeBooks(std::optional<Testament> only, SearchChange& change);
    void run(SearchPath path, SearchKind kind, const QString& criterion, const QStringList& words);
    void dropResult();
    void showState(const QString& text);
    void tell(const SearchChange& change) const;

    Services& m_services;
    QWidget* m_window;
    VersionChoice m_versions;
    BibleSearch m_search;
    FoundWords m_foundWords;
    SearchTab m_tab = SearchTab::Easy;
    int m_version = 0;
    int m_scope = kScopeAll;
    int m_parsingScope = 0;
    QString m_scopeTag;
    QString m_parsingScopeTag;
    QString m_scopeText;
    QString m_stateText;
    QStringList m_history;
    int m_resultCode = 0;
    int m_page = 0;
    bool m_paged = false; ///< the PagedFlag
};

} // namespace lumen
