// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/field_scramble.h"

#include "text/codepage949.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

namespace lumen::DES {
namespace {

// One row of the permutation: the codes from first to last move by the offset.
struct Shift
{
    int first = 0;
    int last = 0;
    int offset = 0;
};

// Blocks are of five lead bytes each, 0xB0 to 0xC8, and of code page 949 codes.
constexpr std::array kHangulShifts{
    Shift{0xB0A1, 0xB4FE, +5120}, Shift{0xB5A1, 0xB9FE, +1280}, Shift{0xBAA1, 0xBEFE, -2560},
    Shift{0xBFA1, 0xC3FE, -2560}, Shift{0xC4A1, 0xC8FE, -1280},
};
constexpr std::array kAsciiShifts{
    Shift{33, 63, +62},
    Shift{64, 94, -31},
    Shift{95, 125, -31},
};
// The trail bytes of KS X 1001 begin here. Codes with a lower one are syllables that the page
// added later; moving them would lead to codes that are not assigned, and back to nowhere.
constexpr int kFirstTrail = 0xA1;

class Permutation
{
public:
    Permutation();

    static QString apply(const std::vector<char16_t>& table, QStringView text)
    {
        QString result(text.size(), Qt::Uninitialized);
        std::transform(text.begin(), text.end(), result.begin(),
                       [&table](QChar c) { return QChar(table[c.unicode()]); });
        return result;
    }

    std::vector<char16_t> scrambled = std::vector<char16_t>(0x10000);
    std::vector<char16_t> plain = std::vector<char16_t>(0x10000);

private:
    void pair(char16_t from, char16_t to)
    {
        scrambled[from] = to;
        plain[to] = from;
    }
};

Permutation::Permutation()
{
    std::iota(scrambled.begin(), scrambled.end(), char16_t(0));
    plain = scrambled;
    for (const Shift& shift : kAsciiShifts)
        for (int code = shift.first; code <= shift.last; ++code)
            pair(static_cast<char16_t>(code), static_cast<char16_t>(code + shift.offset));
    for (const Shift& shift : kHangulShifts) {
        for (int code = shift.first; code <= shift.last; ++code) {
            const auto from = unit949(static_cast<std::uint16_t>(code));
            const auto to = unit949(static_cast<std::uint16_t>(code + shift.offset));
            if ((code & 0xFF) >= kFirstTrail && from && to)
                pair(*from, *to);
        }
    }
}

const Permutation& permutation()
{
    static const Permutation made;
    return made;
}

} // namespace

QString ScrambleField(QStringView text)
{
    return Permutation::apply(permutation().scrambled, text);
}

QString UnscrambleField(QStringView text)
{
    return Permutation::apply(permutation().plain, text);
}

} // namespace lumen::DES
