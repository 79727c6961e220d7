// SPDX-License-Identifier: GPL-2.0-or-later
#include "recipes/original_recipes.h"

#include "original/original_versions.h"

#include <QDir>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPointedHebrew = 301;
constexpr int kConsonants = 302;
constexpr int kDividedConsonants = 303;
constexpr int kReceivedGreek = 308;
constexpr int kByzantine = 310;

VersionTask originalTask(int code, const QStringList& files, std::function<VersionResult()> reader)
{
    VersionTask task;
    task.setCode(code);
    task.name = catalogueName(code);
    task.source.files = files;
    task.numbering = Numbering::Korean;
    task.reader = std::move(reader);
    task.hint = u"데비안 패키지 bibledit-data가 없습니다."_s;
    return task;
}

VersionTask hebrewTask(int code, OriginalCorpus& corpus, HebrewEdition edition)
{
    const OriginalSources& sources = corpus.sources();
    VersionTask task = originalTask(code, sources.textFiles() + sources.strongFiles(),
                                    [&corpus, edition] { return hebrewVersion(corpus, edition); });
    task.origin = u"Westminster Leningrad Codex 4.20, Open Scriptures Hebrew Bible Project, "
                  "bibledit-data. 레닌그라드 사본의 본문이며 BHS의 비평 장치는 없음"_s;
    task.licence = u"본문은 퍼블릭 도메인, 낱말의 나눔은 CC BY 4.0"_s;
    return task;
}

} // namespace

OriginalSources installedOriginals(const SourceFolders& folders)
{
    const QString base = folders.bibledit + u"/sources/"_s;
    OriginalSources sources;
    const QDir hebrew(base + u"morphhb"_s);
    const QString map = u"VerseMap.xml"_s;
    const QStringList names = hebrew.entryList({u"*.xml"_s}, QDir::Files, QDir::Name);
    for (const QString& name : names)
        if (name != map)
            sources.hebrewFiles << hebrew.filePath(name);
    sources.verseMap = hebrew.filePath(map);
    sources.kjv = base + u"kjv.xml"_s;
    sources.hebrewStrong = base + u"hebrewlexicon/HebrewStrong.xml"_s;
    sources.hebrewIndex = base + u"hebrewlexicon/LexicalIndex.xml"_s;
    sources.greekStrong = base + u"sblgnt/strongsgreek.xml"_s;
    sources.glosses = {folders.content + u"/glosses/hebrew.tsv"_s,
                       folders.content + u"/glosses/greek.tsv"_s};
    return sources;
}

std::vector<VersionTask> originalVersionTasks(OriginalCorpus& corpus,
                                              const QStringList& byzantineFiles)
{
    const OriginalSources& sources = corpus.sources();
    std::vector<VersionTask> tasks;
    tasks.push_back(hebrewTask(kPointedHebrew, corpus, HebrewEdition::Pointed));
    tasks.push_back(hebrewTask(kConsonants, corpus, HebrewEdition::Consonants));
    tasks.push_back(hebrewTask(kDividedConsonants, corpus, HebrewEdition::Divided));
    VersionTask received = originalTask(kReceivedGreek, sources.textFiles() + sources.strongFiles(),
                                        [&corpus] { return receivedGreekVersion(corpus); });
    received.origin = u"Textus Receptus, CrossWire Bible Society의 KJV 작업, bibledit-data"_s;
    received.licence = u"본문은 퍼블릭 도메인, 낱말 표시는 출처를 밝히고 쓸 수 있음"_s;
    tasks.push_back(std::move(received));
    VersionTask byzantine = originalTask(
        kByzantine, byzantineFiles, [files = byzantineFiles] { return byzantineVersion(files); });
    byzantine.origin = u"Robinson-Pierpont Byzantine Textform, 사용자가 준비한 파일"_s;
    byzantine.licence = u"퍼블릭 도메인"_s;
    byzantine.hint =
        u"비잔틴 본문의 CSV 파일(MAT.csv 따위)이 있는 폴더를 --source로 지정해야 합니다."_s;
    tasks.push_back(std::move(byzantine));
    return tasks;
}

bool isMadeOnRequest(int code)
{
    return code == kDividedConsonants;
}

} // namespace lumen
