// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/console.h"

#include <QByteArray>

#include <cstdio>

namespace lumen {

namespace {

void writeLine(std::FILE* stream, const QString& line)
{
    const QByteArray utf8 = line.toUtf8() + '\n';
    std::fwrite(utf8.constData(), 1, static_cast<std::size_t>(utf8.size()), stream);
    std::fflush(stream);
}

} // namespace

void printLine(const QString& line)
{
    writeLine(stdout, line);
}

void printError(const QString& line)
{
    writeLine(stderr, QStringLiteral("lumen-modules: ") + line);
}

} // namespace lumen
