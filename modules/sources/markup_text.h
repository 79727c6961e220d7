// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace lumen {

/// A piece of OSIS or TEI as plain text: paragraphs, rows, items and breaks become lines, all other
/// marks go, entities are resolved. Blanks are joined, empty lines left out.
QString plainLines(QString markup);

} // namespace lumen
