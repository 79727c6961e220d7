// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/chapter_print.h"

#include "canon/canon_table.h"
#include "platform/controls/colors.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

PrintLook lookOf(const ChapterSource& source, const TableStyle& style)
{
    const VersionPrintFont font = GetVersionPrintFont(source.code, style.fonts);
    PrintLook look;
    look.family = font.font;
    look.points = font.size > 0 ? font.size : look.points;
    look.color = toColor(source.slot == 0
                             ? style.colors.DefVerColor
                             : style.colors.verColors[static_cast<std::size_t>(source.slot - 1)]);
    return look;
}

VerseSheet::Row verseRow(const std::vector<ChapterSource>& sources, const ChapterVerse& base,
                         bool withPart)
{
    VerseSheet::Row row;
    row.place = QString::number(base.verse);
    for (const ChapterSource& source : sources) {
        const ChapterVerse* const verse = source.slot == 0 ? &base : source.find(base.verse);
        const QString part = source.slot == 0 && withPart ? base.part : QString();
        row.texts << (verse == nullptr ? QString() : part + verse->cont);
    }
    return row;
}

} // namespace

VerseSheet chapterSheet(const std::vector<ChapterSource>& sources, const QStringList& headers,
                        const TableStyle& style, const std::set<int>& verses)
{
    VerseSheet sheet;
    sheet.placeHeader = u"절"_s;
    sheet.placeWidth = kVerseNumberWidth;
    for (std::size_t at = 0; at < sources.size(); ++at)
        sheet.columns.push_back(
            {headers.value(static_cast<qsizetype>(at)), lookOf(sources[at], style)});
    if (sources.empty())
        return sheet;
    for (const ChapterVerse& base : sources.front().verses) {
        if (!verses.empty() && !verses.contains(base.verse))
            continue;
        if (style.showMiniTitle && !base.miniTitle.isEmpty())
            sheet.rows.push_back({u"『"_s + base.miniTitle + u"』"_s});
        sheet.rows.push_back(verseRow(sources, base, style.showMiniTitle));
    }
    return sheet;
}

PrintRequest chapterRequest(int book, int chapter)
{
    PrintRequest request;
    request.source = print_source::kBible.toString();
    const QString number = QString::number(chapter);
    request.headTitle = bookName(book) + u' ' + number + u"장"_s;
    request.footerLeft = bookAbbreviation(book) + u' ' + number;
    request.docName = request.headTitle;
    return request;
}

} // namespace lumen
