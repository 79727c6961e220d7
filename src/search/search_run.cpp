// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/verse_index.h"
#include "forms/guarded.h"
#include "forms/reader_place.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/dialogs/modal.h"
#include "search/messages.h"
#include "search/search_window.h"
#include "search/verses/book_selection_dialog.h"
#include "search/verses/easy_search.h"
#include "text/basic_text.h"
#include "text/original/original_unicode.h"

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

// As the box of a version takes words.
QString storedText(int version, const QString& words)
{
    if (isHebrewVersion(version))
        return hebrewToCodes(words, GetVersionFont(version, {}).font == typeface::kConsonants.family
                                        ? HebrewForm::Consonants
                                        : HebrewForm::Pointed)
            .codes;
    return scriptOf(version) == Script::Greek ? greekToCodes(words).codes : words;
}

} // namespace

void frm성서검색::Proc검색범위초기화()
{
    for (ComboBox* combo : {easy->cb범위, power->cbP범위}) {
        combo->Clear();
        for (const ScopeRow& scope : kScopes)
            combo->AddItem(scope.text.toString());
    }
    parsing->cbParRange->Clear();
    for (const ParsingScopeRow& scope : kParsingScopes)
        parsing->cbParRange->AddItem(scope.text.toString());
}

void frm성서검색::wireScopes()
{
    m_model.chooseBooks = [this](std::optional<Testament> only) { return askBooks(only); };
    for (ComboBox* scopes : {easy->cb범위, power->cbP범위})
        scopes->onClick = [this, scopes] { m_model.chooseScope(scopes->ListIndex()); };
    for (QPushButton* button : {easy->cmd책별선택, power->cmd책별선택})
        connect(button, &QPushButton::clicked, this, [this] { m_model.chooseScope(kScopeBooks); });
    const auto chooseParsingScope = [this](int index) {
        m_model.chooseParsingScope(index, parsing->isHebrew() ? Testament::Old : Testament::New);
    };
    parsing->cbParRange->onClick = [this, chooseParsingScope] {
        chooseParsingScope(parsing->cbParRange->ListIndex());
    };
    connect(parsing->cmd책별선택, &QPushButton::clicked, this,
            [chooseParsingScope] { chooseParsingScope(kParsingScopeBooks); });
}

std::optional<QString> frm성서검색::askBooks(std::optional<Testament> only)
{
    dlog책별선택 dialog(m_services, this);
    if (only)
        dialog.restrictTo(*only);
    if (m_services.modal.run(dialog) != QDialog::Accepted)
        return std::nullopt;
    return dialog.scopeTag();
}

void frm성서검색::sstSearch_Click(SearchTab tab)
{
    if (!m_model.openTab(tab))
        return;
    if (tab == SearchTab::Parsing) {
        parsingResults.open(m_settings);
        m_original.open();
        parsing->sstHGSearch->setTab(0);
        parsing->focusFirst();
        return;
    }
    QLineEdit* box = tab == SearchTab::Easy ? easy->tx검색 : power->txPSearch1;
    box->setFocus();
}

void frm성서검색::searchFor(int version, const QString& words)
{
    if (const int index = m_model.versions().indexOf(version); index >= 0)
        m_model.chooseVersion(index);
    sstSearch->setTab(static_cast<int>(SearchTab::Easy));
    easy->tx검색->setText(storedText(version, words));
    cmd검색_Click();
}

void frm성서검색::startSearch()
{
    if (m_model.tab() == SearchTab::Easy)
        cmd검색_Click();
    else if (m_model.tab() == SearchTab::Power)
        cmdPSearch_Click();
    else
        m_original.ProcParsingSearch(m_model.parsingScopeTag());
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
    if (!m_model.search(SearchKind::Easy, easyCriterion(search), {search}))
        cmd검색_Click();
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
    // Without a result to search within it is the easy search that runs, on that tab's text.
    if (!m_model.search(SearchKind::Power, powerCriterion(terms), terms.texts()))
        cmd검색_Click();
}

void frm성서검색::showChange(const SearchChange& change)
{
    if (change.language)
        parsing->cbParVer->setListIndex(0);
    if (change.version)
        showVersion();
    if (change.scope)
        showScope();
    if (change.state)
        statusPanel2->setText(m_model.stateText());
    if (change.result)
        showPages();
    if (change.tab || change.result)
        Form_Resize();
    if (change.page)
        showPage();
    showToolStates();
}

void frm성서검색::showVersion()
{
    for (ComboBox* versions : {easy->cb역본, power->cbPVersion})
        versions->setCurrentIndex(m_model.version());
    const int code = m_model.code();
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

void frm성서검색::showScope()
{
    for (ComboBox* scopes : {easy->cb범위, power->cbP범위})
        scopes->setCurrentIndex(m_model.scope());
    parsing->cbParRange->setCurrentIndex(m_model.parsingScope());
    statusPanel1->setText(m_model.scopeText());
}

void frm성서검색::showPages()
{
    if (m_model.count() == 0)
        m_results.clear();
    for (const PageMover* mover : {&easy->mover, &power->mover}) {
        mover->pages->Clear();
        for (const QString& label : m_model.pageLabels())
            mover->pages->AddItem(label);
    }
    // A list that is filled anew lays the window out anew.
    const QStringList& history = m_model.history();
    if (history.size() < easy->cb검색->ListCount())
        easy->cb검색->Clear();
    for (const QString& text : history.sliced(easy->cb검색->ListCount()))
        easy->cb검색->AddItem(text);
}

void frm성서검색::showPage()
{
    for (const PageMover* mover : {&easy->mover, &power->mover})
        mover->pages->setCurrentIndex(m_model.page());
    guarded(m_services, this, [this] {
        m_results.showPage(m_model.records(), m_model.page(), m_model.resultCode(), m_state.fonts);
    });
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
