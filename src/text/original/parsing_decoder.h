// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace lumen::BibleCode {

/// A morphological code (unscrambled) or a search pattern as Korean phrases, joined by commas; no
/// phrase holds a comma. Characters that mean nothing at their position, "_" among them, yield no
/// phrase; it never fails. The parentheses of a Greek code are taken off `code` itself.
QString ParsingDecoder(QString& code);

} // namespace lumen::BibleCode
