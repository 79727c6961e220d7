// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/hymnal.h"

#include "reference/tunes.h"
#include "sources/user_places.h"
#include "sources/user_table.h"
#include "text/field_scramble.h"

#include <map>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kLastNumber = 558;

enum Column { Number, Title, Writer, Composer, Category, Related, Verses, Words, ColumnCount };

using HymnLines = std::map<int, TableLine>;

// The words as they are shown, their lines and stanzas divided.
QString wordsOf(const QString& cell)
{
    QStringList stanzas = cell.split(u"//"_s);
    for (QString& stanza : stanzas) {
        QStringList lines = stanza.split(u'/');
        for (QString& line : lines)
            line = line.trimmed();
        stanza = lines.join(u"\r\n"_s);
    }
    return stanzas.join(u"\r\n\r\n"_s);
}

HymnLines byNumber(const std::vector<TableLine>& lines, TableFaults& faults)
{
    HymnLines hymns;
    for (const TableLine& line : lines) {
        bool isNumber = false;
        const int number = line.cells[Number].toInt(&isNumber);
        if (!isNumber || number < 1 || number > kLastNumber)
            faults.add(line.number, u"장이 1부터 %1까지의 수가 아님: %2"_s.arg(
                                        QString::number(kLastNumber), line.cells[Number]));
        else if (!hymns.emplace(number, line).second)
            faults.add(line.number, u"%1장이 앞에도 있음"_s.arg(number));
        if (line.cells[Title].isEmpty())
            faults.add(line.number, u"제목이 없음"_s);
    }
    return hymns;
}

void checkLists(const HymnLines& hymns, TableFaults& faults)
{
    for (const auto& [number, line] : hymns) {
        for (const QString& related : UserPlaces::parts(line.cells[Related]))
            if (!hymns.contains(related.toInt()))
                faults.add(line.number, u"관련 찬송이 없음: %1"_s.arg(related));
        for (const QString& verse : UserPlaces::parts(line.cells[Verses]))
            if (!UserPlaces::exists(verse))
                faults.add(line.number, u"관련 성구가 없음: %1"_s.arg(verse));
    }
}

// How many tunes there are.
Result<std::size_t> checkTunes(const QString& file, const HymnLines& hymns)
{
    if (file.isEmpty())
        return std::size_t(0);
    const auto tunes = readTunes(file);
    if (!tunes)
        return tunes.failure();
    TableFaults faults(file);
    for (const auto& [number, tune] : tunes.value())
        if (!hymns.contains(number))
            faults.add(tune.line, u"찬송가에 없는 장: %1"_s.arg(number));
    if (!faults.isEmpty())
        return faults.failure();
    return tunes.value().size();
}

bool addHymns(const HymnLines& hymns, ModuleStore& store)
{
    const QString table = u"Hymm"_s;
    store.createTable({table,
                       {{u"Num"_s, FieldType::Short},
                        memoColumn(u"Title"_s),
                        memoColumn(u"cont"_s),
                        memoColumn(u"Writer"_s),
                        memoColumn(u"Composer"_s),
                        memoColumn(u"Category"_s),
                        memoColumn(u"SongRef"_s),
                        memoColumn(u"BibleRef"_s)},
                       {{u"number"_s, {u"Num"_s}}}});
    store.expect(hymns.size());
    for (const auto& [number, line] : hymns) {
        const auto text = [&line](Column column) { return scrambledOrNull(line.cells[column]); };
        // A hymn whose words are Null isn't shown at all.
        const QVariant words = DES::ScrambleField(wordsOf(line.cells[Words]));
        if (!store.addRow(table, {number, text(Title), words, text(Writer), text(Composer),
                                  text(Category), text(Related), text(Verses)}))
            return false;
    }
    return true;
}

} // namespace

Result<ModuleReport> fillHymnal(const HymnalTables& tables, ModuleStore& store)
{
    const auto lines =
        readUserTable(tables.hymns, {{u"장"_s, u"제목"_s, u"작사"_s, u"작곡"_s, u"분류"_s,
                                      u"관련 찬송"_s, u"관련 성구"_s, u"가사"_s},
                                     2});
    if (!lines)
        return lines.failure();
    TableFaults faults(tables.hymns);
    const HymnLines hymns = byNumber(lines.value(), faults);
    checkLists(hymns, faults);
    if (!faults.isEmpty())
        return faults.failure();
    const auto tunes = checkTunes(tables.tunes, hymns);
    if (!tunes)
        return tunes.failure();
    if (!addHymns(hymns, store))
        return Failure{FailureKind::Cancelled, {}};
    ModuleReport report;
    report.facts << u"가락 %1"_s.arg(tunes.value());
    return report;
}

} // namespace lumen
