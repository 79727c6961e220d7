// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/module_builder.h"

#include "check/row_digest.h"
#include "jet/error.h"
#include "reference/module_stamp.h"
#include "sources/fault_texts.h"

#include <QDate>
#include <QElapsedTimer>

#include <exception>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

void takeFailure(const Failure& failure, ModuleOutcome& outcome)
{
    outcome.state = failure.kind == FailureKind::Cancelled  ? ModuleState::Interrupted
                    : failure.kind == FailureKind::NotFound ? ModuleState::SourceMissing
                                                            : ModuleState::Failed;
    outcome.problem = failure.detail;
}

bool isUpToDate(const ModuleTask& task, const QString& folder)
{
    const QString file = moduleFile(folder, task);
    const QString stored = storedStamp(file);
    return task.isCurrent(stored) && task.companionsAreThere(folder, stored) && moduleIsSound(file);
}

void makeModule(const ModuleTask& task, const QString& folder, const BuildAdvance& advance,
                const BuildMode& mode, ModuleOutcome& outcome)
{
    const QString file = moduleFile(folder, task);
    if (!mode.force && isUpToDate(task, folder)) {
        outcome.state = ModuleState::UpToDate;
        return;
    }
    ModuleStore store(file, task.use,
                      {{u"source"_s, task.origin},
                       {u"licence"_s, task.licence},
                       {u"built"_s, QDate::currentDate().toString(Qt::ISODate)},
                       {kRulesKey.toString(), QString::number(kBuilderVersion)},
                       {kStampKey.toString(), task.stamp()}},
                      advance);
    const auto built = task.build({file, mode}, store, outcome.report);
    if (!built) {
        takeFailure(built.failure(), outcome);
        return;
    }
    if (!advance(1)) {
        outcome.state = ModuleState::Interrupted;
        return;
    }
    store.commit();
    outcome.state = ModuleState::Built;
}

} // namespace

QString moduleFile(const QString& folder, const ModuleTask& task)
{
    return u"%1/%2.dts"_s.arg(folder, task.file);
}

ModuleOutcome buildModule(const ModuleTask& task, const QString& folder,
                          const BuildAdvance& advance, const BuildMode& mode)
{
    ModuleOutcome outcome;
    outcome.file = task.file;
    outcome.name = task.name;
    if (!task.sourcesAreThere()) {
        outcome.state = ModuleState::SourceMissing;
        outcome.problem = task.hint;
        return outcome;
    }
    QElapsedTimer timer;
    timer.start();
    try {
        if (advance(0))
            makeModule(task, folder, advance, mode, outcome);
        else
            outcome.state = ModuleState::Interrupted;
    } catch (const JetError& error) {
        outcome.problem = error.text();
    } catch (const std::exception& error) {
        outcome.problem = faultText(error);
    }
    outcome.seconds = static_cast<double>(timer.elapsed()) / 1000;
    return outcome;
}

} // namespace lumen
