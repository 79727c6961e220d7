// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/wizard/parsing_grammar.h"

namespace lumen {

AspectFields fieldsOfAspect(QChar aspect)
{
    switch (aspect.unicode()) {
    case u'p': // perfect
    case u'i': // imperfect
    case u'w': // with consecutive waw
    case u'v': // imperative, always of the second person
        return {.person = true, .gender = true, .number = true};
    case u'P': // participle, a noun in its forms
    case u's': // passive participle of the Qal
        return {.gender = true, .number = true, .state = true};
    case u'c': // infinitives have a stem only
    case u'a':
        return {};
    default:
        return {.person = true, .gender = true, .number = true, .state = true};
    }
}

MoodFields fieldsOfMood(QChar mood)
{
    switch (mood.unicode()) {
    case u'p':
        return MoodFields::Nominal;
    case u'n':
        return MoodFields::None;
    default:
        return MoodFields::PersonNumber;
    }
}

QStringView tensesOfMood(QChar mood)
{
    switch (mood.unicode()) {
    case u'i': // imperfect and pluperfect are of the indicative alone
        return u"pfaixy";
    case u'p':
    case u'n':
        return u"pfax";
    case u'd': // among them the adverbs used as imperatives, "hither"
        return u"paxv";
    case u's':
        return u"pax";
    case u'o':
        return u"pa";
    default:
        return u"pfaixyv";
    }
}

} // namespace lumen
