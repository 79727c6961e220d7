// SPDX-License-Identifier: GPL-2.0-or-later
// The date part of field_types.h: day numbers and the forms in which dates are written.
#include "jet/store/field_types.h"

#include <cmath>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMsPerDay = 24 * 60 * 60 * 1000;
constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;

QDate dayZero()
{
    return {1899, 12, 30};
}

/// Reads numbers and separators from the front of a text.
class Scanner
{
public:
    explicit Scanner(QStringView text) : m_rest(text.trimmed()) {}

    bool atEnd() const { return m_rest.isEmpty(); }

    std::optional<int> number(int mostDigits)
    {
        int digits = 0;
        while (digits < m_rest.size() && m_rest[digits] >= u'0' && m_rest[digits] <= u'9')
            ++digits;
        if (digits == 0 || digits > mostDigits)
            return std::nullopt;
        const int value = m_rest.first(digits).toInt();
        m_rest = m_rest.sliced(digits);
        m_digits = digits;
        return value;
    }

    /// Digits of the number that was read last.
    int digits() const { return m_digits; }

    bool take(QStringView word)
    {
        if (!m_rest.startsWith(word))
            return false;
        m_rest = m_rest.sliced(word.size());
        return true;
    }

    bool blanks()
    {
        const auto before = m_rest.size();
        while (take(u" ")) {
        }
        return m_rest.size() < before;
    }

private:
    QStringView m_rest;
    int m_digits = 0;
};

QStringView takeSeparator(Scanner& scanner)
{
    for (const QStringView candidate : {u"-", u"/", u"."})
        if (scanner.take(candidate))
            return candidate;
    return {};
}

std::optional<QDate> readDate(Scanner& scanner)
{
    const auto first = scanner.number(4);
    const int firstDigits = scanner.digits();
    const QStringView separator = takeSeparator(scanner);
    if (!first || separator.isEmpty())
        return std::nullopt;
    const bool dots = separator == u".";
    if (dots)
        scanner.blanks();
    const auto second = scanner.number(2);
    if (!second || !scanner.take(separator))
        return std::nullopt;
    if (dots)
        scanner.blanks();
    const auto third = scanner.number(4);
    const int thirdDigits = scanner.digits();
    if (dots)
        scanner.take(u".");
    if (!third)
        return std::nullopt;
    QDate date;
    if (firstDigits == 4 && thirdDigits <= 2)
        date = QDate(*first, *second, *third);
    else if (firstDigits <= 2 && thirdDigits == 4 && separator == u"/")
        date = QDate(*third, *first, *second);
    return date.isValid() && date.year() >= kFirstYear ? std::optional(date) : std::nullopt;
}

/// The hour of a day that "오전" or "오후" divides: 12 is the first of its half.
std::optional<int> hourOfHalf(int hour, bool afternoon)
{
    if (hour < 1 || hour > 12)
        return std::nullopt;
    return hour % 12 + (afternoon ? 12 : 0);
}

std::optional<QTime> readTime(Scanner& scanner)
{
    const bool morning = scanner.take(u"오전");
    const bool afternoon = !morning && scanner.take(u"오후");
    scanner.blanks();
    auto hour = scanner.number(2);
    if (hour && (morning || afternoon))
        hour = hourOfHalf(*hour, afternoon);
    if (!hour || !scanner.take(u":"))
        return std::nullopt;
    const auto minute = scanner.number(2);
    const auto second = scanner.take(u":") ? scanner.number(2) : std::optional(0);
    if (!minute || !second)
        return std::nullopt;
    const QTime time(*hour, *minute, *second);
    return time.isValid() ? std::optional(time) : std::nullopt;
}

} // namespace

double dayNumber(const QDateTime& moment)
{
    const auto days = static_cast<double>(dayZero().daysTo(moment.date()));
    const double fraction = static_cast<double>(moment.time().msecsSinceStartOfDay()) / kMsPerDay;
    return days < 0 ? days - fraction : days + fraction;
}

QDateTime momentOf(double dayNumber)
{
    constexpr double kMostDays = 3000000; // beyond the year 9999
    if (!std::isfinite(dayNumber) || std::abs(dayNumber) > kMostDays)
        return {};
    double days = std::trunc(dayNumber);
    auto ms = std::llround(std::abs(dayNumber - days) * kMsPerDay);
    if (ms >= kMsPerDay) {
        ms = 0;
        days += 1;
    }
    const QDate date = dayZero().addDays(static_cast<qint64>(days));
    if (date.year() < kFirstYear || date.year() > kLastYear)
        return {};
    return {date, QTime::fromMSecsSinceStartOfDay(static_cast<int>(ms)), Qt::UTC};
}

QString dayText(double dayNumber)
{
    const QDateTime moment = momentOf(dayNumber);
    if (!moment.isValid())
        return sqlNumber(dayNumber);
    const bool midnight = moment.time() == QTime(0, 0);
    return moment.toString(midnight ? u"yyyy-MM-dd"_s : u"yyyy-MM-dd HH:mm:ss"_s);
}

std::optional<double> parseDate(QStringView text)
{
    Scanner scanner(text);
    const auto date = readDate(scanner);
    if (!date)
        return std::nullopt;
    QTime time(0, 0);
    if (!scanner.atEnd()) {
        if (!scanner.blanks())
            return std::nullopt;
        const auto read = readTime(scanner);
        if (!read || !scanner.atEnd())
            return std::nullopt;
        time = *read;
    }
    return dayNumber(QDateTime(*date, time, Qt::UTC));
}

} // namespace lumen
