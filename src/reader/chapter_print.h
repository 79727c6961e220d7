// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "print/bible_layout.h"
#include "print/print_request.h"
#include "reader/views/table_view.h"

#include <QStringList>

#include <set>

namespace lumen {

/// A chapter as a table for paper: the versions' names are `headers`, a column a source. Fonts and
/// sizes are the printer's, colours those of the table. `verses` are those to be printed, empty for
/// all.
VerseSheet chapterSheet(const std::vector<ChapterSource>& sources, const QStringList& headers,
                        const TableStyle& style, const std::set<int>& verses);

/// What stands around a chapter on paper; the document itself is the caller's.
PrintRequest chapterRequest(int book, int chapter);

} // namespace lumen
