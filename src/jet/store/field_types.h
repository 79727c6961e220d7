// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QVariant>

#include <optional>

namespace lumen {

struct ColumnDef;

/// The column types of a store.
enum class FieldType {
    Boolean,
    Byte,
    Short,
    Long,
    Single,
    Double,
    Currency,
    Date, ///< a double: days since 1899-12-30, the fraction is the time of day
    Text,
    Memo,
    Guid,
    Binary
};

/// What a declared column type says: "TEXT(50)" is Text of 50 characters.
struct DeclaredType
{
    FieldType type = FieldType::Text;
    int size = 0;
    bool counter = false; ///< see ColumnDef
};

/// The declaration of a column as it stands in CREATE TABLE, without its name. SQLite takes its
/// affinity from it, we take back type and size with readDeclaration.
QString declaration(const ColumnDef& column);
/// Declarations of foreign SQLite files are read by SQLite's own rules of affinity.
DeclaredType readDeclaration(QStringView declared);

/// Text, Memo and Guid.
bool isTextType(FieldType type);

/// The value as it is stored in a column of the type: text is text, a Boolean is -1 or 0, a date is
/// a day number. Error 3421 when it can't be converted, 3163 when a text is longer than `size`.
QVariant storedValue(const QVariant& value, FieldType type, int size);

/// Days since 1899-12-30; the fraction is the time of day, also before that day (-1.75 is
/// 1899-12-29 18:00).
double dayNumber(const QDateTime& moment);
/// The moment of a day number; invalid outside the years 100 to 9999.
QDateTime momentOf(double dayNumber);
/// "yyyy-MM-dd", with " HH:mm:ss" behind it when there is a time of day.
QString dayText(double dayNumber);

/// A date as it stands between "#" in a query or as the user types it: yyyy-MM-dd, yyyy/M/d,
/// yyyy.M.d (with blanks and a final dot) or M/d/yyyy, each with an optional time.
std::optional<double> parseDate(QStringView text);
/// The number that the trimmed text is as a whole; "12a" and "" are none.
std::optional<double> parseNumber(QByteArrayView utf8);
/// A number as text without an exponent where 15 digits do: "12", "1.5".
QString sqlNumber(double number);

} // namespace lumen
