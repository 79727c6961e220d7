// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/sword/sword_lexicon.h"

#include "sources/markup_text.h"
#include "sources/sword/sword_files.h"
#include "sources/version_text.h"

#include <QFileInfo>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kRecord = 8; // where something begins and how long it is

struct Place
{
    qsizetype start = 0;
    qsizetype size = 0;

    bool isIn(qsizetype length) const { return start + size <= length; }
};

Place placeAt(const QByteArray& bytes, qsizetype at)
{
    return {SwordFiles::number(bytes, at), SwordFiles::number(bytes, at + 4)};
}

Result<std::vector<QByteArray>> readBlocks(const QString& stem)
{
    const auto index = SwordFiles::bytes(stem + u".zdx"_s);
    const auto text = SwordFiles::bytes(stem + u".zdt"_s);
    if (!index || !text)
        return index ? text.failure() : index.failure();
    std::vector<QByteArray> blocks;
    for (qsizetype at = 0; at + kRecord <= index.value().size(); at += kRecord) {
        const Place place = placeAt(index.value(), at);
        const QByteArray block =
            place.isIn(text.value().size())
                ? SwordFiles::inflated(text.value().mid(place.start, place.size))
                : QByteArray();
        if (block.isEmpty())
            return SwordFiles::fault(
                stem + u".zdt"_s,
                u"%1번째 덩어리의 압축이 손상되었습니다."_s.arg(blocks.size() + 1));
        blocks.push_back(block);
    }
    return blocks;
}

// A block begins with the number of its texts, then their places; a text ends in a NUL.
QByteArray textOf(const std::vector<QByteArray>& blocks, qsizetype block, qsizetype entry)
{
    if (block < 0 || block >= std::ssize(blocks))
        return {};
    const QByteArray& bytes = blocks[static_cast<std::size_t>(block)];
    const qsizetype record = 4 + entry * kRecord;
    if (entry < 0 || record + kRecord > bytes.size())
        return {};
    const Place place = placeAt(bytes, record);
    return place.isIn(bytes.size()) ? bytes.mid(place.start, place.size) : QByteArray();
}

} // namespace

DictionaryResult readSwordLexicon(const QString& stem)
{
    const auto index = SwordFiles::bytes(stem + u".idx"_s);
    const auto heads = SwordFiles::bytes(stem + u".dat"_s);
    if (!index || !heads)
        return index ? heads.failure() : index.failure();
    const auto blocks = readBlocks(stem);
    if (!blocks)
        return blocks.failure();
    std::vector<DictionaryEntry> entries;
    for (qsizetype at = 0; at + kRecord <= index.value().size(); at += kRecord) {
        const Place place = placeAt(index.value(), at);
        const QByteArray record = place.isIn(heads.value().size())
                                      ? heads.value().mid(place.start, place.size)
                                      : QByteArray();
        const qsizetype end = record.indexOf("\r\n");
        const qsizetype numbers = end + 2;
        if (end < 0)
            return SwordFiles::fault(
                stem + u".idx"_s, u"%1번째 표제어가 파일 밖에 있습니다."_s.arg(at / kRecord + 1));
        if (record.sliced(numbers).startsWith("@LINK"))
            continue;
        const QByteArray text = record.size() < numbers + kRecord
                                    ? QByteArray()
                                    : textOf(blocks.value(), SwordFiles::number(record, numbers),
                                             SwordFiles::number(record, numbers + 4));
        const QString head = QString::fromUtf8(record.left(end)).simplified();
        const QString plain = plainLines(QString::fromUtf8(text).remove(QChar(0)));
        if (!head.isEmpty() && !plain.isEmpty())
            entries.push_back({head, plain});
    }
    if (entries.empty())
        return SwordFiles::fault(stem + u".idx"_s, u"표제어가 하나도 없습니다."_s);
    return entries;
}

} // namespace lumen
