// SPDX-License-Identifier: GPL-2.0-or-later
#include "build/reference_builder.h"

#include "build/module_stamp.h"
#include "common/row_digest.h"
#include "jet/error.h"
#include "sources/fault_texts.h"

#include <QCryptographicHash>
#include <QDate>
#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>
#include <exception>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kEnrichmentMark = u'+';

QString hashOf(const QString& text)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex());
}

void takeFailure(const Failure& failure, ModuleOutcome& outcome)
{
    outcome.state = failure.kind == FailureKind::Cancelled  ? ModuleState::Interrupted
                    : failure.kind == FailureKind::NotFound ? ModuleState::SourceMissing
                                                            : ModuleState::Failed;
    outcome.problem = failure.detail;
}

void makeReference(const ReferenceTask& task, OriginalCorpus& corpus, const QString& file,
                   const BuildAdvance& advance, const BuildMode& mode, ModuleOutcome& outcome)
{
    const QString stamp = referenceStamp(task);
    if (!mode.force && isUpToDate(task, storedStamp(file)) && moduleIsSound(file)) {
        outcome.state = ModuleState::UpToDate;
        return;
    }
    ModuleStore store(file, task.use,
                      {{u"source"_s, task.origin},
                       {u"licence"_s, task.licence},
                       {u"built"_s, QDate::currentDate().toString(Qt::ISODate)},
                       {kStampKey.toString(), stamp}},
                      advance);
    const auto report = task.fill(corpus, store);
    if (!report) {
        takeFailure(report.failure(), outcome);
        return;
    }
    if (!advance(1)) {
        outcome.state = ModuleState::Interrupted;
        return;
    }
    store.commit();
    outcome.check.rows = static_cast<int>(store.rows());
    outcome.facts = report.value().facts;
    outcome.remarks = report.value().remarks;
    outcome.state = ModuleState::Built;
}

} // namespace

QString missingReferenceSource(const ReferenceTask& task)
{
    const bool allThere = std::ranges::all_of(
        task.sources, [](const QString& file) { return QFileInfo::exists(file); });
    return allThere ? QString() : task.hint;
}

QString referenceStamp(const ReferenceTask& task)
{
    const QString rules = u"%1\n%2\n%3\n"_s.arg(kBuilderVersion).arg(task.file, task.origin) +
                          sourceStamp({SourceFormat::Usfm, task.sources, {}});
    QString stamp = hashOf(rules) + kEnrichmentMark;
    if (!task.enrichment.isEmpty())
        stamp += hashOf(sourceStamp({SourceFormat::Usfm, task.enrichment, {}}));
    return stamp;
}

bool isUpToDate(const ReferenceTask& task, const QString& stored)
{
    const QString stamp = referenceStamp(task);
    return task.enrichment.isEmpty() ? stored.startsWith(stamp) : stored == stamp;
}

ModuleOutcome buildReference(const ReferenceTask& task, OriginalCorpus& corpus,
                             const QString& folder, const BuildAdvance& advance,
                             const BuildMode& mode)
{
    ModuleOutcome outcome;
    outcome.file = task.file;
    outcome.name = task.name;
    outcome.problem = missingReferenceSource(task);
    if (!outcome.problem.isEmpty()) {
        outcome.state = ModuleState::SourceMissing;
        return outcome;
    }
    QElapsedTimer timer;
    timer.start();
    try {
        if (advance(0))
            makeReference(task, corpus, u"%1/%2.dts"_s.arg(folder, task.file), advance, mode,
                          outcome);
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
