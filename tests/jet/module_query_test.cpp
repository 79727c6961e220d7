// SPDX-License-Identifier: GPL-2.0-or-later
// The queries on verse tables and reference modules: each is compared with a plain loop over the
// rows. Texts are stored scrambled, so that words become wildcards and quotes.
#include "jet/engine_fixture.h"
#include "text/field_scramble.h"
#include "text/query_literal.h"

#include <algorithm>
#include <random>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

/// The rows of a table as a test wrote them, to answer queries by a plain loop.
struct Sample
{
    TableSchema schema;
    std::vector<QVariantList> rows{};

    qsizetype column(const QString& name) const
    {
        for (std::size_t i = 0; i < schema.columns.size(); ++i)
            if (schema.columns[i].name.compare(name, Qt::CaseInsensitive) == 0)
                return static_cast<qsizetype>(i);
        qFatal("no column %s", qPrintable(name));
    }
};

/// One of these rows, its columns by name without regard to case.
struct Line
{
    const Sample* sample;
    const QVariantList* row;

    const QVariant& operator[](const QString& name) const { return (*row)[sample->column(name)]; }
};

using Condition = std::function<bool(const Line&)>;
using Less = std::function<bool(const Line&, const Line&)>;

Condition operator&&(const Condition& a, const Condition& b)
{
    return [a, b](const Line& line) { return a(line) && b(line); };
}

Condition operator||(const Condition& a, const Condition& b)
{
    return [a, b](const Line& line) { return a(line) || b(line); };
}

Condition operator!(const Condition& a)
{
    return [a](const Line& line) { return !a(line); };
}

Condition isNull(const QString& column)
{
    return [=](const Line& line) { return line[column].isNull(); };
}

// A comparison with Null is never true.

Condition is(const QString& column, const QString& whole)
{
    return !isNull(column) && [=](const Line& line) { return line[column].toString() == whole; };
}

Condition contains(const QString& column, const QString& part)
{
    return !isNull(column) &&
           [=](const Line& line) { return line[column].toString().contains(part); };
}

Condition begins(const QString& column, const QString& part)
{
    return !isNull(column) &&
           [=](const Line& line) { return line[column].toString().startsWith(part); };
}

Condition within(const QString& column, int first, int last)
{
    return [=](const Line& line) {
        return line[column].toInt() >= first && line[column].toInt() <= last;
    };
}

const Condition kAll = [](const Line&) { return true; };
const Condition kNone = !kAll;

/// The stored form of some of these holds [ ] * ? # ' and |.
const QStringList& words()
{
    static const QStringList list{u"말씀"_s, u"God"_s,   u"zeal"_s,  u"IB^"_s, u"FEB"_s,
                                  u"J{}"_s,  u"빛"_s,    u"b[c]"_s,  u"~|"_s,  u"fear"_s,
                                  u"it's"_s, u"50*?#"_s, u"하나님"_s};
    return list;
}

QString pattern(const QString& word)
{
    return EscapeLikeText(DES::ScrambleField(word), true);
}

TableSchema verseSchema(const QString& name, bool indexed)
{
    TableSchema schema{.name = name,
                       .columns = {{.name = u"index"_s, .size = 20},
                                   {.name = u"Chap"_s, .size = 20},
                                   {.name = u"Verse"_s, .type = FieldType::Short},
                                   {.name = u"Cont"_s, .type = FieldType::Memo},
                                   {.name = u"part"_s, .size = 50},
                                   {.name = u"Testa"_s, .size = 2},
                                   {.name = u"Category"_s, .size = 2}}};
    if (indexed)
        schema.indexes = {{u"index"_s, {u"index"_s}, true, false},
                          {u"Chap"_s, {u"Chap"_s}, false, false}};
    return schema;
}

QVariantList verseRow(int book, int chapter, int verse, std::mt19937& random)
{
    static const QStringList names{u"창"_s, u"시"_s, u"요"_s};
    static const QStringList numbers{u"01"_s, u"19"_s, u"43"_s};
    const auto upTo = [&random](qsizetype most) {
        return std::uniform_int_distribution<qsizetype>(0, most)(random);
    };
    const QString chap =
        u"%1%2:%3"_s.arg(numbers[book], names[book]).arg(chapter, 3, 10, QChar(u'0'));
    QStringList text;
    for (qsizetype n = upTo(6); n > 0; --n)
        text << words()[upTo(words().size() - 1)];
    const QVariant cont = upTo(20) == 0 ? QVariant() : DES::ScrambleField(text.join(u' '));
    const QVariant part = upTo(3) == 0 ? QVariant(u"1 "_s) : QVariant();
    return {u"%1:%2"_s.arg(chap).arg(verse, 3, 10, QChar(u'0')),
            chap,
            verse,
            cont,
            part,
            book < 2 ? u"구"_s : u"신"_s,
            book == 0   ? u"모"_s
            : book == 1 ? u"식"_s
                        : u"사"_s};
}

/// The same verses in three tables: in canon order with indexes, the same without an index, and in
/// an order of chance.
std::vector<Sample> verseTables()
{
    std::mt19937 random(7);
    std::vector<QVariantList> rows;
    for (int book = 0; book < 3; ++book)
        for (int chapter = 1; chapter <= 4; ++chapter)
            for (int verse = 1; verse <= 40; ++verse)
                rows.push_back(verseRow(book, chapter, verse, random));
    std::vector<Sample> tables{{verseSchema(u"개역한글"_s, true), rows},
                               {verseSchema(u"중국어 간체"_s, false), rows}};
    std::shuffle(rows.begin(), rows.end(), random);
    tables.push_back({verseSchema(u"섞인 순서"_s, true), rows});
    return tables;
}

Less by(const QString& column)
{
    return [column](const Line& a, const Line& b) {
        const QVariant& left = a[column];
        const QVariant& right = b[column];
        if (left.isNull() || right.isNull())
            return left.isNull() && !right.isNull();
        if (left.typeId() == QMetaType::QString)
            return left.toString().toUtf8() < right.toString().toUtf8();
        return left.toDouble() < right.toDouble();
    };
}

class ModuleQueryTest : public EngineTest
{
protected:
    struct Case
    {
        QString sql; ///< "<T>" stands for the table
        Condition test;
        Less order;
    };

    void write(const QString& file, const std::vector<Sample>& tables)
    {
        StoreWriter writer(path(file), StoreCompare::Binary);
        for (const Sample& table : tables) {
            writer.createTable(table.schema);
            for (const QVariantList& row : table.rows)
                writer.addRow(table.schema.name, row);
        }
        writer.commit();
        database = open(file);
    }

    /// Compares all columns of all records with the lines that pass, in stored order or sorted;
    /// ties stay in stored order.
    static void compare(Recordset& records, const Sample& table, const Condition& test,
                        const Less& order = {})
    {
        std::vector<Line> lines;
        for (const QVariantList& row : table.rows)
            if (const Line line{&table, &row}; test(line))
                lines.push_back(line);
        if (order)
            std::stable_sort(lines.begin(), lines.end(), order);
        ASSERT_EQ(records.RecordCount(), static_cast<int>(lines.size()));
        for (const Line& line : lines) {
            for (int i = 0; i < records.FieldCount(); ++i) {
                const QVariant value = records.Fields(i).Value();
                const QVariant& expected = line[records.Fields(i).Name()];
                ASSERT_EQ(value.isNull(), expected.isNull());
                ASSERT_EQ(value.toString(), expected.toString());
            }
            records.MoveNext();
        }
        EXPECT_TRUE(records.Eof());
    }

    void check(const Sample& table, const std::vector<Case>& cases)
    {
        for (const Case& entry : cases) {
            QString sql = entry.sql;
            sql.replace(u"<T>"_s, table.schema.name);
            SCOPED_TRACE(sql.toStdString());
            compare(*database->OpenRecordset(sql), table, entry.test, entry.order);
        }
    }

    std::unique_ptr<Database> database;
};

TEST_F(ModuleQueryTest, VersesAreFoundByPlace)
{
    const auto tables = verseTables();
    write(u"101.dts"_s, tables);
    const Condition inChapter = is(u"chap"_s, u"43요:003"_s);
    const Condition isVerse = is(u"index"_s, u"43요:003:016"_s);
    for (const Sample& table : tables)
        check(table,
              {
                  {u"select * from [<T>] where index like '43요:003:*' order by VERSE"_s, inChapter,
                   by(u"verse"_s)},
                  {u"select * from [<T>] where CHAP = '43요:003' order by VERSE"_s, inChapter,
                   by(u"verse"_s)},
                  {u"select * from [<T>] where CHAP like '43요:003' order by VERSE"_s, inChapter,
                   by(u"verse"_s)},
                  {u"select * from [<T>] where index = '43요:003:016'"_s, isVerse, {}},
                  {u"select cont, part from [<T>] where index like '43요:003:016'"_s, isVerse, {}},
                  {u"select chap from [<T>] where index like '43요:003:*'"_s, inChapter, {}},
                  {u"select * from [<T>] where index like '19시:002:*' and Verse >= 3 and Verse <= "
                   u"11 "
                   "order by index"_s,
                   is(u"chap"_s, u"19시:002"_s) && within(u"verse"_s, 3, 11), by(u"index"_s)},
                  {u"select * from [<T>] where index = '0'"_s, kNone, {}},
                  {u"SELECT\tverse\r\nFROM [<T>] WHERE\nindex='43요:003:016';"_s, isVerse, {}},
              });
    check(tables[0], {{u"select cont from 개역한글 where index like '43요:003:016'"_s, isVerse, {}},
                      {u"select * from 개역한글"_s, kAll, {}}});
    EXPECT_EQ(database->OpenRecordset(u"[중국어 간체]"_s)->RecordCount(), 480);
}

TEST_F(ModuleQueryTest, WordsAreFoundWhateverTheyBecomeWhenScrambled)
{
    const auto tables = verseTables();
    write(u"101.dts"_s, tables);
    for (const Sample& table : tables)
        for (const QString& word : words()) {
            const Condition has = contains(u"cont"_s, DES::ScrambleField(word));
            const QString criterion = u"(Cont like '*"_s + pattern(word) + u"*')"_s;
            const QString head = u"select Chap, Verse, Cont, index from [<T>] where "_s;
            check(table,
                  {{head + criterion + u" order by index"_s, has, by(u"index"_s)},
                   {head + criterion + u" and Testa = '구'  order by index"_s,
                    has && is(u"testa"_s, u"구"_s), by(u"index"_s)},
                   {head + criterion + u" and Category  = '사'  order by index"_s,
                    has && is(u"category"_s, u"사"_s), by(u"index"_s)},
                   {head + criterion +
                        u" and (index like '??창:*' or index like '??요:*')  order by index"_s,
                    has && !contains(u"index"_s, u"시"_s), by(u"index"_s)}});
        }
}

TEST_F(ModuleQueryTest, ConditionsJoinAndBeforeOr)
{
    const auto tables = verseTables();
    write(u"101.dts"_s, tables);
    const auto like = [](const QString& word) {
        return u"Cont like '*"_s + pattern(word) + u"*'"_s;
    };
    const QString head = u"select Chap, Verse, Cont, index from [<T>] where "_s;
    const QString god = like(u"God"_s);
    const QString fear = like(u"fear"_s);
    const QString light = like(u"빛"_s);
    const Condition a = contains(u"cont"_s, DES::ScrambleField(u"God"_s));
    const Condition b = contains(u"cont"_s, DES::ScrambleField(u"fear"_s));
    const Condition c = contains(u"cont"_s, DES::ScrambleField(u"빛"_s));
    const Condition isText = !isNull(u"cont"_s);
    check(tables[0],
          {{head + god + u"  AND  "_s + fear + u" order by index"_s, a && b, by(u"index"_s)},
           {head + u"("_s + god + u" AND "_s + fear + u") OR ("_s + light + u") order by index"_s,
            (a && b) || c, by(u"index"_s)},
           {head + light + u" or "_s + god + u" and "_s + fear, c || (a && b), {}},
           {head + u"not "_s + god + u" and "_s + fear, !a && b, {}},
           {head + u"Cont not like '*"_s + pattern(u"God"_s) + u"*'"_s, !a && isText, {}},
           {head + u"Cont like '**'"_s, isText, {}},
           {head + u"(Cont like '**')  order by index"_s, isText, by(u"index"_s)},
           {head + u"Cont is null order by index desc"_s, !isText,
            [](const Line& x, const Line& y) { return by(u"index"_s)(y, x); }},
           {head + u"part is not null and verse like '1?'"_s,
            !isNull(u"part"_s) && within(u"verse"_s, 10, 19),
            {}}});
    // The order puts Null first and ties in stored order.
    for (const Sample& table : tables)
        check(table, {{u"select * from [<T>] order by part"_s, kAll, by(u"part"_s)},
                      {u"select * from [<T>] order by cont"_s, kAll, by(u"cont"_s)},
                      {u"select * from [<T>] order by verse"_s, kAll, by(u"verse"_s)},
                      {u"select * from [<T>] where verse > 5 order by index"_s,
                       within(u"verse"_s, 6, 99), by(u"index"_s)}});
}

TEST_F(ModuleQueryTest, LongChainsOfConditionsAreNoLimit)
{
    const auto tables = verseTables();
    write(u"101.dts"_s, tables);
    QStringList parts;
    for (int i = 0; i < 3000; ++i)
        parts << u"verse = %1"_s.arg(i);
    check(tables[0], {{u"select * from [<T>] where "_s + parts.join(u" or "_s), kAll, {}}});
    const QString deep = QString(5000, u'(') + u"verse = 1"_s + QString(5000, u')');
    EXPECT_EQ(errorOf([&] { database->OpenRecordset(u"select * from 개역한글 where "_s + deep); }),
              3075);
    EXPECT_EQ(errorOf([&] {
                  database->OpenRecordset(u"select * from 개역한글 where "_s +
                                          u"not "_s.repeated(100000) + u"verse = 1"_s);
              }),
              3075);
}

TEST_F(ModuleQueryTest, PrefixesReachToTheLastCharacterOfEachPlane)
{
    Sample table{{.name = u"w"_s,
                  .columns = {{.name = u"word"_s, .size = 20}},
                  .indexes = {{u"word"_s, {u"word"_s}, false, false}}}};
    const QStringList prefixes{u"힣"_s, u"\uD7FF"_s, u"\uFFFF"_s, u"\U0010FFFF"_s, u"a"_s};
    for (const QString& prefix : prefixes)
        for (const QString& rest : {u""_s, u"a"_s, u"\uFFFF"_s, u"\U0010FFFF"_s, u"\uE000"_s})
            table.rows.push_back({prefix + rest});
    table.rows.push_back({u"\uD7A4"_s});
    table.rows.push_back({u"\uE000"_s});
    table.rows.push_back({u"A"_s});
    write(u"101c.dts"_s, {table});
    for (const QString& prefix : prefixes)
        check(table, {{u"select * from <T> where word like '%1*'"_s.arg(prefix),
                       begins(u"word"_s, prefix),
                       {}},
                      {u"select * from <T> where word like '%1?*'"_s.arg(prefix),
                       begins(u"word"_s, prefix) && !is(u"word"_s, prefix),
                       {}}});
}

TEST_F(ModuleQueryTest, ReferencesAndAnalysesAreFoundByPlaceAndNumber)
{
    Sample refs{{.name = u"cref"_s,
                 .columns = {{.name = u"chap"_s, .size = 20},
                             {.name = u"verse"_s, .type = FieldType::Short},
                             {.name = u"cref"_s, .type = FieldType::Memo}},
                 .indexes = {{u"place"_s, {u"chap"_s, u"verse"_s}, false, false}}}};
    Sample analysis{{.name = u"원전분해"_s,
                     .columns = {{.name = u"chap"_s, .size = 20},
                                 {.name = u"verse"_s, .type = FieldType::Short},
                                 {.name = u"Lang"_s, .size = 1},
                                 {.name = u"Num"_s, .type = FieldType::Long},
                                 {.name = u"book"_s, .size = 30}},
                     .indexes = {{u"place"_s, {u"chap"_s, u"verse"_s}, false, false}}}};
    const QStringList languages{u"h"_s, u"g"_s, u"s"_s, u"H"_s};
    for (int i = 0; i < 2000; ++i) {
        const QString chap = u"43요:%1"_s.arg(i % 9, 3, 10, QChar(u'0'));
        refs.rows.push_back({chap, i % 7, u"r%1"_s.arg(i)});
        analysis.rows.push_back(
            {chap, i % 7, languages[i % 4], i, i % 5 == 0 ? QVariant() : u"b %1"_s.arg(i % 11)});
    }
    write(u"z101.dts"_s, {refs, analysis});
    const Condition here = is(u"chap"_s, u"43요:003"_s) && within(u"verse"_s, 5, 5);
    check(refs, {{u"select cref from cref where chap = '43요:003' and verse = 5"_s, here, {}}});
    check(
        analysis,
        {{u"select * from <T> where chap = '43요:003' and verse = 5"_s, here, {}},
         {u"select * from <T> where Num = 77"_s, within(u"num"_s, 77, 77), {}},
         // A text beside a number counts as the number that it is.
         {u"select * from <T> where Num = '77' or '78' = num"_s, within(u"num"_s, 77, 78), {}},
         {u"select * from <T> where num = 'x'"_s, kNone, {}},
         {u"select * from <T> where chap > 1"_s, kNone, {}},
         {u"select * from <T> where book like 'b 3' and Chap like '43요:00[12]'"_s,
          is(u"book"_s, u"b 3"_s) && (is(u"chap"_s, u"43요:001"_s) || is(u"chap"_s, u"43요:002"_s)),
          {}}});

    const auto whole =
        database->OpenRecordset(u"select * from 원전분해 where chap = '43요:003' and verse = 5"_s);
    for (const QString& language : languages) {
        whole->setFilter(u"Lang = '"_s + language + u"'"_s);
        compare(*whole->OpenRecordset(), analysis, here && is(u"lang"_s, language));
    }
}

TEST_F(ModuleQueryTest, FaultyQueriesTellWhatIsWrong)
{
    write(u"101.dts"_s, verseTables());
    struct Row
    {
        QString sql;
        int error;
    };
    const Row rows[] = {
        {u"없는표"_s, 3078},
        {u"select * from 없는표"_s, 3078},
        {u"select 개역한글2.verse from 개역한글"_s, 3078},
        {u"select 없는열 from 개역한글"_s, 3061},
        {u"select * from 개역한글 where 없는열 = 1"_s, 3061},
        {u"select * from 개역한글 where verse = \"x"_s, 3075},
        {u"select * from 개역한글 where index = 'x"_s, 3075},
        {u"select * from 개역한글 where"_s, 3075},
        {u"select * from 개역한글 where verse = 1 verse"_s, 3075},
        {u"select * from 개역한글 where (verse = 1"_s, 3075},
        {u"select * from 개역한글 where verse = 1a"_s, 3075},
        {u"select * from 개역한글 where verse = #2023-02-30#"_s, 3075},
        {u"select * from 개역한글 where Left(index) = 1"_s, 3075},
        {u"select * from 개역한글 where verse ! 1"_s, 3075},
        {u"select , from 개역한글"_s, 3075},
        {u"select * 개역한글"_s, 3075},
        {u"select * from 개역한글 order verse"_s, 3075},
        {u"select * from [중국어 간체 where verse = 1"_s, 3126},
        {u"select * from []"_s, 3126},
        {u"select * from"_s, 3131},
        {u"select * from 중국어 간체"_s, 3131},
        {u"select * from 개역한글, cref"_s, 3131},
        {u"select * from 개역한글 where index like '[a'"_s, 93},
        {u"select * from 개역한글 where verse = 99 and index like '[b-a]'"_s, 93},
        {u"select * from 개역한글 where index like '[' & cont"_s, 93},
        {u"delete * from 개역한글"_s, 3001},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.sql.toStdString());
        EXPECT_EQ(errorOf([&] { database->OpenRecordset(row.sql); }), row.error);
    }
    EXPECT_EQ(errorOf([&] { database->Execute(u"delete * from 개역한글"_s); }), 3027);
}

} // namespace

} // namespace lumen
