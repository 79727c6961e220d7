// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/key_places.h"

#include <algorithm>
#include <array>
#include <limits>

namespace lumen {

namespace {

constexpr int kFirstSamuel = 8;
constexpr int kSong = 21;
constexpr int kSecondCorinthians = 46;
constexpr int kThirdJohn = 63;

constexpr std::array kKoreanDivided{
    DividedVerse{{kSong, 6, 13}, 7, {kSong, 6, 13}, {kSong, 6, 14}},
    DividedVerse{{kThirdJohn, 1, 14}, 10, {kThirdJohn, 1, 14}, {kThirdJohn, 1, 15}},
};

struct MovedVerse
{
    VersePlace english;
    VersePlace korean;
};

constexpr std::array kKoreanMoved{
    MovedVerse{{kFirstSamuel, 30, 31}, {kFirstSamuel, 30, 30}},
    MovedVerse{{kSecondCorinthians, 13, 12}, {kSecondCorinthians, 13, 11}},
    MovedVerse{{kSecondCorinthians, 13, 13}, {kSecondCorinthians, 13, 12}},
    MovedVerse{{kSecondCorinthians, 13, 14}, {kSecondCorinthians, 13, 13}},
};

} // namespace

VersePlace koreanPlace(const VersePlace& english, int word)
{
    const auto divided = std::ranges::find(kKoreanDivided, english, &DividedVerse::verse);
    if (divided != kKoreanDivided.end())
        return divided->placeOf(word);
    const auto moved = std::ranges::find(kKoreanMoved, english, &MovedVerse::english);
    return moved == kKoreanMoved.end() ? english : moved->korean;
}

std::vector<VersePlace> koreanPlaces(const VersePlace& english)
{
    const VersePlace first = koreanPlace(english, 1);
    const VersePlace last = koreanPlace(english, std::numeric_limits<int>::max());
    if (first == last)
        return {first};
    return {first, last};
}

} // namespace lumen
