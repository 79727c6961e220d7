// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/module_files.h"

#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "data/user_files.h"
#include "text/field_scramble.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

QVariant orNull(const std::optional<QString>& text)
{
    return text ? QVariant(*text) : QVariant();
}

QVariantList rowOf(const PlainVerse& verse)
{
    const QString group = bookGroup(verse.book);
    const auto stored = verse.cont ? std::optional(DES::ScrambleField(*verse.cont)) : std::nullopt;
    return {BibleCode::verseKey(verse.book, verse.chapter, verse.verse),
            BibleCode::GetChapKey(verse.book, verse.chapter),
            verse.verse,
            orNull(stored),
            orNull(verse.part),
            verse.miniTitle.isNull() ? u""_s : verse.miniTitle,
            testament(verse.book),
            group.isEmpty() ? QVariant() : QVariant(group)};
}

} // namespace

void writeModule(const QString& nativePath, const QList<ModuleTable>& tables)
{
    QDir().mkpath(QFileInfo(nativePath).path());
    StoreWriter writer(nativePath, StoreCompare::Binary);
    writer.setPassword(kModulePassword.toString());
    for (const ModuleTable& table : tables) {
        writer.createTable(table.schema);
        for (const QVariantList& row : table.rows)
            writer.addRow(table.schema.name, row);
    }
    writer.commit();
}

ModuleTable versionTable(const QString& name, const QList<PlainVerse>& verses)
{
    const auto memo = [](const QString& column) { return ColumnDef{column, FieldType::Memo, 0}; };
    ModuleTable table{{name,
                       {{u"index"_s, FieldType::Text, 20},
                        {u"Chap"_s, FieldType::Text, 10},
                        {u"Verse"_s, FieldType::Short, 0},
                        memo(u"Cont"_s),
                        memo(u"part"_s),
                        memo(u"miniTitle"_s),
                        {u"Testa"_s, FieldType::Text, 2},
                        {u"Category"_s, FieldType::Text, 2}},
                       {{u"index"_s, {u"index"_s}, true}, {u"Chap"_s, {u"Chap"_s}}}},
                      {}};
    for (const PlainVerse& verse : verses)
        table.rows << rowOf(verse);
    return table;
}

void writeVersion(const QString& nativePath, const QString& name, const QList<PlainVerse>& verses)
{
    writeModule(nativePath, {versionTable(name, verses)});
}

} // namespace lumen
