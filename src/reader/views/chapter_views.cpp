// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/views/chapter_views.h"

#include "canon/canon_table.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/text/text_control.h"
#include "platform/printing/vs_printer.h"
#include "reader/chapter_print.h"

#include <QTextDocument>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

namespace lumen {

ChapterViews::ChapterViews(TextControl& txCont, FlexGrid& hflex본문, const ReaderModel& model,
                           const ReaderSettings& settings, const AppState& state)
    : m_txCont(txCont), m_grid(hflex본문), m_model(model), m_settings(settings), m_state(state),
      m_textView(txCont), m_tableView(hflex본문)
{
}

void ChapterViews::show()
{
    const KeptPlace kept = placeToKeep();
    if (kept.verse == 0)
        m_grid.setTag(u"1"_s);
    if (isText())
        showText();
    else
        showTable();
    keepPlace(kept);
    m_shown =
        m_model.text().empty() ? Shown() : Shown{m_model.book(), m_model.chapter(), m_model.view()};
}

QStringList ChapterViews::versionNames() const
{
    QStringList names;
    for (const ChapterSource& source : m_model.text()) {
        const VersionChoice& choice = m_model.choice(source.slot);
        names << choice.items().at(choice.previousIndex()).label;
    }
    return names;
}

void ChapterViews::showText()
{
    m_textView.show(composeChapter(m_model.text(), textStyle()));
    const QStringList names = versionNames();
    QStringList spoken;
    for (std::size_t at = 0; at < m_model.text().size(); ++at)
        spoken << spokenVersion(names[qsizetype(at)], m_model.text()[at].code);
    m_txCont.setAccessibleDescription(
        u"%1 %2장: "_s.arg(bookName(m_model.book())).arg(m_model.chapter()) + spoken.join(u"; "));
}

void ChapterViews::showTable()
{
    const QStringList headers = versionNames();
    if (m_model.text().empty())
        m_tableView.clear();
    else
        m_tableView.show(m_model.text(), headers, tableStyle());
}

void ChapterViews::showPreview(TextControl& tx미리보기, const std::vector<ChapterSource>& sources)
{
    ChapterStyle style = textStyle();
    style.kind = DocumentKind::Preview;
    TextView(tx미리보기).show(composeChapter(sources, style));
}

bool ChapterViews::hasSelection() const
{
    return isText() ? m_txCont.SelLength() > 0 : !m_tableView.selectedRange().empty();
}

void ChapterViews::layOutForPrint(VSPrinter& vp, bool whole)
{
    if (!isText()) {
        std::set<int> verses;
        for (const SelectedVerse& verse : whole ? std::vector<SelectedVerse>() : selectedVerses())
            verses.insert(verse.verse);
        layOutVerses(vp, chapterSheet(m_model.text(), versionNames(), tableStyle(), verses));
        return;
    }
    if (!whole) {
        QTextDocument part;
        QTextCursor(&part).insertFragment(m_txCont.textCursor().selection());
        vp.addDocument(part);
        return;
    }
    ChapterStyle style = textStyle();
    style.kind = DocumentKind::Preview;
    style.languageBar = false;
    // On paper Hebrew is Unicode, which finds its lines by itself.
    style.divideHebrew = [](const QString& stored, const QString&, int, const VerseHead&) {
        return stored;
    };
    vp.addRtf(composeChapter(m_model.text(), style).rtf, kChapterTabWidth);
}

int ChapterViews::currentVerse()
{
    return isText() ? m_textView.currentVerse() : m_tableView.currentVerse();
}

QString ChapterViews::currentRange()
{
    return isText() ? m_textView.currentRange() : m_tableView.currentRange();
}

void ChapterViews::selectVerse(int verse)
{
    if (isText())
        m_textView.selectVerse(verse);
    else
        m_tableView.selectVerse(verse);
}

std::vector<SelectedVerse> ChapterViews::selectedVerses() const
{
    return isText() ? m_textView.selectedVerses()
                    : m_tableView.selectedVerses(m_model.text(), m_settings.ShowMiniTitle);
}

ChapterViews::KeptPlace ChapterViews::placeToKeep()
{
    // The same chapter comes in another look: the reader stays at his verse.
    if (m_shown.book != m_model.book() || m_shown.chapter != m_model.chapter())
        return {};
    const auto placeIn = [](auto& view) {
        const int verse = view.currentVerse();
        return KeptPlace{verse, view.selectedRange(), view.topVerse(), view.isInView(verse)};
    };
    return m_shown.view == ViewMode::Text ? placeIn(m_textView) : placeIn(m_tableView);
}

void ChapterViews::keepPlace(const KeptPlace& kept)
{
    if (kept.verse == 0)
        return;
    const auto keepIn = [&kept](auto& view) {
        // Whoever has scrolled away from his verse reads on where he is.
        view.scrollToVerse(kept.top);
        if (kept.isInView && !view.isInView(kept.verse))
            view.scrollToVerse(kept.verse);
    };
    if (!isText()) {
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

QString ChapterViews::divideHebrew(const QString& stored, const HebrewTarget& target,
                                   bool asRtf) const
{
    HebrewTarget shown = target;
    shown.isVisible = m_txCont.window()->isVisible() && (isText() || m_grid.isVisible());
    return DivideHebrewCont(stored, shown, asRtf, m_lineBreaker);
}

ChapterStyle ChapterViews::textStyle() const
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
        return divideHebrew(stored, {font, halfPoints, m_txCont.textWidth(), taken}, true);
    };
    return style;
}

TableStyle ChapterViews::tableStyle() const
{
    TableStyle style;
    style.fontSize = m_settings.FontSize;
    style.showMiniTitle = m_settings.ShowMiniTitle;
    style.colors = m_settings.colors;
    style.fonts = m_state.fonts;
    style.divideHebrew = [this, rtf = textStyle().rtf](const QString& stored, const QString& font,
                                                       int halfPoints, int width,
                                                       const QString& part) {
        const int taken = headWidth({{}, {}, part}, rtf, font, halfPoints);
        return divideHebrew(stored, {font, halfPoints, width, taken}, false);
    };
    return style;
}

} // namespace lumen
