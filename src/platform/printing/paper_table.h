// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/printing/printers.h"

#include <QStringView>

#include <span>

namespace lumen {

/// The code of a size of the user's own.
inline constexpr int kUserPaper = 256;
/// Codes run from 0 up to this; 0, 48 and 49 have no paper.
inline constexpr int kPaperCodes = 69;
inline constexpr int kPaperA4 = 9;

/// A paper by the code that print drivers use for it.
struct PaperRow
{
    int code = 0;
    QStringView name; ///< as lists show it
    PaperMeasure size;
};

std::span<const PaperRow> paperRows();
/// nullptr for a code without paper.
const PaperRow* paperRow(int code);
/// Whether a printer has the paper: one of its sizes is the same within a millimetre.
bool hasPaper(const PrinterPapers& papers, int code);
/// The paper of these measures; nothing for a size of the user's own.
std::optional<int> paperCode(const PaperMeasure& size);

} // namespace lumen
