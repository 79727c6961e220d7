// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"
#include "forms/book_combo.h"
#include "forms/guarded.h"
#include "forms/wait_pointer.h"
#include "platform/dialogs/clipboard.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/registry/registry_store.h"
#include "reader/bible_window.h"
#include "reader/copy_tail.h"
#include "reader/messages.h"
#include "text/original/hebrew_division.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {

void frm성서::SelectClickedWord()
{
    txCont->SelectClickedWord();
}

void frm성서::showChange(const ReaderChange& change)
{
    if (change.versions)
        showVersions();
    if (change.view)
        showViewMode();
    if (change.text) {
        showPlace();
        tellUnreadVersions();
    }
    if (change.text || change.view)
        showText();
    if (change.marked != 0)
        Proc절선택표시(change.marked);
    if (change.text || change.view || change.stand) {
        guarded(m_services, this, [this] { panel->showPlace(); });
        Proc현재위치표시();
    }
    if (change.moved.isEmpty())
        return;
    quickMove->remember(change.moved);
    // Whoever has typed a place wants to read, mark and copy there.
    if (quickMove->isTyping())
        shownView().setFocus();
}

void frm성서::showPlace()
{
    // The events of combos that are set here ask the model for what it has already.
    ComboBox& books = toolCombo(u"ID_cb책명");
    ComboBox& chapters = toolCombo(u"ID_cb장");
    if (books.ListIndex() != model.book() || chapters.ListCount() != chapterCount(model.book()))
        fillChapterCombo(chapters, model.book());
    books.setListIndex(model.book());
    chapters.setListIndex(model.chapter() - 1);
}

void frm성서::settle()
{
    if (model.view() == ViewMode::Text)
        model.settle(m_textView.currentVerse(), m_textView.currentRange());
    else
        model.settle(m_tableView.currentVerse(), m_tableView.currentRange());
}

void frm성서::reportStand()
{
    settle();
    model.stand();
}

void frm성서::Proc절선택표시(int verse)
{
    if (model.view() == ViewMode::Text)
        m_textView.selectVerse(verse);
    else
        m_tableView.selectVerse(verse);
    settle();
}

void frm성서::Proc현재위치표시()
{
    const int verse = model.GetCurVerse();
    QString place;
    if (verse != 0)
        place = u"%1 %2장"_s.arg(bookName(model.book())).arg(model.chapter());
    // An empty page has no verse to stand at.
    if (verse != 0 && model.hasText())
        place += u" %1절"_s.arg(verse);
    statusPanel2->setText(place);
}

void frm성서::FillBibleText()
{
    showText();
    guarded(m_services, this, [this] { panel->showPlace(); });
    Proc현재위치표시();
}

void frm성서::showText()
{
    const WaitPointer wait;
    const KeptPlace kept = placeToKeep();
    if (kept.verse == 0)
        hflex본문->setTag(u"1"_s);
    if (model.view() == ViewMode::Text)
        fillTextView();
    else
        fillTableView();
    keepPlace(kept);
    m_shown = model.text().empty() ? ShownChapter()
                                   : ShownChapter{model.book(), model.chapter(), model.view()};
    settle();
}

void frm성서::tellUnreadVersions()
{
    QStringList unread;
    QStringList problems;
    for (const ChapterSource& source : model.text()) {
        if (source.problem.isEmpty())
            continue;
        unread << model.versionName(source.slot);
        problems << unread.last() + u": "_s + source.problem;
    }
    // Once for as long as the same modules fail, not with each chapter.
    if (std::exchange(m_unreadTold, unread) != unread && !unread.isEmpty())
        m_services.messages.show(this, messages::kVersionUnread, {problems.join(u"\r\n"_s)});
}

frm성서::KeptPlace frm성서::placeToKeep() const
{
    // The same chapter comes in another look: the reader stays at his verse.
    if (m_shown.book != model.book() || m_shown.chapter != model.chapter())
        return {};
    const auto placeIn = [](auto& view) {
        const int verse = view.currentVerse();
        return KeptPlace{verse, view.selectedRange(), view.topVerse(), view.isInView(verse)};
    };
    return m_shown.mode == ViewMode::Text ? placeIn(m_textView) : placeIn(m_tableView);
}

void frm성서::keepPlace(const KeptPlace& kept)
{
    if (kept.verse == 0)
        return;
    const auto keepIn = [&kept](auto& view) {
        // Whoever has scrolled away from his verse reads on where he is.
        view.scrollToVerse(kept.top);
        if (kept.isInView && !view.isInView(kept.verse))
            view.scrollToVerse(kept.verse);
    };
    if (model.view() == ViewMode::Table) {
        m_tableView.selectVerse(kept.verse);
        m_tableView.selectRange(kept.selected);
        keepIn(m_tableView);
        return;
    }
    // The first verse is where the caret stands already.
    if (kept.verse > 1 || !kept.selected.empty())
        m_textView.selectVerse(kept.verse);
    m_textView.selectRange(kept.selected);
    keepIn(m_textView);
}

QString frm성서::divideHebrew(const QString& stored, const HebrewTarget& target, bool asRtf)
{
    HebrewTarget shown = target;
    shown.isVisible = isVisible() && (model.view() == ViewMode::Text || hflex본문->isVisible());
    return DivideHebrewCont(stored, shown, asRtf, m_lineBreaker);
}

ChapterStyle frm성서::chapterStyle()
{
    ChapterStyle style;
    style.rtf.mainFont = m_settings.MainFont;
    style.rtf.defVerColor = m_settings.colors.DefVerColor;
    style.rtf.ver1Color = m_settings.colors.verColors[0];
    style.rtf.ver2Color = m_settings.colors.verColors[1];
    style.rtf.ver3Color = m_settings.colors.verColors[2];
    style.rtf.fontSize = m_settings.FontSize;
    for (std::size_t slot = 0; slot < kUserVersionCount; ++slot)
        style.rtf.userFonts[slot] = m_state.fonts.userFonts[slot].font;
    style.fonts = m_state.fonts;
    style.showMiniTitle = m_settings.ShowMiniTitle;
    style.languageBar = m_state.LanguageBarRunning;
    style.divideHebrew = [this, rtf = style.rtf](const QString& stored, const QString& font,
                                                 int halfPoints, const VerseHead& head) {
        const int taken = headWidth(head, rtf, font, halfPoints);
        return divideHebrew(stored, {font, halfPoints, txCont->textWidth(), taken}, true);
    };
    return style;
}

void frm성서::fillTextView()
{
    m_textView.show(composeChapter(model.text(), chapterStyle()));
}

void frm성서::Proc텍스트미리보기채우기()
{
    ChapterStyle style = chapterStyle();
    style.kind = DocumentKind::Preview;
    TextView(*tx미리보기).show(composeChapter(model.readPreview(), style));
}

void frm성서::fillTableView()
{
    TableStyle style;
    style.fontSize = m_settings.FontSize;
    style.showMiniTitle = m_settings.ShowMiniTitle;
    style.colors = m_settings.colors;
    style.fonts = m_state.fonts;
    style.divideHebrew = [this, rtf = chapterStyle().rtf](const QString& stored,
                                                          const QString& font, int halfPoints,
                                                          int width, const QString& part) {
        const int taken = headWidth({{}, {}, part}, rtf, font, halfPoints);
        return divideHebrew(stored, {font, halfPoints, width, taken}, false);
    };
    QStringList headers;
    for (const ChapterSource& source : model.text())
        headers << versionCombo(source.slot).Text();
    if (model.text().empty())
        m_tableView.clear();
    else
        m_tableView.show(model.text(), headers, style);
}

void frm성서::applyColors()
{
    txCont->setBackColor(m_settings.colors.BackColor);
    hflex본문->setBackColor(m_settings.colors.BackColor);
}

void frm성서::applySettings()
{
    const ReaderSettings stored = readReaderSettings(m_services.registry, kPanelTabCount);
    m_settings.MainFont = stored.MainFont;
    m_settings.colors = stored.colors;
    m_settings.copy = stored.copy;
    m_state.fonts.mainFont = stored.MainFont;
    m_state.fonts.userFonts = GetUserFontSize(m_services.registry);
    applyColors();
    FillBibleText();
}

void frm성서::copySelection(OriginalText originals)
{
    const std::vector<SelectedVerse> selected =
        model.view() == ViewMode::Text
            ? m_textView.selectedVerses()
            : m_tableView.selectedVerses(model.text(), m_settings.ShowMiniTitle);
    if (selected.empty())
        return;
    std::vector<CopiedVerse> copied;
    for (const SelectedVerse& verse : selected) {
        const VersionFont font = GetVersionFont(verse.code, m_state.fonts);
        const auto slot = static_cast<std::size_t>(verse.slot);
        const QString label = verse.verse > 0 ? QString::number(verse.verse) : QString();
        copied.push_back({verse.code, label, verse.text, font.font,
                          scaledSize(font.factor, rtfSizes(m_settings.FontSize).text),
                          verse.slot == 0 ? m_settings.colors.DefVerColor
                                          : m_settings.colors.verColors[slot - 1]});
    }
    CopyOptions options = readCopyOptions(m_services.registry);
    options.crLf = m_settings.copy.crLf; // unlike the others it counts as it was at the start
    CopySource source;
    for (int slot = 0; slot < kSlotCount; ++slot)
        if (slot == 0 || model.versionCode(slot) != 0)
            source.versions << model.versionName(slot);
    source.bookName = bookName(model.book());
    source.abbreviation = bookAbbreviation(model.book());
    source.chapter = QString::number(model.chapter());
    source.verseRange = model.GetCurVerseRange();
    m_services.clipboard.set(composeVerseCopy(copied, copyEnding(options, source), originals));
}

} // namespace lumen
