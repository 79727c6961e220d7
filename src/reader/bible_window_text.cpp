// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "forms/book_combo.h"
#include "forms/guarded.h"
#include "forms/wait_pointer.h"
#include "platform/dialogs/clipboard.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/registry/registry_store.h"
#include "reader/copy_tail.h"
#include "reader/fill_hold.h"
#include "reader/messages.h"
#include "reader/typed_reference.h"
#include "text/original/hebrew_division.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {

int frm성서::book() const
{
    return std::max(0, toolCombo(u"ID_cb책명").ListIndex());
}

int frm성서::chapter() const
{
    return std::max(0, toolCombo(u"ID_cb장").ListIndex()) + 1;
}

QString frm성서::versionName(int slot) const
{
    return m_slots(slot).table;
}

int frm성서::versionCode(int slot) const
{
    return m_slots(slot).code;
}

int frm성서::GetCurVerse() const
{
    if (m_loading || !isVisible())
        return 0;
    return m_settings.ViewMode == ViewMode::Text ? m_textView.currentVerse()
                                                 : m_tableView.currentVerse();
}

QString frm성서::GetCurVerseRange() const
{
    if (m_loading || !isVisible())
        return {};
    return m_settings.ViewMode == ViewMode::Text ? m_textView.currentRange()
                                                 : m_tableView.currentRange();
}

void frm성서::ShowTableView()
{
    hflex본문->show();
}

void frm성서::HideTableView()
{
    hflex본문->hide();
}

void frm성서::ShowTextView()
{
    txCont->show();
}

void frm성서::HideTextView()
{
    txCont->hide();
}

void frm성서::SelectClickedWord()
{
    txCont->SelectClickedWord();
}

void frm성서::bookChanged()
{
    const FillHold hold(*this);
    ComboBox& chapters = toolCombo(u"ID_cb장");
    fillChapterCombo(chapters, book());
    chapters.setListIndex(0);
}

void frm성서::selectBookAndChapter(int book, int chapter)
{
    ComboBox& books = toolCombo(u"ID_cb책명");
    if (books.ListIndex() != book)
        books.setListIndex(book);
    toolCombo(u"ID_cb장").setListIndex(chapter - 1);
}

void frm성서::stepChapter(int step)
{
    // The chapters of a book go round: behind the last one comes its first.
    ComboBox& chapters = toolCombo(u"ID_cb장");
    const int count = chapters.ListCount();
    if (count < 2) // a book of one chapter has no other to go to
        return;
    hflex본문->setTag(u"1"_s);
    chapters.setListIndex((chapters.ListIndex() + step + count) % count);
}

void frm성서::Proc이동(QString& reference)
{
    std::optional<TypedReference> typed = parseTypedReference(reference);
    if (!typed) {
        m_services.messages.show(this, messages::kBadReference);
        return;
    }
    reference = typed->reference;
    // The chapter comes with its first verse, then the wanted one is marked.
    const PlaceHold once(*this);
    {
        const FillHold hold(*this);
        m_fillWanted = true; // also when book and chapter stay: the text is filled again
        const LimitedNumber wanted = limitedTo(chapterCount(typed->book), typed->chapter);
        selectBookAndChapter(typed->book, 1);
        if (wanted.wasTooLarge)
            m_services.messages.show(this, messages::kChapterTooLarge);
        selectBookAndChapter(typed->book, std::max(1, wanted.value));
    }
    if (m_chapter.empty() || m_chapter.front().verses.empty())
        return;
    const int shown = verseThereFor(typed->verse);
    Proc절선택표시(shown);
    quickMove->remember(u"%1%2:%3"_s.arg(bookAbbreviation(book())).arg(chapter()).arg(shown));
    // Whoever has typed a place wants to read, mark and copy there.
    if (quickMove->isTyping())
        shownView().setFocus();
}

int frm성서::verseThereFor(int wanted)
{
    const ChapterSource& base = m_chapter.front();
    const LimitedNumber verse = limitedTo(base.lastVerse(), std::max(1, wanted));
    if (verse.wasTooLarge)
        m_services.messages.show(this, messages::kVerseTooLarge);
    if (base.find(verse.value) != nullptr)
        return verse.value;
    // A hole in the chapter: what stands before it is where the reader would look.
    m_services.messages.show(this, messages::kVerseAbsent);
    int before = base.verses.front().verse;
    for (const ChapterVerse& row : base.verses)
        if (row.verse < verse.value)
            before = row.verse;
    return before;
}

void frm성서::goTo(int book, int chapter, int verse)
{
    const PlaceHold once(*this);
    {
        const FillHold hold(*this);
        m_fillWanted = true;
        selectBookAndChapter(std::clamp(book, 0, kBookCount - 1), 1);
        selectBookAndChapter(this->book(), std::clamp(chapter, 1, chapterCount(this->book())));
    }
    Proc절선택표시(verse);
}

void frm성서::Proc절선택표시(int verse)
{
    if (m_settings.ViewMode == ViewMode::Text)
        m_textView.selectVerse(verse);
    else
        m_tableView.selectVerse(verse);
    placeChanged();
}

void frm성서::Proc현재위치표시()
{
    const int verse = GetCurVerse();
    QString place;
    if (verse != 0)
        place = u"%1 %2장"_s.arg(bookName(book())).arg(chapter());
    // An empty page has no verse to stand at.
    if (verse != 0 && !m_chapter.empty() && !m_chapter.front().verses.empty())
        place += u" %1절"_s.arg(verse);
    statusPanel2->setText(place);
}

void frm성서::placeChanged()
{
    m_placeWanted = m_placeHolds > 0;
    if (m_placeWanted)
        return;
    guarded(m_services, this, [this] { panel->showPlace(); });
    Proc현재위치표시();
}

void frm성서::FillBibleText()
{
    if (m_loading || m_fillHolds > 0) {
        m_fillWanted = true;
        return;
    }
    m_fillWanted = false;
    if (!guarded(m_services, this, [this] { fillChapter(); }))
        clearChapter();
    placeChanged();
    tellUnreadVersions();
}

void frm성서::clearChapter()
{
    // A text that stays from before would stand under another place.
    m_chapter.clear();
    m_shown = {};
    m_textView.show({});
    m_tableView.clear();
}

void frm성서::tellUnreadVersions()
{
    QStringList unread;
    QStringList problems;
    for (const ChapterSource& source : m_chapter) {
        if (source.problem.isEmpty())
            continue;
        unread << m_slots(source.slot).table;
        problems << unread.last() + u": "_s + source.problem;
    }
    // Once for as long as the same modules fail, not with each chapter.
    if (std::exchange(m_unreadTold, unread) != unread && !unread.isEmpty())
        m_services.messages.show(this, messages::kVersionUnread, {problems.join(u"\r\n"_s)});
}

void frm성서::fillChapter()
{
    const WaitPointer wait;
    const KeptPlace kept = placeToKeep();
    m_chapter = m_slots.readChapter(book(), chapter());
    if (m_settings.ViewMode == ViewMode::Text)
        fillTextView(m_chapter);
    else
        fillTableView(m_chapter);
    keepPlace(kept);
    m_shown = {book(), chapter(), m_settings.ViewMode};
}

frm성서::KeptPlace frm성서::placeToKeep() const
{
    // The same chapter comes in another look: the reader stays at his verse.
    if (m_shown.book != book() || m_shown.chapter != chapter())
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
    if (m_settings.ViewMode == ViewMode::Table) {
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
    shown.isVisible =
        isVisible() && (m_settings.ViewMode == ViewMode::Text || hflex본문->isVisible());
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

void frm성서::fillTextView(const std::vector<ChapterSource>& sources)
{
    m_textView.show(composeChapter(sources, chapterStyle()));
}

void frm성서::Proc텍스트미리보기채우기()
{
    ChapterStyle style = chapterStyle();
    style.kind = DocumentKind::Preview;
    const ComposedChapter composed =
        composeChapter(m_slots.readChapter(book(), chapter(), DocumentKind::Preview), style);
    TextView(*tx미리보기).show(composed);
}

void frm성서::fillTableView(const std::vector<ChapterSource>& sources)
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
    for (const ChapterSource& source : sources)
        headers << versionCombo(source.slot).Text();
    m_tableView.show(sources, headers, style);
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
        m_settings.ViewMode == ViewMode::Text
            ? m_textView.selectedVerses()
            : m_tableView.selectedVerses(m_chapter, m_settings.ShowMiniTitle);
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
        if (slot == 0 || m_slots(slot).isOpen())
            source.versions << versionName(slot);
    source.bookName = toolCombo(u"ID_cb책명").Text();
    source.abbreviation = bookAbbreviation(book());
    source.chapter = toolCombo(u"ID_cb장").Text();
    source.verseRange = GetCurVerseRange();
    m_services.clipboard.set(composeVerseCopy(copied, copyEnding(options, source), originals));
}

} // namespace lumen
