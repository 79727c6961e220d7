// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/import/jet_header.h"

#include "text/codepage949.h"

#include <QFile>
#include <QtEndian>

#include <array>
#include <numeric>
#include <utility>

namespace lumen {

namespace {

constexpr char kStoreMagic[] = "SQLite format 3"; // the closing NUL belongs to it
constexpr char kJetMagic[] = "\0\1\0\0Standard Jet DB";
constexpr qsizetype kVersionOffset = 0x14;
constexpr qsizetype kCodedOffset = 0x18;
constexpr qsizetype kCodedBytesJet3 = 126;
constexpr qsizetype kCodedBytesJet4 = 128;
constexpr qsizetype kCodePageOffset = 0x3C;
constexpr qsizetype kPageKeyOffset = 0x3E;
constexpr qsizetype kPasswordOffset = 0x42;
constexpr qsizetype kPasswordBytesJet3 = 20;
constexpr int kPasswordUnitsJet4 = 20;
constexpr qsizetype kCreatedOffset = 0x72;
/// Every Jet file has its header coded with this key.
constexpr std::array<unsigned char, 4> kHeaderKey{0xC7, 0xDA, 0x39, 0x6B};
constexpr int kCodePageKorean = 949;

template <std::size_t N>
bool beginsWith(const QByteArray& head, const char (&magic)[N])
{
    return head.startsWith(QByteArray::fromRawData(magic, static_cast<qsizetype>(N)));
}

/// RC4, which codes and decodes alike.
void applyRc4(char* bytes, qsizetype count)
{
    std::array<unsigned char, 256> state;
    std::iota(state.begin(), state.end(), static_cast<unsigned char>(0));
    unsigned j = 0;
    for (unsigned i = 0; i < 256; ++i) {
        j = (j + state[i] + kHeaderKey[i % kHeaderKey.size()]) & 0xFF;
        std::swap(state[i], state[j]);
    }
    unsigned i = 0;
    j = 0;
    for (qsizetype n = 0; n < count; ++n) {
        i = (i + 1) & 0xFF;
        j = (j + state[i]) & 0xFF;
        std::swap(state[i], state[j]);
        bytes[n] =
            static_cast<char>(bytes[n] ^ static_cast<char>(state[(state[i] + state[j]) & 0xFF]));
    }
}

template <typename T>
T littleEndian(const QByteArray& bytes, qsizetype offset)
{
    return qFromLittleEndian<T>(bytes.constData() + offset);
}

QString jet3Password(const QByteArray& header, int codePage)
{
    QByteArray bytes = header.mid(kPasswordOffset, kPasswordBytesJet3);
    if (const qsizetype end = bytes.indexOf('\0'); end >= 0)
        bytes.truncate(end);
    // A file that doesn't name its code page comes from the country that the program is made for.
    if (codePage == kCodePageKorean || codePage == 0)
        return fromCodePage949(bytes);
    return QString::fromLatin1(bytes);
}

QString jet4Password(const QByteArray& header)
{
    // The creation day, cut to a whole number, masks the text; a day that no calendar has comes
    // from a damaged header and masks nothing.
    const double created = littleEndian<double>(header, kCreatedOffset);
    const bool isDay = created > -1e9 && created < 1e9;
    const auto mask = static_cast<quint32>(isDay ? static_cast<qint32>(created) : 0);
    QString password;
    for (int unit = 0; unit < kPasswordUnitsJet4; ++unit) {
        const auto coded = littleEndian<quint16>(header, kPasswordOffset + 2 * unit);
        const auto code = static_cast<char16_t>(coded ^ (unit % 2 ? mask >> 16 : mask & 0xFFFF));
        if (code == 0)
            break;
        password += QChar(code);
    }
    return password;
}

} // namespace

DatabaseKind databaseKind(const QByteArray& head)
{
    if (beginsWith(head, kStoreMagic))
        return DatabaseKind::Store;
    const bool isJet = beginsWith(head, kJetMagic) && head.size() > kVersionOffset;
    // Higher version bytes belong to Jet's successors, whose files are laid out in another way.
    return isJet && (head[kVersionOffset] == 0 || head[kVersionOffset] == 1)
               ? DatabaseKind::JetFile
               : DatabaseKind::Unknown;
}

std::optional<JetHeader> readJetHeader(const QByteArray& head)
{
    if (databaseKind(head) != DatabaseKind::JetFile)
        return std::nullopt;
    JetHeader header;
    header.version = head[kVersionOffset] == 0 ? JetVersion::Jet3 : JetVersion::Jet4;
    const qsizetype coded = header.version == JetVersion::Jet3 ? kCodedBytesJet3 : kCodedBytesJet4;
    if (head.size() < kCodedOffset + coded)
        return std::nullopt;

    QByteArray plain = head.left(kCodedOffset + coded);
    applyRc4(plain.data() + kCodedOffset, coded);
    header.codePage = littleEndian<quint16>(plain, kCodePageOffset);
    header.encoded = littleEndian<quint32>(plain, kPageKeyOffset) != 0;
    header.password = header.version == JetVersion::Jet3 ? jet3Password(plain, header.codePage)
                                                         : jet4Password(plain);
    return header;
}

QByteArray readDatabaseHead(const QString& nativePath)
{
    QFile file(nativePath);
    return file.open(QIODevice::ReadOnly) ? file.read(kDatabaseHeadBytes) : QByteArray();
}

} // namespace lumen
