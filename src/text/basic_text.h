// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDate>
#include <QString>
#include <QStringView>

#include <optional>

namespace lumen {

// Text and number routines as the Basic run time has them; settings, keys and labels of users'
// files rest on these forms.

/// The number at the head of a text: blanks are skipped wherever they stand, "&H" and "&O" open a
/// hexadecimal and an octal number, the rest is passed over; 0 when there is none.
double Val(QStringView text);
/// Val rounded to the nearest whole number (halves to the even one), kept within an int.
int ValInt(QStringView text);

/// The number with up to 15 digits and a decimal point, "0.5", "1E+15", "2.5E-20".
QString numberText(double number);
/// The number with a blank in front unless it is negative, and without the zero before the point:
/// " 12", "-3", " .5".
QString Str(double number);
/// Str without the blank.
QString trimmedNumber(double number);

/// Without the blanks (U+0020 only) at both ends.
QStringView Trim(QStringView text);

/// A date as it is shown, typed and put into queries, "2024-03-09"; "" for an invalid date.
QString dateText(QDate date);
/// Reads year, month and day with "-", "." or "/" between them; nothing when it is no date.
std::optional<QDate> dateFromText(QStringView text);

/// A colour as a long: red is the low byte, green the next, blue the third.
using RgbLong = quint32;

constexpr RgbLong RGB(int red, int green, int blue)
{
    return static_cast<RgbLong>((red & 0xFF) | (green & 0xFF) << 8 | (blue & 0xFF) << 16);
}
constexpr int redPart(RgbLong color)
{
    return static_cast<int>(color & 0xFF);
}
constexpr int greenPart(RgbLong color)
{
    return static_cast<int>(color >> 8 & 0xFF);
}
constexpr int bluePart(RgbLong color)
{
    return static_cast<int>(color >> 16 & 0xFF);
}

} // namespace lumen
