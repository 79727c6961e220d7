// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/build_run.h"

#include "cli/build_progress.h"
#include "cli/build_report.h"
#include "data/versions.h"
#include "recipes/concordance_task.h"
#include "recipes/original_recipes.h"
#include "recipes/reference_recipes.h"
#include "recipes/user_sources.h"
#include "sources/interruption.h"

#include <algorithm>
#include <atomic>
#include <map>
#include <numeric>
#include <thread>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kKorean = 101;
constexpr int kBaptist = 103;

constexpr QStringView kNoVersionSource = u"--source나 --module로 원본을 지정해야 합니다.";
constexpr QStringView kNoBaptistSource = u"--baptist와 개역한글의 원본이 있어야 합니다.";

using TaskMap = std::map<int, VersionTask>;

void addInstalled(const BuildOptions& options, const SourceFolders& folders, TaskMap& tasks)
{
    for (const VersionTask& task : installedTasks(folders, options.renumbering))
        tasks[task.code()] = task;
}

void addUserSources(const BuildOptions& options, const SourceFolders& folders,
                    const UserSources& sources, TaskMap& tasks, BuildPlan& plan)
{
    plan.remarks << sources.remarks;
    for (const UserSource& source : sources.found) {
        const QString refused = whyNotBuildable(source.code, source.name);
        if (!refused.isEmpty())
            plan.remarks << refused;
        else
            tasks[source.code] =
                userTask(source.code, source.name, source.source, folders, options.renumbering);
    }
}

// The Korean text that versions are made of is also what glosses are derived from.
void addOriginals(const SourceFolders& folders, const UserSources& user, TaskMap& tasks,
                  BuildPlan& plan)
{
    OriginalSources sources = installedOriginals(folders);
    if (tasks.contains(kKorean))
        sources.koreanFiles = tasks[kKorean].source.files;
    plan.corpus = std::make_unique<OriginalCorpus>(std::move(sources));
    for (const VersionTask& task : originalVersionTasks(*plan.corpus, user.byzantineFiles))
        tasks.try_emplace(task.code(), task);
}

bool isWanted(const BuildOptions& options, int code)
{
    return options.makesAll() ? !isMadeOnRequest(code) : options.only.contains(code);
}

bool isWanted(const BuildOptions& options, const QString& file)
{
    return options.makesAll() || options.onlyFiles.contains(file);
}

ModuleOutcome withoutSource(const QString& file, const QString& name, const QString& problem)
{
    ModuleOutcome outcome;
    outcome.file = file;
    outcome.name = name;
    outcome.state = ModuleState::SourceMissing;
    outcome.problem = problem;
    return outcome;
}

// A module that was asked for by its number and has no source is told, not passed over.
void refuseWithoutSource(const BuildOptions& options, const TaskMap& tasks, BuildPlan& plan)
{
    for (const int code : options.only) {
        if (tasks.contains(code))
            continue;
        plan.refused.push_back(
            withoutSource(QString::number(code), catalogueName(code),
                          (code == kBaptist ? kNoBaptistSource : kNoVersionSource).toString()));
    }
}

// A concordance is made with its version, or alone when it is named; a user's own table goes before
// the words of the version.
void addConcordances(const BuildOptions& options, const TaskMap& tasks, const UserSources& user,
                     BuildPlan& plan)
{
    std::map<int, std::unique_ptr<const ModuleTask>> concordances;
    for (const auto& [code, task] : tasks)
        if (isWanted(options, code) || options.onlyFiles.contains(concordanceFile(code)))
            concordances[code] = std::make_unique<ConcordanceTask>(task);
    for (const auto& [name, table] : user.tables) {
        const int code = concordanceOfTable(name);
        if (code == 0)
            continue;
        if (catalogueName(code).isEmpty() && !isUserVersion(code))
            plan.remarks << u"%1: 없는 역본 번호입니다: %2"_s.arg(code).arg(table);
        else if (isWanted(options, concordanceFile(code)) || options.only.contains(code))
            concordances[code] = std::make_unique<ReferenceTask>(ownConcordanceTask(code, table));
    }
    QSet<QString> asked = options.onlyFiles;
    for (auto& [code, task] : concordances) {
        asked.remove(task->file);
        plan.tasks.push_back(std::move(task));
    }
    for (const QString& file : asked)
        if (referenceFile(file).isEmpty())
            plan.refused.push_back(withoutSource(file, u"성구사전"_s, kNoVersionSource.toString()));
}

Result<BuildPlan> planOneModule(const BuildOptions& options, const SourceFolders& folders)
{
    const auto source = namedSource(options.format, options.files, folders.sword);
    if (!source)
        return source.failure();
    if (!sourceIsThere(source.value()))
        return Failure{FailureKind::NotFound,
                       u"원본을 찾을 수 없습니다: %1"_s.arg(options.files.join(u' '))};
    BuildPlan plan;
    plan.mode = options.mode;
    VersionTask task = userTask(options.moduleCode, options.moduleName, source.value(), folders,
                                options.renumbering);
    task.shareText();
    plan.tasks.push_back(std::make_unique<VersionTask>(task));
    plan.tasks.push_back(std::make_unique<ConcordanceTask>(task));
    return plan;
}

// While the longest task reads the sources that it shares with others, the other workers have the
// versions to make.
std::vector<std::size_t> workOrder(const BuildPlan& plan)
{
    std::vector<std::size_t> order(plan.tasks.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::ranges::stable_partition(order,
                                  [&plan](std::size_t i) { return plan.tasks[i]->takesLongest; });
    return order;
}

} // namespace

Result<BuildPlan> planBuild(const BuildOptions& options, const SourceFolders& folders)
{
    if (options.moduleCode != 0)
        return planOneModule(options, folders);
    BuildPlan plan;
    plan.mode = options.mode;
    TaskMap tasks;
    addInstalled(options, folders, tasks);
    UserSources user;
    if (!options.sourceFolder.isEmpty())
        user = findUserSources(options.sourceFolder);
    addUserSources(options, folders, user, tasks, plan);
    addOriginals(folders, user, tasks, plan);
    if (options.baptist && tasks.contains(kKorean))
        tasks[kBaptist] = baptistTask(tasks[kKorean]);
    refuseWithoutSource(options, tasks, plan);
    // A user's own headings go into the versions that take some.
    if (const auto own = user.tables.find(u"headings.tsv"_s); own != user.tables.end())
        for (auto& [code, task] : tasks)
            if (!task.headings.isEmpty())
                task.headings = own->second;
    // Version and concordance are made of one reading.
    for (auto& [code, task] : tasks)
        task.shareText();
    for (const auto& [code, task] : tasks)
        if (isWanted(options, code))
            plan.tasks.push_back(std::make_unique<VersionTask>(task));
    addConcordances(options, tasks, user, plan);
    ReferenceSources references = installedReferences(folders);
    plan.remarks << takeOwnFiles(user, references);
    for (const ReferenceTask& task : referenceTasks(*plan.corpus, references))
        if (isWanted(options, task.file))
            plan.tasks.push_back(std::make_unique<ReferenceTask>(task));
    return plan;
}

std::vector<ModuleOutcome> runPlan(const BuildPlan& plan, const QString& outFolder, int jobs)
{
    const std::size_t count = plan.tasks.size();
    std::vector<ModuleOutcome> outcomes(count);
    BuildProgress progress(count);
    const auto make = [&](std::size_t i) {
        const ModuleTask& task = *plan.tasks[i];
        const QString label = u"%1 %2"_s.arg(task.file, task.name);
        const auto advance = [&](double share) {
            progress.advance(i, share, label);
            return !interrupted();
        };
        outcomes[i] = buildModule(task, outFolder, advance, plan.mode);
        progress.finish(i, outcomeLine(outcomes[i]));
    };
    const std::vector<std::size_t> order = workOrder(plan);
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t i = next++; i < count; i = next++)
            make(order[i]);
    };
    std::vector<std::jthread> workers;
    const std::size_t extra = std::min(static_cast<std::size_t>(std::max(jobs, 1)), count);
    for (std::size_t i = 1; i < extra; ++i)
        workers.emplace_back(work);
    work();
    workers.clear();
    return outcomes;
}

} // namespace lumen
