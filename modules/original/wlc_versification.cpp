// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/wlc_versification.h"

#include "sources/book_names.h"
#include "sources/fault_texts.h"
#include "sources/version_text.h"

#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <tuple>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kFirstSamuel = 8;
constexpr int kFirstKings = 10;
constexpr int kPsalms = 18;
constexpr int kSong = 21;
constexpr int kIsaiah = 22;
constexpr int kSecondCorinthians = 46;
constexpr int kThirdJohn = 63;

// A verse whose words up to a certain one stand at one place and the rest at another.
struct DividedVerse
{
    VersePlace verse;
    int lastWord;
    VersePlace head;
    VersePlace rest;
};

// The map of verses tells that these are divided, but not where: that is seen from the English
// translation.
constexpr std::array kHebrewDivided{
    DividedVerse{{kFirstKings, 18, 34}, 10, {kFirstKings, 18, 33}, {kFirstKings, 18, 34}},
    DividedVerse{{kFirstKings, 20, 3}, 6, {kFirstKings, 20, 2}, {kFirstKings, 20, 3}},
    DividedVerse{{kFirstKings, 22, 21}, 8, {kFirstKings, 22, 21}, {kFirstKings, 22, 22}},
    DividedVerse{{kIsaiah, 63, 19}, 9, {kIsaiah, 63, 19}, {kIsaiah, 64, 1}},
    DividedVerse{{kPsalms, 13, 6}, 6, {kPsalms, 13, 5}, {kPsalms, 13, 6}},
};

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

template <std::size_t N>
const DividedVerse* dividedAt(const std::array<DividedVerse, N>& verses, const VersePlace& place)
{
    const auto found = std::ranges::find(verses, place, &DividedVerse::verse);
    return found == verses.end() ? nullptr : &*found;
}

VersePlace placeIn(const DividedVerse& divided, int word)
{
    return word <= divided.lastWord ? divided.head : divided.rest;
}

bool parsePlace(QStringView id, VersePlace& place)
{
    const auto parts = id.split(u'.');
    const auto book = parts.size() == 3 ? BookNames::fromOsis(parts[0]) : std::nullopt;
    if (!book)
        return false;
    place = {*book, parts[1].toInt(), parts[2].toInt()};
    return place.chapter > 0 && place.verse > 0;
}

QString keyOf(const VersePlace& place)
{
    return BibleCode::verseKey(place.book, place.chapter, place.verse);
}

auto orderOf(const VersePlace& place)
{
    return std::tuple(place.book, place.chapter, place.verse);
}

} // namespace

Result<WlcVersification> WlcVersification::read(const QString& file)
{
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
        return missingSource(file);
    WlcVersification result;
    QXmlStreamReader xml(&device);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"verse")
            continue;
        const auto attributes = xml.attributes();
        const QStringView wlc = attributes.value("wlc"_L1);
        // "!a" and "!b" name the halves of a divided verse; its places stand in the table above.
        if (wlc.contains(u'!'))
            continue;
        const QString target = attributes.value("kjv"_L1).toString().section(u'!', 0, 0);
        VersePlace from;
        VersePlace to;
        if (!parsePlace(wlc, from) || !parsePlace(target, to))
            return sourceFailure(file, xml.lineNumber(), u"알 수 없는 절"_s);
        result.m_places.insert(keyOf(from), to);
    }
    if (xml.hasError())
        return sourceFailure(file, xml.lineNumber(), faultText(xml));
    return result;
}

VersePlace WlcVersification::english(const VersePlace& wlc, int word) const
{
    if (const DividedVerse* divided = dividedAt(kHebrewDivided, wlc))
        return placeIn(*divided, word);
    return m_places.value(keyOf(wlc), wlc);
}

VersePlace koreanPlace(const VersePlace& english, int word)
{
    if (const DividedVerse* divided = dividedAt(kKoreanDivided, english))
        return placeIn(*divided, word);
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

OriginalText regrouped(OriginalText text, const WordPlace& placeOf)
{
    const auto before = [](const VersePlace& a, const VersePlace& b) {
        return orderOf(a) < orderOf(b);
    };
    std::map<VersePlace, OriginalVerse, decltype(before)> verses(before);
    for (OriginalVerse& verse : text) {
        int number = 0;
        OriginalVerse* target = nullptr;
        for (OriginalWord& word : verse.words) {
            number += word.isMark ? 0 : 1;
            const VersePlace place = placeOf(verse.place, std::max(number, 1));
            if (!target || !(target->place == place)) {
                target = &verses[place];
                target->place = place;
                target->isGreek = verse.isGreek;
            }
            target->words.push_back(std::move(word));
        }
    }
    OriginalText result;
    result.reserve(verses.size());
    for (auto& [place, verse] : verses)
        result.push_back(std::move(verse));
    return result;
}

} // namespace lumen
