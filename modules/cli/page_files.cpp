// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/page_files.h"

#include "platform/files/safe_write.h"

#include <QDir>
#include <QFile>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView kOurMark = "CC0-1.0"; // in the head of every page that comes with us

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct Copied
{
    int pages = 0;
    QStringList remarks;
};

void copyPages(const QDir& from, const QDir& to, Copied& copied)
{
    const QStringList names = from.entryList({u"*.htm"_s, u"*.html"_s}, QDir::Files, QDir::Name);
    if (names.isEmpty() || !to.mkpath(u"."_s))
        return;
    for (const QString& name : names) {
        const QByteArray page = contentOf(from.filePath(name));
        const QByteArray former = contentOf(to.filePath(name));
        if (former == page)
            continue;
        if (!former.isEmpty() && !former.contains(kOurMark)) {
            copied.remarks << u"직접 둔 페이지는 그대로 두었습니다: %1"_s.arg(to.filePath(name));
            continue;
        }
        if (const auto written = writeSafely(to.filePath(name), page); !written)
            copied.remarks << written.failure().detail;
        else
            ++copied.pages;
    }
}

} // namespace

QStringList installPages(const QString& content, const QString& dataFolder)
{
    Copied copied;
    copyPages(content + u"/pages"_s, dataFolder, copied);
    copyPages(content + u"/introductions"_s, dataFolder + u"/introductions"_s, copied);
    if (copied.pages > 0)
        copied.remarks << u"자료 페이지 %1개를 두었습니다."_s.arg(copied.pages);
    return copied.remarks;
}

} // namespace lumen
