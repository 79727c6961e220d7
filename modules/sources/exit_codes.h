// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

/// The exit codes that all commands and their child processes share.
inline constexpr int kExitDone = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitUsage = 2;
/// The user stopped the command, as shells give it for Ctrl-C.
inline constexpr int kExitInterrupted = 130;

} // namespace lumen
