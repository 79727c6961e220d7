// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/build_command.h"

#include "cli/build_options.h"
#include "cli/build_report.h"
#include "cli/build_run.h"
#include "cli/console.h"
#include "cli/page_files.h"
#include "platform/temporary_file.h"
#include "sources/interruption.h"

#include <QDir>
#include <QElapsedTimer>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

int exitCode(const std::vector<ModuleOutcome>& outcomes)
{
    const auto anyIs = [&outcomes](ModuleState state) {
        return std::any_of(outcomes.begin(), outcomes.end(),
                           [state](const ModuleOutcome& one) { return one.state == state; });
    };
    if (anyIs(ModuleState::Interrupted))
        return kExitInterrupted;
    return anyIs(ModuleState::Failed) ? kExitFailed : kExitDone;
}

// Without an option for it the report's details are shown, as far as they tell of faults.
void showProblems(const std::vector<ModuleOutcome>& outcomes)
{
    for (const ModuleOutcome& outcome : outcomes)
        if (outcome.state == ModuleState::Failed)
            printError(outcomeLine(outcome));
}

int build(const BuildOptions& options)
{
    QElapsedTimer timer;
    timer.start();
    const auto plan = planBuild(options, installedFolders());
    if (!plan) {
        printError(plan.failure().detail);
        return plan.failure().kind == FailureKind::Invalid ? kExitUsage : kExitFailed;
    }
    if (!QDir().mkpath(options.outFolder)) {
        printError(u"폴더를 만들 수 없습니다: %1"_s.arg(options.outFolder));
        return kExitFailed;
    }
    removeLeftovers(options.outFolder, [](const QString& name) { return name.endsWith(u".dts"); });
    for (const QString& remark : plan.value().remarks)
        printLine(remark);
    printLine(u"모듈을 둘 폴더: %1"_s.arg(options.outFolder));
    for (const ModuleOutcome& outcome : plan.value().refused)
        printLine(outcomeLine(outcome));
    std::vector<ModuleOutcome> outcomes = runPlan(plan.value(), options.outFolder, options.jobs);
    if (options.makesAll() && options.moduleCode == 0)
        for (const QString& line : installPages(installedFolders().content, options.outFolder))
            printLine(line);
    outcomes.insert(outcomes.begin(), plan.value().refused.begin(), plan.value().refused.end());
    const double seconds = static_cast<double>(timer.elapsed()) / 1000;
    printLine(u"모두 %1초 걸렸습니다."_s.arg(seconds, 0, 'f', 1));
    showProblems(outcomes);
    if (!options.reportFile.isEmpty()) {
        const auto saved =
            saveReport(options.reportFile, reportText(outcomes, plan.value().remarks, seconds));
        if (!saved) {
            printError(saved.failure().detail);
            return kExitFailed;
        }
    }
    return exitCode(outcomes);
}

} // namespace

int runBuild(const QStringList& args)
{
    const auto options = parseBuildOptions(args);
    if (!options) {
        printError(options.failure().detail);
        printError(u"\"lumen-modules build --help\"를 보십시오."_s);
        return kExitUsage;
    }
    if (options.value().help) {
        printLine(buildUsage());
        return kExitDone;
    }
    return build(options.value());
}

} // namespace lumen
