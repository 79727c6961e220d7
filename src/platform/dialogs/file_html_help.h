// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/dialogs/html_help.h"

#include <QStringList>

namespace lumen {

class Shell;

/// The help as a folder of HTML pages, opened in the browser. Index and search page are the pages
/// "index.htm" and "search.htm" of the same folder.
class FileHtmlHelp : public HtmlHelp
{
public:
    /// The pages are looked for in each of the native folders in turn.
    FileHtmlHelp(Shell& shell, QStringList folders);

    Result<Done> showPage(const QString& page) override;
    Result<Done> showIndex() override;
    Result<Done> showSearch() override;

private:
    Shell& m_shell;
    QStringList m_folders;
};

/// Where help pages may lie: the folder Help of the program's folder, then
/// `<prefix>/share/lumenscript/help`.
QStringList helpFolders(const QString& nativeProgramFolder);

} // namespace lumen
