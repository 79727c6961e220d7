// SPDX-License-Identifier: GPL-2.0-or-later
#include "import/jet_values.h"

#include <QUuid>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongValueHead = 12;
constexpr quint32 kInline = 0x80000000;
constexpr quint32 kOnePage = 0x40000000;
constexpr quint32 kLengthMask = 0x3FFFFFFF;
/// The pieces of a chain begin with the place of the next one.
constexpr qsizetype kNextPiece = 4;
constexpr int kMaxPieces = 2'000'000;
constexpr qsizetype kNumericBytes = 17;
/// A double holds so many digits for certain.
constexpr qsizetype kSafeDigits = 15;
constexpr int kCurrencyScale = 4;

/// How many bytes a value of a fixed type has; 0 for texts and long values.
int bytesOf(int type)
{
    switch (type) {
    case MDB_BYTE:
        return 1;
    case MDB_INT:
        return 2;
    case MDB_LONGINT:
    case MDB_FLOAT:
        return 4;
    case MDB_DOUBLE:
    case MDB_DATETIME:
    case MDB_MONEY:
        return 8;
    case MDB_REPID:
        return 16;
    case MDB_NUMERIC:
        return kNumericBytes;
    default:
        return 0;
    }
}

FieldType fieldType(int type)
{
    switch (type) {
    case MDB_BOOL:
        return FieldType::Boolean;
    case MDB_BYTE:
        return FieldType::Byte;
    case MDB_INT:
        return FieldType::Short;
    case MDB_LONGINT:
        return FieldType::Long;
    case MDB_FLOAT:
        return FieldType::Single;
    case MDB_DOUBLE:
        return FieldType::Double;
    case MDB_DATETIME:
        return FieldType::Date;
    case MDB_MONEY:
    case MDB_NUMERIC:
        return FieldType::Currency;
    case MDB_TEXT:
        return FieldType::Text;
    case MDB_MEMO:
        return FieldType::Memo;
    case MDB_REPID:
        return FieldType::Guid;
    default:
        return FieldType::Binary;
    }
}

template <typename T>
T number(const QByteArray& bytes)
{
    return qFromLittleEndian<T>(bytes.constData());
}

/// Digits with a point `scale` places from the right, as a number where that loses nothing.
QVariant scaled(QString digits, int scale, bool negative)
{
    digits = digits.rightJustified(scale + 1, u'0');
    QString whole = digits.chopped(scale);
    QString fraction = digits.right(scale);
    while (fraction.endsWith(u'0'))
        fraction.chop(1);
    const QString sign = negative ? u"-"_s : QString();
    const QString text = sign + whole + (fraction.isEmpty() ? QString() : u'.' + fraction);
    if (whole.size() + fraction.size() > kSafeDigits)
        return text;
    return text.toDouble();
}

QVariant currency(qint64 tenThousandths)
{
    const auto magnitude = tenThousandths < 0 ? 0 - static_cast<quint64>(tenThousandths)
                                              : static_cast<quint64>(tenThousandths);
    return scaled(QString::number(magnitude), kCurrencyScale, tenThousandths < 0);
}

/// A sign byte and a number of 128 bits, stored as four 32-bit words with the highest first.
QVariant numeric(const QByteArray& bytes, int scale)
{
    std::array<quint32, 4> words{};
    for (qsizetype i = 0; i < 4; ++i)
        words[static_cast<size_t>(i)] = longFrom(bytes, 1 + 4 * i);
    QString digits;
    while (std::any_of(words.begin(), words.end(), [](quint32 word) { return word != 0; })) {
        quint64 rest = 0;
        for (quint32& word : words) {
            rest = rest << 32 | word;
            word = static_cast<quint32>(rest / 10);
            rest %= 10;
        }
        digits.prepend(QChar(static_cast<char16_t>(u'0' + rest)));
    }
    return scaled(digits, scale, (bytes[0] & 0x80) != 0);
}

QString guid(const QByteArray& bytes)
{
    const auto* b = reinterpret_cast<const uchar*>(bytes.constData());
    const QUuid id(qFromLittleEndian<quint32>(b), qFromLittleEndian<quint16>(b + 4),
                   qFromLittleEndian<quint16>(b + 6), b[8], b[9], b[10], b[11], b[12], b[13], b[14],
                   b[15]);
    return id.toString().toUpper();
}

} // namespace

ColumnDef storeColumn(const JetColumn& column, bool isJet3)
{
    ColumnDef def;
    def.name = column.name;
    def.type = fieldType(column.type);
    // Jet 4 counts the bytes of its two-byte characters.
    const int characters = isJet3 ? column.size : column.size / 2;
    def.size = def.type == FieldType::Text ? characters : 0;
    return def;
}

QVariant JetValues::value(const JetColumn& column, const RawField& field)
{
    if (column.type == MDB_BOOL)
        return field.isNull ? 0 : -1;
    if (field.isNull)
        return {};
    switch (column.type) {
    case MDB_TEXT:
        return text(field.bytes);
    case MDB_MEMO:
        return text(longValue(field.bytes));
    case MDB_OLE:
        return longValue(field.bytes);
    case MDB_NUMERIC:
        if (field.bytes.size() >= kNumericBytes)
            return numeric(field.bytes, column.scale);
        break;
    default:
        if (const int needed = bytesOf(column.type); field.bytes.size() >= needed)
            return needed ? fixedValue(column.type, field.bytes) : QVariant(field.bytes);
    }
    ++m_damaged;
    return {};
}

QVariant JetValues::fixedValue(int type, const QByteArray& bytes) const
{
    switch (type) {
    case MDB_BYTE:
        return static_cast<int>(static_cast<unsigned char>(bytes[0]));
    case MDB_INT:
        return static_cast<int>(number<qint16>(bytes));
    case MDB_LONGINT:
        return number<qint32>(bytes);
    case MDB_FLOAT:
        return static_cast<double>(std::bit_cast<float>(number<quint32>(bytes)));
    case MDB_MONEY:
        return currency(number<qint64>(bytes));
    case MDB_REPID:
        return guid(bytes);
    default:
        return std::bit_cast<double>(number<quint64>(bytes));
    }
}

QByteArray JetValues::longValue(const QByteArray& field)
{
    if (field.size() < kLongValueHead) {
        m_damaged += field.isEmpty() ? 0 : 1;
        return QByteArray("");
    }
    const quint32 head = longFrom(field, 0);
    // No value is longer than the file that holds it, whatever a damaged length says.
    const qint64 length = std::min<qint64>(head & kLengthMask, m_file.fileSize());
    QByteArray bytes;
    if ((head & kInline) != 0)
        bytes = field.mid(kLongValueHead, length);
    else if ((head & kOnePage) != 0)
        bytes = m_file.copyRow(longFrom(field, 4)).value_or(QByteArray()).left(length);
    else
        bytes = chain(longFrom(field, 4), length);
    if (bytes.size() < static_cast<qint64>(head & kLengthMask))
        ++m_damaged;
    return bytes;
}

QByteArray JetValues::chain(PageRow first, qint64 length)
{
    QByteArray bytes;
    PageRow next = first;
    for (int pieces = 0; next != 0 && bytes.size() < length && pieces < kMaxPieces; ++pieces) {
        const std::optional<QByteArray> piece = m_file.copyRow(next);
        if (!piece || piece->size() < kNextPiece)
            break;
        bytes += piece->mid(kNextPiece);
        const PageRow behind = longFrom(*piece, 0);
        if (behind == next)
            break;
        next = behind;
    }
    bytes.truncate(length);
    return bytes;
}

} // namespace lumen
