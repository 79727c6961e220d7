// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

// The library includes glib inside extern "C", which glib's C++ parts don't survive.
#include <QByteArray>
#include <QString>

#include <glib.h>
#include <mdbtools.h>
#include <memory>
#include <optional>

namespace lumen {

/// Where a row or a piece of a long value stands: page times 256 plus row.
using PageRow = quint32;

/// An open genuine Jet file. All that is read goes through here and is checked against the page,
/// since the library trusts whatever a damaged file says. One thread, one handle.
class JetHandle
{
public:
    /// `codePage` is that of a Jet 3 file's texts. Nothing when the library can't open the file.
    static std::unique_ptr<JetHandle> open(const QString& nativePath, int codePage);
    ~JetHandle();
    JetHandle(const JetHandle&) = delete;
    JetHandle& operator=(const JetHandle&) = delete;

    MdbHandle* get() const { return m_mdb; }
    bool isJet3() const { return m_mdb->f->jet_version == MDB_VER_JET3; }
    int pageSize() const { return static_cast<int>(m_mdb->fmt->pg_size); }
    quint32 pageCount() const { return m_pageCount; }
    qint64 fileSize() const { return m_fileSize; }

    /// Makes a page the current one, decoded if need be; false beyond the end of the file.
    bool readPage(quint32 page);
    /// The current page, copied.
    QByteArray currentPage() const;
    quint8 byteAt(int offset) const { return m_mdb->pg_buf[offset]; }
    quint16 shortAt(int offset) const;
    quint32 longAt(int offset) const;

    /// Copies a row of any page; the current page stays. Nothing when there is no such row.
    std::optional<QByteArray> copyRow(PageRow where);

    /// Bytes of a text column as text. Jet 4 texts may be compressed.
    QString decode(QByteArray bytes) const;

private:
    JetHandle(MdbHandle* mdb, qint64 fileSize);
    void setCharset(int codePage);

    MdbHandle* m_mdb;
    qint64 m_fileSize;
    quint32 m_pageCount;
};

/// Little-endian numbers out of copied bytes. The caller has checked the length.
quint16 shortFrom(const QByteArray& bytes, qsizetype offset);
quint32 longFrom(const QByteArray& bytes, qsizetype offset);

/// The flags of a row's start offset on its page, and the offset itself.
inline constexpr int kRowDeleted = 0x8000;
inline constexpr int kRowMoved = 0x4000;
inline constexpr int kRowOffset = 0x1FFF;

} // namespace lumen
