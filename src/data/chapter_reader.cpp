// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/chapter_reader.h"

#include "canon/verse_index.h"
#include "data/data_store.h"
#include "jet/data_control.h"
#include "text/field_scramble.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

std::optional<QString> optionalText(const Field& field)
{
    const QVariant value = field.Value();
    if (value.isNull())
        return {};
    return value.toString();
}

} // namespace

QString verseText(const VerseRow& row)
{
    return row.cont ? DES::UnscrambleField(*row.cont) : QString();
}

QString chapterQuery(const QString& table, int book, int chapter, int slot)
{
    return u"select * from ["_s + table + u"] where index like '"_s +
           BibleCode::chapterPrefix(book, chapter) +
           (slot == 0 ? u":*' order by verse"_s : u":*' order by VERSE"_s);
}

QString previewChapterQuery(const QString& table, int book, int chapter, int slot)
{
    return u"select * from ["_s + table +
           (slot == 0 ? u"] where CHAP = '"_s : u"] where CHAP like '"_s) +
           BibleCode::GetChapKey(book, chapter) + u"' order by VERSE"_s;
}

QString verseQuery(const QString& table, const QString& key)
{
    return u"select * from ["_s + table + u"] where index = '"_s + key + u"'"_s;
}

QList<VerseRow> readVerses(DataControl& control, const QString& databaseName, const QString& query)
{
    control.DatabaseName = databaseName;
    control.Connect = QString::fromUtf16(connect_text::kDataControl);
    control.RecordSource = query;
    control.Refresh();
    return versesOf(*control.Recordset());
}

QList<VerseRow> versesOf(Recordset& rows)
{
    QList<VerseRow> verses;
    // Moving to the first record of none is an error.
    if (rows.RecordCount() == 0)
        return verses;
    verses.reserve(rows.RecordCount());
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
        verses << VerseRow{Text(rows.Fields(u"index")), Number(rows.Fields(u"verse")),
                           optionalText(rows.Fields(u"cont")), Text(rows.Fields(u"part")),
                           Text(rows.Fields(u"miniTitle"))};
    rows.MoveFirst();
    return verses;
}

} // namespace lumen
