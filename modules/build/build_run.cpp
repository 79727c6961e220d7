// SPDX-License-Identifier: GPL-2.0-or-later
#include "build/build_run.h"

#include "build/build_progress.h"
#include "build/build_report.h"
#include "build/module_builder.h"
#include "build/user_sources.h"
#include "common/interruption.h"

#include <algorithm>
#include <atomic>
#include <map>
#include <thread>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kKorean = 101;
constexpr int kBaptist = 103;

using TaskMap = std::map<int, ModuleTask>;

void addInstalled(const BuildOptions& options, const SourceFolders& folders, TaskMap& tasks)
{
    for (ModuleTask& task : installedTasks(folders, options.renumbering))
        tasks[task.code] = std::move(task);
}

void addUserFolder(const BuildOptions& options, const SourceFolders& folders, TaskMap& tasks,
                   BuildPlan& plan)
{
    if (options.sourceFolder.isEmpty())
        return;
    const UserSources sources = findUserSources(options.sourceFolder);
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

// A module that was asked for by its number and has no source is told, not passed over.
void refuseWithoutSource(const BuildOptions& options, const TaskMap& tasks, BuildPlan& plan)
{
    for (const int code : options.only) {
        if (tasks.contains(code))
            continue;
        ModuleOutcome outcome;
        outcome.code = code;
        outcome.name = catalogueName(code);
        outcome.state = ModuleState::SourceMissing;
        outcome.problem = code == kBaptist ? u"--baptist와 개역한글의 원본이 있어야 합니다."_s
                                           : u"--source나 --module로 원본을 지정해야 합니다."_s;
        plan.refused.push_back(std::move(outcome));
    }
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
    plan.tasks.push_back(userTask(options.moduleCode, options.moduleName, source.value(), folders,
                                  options.renumbering));
    return plan;
}

QString labelOf(const ModuleTask& task)
{
    return u"%1 %2"_s.arg(task.code).arg(task.name);
}

} // namespace

Result<BuildPlan> planBuild(const BuildOptions& options, const SourceFolders& folders)
{
    if (options.moduleCode != 0)
        return planOneModule(options, folders);
    BuildPlan plan;
    TaskMap tasks;
    addInstalled(options, folders, tasks);
    addUserFolder(options, folders, tasks, plan);
    if (options.baptist && tasks.contains(kKorean))
        tasks[kBaptist] = baptistTask(tasks[kKorean]);
    refuseWithoutSource(options, tasks, plan);
    for (auto& [code, task] : tasks)
        if (options.only.isEmpty() || options.only.contains(code))
            plan.tasks.push_back(std::move(task));
    return plan;
}

std::vector<ModuleOutcome> runPlan(const BuildPlan& plan, const QString& outFolder, int jobs)
{
    const std::size_t count = plan.tasks.size();
    std::vector<ModuleOutcome> outcomes(count);
    BuildProgress progress(count);
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t i = next++; i < count; i = next++) {
            const ModuleTask& task = plan.tasks[i];
            outcomes[i] = buildModule(task, outFolder, [&](double share) {
                progress.advance(i, share, labelOf(task));
                return !interrupted();
            });
            progress.finish(i, outcomeLine(outcomes[i]));
        }
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
