// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace lumen {

/// The arguments of a command, taken apart.
struct Arguments
{
    QStringList positional;
    QHash<QString, QString> options; ///< by name without its hyphens; a flag has the value ""

    bool has(const QString& name) const { return options.contains(name); }
    QString value(const QString& name, const QString& fallback = {}) const
    {
        return options.value(name, fallback);
    }
};

/// Reads `--name value`, `--name=value`, `--flag`; behind a lone `--` all is positional. An option
/// of neither list and a missing value are failures with a Korean text.
Result<Arguments> parseArguments(const QStringList& args, const QStringList& withValue,
                                 const QStringList& flags = {});

} // namespace lumen
