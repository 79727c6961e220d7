// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/verse_index.h"
#include "forms/guarded.h"
#include "forms/reader_place.h"
#include "forms/results/result_pages.h"
#include "forms/wait_pointer.h"
#include "platform/dialogs/message_boxes.h"
#include "search/messages.h"
#include "search/search_window.h"
#include "search/verses/easy_search.h"
#include "text/basic_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kTextPoints = 10;

/// The codes of the original languages, whose letters the keyboard window types.
bool isOriginalLanguage(int code)
{
    constexpr int kBelow = 300;
    constexpr int kAbove = 400;
    return code > kBelow && code < kAbove;
}

} // namespace

void frm성서검색::cb역본_Click()
{
    // Without a single version there is no row to move on to.
    if (std::ranges::none_of(m_versions.items(), &VersionItem::present))
        return;
    const ChosenVersion chosen = m_versions.choose(this, easy->cb역본->ListIndex(), m_loading);
    if (!chosen.accepted) {
        easy->cb역본->setListIndex(chosen.index);
        return;
    }
    const WaitPointer wait;
    m_search.setModule(chosen.path);
    power->cbPVersion->setListIndex(chosen.index);
    showVersionFont(chosen.code);
    showToolStates();
}

void frm성서검색::showVersionFont(int code)
{
    const VersionFont version = GetVersionFont(code, m_state.fonts);
    const QFont font(version.font, scaledSize(version.factor, kTextPoints));
    constexpr int kRightTop = 6;
    const Qt::Alignment alignment =
        (version.alignment == kRightTop ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    easy->cb검색->setFont(font);
    const int height = easy->cb검색->sizeHint().height();
    for (QLineEdit* box : {easy->tx검색, power->txPSearch1, power->txPSearch2, power->txPSearch3}) {
        box->setFont(font);
        box->setAlignment(alignment);
        box->setFixedHeight(height);
    }
    const QFontMetrics letters(font);
    power->keepRoomForLetters(scriptOf(code) == Script::Other ? letters.horizontalAdvance(u'가')
                                                              : letters.averageCharWidth());
    const bool keyboard =
        isOriginalLanguage(code) || version.font == u"OrvaneHeb" || version.font == u"OrvaneGrk";
    easy->cmdKeyboard->setVisible(keyboard);
    power->cmdPKeyboard->setVisible(keyboard);
    Form_Resize();
}

bool frm성서검색::findModule()
{
    const ChosenVersion chosen = m_versions.choose(this, easy->cb역본->ListIndex(), false);
    if (chosen.accepted)
        m_search.setModule(chosen.path);
    else
        easy->cb역본->setListIndex(chosen.index);
    return chosen.accepted;
}

void frm성서검색::sstSearch_Click(SearchTab tab)
{
    m_paged = false;
    Form_Resize();
    showToolStates();
    if (!findModule())
        return;
    if (tab == SearchTab::Parsing)
        openParsingTab();
    else
        openVerseTab(tab);
}

void frm성서검색::openVerseTab(SearchTab tab)
{
    m_results.clear();
    easy->cb범위->setCurrentIndex(kScopeAll);
    m_scopes.cb범위_Click();
    guarded(m_services, this, [this] { m_search.empty(easy->cb역본->Text()); });
    for (const PageMover* mover : {&easy->mover, &power->mover})
        mover->pages->Clear();
    statusPanel2->clear();
    QLineEdit* box = tab == SearchTab::Easy ? easy->tx검색 : power->txPSearch1;
    box->setFocus();
}

void frm성서검색::openParsingTab()
{
    parsingResults.open(m_settings);
    m_original.open();
    parsing->sstHGSearch->setTab(0);
    parsing->cbParRange->setCurrentIndex(0);
    m_scopes.cbParRange_Click();
    statusPanel2->clear();
    parsing->focusFirst();
}

void frm성서검색::startSearch()
{
    if (currentTab() == SearchTab::Easy)
        cmd검색_Click();
    else if (currentTab() == SearchTab::Power)
        cmdPSearch_Click();
    else
        m_original.ProcParsingSearch(m_scopes.parsingScopeTag());
}

void frm성서검색::tidy(QLineEdit& box)
{
    // The box shows what is searched.
    const QString text = tidiedSearchText(box.text());
    if (text != box.text())
        box.setText(text);
}

void frm성서검색::cmd검색_Click()
{
    tidy(*easy->tx검색);
    // A text of blanks alone passes and fits every verse.
    if (easy->tx검색->text().isEmpty()) {
        m_services.messages.show(this, messages::kNoSearchText);
        return;
    }
    const QString search = Trim(easy->tx검색->text()).toString();
    run(SearchKind::Easy, easyCriterion(search), {search});
}

void frm성서검색::cmdPSearch_Click()
{
    for (QLineEdit* box : power->boxes())
        tidy(*box);
    const PowerTerms terms = power->terms();
    if (terms.first.isEmpty()) {
        m_services.messages.show(this, messages::kNoFirstSearchText);
        return;
    }
    run(SearchKind::Power, powerCriterion(terms), terms.texts());
}

void frm성서검색::run(SearchKind kind, const QString& criterion, const QStringList& words)
{
    statusPanel2->clear();
    if (!findModule())
        return;
    const SearchPath path = searchPath(m_scopes.scopeTag(), m_search.openCount());
    if (path == SearchPath::StartOver) {
        m_services.messages.show(this, messages::kNoEarlierResult);
        easy->cb범위->setListIndex(kScopeAll);
        // From the power tab too it is the easy search that runs, on that tab's text; it is meant.
        cmd검색_Click();
        return;
    }
    const WaitPointer wait;
    statusPanel2->setText(u"검색 중..."_s);
    const bool found = guarded(m_services, this, [&] {
        if (path == SearchPath::Narrow) {
            m_search.narrow(criterion);
            m_foundWords.add(words);
        } else {
            m_search.query(scopedQuery(kind, easy->cb역본->Text(), criterion, m_scopes.scopeTag()));
            m_resultCode = easy->cb역본->ItemData(easy->cb역본->ListIndex());
            m_foundWords.replace(words);
        }
        statusPanel2->setText(trimmedNumber(m_search.count()) + u"개 검색"_s);
        ProcFillPageCombo();
    });
    if (!found)
        dropResult();
}

void frm성서검색::dropResult()
{
    // What was found before would stand under the new word.
    statusPanel2->clear();
    m_search.close();
    m_foundWords.replace({});
    m_results.clear();
    m_paged = false;
    Form_Resize();
}

void frm성서검색::ProcFillPageCombo()
{
    const int records = m_search.count();
    if (records == 0) {
        m_results.clear();
        m_paged = false;
        Form_Resize();
        return;
    }
    const QString search = Trim(easy->tx검색->text()).toString();
    if (currentTab() == SearchTab::Easy && easy->cb검색->findItem(search) < 0)
        easy->cb검색->AddItem(search);
    const ResultPages pages(records);
    m_paged = pages.count() > 1;
    for (const PageMover* mover : {&easy->mover, &power->mover}) {
        mover->pages->Clear();
        for (const QString& label : pages.labels())
            mover->pages->AddItem(label);
    }
    easy->mover.pages->setListIndex(0);
}

void frm성서검색::showPage(int page)
{
    // The two lists mirror each other; one fill is enough for both.
    easy->mover.pages->setCurrentIndex(page);
    power->mover.pages->setCurrentIndex(page);
    guarded(m_services, this, [&] { ProcFillResultPage(page); });
}

void frm성서검색::ProcFillResultPage(int page)
{
    if (m_search.count() < 1)
        return;
    Form_Resize();
    m_results.showPage(*m_search.dacSearch.Recordset(), page, m_resultCode, m_state.fonts);
}

void frm성서검색::turnPage(bool forward)
{
    if (m_search.count() < 1)
        return;
    const ResultPages pages(m_search.count());
    const int page = easy->mover.pages->ListIndex();
    showPage(forward ? pages.next(page) : pages.previous(page));
}

void frm성서검색::openVerse(const QString& reference)
{
    if (reference.isEmpty())
        return;
    const VersePlace place = BibleCode::ParseRef(reference);
    m_reader.goTo(place.book, place.chapter, place.verse);
    m_reader.bringToFront();
}

} // namespace lumen
