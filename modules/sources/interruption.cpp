// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/interruption.h"

#include <csignal>

namespace lumen {

namespace {

volatile std::sig_atomic_t g_asked = 0;

extern "C" void noteInterruption(int signal)
{
    g_asked = 1;
    // The next one ends the program: whoever insists does not want to wait.
    std::signal(signal, SIG_DFL);
}

} // namespace

void watchForInterruption()
{
    std::signal(SIGINT, noteInterruption);
    std::signal(SIGTERM, noteInterruption);
}

bool interrupted()
{
    return g_asked != 0;
}

} // namespace lumen
