// SPDX-License-Identifier: GPL-2.0-or-later
#include "check/row_digest.h"
#include "cli/arguments.h"
#include "cli/build_command.h"
#include "cli/build_options.h"
#include "cli/console.h"
#include "recipes/concordance_task.h"
#include "recipes/original_recipes.h"
#include "recipes/recipes.h"
#include "recipes/reference_recipes.h"
#include "reference/module_builder.h"
#include "reference/module_stamp.h"

#include <QFileInfo>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

QString usage()
{
    return uR"(사용법: lumen-modules list [--out 폴더]

공개 자료로 만들 수 있는 모듈과 그 원본이 있는지를 보여 줍니다.

  --out 폴더   모듈이 있는 폴더. 주지 않으면 프로그램의 Data 폴더
  --help       이 도움말)"_s;
}

QString builtState(const QString& file, bool upToDate)
{
    if (!moduleIsSound(file))
        return u"만들어져 있으나 손상됨"_s;
    return upToDate ? u"만들어져 있음"_s : u"만들어져 있으나 원본이 바뀜"_s;
}

QString stateOf(const ModuleTask& task, const QString& folder)
{
    const QString file = moduleFile(folder, task);
    const bool built = QFileInfo::exists(file);
    if (!task.sourcesAreThere())
        return built ? u"만들어져 있음, 원본 없음"_s : task.hint;
    if (!built)
        return u"만들 수 있음"_s;
    return builtState(file, task.isCurrent(storedStamp(file)));
}

void listTasks(const auto& tasks, const QString& folder)
{
    for (const ModuleTask& task : tasks)
        printLine(
            u"%1 %2: %3 [%4]"_s.arg(task.file, task.name, stateOf(task, folder), task.origin));
}

// The versions, then the concordances that are made with them.
void listVersions(std::vector<VersionTask> versions, const std::vector<VersionTask>& more,
                  const QString& folder)
{
    versions.insert(versions.end(), more.begin(), more.end());
    listTasks(versions, folder);
    listTasks(std::vector<ConcordanceTask>(versions.begin(), versions.end()), folder);
}

} // namespace

int runList(const QStringList& args)
{
    const auto parsed = parseArguments(args, {u"out"_s}, {u"help"_s});
    if (!parsed || !parsed.value().positional.isEmpty()) {
        printError(parsed ? u"인수가 너무 많습니다."_s : parsed.failure().detail);
        return kExitUsage;
    }
    if (parsed.value().has(u"help"_s)) {
        printLine(usage());
        return kExitDone;
    }
    const QString folder = parsed.value().value(u"out"_s, defaultDataFolder());
    const SourceFolders sources = installedFolders();
    OriginalCorpus corpus(installedOriginals(sources));
    listVersions(installedTasks(sources, Renumbering::Keep), originalVersionTasks(corpus, {}),
                 folder);
    listTasks(referenceTasks(corpus, installedReferences(sources)), folder);
    printLine(u"개역한글(101)과 개역한자(102)는 JSON 파일로, 다른 역본은 SWORD, OSIS, USFM 파일로 "
              u"만들 수 "
              "있습니다. \"lumen-modules build --help\"를 보십시오."_s);
    return kExitDone;
}

} // namespace lumen
