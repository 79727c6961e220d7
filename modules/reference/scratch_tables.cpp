// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/scratch_tables.h"

namespace lumen {

using namespace Qt::StringLiterals;

Result<ModuleReport> fillScratchTables(ModuleStore& store)
{
    constexpr int kTables = 11;
    for (int i = 0; i < kTables; ++i)
        store.createTable({u"Table%1"_s.arg(i),
                           {textColumn(u"Index"_s)},
                           {{u"PrimaryKey"_s, {u"Index"_s}, true, true}}});
    return ModuleReport{{u"빈 표 %1"_s.arg(kTables)}, {}};
}

} // namespace lumen
