// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/settings.h"

#include <QString>
#include <QStringList>

namespace lumen {

/// What is selected when verses are copied.
struct CopySource
{
    /// The table names of the base version and of the parallel slots that are not empty.
    QStringList versions;
    QString bookName;
    QString abbreviation;
    QString chapter;
    /// "3" or "3-5".
    QString verseRange;
};

/// Where copied verses come from, such as " (개역한글/KJV 창1:1~3)"; "" when no tail is wanted. The
/// line break before a tail on its own line is not part of it.
QString GetCopyTailIndex(const CopyOptions& options, const CopySource& source);

/// What stands behind the copied verses: the tail with the line break that the options ask for.
QString copyEnding(const CopyOptions& options, const CopySource& source);

} // namespace lumen
