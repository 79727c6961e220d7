// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "search/wizard/parsing_pattern.h"

#include <QList>
#include <QStringView>

#include <span>

namespace lumen {

/// The pages of the parsing wizard, in the order of its tabs.
enum class WizardPage {
    Chaek,
    Pumsa,
    Myungsa,
    Daemyungsa,
    Hyungyongsa,
    Dongsa1,
    Dongsa2,
    Bulbyunsa,
    NPumsa,
    NMyungsa,
    NDaemyungsa,
    NJungguansa,
    NDongsa,
    NHyungyongsa,
    NBusa,
    NJupsokJupdusa,
    NBunlyJupdusa,
    NBulbyunsa
};

/// One entry of a list: what the user reads and the character that goes into the pattern.
struct ParsingChoice
{
    QStringView text;
    char16_t code = u'_';
};

using ChoiceList = std::span<const ParsingChoice>;

/// A list on a page and the position of its character.
struct ParsingField
{
    int position = 0;
    QStringView control; ///< the name of the list
    QStringView label;
    ChoiceList choices;
    QStringView labelName{}; ///< the name of the label, where it has one
    QStringView hint{};      ///< what a user must know of the list
};

/// A marker letter between the groups of a code.
struct ParsingMarker
{
    int position = 0;
    char16_t letter = 0;
};

/// A page of lists.
struct ParsingPage
{
    WizardPage page = WizardPage::Chaek;
    QStringView key; ///< the name of the tab
    QStringView title;
    std::span<const ParsingField> fields;
    std::span<const ParsingMarker> markers;
    int end = 0; ///< the position of the end mark, 0 for none
};

/// All pages but the first and the two with the parts of speech.
std::span<const ParsingPage> parsingPages();
const ParsingPage& parsingPage(WizardPage page);

/// A part of speech, its character and its page, if it has one.
struct PartOfSpeech
{
    QStringView text;
    char16_t code = 0;
    WizardPage page = WizardPage::Chaek; ///< Chaek: no page of its own
};

/// The entries of lstPumsa and NlstPumsa.
std::span<const PartOfSpeech> semiticPartsOfSpeech();
std::span<const PartOfSpeech> greekPartsOfSpeech();

/// Puts what was chosen on a page into the pattern: a character for each field of the page in its
/// order; "_" where a list is closed.
void buildParsingPage(const ParsingPage& page, const QList<QChar>& chosen, ParsingPattern& pattern);

/// The fields of the Greek verb; their positions behind the voice depend on the mood.
enum class GreekVerbField { Mood, Tense, Voice, Case, Gender, Number, Person };

} // namespace lumen
