// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/store/field_types.h"

#include "jet/error.h"
#include "jet/store/store_writer.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

struct TypeName
{
    FieldType type = FieldType::Text;
    QStringView name;
};

// LONGTEXT, not MEMO: SQLite would give MEMO the numeric affinity and turn the text "007" into 7.
constexpr TypeName kTypeNames[] = {
    {FieldType::Boolean, u"BOOLEAN"},     {FieldType::Byte, u"BYTE INTEGER"},
    {FieldType::Short, u"SHORT INTEGER"}, {FieldType::Long, u"INTEGER"},
    {FieldType::Single, u"SINGLE REAL"},  {FieldType::Double, u"DOUBLE"},
    {FieldType::Currency, u"CURRENCY"},   {FieldType::Date, u"DATETIME"},
    {FieldType::Memo, u"LONGTEXT"},       {FieldType::Guid, u"GUIDTEXT"},
    {FieldType::Binary, u"BLOB"},
};

/// Not "INTEGER" alone, which a key of that type would take as the name of the rowid.
constexpr QStringView kCounter = u"COUNTER INTEGER";

bool has(QStringView declared, QStringView part)
{
    return declared.contains(part, Qt::CaseInsensitive);
}

FieldType typeByAffinity(QStringView declared)
{
    if (has(declared, u"INT"))
        return FieldType::Long;
    if (has(declared, u"CHAR") || has(declared, u"CLOB") || has(declared, u"TEXT"))
        return FieldType::Memo;
    if (has(declared, u"BLOB"))
        return FieldType::Binary;
    if (declared.isEmpty())
        return FieldType::Memo;
    return FieldType::Double;
}

struct Range
{
    double low;
    double high;
};

std::optional<Range> wholeNumberRange(FieldType type)
{
    switch (type) {
    case FieldType::Byte:
        return Range{0, std::numeric_limits<quint8>::max()};
    case FieldType::Short:
        return Range{std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()};
    case FieldType::Long:
        return Range{std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()};
    default:
        return std::nullopt;
    }
}

std::optional<double> asNumber(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return parseNumber(value.toString().toUtf8());
    case QMetaType::Bool:
        return value.toBool() ? -1 : 0;
    case QMetaType::QDate:
        return dayNumber(value.toDate().startOfDay(Qt::UTC));
    case QMetaType::QDateTime:
        return dayNumber(value.toDateTime());
    case QMetaType::QByteArray:
        return std::nullopt;
    default: {
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        return isNumber ? std::optional(number) : std::nullopt;
    }
    }
}

std::optional<double> asDay(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString)
        if (const auto day = parseDate(value.toString()))
            return day;
    return asNumber(value);
}

QVariant storedNumber(const QVariant& value, FieldType type)
{
    const auto number = type == FieldType::Date ? asDay(value) : asNumber(value);
    if (!number || !std::isfinite(*number))
        throw jetError(ErrorNumber::kConversion, value.toString());
    if (type == FieldType::Boolean)
        return *number == 0 ? 0 : -1;
    const auto range = wholeNumberRange(type);
    if (!range)
        return type == FieldType::Single ? static_cast<double>(static_cast<float>(*number))
                                         : *number;
    // Halves go to the even neighbour, as the conversions of Basic do.
    const double whole = std::nearbyint(*number);
    if (whole < range->low || whole > range->high)
        throw jetError(ErrorNumber::kConversion, value.toString());
    return static_cast<int>(whole);
}

QString asText(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Float:
    case QMetaType::Double:
        return sqlNumber(value.toDouble());
    case QMetaType::Bool:
        return value.toBool() ? u"True"_s : u"False"_s;
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return dayText(*asNumber(value));
    case QMetaType::QByteArray:
        return QString::fromUtf8(value.toByteArray());
    default:
        return value.toString();
    }
}

} // namespace

QString declaration(const ColumnDef& column)
{
    QString text;
    if (column.autonumber)
        return u"INTEGER PRIMARY KEY AUTOINCREMENT"_s;
    if (column.type == FieldType::Text)
        text = u"TEXT(%1)"_s.arg(column.size);
    for (const TypeName& entry : kTypeNames)
        if (entry.type == column.type)
            text = entry.name.toString();
    if (column.counter)
        text = kCounter.toString();
    return column.required ? text + u" NOT NULL"_s : text;
}

DeclaredType readDeclaration(QStringView declared)
{
    declared = declared.trimmed();
    if (declared.compare(kCounter, Qt::CaseInsensitive) == 0)
        return {FieldType::Long, 0, true};
    for (const TypeName& entry : kTypeNames)
        if (declared.compare(entry.name, Qt::CaseInsensitive) == 0)
            return {entry.type, 0};
    if (declared.startsWith(u"TEXT(", Qt::CaseInsensitive) && declared.endsWith(u')'))
        return {FieldType::Text, declared.mid(5).chopped(1).toInt()};
    return {typeByAffinity(declared), 0};
}

bool isTextType(FieldType type)
{
    return type == FieldType::Text || type == FieldType::Memo || type == FieldType::Guid;
}

QVariant storedValue(const QVariant& value, FieldType type, int size)
{
    if (value.isNull())
        return type == FieldType::Boolean ? QVariant(0) : QVariant();
    if (type == FieldType::Binary)
        return value.toByteArray();
    if (!isTextType(type))
        return storedNumber(value, type);
    QString text = asText(value);
    if (size > 0 && text.size() > size)
        throw jetError(ErrorNumber::kTextTooLong);
    return text;
}

std::optional<double> parseNumber(QByteArrayView utf8)
{
    utf8 = utf8.trimmed();
    if (utf8.startsWith('+'))
        utf8 = utf8.sliced(1);
    // from_chars takes "inf" and "nan", which are words here.
    const auto sign = utf8.startsWith('-') ? 1 : 0;
    if (utf8.size() <= sign || (utf8[sign] != '.' && (utf8[sign] < '0' || utf8[sign] > '9')))
        return std::nullopt;
    double number = 0;
    const auto end = utf8.data() + utf8.size();
    const auto result = std::from_chars(utf8.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return number;
}

QString sqlNumber(double number)
{
    return QString::number(number, 'g', std::numeric_limits<double>::digits10);
}

} // namespace lumen
