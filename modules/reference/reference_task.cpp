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
    if (supply == Supply::Own)
        stamp.prepend(kOwnMark);
    if (!enrichment.isEmpty())
        stamp += stampOf(sourceStamp({SourceFormat::Usfm, enrichment, {}}));
    return stamp;
}

bool ReferenceTask::isCurrent(const QString& stored) const
{
    if (isLeftToUser(stored))
        return true;
    return enrichment.isEmpty() ? stored.startsWith(stamp()) : stored == stamp();
}

bool ReferenceTask::companionsAreThere(const QString& folder, const QString& stored) const
{
    return isLeftToUser(stored) || !companions.areThere || companions.areThere(folder);
}

bool ReferenceTask::isLeftToUser(const QString& stored) const
{
    return supply == Supply::Installed && stored.startsWith(kOwnMark);
}

Result<Done> ReferenceTask::build(const BuildContext& context, ModuleStore& store,
                                  ModuleReport& report) const
{
    auto filled = fill(store);
    if (!filled)
        return filled.failure();
    report = std::move(filled.value());
    report.facts.prepend(QLocale(QLocale::Korean).toString(static_cast<int>(store.rows())) +
                         u"행"_s);
    if (!companions.write)
        return Done{};
    const auto written = companions.write(QFileInfo(context.former).path());
    if (!written)
        return written.failure();
    report.details << written.value();
    return Done{};
}

} // namespace lumen
