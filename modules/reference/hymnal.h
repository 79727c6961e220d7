// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reference/reference_task.h"

#include <QString>

namespace lumen {

/// The tables that a hymnal is made of. A line of the hymns: number (1 to 558), title, writer,
/// composer, category, related hymns ("2;4"), related verses ("시100:1-5;요3:16"), words with "/"
/// between lines and "//" between stanzas; all behind the title may be left out.
struct HymnalTables
{
    QString hymns;
    QString tunes; ///< as of readTunes; "" for none
    Supply supply = Supply::Installed;
};

/// The table of hymns. Damaged, with the bad lines of a table by file, line and reason: a number
/// twice or out of range, a related hymn or verse that isn't there, a tune without a hymn.
Result<ModuleReport> fillHymnal(const HymnalTables& tables, ModuleStore& store);

} // namespace lumen
