// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "import/jet_file_reader.h"
#include "jet/import/conversion.h"

namespace lumen {

/// What a conversion brought over.
struct ConversionReport
{
    qsizetype tables = 0;
    qint64 rows = 0;
    JetFaults faults;
};

/// Converts a genuine Jet file into a new store: tables, keys, rows, password and origin. What a
/// slightly damaged file still gives is taken over and the losses are noted in the store. Nothing
/// is left at the destination unless the result is Done. `report` may be filled in part.
ImportExit convertIntoStore(const JetConversion& conversion, ConversionReport& report);

} // namespace lumen
