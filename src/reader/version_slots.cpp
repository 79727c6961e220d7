// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/version_slots.h"

#include "data/chapter_reader.h"
#include "data/data_store.h"
#include "forms/services.h"
#include "jet/error.h"

#include <algorithm>

namespace lumen {

namespace {

VersionChoiceRule ruleOf(int slot)
{
    VersionChoiceRule rule;
    rule.number = slot;
    rule.missingFile = slot == 0 ? AbsentVersion::BaseFile : AbsentVersion::ParallelFile;
    return rule;
}

ChapterSource plainSource(int slot, int code, const QList<VerseRow>& rows)
{
    ChapterSource source{slot, code, {}};
    source.verses.reserve(static_cast<std::size_t>(rows.size()));
    for (const VerseRow& row : rows)
        source.verses.push_back({row.verse, verseText(row), row.part, row.miniTitle});
    return source;
}

} // namespace

VersionSlot::VersionSlot(Services& services, const AppState& state, const VersionChoiceRule& rule)
    : choice(services, state, rule), control(services.jet)
{
    control.ReadOnly = true;
}

VersionSlots::VersionSlots(Services& services, const AppState& state)
    : m_services(services), m_state(state)
{
    takeStock();
}

void VersionSlots::takeStock()
{
    for (int slot = 0; slot < kSlotCount; ++slot)
        m_slots[static_cast<std::size_t>(slot)] =
            std::make_unique<VersionSlot>(m_services, m_state, ruleOf(slot));
}

void VersionSlots::take(int slot, const ChosenVersion& chosen)
{
    VersionSlot& taken = (*this)(slot);
    taken.table = chosen.tableName;
    taken.code = chosen.code;
    taken.control.DatabaseName = chosen.path;
    taken.control.Connect = QString::fromUtf16(connect_text::kDataControl);
    if (!taken.isOpen())
        taken.control.Close();
}

bool VersionSlots::holdsHebrew() const
{
    return std::any_of(m_slots.begin(), m_slots.end(),
                       [](const auto& slot) { return isHebrewVersion(slot->code); });
}

std::vector<ChapterSource> VersionSlots::readChapter(int book, int chapter, DocumentKind kind)
{
    const auto query = kind == DocumentKind::Preview ? previewChapterQuery : chapterQuery;
    std::vector<ChapterSource> sources;
    for (int number = 0; number < kSlotCount; ++number) {
        VersionSlot& slot = (*this)(number);
        if (!slot.isOpen())
            continue;
        sources.push_back(readSource(slot, number, query(slot.table, book, chapter, number)));
        if (number == 0 && sources.back().verses.empty())
            break;
    }
    return sources;
}

ChapterSource VersionSlots::readSource(VersionSlot& slot, int number, const QString& query)
{
    try {
        const QList<VerseRow> rows = readVerses(slot.control, slot.control.DatabaseName, query);
        return plainSource(number, slot.code, rows);
    } catch (const JetError& error) {
        // One damaged module must not take the others from the reader, nor leave its former chapter
        // standing under the new place.
        slot.control.Close();
        return {number, slot.code, {}, error.text()};
    }
}

void VersionSlots::close()
{
    for (const auto& slot : m_slots)
        slot->control.Close();
}

} // namespace lumen
