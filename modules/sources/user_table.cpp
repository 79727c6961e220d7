// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/user_table.h"

#include "sources/version_text.h"

#include <QFile>
#include <QStringDecoder>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostShown = 20;
constexpr QChar kByteOrderMark = u'\uFEFF';

// The cells of a line, or why they are none.
Result<QStringList> cellsOf(const QByteArray& bytes, const TableForm& form)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = QString(decoder(bytes)).normalized(QString::NormalizationForm_C);
    if (decoder.hasError())
        return Failure{FailureKind::Damaged, u"UTF-8이 아닌 글자가 있음"_s};
    QStringList cells = text.split(u'\t');
    if (cells.size() < form.required || cells.size() > form.columns.size())
        return Failure{FailureKind::Damaged,
                       u"탭으로 나눈 칸이 %1개임 (있어야 할 칸: %2)"_s.arg(
                           QString::number(cells.size()), form.columns.join(u", "_s))};
    for (QString& cell : cells)
        cell = cell.trimmed();
    cells.resize(form.columns.size());
    return cells;
}

} // namespace

void TableFaults::add(int line, const QString& reason)
{
    ++m_count;
    if (m_count <= kMostShown)
        m_shown << sourceFailure(m_file, line, reason).detail;
}

Failure TableFaults::failure() const
{
    QStringList lines = m_shown;
    if (m_count > kMostShown)
        lines << u"그 밖에 %1곳"_s.arg(m_count - kMostShown);
    return {FailureKind::Damaged, lines.join(u'\n')};
}

Result<std::vector<TableLine>> readUserTable(const QString& file, const TableForm& form)
{
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
        return missingSource(file);
    QByteArray content = device.readAll();
    if (const QByteArray mark = QString(kByteOrderMark).toUtf8(); content.startsWith(mark))
        content.remove(0, mark.size());
    std::vector<TableLine> lines;
    TableFaults faults(file);
    int number = 0;
    for (QByteArray line : content.split('\n')) {
        ++number;
        if (line.endsWith('\r'))
            line.chop(1);
        if (line.trimmed().isEmpty() || line.startsWith('#'))
            continue;
        const Result<QStringList> cells = cellsOf(line, form);
        if (cells)
            lines.push_back({number, cells.value()});
        else
            faults.add(number, cells.failure().detail);
    }
    if (!faults.isEmpty())
        return faults.failure();
    if (lines.empty())
        return sourceFailure(file, 0, u"적힌 줄이 없음"_s);
    return lines;
}

} // namespace lumen
