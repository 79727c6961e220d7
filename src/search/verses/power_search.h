// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace lumen {

/// The conjunction between two texts; the values are the list indexes of its combo.
enum class Conjunction { And = 0, Or = 1 };

/// What the power tab holds, texts trimmed. The first text must not be empty.
struct PowerTerms
{
    QString first;
    QString second;
    QString third;
    Conjunction afterFirst = Conjunction::And;
    Conjunction afterSecond = Conjunction::And;

    /// With an empty second text the third moves up together with the conjunction before it.
    PowerTerms closedUp() const;
    /// The texts that aren't empty.
    QStringList texts() const;
};

/// The criterion over one to three texts. "A or B, and C" means (A or B) and C; every other mix
/// has the database's precedence, AND before OR.
QString powerCriterion(const PowerTerms& terms);

} // namespace lumen
