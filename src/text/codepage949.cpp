// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/codepage949.h"

#include <QList>
#include <QStringDecoder>

#include <vector>

namespace lumen {
namespace {

constexpr char16_t kReplacement = 0xFFFD;
constexpr int kUnitCount = 0x10000;
constexpr unsigned char kFirstLead = 0x81;
constexpr unsigned char kLastLead = 0xFE;

struct Tables
{
    // 0 stands for "not in the page" in both; the unit 0 itself is handled before the tables.
    std::vector<std::uint16_t> codes = std::vector<std::uint16_t>(kUnitCount, 0);
    std::vector<char16_t> units = std::vector<char16_t>(kUnitCount, 0);

    void add(std::uint16_t code, char16_t unit)
    {
        codes[unit] = code;
        units[code] = unit;
    }
};

// All codes in one text, each on a line of its own: a bad pair yields a line that is not exactly
// one character, and can't put its neighbours out of step.
QByteArray allCodes(std::vector<std::uint16_t>& order)
{
    QByteArray bytes;
    const auto take = [&](int code) {
        order.push_back(static_cast<std::uint16_t>(code));
        if (code > 0xFF)
            bytes.append(static_cast<char>(code >> 8));
        bytes.append(static_cast<char>(code & 0xFF)).append('\n');
    };
    take(0x80);
    for (int lead = kFirstLead; lead <= kLastLead; ++lead)
        for (int trail = 0; trail <= 0xFF; ++trail)
            if (isTrailByte949(static_cast<unsigned char>(trail)))
                take(lead << 8 | trail);
    take(0xFF);
    return bytes;
}

Tables makeTables()
{
    Tables tables;
    for (std::uint16_t ascii = 1; ascii < 0x80; ++ascii)
        tables.add(ascii, ascii);
    std::vector<std::uint16_t> order;
    const QByteArray bytes = allCodes(order);
    // Not "CP949": the library knows another table by that name.
    QStringDecoder decoder("windows-949");
    Q_ASSERT(decoder.isValid());
    const QString text = decoder.decode(bytes);
    const QList<QStringView> lines = QStringView(text).split(u'\n');
    const std::size_t count = qMin(order.size(), static_cast<std::size_t>(lines.size()));
    for (std::size_t i = 0; i < count; ++i) {
        const QStringView line = lines[static_cast<qsizetype>(i)];
        if (line.size() == 1 && line.front() != kReplacement)
            tables.add(order[i], line.front().unicode());
    }
    return tables;
}

const Tables& tables()
{
    static const Tables made = makeTables();
    return made;
}

} // namespace

bool isLeadByte949(unsigned char byte)
{
    return byte >= kFirstLead && byte <= kLastLead;
}

bool isTrailByte949(unsigned char byte)
{
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
           (byte >= 0x81 && byte <= 0xFE);
}

std::optional<std::uint16_t> code949(char16_t unit)
{
    const std::uint16_t code = tables().codes[unit];
    if (code == 0 && unit != 0)
        return std::nullopt;
    return code;
}

std::optional<char16_t> unit949(std::uint16_t code)
{
    const char16_t unit = tables().units[code];
    if (unit == 0 && code != 0)
        return std::nullopt;
    return unit;
}

QByteArray textFileContent(const QString& text)
{
    QByteArray bytes = toCodePage949(text);
    if (fromCodePage949(bytes) == text)
        return bytes;
    // What the page lacks would be question marks; editors know the mark.
    return "\xEF\xBB\xBF" + text.toUtf8();
}

QByteArray toCodePage949(QStringView text)
{
    const Tables& table = tables();
    QByteArray bytes;
    bytes.reserve(2 * text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const std::uint16_t code = table.codes[c.unicode()];
        if (code == 0 && !c.isNull()) {
            bytes.append('?');
            if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
                ++i;
            continue;
        }
        if (code > 0xFF)
            bytes.append(static_cast<char>(code >> 8));
        bytes.append(static_cast<char>(code & 0xFF));
    }
    return bytes;
}

QString fromCodePage949(QByteArrayView bytes)
{
    const Tables& table = tables();
    QString text(bytes.size(), Qt::Uninitialized);
    QChar* out = text.data();
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        if (!isLeadByte949(first)) {
            *out++ = QChar(table.units[first]);
            continue;
        }
        const auto second = static_cast<unsigned char>(i + 1 < bytes.size() ? bytes[i + 1] : 0);
        if (!isTrailByte949(second)) {
            *out++ = QChar(kReplacement);
            continue;
        }
        const char16_t unit = table.units[static_cast<std::size_t>(first << 8 | second)];
        *out++ = QChar(unit == 0 ? kReplacement : unit);
        ++i;
    }
    text.truncate(out - text.constData());
    return text;
}

} // namespace lumen
