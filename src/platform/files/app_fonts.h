// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/files/fonts.h"
#include "platform/path_resolver.h"

#include <QStringList>

namespace lumen {

/// Makes the names of fonts that this machine lacks stand for installed ones. In place of a Korean
/// font stand two: one for Latin and Greek first and then the Korean one, as the Korean fonts draw
/// a backslash as a won sign. A font that is installed is never substituted.
class AppFonts : public Fonts
{
public:
    /// `fontFolders` (native) are where a font file is looked for when it isn't at its path.
    AppFonts(const PathResolver& paths, QStringList fontFolders);

    int AddFontResource(const QString& path) override;
    QStringList families() const override;

private:
    const PathResolver& m_paths;
    QStringList m_fontFolders;
};

/// Where the program's own fonts may lie: the folder Fonts of the program's folder, then
/// `<prefix>/share/lumenscript/fonts`.
QStringList programFontFolders(const QString& nativeProgramFolder);

} // namespace lumen
