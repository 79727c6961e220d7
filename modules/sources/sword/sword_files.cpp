// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/sword/sword_files.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace lumen {

using namespace Qt::StringLiterals;

Failure SwordFiles::fault(const QString& path, const QString& reason)
{
    return sourceFailure(QFileInfo(path).fileName(), 0, reason);
}

Result<QByteArray> SwordFiles::bytes(const QString& path)
{
    // A pipe or a device under the name would keep the reader waiting.
    if (!QFileInfo(path).isFile())
        return fault(path, u"파일이 없습니다."_s);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fault(path, u"파일을 읽을 수 없습니다."_s);
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return fault(path, u"파일을 읽을 수 없습니다."_s);
    return bytes;
}

quint32 SwordFiles::number(const QByteArray& bytes, qsizetype at)
{
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

QByteArray SwordFiles::inflated(const QByteArray& packed, qsizetype size)
{
    QByteArray withSize(4, '\0');
    qToBigEndian(static_cast<quint32>(size), withSize.data());
    return qUncompress(withSize + packed); // "" where the check sum is wrong
}

QByteArray SwordFiles::inflated(const QByteArray& packed)
{
    // The toolkit takes the size for a first guess and goes on from there.
    return inflated(packed, packed.size() * 4);
}

} // namespace lumen
