// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/module_source.h"

#include "sources/json_readers.h"
#include "sources/sword/osis_reader.h"
#include "sources/sword/sword_process.h"
#include "sources/usfm/usfm_reader.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

VersionResult readSource(const ModuleSource& source)
{
    const QString file = source.files.value(0);
    switch (source.format) {
    case SourceFormat::Sword:
        return readSwordApart(source.sword);
    case SourceFormat::Osis:
        return readOsisFile(file);
    case SourceFormat::OsisWithNumbers:
        return readOsisFile(file, StrongNumbers::Write);
    case SourceFormat::Usfm:
        return readUsfmFiles(source.files);
    case SourceFormat::BookJson:
        return readBookJsonFiles(source.files);
    case SourceFormat::NestedJson:
        return readNestedJsonFile(file);
    case SourceFormat::FlatJson:
        return readFlatJsonFile(file);
    }
    return Failure{FailureKind::Invalid, file};
}

bool sourceIsThere(const ModuleSource& source)
{
    if (source.format == SourceFormat::Sword)
        return !swordConfFile(source.sword).isEmpty();
    return !source.files.isEmpty() &&
           std::all_of(source.files.begin(), source.files.end(),
                       [](const QString& file) { return QFileInfo::exists(file); });
}

QString sourceStamp(const ModuleSource& source)
{
    const QStringList files =
        source.format == SourceFormat::Sword ? swordFiles(source.sword) : source.files;
    QString stamp;
    for (const QString& file : files) {
        const QFileInfo info(file);
        stamp += u"%1 %2 %3\n"_s.arg(info.absoluteFilePath())
                     .arg(info.size())
                     .arg(info.lastModified().toMSecsSinceEpoch());
    }
    return stamp;
}

} // namespace lumen
