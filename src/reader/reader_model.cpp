// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/reader_model.h"

#include "canon/canon_table.h"
#include "forms/guarded.h"
#include "forms/wait_pointer.h"
#include "platform/dialogs/message_boxes.h"
#include "reader/messages.h"
#include "reader/move/typed_reference.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {

namespace {

/// Where a move to a verse ends, and what the user is told of it.
struct VerseFound
{
    int verse = 0;
    const MessageText* message = nullptr; // nullptr when that verse is there
};

/// The base version's chapter has a verse.
VerseFound verseFor(const ChapterSource& base, int wanted)
{
    if (wanted > base.lastVerse())
        return {base.lastVerse(), &messages::kVerseTooLarge};
    if (base.find(wanted) != nullptr)
        return {wanted};
    // A hole in the chapter: what stands before it is where the reader would look.
    int before = base.verses.front().verse;
    for (const ChapterVerse& row : base.verses)
        if (row.verse < wanted)
            before = row.verse;
    return {before, &messages::kVerseAbsent};
}

} // namespace

ReaderModel::ReaderModel(Services& services, const AppState& state, QWidget* window)
    : m_services(services), m_window(window), m_slots(services, state)
{
}

void ReaderModel::open(const ReaderSettings& left)
{
    m_place = {left.BookNum, left.ChapNum + 1, 1};
    m_view = left.ViewMode;
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const int stored =
            slot == 0 ? left.DefVerNum : left.Interlinear[static_cast<std::size_t>(slot - 1)];
        take(slot, restoredVersionIndex(choice(slot).items(), stored), true);
    }
    read();
    tell({.text = true, .versions = true, .view = true});
}

void ReaderModel::appear()
{
    if (m_onScreen)
        return;
    m_onScreen = true;
    // While the window was hidden no Hebrew verse could be divided.
    tell({.text = holdsHebrew(), .stand = true});
}

void ReaderModel::moveTo(const VersePlace& place)
{
    readChapter(place.book, place.chapter);
    tell({.text = true, .marked = place.verse});
}

void ReaderModel::stepChapter(int step)
{
    const int count = chapterCount(book());
    if (count > 1) // a book of one chapter has no other to go to
        moveTo({book(), (chapter() - 1 + step + count) % count + 1, 0});
}

void ReaderModel::Proc이동(QString& reference)
{
    const std::optional<TypedReference> typed = parseTypedReference(reference);
    if (!typed) {
        m_services.messages.show(m_window, messages::kBadReference);
        return;
    }
    reference = typed->reference;
    const LimitedNumber wanted = limitedTo(chapterCount(typed->book), typed->chapter);
    if (wanted.wasTooLarge)
        m_services.messages.show(m_window, messages::kChapterTooLarge);
    readChapter(typed->book, wanted.value);
    if (!hasText()) {
        tell({.text = true});
        return;
    }
    const VerseFound found = verseFor(m_text.front(), std::max(1, typed->verse));
    tell({.text = true,
          .marked = found.verse,
          .moved = u"%1%2:%3"_s.arg(bookAbbreviation(book())).arg(chapter()).arg(found.verse)});
    // The chapter is on show behind the message.
    if (found.message != nullptr)
        m_services.messages.show(m_window, *found.message);
}

void ReaderModel::goTo(int book, int chapter, int verse)
{
    moveTo({book, chapter, verse});
}

void ReaderModel::chooseVersion(int slot, int index)
{
    const bool isOther = index != choice(slot).previousIndex();
    const bool taken = isOther && take(slot, index, false);
    if (taken)
        read();
    tell({.text = taken, .versions = true});
}

bool ReaderModel::take(int slot, int index, bool loading)
{
    VersionSlot& at = m_slots(slot);
    ChosenVersion chosen = at.choice.choose(m_window, index, loading);
    // While loading, absent rows lead to the next one; else the former version just stays.
    while (loading && !chosen.accepted && chosen.index != index) {
        index = chosen.index;
        chosen = at.choice.choose(m_window, index, loading);
    }
    if (chosen.accepted)
        m_slots.take(slot, chosen);
    return chosen.accepted;
}

void ReaderModel::setView(ViewMode view)
{
    m_view = view;
    tell({.view = true});
}

void ReaderModel::settle(int verse, const QString& range)
{
    m_place.verse = verse;
    m_range = range;
}

void ReaderModel::readChapter(int book, int chapter)
{
    const int known = std::clamp(book, 0, kBookCount - 1);
    m_place = {known, std::clamp(chapter, 1, chapterCount(known)), 1};
    read();
}

void ReaderModel::read()
{
    const WaitPointer wait;
    const auto work = [this] { m_text = m_slots.readChapter(book(), chapter()); };
    // A text that stays from before would stand under another place.
    if (!guarded(m_services, m_window, work))
        m_text.clear();
}

std::vector<ChapterSource> ReaderModel::readPreview()
{
    return m_slots.readChapter(book(), chapter(), DocumentKind::Preview);
}

QString ReaderModel::reference() const
{
    const int verse = GetCurVerse();
    if (!hasText() || m_text.front().find(verse) == nullptr)
        return {};
    return u"%1%2:%3"_s.arg(bookAbbreviation(book())).arg(chapter()).arg(verse);
}

void ReaderModel::tell(const ReaderChange& change) const
{
    if (onChange)
        onChange(change);
}

} // namespace lumen
