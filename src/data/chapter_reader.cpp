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

bool endsWord(QChar c)
{
    constexpr char16_t kNextLine = 0x85;
    return (c >= u'\t' && c <= u'\r') || c == kNextLine || c == QChar::LineSeparator ||
           c == QChar::ParagraphSeparator;
}

bool takesNoPlace(QChar c)
{
    // A document ends and begins paragraphs at the two noncharacters.
    return c.category() == QChar::Other_Control || c == u'\uFDD0' || c == u'\uFDD1';
}

} // namespace

QString singleLine(const QString& text)
{
    QString line;
    line.reserve(text.size());
    bool blankWanted = false;
    for (const QChar c : text) {
        if (endsWord(c)) {
            blankWanted = true;
        } else if (!takesNoPlace(c)) {
            if (blankWanted && !line.isEmpty() && c != u' ' && !line.endsWith(u' '))
                line += u' ';
            blankWanted = false;
            line += c;
        }
    }
    // The text that follows a heading's piece must not run into it.
    if (blankWanted && !line.isEmpty() && !line.endsWith(u' '))
        line += u' ';
    return line;
}

QString readableText(const QString& stored)
{
    return singleLine(DES::UnscrambleField(stored));
}

QString verseText(const VerseRow& row)
{
    return row.cont ? readableText(*row.cont) : QString();
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
                           optionalText(rows.Fields(u"cont")),
                           singleLine(Text(rows.Fields(u"part"))),
                           singleLine(Text(rows.Fields(u"miniTitle")))};
    rows.MoveFirst();
    return verses;
}

} // namespace lumen
