// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace lumen {

/// A verse or title out of mark-up: no pilcrow, blanks joined and none before , . ; : ? !
QString tidyText(QStringView text);

/// Tidy text, or nothing where there is none.
std::optional<QString> textOrNothing(QStringView text);

/// True for what a source writes where it has no words of the Bible: "Not available" and the like,
/// or signs without a letter.
bool isNoBibleText(QStringView text);

/// Capitals as the divine name is printed, but for a genitive ending: "Lord's" gives "LORD's".
QString divineCapitals(const QString& name);

} // namespace lumen
