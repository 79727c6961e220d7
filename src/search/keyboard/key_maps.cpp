// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/keyboard/key_maps.h"

#include "text/original/original_unicode.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Caps Lock turns the letters over; its two maps differ in some signs from the others on purpose.
constexpr QStringView kPlain = u"1234567890-=qwertyuiop[]\\asdfghjkl;'zxcvbnm,./`";
constexpr QStringView kShift = u"!@#$%^&*()_+QWERTYUIOP{}|ASDFGHJKL:\"ZXCVBNM<>?~";
constexpr QStringView kCapsLock = u"1234567890-=QWERTYUIOP[]\\ASDFGHJKL:'ZXCVBNM,.?`";
constexpr QStringView kCapsLockShift = u"!@#$%^&*()_+qwertyuiop[]\\asdfghjkl;'zxcvbnm,./~";

static_assert(kPlain.size() == kTypingKeyCount && kShift.size() == kTypingKeyCount &&
              kCapsLock.size() == kTypingKeyCount && kCapsLockShift.size() == kTypingKeyCount);

constexpr QStringView kHebrewMarks = u";#&*i2314ou`~5=<";
constexpr QStringView kGreekMarks = u"1234567";
constexpr QChar kDiaeresis{u'7'};

KeyMap keyMap(QStringView characters)
{
    KeyMap map;
    for (int key = 0; key < kTypingKeyCount; ++key) {
        const QChar character = characters[key];
        map[static_cast<std::size_t>(key)] = character == u'&' ? u"&&"_s : QString(character);
    }
    return map;
}

} // namespace

KeyMaps SetupKeyMap()
{
    return {keyMap(kPlain), keyMap(kShift), keyMap(kCapsLock), keyMap(kCapsLockShift)};
}

QString languageFont(OriginalLanguage language)
{
    return language == OriginalLanguage::Hebrew ? u"OrvaneHeb"_s : u"OrvaneGrk"_s;
}

QString keyCaption(const QString& entry, OriginalLanguage language)
{
    const QChar code = entry.front();
    if (language == OriginalLanguage::Hebrew)
        return kHebrewMarks.contains(code) ? entry + u'^' : entry; // the dotted circle
    if (!kGreekMarks.contains(code))
        return entry;
    return (code == kDiaeresis ? u'i' : u'a') + entry;
}

QString keyMeaning(QChar code, OriginalLanguage language)
{
    const QString text(code);
    if (language == OriginalLanguage::Hebrew)
        return hebrewToUnicode(text);
    if (!kGreekMarks.contains(code))
        return greekToUnicode(text);
    // A mark is known as one behind a letter only.
    return greekToUnicode(u'a' + text).normalized(QString::NormalizationForm_D).sliced(1);
}

} // namespace lumen
