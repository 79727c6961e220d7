// SPDX-License-Identifier: GPL-2.0-or-later
#include "recipes/concordance_task.h"

#include "recipes/loss_check.h"
#include "reference/concordance.h"
#include "reference/module_stamp.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace lumen {

using namespace Qt::StringLiterals;

QString concordanceFile(int code)
{
    return QString::number(code) + u'c';
}

int concordanceOfTable(const QString& name)
{
    static const QRegularExpression form(u"^(\\d{3})c\\.tsv$"_s);
    return form.match(name).captured(1).toInt();
}

ConcordanceTask::ConcordanceTask(const VersionTask& version) : m_version(version)
{
    file = concordanceFile(version.code());
    name = version.name + u" 성구사전"_s;
    origin = version.origin;
    licence = version.licence;
    hint = version.hint;
}

bool ConcordanceTask::sourcesAreThere() const
{
    return m_version.sourcesAreThere();
}

QString ConcordanceTask::stamp() const
{
    return stampOf(u"성구사전\n"_s + m_version.stamp());
}

bool ConcordanceTask::isCurrent(const QString& stored) const
{
    return stored.startsWith(kOwnMark) || ModuleTask::isCurrent(stored);
}

Result<Done> ConcordanceTask::build(const BuildContext& context, ModuleStore& store,
                                    ModuleReport& report) const
{
    const auto text = m_version.text();
    if (!text->ok())
        return text->failure();
    const VersionText& version = text->value();
    const QString former = QFileInfo(context.former).path() + u'/' + m_version.file + u".dts"_s;
    const QStringList losses = lossesOf(version, m_version, former);
    if (!losses.isEmpty() && !context.mode.acceptLosses)
        return Failure{FailureKind::Damaged, losses.join(u' ')};
    auto filled = fillConcordance(version, code(), store);
    if (!filled)
        return filled.failure();
    report = std::move(filled.value());
    return Done{};
}

} // namespace lumen
