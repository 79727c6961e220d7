// SPDX-License-Identifier: GPL-2.0-or-later
#include "import/import_fixture.h"
#include "import/jet_conversion.h"
#include "import/jet_file_reader.h"
#include "jet/engine.h"
#include "jet/import/jet_header.h"
#include "jet/store/store_inspection.h"

#include <QFileInfo>
#include <QtEndian>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kCorruptions = 50;

struct ReadTable
{
    TableSchema schema;
    QList<QVariantList> rows;

    QVariant at(int row, const QString& column) const
    {
        for (size_t i = 0; i < schema.columns.size(); ++i)
            if (schema.columns[i].name == column)
                return rows.value(row).value(static_cast<qsizetype>(i), u"no such column"_s);
        return u"no such column"_s;
    }
    /// The values that are not Null, a row on each line.
    QString text() const
    {
        QStringList lines;
        for (const QVariantList& row : rows) {
            QStringList values;
            for (const QVariant& value : row)
                if (!value.isNull())
                    values << value.toString();
            lines << values.join(u' ');
        }
        return lines.join(u" / "_s);
    }
};

class JetSampleContentTest : public JetSampleTest
{
protected:
    /// Reads a sample with the reader alone; the faults must be none.
    QList<ReadTable> readSample(const QString& name) const
    {
        const auto header = readJetHeader(readDatabaseHead(sample(name)));
        const auto reader = header ? JetFileReader::open(sample(name), *header) : nullptr;
        QList<ReadTable> tables;
        if (!reader) {
            ADD_FAILURE() << qPrintable(name) << " can't be read";
            return tables;
        }
        for (const TableSchema& schema : reader->tables()) {
            tables << ReadTable{schema, {}};
            reader->readRows(schema.name, [&tables](const QVariantList& row) {
                tables.last().rows << row;
                return true;
            });
        }
        const JetFaults& faults = reader->faults();
        EXPECT_EQ(faults.rows + faults.absentRows + faults.values + faults.missingPages +
                      faults.strangePages,
                  0);
        EXPECT_EQ(faults.tables, QStringList());
        return tables;
    }
    ReadTable onlyTable(const QString& name) const
    {
        const QList<ReadTable> tables = readSample(name);
        EXPECT_EQ(tables.size(), 1) << qPrintable(name);
        return tables.value(0);
    }
};

QString indexText(const TableSchema& schema)
{
    QStringList texts;
    for (const IndexDef& index : schema.indexes)
        texts << u"%1%2%3(%4)"_s.arg(index.name, index.primary ? u" primary"_s : QString(),
                                     index.unique ? u" unique"_s : QString(),
                                     index.columns.join(u','));
    return texts.join(u"; "_s);
}

TEST_F(JetSampleContentTest, ColumnsAndValuesOfEveryTypeOfJet3)
{
    const QList<ReadTable> tables = readSample(u"jet3-types.mdb"_s);
    ASSERT_EQ(tables.size(), 4);
    const ReadTable& table = tables[0];
    ASSERT_EQ(table.rows.size(), 2);
    EXPECT_EQ(table.text(), u"a b 0 0 0 0 29932 0 0 / "
                            "abcdefg hijklmnop 2 222 333333333 444.555 27293 3.5 -1"_s);
    QStringList columns;
    for (const ColumnDef& column : table.schema.columns)
        columns
            << u"%1:%2:%3"_s.arg(column.name).arg(static_cast<int>(column.type)).arg(column.size);
    const auto type = [](FieldType t) { return static_cast<int>(t); };
    EXPECT_EQ(
        columns,
        (QStringList{
            u"A:%1:50"_s.arg(type(FieldType::Text)), u"B:%1:100"_s.arg(type(FieldType::Text)),
            u"C:%1:0"_s.arg(type(FieldType::Byte)), u"D:%1:0"_s.arg(type(FieldType::Short)),
            u"E:%1:0"_s.arg(type(FieldType::Long)), u"F:%1:0"_s.arg(type(FieldType::Double)),
            u"G:%1:0"_s.arg(type(FieldType::Date)), u"H:%1:0"_s.arg(type(FieldType::Currency)),
            u"I:%1:0"_s.arg(type(FieldType::Boolean))}));
    EXPECT_EQ(indexText(table.schema), u"B(B); PrimaryKey primary unique(A)"_s);
    EXPECT_EQ(tables[1].schema.columns.size(), 89U);
    EXPECT_TRUE(tables[2].schema.columns[0].autonumber);
    EXPECT_EQ(tables[3].schema.columns[1].type, FieldType::Guid);
    EXPECT_EQ(tables[1].rows.size() + tables[2].rows.size() + tables[3].rows.size(), 0);
}

TEST_F(JetSampleContentTest, DeletedAndMovedRowsComeOutOnceAndInPlace)
{
    EXPECT_EQ(onlyTable(u"jet3-deleted-rows.mdb"_s).text(), u"z y / v u"_s);
    EXPECT_EQ(onlyTable(u"jet4-overflow-rows.mdb"_s).text(),
              u"row1col1 / row2col1 row2col3 / row3col3 row3col9 / row4col1 row4col2 / "
              "row5col2 / row6col2 row6col3 / row7col1 row7col7"_s);
}

TEST_F(JetSampleContentTest, EncodedFilesAreDecoded)
{
    for (const QString& name : {u"jet3-encoded.mdb"_s, u"jet4-encoded.mdb"_s}) {
        SCOPED_TRACE(qPrintable(name));
        EXPECT_EQ(onlyTable(name).text(), u"1 hello 0 / 2 world 42"_s);
    }
}

TEST_F(JetSampleContentTest, KoreanTextOfJet3IsOfCodePage949)
{
    const ReadTable table = onlyTable(u"jet3-korean-password.dts"_s);
    EXPECT_EQ(table.schema.name, u"설교AB"_s);
    EXPECT_EQ(table.schema.columns[0].name, u"제목AB"_s);
    EXPECT_EQ(table.text(), u"똠힝"_s) << "the first lies outside the common set";
}

TEST_F(JetSampleContentTest, TextOfJet4IsWholeWhetherCompressedOrNot)
{
    const ReadTable table = onlyTable(u"jet4-unicode-compression.mdb"_s);
    ASSERT_EQ(table.rows.size(), 8);
    const auto text = [&table](int row) { return table.at(row, u"Unicode"_s).toString(); };
    EXPECT_EQ(text(0), u"only ascii chars"_s);
    EXPECT_EQ(text(1), u"ääkkösiä"_s);
    EXPECT_EQ(text(2), u"Мир"_s);
    EXPECT_EQ(text(3), u"ϰαὶ τ\u1F79τ' ἐγὼ Κ\u1F7Bϰλωπα"_s);
    EXPECT_EQ(text(4), u"漢字仮名交じり文"_s);
    QString allBytes;
    for (char16_t unit = 1; unit <= 255; ++unit)
        allBytes += QChar(unit);
    EXPECT_EQ(text(7), allBytes);
}

TEST_F(JetSampleContentTest, KoreanTypesKeepNullEmptyLongAndExtremeValues)
{
    const ReadTable table = onlyTable(u"jet4-korean-types.mdb"_s);
    ASSERT_EQ(table.rows.size(), 5);
    const auto column = [&table](const QString& name) {
        QVariantList values;
        for (int row = 0; row < table.rows.size(); ++row)
            values << table.at(row, name);
        return values;
    };
    EXPECT_EQ(column(u"일련번호"_s), (QVariantList{1, 2, 4, 5, 6}));
    EXPECT_EQ(table.at(1, u"제목"_s), QVariant(u""_s));
    EXPECT_TRUE(table.at(1, u"rtf제목"_s).isNull());
    EXPECT_EQ(table.at(3, u"제목"_s).toString(), u"emoji 😀 漢字 Ａ ㄱ"_s);
    const QString memo = table.at(0, u"본문"_s).toString();
    EXPECT_EQ(memo.size(), 124'890);
    EXPECT_TRUE(memo.startsWith(u"가나다라마바사 0\r\n가나다라마바사 1\r\n"_s));
    const QVariantList days = column(u"설교일"_s);
    EXPECT_DOUBLE_EQ(days[1].toDouble(), 36525 + 86399.0 / 86400);
    EXPECT_EQ(days[2].toDouble(), -18259.25) << "1850-01-02 06:00: the time counts away from zero";
    EXPECT_EQ(days[3].toDouble(), 2958465) << "9999-12-31";
    EXPECT_TRUE(days[4].isNull());
    EXPECT_EQ(table.at(2, u"금액"_s).toString(), u"-922337203685477.5808"_s);
    EXPECT_EQ(table.at(3, u"금액"_s).toDouble(), 0.0001);
    EXPECT_EQ(column(u"확인"_s), (QVariantList{-1, 0, -1, -1, 0}));
}

TEST_F(JetSampleContentTest, ADecimalHasItsPointWhereItsColumnPutsIt)
{
    // A text column and one of its texts become a decimal of 18 digits, two behind the point.
    QByteArray bytes = fileBytes(sample(u"jet4-korean-types.mdb"_s));
    const qsizetype column = bytes.indexOf(QByteArray::fromHex("0a590600000100000001000904"));
    const QString title = u"emoji 😀 漢字 Ａ ㄱ"_s;
    const qsizetype text =
        bytes.indexOf(QByteArray(reinterpret_cast<const char*>(title.utf16()), title.size() * 2));
    ASSERT_TRUE(column > 0 && text > 0);
    bytes[column] = 0x10;
    bytes[column + 11] = 18;
    bytes[column + 12] = 2;
    QByteArray number(17, '\0');
    number[0] = '\x80';
    qToLittleEndian<quint32>(12345, number.data() + 13);
    bytes.replace(text, number.size(), number);
    writeBytes(dataFile(u"decimal.mdb"_s), bytes);
    const auto header = readJetHeader(readDatabaseHead(dataFile(u"decimal.mdb"_s)));
    const auto reader = JetFileReader::open(dataFile(u"decimal.mdb"_s), *header);
    QVariantList row;
    reader->readRows(u"설교"_s, [&row](const QVariantList& values) {
        row = values.value(0) == 5 ? values : row;
        return true;
    });
    EXPECT_EQ(row.value(1).toString(), u"-123.45"_s);
}

TEST_F(JetSampleContentTest, TheRecordsOfAUserComeOutWhole)
{
    const ReadTable notes = onlyTable(u"myc-made.mdb"_s);
    EXPECT_EQ(notes.rows.size(), 6);
    EXPECT_EQ(notes.at(1, u"note"_s).toString(), u"빛을 말하는 세 절\r\n둘째 줄 'q' | [x] *"_s);

    const ReadTable sermons = onlyTable(u"sermons-small-made.mdb"_s);
    ASSERT_EQ(sermons.rows.size(), 12);
    EXPECT_EQ(sermons.schema.columns.size(), 14U);
    EXPECT_TRUE(sermons.at(2, u"기도"_s).isNull());
    EXPECT_FALSE(sermons.at(2, u"rtf기도"_s).isNull());
    EXPECT_TRUE(sermons.at(3, u"rtf기도"_s).isNull());
    EXPECT_TRUE(sermons.at(4, u"작성일"_s).isNull());
    EXPECT_TRUE(sermons.at(0, u"rtf본문"_s).toString().startsWith(u"{\\rtf1\\ansi\\ansicpg949"_s));
}

using JetSampleImportTest = JetSampleTest;

TEST_F(JetSampleImportTest, PasswordsOpenTheirFilesAndNothingElseDoes)
{
    const QList<std::pair<QString, QString>> cases{
        {u"jet3-korean-password.dts"_s, u"qolvetrinam"_s},
        {u"jet4-module-password.dts"_s, u"qolvetrinam"_s},
        {u"jet4-password.mdb"_s, u"password"_s}};
    for (const auto& [name, password] : cases) {
        SCOPED_TRACE(qPrintable(name));
        const QString path = placeSample(name, name);
        const QByteArray before = fileBytes(path);
        for (const QString& wrong :
             {QString(), u"Password"_s, password + u'x', password.chopped(1)})
            EXPECT_EQ(openingError(path, wrong), ErrorNumber::kWrongPassword) << qPrintable(wrong);
        EXPECT_EQ(fileBytes(path), before);
        EXPECT_EQ(filesLeft().size(), 1);

        const StoreInspection store = inspectStore(opened(path, password));
        EXPECT_TRUE(store.hasPassword);
        EXPECT_TRUE(store.isOurs);
        EXPECT_TRUE(store.origin.startsWith(u"jet"_s)) << qPrintable(store.origin);
        QFile::remove(path);
        QFile::remove(path + u".jet"_s);
        QDir(options.cacheFolder).removeRecursively();
    }
}

TEST_F(JetSampleImportTest, AModuleKeepsItsOrderItsNullsAndItsKeys)
{
    const QString path = placeSample(u"jet4-module-password.dts"_s, u"201.dts"_s);
    const QString store = opened(path, u"qolvetrinam"_s);
    QStringList keys;
    QStringList nulls;
    readColumnPair(store, u"KJV"_s, u"index"_s, u"Cont"_s,
                   [&](const QString& key, const QString& text) {
                       keys << key;
                       if (text.isNull())
                           nulls << key;
                   });
    EXPECT_EQ(keys.size(), 165);
    EXPECT_TRUE(std::is_sorted(keys.begin(), keys.end()));
    EXPECT_EQ(nulls, QStringList{u"43요:003:020"_s});
    EXPECT_EQ(inspectStore(store).compare, u"binary"_s);
}

TEST_F(JetSampleImportTest, AUserDatabaseIsTakenOverInPlace)
{
    const QString path = placeSample(u"sermons-small-made.mdb"_s, u"설교매니저.mdb"_s);
    const QByteArray original = fileBytes(path);
    EXPECT_EQ(opened(path), path);
    EXPECT_EQ(fileBytes(path + u".jet"_s), original);
    const StoreInspection store = inspectStore(path);
    ASSERT_EQ(store.tables.size(), 1);
    EXPECT_EQ(store.tables[0].name, u"설교"_s);
    EXPECT_EQ(store.tables[0].rows, 12);
    EXPECT_EQ(store.compare, u"text"_s);
    EXPECT_FALSE(store.hasPassword);
    EXPECT_EQ(filesLeft().size(), 2);
}

TEST_F(JetSampleImportTest, NewRecordsAreNumberedWhereTheFileNumbersThem)
{
    // The notes have no key; their long column becomes an autonumber by a bit of its definition.
    QByteArray bytes = fileBytes(sample(u"myc-made.mdb"_s));
    constexpr qsizetype kFlagsOfSeq = 0x18067;
    ASSERT_EQ(bytes[kFlagsOfSeq], 3);
    bytes[kFlagsOfSeq] = 7;
    const QString path = dataFile(u"myc.mdb"_s);
    writeBytes(path, bytes);
    const NativePaths paths;
    JetEngine engine(paths, filePolicy, options);
    const auto database = engine.OpenDatabase(path);
    const auto notes = database->OpenRecordset(u"select * from myc order by seq desc"_s);
    const int highest = Number(notes->Fields(u"seq"));
    notes->AddNew();
    notes->Fields(u"Index").setValue(u"창1"_s);
    notes->Update();
    notes->setBookmark(notes->LastModified());
    EXPECT_EQ(Number(notes->Fields(u"seq")), highest + 1);
    EXPECT_EQ(notes->RecordCount(), 7);
}

TEST_F(JetSampleImportTest, FilesCutAtAnyPlaceAreRefused)
{
    for (const QString& name : {u"jet4-korean-types.mdb"_s, u"jet3-types.mdb"_s}) {
        const QByteArray whole = fileBytes(sample(name));
        for (const qsizetype length :
             {qsizetype{0x80}, qsizetype{4096}, qsizetype{10'000}, whole.size() / 2}) {
            SCOPED_TRACE(testing::Message() << qPrintable(name) << " cut to " << length);
            const QString path = dataFile(u"qt.mdb"_s);
            writeBytes(path, whole.left(length));
            EXPECT_EQ(openingError(path), ErrorNumber::kNotADatabase);
            EXPECT_EQ(fileBytes(path), whole.left(length));
            EXPECT_EQ(filesLeft(), QStringList{u"qt.mdb"_s});
        }
    }
}

/// Flips bytes, overwrites runs or swaps pages, by a seed.
QByteArray corrupted(QByteArray bytes, quint32 seed)
{
    const auto next = [&seed](qsizetype limit) {
        seed = seed * 1664525U + 1013904223U;
        return static_cast<qsizetype>((seed >> 8) % static_cast<quint32>(limit));
    };
    next(1);
    const qsizetype page = bytes[0x14] == 0 ? 2048 : 4096;
    const qsizetype pages = bytes.size() / page;
    switch (next(3)) {
    case 0:
        for (qsizetype i = 0; i < 40; ++i)
            bytes[page + next(bytes.size() - page)] = static_cast<char>(next(256));
        break;
    case 1:
        bytes.replace(page + next(bytes.size() - page - 64), 64, QByteArray(64, '\xFF'));
        break;
    default: {
        const qsizetype from = 1 + next(pages - 1);
        const qsizetype to = 1 + next(pages - 1);
        bytes.replace(to * page, page, bytes.mid(from * page, page));
    }
    }
    return bytes;
}

TEST_F(JetSampleImportTest, CorruptedFilesAreImportedOrRefusedAndNeverChanged)
{
    const QStringList names = sampleNames();
    ASSERT_FALSE(names.isEmpty());
    int refused = 0;
    for (int seed = 0; seed < kCorruptions; ++seed) {
        const QString name = names[seed % names.size()];
        SCOPED_TRACE(testing::Message() << qPrintable(name) << " seed " << seed);
        const QByteArray bytes = corrupted(fileBytes(sample(name)), static_cast<quint32>(seed));
        const QString path = dataFile(u"myc.mdb"_s);
        writeBytes(path, bytes);
        const auto header = readJetHeader(readDatabaseHead(path));
        ASSERT_TRUE(header);
        const int error = openingError(path, header->password);
        const bool replaced = error == 0 && fileBytes(path) != bytes;
        if (replaced) {
            EXPECT_TRUE(inspectStore(path).faults.isEmpty());
            EXPECT_TRUE(inspectStore(path).originLines.isEmpty()) << "only what is whole";
            EXPECT_EQ(fileBytes(path + u".jet"_s), bytes);
        } else if (error != 0) {
            ++refused;
            EXPECT_EQ(error, ErrorNumber::kNotADatabase);
        }
        EXPECT_EQ(QDir(QFileInfo(path).path())
                      .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                      .size(),
                  replaced ? 2 : 1);
        QFile::remove(path);
        QFile::remove(path + u".jet"_s);
    }
    EXPECT_GT(refused, 0);
    EXPECT_LT(refused, kCorruptions);
}

TEST_F(JetSampleImportTest, RowsThatADamagedPageHidesAreMissed)
{
    constexpr qsizetype kPage = 26 * 4096; // the notes'
    constexpr qsizetype kRowList = kPage + 14;
    const QByteArray sound = fileBytes(sample(u"myc-made.mdb"_s));
    const JetConversion conversion{
        dataFile(u"notes.mdb"_s), dataFile(u"store"_s), {}, StoreCompare::Text};
    for (const auto& [hidden, exit] :
         {std::pair(1, ImportExit::Done), std::pair(6, ImportExit::Damaged)}) {
        SCOPED_TRACE(hidden);
        QByteArray bytes = sound;
        for (int row = 0; row < hidden; ++row) // as if it had been deleted
            bytes[kRowList + 2 * row + 1] |= '\x80';
        writeBytes(conversion.source, bytes);
        ConversionReport report;
        EXPECT_EQ(convertIntoStore(conversion, report), exit);
        EXPECT_EQ(report.rows, 6 - hidden);
        EXPECT_EQ(report.faults.absentRows, hidden);
        if (exit == ImportExit::Done) {
            EXPECT_EQ(inspectStore(conversion.destination).originLines,
                      (QList<std::pair<QString, QString>>{{u"찾지 못한 행"_s, u"1"_s}}));
        }
        QFile::remove(conversion.destination);
    }
}

TEST_F(JetSampleImportTest, WhatASlightlyDamagedFileLostIsNotedInTheStore)
{
    // The length of the first long text of the first row is made greater than its pieces.
    QByteArray bytes = fileBytes(sample(u"jet4-korean-types.mdb"_s));
    const qsizetype stated = 124'890 * 2;
    QByteArray length(4, '\0');
    qToLittleEndian<quint32>(stated, length.data());
    const qsizetype at = bytes.indexOf(length);
    ASSERT_GT(at, 0);
    qToLittleEndian<quint32>(stated + 1000, bytes.data() + at);
    const QString source = dataFile(u"long.mdb"_s);
    writeBytes(source, bytes);
    ConversionReport report;
    const JetConversion conversion{source, dataFile(u"store"_s), {}, StoreCompare::Text};
    EXPECT_EQ(convertIntoStore(conversion, report), ImportExit::Done);
    EXPECT_EQ(report.rows, 5);
    EXPECT_EQ(report.faults.values, 1);
    EXPECT_EQ(inspectStore(conversion.destination).originLines,
              (QList<std::pair<QString, QString>>{{u"온전하지 않은 값"_s, u"1"_s}}));
}

} // namespace
} // namespace lumen
