// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace lumen {

/// How the texts of a store compare: Binary by code point, Text without regard to case.
enum class StoreCompare { Binary, Text };

/// Full: a write that has ended is on the disc. None: a power cut may cost the whole file, for
/// files that are made anew when they are lost.
enum class StoreSync { Full, None };

/// How the engine treats a file; what a file is for, only its owner knows.
struct FilePolicy
{
    bool readOnly = false; ///< never written, and converted into the cache, never in place
    StoreSync sync = StoreSync::Full;
    StoreCompare compare = StoreCompare::Binary; ///< where the store itself doesn't tell

    /// What nobody can make anew: nothing incomplete takes its place unasked.
    constexpr bool isIrreplaceable() const { return !readOnly && sync == StoreSync::Full; }
};

/// Tells the policy of the file of a native path.
using FilePolicies = std::function<FilePolicy(const QString& nativePath)>;

} // namespace lumen
