// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSet>
#include <QString>

#include <functional>

namespace lumen {

/// The words of the installed sources of the original texts, read for themselves, without the
/// builder of the modules: what a search has to find in modules made from them. Verses are told as
/// the King James Version numbers them.
class SourceWords
{
public:
    using Verses = QSet<QString>;
    /// `morph` is the source's own code, such as "HC/Vqw3ms" or "V-AAI-3S".
    using Test = std::function<bool(int strong, const QString& morph)>;

    /// False when the sources are not installed.
    static bool installed();

    /// The Hebrew verses in which a piece of a word meets the test; `morph` is the word's.
    static Verses hebrew(const Test& test);
    static Verses greek(const Test& test);
};

} // namespace lumen
