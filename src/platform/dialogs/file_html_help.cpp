// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/dialogs/file_html_help.h"

#include "platform/files/shell.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// The pages were named on a file system that ignores case.
QString findPage(const QString& folder, const QString& page)
{
    const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
    for (const QString& name : names)
        if (name.compare(page, Qt::CaseInsensitive) == 0)
            return folder + u'/' + name;
    return {};
}

} // namespace

FileHtmlHelp::FileHtmlHelp(Shell& shell, QStringList folders)
    : m_shell(shell), m_folders(std::move(folders))
{
}

Result<Done> FileHtmlHelp::showPage(const QString& page)
{
    for (const QString& folder : m_folders) {
        const QString found = findPage(folder, page);
        if (!found.isEmpty())
            return m_shell.open(found);
    }
    return Failure{FailureKind::NotFound, page};
}

Result<Done> FileHtmlHelp::showIndex()
{
    return showPage(u"index.htm"_s);
}

Result<Done> FileHtmlHelp::showSearch()
{
    return showPage(u"search.htm"_s);
}

QStringList helpFolders(const QString& nativeProgramFolder)
{
    const QString installed =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../share/lumenscript/help"_s);
    return {nativeProgramFolder + u"/Help"_s, installed};
}

} // namespace lumen
