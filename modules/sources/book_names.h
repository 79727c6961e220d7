// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace lumen {

/// The books under the names that source files use. Books count from 0; a book outside the canon
/// (Tobit, Sirach) gives nothing.
namespace BookNames {

/// The id of OSIS files and modules, "Gen", "1Sam"; case counts.
std::optional<int> fromOsis(QStringView id);
/// The three letters of USFM files, "GEN", "1SA", in any case.
std::optional<int> fromUsfm(QStringView id);
/// The English title, "Genesis", "1 Samuel", "SongofSolomon"; blanks and case don't count.
std::optional<int> fromEnglish(QStringView title);
/// A title in English or Korean, full or short, or one of the ids above: "Genesis", "창세기", "창",
/// "II Kings", "요한1서".
std::optional<int> fromTitle(QStringView title);
/// True for the ids of OSIS and USFM of books that other canons have.
bool isOutsideCanon(QStringView id);
/// True for the ids of USFM files that are no books: glossaries, front matter.
bool isNoBook(QStringView usfmId);
/// The OSIS id of a book of the canon.
QString osis(int book);

} // namespace BookNames

} // namespace lumen
