// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringView>

namespace lumen {

/// A stretch of a text in UTF-16 units.
struct TextRange
{
    int start = 0;
    int length = 0;

    friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// The word around a position: spaces and the ends of the paragraph are its bounds. A position on a
/// space right behind a word takes that word; elsewhere between words the range is empty.
TextRange wordAt(QStringView text, int position);

} // namespace lumen
