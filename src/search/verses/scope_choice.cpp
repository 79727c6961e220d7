// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/verses/scope_choice.h"

#include "platform/dialogs/modal.h"
#include "search/original/parsing_panel.h"
#include "search/verses/book_selection_dialog.h"
#include "search/verses/easy_panel.h"
#include "search/verses/power_panel.h"
#include "search/verses/search_scope.h"

using namespace Qt::StringLiterals;

namespace lumen {

ScopeChoice::ScopeChoice(Services& services, QWidget& window, EasyPanel& easy, PowerPanel& power,
                         ParsingPanel& parsing)
    : m_services(services), m_window(window), m_easy(easy), m_power(power), m_parsing(parsing)
{
    m_easy.cb범위->onClick = [this] { cb범위_Click(); };
    // A pick of the entry that stands already opens the books again.
    m_power.cbP범위->onClick = [this] { choose(m_power.cbP범위->ListIndex()); };
    m_parsing.cbParRange->onClick = [this] { cbParRange_Click(); };
    for (QPushButton* button : {m_easy.cmd책별선택, m_power.cmd책별선택})
        QObject::connect(button, &QPushButton::clicked, button, [this] { cmd책별선택_Click(); });
    QObject::connect(m_parsing.cmd책별선택, &QPushButton::clicked, m_parsing.cmd책별선택,
                     [this] { cmd책별선택2_Click(); });
}

void ScopeChoice::Proc검색범위초기화()
{
    for (ComboBox* combo : {m_easy.cb범위, m_power.cbP범위}) {
        combo->Clear();
        for (const ScopeRow& scope : kScopes)
            combo->AddItem(scope.text.toString());
    }
    m_parsing.cbParRange->Clear();
    for (const ParsingScopeRow& scope : kParsingScopes)
        m_parsing.cbParRange->AddItem(scope.text.toString());
}

void ScopeChoice::choose(int index)
{
    if (m_easy.cb범위->ListIndex() != index)
        m_easy.cb범위->setListIndex(index);
    else if (index == kScopeBooks)
        chooseBooks();
}

void ScopeChoice::cb범위_Click()
{
    const int index = m_easy.cb범위->ListIndex();
    if (index < 0)
        return;
    if (index == kScopeBooks)
        chooseBooks();
    else
        m_scopeTag = kScopes[static_cast<std::size_t>(index)].tag.toString();
    // The dialog may have put the list back to its first entry, whose own click has told the scope.
    // Without the click of the mirror, which would open the books once more.
    m_power.cbP범위->setCurrentIndex(m_easy.cb범위->ListIndex());
    if (index != kScopeBooks)
        onScopeText(u"검색 범위: "_s + m_easy.cb범위->Text());
}

void ScopeChoice::cbParRange_Click()
{
    const int index = m_parsing.cbParRange->ListIndex();
    if (index < 0)
        return;
    if (index == kParsingScopeBooks) {
        chooseParsingBooks();
        return;
    }
    m_parsingScopeTag = kParsingScopes[static_cast<std::size_t>(index)].tag.toString();
    onScopeText(u"검색 범위: "_s + m_parsing.cbParRange->Text());
}

void ScopeChoice::cmd책별선택_Click()
{
    choose(kScopeBooks);
}

void ScopeChoice::cmd책별선택2_Click()
{
    if (m_parsing.cbParRange->ListIndex() != kParsingScopeBooks)
        m_parsing.cbParRange->setListIndex(kParsingScopeBooks);
    else
        chooseParsingBooks();
}

void ScopeChoice::chooseBooks()
{
    dlog책별선택 dialog(m_services, &m_window);
    takeBooks(dialog);
}

void ScopeChoice::chooseParsingBooks()
{
    dlog책별선택 dialog(m_services, &m_window);
    dialog.restrictTo(m_parsing.isHebrew() ? Testament::Old : Testament::New);
    takeBooks(dialog);
}

void ScopeChoice::takeBooks(dlog책별선택& dialog)
{
    // A cancelled choice leaves the list on its last entry and the former tags.
    if (m_services.modal.run(dialog) != QDialog::Accepted)
        return;
    m_scopeTag = dialog.scopeTag();
    m_parsingScopeTag = dialog.scopeTag();
    if (!m_scopeTag.isEmpty()) {
        onScopeText(u"검색 대상: "_s + m_scopeTag);
        return;
    }
    m_easy.cb범위->setListIndex(kScopeAll);
    m_power.cbP범위->setCurrentIndex(kScopeAll);
    // The list of languages and not that of scopes: that is how the window does it.
    m_parsing.cbParVer->setListIndex(0);
}

} // namespace lumen
