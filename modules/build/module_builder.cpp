// SPDX-License-Identifier: GPL-2.0-or-later
#include "build/module_builder.h"

#include "build/loss_check.h"
#include "build/module_stamp.h"
#include "build/version_module_writer.h"
#include "common/row_digest.h"
#include "jet/error.h"
#include "sources/fault_texts.h"

#include <QDate>
#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>
#include <exception>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// Reading takes about this share of the time that a module needs.
constexpr double kReadShare = 0.4;

ModuleOutcome& failed(ModuleOutcome& outcome, const Failure& failure)
{
    const bool cancelled = failure.kind == FailureKind::Cancelled;
    const bool missing = failure.kind == FailureKind::NotFound;
    outcome.state = cancelled ? ModuleState::Interrupted
                    : missing ? ModuleState::SourceMissing
                              : ModuleState::Failed;
    outcome.problem = failure.detail;
    return outcome;
}

VersionResult preparedText(const ModuleTask& task)
{
    VersionResult read = task.reader ? task.reader() : readSource(task.source);
    if (!read)
        return read;
    VersionText& version = read.value();
    for (const Mend mend : task.mends)
        mend(version);
    if (!task.ownMapping.isEmpty()) {
        const auto renumbered =
            renumberVerses(version, task.ownMapping, task.englishMapping, task.psalmNumbers);
        if (!renumbered)
            return renumbered.failure();
    }
    arrangeVerses(version);
    return read;
}

void describe(const VersionText& version, const ModuleTask& task, ModuleOutcome& outcome)
{
    outcome.check = checkAgainstCanon(version, task.numbering);
    outcome.remarks = version.remarks;
    const auto& verses = version.verses;
    outcome.parts = static_cast<int>(
        std::count_if(verses.begin(), verses.end(), [](const VerseText& v) { return v.part; }));
    outcome.headings = static_cast<int>(std::count_if(
        verses.begin(), verses.end(), [](const VerseText& v) { return !v.miniTitle.isEmpty(); }));
}

ModuleLabel labelOf(const ModuleTask& task, const QString& stamp)
{
    return {task.name,
            {{u"source"_s, task.origin},
             {u"licence"_s, task.licence},
             {u"built"_s, QDate::currentDate().toString(Qt::ISODate)},
             {kRulesKey.toString(), QString::number(kBuilderVersion)},
             {kStampKey.toString(), stamp}}};
}

// True when nothing may be made of a text that has lost words; accepted losses are told.
bool refusesLosses(const QStringList& losses, bool hasFormer, const BuildMode& mode,
                   ModuleOutcome& outcome)
{
    if (losses.isEmpty())
        return false;
    outcome.remarks << losses;
    if (mode.acceptLosses)
        return false;
    outcome.problem = losses.join(u' ');
    if (hasFormer)
        outcome.problem += u" 전의 모듈은 그대로 두었습니다."_s;
    outcome.problem += u" 그래도 만들려면 --accept-loss를 주십시오."_s;
    return true;
}

void makeModule(const ModuleTask& task, const QString& file, const BuildAdvance& advance,
                const BuildMode& mode, ModuleOutcome& outcome)
{
    const QString stamp = taskStamp(task);
    if (!mode.force && storedStamp(file) == stamp && moduleIsSound(file)) {
        outcome.state = ModuleState::UpToDate;
        return;
    }
    const VersionResult version = preparedText(task);
    if (!version) {
        failed(outcome, version.failure());
        return;
    }
    describe(version.value(), task, outcome);
    if (refusesLosses(lossesOf(version.value(), task, file), QFileInfo::exists(file), mode,
                      outcome))
        return;
    const auto written =
        writeVersionModule(file, labelOf(task, stamp), version.value(), [&advance](double share) {
            return advance(kReadShare + (1 - kReadShare) * share);
        });
    if (!written)
        failed(outcome, written.failure());
    else
        outcome.state = ModuleState::Built;
}

} // namespace

QString moduleFile(const QString& folder, int code)
{
    return u"%1/%2.dts"_s.arg(folder).arg(code);
}

ModuleOutcome buildModule(const ModuleTask& task, const QString& folder,
                          const BuildAdvance& advance, const BuildMode& mode)
{
    ModuleOutcome outcome;
    outcome.code = task.code;
    outcome.name = task.name;
    if (!sourceIsThere(task.source)) {
        outcome.state = ModuleState::SourceMissing;
        outcome.problem = task.hint;
        return outcome;
    }
    QElapsedTimer timer;
    timer.start();
    try {
        if (advance(0))
            makeModule(task, moduleFile(folder, task.code), advance, mode, outcome);
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
