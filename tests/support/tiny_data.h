// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "support/test_services.h"

#include <QString>

namespace lumen {

/// A small Data folder with text of its own in five versions, and the user databases of a first
/// start:
///
/// | Version | Chapters and their verses |
/// |---|---|
/// | 개역한글 (101) | Genesis 1 (31), 2 (3); Psalm 3 (8), 119 (176); John 1 (5), 3 (16) |
/// | KJV (201) | Genesis 1 (29), 2 (3); Psalm 3 (8); John 1 (5), 3 (16) |
/// | ISV 신약 (215), TR Stephanus (306) | John 1 (5), 3 (16) |
/// | BHS (301) | Genesis 1 (31), 2 (3) |
///
/// In 101 a mini title stands above Genesis 1:1 "지어낸 첫째 제목" and 1:3 "지어낸 둘째 제목" and
/// above Psalm 3:1 "지어낸 시 제목", which has the part "[지어낸 머리글] " too. Genesis 1:5 of 101
/// and 1:7 of 201 are Null.
class TinyData
{
public:
    /// Writes the files into the Data folder of `services` and takes stock with CheckData.
    explicit TinyData(TestServices& services);

    /// The readable text of a verse as the module holds it (Hebrew from its last letter to its
    /// first), made by rule from its place; "" where it is Null. Books are zero-based.
    ///   101  "등불 곁에 나무가 있는 창세기 1장 1절"; John 3:16 "온 마을이 함께 읽은 책"
    ///   201  "A lamp beside a tree in Genesis 1:1"; John 3:16 "The book that all the town has
    ///   read"
    static QString text(int code, int book, int chapter, int verse);
};

} // namespace lumen
