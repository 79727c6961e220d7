// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reference/module_task.h"
#include "sources/version_text.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace lumen {

/// A word of a verse as a concordance lists it, in small letters: without the signs around it, and
/// as a lookup takes it when it is typed with them, where that is another form ("" where not).
struct IndexWord
{
    QString word;
    QString typed = {};

    friend bool operator==(const IndexWord&, const IndexWord&) = default;
};

/// The words of a verse of version `code` in their order, one an occurrence. Words are parted by
/// blanks, in Hebrew by maqaf too; Chinese has a word a character. A word of the mixed script (102)
/// with Hangul and the same in Hanja in brackets gives two.
std::vector<IndexWord> indexWords(const QString& text, int code);

/// How often a word occurs in a verse, which is told by its key.
struct WordVerse
{
    QString key;
    int count = 0;
};

/// The rows of one word, whose text is stored already; its verses in canon order, 1,000 a row.
/// False once the work is to be stopped.
[[nodiscard]] bool addConcordanceRows(const QString& stored, const std::vector<WordVerse>& verses,
                                      ModuleStore& store);

/// The table of a concordance: every word of a version with its verses and the number of times that
/// it occurs in them. A word of more than 1,000 verses has several rows. Cancelled when the store
/// says so.
Result<ModuleReport> fillConcordance(const VersionText& version, int code, ModuleStore& store);

/// The table of concordances.
TableSchema concordanceTable();

} // namespace lumen
