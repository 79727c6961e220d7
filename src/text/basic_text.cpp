// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/basic_text.h"

#include <QByteArray>
#include <QLocale>
#include <QStringList>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kSignificantDigits = 15;

bool isSkipped(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Only the characters that a number may hold, without blanks; the scan ends at the first other.
QByteArray numericHead(QStringView text)
{
    QByteArray head;
    for (const QChar c : text) {
        if (isSkipped(c))
            continue;
        if (c.unicode() > 0x7F || !(c.isLetterOrNumber() || QStringView(u"+-.&").contains(c)))
            break;
        head.append(c.toLatin1());
    }
    return head;
}

double radixNumber(const QByteArray& digits, int base)
{
    double value = 0;
    for (const char c : digits) {
        bool ok = false;
        const int digit = QByteArray(1, c).toInt(&ok, base);
        if (!ok)
            break;
        value = value * base + digit;
    }
    return value;
}

qsizetype digitsEnd(const QByteArray& text, qsizetype at)
{
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at;
}

// The exponent of a number that ends at a place, "" when none follows; "D" marks one as "E" does.
QByteArray exponentAt(const QByteArray& head, qsizetype at)
{
    if (at >= head.size() || !QByteArrayView("eEdD").contains(head[at]))
        return {};
    qsizetype first = at + 1;
    if (first < head.size() && (head[first] == '+' || head[first] == '-'))
        ++first;
    const qsizetype end = digitsEnd(head, first);
    return end > first ? 'e' + head.sliced(at + 1, end - at - 1) : QByteArray();
}

// The longest prefix that is a decimal number.
QByteArray decimalPrefix(const QByteArray& head)
{
    const qsizetype start = head.startsWith('-') || head.startsWith('+') ? 1 : 0;
    qsizetype end = digitsEnd(head, start);
    qsizetype digits = end - start;
    if (end < head.size() && head[end] == '.') {
        const qsizetype point = end;
        end = digitsEnd(head, point + 1);
        digits += end - point - 1;
    }
    return digits > 0 ? head.first(end) + exponentAt(head, end) : QByteArray("0");
}

// The digits of a number without trailing zeros, and the power of ten of the first of them.
struct Decimal
{
    QString digits;
    int exponent = 0;
};

Decimal decimalOf(double magnitude)
{
    const QByteArray form = QByteArray::number(magnitude, 'e', kSignificantDigits - 1);
    const qsizetype mark = form.indexOf('e');
    Decimal decimal{QString::fromLatin1(form.first(mark)).remove(u'.'),
                    form.sliced(mark + 1).toInt()};
    while (decimal.digits.size() > 1 && decimal.digits.endsWith(u'0'))
        decimal.digits.chop(1);
    return decimal;
}

QString scientific(const Decimal& decimal)
{
    QString text = decimal.digits.first(1);
    if (decimal.digits.size() > 1)
        text += u'.' + decimal.digits.sliced(1);
    const QString power = QString::number(std::abs(decimal.exponent)).rightJustified(2, u'0');
    return text + (decimal.exponent < 0 ? u"E-"_s : u"E+"_s) + power;
}

QString magnitudeText(double magnitude)
{
    const Decimal decimal = decimalOf(magnitude);
    const auto count = static_cast<int>(decimal.digits.size());
    const int decimals = count - 1 - decimal.exponent;
    if (decimal.exponent >= kSignificantDigits || decimals > kSignificantDigits)
        return scientific(decimal);
    if (decimal.exponent < 0)
        return u"0."_s + QString(-decimal.exponent - 1, u'0') + decimal.digits;
    const int whole = decimal.exponent + 1;
    if (count <= whole)
        return decimal.digits + QString(whole - count, u'0');
    return decimal.digits.first(whole) + u'.' + decimal.digits.sliced(whole);
}

} // namespace

double Val(QStringView text)
{
    const QByteArray head = numericHead(text);
    const QByteArray mark = head.first(qMin<qsizetype>(2, head.size())).toUpper();
    if (mark == "&H")
        return radixNumber(head.sliced(2), 16);
    if (mark == "&O")
        return radixNumber(head.sliced(2), 8);
    return QLocale::c().toDouble(QString::fromLatin1(decimalPrefix(head)));
}

int ValInt(QStringView text)
{
    const double rounded = std::nearbyint(Val(text));
    if (rounded >= std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    if (rounded <= std::numeric_limits<int>::min())
        return std::numeric_limits<int>::min();
    return static_cast<int>(rounded);
}

QString numberText(double number)
{
    if (!std::isfinite(number))
        return number < 0 ? u"-1.#INF"_s : u"1.#INF"_s;
    if (number == 0)
        return u"0"_s;
    const QString text = magnitudeText(std::fabs(number));
    return number < 0 ? u'-' + text : text;
}

QString trimmedNumber(double number)
{
    QString text = numberText(number);
    if (text.startsWith(u"0."))
        text.remove(0, 1);
    else if (text.startsWith(u"-0."))
        text.remove(1, 1);
    return text;
}

QString Str(double number)
{
    const QString text = trimmedNumber(number);
    return text.startsWith(u'-') ? text : u' ' + text;
}

QStringView Trim(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

QString dateText(QDate date)
{
    return date.isValid() ? date.toString(u"yyyy-MM-dd"_s) : QString();
}

std::optional<QDate> dateFromText(QStringView text)
{
    QString form = Trim(text).toString();
    form.replace(u'.', u'-').replace(u'/', u'-');
    const QStringList parts = form.split(u'-');
    if (parts.size() != 3)
        return std::nullopt;
    int numbers[3] = {};
    for (int i = 0; i < 3; ++i) {
        bool ok = false;
        numbers[i] = Trim(parts[i]).toInt(&ok);
        if (!ok)
            return std::nullopt;
    }
    const QDate date(numbers[0], numbers[1], numbers[2]);
    if (!date.isValid())
        return std::nullopt;
    return date;
}

} // namespace lumen
