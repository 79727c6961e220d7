// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <string_view>

struct sqlite3;

namespace lumen {

/// Registers with a connection what translated queries use: jet_like and jet_ilike (pattern, text),
/// jet_num, jet_text, jet_date, jet_left, jet_chr and the collation JETTEXT.
void registerJetFunctions(sqlite3* handle);

/// The order of texts in user databases: ASCII case and trailing blanks don't count, else code
/// points. Below 0, 0 or above.
int compareJetText(std::string_view left, std::string_view right);

/// The character of a code of code page 949, as Chr gives it; error 3001 outside 0 to 65535.
QString characterOf(int code);

} // namespace lumen
