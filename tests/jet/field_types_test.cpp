// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/engine_fixture.h"
#include "jet/store/field_types.h"

#include <limits>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

TEST(FieldTypesTest, EveryDeclarationIsReadBackAsTheTypeThatWroteIt)
{
    for (int type = 0; type <= static_cast<int>(FieldType::Binary); ++type) {
        SCOPED_TRACE(type);
        ColumnDef column{.name = u"a"_s, .type = static_cast<FieldType>(type), .size = 33};
        const DeclaredType read = readDeclaration(declaration(column));
        EXPECT_EQ(read.type, column.type);
        EXPECT_EQ(read.size, column.type == FieldType::Text ? 33 : 0);
    }
    EXPECT_EQ(readDeclaration(u"varchar(30)").type, FieldType::Memo);
    EXPECT_EQ(readDeclaration(u"BIGINT").type, FieldType::Long);
    EXPECT_EQ(readDeclaration(u"").type, FieldType::Memo);
}

TEST(FieldTypesTest, DatesAreReadInTheirFormsAndNothingElseIs)
{
    struct Row
    {
        QString text;
        std::optional<double> day;
    };
    const Row rows[] = {
        {u"2024-02-29"_s, 45351},
        {u" 2024-2-9 "_s, 45331},
        {u"2024/02/29"_s, 45351},
        {u"2024. 2. 29."_s, 45351},
        {u"2024.2.29"_s, 45351},
        {u"2/29/2024"_s, 45351},
        {u"1899-12-30"_s, 0},
        {u"1899-12-29 18:00"_s, -1.75},
        {u"2024-02-29 오후 6:00"_s, 45351.75},
        {u"2024-02-29 오전 12:00:00"_s, 45351},
        {u"2024-02-29 오후 12:00"_s, 45351.5},
        {u"0100-01-01"_s, -657434},
        {u"2023-02-30"_s, std::nullopt},
        {u"2023-02-29"_s, std::nullopt},
        {u"29.2.2024"_s, std::nullopt},
        {u"24-02-29"_s, std::nullopt},
        {u"2024-02/29"_s, std::nullopt},
        {u"2024-02-29 25:00"_s, std::nullopt},
        {u"2024-02-29 오후 13:00"_s, std::nullopt},
        {u"2024-02-29 6"_s, std::nullopt},
        {u"2024-02-2918:00"_s, std::nullopt},
        {u"어제"_s, std::nullopt},
        {u""_s, std::nullopt},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text.toStdString());
        EXPECT_EQ(parseDate(row.text), row.day);
    }
}

TEST(FieldTypesTest, ValuesAreConvertedToTheColumnOrRefused)
{
    EXPECT_EQ(storedValue(u" 12 "_s, FieldType::Long, 0), QVariant(12));
    EXPECT_EQ(storedValue(2.5, FieldType::Short, 0), QVariant(2));
    EXPECT_EQ(storedValue(true, FieldType::Long, 0), QVariant(-1));
    EXPECT_EQ(storedValue(7, FieldType::Boolean, 0), QVariant(-1));
    EXPECT_EQ(storedValue({}, FieldType::Boolean, 0), QVariant(0));
    EXPECT_EQ(storedValue(u"2024-02-29"_s, FieldType::Date, 0), QVariant(45351.0));
    EXPECT_EQ(storedValue(12.0, FieldType::Text, 2), QVariant(u"12"_s));
    EXPECT_TRUE(storedValue({}, FieldType::Text, 2).isNull());
    EXPECT_FALSE(storedValue(QString(), FieldType::Text, 2).isNull());

    const auto failure = [](const QVariant& value, FieldType type, int size = 0) {
        return errorOf([&] { storedValue(value, type, size); });
    };
    EXPECT_EQ(failure(256, FieldType::Byte), 3421);
    EXPECT_EQ(failure(-32769, FieldType::Short), 3421);
    EXPECT_EQ(failure(2147483648.0, FieldType::Long), 3421);
    EXPECT_EQ(failure(u""_s, FieldType::Long), 3421);
    EXPECT_EQ(failure(u"inf"_s, FieldType::Double), 3421);
    EXPECT_EQ(failure(u"2023-02-30"_s, FieldType::Date), 3421);
    EXPECT_EQ(failure(u"가나다"_s, FieldType::Text, 2), 3163);
}

} // namespace

} // namespace lumen
