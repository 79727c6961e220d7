// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "support/test_services.h"

#include <QString>

namespace lumen {

/// A small Data folder with text of its own in five versions: 개역한글 (101), KJV (201), ISV 신약
/// (215, New Testament only), BHS (301, the codes of the Hebrew font) and TR Stephanus (306, those
/// of the Greek one), and the user databases of a first start.
///
/// Chapters of 101: Genesis 1 (31 verses, a mini title before 1 and before 3, Null in verse 5), 2
/// (3 verses), Psalm 3 (8 verses, a part before verse 1), Psalm 119 (176), John 1 (5), 3 (16, of
/// which the last is the one for searches). 201 has the same but no Psalm 119, and only 29 verses
/// in Genesis 1; 301 has Genesis 1 (5), 306 and 215 John 1 (5) and 3 (16).
class TinyData
{
public:
    /// Writes the files into the Data folder of `services` and takes stock with CheckData.
    explicit TinyData(TestServices& services);

    /// The readable text that stands in a verse of a version, made by rule from its place.
    static QString text(int code, int book, int chapter, int verse);
};

} // namespace lumen
