// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/build_progress.h"

#include "cli/console.h"

#include <algorithm>
#include <cstdio>
#include <numeric>
#include <unistd.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// Back to the line's begin and empty it.
constexpr const char* kNewLine = "\r\x1b[K";

void writeRaw(const QByteArray& bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

} // namespace

BuildProgress::BuildProgress(std::size_t modules, Output output)
    : m_shares(modules, 0.0), m_output(output)
{
}

BuildProgress::Output BuildProgress::standardOutput()
{
    return isatty(STDOUT_FILENO) != 0 ? Output::Terminal : Output::Plain;
}

int BuildProgress::percentLocked() const
{
    if (m_shares.empty())
        return 100;
    const double sum = std::accumulate(m_shares.begin(), m_shares.end(), 0.0);
    return static_cast<int>(100 * sum / static_cast<double>(m_shares.size()));
}

int BuildProgress::percent() const
{
    const std::lock_guard lock(m_mutex);
    return percentLocked();
}

void BuildProgress::advance(std::size_t module, double share, const QString& label)
{
    const std::lock_guard lock(m_mutex);
    m_shares[module] = std::clamp(share, 0.0, 1.0);
    if (m_output == Output::Terminal)
        writeRaw(kNewLine + u"[%1%] %2 만드는 중"_s.arg(percentLocked(), 3).arg(label).toUtf8());
}

void BuildProgress::finish(std::size_t module, const QString& line)
{
    const std::lock_guard lock(m_mutex);
    m_shares[module] = 1;
    if (m_output == Output::Terminal)
        writeRaw(kNewLine);
    printLine(u"[%1%] %2"_s.arg(percentLocked(), 3).arg(line));
}

} // namespace lumen
