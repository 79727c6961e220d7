// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/cross_references.h"

#include "canon/canon_table.h"
#include "check/verse_counts.h"
#include "sources/book_names.h"
#include "sources/fault_texts.h"
#include "sources/key_places.h"
#include "sources/user_places.h"
#include "sources/user_table.h"
#include "sources/version_text.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

PlaceOrder orderOf(const VersePlace& place)
{
    return {place.book, place.chapter, place.verse};
}

bool inCanon(const VersePlace& place)
{
    return place.verse >= 1 &&
           place.verse <= verseCount(Numbering::Korean, place.book, place.chapter);
}

QString shortReference(const PlaceOrder& place)
{
    const auto& [book, chapter, verse] = place;
    return u"%1%2:%3"_s.arg(bookAbbreviation(book)).arg(chapter).arg(verse);
}

// "exo 20:11"
std::optional<VersePlace> parseReference(const QString& text)
{
    static const QRegularExpression form(u"^(\\w{3}) (\\d+):(\\d+)$"_s);
    const auto match = form.match(text);
    const auto book = BookNames::fromUsfm(match.captured(1));
    if (!match.hasMatch() || !book)
        return std::nullopt;
    return VersePlace{*book, match.captured(2).toInt(), match.captured(3).toInt()};
}

// The script assigns one object of lists, whose plain names JSON wants quoted.
Result<QJsonObject> readObject(const QString& file)
{
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
        return missingSource(file);
    const QString script = QString::fromUtf8(device.readAll());
    const qsizetype begin = script.indexOf(u'{');
    const qsizetype end = script.indexOf(u"}, c = ["_s);
    if (begin < 0 || end < begin)
        return sourceFailure(file, 0, u"관주의 목록이 없음"_s);
    QString object = script.mid(begin, end + 1 - begin);
    static const QRegularExpression bareName(u"([{,]\\s*)([a-z][a-z0-9]*)\\s*:"_s);
    object.replace(bareName, u"\\1\"\\2\":"_s);
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(object.toUtf8(), &error);
    if (!document.isObject())
        return sourceFailure(file, 0, faultText(error));
    return document.object();
}

class ReferenceCollector
{
public:
    void addBook(int book, const QJsonArray& chapters);
    CrossReferences take() { return std::move(m_result); }

private:
    void addVerse(const VersePlace& source, const QJsonArray& references);

    CrossReferences m_result;
};

// The first item of each list is a name or a number, so that chapters and verses count from 1.
void ReferenceCollector::addBook(int book, const QJsonArray& chapters)
{
    for (qsizetype chapter = 1; chapter < chapters.size(); ++chapter) {
        const QJsonArray verses = chapters[chapter].toArray();
        for (qsizetype verse = 1; verse < verses.size(); ++verse)
            addVerse({book, static_cast<int>(chapter), static_cast<int>(verse)},
                     verses[verse].toArray());
    }
}

void ReferenceCollector::addVerse(const VersePlace& source, const QJsonArray& references)
{
    for (const QJsonValue& value : references) {
        const auto english = parseReference(value.toString());
        const VersePlace target = english ? koreanPlace(*english, 1) : VersePlace{};
        for (const VersePlace& place : koreanPlaces(source)) {
            if (!english || !inCanon(target) || !inCanon(place))
                ++m_result.outside;
            else if (!(place == target))
                m_result.targets[orderOf(place)].insert(orderOf(target));
        }
    }
}

QString joinedReferences(const std::set<PlaceOrder>& targets)
{
    QStringList references;
    for (const PlaceOrder& target : targets)
        references << shortReference(target);
    return references.join(u';');
}

Result<ModuleReport> writeReferences(const CrossReferences& references, ModuleStore& store)
{
    const QString table = u"cref"_s;
    store.createTable(
        {table,
         {textColumn(u"chap"_s, 10), {u"verse"_s, FieldType::Short}, memoColumn(u"cref"_s)},
         {{u"place"_s, {u"chap"_s, u"verse"_s}}}});
    store.expect(references.targets.size());
    std::size_t count = 0;
    for (const auto& [place, targets] : references.targets) {
        const auto& [book, chapter, verse] = place;
        count += targets.size();
        if (!store.addRow(table, {BibleCode::GetChapKey(book, chapter), verse,
                                  scrambledOrNull(joinedReferences(targets))}))
            return Failure{FailureKind::Cancelled, {}};
    }
    ModuleReport report;
    report.facts << u"관주 %1"_s.arg(count);
    if (references.outside > 0)
        report.details << u"정경에 없는 곳을 가리켜 뺀 관주: %1"_s.arg(references.outside);
    return report;
}

} // namespace

Result<CrossReferences> readCrossReferences(const QString& file)
{
    const auto object = readObject(file);
    if (!object)
        return object.failure();
    ReferenceCollector collector;
    const QJsonObject& books = object.value();
    for (auto book = books.begin(); book != books.end(); ++book)
        if (const auto number = BookNames::fromUsfm(book.key()))
            collector.addBook(*number, book.value().toArray());
    CrossReferences result = collector.take();
    if (result.targets.empty())
        return sourceFailure(file, 0, u"관주가 하나도 없음"_s);
    return result;
}

Result<ModuleReport> fillCrossReferences(const QString& file, ModuleStore& store)
{
    const auto references = readCrossReferences(file);
    return references ? writeReferences(references.value(), store) : references.failure();
}

Result<ModuleReport> fillOwnCrossReferences(const QString& file, ModuleStore& store)
{
    const auto lines = readUserTable(file, {{u"절"_s, u"관주"_s}, 2});
    if (!lines)
        return lines.failure();
    TableFaults faults(file);
    CrossReferences references;
    const auto placeOf = [&faults](int line, const QString& text) {
        if (!UserPlaces::verseKey(text))
            faults.add(line, u"성경에 없는 절임: %1"_s.arg(text));
        return orderOf(BibleCode::ParseRef(text));
    };
    for (const TableLine& line : lines.value())
        for (const QString& target : UserPlaces::parts(line.cells[1]))
            references.targets[placeOf(line.number, line.cells[0])].insert(
                placeOf(line.number, target));
    if (!faults.isEmpty())
        return faults.failure();
    return writeReferences(references, store);
}

} // namespace lumen
