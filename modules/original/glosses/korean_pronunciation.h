// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace lumen {

/// The pronunciation in Hangul of a Hebrew or Greek word out of its scholarly spelling in Latin
/// letters ("ʼĕlôhîym", "agápē"). Blanks and hyphens keep their places.
QString koreanFromHebrew(const QString& spelling);
QString koreanFromGreek(const QString& spelling);

} // namespace lumen
