// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <vector>

namespace lumen {

/// One verse as a source has it. The book counts from 0, chapter and verse from 1.
struct VerseText
{
    int book = 0;
    int chapter = 0;
    int verse = 0;
    /// Absent where the source has the verse but no words for it.
    std::optional<QString> text;
    /// What stands in front of the words without being searched, as the title of a Psalm.
    std::optional<QString> part;
    /// The heading above the verse, "" for none.
    QString miniTitle;
};

/// A whole version as a reader gives it: plain text, in the order of the source. The remarks are
/// Korean lines for the report: what was left out, mended or looks odd. The losses are such lines
/// on words that must be missing: of them no module is made unless the user accepts it.
struct VersionText
{
    std::vector<VerseText> verses;
    QStringList remarks;
    QStringList losses{};
};

/// What a reader gives: NotFound when the source is not there, Damaged with "file:line: reason"
/// when it cannot be read to its end.
using VersionResult = Result<VersionText>;

/// The failure of a source file; `line` counts from 1, 0 leaves it out.
Failure sourceFailure(const QString& file, qint64 line, const QString& reason);
/// The failure of a source that is not installed or not there.
Failure missingSource(const QString& file);

/// Watches that no book of a version comes from two files: its verses would stand there twice.
class BookFiles
{
public:
    /// The verses from `begin` on came from `file`. Damaged when the book was there before.
    std::optional<Failure> add(const QString& file, const VersionText& version, std::size_t begin);

private:
    std::map<int, QString> m_fileOfBook;
};

/// The remark on books that a version leaves out since the canon hasn't them.
QString leftOutBooks(const QStringList& ids);

/// Puts a heading behind those that a verse has already.
void addHeading(QString& headings, const QString& heading);

/// Brings the verses into canon order and joins those of the same place: texts with a blank, parts
/// and headings likewise, which a remark tells. Chapters beyond the canon and verse 0 are dropped
/// and told in a remark. Psalm 119 has no title: what a source marks so there are the letters of
/// its alphabet, and they become headings.
void arrangeVerses(VersionText& version);

} // namespace lumen
