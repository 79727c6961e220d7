// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"

#include "jet/store/sqlite_statement.h"
#include "text/field_scramble.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <sqlite3.h>

namespace lumen {

using namespace Qt::StringLiterals;

QString SourceFiles::write(const QString& name, const QByteArray& content) const
{
    const QString path = m_folder.filePath(name);
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write a test file");
    return path;
}

const VerseText* verseAt(const VersionText& version, int book, int chapter, int verse)
{
    const auto found = std::find_if(
        version.verses.begin(), version.verses.end(), [book, chapter, verse](const VerseText& v) {
            return v.book == book && v.chapter == chapter && v.verse == verse;
        });
    return found == version.verses.end() ? nullptr : &*found;
}

QString wordsAt(const VersionText& version, int book, int chapter, int verse)
{
    const VerseText* found = verseAt(version, book, chapter, verse);
    return found ? found->text.value_or(u"<no words>"_s) : u"<no row>"_s;
}

const VersionTask* versionIn(const BuildPlan& plan, int code)
{
    for (const auto& task : plan.tasks)
        if (const auto* version = dynamic_cast<const VersionTask*>(task.get());
            version && version->code() == code)
            return version;
    return nullptr;
}

std::vector<QVariantList> storeRows(const QString& file, const QString& sql)
{
    const SqliteHandle handle(file, SQLITE_OPEN_READONLY);
    SqliteStatement statement(handle.get(), sql.toUtf8());
    std::vector<QVariantList> rows;
    while (statement.step()) {
        QVariantList row;
        for (int column = 0; column < statement.columnCount(); ++column)
            row << statement.value(column);
        rows.push_back(row);
    }
    return rows;
}

bool changeLetter(const QString& path, const QString& text)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        return false;
    const qsizetype at = file.readAll().indexOf(DES::ScrambleField(text).toUtf8());
    return at > 0 && file.seek(at) && file.write("#") == 1;
}

} // namespace lumen
