// SPDX-License-Identifier: GPL-2.0-or-later
#include "build/version_module_writer.h"

#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "common/row_digest.h"
#include "jet/store/store_writer.h"
#include "text/field_scramble.h"

#include <QVariant>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// All modules carry the one password that the program opens them with.
constexpr QStringView kModulePassword = u"qolvetrinam";
constexpr int kKeyLength = 20;
constexpr int kChapterKeyLength = 10;
constexpr int kCodeLength = 2;
constexpr std::size_t kRowsPerStep = 1000;

TableSchema versionTable(const QString& name)
{
    return {name,
            {{u"index"_s, FieldType::Text, kKeyLength, false, true},
             {u"Chap"_s, FieldType::Text, kChapterKeyLength},
             {u"Verse"_s, FieldType::Short},
             {u"Cont"_s, FieldType::Memo},
             {u"part"_s, FieldType::Memo},
             {u"miniTitle"_s, FieldType::Memo},
             {u"Testa"_s, FieldType::Text, kCodeLength},
             {u"Category"_s, FieldType::Text, kCodeLength}},
            {{u"index"_s, {u"index"_s}, true}, {u"Chap"_s, {u"Chap"_s}}}};
}

// A null QString would be bound as Null, and "" is no Null.
QVariant text(const QString& value)
{
    return value.isNull() ? QVariant(u""_s) : QVariant(value);
}

// Windows set the piece before a verse directly in front of its words.
QVariant partOf(const VerseText& verse)
{
    if (!verse.part)
        return {};
    return verse.part->endsWith(u' ') ? *verse.part : *verse.part + u' ';
}

QVariant orNull(const QString& value)
{
    return value.isEmpty() ? QVariant() : QVariant(value);
}

QVariantList versionRow(const VerseText& verse)
{
    return {BibleCode::verseKey(verse.book, verse.chapter, verse.verse),
            BibleCode::GetChapKey(verse.book, verse.chapter),
            verse.verse,
            verse.text ? QVariant(DES::ScrambleField(*verse.text)) : QVariant(),
            partOf(verse),
            text(verse.miniTitle),
            testament(verse.book),
            orNull(bookGroup(verse.book))};
}

} // namespace

Result<Done> writeVersionModule(const QString& file, const ModuleLabel& label,
                                const VersionText& version,
                                const std::function<bool(double)>& advance)
{
    StoreWriter writer(file, StoreCompare::Binary, StoreUse::OnlyRead);
    writer.setPassword(kModulePassword.toString());
    for (const auto& [key, value] : label.originLines)
        writer.addOriginLine(key, value);
    writer.createTable(versionTable(label.tableName));
    RowDigest digest;
    for (std::size_t i = 0; i < version.verses.size(); ++i) {
        const double share = static_cast<double>(i) / static_cast<double>(version.verses.size());
        if (i % kRowsPerStep == 0 && !advance(share))
            return Failure{FailureKind::Cancelled, file};
        const QVariantList row = versionRow(version.verses[i]);
        writer.addRow(label.tableName, row);
        digest.add(label.tableName, row);
    }
    if (!advance(1))
        return Failure{FailureKind::Cancelled, file};
    writer.addOriginLine(RowDigest::kKey.toString(), digest.result());
    writer.commit();
    return Done{};
}

} // namespace lumen
