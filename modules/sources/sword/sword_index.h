// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/version_text.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <vector>

namespace lumen {

/// How the data files of a SWORD Bible are laid out, as its conf file tells.
struct SwordLayout
{
    enum class Compression { None, Zip, Lzss, Bzip2, Xz };

    QString folder; ///< of the data files
    Compression compression = Compression::None;
    bool wideSizes = false;  ///< lengths of entries have four bytes instead of two
    char blockLetter = 'b';  ///< of the names of compressed files: book, chapter or verse
    bool enciphered = false; ///< the text can't be looked at, its places can
};

/// The index and the text of one testament, read without the library: it never complains about a
/// damaged file, but gives wrong words or none. What can be told from the files alone is told here.
class SwordTestament
{
public:
    /// `name` is "ot" or "nt", `places` the number of index places that the module's numbering has.
    /// Damaged when files are cut or missing, when a compressed block doesn't come out as its index
    /// says, and when entries lie outside the text or overlap. A testament without any file has no
    /// entries.
    static Result<SwordTestament> read(const SwordLayout& layout, const QString& name,
                                       std::size_t places);

    long places() const { return static_cast<long>(m_entries.size()); }
    /// Whether the index has text for a place. The library must give some for it, too.
    bool hasText(long place) const;
    /// The bytes of a place as the file has them, "" when they are enciphered or there are none.
    QByteArray text(long place) const;
    /// How many pieces of text lie where no entry leads to, though a place that is `wanted` belongs
    /// there by the order of the entries around. What is repeated right behind it is not counted.
    int lostPieces(const std::vector<bool>& wanted) const;

private:
    struct Entry
    {
        quint32 block = 0;
        quint32 start = 0;
        quint32 size = 0;
        std::size_t place = 0;
    };
    struct Block
    {
        qsizetype size = 0;
        QByteArray text; ///< empty when it is enciphered
    };

    struct Piece
    {
        QByteArrayView text;
        std::optional<std::size_t> place; ///< of an entry
    };

    static Result<std::vector<Block>> readBlocks(const SwordLayout& layout, const QString& path);
    static Result<std::vector<Block>> readPlainText(const SwordLayout& layout, const QString& path);
    std::optional<Failure> checkEntries(const QString& file) const;
    std::vector<std::vector<Entry>> entriesByBlock() const;
    std::vector<Piece> pieces() const;

    std::vector<Entry> m_entries;
    std::vector<Block> m_blocks;
};

} // namespace lumen
