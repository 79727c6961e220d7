// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/sword/sword_index.h"

#include "sources/sword/sword_files.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <bz2comprs.h>
#include <lzsscomprs.h>
#include <memory>
#include <tuple>
#include <xzcomprs.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kBlockRecord = 12; // where it begins, its compressed and its full length
constexpr qsizetype kLargestBlock = 64 * 1024 * 1024;
// Deflate never does better, so a block that claims more is damaged and not worth the memory.
constexpr qsizetype kMostGain = 1100;

QByteArray unpackedByLibrary(sword::SWCompress& library, QByteArray packed)
{
    auto length = static_cast<unsigned long>(packed.size());
    library.setCompressedBuf(&length, packed.data());
    unsigned long size = 0;
    const char* text = library.getUncompressedBuf(&size);
    return {text, static_cast<qsizetype>(size)};
}

QByteArray unpacked(SwordLayout::Compression compression, const QByteArray& packed, qsizetype size)
{
    using Compression = SwordLayout::Compression;
    if (compression == Compression::Zip)
        return SwordFiles::inflated(packed, size);
    std::unique_ptr<sword::SWCompress> library;
    if (compression == Compression::Lzss)
        library = std::make_unique<sword::LZSSCompress>();
    else if (compression == Compression::Bzip2)
        library = std::make_unique<sword::Bzip2Compress>();
    else
        library = std::make_unique<sword::XzCompress>();
    return unpackedByLibrary(*library, packed);
}

} // namespace

Result<SwordTestament> SwordTestament::read(const SwordLayout& layout, const QString& name,
                                            std::size_t places)
{
    const bool packed = layout.compression != SwordLayout::Compression::None;
    const QString path = layout.folder + u'/' + name;
    const QString stem = path + u'.' + QLatin1Char(layout.blockLetter) + u'z';
    const QString indexFile = packed ? stem + u'v' : path + u".vss"_s;
    SwordTestament testament;
    const QStringList files =
        packed ? QStringList{indexFile, stem + u's', stem + u'z'} : QStringList{indexFile, path};
    if (std::ranges::none_of(files, [](const QString& file) { return QFileInfo::exists(file); }))
        return testament;
    const auto index = SwordFiles::bytes(indexFile);
    if (!index)
        return index.failure();
    const qsizetype record = (packed ? 8 : 4) + (layout.wideSizes ? 4 : 2);
    if (index.value().size() != static_cast<qsizetype>(places) * record)
        return SwordFiles::fault(indexFile, u"색인의 길이가 절의 수와 맞지 않습니다."_s);
    for (qsizetype at = 0; at < index.value().size(); at += record) {
        Entry entry;
        entry.place = testament.m_entries.size();
        const qsizetype start = at + (packed ? 4 : 0);
        entry.block = packed ? SwordFiles::number(index.value(), at) : 0;
        entry.start = SwordFiles::number(index.value(), start);
        entry.size = layout.wideSizes
                         ? SwordFiles::number(index.value(), start + 4)
                         : qFromLittleEndian<quint16>(index.value().constData() + start + 4);
        testament.m_entries.push_back(entry);
    }
    auto blocks = packed ? readBlocks(layout, stem) : readPlainText(layout, path);
    if (!blocks)
        return blocks.failure();
    testament.m_blocks = std::move(blocks.value());
    if (auto failure = testament.checkEntries(indexFile))
        return *failure;
    return testament;
}

Result<std::vector<SwordTestament::Block>> SwordTestament::readPlainText(const SwordLayout& layout,
                                                                         const QString& path)
{
    const auto text = SwordFiles::bytes(path);
    if (!text)
        return text.failure();
    return std::vector<Block>{
        {text.value().size(), layout.enciphered ? QByteArray() : text.value()}};
}

Result<std::vector<SwordTestament::Block>> SwordTestament::readBlocks(const SwordLayout& layout,
                                                                      const QString& path)
{
    const auto records = SwordFiles::bytes(path + u's');
    const auto text = SwordFiles::bytes(path + u'z');
    if (!records || !text)
        return records ? text.failure() : records.failure();
    if (records.value().size() % kBlockRecord != 0)
        return SwordFiles::fault(path + u's', u"파일이 잘렸습니다."_s);
    std::vector<Block> blocks;
    for (qsizetype at = 0; at < records.value().size(); at += kBlockRecord) {
        const qsizetype start = SwordFiles::number(records.value(), at);
        const qsizetype length = SwordFiles::number(records.value(), at + 4);
        Block block{SwordFiles::number(records.value(), at + 8), {}};
        const QString which = u"%1번째 덩어리"_s.arg(at / kBlockRecord + 1);
        if (start + length > text.value().size())
            return SwordFiles::fault(path + u'z', which + u"가 파일 밖에 있습니다."_s);
        if (block.size > kLargestBlock || block.size > length * kMostGain)
            return SwordFiles::fault(path + u's', which + u"의 길이가 잘못되었습니다."_s);
        if (!layout.enciphered) {
            block.text = unpacked(layout.compression, text.value().mid(start, length), block.size);
            if (block.text.size() != block.size)
                return SwordFiles::fault(path + u'z', which + u"의 압축이 손상되었습니다."_s);
        }
        blocks.push_back(std::move(block));
    }
    return blocks;
}

std::vector<std::vector<SwordTestament::Entry>> SwordTestament::entriesByBlock() const
{
    const auto range = [](const Entry& entry) { return std::tuple(entry.start, entry.size); };
    std::vector<std::vector<Entry>> result(m_blocks.size());
    for (const Entry& entry : m_entries)
        if (entry.size > 0 && entry.block < m_blocks.size())
            result[entry.block].push_back(entry);
    for (std::vector<Entry>& entries : result) {
        std::ranges::stable_sort(entries, {}, range);
        // Verses that are linked share their text.
        const auto doubles = std::ranges::unique(entries, {}, range);
        entries.erase(doubles.begin(), doubles.end());
    }
    return result;
}

std::optional<Failure> SwordTestament::checkEntries(const QString& file) const
{
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const Entry& entry = m_entries[i];
        if (entry.size == 0)
            continue;
        const bool inside = entry.block < m_blocks.size() &&
                            qint64(entry.start) + qint64(entry.size) <= m_blocks[entry.block].size;
        if (!inside)
            return SwordFiles::fault(file,
                                     u"색인의 %1번째 자리가 본문 밖을 가리킵니다."_s.arg(i + 1));
        if (m_blocks[entry.block].text.mid(entry.start, entry.size).contains('\0'))
            return SwordFiles::fault(file,
                                     u"색인의 %1번째 자리의 본문에 NUL이 있습니다."_s.arg(i + 1));
    }
    for (const std::vector<Entry>& entries : entriesByBlock())
        for (std::size_t i = 1; i < entries.size(); ++i)
            if (entries[i].start < entries[i - 1].start + entries[i - 1].size)
                return SwordFiles::fault(file, u"색인의 자리들이 서로 겹칩니다."_s);
    return std::nullopt;
}

bool SwordTestament::hasText(long place) const
{
    return place >= 0 && static_cast<std::size_t>(place) < m_entries.size() &&
           m_entries[static_cast<std::size_t>(place)].size > 0;
}

QByteArray SwordTestament::text(long place) const
{
    if (!hasText(place))
        return {};
    const Entry& entry = m_entries[static_cast<std::size_t>(place)];
    return m_blocks[entry.block].text.mid(entry.start, entry.size);
}

// The text of all blocks cut into entries and what lies between them, in the order of the file.
std::vector<SwordTestament::Piece> SwordTestament::pieces() const
{
    std::vector<Piece> result;
    const auto entries = entriesByBlock();
    for (std::size_t block = 0; block < m_blocks.size(); ++block) {
        const QByteArray& text = m_blocks[block].text;
        if (text.isEmpty())
            continue;
        const auto addGap = [&](qsizetype from, qsizetype to) {
            const QByteArrayView gap = QByteArrayView(text).sliced(from, to - from).trimmed();
            if (!gap.isEmpty())
                result.push_back({gap, std::nullopt});
        };
        qsizetype end = 0;
        for (const Entry& entry : entries[block]) {
            addGap(end, entry.start);
            result.push_back({QByteArrayView(text).sliced(entry.start, entry.size), entry.place});
            end = qsizetype(entry.start) + entry.size;
        }
        addGap(end, text.size());
    }
    return result;
}

int SwordTestament::lostPieces(const std::vector<bool>& wanted) const
{
    int lost = 0;
    const std::vector<Piece> all = pieces();
    std::size_t before = 0; // the place of the last entry in front of the piece
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i].place) {
            before = *all[i].place;
            continue;
        }
        // A converter that finds more of a verse writes the whole anew right behind what it had.
        if (i + 1 < all.size() && all[i + 1].text.startsWith(all[i].text))
            continue;
        std::size_t behind = wanted.size();
        for (std::size_t k = i + 1; k < all.size() && behind == wanted.size(); ++k)
            behind = all[k].place.value_or(behind);
        const auto [first, last] = std::minmax(before, behind);
        const auto at = wanted.begin();
        const auto end = at + static_cast<std::ptrdiff_t>(last);
        lost += std::find(at + static_cast<std::ptrdiff_t>(first), end, true) != end ? 1 : 0;
    }
    return lost;
}

} // namespace lumen
