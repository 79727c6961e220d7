// SPDX-License-Identifier: GPL-2.0-or-later
#include "recipes/user_sources.h"

#include "original/original_versions.h"
#include "recipes/concordance_task.h"
#include "recipes/korean_edition.h"
#include "recipes/recipes.h"
#include "sources/book_names.h"
#include "sources/json_readers.h"
#include "sources/usfm/usfm_reader.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <map>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

struct SwordName
{
    QStringView name;
    int code = 0;
};

// The names under which SWORD modules of catalogue versions are commonly spread.
constexpr std::array kSwordNames{
    SwordName{u"ASV", 205},     SwordName{u"YLT", 209},        SwordName{u"Darby", 210},
    SwordName{u"BBE", 211},     SwordName{u"Webster", 212},    SwordName{u"Vulgate", 214},
    SwordName{u"DRC", 216},     SwordName{u"Weymouth", 217},   SwordName{u"FreSegond", 218},
    SwordName{u"GerSch", 219},  SwordName{u"GerElb1905", 221}, SwordName{u"RusSynodal", 224},
    SwordName{u"Swe1917", 225}, SwordName{u"Brenton", 228},    SwordName{u"ChiUns", 401},
};

// What reference modules are made of; a file is known by its name.
constexpr std::array kTableNames{
    QStringView(u"hymns.tsv"),      QStringView(u"tunes.tsv"),
    QStringView(u"easton.json"),    QStringView(u"hitchcock.json"),
    QStringView(u"commentary.tsv"), QStringView(u"bible-dictionary.tsv"),
    QStringView(u"wesley.tsv"),     QStringView(u"english-dictionary.tsv"),
    QStringView(u"headings.tsv"),   QStringView(u"cross-references.tsv"),
};

bool isTableName(const QString& name)
{
    return std::ranges::find(kTableNames, name) != kTableNames.end() ||
           concordanceOfTable(name) != 0;
}

class FolderSearch
{
public:
    explicit FolderSearch(const QString& root) : m_root(QDir(root).absolutePath()) {}

    UserSources run();

private:
    enum class KnownBy { Name, Content };

    struct Place
    {
        QString path;
        KnownBy knownBy = KnownBy::Name;
    };

    // Each tells whether it found anything to read, or to tell.
    bool visit(const QString& folder, const QStringList& files);
    bool visitJson(const QString& folder, const QStringList& files);
    bool visitUsfm(const QString& folder, const QStringList& files);
    bool visitOsis(const QString& file);
    bool visitTable(const QString& file);
    bool visitWesley(const QString& folder, const QStringList& files);
    bool visitSword(const QString& confFile);
    bool readCode(const QString& path, UserSource& source) const;
    void add(const QString& path, UserSource source, KnownBy knownBy);
    void tellUnknown(const QString& folder, const QStringList& files);

    QString m_root;
    UserSources m_sources;
    std::vector<Place> m_places; ///< of the sources found
    QStringList m_swordRoots;
};

QStringList endingWith(const QStringList& files, std::initializer_list<QStringView> endings)
{
    QStringList result;
    for (const QString& file : files)
        if (std::any_of(endings.begin(), endings.end(), [&file](QStringView ending) {
                return file.endsWith(ending, Qt::CaseInsensitive);
            }))
            result << file;
    return result;
}

bool isOsisFile(const QString& file)
{
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
        return false;
    QXmlStreamReader xml(&device);
    return xml.readNextStartElement() && xml.name() == u"osis";
}

UserSources FolderSearch::run()
{
    std::map<QString, QStringList> folders;
    QDirIterator walk(m_root, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString file = walk.next();
        folders[QFileInfo(file).absolutePath()] << file;
    }
    for (const auto& [folder, files] : folders)
        if (QFileInfo(folder).fileName() == u"mods.d")
            m_swordRoots << QFileInfo(folder).path() + u'/';
    for (auto& [folder, files] : folders) {
        files.sort();
        if (!visit(folder, files))
            tellUnknown(folder, files);
    }
    return std::move(m_sources);
}

bool FolderSearch::visit(const QString& folder, const QStringList& files)
{
    bool found = visitJson(folder, endingWith(files, {u".json"}));
    found = visitUsfm(folder, endingWith(files, {u".usfm", u".sfm"})) || found;
    for (const QString& file : endingWith(files, {u".xml", u".osis"}))
        found = visitOsis(file) || found;
    for (const QString& file : endingWith(files, {u".tsv", u".json"}))
        found = visitTable(file) || found;
    found = visitWesley(folder, endingWith(files, {u".json"})) || found;
    for (const QString& file : endingWith(files, {u".csv"}))
        if (looksLikeByzantine(file)) {
            m_sources.byzantineFiles << file;
            found = true;
        }
    if (QFileInfo(folder).fileName() == u"mods.d")
        for (const QString& file : endingWith(files, {u".conf"}))
            found = visitSword(file) || found;
    return found;
}

// A folder that no reader has any use for is named: its user expects something of it.
void FolderSearch::tellUnknown(const QString& folder, const QStringList& files)
{
    const auto isData = [&folder](const QString& root) { return folder.startsWith(root); };
    if (std::ranges::any_of(m_swordRoots, isData))
        return;
    static const QRegularExpression companion(
        u"^(README|LICEN[SC]E|COPYING|COPYRIGHT|NOTICE|CHANGELOG)"_s,
        QRegularExpression::CaseInsensitiveOption);
    QStringList names;
    for (const QString& file : files)
        if (const QString name = QFileInfo(file).fileName(); !name.contains(companion))
            names << name;
    if (names.isEmpty())
        return;
    const QString others = names.size() == 1 ? QString() : u" 외 %1개"_s.arg(names.size() - 1);
    m_sources.remarks << u"읽을 수 있는 원본이 없는 폴더입니다: %1 (%2%3)"_s.arg(
        folder, names.first(), others);
}

bool FolderSearch::visitJson(const QString& folder, const QStringList& files)
{
    // One file of the right shape makes them all books, so that a damaged one is told and not
    // passed over.
    if (std::ranges::none_of(files, looksLikeBookJson))
        return false;
    UserSource source{0, {}, {SourceFormat::BookJson, files, {}}};
    KnownBy knownBy = KnownBy::Name;
    if (!readCode(folder, source)) {
        knownBy = KnownBy::Content;
        source.code = koreanEdition(files).value_or(0);
    }
    add(folder, source, knownBy);
    return true;
}

bool FolderSearch::visitUsfm(const QString& folder, const QStringList& files)
{
    if (files.isEmpty())
        return false;
    UserSource source{0, {}, {SourceFormat::Usfm, files, {}}};
    readCode(folder, source);
    add(folder, source, KnownBy::Name);
    return true;
}

bool FolderSearch::visitOsis(const QString& file)
{
    if (!isOsisFile(file))
        return false;
    UserSource source{0, {}, {SourceFormat::Osis, {file}, {}}};
    readCode(file, source);
    add(file, source, KnownBy::Name);
    return true;
}

bool FolderSearch::visitTable(const QString& file)
{
    const QString name = QFileInfo(file).fileName().toLower();
    if (!isTableName(name))
        return false;
    const auto [known, added] = m_sources.tables.emplace(name, file);
    if (!added)
        m_sources.remarks << u"%1이 둘입니다. 쓰는 것: %2, 쓰지 않는 것: %3"_s.arg(
            name, known->second, file);
    return true;
}

bool FolderSearch::visitWesley(const QString& folder, const QStringList& files)
{
    const auto isBook = [](const QString& file) {
        return BookNames::fromEnglish(QFileInfo(file).completeBaseName()).has_value();
    };
    if (QFileInfo(folder).fileName().compare(u"wesley", Qt::CaseInsensitive) != 0 ||
        !std::ranges::any_of(files, isBook))
        return false;
    std::ranges::copy_if(files, std::back_inserter(m_sources.wesleyFiles), isBook);
    return true;
}

bool FolderSearch::visitSword(const QString& confFile)
{
    UserSource source{0, {}, {SourceFormat::Sword, {}, swordModuleOf(confFile)}};
    if (source.source.sword.name.isEmpty())
        return false;
    KnownBy knownBy = KnownBy::Name;
    if (!readCode(confFile, source)) {
        const auto known =
            std::find_if(kSwordNames.begin(), kSwordNames.end(), [&source](const SwordName& row) {
                return row.name == source.source.sword.name;
            });
        source.code = known == kSwordNames.end() ? 0 : known->code;
        knownBy = KnownBy::Content;
    }
    if (source.name.isEmpty())
        source.name = source.source.sword.name;
    add(confFile, source, knownBy);
    return true;
}

// The nearest name wins: that of the file, then those of the folders up to the user's.
bool FolderSearch::readCode(const QString& path, UserSource& source) const
{
    static const QRegularExpression form(uR"(^(\d{3})(?:[ _-]+([^.]+))?(?:\.[A-Za-z]+)?$)"_s);
    for (QString at = path; at.startsWith(m_root) && at.size() >= m_root.size();
         at = QFileInfo(at).path()) {
        const auto match = form.match(QFileInfo(at).fileName());
        if (!match.hasMatch())
            continue;
        source.code = match.captured(1).toInt();
        source.name = match.captured(2).trimmed();
        return true;
    }
    return false;
}

// A version has one source. What a number was written on goes before what was guessed.
void FolderSearch::add(const QString& path, UserSource source, KnownBy knownBy)
{
    if (source.code == 0) {
        m_sources.remarks
            << u"어느 역본인지 알 수 없습니다: %1 (폴더 이름을 역본 번호로 시작하거나 "
               "--module 번호로 지정하십시오)"_s.arg(path);
        return;
    }
    const QString label = u"%1 %2"_s.arg(source.code).arg(catalogueName(source.code)).trimmed();
    if (knownBy == KnownBy::Content)
        m_sources.remarks << u"내용으로 보아 %1의 원본입니다: %2"_s.arg(label, path);
    const auto same = std::ranges::find(m_sources.found, source.code, &UserSource::code);
    if (same == m_sources.found.end()) {
        m_sources.found.push_back(std::move(source));
        m_places.push_back({path, knownBy});
        return;
    }
    Place& former = m_places[static_cast<std::size_t>(same - m_sources.found.begin())];
    const bool better = knownBy == KnownBy::Name && former.knownBy == KnownBy::Content;
    m_sources.remarks << u"%1의 원본이 둘입니다. 쓰는 것: %2, 쓰지 않는 것: %3"_s.arg(
        label, better ? path : former.path, better ? former.path : path);
    if (!better)
        return;
    *same = std::move(source);
    former = {path, knownBy};
}

Result<ModuleSource> namedSword(const QString& path, const QString& installedSword)
{
    const QFileInfo info(path);
    if (info.isFile())
        return ModuleSource{SourceFormat::Sword, {}, swordModuleOf(path)};
    if (!info.isDir()) {
        // The name of an installed module: the user's own folder goes first, as in other programs.
        const SwordModule own{QDir::homePath() + u"/.sword"_s, path};
        const bool isOwn = !swordConfFile(own).isEmpty();
        return ModuleSource{
            SourceFormat::Sword, {}, isOwn ? own : SwordModule{installedSword, path}};
    }
    const QDir confs(path + u"/mods.d"_s);
    const QStringList names = confs.entryList({u"*.conf"_s}, QDir::Files);
    if (names.size() == 1)
        return ModuleSource{SourceFormat::Sword, {}, swordModuleOf(confs.filePath(names.first()))};
    return Failure{
        FailureKind::Invalid,
        u"%1: mods.d 폴더에 모듈이 하나가 아닙니다. conf 파일을 지정하십시오."_s.arg(path)};
}

} // namespace

UserSources findUserSources(const QString& folder)
{
    return FolderSearch(folder).run();
}

Result<ModuleSource> namedSource(const QString& format, const QStringList& files,
                                 const QString& installedSword)
{
    if (files.isEmpty())
        return Failure{FailureKind::Invalid, u"원본 파일을 적어야 합니다."_s};
    if (format == u"sword")
        return namedSword(files.first(), installedSword);
    for (const QString& file : files)
        if (!QFileInfo(file).isFile())
            return Failure{FailureKind::NotFound, u"파일을 찾을 수 없습니다: %1"_s.arg(file)};
    if (format == u"usfm")
        return ModuleSource{SourceFormat::Usfm, files, {}};
    if (format == u"json")
        return ModuleSource{SourceFormat::BookJson, files, {}};
    if (format != u"osis")
        return Failure{FailureKind::Invalid, u"알 수 없는 형식입니다: %1"_s.arg(format)};
    if (files.size() != 1)
        return Failure{FailureKind::Invalid, u"OSIS 파일은 하나만 적을 수 있습니다."_s};
    return ModuleSource{SourceFormat::Osis, files, {}};
}

} // namespace lumen
