// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QChar>
#include <QStringView>

namespace lumen {

// What the verb forms of the original languages can carry. The wizard offers nothing else: a
// pattern that asks an infinitive for its person would find no verse.

/// Fields of a Hebrew or Aramaic verb.
struct AspectFields
{
    bool person = false;
    bool gender = false;
    bool number = false;
    bool state = false;

    friend bool operator==(const AspectFields&, const AspectFields&) = default;
};

/// By the code of the aspect; "_", any aspect, leaves all open.
AspectFields fieldsOfAspect(QChar aspect);

/// Fields of a Greek verb behind mood, tense and voice.
enum class MoodFields {
    None,        ///< infinitive
    Nominal,     ///< participle: case, gender, number
    PersonNumber ///< finite forms
};

MoodFields fieldsOfMood(QChar mood);

/// The codes of the tenses that a mood of New Testament Greek has, in the order of the tense list.
QStringView tensesOfMood(QChar mood);

} // namespace lumen
