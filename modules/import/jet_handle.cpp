// SPDX-License-Identifier: GPL-2.0-or-later
#include "import/jet_handle.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <limits>

namespace lumen {

namespace {

constexpr int kCodePageKorean = 949;
/// What one byte can at most become in UTF-8, as the library reckons it.
constexpr qsizetype kUtf8BytesPerByte = 6;

iconv_t openConverter(const QByteArray& to, const QByteArray& from)
{
    return iconv_open(to.constData(), from.constData());
}

bool isOpen(iconv_t converter)
{
    return reinterpret_cast<std::intptr_t>(converter) != -1;
}

} // namespace

quint16 shortFrom(const QByteArray& bytes, qsizetype offset)
{
    return qFromLittleEndian<quint16>(bytes.constData() + offset);
}

quint32 longFrom(const QByteArray& bytes, qsizetype offset)
{
    return qFromLittleEndian<quint32>(bytes.constData() + offset);
}

std::unique_ptr<JetHandle> JetHandle::open(const QString& nativePath, int codePage)
{
    const QFileInfo info(nativePath);
    // An absolute path: the library looks for others along an environment variable too.
    const QByteArray path = QFile::encodeName(info.absoluteFilePath());
    MdbHandle* mdb = mdb_open(path.constData(), MDB_NOFLAGS);
    if (!mdb)
        return nullptr;
    std::unique_ptr<JetHandle> handle(new JetHandle(mdb, info.size()));
    handle->setCharset(codePage);
    return handle;
}

JetHandle::JetHandle(MdbHandle* mdb, qint64 fileSize)
    : m_mdb(mdb), m_fileSize(fileSize),
      m_pageCount(static_cast<quint32>(fileSize / mdb->fmt->pg_size))
{
}

JetHandle::~JetHandle()
{
    mdb_close(m_mdb);
}

void JetHandle::setCharset(int codePage)
{
    // Left to itself the library takes a Korean file for a western one, and makes two question
    // marks of a surrogate pair.
    QByteArray charset = "UTF-16LE";
    if (isJet3())
        charset = "CP" + QByteArray::number(codePage == 0 ? kCodePageKorean : codePage);
    iconv_t in = openConverter("UTF-8", charset);
    if (!isOpen(in)) {
        charset = "CP949";
        in = openConverter("UTF-8", charset);
    }
    iconv_close(m_mdb->iconv_in);
    iconv_close(m_mdb->iconv_out);
    m_mdb->iconv_in = in;
    m_mdb->iconv_out = openConverter(charset, "UTF-8");
}

bool JetHandle::readPage(quint32 page)
{
    return page < m_pageCount && mdb_read_pg(m_mdb, page) == m_mdb->fmt->pg_size;
}

QByteArray JetHandle::currentPage() const
{
    return {reinterpret_cast<const char*>(m_mdb->pg_buf), pageSize()};
}

quint16 JetHandle::shortAt(int offset) const
{
    return qFromLittleEndian<quint16>(m_mdb->pg_buf + offset);
}

quint32 JetHandle::longAt(int offset) const
{
    return qFromLittleEndian<quint32>(m_mdb->pg_buf + offset);
}

std::optional<QByteArray> JetHandle::copyRow(PageRow where)
{
    constexpr auto kMaxRow = static_cast<quint32>(std::numeric_limits<int>::max());
    if (where > kMaxRow || (where >> 8) >= m_pageCount)
        return std::nullopt;
    void* page = nullptr;
    int start = 0;
    size_t length = 0;
    if (mdb_find_pg_row(m_mdb, static_cast<int>(where), &page, &start, &length) != 0)
        return std::nullopt;
    start &= kRowOffset;
    if (!page || start + static_cast<qint64>(length) > pageSize())
        return std::nullopt;
    return QByteArray(static_cast<const char*>(page) + start, static_cast<qsizetype>(length));
}

QString JetHandle::decode(QByteArray bytes) const
{
    // Half a character at the end would send the library's loop past the text.
    const bool compressed = bytes.startsWith("\xFF\xFE");
    if (!isJet3() && !compressed && bytes.size() % 2 != 0)
        bytes.chop(1);
    if (bytes.isEmpty())
        return QStringLiteral("");
    QByteArray utf8(bytes.size() * kUtf8BytesPerByte + 1, Qt::Uninitialized);
    const int length =
        mdb_unicode2ascii(m_mdb, bytes.constData(), static_cast<size_t>(bytes.size()), utf8.data(),
                          static_cast<size_t>(utf8.size()));
    return QString::fromUtf8(utf8.constData(), length);
}

} // namespace lumen
