// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/confined_process.h"

#include <QProcess>

#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace lumen {

namespace {

#ifndef LUMEN_SANITIZE // the sanitizers reserve far more address space than they use
constexpr rlim_t kAddressLimitBytes = 1024UL * 1024 * 1024;
#endif

void limit(decltype(RLIMIT_CPU) resource, rlim_t value)
{
    const rlimit limits{value, value};
    setrlimit(resource, &limits);
}

/// Runs in the child between fork and exec: system calls only.
void limitThisProcess(const ProcessLimits& limits)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    limit(RLIMIT_CPU, static_cast<rlim_t>(limits.cpuSeconds));
    limit(RLIMIT_CORE, 0); // a crash on a damaged file is expected and needs no image
    if (limits.files == ProcessLimits::Files::WritesNone)
        limit(RLIMIT_FSIZE, 0);
#ifndef LUMEN_SANITIZE
    limit(RLIMIT_AS, kAddressLimitBytes);
#endif
}

} // namespace

void confine(QProcess& process, const ProcessLimits& limits)
{
    process.setStandardErrorFile(QProcess::nullDevice()); // where libraries complain
    process.setStandardInputFile(QProcess::nullDevice());
    process.setChildProcessModifier([limits] { limitThisProcess(limits); });
}

} // namespace lumen
