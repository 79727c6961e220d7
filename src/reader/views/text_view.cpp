// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/views/text_view.h"

#include "platform/controls/text/text_control.h"

#include <QScrollBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace lumen {

TextView::TextView(TextControl& txCont) : m_txCont(txCont) {}

void TextView::show(const ComposedChapter& chapter)
{
    m_positions = chapter.positions;
    m_rows = chapter.rows;
    if (chapter.rtf.isEmpty()) {
        m_txCont.setText(QString());
        return;
    }
    m_txCont.LoadRtf(toRtfBytes(chapter.rtf));
}

int TextView::currentVerse() const
{
    return m_positions.verseAt(m_txCont.SelStart());
}

QString TextView::currentRange() const
{
    const VerseRange selected = selectedRange();
    return selected.empty() ? QString::number(currentVerse())
                            : verseRangeText(selected.first, selected.last);
}

VerseRange TextView::selectedRange() const
{
    const int start = m_txCont.SelStart();
    return rangeBetween(m_rows, start, start + m_txCont.SelLength());
}

void TextView::selectRange(const VerseRange& range)
{
    const std::optional<VersePosition> first = m_positions.find(range.first);
    const std::optional<VersePosition> last = m_positions.find(range.last);
    if (first && last)
        m_txCont.select(first->start, last->start + last->length - 1 - first->start);
}

void TextView::selectVerse(int verse)
{
    const std::optional<VersePosition> place = m_positions.find(verse);
    if (!place)
        return;
    // Without the verse's last paragraph end, which would draw the selection into the next line.
    // Selecting scrolls to the caret at its end, so the verse's start is brought up afterwards.
    m_txCont.select(place->start, place->length - 1);
    m_txCont.scrollToPosition(place->start);
}

int TextView::topVerse() const
{
    if (m_txCont.verticalScrollBar()->value() == 0)
        return 0;
    return m_positions.verseAt(m_txCont.firstVisiblePosition());
}

bool TextView::isInView(int verse) const
{
    const std::optional<VersePosition> place = m_positions.find(verse);
    if (!place)
        return false;
    QTextCursor caret(m_txCont.document());
    caret.setPosition(place->start);
    return m_txCont.viewport()->rect().intersects(m_txCont.cursorRect(caret));
}

void TextView::scrollToVerse(int verse)
{
    const std::optional<VersePosition> place = m_positions.find(verse);
    if (verse == 0 || place)
        m_txCont.scrollToPosition(place ? place->start : 0);
}

std::vector<SelectedVerse> TextView::selectedVerses() const
{
    const int start = m_txCont.SelStart();
    const int end = start + m_txCont.SelLength();
    if (start != end)
        return versesBetween(m_rows, m_txCont.Text(), start, end);
    const std::optional<VersePosition> verse = m_positions.find(currentVerse());
    if (!verse)
        return {};
    return versesBetween(m_rows, m_txCont.Text(), verse->start, verse->start + verse->length);
}

QString verseRangeText(int first, int last)
{
    if (last < first)
        std::swap(first, last);
    return first == last ? QString::number(first) : u"%1-%2"_s.arg(first).arg(last);
}

} // namespace lumen
