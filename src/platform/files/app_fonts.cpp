// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/app_fonts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QFontDatabase>

#include <array>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Families that may be installed, the best first.
using Candidates = std::array<QStringView, 4>;

constexpr Candidates kSansLatin{u"Noto Sans", u"DejaVu Sans", u"Liberation Sans", u"FreeSans"};
constexpr Candidates kSerifLatin{u"Noto Serif", u"DejaVu Serif", u"Liberation Serif", u"FreeSerif"};
constexpr Candidates kMonoLatin{u"DejaVu Sans Mono", u"Liberation Mono", u"Noto Sans Mono",
                                u"FreeMono"};
constexpr Candidates kSansKorean{u"NanumGothic", u"Noto Sans CJK KR", u"NanumBarunGothic",
                                 u"UnDotum"};
constexpr Candidates kSerifKorean{u"NanumMyeongjo", u"Noto Serif CJK KR", u"UnBatang",
                                  u"NanumGothic"};
constexpr Candidates kMonoKorean{u"NanumGothicCoding", u"Noto Sans Mono CJK KR", u"NanumGothic",
                                 u"Noto Sans CJK KR"};
constexpr Candidates kChinese{u"Noto Serif CJK SC", u"Noto Sans CJK SC", u"AR PL UMing CN",
                              u"WenQuanYi Zen Hei"};
constexpr Candidates kNone{};

struct Substitution
{
    QStringView family;
    const Candidates& latin;
    const Candidates& asian;
};

constexpr std::array kSubstitutions{
    Substitution{u"굴림", kSansLatin, kSansKorean},
    Substitution{u"굴림체", kMonoLatin, kMonoKorean},
    Substitution{u"돋움", kSansLatin, kSansKorean},
    Substitution{u"돋움체", kMonoLatin, kMonoKorean},
    Substitution{u"바탕", kSerifLatin, kSerifKorean},
    Substitution{u"바탕체", kSerifLatin, kSerifKorean},
    Substitution{u"궁서", kSerifLatin, kSerifKorean},
    Substitution{u"MS Song", kSerifLatin, kChinese},
    Substitution{u"MS Sans Serif", kSansLatin, kSansKorean},
    Substitution{u"Arial", kSansLatin, kNone},
    Substitution{u"OrvaneFra", kSerifLatin, kNone},
    Substitution{u"OrvaneGrm", kSerifLatin, kNone},
    Substitution{u"OrvaneIta", kSerifLatin, kNone},
    Substitution{u"OrvaneSpa", kSerifLatin, kNone},
    Substitution{u"OrvaneSwe", kSerifLatin, kNone},
};

// The first of the candidates that is installed, as a list of at most one.
QStringList firstInstalled(const Candidates& candidates, const QStringList& installed)
{
    for (const QStringView family : candidates)
        if (!family.isEmpty() && installed.contains(family))
            return {family.toString()};
    return {};
}

QString besideProgram(const QString& folder)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../share/lumenscript/"_s +
                           folder);
}

} // namespace

AppFonts::AppFonts(const PathResolver& paths, QStringList fontFolders)
    : m_paths(paths), m_fontFolders(std::move(fontFolders))
{
    const QStringList installed = QFontDatabase::families();
    for (const Substitution& row : kSubstitutions) {
        const QString family = row.family.toString();
        if (installed.contains(family))
            continue;
        QFont::removeSubstitutions(family);
        QFont::insertSubstitutions(family, firstInstalled(row.latin, installed) +
                                               firstInstalled(row.asian, installed));
    }
}

int AppFonts::AddFontResource(const QString& path)
{
    QString file = m_paths.nativePath(path);
    const QString name = path.sliced(std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/')) + 1);
    for (const QString& folder : m_fontFolders) {
        if (QFileInfo(file).isFile())
            break;
        // File systems of this kind tell the case apart: "OrvaneHeb.TTF" may be "OrvaneHeb.ttf".
        const QStringList names = QDir(folder).entryList(QDir::Files);
        for (const QString& candidate : names)
            if (candidate.compare(name, Qt::CaseInsensitive) == 0)
                file = folder + u'/' + candidate;
    }
    if (!QFileInfo(file).isFile())
        return 0;
    const int id = QFontDatabase::addApplicationFont(file);
    return id < 0 ? 0 : static_cast<int>(QFontDatabase::applicationFontFamilies(id).size());
}

QStringList AppFonts::families() const
{
    QStringList names = QFontDatabase::families();
    for (const Substitution& row : kSubstitutions)
        names << row.family.toString();
    names.removeDuplicates();
    names.sort(Qt::CaseInsensitive);
    return names;
}

QStringList programFontFolders(const QString& nativeProgramFolder)
{
    return {nativeProgramFolder + u"/Fonts"_s, besideProgram(u"fonts"_s)};
}

} // namespace lumen
