// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QtEndian>

#include <array>
#include <cstring>
#include <utility>

namespace lumen {

/// Makes the first page of a Jet file: what the tests put in is coded as the engine codes it.
class JetHeaderMaker
{
public:
    /// `version` 0 is Jet 3, 1 Jet 4; anything else can be asked for as well.
    explicit JetHeaderMaker(int version) : m_version(version)
    {
        std::memcpy(m_page.data(), "\0\1\0\0Standard Jet DB", 20);
        m_page[0x14] = static_cast<char>(version);
    }

    JetHeaderMaker& codePage(quint16 page) { return put(0x3C, page); }
    JetHeaderMaker& pageKey(quint32 key) { return put(0x3E, key); }
    /// Bytes in the file's code page.
    JetHeaderMaker& jet3Password(const QByteArray& bytes)
    {
        m_page.replace(0x42, bytes.size(), bytes);
        return *this;
    }
    /// Masked by the whole part of the creation day, which lies further on.
    JetHeaderMaker& jet4Password(const QString& password, double created)
    {
        quint64 bits = 0;
        std::memcpy(&bits, &created, sizeof bits);
        put(0x72, bits);
        const auto mask = static_cast<quint32>(static_cast<qint32>(created));
        for (int unit = 0; unit < 20; ++unit) {
            const quint16 code = unit < password.size() ? password[unit].unicode() : u'\0';
            put(0x42 + 2 * unit, static_cast<quint16>(code ^ (unit % 2 ? mask >> 16 : mask)));
        }
        return *this;
    }

    QByteArray page() const
    {
        QByteArray coded = m_page;
        const std::array<unsigned char, 4> key{0xC7, 0xDA, 0x39, 0x6B};
        std::array<unsigned char, 256> s{};
        for (int i = 0; i < 256; ++i)
            s[static_cast<size_t>(i)] = static_cast<unsigned char>(i);
        unsigned char j = 0;
        for (size_t i = 0; i < 256; ++i) {
            j = static_cast<unsigned char>(j + s[i] + key[i % 4]);
            std::swap(s[i], s[j]);
        }
        unsigned char i = 0;
        j = 0;
        for (qsizetype at = 0x18; at < 0x18 + (m_version == 0 ? 126 : 128); ++at) {
            j = static_cast<unsigned char>(j + s[++i]);
            std::swap(s[i], s[j]);
            coded[at] = static_cast<char>(coded[at] ^ s[static_cast<unsigned char>(s[i] + s[j])]);
        }
        return coded;
    }

private:
    template <typename T>
    JetHeaderMaker& put(qsizetype offset, T value)
    {
        qToLittleEndian(value, m_page.data() + offset);
        return *this;
    }

    int m_version;
    QByteArray m_page = QByteArray(4096, '\0');
};

} // namespace lumen
