// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QtGlobal>

class QProcess;

namespace lumen {

/// What a process may take that reads files which may be damaged: on them a library may crash, fill
/// the memory or never end.
struct ProcessLimits
{
    enum class Files { Writes, WritesNone };

    qint64 cpuSeconds = 0;
    Files files = Files::Writes;
};

/// Prepares a process that isn't started yet: it runs within the limits and a fixed amount of
/// memory, says nothing but on its standard output, and ends with the thread that starts it.
void confine(QProcess& process, const ProcessLimits& limits);

} // namespace lumen
