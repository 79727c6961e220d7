// SPDX-License-Identifier: GPL-2.0-or-later
#include "palette/palette_entries.h"

#include "canon/canon_table.h"
#include "palette/folded_text.h"
#include "platform/controls/bars/active_tool_bars.h"

#include <QKeySequence>
#include <QRegularExpression>

#include <algorithm>
#include <map>
#include <set>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPsalms = 18;

// "성서 검색(&S)..." as "성서 검색".
QString plainCaption(QString caption)
{
    static const QRegularExpression kMarks(u"\\(&.\\)|&|\\.\\.\\.$"_s);
    return caption.remove(kMarks).trimmed();
}

QString comparable(const QString& text)
{
    return foldedText(text).remove(u' ');
}

// The name of each menu by its id, and those that stand in another menu.
struct Menus
{
    std::map<QString, QString> names;
    std::set<QString> inner;
};

Menus menusOf(const std::vector<ToolRow>& rows)
{
    Menus menus;
    for (const ToolRow& row : rows)
        if (row.kind == ToolKind::Menu) {
            menus.names.emplace(row.id.toString(), plainCaption(row.caption.toString()));
            if (row.place != kMenuBar)
                menus.inner.insert(row.id.toString());
        }
    return menus;
}

QString nameOf(const ToolRow& row, const Menus& menus)
{
    const QString name = plainCaption(row.caption.toString());
    const QString place = row.place.toString();
    return menus.inner.contains(place) ? menus.names.at(place) + u" - "_s + name : name;
}

bool isCommand(const ToolRow& row)
{
    return (row.kind == ToolKind::Button || row.kind == ToolKind::Toggle) && !row.caption.isEmpty();
}

} // namespace

QString placeText(const PlaceRange& range)
{
    const auto chapterName = [&range](int chapter) {
        return QString::number(chapter) + (range.first.book == kPsalms ? u"편"_s : u"장"_s);
    };
    const VersePlace& first = range.first;
    const VersePlace& last = range.last;
    const QString book = bookName(first.book) + u' ';
    if (first.verse == 0 && last.verse == 0)
        return book + (first.chapter == last.chapter
                           ? chapterName(first.chapter)
                           : QString::number(first.chapter) + u'-' + chapterName(last.chapter));
    const QString start = book + u"%1:%2"_s.arg(first.chapter).arg(std::max(1, first.verse));
    if (first == last)
        return start;
    if (first.chapter == last.chapter)
        return start + u"-%1"_s.arg(last.verse);
    return start + u"-%1:%2"_s.arg(last.chapter).arg(last.verse);
}

std::vector<PaletteEntry> placeEntries(const QString& typed)
{
    std::vector<PaletteEntry> entries;
    for (const PlaceRange& range : parsePlaces(typed)) {
        PaletteEntry entry{PaletteKind::Place, placeText(range)};
        entry.reference = u"%1%2:%3"_s.arg(bookAbbreviation(range.first.book))
                              .arg(range.first.chapter)
                              .arg(std::max(1, range.first.verse));
        entries.push_back(entry);
    }
    return entries;
}

std::vector<PaletteEntry> toolEntries(const ActiveToolBars& bars, const QString& typed)
{
    const std::vector<ToolRow> rows = bars.rows();
    const Menus menus = menusOf(rows);
    const QString wanted = comparable(typed);
    std::vector<PaletteEntry> begun;
    std::vector<PaletteEntry> holding;
    for (const ToolRow& row : rows) {
        const Tool tool = bars.tool(row.id);
        if (!isCommand(row) || !tool.enabled() || !tool.visible())
            continue;
        const QString name = nameOf(row, menus);
        const qsizetype place = foldedIndexOf(comparable(name), wanted);
        const bool beginsOwn =
            foldedIndexOf(comparable(plainCaption(row.caption.toString())), wanted) == 0;
        if (place < 0)
            continue;
        PaletteEntry entry{
            PaletteKind::Tool, name,
            QKeySequence(row.shortcut.toString()).toString(QKeySequence::NativeText)};
        entry.tool = row.id.toString();
        (place == 0 || beginsOwn ? begun : holding).push_back(entry);
    }
    begun.insert(begun.end(), holding.begin(), holding.end());
    return begun;
}

} // namespace lumen
