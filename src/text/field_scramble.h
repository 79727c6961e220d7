// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

/// The permutation of characters in which the text columns of the data modules are stored. It works
/// character by character, so a word inside a text stays a contiguous run of the same length and
/// can be looked for in its stored form.
namespace lumen::DES {

/// Plain text to stored form. Blanks, control characters and all that lies outside printable ASCII
/// and the Hangul syllables of KS X 1001 stay as they are.
QString ScrambleField(QStringView text);

/// Stored form to plain text; undoes ScrambleField for every text.
QString UnscrambleField(QStringView text);

} // namespace lumen::DES
