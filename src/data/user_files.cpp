// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/user_files.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kTitleLength = 130;
constexpr int kScratchTables = 11;

ColumnDef key(const QString& name)
{
    return {name, FieldType::Long, 0, true};
}

ColumnDef text(const QString& name)
{
    return {name, FieldType::Text};
}

ColumnDef memo(const QString& name)
{
    return {name, FieldType::Memo, 0};
}

ColumnDef date(const QString& name)
{
    return {name, FieldType::Date, 0};
}

// A text of a record stands there twice, plain for searching and as RTF for showing. What is
// searched comes first: a scan would have to walk over each long text in front of it.
TableSchema recordTable(const QString& name, const QStringList& days, const QStringList& texts)
{
    TableSchema table{
        name,
        {key(u"일련번호"_s), {u"제목"_s, FieldType::Text, kTitleLength}, text(u"분류"_s)},
        {}};
    for (const QString& day : days)
        table.columns.push_back(date(day));
    for (const QString& each : texts)
        table.columns.push_back(memo(each));
    table.columns.push_back(memo(u"rtf제목"_s));
    for (const QString& each : texts)
        table.columns.push_back(memo(u"rtf"_s + each));
    return table;
}

// "\\myc.mdb" with "bak" becomes "\\mycbak.mdb".
QString withSuffix(QStringView name, QStringView suffix)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return name.left(dot).toString() + suffix.toString() + name.sliced(dot).toString();
}

// Names are told apart without regard to case, and Hangul of another system comes decomposed.
QString folded(const QString& name)
{
    return name.normalized(QString::NormalizationForm_C).toLower();
}

} // namespace

QString UserFile::copyName() const
{
    return withSuffix(name, u"c");
}

QString UserFile::formerBackupName() const
{
    return withSuffix(name, u"bak");
}

std::vector<TableSchema> user_file::noteTables()
{
    return {{u"myc"_s, {text(u"Index"_s), {u"seq"_s, FieldType::Long}, memo(u"note"_s)}, {}}};
}

std::vector<TableSchema> user_file::sermonTables()
{
    return {recordTable(u"설교"_s, {u"설교일"_s, u"작성일"_s},
                        {u"말씀"_s, u"본문"_s, u"기도"_s, u"요약"_s})};
}

std::vector<TableSchema> user_file::quietTimeTables()
{
    return {recordTable(u"QT"_s, {u"작성일"_s}, {u"말씀"_s, u"본문"_s, u"기도"_s, u"적용"_s})};
}

std::vector<TableSchema> user_file::addressTables()
{
    return {{u"전자우편주소록"_s,
             {key(u"ID"_s), text(u"성명"_s), text(u"전자우편"_s), text(u"메모"_s)},
             {}}};
}

std::vector<TableSchema> user_file::illustrationTables()
{
    return {
        {u"예화"_s, {key(u"num"_s), text(u"Title"_s), text(u"Category"_s), memo(u"cont"_s)}, {}}};
}

std::vector<TableSchema> user_file::scratchTables()
{
    std::vector<TableSchema> tables;
    for (int i = 0; i < kScratchTables; ++i)
        tables.push_back({u"Table"_s + QString::number(i),
                          {text(u"Index"_s)},
                          {{u"PrimaryKey"_s, {u"Index"_s}, true, true}}});
    return tables;
}

FilePolicy filePolicy(const QString& path)
{
    const QString name = folded(QFileInfo(path).fileName());
    for (const UserFile& file : user_file::kAll)
        if (name == folded(file.name.sliced(1).toString()))
            return file.policy;
    if (name.endsWith(u".mdb") || name.endsWith(u".draft"))
        return kUserTexts;
    return {.readOnly = true};
}

QString importProgram()
{
    const QString folder = QCoreApplication::applicationDirPath();
    const QString beside = folder + u"/lumen-modules"_s;
    for (const QString& place : {beside, folder + u"/../libexec/lumenscript/lumen-modules"_s}) {
        const QFileInfo program(place);
        if (program.isFile() && program.isExecutable())
            return program.absoluteFilePath();
    }
    return beside;
}

ImportOptions importOptions()
{
    return {importProgram(),
            QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                u"/lumenscript/modules"_s};
}

} // namespace lumen
