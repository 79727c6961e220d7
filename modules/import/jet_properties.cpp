// SPDX-License-Identifier: GPL-2.0-or-later
#include "import/jet_properties.h"

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// A block is a magic word and chunks. A chunk: length with this head (4), type (2), content.
constexpr qsizetype kMagicBytes = 4;
constexpr qsizetype kChunkHead = 6;
constexpr quint16 kNamesChunk = 0x80;
constexpr quint16 kColumnChunk = 0x01;
// A column's chunk: length of the next two (4), length of the name (2), name, then properties.
constexpr qsizetype kOwnerHead = 6;
// A property: length with this head (2), flag, type, number of its name (2), length of the value
// (2), value.
constexpr qsizetype kPropertyHead = 8;

QStringList readNames(const JetHandle& file, const QByteArray& content)
{
    QStringList names;
    for (qsizetype at = 0; at + 2 <= content.size();) {
        const qsizetype length = shortFrom(content, at);
        names << file.decode(content.mid(at + 2, length));
        at += 2 + length;
    }
    return names;
}

bool isRequired(const QByteArray& properties, const QStringList& names)
{
    for (qsizetype at = 0; at + kPropertyHead <= properties.size();) {
        const qsizetype length = shortFrom(properties, at);
        const qsizetype name = shortFrom(properties, at + 4);
        const qsizetype valueLength = shortFrom(properties, at + 6);
        if (length < kPropertyHead)
            return false;
        if (name < names.size() && names[name] == u"Required"_s && valueLength > 0 &&
            at + kPropertyHead < properties.size())
            return properties[at + kPropertyHead] != 0;
        at += length;
    }
    return false;
}

} // namespace

QStringList requiredColumns(const JetHandle& file, const QByteArray& block)
{
    QStringList names;
    QStringList required;
    for (qsizetype at = kMagicBytes; at + kChunkHead <= block.size();) {
        const qsizetype length = longFrom(block, at);
        const quint16 type = shortFrom(block, at + 4);
        if (length < kChunkHead)
            break;
        const QByteArray content = block.mid(at + kChunkHead, length - kChunkHead);
        if (type == kNamesChunk) {
            names = readNames(file, content);
        } else if (type == kColumnChunk && content.size() >= kOwnerHead) {
            const qsizetype nameLength = shortFrom(content, 4);
            if (isRequired(content.mid(kOwnerHead + nameLength), names))
                required << file.decode(content.mid(kOwnerHead, nameLength));
        }
        at += length;
    }
    return required;
}

} // namespace lumen
