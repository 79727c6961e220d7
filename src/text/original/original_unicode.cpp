// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/original/original_unicode.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

struct Sign
{
    char16_t unit = 0;
    char16_t code = 0;
};

// Letters are on lower-case letters by sound, the five final letters on 6 to 0.
constexpr std::array kHebrewSigns{
    Sign{u'א', 'a'},
    Sign{u'ב', 'b'},
    Sign{u'ג', 'g'},
    Sign{u'ד', 'd'},
    Sign{u'ה', 'h'},
    Sign{u'ו', 'w'},
    Sign{u'ז', 'z'},
    Sign{u'ח', 'x'},
    Sign{u'ט', 'j'},
    Sign{u'י', 'y'},
    Sign{u'כ', 'k'},
    Sign{u'ל', 'l'},
    Sign{u'מ', 'm'},
    Sign{u'נ', 'n'},
    Sign{u'ס', 's'},
    Sign{u'ע', 'e'},
    Sign{u'פ', 'p'},
    Sign{u'צ', 'c'},
    Sign{u'ק', 'q'},
    Sign{u'ר', 'r'},
    Sign{u'ש', 'v'},
    Sign{u'ת', 't'},
    Sign{u'ך', '6'},
    Sign{u'ם', '7'},
    Sign{u'ן', '8'},
    Sign{u'ף', '9'},
    Sign{u'ץ', '0'},
    // maqaf and sof pasuq
    Sign{0x05BE, '-'},
    Sign{0x05C3, ':'},
};

// Points; all of them are missing in the consonants-only font.
constexpr std::array kHebrewPoints{
    Sign{0x05B0, ';'}, // sheva
    Sign{0x05B1, '#'}, // hataf segol
    Sign{0x05B2, '&'}, // hataf patah
    Sign{0x05B3, '*'}, // hataf qamats
    Sign{0x05B4, 'i'}, // hiriq
    Sign{0x05B5, '2'}, // tsere, of two dots
    Sign{0x05B6, '3'}, // segol, of three
    Sign{0x05B7, '1'}, // patah
    Sign{0x05B8, '4'}, // qamats
    Sign{0x05B9, 'o'}, // holam
    Sign{0x05BB, 'u'}, // qubuts
    Sign{0x05C1, '`'}, // shin dot
    Sign{0x05C2, '~'}, // sin dot
    Sign{0x05BC, '5'}, // dagesh, mappiq
};

// Signs that the font draws but that no module holds.
constexpr std::array kHebrewFontOnly{
    Sign{0x05BD, '='}, // meteg
    Sign{0x05BF, '<'}, // rafe
    Sign{0x25CC, '^'}, // dotted circle
};

constexpr QChar kMetegCode{u'='};

// A second writing of a sign that has a code already.
constexpr std::array kHebrewVariants{
    Sign{0x05BA, 'o'}, // holam haser
    Sign{0x05C7, '4'}, // qamats qatan
};

constexpr std::array kGreekSigns{
    Sign{u'α', 'a'},   Sign{u'β', 'b'},    Sign{u'γ', 'g'},   Sign{u'δ', 'd'},
    Sign{u'ε', 'e'},   Sign{u'ζ', 'z'},    Sign{u'η', 'h'},   Sign{u'θ', 'q'},
    Sign{u'ι', 'i'},   Sign{u'κ', 'k'},    Sign{u'λ', 'l'},   Sign{u'μ', 'm'},
    Sign{u'ν', 'n'},   Sign{u'ξ', 'c'},    Sign{u'ο', 'o'},   Sign{u'π', 'p'},
    Sign{u'ρ', 'r'},   Sign{u'σ', 's'},    Sign{u'ς', 'j'},   Sign{u'τ', 't'},
    Sign{u'υ', 'u'},   Sign{u'φ', 'f'},    Sign{u'χ', 'x'},   Sign{u'ψ', 'y'},
    Sign{u'ω', 'w'},   Sign{u'Α', 'A'},    Sign{u'Β', 'B'},   Sign{u'Γ', 'G'},
    Sign{u'Δ', 'D'},   Sign{u'Ε', 'E'},    Sign{u'Ζ', 'Z'},   Sign{u'Η', 'H'},
    Sign{u'Θ', 'Q'},   Sign{u'Ι', 'I'},    Sign{u'Κ', 'K'},   Sign{u'Λ', 'L'},
    Sign{u'Μ', 'M'},   Sign{u'Ν', 'N'},    Sign{u'Ξ', 'C'},   Sign{u'Ο', 'O'},
    Sign{u'Π', 'P'},   Sign{u'Ρ', 'R'},    Sign{u'Σ', 'S'},   Sign{u'Τ', 'T'},
    Sign{u'Υ', 'U'},   Sign{u'Φ', 'F'},    Sign{u'Χ', 'X'},   Sign{u'Ψ', 'Y'},
    Sign{u'Ω', 'W'},   Sign{0x03DB, 'v'},                     // stigma
    Sign{0x00B7, ':'}, Sign{0x2019, '\''}, Sign{0x2013, '-'}, // middle dot, elision, dash
};

// Marks stand behind their letter in the order of its decomposition.
constexpr std::array kGreekMarks{
    Sign{0x0313, '1'}, // smooth breathing
    Sign{0x0314, '2'}, // rough breathing
    Sign{0x0301, '3'}, // acute
    Sign{0x0300, '4'}, // grave
    Sign{0x0342, '5'}, // circumflex
    Sign{0x0345, '6'}, // iota subscript
    Sign{0x0308, '7'}, // diaeresis
};

constexpr std::array kGreekVariants{
    Sign{0x02BC, '\''},
    Sign{0x1FBD, '\''},
    Sign{0x1FBF, '\''},
    Sign{0x2014, '-'},
};

constexpr std::size_t kAsciiCount = 128;

// One table both ways, made of several rows of signs. A code may stand for one unit only, but
// variants add further units to a code.
class SignTable
{
public:
    template <std::size_t N>
    constexpr void add(const std::array<Sign, N>& signs)
    {
        for (const Sign& sign : signs) {
            m_isUnique = m_isUnique && m_units[sign.code] == 0;
            m_units[sign.code] = sign.unit;
        }
    }

    constexpr bool isUnique() const { return m_isUnique; }
    /// 0 for a character that is no code.
    constexpr char16_t unit(QChar code) const
    {
        return code.unicode() < kAsciiCount ? m_units[code.unicode()] : u'\0';
    }

private:
    std::array<char16_t, kAsciiCount> m_units{};
    bool m_isUnique = true;
};

constexpr SignTable kHebrewUnits = [] {
    SignTable table;
    table.add(kHebrewSigns);
    table.add(kHebrewPoints);
    table.add(kHebrewFontOnly);
    return table;
}();
constexpr SignTable kGreekUnits = [] {
    SignTable table;
    table.add(kGreekSigns);
    return table;
}();
constexpr SignTable kGreekMarkUnits = [] {
    SignTable table;
    table.add(kGreekMarks);
    return table;
}();
static_assert(kHebrewUnits.isUnique() && kGreekUnits.isUnique() && kGreekMarkUnits.isUnique());

// 0 when the unit isn't in the row.
template <std::size_t N>
char16_t codeIn(const std::array<Sign, N>& signs, QChar unit)
{
    const auto found = std::ranges::find(signs, unit.unicode(), &Sign::unit);
    return found == signs.end() ? u'\0' : found->code;
}

char16_t hebrewPointCode(QChar unit)
{
    const char16_t code = codeIn(kHebrewPoints, unit);
    return code != 0 ? code : codeIn(kHebrewVariants, unit);
}

bool isHebrewDropped(QChar unit)
{
    const char16_t c = unit.unicode();
    return (c >= 0x0591 && c <= 0x05AF) || (c >= 0x05C4 && c <= 0x05C6) || c == 0x05BD ||
           c == 0x05BF || c == 0x05C0 || c == 0x034F || c == 0x200D;
}

// The order in which the font's substitutions expect the marks of a letter.
int markRank(char16_t code)
{
    switch (code) {
    case '`':
    case '~':
        return 0;
    case '5':
        return 1;
    case 'i':
        return 3;
    default:
        return 2;
    }
}

bool isPassedOn(QChar c)
{
    return c == u' ' || c == u'[' || c == u']' || c == u'/' || c == u'\r' || c == u'\n';
}

// Collects the marks of each letter, to put them in their order before the next one.
class HebrewEncoder
{
public:
    explicit HebrewEncoder(HebrewForm form) : m_form(form) {}

    void add(QChar c)
    {
        if (const char16_t point = hebrewPointCode(c)) {
            m_marks += QChar(point);
            return;
        }
        if (isHebrewDropped(c))
            return;
        endLetter();
        if (const char16_t sign = codeIn(kHebrewSigns, c))
            m_result.codes += QChar(sign);
        else if (isPassedOn(c))
            m_result.codes += c;
        else
            m_result.unknown += c;
    }

    FontCodes take()
    {
        endLetter();
        return std::move(m_result);
    }

private:
    void endLetter()
    {
        std::stable_sort(m_marks.begin(), m_marks.end(), [](QChar left, QChar right) {
            return markRank(left.unicode()) < markRank(right.unicode());
        });
        if (m_form == HebrewForm::Pointed)
            m_result.codes += m_marks;
        m_marks.clear();
    }

    HebrewForm m_form;
    FontCodes m_result;
    QString m_marks;
};

QString reversedLine(QStringView line)
{
    QString result(line.size(), Qt::Uninitialized);
    std::reverse_copy(line.begin(), line.end(), result.begin());
    for (QChar& c : result) {
        if (c == u'[')
            c = u']';
        else if (c == u']')
            c = u'[';
    }
    return result;
}

} // namespace

QString reversedHebrew(QStringView codes)
{
    QString result;
    result.reserve(codes.size());
    qsizetype start = 0;
    while (start < codes.size()) {
        qsizetype end = start;
        while (end < codes.size() && codes[end] != u'\r' && codes[end] != u'\n')
            ++end;
        result += reversedLine(codes.sliced(start, end - start));
        for (; end < codes.size() && (codes[end] == u'\r' || codes[end] == u'\n'); ++end)
            result += codes[end];
        start = end;
    }
    return result;
}

QString hebrewToUnicode(QStringView stored)
{
    QString text = reversedHebrew(stored);
    for (QChar& c : text)
        if (const char16_t unit = kHebrewUnits.unit(c))
            c = QChar(unit);
    return text.normalized(QString::NormalizationForm_C);
}

FontCodes hebrewToCodes(QStringView unicode, HebrewForm form)
{
    HebrewEncoder encoder(form);
    for (const QChar c : unicode.toString().normalized(QString::NormalizationForm_D))
        encoder.add(c);
    FontCodes result = encoder.take();
    result.codes = reversedHebrew(result.codes);
    return result;
}

QString hebrewConsonants(QStringView codes)
{
    const auto isPoint = [](QChar c) {
        return std::ranges::find(kHebrewPoints, c.unicode(), &Sign::code) != kHebrewPoints.end() ||
               c == kMetegCode;
    };
    return codes.toString().removeIf(isPoint);
}

QString greekToUnicode(QStringView stored)
{
    QString text;
    text.reserve(stored.size());
    bool isBehindLetter = false;
    for (const QChar c : stored) {
        // A digit that follows no letter is a digit.
        const char16_t mark = isBehindLetter ? kGreekMarkUnits.unit(c) : u'\0';
        const char16_t unit = kGreekUnits.unit(c);
        text += mark != 0 ? QChar(mark) : unit != 0 ? QChar(unit) : c;
        if (mark == 0)
            isBehindLetter = c.isLetter();
    }
    return text.normalized(QString::NormalizationForm_C);
}

FontCodes greekToCodes(QStringView unicode)
{
    constexpr QStringView kSame = u" ,.;()[]\r\n";
    FontCodes result;
    for (const QChar c : unicode.toString().normalized(QString::NormalizationForm_D)) {
        char16_t code = codeIn(kGreekSigns, c);
        if (code == 0)
            code = codeIn(kGreekMarks, c);
        if (code == 0)
            code = codeIn(kGreekVariants, c);
        if (code == 0 && kSame.contains(c))
            code = c.unicode();
        (code != 0 ? result.codes : result.unknown) += code != 0 ? QChar(code) : c;
    }
    return result;
}

} // namespace lumen
