// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/build_report.h"

#include "platform/files/safe_write.h"

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

QString builtLine(const ModuleOutcome& outcome)
{
    QStringList pieces = outcome.report.facts;
    pieces << u"%1초"_s.arg(outcome.seconds, 0, 'f', 1);
    return pieces.join(u", "_s);
}

} // namespace

QString outcomeLine(const ModuleOutcome& outcome)
{
    const QString label = u"%1 %2: "_s.arg(outcome.file, outcome.name);
    switch (outcome.state) {
    case ModuleState::Built:
        return label + builtLine(outcome);
    case ModuleState::UpToDate:
        return label + u"원본이 그대로여서 그냥 두었습니다."_s;
    case ModuleState::SourceMissing:
        return label + u"건너뜁니다. "_s + outcome.problem;
    case ModuleState::Interrupted:
        return label + u"중단했습니다."_s;
    case ModuleState::Failed:
        break;
    }
    return label + u"만들지 못했습니다. "_s + outcome.problem;
}

QString reportText(const std::vector<ModuleOutcome>& outcomes, const QStringList& remarks,
                   double seconds)
{
    QString text;
    for (const QString& remark : remarks)
        text += remark + u'\n';
    for (const ModuleOutcome& outcome : outcomes) {
        text += outcomeLine(outcome) + u'\n';
        for (const QString& line : outcome.report.details)
            text += u"  "_s + line + u'\n';
    }
    return text + u"모두 %1초\n"_s.arg(seconds, 0, 'f', 1);
}

Result<Done> saveReport(const QString& file, const QString& text)
{
    const Result<Done> saved = writeSafely(file, text.toUtf8());
    if (!saved)
        return Failure{saved.failure().kind,
                       u"보고서를 쓸 수 없습니다. "_s + saved.failure().detail};
    return Done{};
}

} // namespace lumen
