// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/registry/registry_file.h"

#include <QStringDecoder>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr char16_t kEndLine[] = u"; end";

// A backslash makes the sign behind it a plain one; line ends have letters. Key paths are full of
// backslashes and hold no line ends, so they stand as they are.
QString escaped(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        if (c == u'\n')
            result += u"\\n"_s;
        else if (c == u'\r')
            result += u"\\r"_s;
        else if (c == u'\\' || c == u'=')
            result += QString(u'\\') + c;
        else
            result += c;
    }
    return result;
}

QString escapedName(const QString& name)
{
    const QString text = escaped(name);
    const bool looksLikeMark = text.startsWith(u'[') || text.startsWith(u';');
    return looksLikeMark ? u'\\' + text : text;
}

QString unescaped(QStringView text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        QChar c = text[i];
        if (c == u'\\' && i + 1 < text.size()) {
            c = text[++i];
            if (c == u'n')
                c = u'\n';
            else if (c == u'r')
                c = u'\r';
        }
        result += c;
    }
    return result;
}

// The first equals sign that isn't escaped, -1 without one.
qsizetype separatorOf(QStringView line)
{
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == u'\\')
            ++i;
        else if (line[i] == u'=')
            return i;
    }
    return -1;
}

// Takes one line into the tree; false when it makes no sense.
bool takeLine(QStringView line, ReadRegistry& read, RegistryKey*& key)
{
    if (line.isEmpty() || line.startsWith(u';'))
        return true;
    if (line.startsWith(u'[')) {
        key = nullptr;
        if (!line.endsWith(u']') || line.size() < 3)
            return false;
        const QString path = line.sliced(1, line.size() - 2).toString();
        key = &read.tree[foldedName(path)];
        key->path = path;
        return true;
    }
    const qsizetype separator = separatorOf(line);
    if (key == nullptr || separator < 0 || line.contains(QChar(u'\0')))
        return false;
    const QString name = unescaped(line.first(separator));
    key->values[foldedName(name)] = {name, unescaped(line.sliced(separator + 1))};
    return true;
}

} // namespace

QString foldedName(QStringView name)
{
    return name.toString().toCaseFolded();
}

QByteArray registryText(const RegistryTree& tree)
{
    QString text;
    for (const auto& [folded, key] : tree) {
        text += u"["_s + key.path + u"]\n"_s;
        for (const auto& [foldedValue, value] : key.values)
            text += escapedName(value.name) + u'=' + escaped(value.text) + u'\n';
        text += u'\n';
    }
    return (text + QString::fromUtf16(kEndLine) + u'\n').toUtf8();
}

ReadRegistry readRegistryText(const QByteArray& bytes)
{
    ReadRegistry read;
    if (bytes.isEmpty())
        return read;
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    read.damaged = decoder.hasError();

    QStringList lines = text.split(u'\n');
    // Behind the last line end stands nothing, unless the file was cut inside a line.
    const bool cut = !lines.last().isEmpty();
    lines.removeLast();
    if (cut || lines.isEmpty() || lines.last() != QStringView(kEndLine))
        read.damaged = true;
    RegistryKey* key = nullptr;
    for (const QString& line : lines)
        if (!takeLine(line, read, key))
            read.damaged = true;
    return read;
}

} // namespace lumen
