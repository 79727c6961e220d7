// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/dictionary_readers.h"

#include "sources/json_readers.h"
#include "sources/user_table.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <array>
#include <memory>
#include <optional>
#include <zlib.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView kDigits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr QStringView kDatabaseHeads = u"00-database"; // what a server tells of itself

Failure noEntries(const QString& file)
{
    return sourceFailure(QFileInfo(file).fileName(), 0, u"표제어가 하나도 없습니다."_s);
}

std::optional<qsizetype> base64Number(QByteArrayView digits)
{
    qsizetype number = 0;
    for (const char digit : digits) {
        const qsizetype value = kDigits.indexOf(digit);
        if (value < 0 || number > (qsizetype(1) << 40))
            return std::nullopt;
        number = number * 64 + value;
    }
    return number;
}

// zlib reads what isn't compressed as it is.
Result<QByteArray> unzipped(const QString& path)
{
    if (!QFileInfo(path).isFile())
        return missingSource(path);
    const std::unique_ptr<gzFile_s, int (*)(gzFile)> file(gzopen(QFile::encodeName(path), "rb"),
                                                          gzclose);
    std::array<char, 65536> piece{};
    QByteArray bytes;
    for (;;) {
        const int read = file ? gzread(file.get(), piece.data(), piece.size()) : -1;
        if (read < 0)
            return sourceFailure(QFileInfo(path).fileName(), 0, u"압축이 손상되었습니다."_s);
        if (read == 0)
            return bytes;
        bytes.append(piece.data(), read);
    }
}

// An indented line that begins no sense goes on with the one before.
QString unwrapped(const QString& text)
{
    static const QRegularExpression sense(u"^ {4}\\S|^ +\\d+: "_s);
    QString result;
    for (const QString& line : text.split(u'\n')) {
        if (line.trimmed().isEmpty())
            continue;
        if (!result.isEmpty())
            result += line.contains(sense) ? u'\n' : u' ';
        result += line.trimmed();
    }
    // Braces mark words that lead to their own entries.
    return result.removeIf([](QChar c) { return c == u'{' || c == u'}'; });
}

} // namespace

DictionaryResult readJsonDictionary(const QString& file)
{
    const auto document = readJsonFile(file);
    if (!document)
        return document.failure();
    std::vector<DictionaryEntry> entries;
    const QJsonObject heads = document.value().object();
    for (auto head = heads.begin(); head != heads.end(); ++head) {
        const QJsonObject entry = head.value().toObject();
        QStringList texts;
        for (const QJsonValue& definition : entry[u"definitions"_s].toArray())
            texts << definition[u"text"_s].toString().trimmed();
        texts.removeAll(QString());
        const QString name = entry[u"name"_s].toString(head.key()).simplified();
        if (name.isEmpty() || texts.isEmpty())
            return sourceFailure(QFileInfo(file).fileName(), 0,
                                 u"표제어 \"%1\"에 이름이나 설명이 없습니다."_s.arg(head.key()));
        entries.push_back({name, texts.join(u'\n')});
    }
    if (entries.empty())
        return noEntries(file);
    return entries;
}

DictionaryResult readDictDictionary(const QString& indexFile, const QString& textFile)
{
    const auto index = unzipped(indexFile);
    if (!index)
        return index.failure();
    const auto text = unzipped(textFile);
    if (!text)
        return text.failure();
    std::vector<DictionaryEntry> entries;
    qint64 number = 0;
    for (const QByteArray& line : index.value().split('\n')) {
        ++number;
        if (line.isEmpty())
            continue;
        const QList<QByteArray> cells = line.split('\t');
        const auto start = cells.size() < 3 ? std::nullopt : base64Number(cells[1]);
        const auto size = cells.size() < 3 ? std::nullopt : base64Number(cells[2]);
        if (!start || !size || *start + *size > text.value().size())
            return sourceFailure(QFileInfo(indexFile).fileName(), number,
                                 u"색인의 줄이 본문 밖을 가리킵니다."_s);
        if (cells[0].startsWith(kDatabaseHeads.toLatin1()))
            continue;
        const QString body = QString::fromUtf8(text.value().mid(*start, *size));
        // The first line repeats the head, in its own capitals.
        entries.push_back({body.section(u'\n', 0, 0).trimmed(), unwrapped(body.section(u'\n', 1))});
    }
    if (entries.empty())
        return noEntries(indexFile);
    return entries;
}

DictionaryResult readTableDictionary(const QStringList& files)
{
    std::vector<DictionaryEntry> entries;
    for (const QString& file : files) {
        const auto lines = readUserTable(file, {{u"표제어"_s, u"설명"_s}, 2});
        if (!lines)
            return lines.failure();
        TableFaults faults(file);
        for (const TableLine& line : lines.value()) {
            if (line.cells[0].isEmpty() || line.cells[1].isEmpty())
                faults.add(line.number, u"표제어나 설명이 비어 있음"_s);
            entries.push_back({line.cells[0], QString(line.cells[1]).replace(u"\\n"_s, u"\n"_s)});
        }
        if (!faults.isEmpty())
            return faults.failure();
    }
    return entries;
}

} // namespace lumen
