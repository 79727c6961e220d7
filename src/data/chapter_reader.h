// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace lumen {

class DataControl;
class Recordset;

/// One verse of a version as its module holds it.
struct VerseRow
{
    QString key;                 ///< the VerseIndex
    int verse = 0;               ///< 1-based
    std::optional<QString> cont; ///< stored form; nothing for Null
    QString part;                ///< on one line; "" for Null
    QString miniTitle;           ///< the same
};

/// A text of a module on one line, each sign taking one place in the views: line ends and tabs
/// become a blank (one together, none beside a blank), other control characters go.
QString singleLine(const QString& text);

/// The readable text of a stored verse, on one line.
QString readableText(const QString& stored);
/// The same of a row; "" for Null.
QString verseText(const VerseRow& row);

/// The query of a chapter for a slot of the reader: 0 the base version, 1 to 3 the parallel ones.
/// The book is zero-based.
QString chapterQuery(const QString& table, int book, int chapter, int slot);
/// The same chapter as the print preview asks for it.
QString previewChapterQuery(const QString& table, int book, int chapter, int slot);

/// The query of a single verse by its VerseIndex.
QString verseQuery(const QString& table, const QString& key);

/// Points a data control at a version's module and reads a query; throws JetError.
QList<VerseRow> readVerses(DataControl& control, const QString& databaseName, const QString& query);
/// The rows of an open recordset from its first to its last; it is left on the first one.
QList<VerseRow> versesOf(Recordset& rows);

} // namespace lumen
