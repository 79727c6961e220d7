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

constexpr int kFirstKings = 10;
constexpr int kPsalms = 18;
constexpr int kIsaiah = 22;

// The map of verses tells that these are divided, but not where: that is seen from the English
// translation.
constexpr std::array kHebrewDivided{
    DividedVerse{{kFirstKings, 18, 34}, 10, {kFirstKings, 18, 33}, {kFirstKings, 18, 34}},
    DividedVerse{{kFirstKings, 20, 3}, 6, {kFirstKings, 20, 2}, {kFirstKings, 20, 3}},
    DividedVerse{{kFirstKings, 22, 21}, 8, {kFirstKings, 22, 21}, {kFirstKings, 22, 22}},
    DividedVerse{{kIsaiah, 63, 19}, 9, {kIsaiah, 63, 19}, {kIsaiah, 64, 1}},
    DividedVerse{{kPsalms, 13, 6}, 6, {kPsalms, 13, 5}, {kPsalms, 13, 6}},
};

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
    const auto divided = std::ranges::find(kHebrewDivided, wlc, &DividedVerse::verse);
    if (divided != kHebrewDivided.end())
        return divided->placeOf(word);
    return m_places.value(keyOf(wlc), wlc);
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
