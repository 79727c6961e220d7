// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/search_model.h"

#include "forms/guarded.h"
#include "forms/results/result_pages.h"
#include "forms/wait_pointer.h"
#include "platform/dialogs/message_boxes.h"
#include "search/messages.h"
#include "text/basic_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr VersionChoiceRule kVersionRule{.missingFile = AbsentVersion::ComboRow,
                                         .pastLastRow = PastLastRow::OneBack,
                                         .afterMissingFile = AfterMissingFile::First};

} // namespace

SearchModel::SearchModel(Services& services, const AppState& state, QWidget* window)
    : m_services(services), m_window(window), m_versions(services, state, kVersionRule),
      m_search(services.jet)
{
}

void SearchModel::open()
{
    m_history.clear();
    m_stateText.clear();
    take(0, true);
    takeScope(kScopeAll);
    tell({.version = true, .scope = true, .state = true});
}

void SearchModel::close()
{
    m_search.close();
    m_paged = false;
}

void SearchModel::chooseVersion(int index)
{
    take(index, false);
    tell({.version = true});
}

// A refused row leads to another one, until one is there or nothing changes any more.
bool SearchModel::take(int index, bool loading)
{
    // Without a single version there is no row to move on to.
    if (std::ranges::none_of(m_versions.items(), &VersionItem::present))
        return false;
    ChosenVersion chosen = m_versions.choose(m_window, index, loading);
    while (!chosen.accepted && chosen.index != index) {
        index = chosen.index;
        chosen = m_versions.choose(m_window, index, loading);
    }
    m_version = index;
    if (chosen.accepted)
        m_search.setModule(chosen.path);
    return chosen.accepted;
}

// The module may have gone since its version was chosen: then the first one is.
bool SearchModel::findModule()
{
    const ChosenVersion chosen = m_versions.choose(m_window, m_version, false);
    if (chosen.accepted)
        m_search.setModule(chosen.path);
    else if (chosen.index != m_version)
        chooseVersion(chosen.index);
    return chosen.accepted;
}

int SearchModel::code() const
{
    return m_versions.items().value(m_version).code;
}

QString SearchModel::versionName() const
{
    return m_versions.items().value(m_version).label;
}

void SearchModel::chooseScope(int index)
{
    if (index < 0)
        return;
    SearchChange change{.scope = true};
    if (index == kScopeBooks) {
        m_scope = index;
        takeBooks(std::nullopt, change);
    } else {
        takeScope(index);
    }
    tell(change);
}

void SearchModel::takeScope(int index)
{
    const ScopeRow& scope = kScopes[static_cast<std::size_t>(index)];
    m_scope = index;
    m_scopeTag = scope.tag.toString();
    m_scopeText = u"검색 범위: "_s + scope.text.toString();
}

void SearchModel::chooseParsingScope(int index, Testament language)
{
    if (index < 0)
        return;
    m_parsingScope = index;
    SearchChange change{.scope = true};
    if (index == kParsingScopeBooks) {
        takeBooks(language, change);
    } else {
        const ParsingScopeRow& scope = kParsingScopes[static_cast<std::size_t>(index)];
        m_parsingScopeTag = scope.tag.toString();
        m_scopeText = u"검색 범위: "_s + scope.text.toString();
    }
    tell(change);
}

void SearchModel::takeBooks(std::optional<Testament> only, SearchChange& change)
{
    // A cancelled choice leaves the list on its last entry and the former tags.
    const std::optional<QString> books = chooseBooks(only);
    if (!books)
        return;
    m_scopeTag = *books;
    m_parsingScopeTag = *books;
    m_scopeText = u"검색 대상: "_s + *books;
    if (!books->isEmpty())
        return;
    takeScope(kScopeAll);
    // The language and not the scope of the third tab: that is how the window does it.
    change.language = true;
}

bool SearchModel::openTab(SearchTab tab)
{
    m_tab = tab;
    m_paged = false;
    tell({.tab = true});
    if (!findModule())
        return false;
    m_stateText.clear();
    if (tab == SearchTab::Parsing) {
        tell({.state = true});
        chooseParsingScope(0, Testament::Old);
        return true;
    }
    takeScope(kScopeAll);
    guarded(m_services, m_window, [this] { m_search.empty(versionName()); });
    tell({.scope = true, .state = true, .result = true});
    return true;
}

bool SearchModel::search(SearchKind kind, const QString& criterion, const QStringList& words)
{
    showState({});
    if (!findModule())
        return true;
    const SearchPath path = searchPath(m_scopeTag, m_search.openCount());
    if (path == SearchPath::StartOver) {
        m_services.messages.show(m_window, messages::kNoEarlierResult);
        chooseScope(kScopeAll);
        return false;
    }
    const WaitPointer wait;
    showState(u"검색 중..."_s);
    if (!guarded(m_services, m_window, [&] { run(path, kind, criterion, words); }))
        dropResult();
    tell({.state = true, .result = true, .page = count() > 0});
    return true;
}

void SearchModel::run(SearchPath path, SearchKind kind, const QString& criterion,
                      const QStringList& words)
{
    if (path == SearchPath::Narrow) {
        m_search.narrow(criterion);
        m_foundWords.add(words);
    } else {
        m_search.query(scopedQuery(kind, versionName(), criterion, m_scopeTag));
        m_resultCode = code();
        m_foundWords.replace(words);
    }
    m_stateText = trimmedNumber(count()) + u"개 검색"_s;
    m_page = 0;
    m_paged = ResultPages(count()).count() > 1;
    if (m_tab == SearchTab::Easy && count() > 0 && !m_history.contains(words.first()))
        m_history << words.first();
}

// What was found before would stand under the new word.
void SearchModel::dropResult()
{
    m_stateText.clear();
    m_search.close();
    m_foundWords.replace({});
    m_paged = false;
}

void SearchModel::showPage(int page)
{
    m_page = page;
    if (count() > 0)
        tell({.page = true});
}

void SearchModel::turnPage(bool forward)
{
    if (count() < 1)
        return;
    const ResultPages pages(count());
    showPage(forward ? pages.next(m_page) : pages.previous(m_page));
}

QStringList SearchModel::pageLabels() const
{
    return count() > 0 ? ResultPages(count()).labels() : QStringList();
}

void SearchModel::showState(const QString& text)
{
    m_stateText = text;
    tell({.state = true});
}

void SearchModel::tell(const SearchChange& change) const
{
    if (onChange)
        onChange(change);
}

} // namespace lumen
