// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/tune_files.h"

#include "platform/files/safe_write.h"
#include "reference/companion_folder.h"
#include "reference/tunes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

Result<std::map<int, Tune>> tunesOf(const QString& table)
{
    return table.isEmpty() ? std::map<int, Tune>() : readTunes(table);
}

QString tuneName(int number)
{
    return QString::number(number) + u".mid"_s;
}

bool isOwnFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && isOwnMidiFile(file.readAll());
}

} // namespace

bool tuneFilesAreThere(const QString& tunes, const QString& moduleFolder)
{
    const auto read = tunesOf(tunes);
    if (!read)
        return false; // the making tells why
    const QDir folder(companionFolder(moduleFolder, u"Hymn"_s));
    for (const auto& [number, tune] : read.value())
        if (!folder.exists(tuneName(number)))
            return false;
    return true;
}

Result<QStringList> writeTuneFiles(const QString& tunes, const QString& moduleFolder)
{
    const auto read = tunesOf(tunes);
    if (!read)
        return read.failure();
    QDir folder(companionFolder(moduleFolder, u"Hymn"_s));
    if (!read.value().empty() && !folder.mkpath(u"."_s))
        return Failure{FailureKind::NoAccess, u"폴더를 만들 수 없습니다: %1"_s.arg(folder.path())};
    QStringList remarks;
    for (const auto& [number, tune] : read.value()) {
        const QString path = folder.filePath(tuneName(number));
        if (QFileInfo::exists(path) && !isOwnFile(path)) {
            remarks << u"직접 둔 곡을 그대로 둠: %1"_s.arg(path);
            continue;
        }
        const auto written = writeSafely(path, midiFile(tune));
        if (!written)
            return written.failure();
    }
    for (const QString& name : folder.entryList({u"*.mid"_s}, QDir::Files))
        if (!read.value().contains(QFileInfo(name).completeBaseName().toInt()) &&
            isOwnFile(folder.filePath(name)))
            folder.remove(name);
    return remarks;
}

} // namespace lumen
