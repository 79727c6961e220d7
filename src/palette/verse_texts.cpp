// SPDX-License-Identifier: GPL-2.0-or-later
#include "palette/verse_texts.h"

#include "data/app_state.h"
#include "data/chapter_reader.h"
#include "data/data_store.h"
#include "data/module_path.h"
#include "data/version_font.h"
#include "data/version_lists.h"
#include "forms/services.h"
#include "jet/database.h"
#include "jet/engine.h"
#include "jet/rows/recordset.h"
#include "palette/folded_text.h"
#include "text/field_scramble.h"

#include <algorithm>
#include <cstring>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// The C library compares many bytes at once; the toolkit's search is several times slower.
qsizetype find(const QString& text, const QString& word, qsizetype from)
{
    constexpr qsizetype kSize = sizeof(QChar);
    const auto* const begin = reinterpret_cast<const char*>(text.constData());
    while (from <= text.size() - word.size()) {
        const auto* const at = static_cast<const char*>(
            memmem(begin + from * kSize, static_cast<std::size_t>((text.size() - from) * kSize),
                   word.constData(), static_cast<std::size_t>(word.size() * kSize)));
        if (at == nullptr)
            return -1;
        const qsizetype bytes = at - begin;
        if (bytes % kSize == 0)
            return bytes / kSize;
        from = bytes / kSize + 1; // halves of two letters
    }
    return -1;
}

} // namespace

VerseTexts::VerseTexts() = default;
VerseTexts::VerseTexts(VerseTexts&&) noexcept = default;
VerseTexts& VerseTexts::operator=(VerseTexts&&) noexcept = default;
VerseTexts::~VerseTexts() = default;

void VerseTexts::open(Services& services, const AppState& state, int code)
{
    if (code == m_code)
        return;
    *this = VerseTexts();
    const QString path = modulePath(services.files, state, versionFile(code));
    m_module =
        services.jet.OpenDatabase(path, false, true, QString::fromUtf16(connect_text::kPanel));
    m_table = versionName(code, state.installed);
    m_code = code;
}

bool VerseTexts::readOn()
{
    if (isComplete() || !m_module)
        return false;
    const auto rows = m_module->OpenRecordset(
        u"select index, cont from ["_s + m_table + u"] where index like '"_s +
        BibleCode::bookPrefix(m_book) + u":*' order by index"_s);
    ++m_book;
    const QStringList keys = rows->columnTexts(u"index");
    const QStringList texts = rows->columnTexts(u"cont");
    for (qsizetype i = 0; i < keys.size(); ++i)
        add(BibleCode::ParseRef(BibleCode::IndexToRef(keys[i])),
            unicodeText(m_code, readableText(texts[i])));
    if (isComplete())
        m_module.reset();
    return !isComplete();
}

void VerseTexts::add(const VersePlace& place, const QString& text)
{
    const QString folded = foldedText(text) + u'\n';
    m_places.push_back(place);
    m_shown += text;
    m_folded += folded;
    m_initials += initialsOf(folded);
    m_starts.push_back(m_shown.size());
    m_foldedStarts.push_back(m_folded.size());
}

QString VerseTexts::text(int verse) const
{
    const auto at = static_cast<std::size_t>(verse);
    return m_shown.mid(m_starts[at], m_starts[at + 1] - m_starts[at]);
}

bool VerseTexts::holds(std::size_t verse, const QString& word) const
{
    const auto text = QStringView(m_folded).mid(m_foldedStarts[verse],
                                                m_foldedStarts[verse + 1] - m_foldedStarts[verse]);
    return foldedIndexOf(text, word) >= 0;
}

VerseHits VerseTexts::search(const QString& typed, int most) const
{
    VerseHits hits;
    QStringList words = foldedText(typed).simplified().split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return hits;
    // The longest word is the rarest, as a rule: where it stands the others are looked for.
    std::ranges::stable_sort(words, std::greater(), &QString::size);
    const bool byInitials = hasInitials(words.front());
    const QString& text = byInitials ? m_initials : m_folded;
    const QString wanted = byInitials ? initialsOf(words.front()) : words.front();
    // With nothing else to compare a place of the word is a hit.
    const bool isSure = words.size() == 1 && (!byInitials || wanted == words.front());
    auto verse = m_foldedStarts.begin();
    for (qsizetype at = find(text, wanted, 0); at >= 0; at = find(text, wanted, *verse)) {
        verse = std::upper_bound(verse, m_foldedStarts.end(), at);
        const auto number = static_cast<std::size_t>(verse - m_foldedStarts.begin()) - 1;
        if (!isSure &&
            !std::ranges::all_of(words, [&](const QString& word) { return holds(number, word); }))
            continue;
        if (hits.count++ < most)
            hits.first.push_back(static_cast<int>(number));
    }
    return hits;
}

} // namespace lumen
