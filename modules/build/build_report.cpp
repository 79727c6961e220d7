// SPDX-License-Identifier: GPL-2.0-or-later
#include "build/build_report.h"

#include "platform/files/safe_write.h"

#include <QLocale>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

QString grouped(int number)
{
    return QLocale(QLocale::Korean).toString(number);
}

QString referenceLine(const ModuleOutcome& outcome)
{
    QStringList pieces{grouped(outcome.check.rows) + u"행"_s};
    pieces << outcome.facts << u"%1초"_s.arg(outcome.seconds, 0, 'f', 1);
    return pieces.join(u", "_s);
}

QString builtLine(const ModuleOutcome& outcome)
{
    if (!outcome.file.isEmpty())
        return referenceLine(outcome);
    const CanonCheck& check = outcome.check;
    QStringList pieces{grouped(check.rows) + u"절"_s};
    if (check.withoutWords > 0)
        pieces << u"본문 없음 %1"_s.arg(grouped(check.withoutWords));
    if (check.absentBooks > 0)
        pieces << u"없는 책 %1권"_s.arg(check.absentBooks);
    if (check.missing > 0)
        pieces << u"정경에 있으나 없는 절 %1"_s.arg(grouped(check.missing));
    if (check.beyond > 0)
        pieces << u"정경 밖의 절 %1"_s.arg(grouped(check.beyond));
    if (outcome.parts > 0)
        pieces << u"표제 %1"_s.arg(grouped(outcome.parts));
    if (outcome.headings > 0)
        pieces << u"소제목 %1"_s.arg(grouped(outcome.headings));
    pieces << u"%1초"_s.arg(outcome.seconds, 0, 'f', 1);
    return pieces.join(u", "_s);
}

} // namespace

QString outcomeLine(const ModuleOutcome& outcome)
{
    const QString module = outcome.file.isEmpty() ? QString::number(outcome.code) : outcome.file;
    const QString label = u"%1 %2: "_s.arg(module, outcome.name);
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
        for (const QString& line : outcome.check.deviations)
            text += u"  "_s + line + u'\n';
        for (const QString& line : outcome.remarks)
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
