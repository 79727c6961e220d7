// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/commentaries.h"

#include "canon/canon_table.h"
#include "check/verse_counts.h"
#include "sources/book_names.h"
#include "sources/json_readers.h"
#include "sources/key_places.h"
#include "sources/markup_text.h"
#include "sources/user_places.h"
#include "sources/user_table.h"
#include "text/field_scramble.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QRegularExpression>

#include <map>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

QString chapterKey(int book, int chapter)
{
    return bookAbbreviation(book) + QString::number(chapter);
}

QString versesFrom(int first, int last)
{
    return first == last ? QString::number(first) : u"%1-%2"_s.arg(first).arg(last);
}

// Entries of a chapter by their verses under the keys, none empty.
using ChapterEntries = std::map<int, QString>;

// The run of verses of one section and its mark-up.
struct Run
{
    int first = 0;
    QString markup;
};

std::vector<Run> runsOf(const ChapterEntries& entries)
{
    std::vector<Run> runs;
    for (const auto& [verse, markup] : entries)
        if (runs.empty() || runs.back().markup != markup)
            runs.push_back({verse, markup});
    return runs;
}

void addChapter(int book, int chapter, const ChapterEntries& entries, Commentary& commentary)
{
    static const QRegularExpression head(u"<hi type=\"bold\">\\s*(Verses?\\s[^<]*)</hi>"_s);
    const QString key = chapterKey(book, chapter);
    const std::vector<Run> runs = runsOf(entries);
    const int last = verseCount(Numbering::Korean, book, chapter);
    bool hasHeads = false;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const auto found = head.match(runs[i].markup);
        const int end = i + 1 < runs.size() ? runs[i + 1].first - 1 : last;
        const QString before =
            found.hasMatch() ? plainLines(runs[i].markup.left(found.capturedStart())) : QString();
        const QString text =
            plainLines(found.hasMatch() ? runs[i].markup.mid(found.capturedEnd()) : runs[i].markup);
        if (!before.isEmpty())
            commentary.chapters.push_back({key, {}, {}, before});
        const QString title = found.hasMatch() ? found.captured(1).simplified() + u'\n' : QString();
        if (text.isEmpty())
            continue;
        commentary.chapters.push_back({key, {}, {}, title + text});
        hasHeads = hasHeads || found.hasMatch();
        commentary.sections.push_back(
            {key,
             found.hasMatch() || runs.size() > 1 ? versesFrom(runs[i].first, end) : QString(),
             {},
             text});
    }
}

bool addSections(const QString& table, const std::vector<CommentarySection>& sections,
                 ModuleStore& store)
{
    store.createTable({table,
                       {textColumn(u"book"_s, 20), textColumn(u"verse"_s, 20),
                        memoColumn(u"Kcont"_s), memoColumn(u"cont"_s)},
                       {{u"book"_s, {u"book"_s}}}});
    return std::ranges::all_of(sections, [&](const CommentarySection& section) {
        return store.addRow(table,
                            {section.chapter, section.verses, scrambledOrNull(section.korean),
                             scrambledOrNull(section.english)});
    });
}

Result<ModuleReport> writeCommentary(const Commentary& commentary, ModuleStore& store)
{
    store.expect(commentary.sections.size() + commentary.chapters.size());
    if (!addSections(u"절별주석"_s, commentary.sections, store) ||
        !addSections(u"책별주석"_s, commentary.chapters, store))
        return Failure{FailureKind::Cancelled, {}};
    ModuleReport report;
    const QLocale korean(QLocale::Korean);
    report.facts << u"단락 %1"_s.arg(korean.toString(static_cast<int>(commentary.sections.size())));
    return report;
}

// Texts of the chapters of a commentary without verses.
using ChapterTexts = std::map<ChapterPlace, QStringList>;

Result<ModuleReport> writeWesley(const ChapterTexts& chapters, int notes, ModuleStore& store)
{
    const QString table = u"Wesley"_s;
    store.expect(chapters.size());
    store.createTable(
        {table,
         {textColumn(u"book"_s, 20), textColumn(u"Chap"_s, 20), memoColumn(u"cont"_s)},
         {{u"place"_s, {u"book"_s, u"Chap"_s}}}});
    for (const auto& [place, texts] : chapters)
        if (!store.addRow(table, {DES::ScrambleField(bookAbbreviation(place.book)),
                                  DES::ScrambleField(QString::number(place.chapter)),
                                  texts.join(u"\r\n"_s)}))
            return Failure{FailureKind::Cancelled, {}};
    ModuleReport report;
    report.facts << u"주석 %1"_s.arg(QLocale(QLocale::Korean).toString(notes));
    return report;
}

Failure badPlace(const QString& file, const QString& text)
{
    return sourceFailure(QFileInfo(file).fileName(), 0, u"성경에 없는 자리임: %1"_s.arg(text));
}

QString newLines(QString cell)
{
    return cell.replace(u"\\n"_s, u"\n"_s);
}

} // namespace

Commentary sectionsOf(const std::vector<CommentaryEntry>& entries)
{
    std::map<ChapterPlace, ChapterEntries> chapters;
    for (const CommentaryEntry& entry : entries)
        if (!entry.markup.trimmed().isEmpty())
            for (const VersePlace& place : koreanPlaces(entry.verse))
                chapters[{place.book, place.chapter}].emplace(place.verse, entry.markup);
    Commentary commentary;
    for (const auto& [place, verses] : chapters)
        addChapter(place.book, place.chapter, verses, commentary);
    return commentary;
}

Result<ModuleReport> fillMatthewHenry(const QString& folder, ModuleStore& store)
{
    const auto entries = readSwordCommentary(folder);
    if (!entries)
        return entries.failure();
    return writeCommentary(sectionsOf(entries.value()), store);
}

Result<ModuleReport> fillOwnCommentary(const QString& file, ModuleStore& store)
{
    const auto lines = readUserTable(file, {{u"장"_s, u"절"_s, u"한글"_s, u"영문"_s}, 3});
    if (!lines)
        return lines.failure();
    static const QRegularExpression range(u"^(\\d+(-\\d+)?)?$"_s);
    Commentary commentary;
    TableFaults faults(file);
    for (const TableLine& line : lines.value()) {
        const auto place = UserPlaces::chapter(line.cells[0]);
        if (!place)
            faults.add(line.number, u"성경에 없는 장임: %1"_s.arg(line.cells[0]));
        if (!range.match(line.cells[1]).hasMatch())
            faults.add(line.number, u"절이 \"3-5\", \"5\"나 빈칸이 아님: %1"_s.arg(line.cells[1]));
        const CommentarySection section{line.cells[0], line.cells[1], newLines(line.cells[2]),
                                        newLines(line.cells[3])};
        commentary.sections.push_back(section);
        commentary.chapters.push_back(section);
    }
    if (!faults.isEmpty())
        return faults.failure();
    return writeCommentary(commentary, store);
}

Result<ModuleReport> fillWesley(const QStringList& files, ModuleStore& store)
{
    ChapterTexts chapters;
    int notes = 0;
    for (const QString& file : files) {
        const auto document = readJsonFile(file);
        if (!document)
            return document.failure();
        const auto book = BookNames::fromEnglish(QFileInfo(file).completeBaseName());
        if (!book)
            return badPlace(file, QFileInfo(file).completeBaseName());
        // The numbers are the keys of objects, which come sorted as text.
        std::map<std::pair<int, int>, QString> verses;
        const QJsonObject all = document.value().object();
        for (auto chapter = all.begin(); chapter != all.end(); ++chapter) {
            const QJsonObject inChapter = chapter.value().toObject();
            for (auto verse = inChapter.begin(); verse != inChapter.end(); ++verse) {
                const VersePlace english{*book, chapter.key().toInt(), verse.key().toInt()};
                if (english.verse < 0 || english.chapter < 1 ||
                    english.chapter > chapterCount(*book))
                    return badPlace(file, chapter.key() + u':' + verse.key());
                const VersePlace place = koreanPlaces(english).front();
                for (const QJsonValue& note : verse.value().toArray())
                    verses[{place.chapter, place.verse}] +=
                        plainLines(note[u"html"_s].toString()) + u' ';
            }
        }
        for (const auto& [place, text] : verses) {
            const auto& [chapter, verse] = place;
            chapters[{*book, chapter}] << u"%1 %2"_s.arg(verse).arg(text.trimmed());
            ++notes;
        }
    }
    return writeWesley(chapters, notes, store);
}

Result<ModuleReport> fillOwnWesley(const QString& file, ModuleStore& store)
{
    const auto lines = readUserTable(file, {{u"장"_s, u"글"_s}, 2});
    if (!lines)
        return lines.failure();
    ChapterTexts chapters;
    TableFaults faults(file);
    for (const TableLine& line : lines.value()) {
        if (const auto place = UserPlaces::chapter(line.cells[0]))
            chapters[*place] << newLines(line.cells[1]).replace(u"\n"_s, u"\r\n"_s);
        else
            faults.add(line.number, u"성경에 없는 장임: %1"_s.arg(line.cells[0]));
    }
    if (!faults.isEmpty())
        return faults.failure();
    return writeWesley(chapters, static_cast<int>(lines.value().size()), store);
}

} // namespace lumen
