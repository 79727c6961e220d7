// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/reference_task.h"

#include "reference/module_stamp.h"
#include "sources/module_source.h"

#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kEnrichmentMark = u'+';

} // namespace

bool ReferenceTask::sourcesAreThere() const
{
    return std::ranges::all_of(sources,
                               [](const QString& path) { return QFileInfo::exists(path); });
}

QString ReferenceTask::stamp() const
{
    const QString rules = u"%1\n%2\n%3\n"_s.arg(kBuilderVersion).arg(file, origin) +
                          sourceStamp({SourceFormat::Usfm, sources, {}});
    QString stamp = stampOf(rules) + kEnrichmentMark;
    if (!enrichment.isEmpty())
        stamp += stampOf(sourceStamp({SourceFormat::Usfm, enrichment, {}}));
    return stamp;
}

bool ReferenceTask::isCurrent(const QString& stored) const
{
    return enrichment.isEmpty() ? stored.startsWith(stamp()) : stored == stamp();
}

Result<Done> ReferenceTask::build(const BuildContext& /*context*/, ModuleStore& store,
                                  ModuleReport& report) const
{
    auto filled = fill(store);
    if (!filled)
        return filled.failure();
    report = std::move(filled.value());
    report.facts.prepend(QLocale(QLocale::Korean).toString(static_cast<int>(store.rows())) +
                         u"행"_s);
    return Done{};
}

} // namespace lumen
