// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/services.h"
#include "jet/data_control.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/text/text_control.h"
#include "platform/message_text.h"

#include <QRadioButton>
#include <QString>
#include <QStringView>

#include <array>
#include <functional>
#include <span>

namespace lumen {

struct AppState;

/// Where a dictionary looks for the word: it is the entry, begins it, stands in it, or in the text.
enum class DictionaryMatch { Exact, Start, Within, Meaning };

/// One of the works that a dictionary module holds.
struct DictionarySource
{
    QStringView item;      ///< in the list of works
    QStringView className; ///< column `class`; "" for all
    QStringView told;      ///< behind "출처 : "
};

/// What the two dictionaries differ in.
struct DictionaryProfile
{
    QStringView module;
    QStringView table;
    QStringView order = {};                         ///< behind the condition, " order by no"
    std::span<const DictionarySource> sources = {}; ///< empty: one work, no column `class`
    QStringView noMeaning;                          ///< shown for an entry without a text
    const MessageText& longSearch;                  ///< asked before texts are searched
};

extern const DictionaryProfile kBibleDictionary;
extern const DictionaryProfile kEnglishDictionary;

/// The controls of one window that a dictionary is looked up by.
struct DictionaryControls
{
    QWidget& page;
    ComboBox& word; ///< keeps the words used so far
    ListBox& near;
    TextControl& meaning;
    /// In the order of DictionaryMatch; nullptr for what the dictionary doesn't offer.
    std::array<QRadioButton*, 4> matches;
    ComboBox* source = nullptr; ///< nullptr with one work
};

/// The query of a lookup; `source` is a place in the profile's list.
QString dictionaryQuery(const DictionaryProfile& profile, DictionaryMatch match,
                        const QString& word, int source);

/// Looks words up in a dictionary module and shows the matching ones with the text of the chosen
/// one. The reader's panel and the map have one each.
class DictionaryLookup
{
public:
    DictionaryLookup(Services& services, const AppState& state, const DictionaryProfile& profile,
                     const DictionaryControls& controls);

    /// Looks the trimmed word up and shows the first match. May throw a JetError when the module
    /// can't be opened; one that the query meets is told in the text box.
    void search(const QString& word);
    /// The count of the words on show, "" without any.
    QString status() const;

    /// Puts a text into the status bar.
    std::function<void(const QString&)> tell;

private:
    DictionaryMatch match() const;
    bool confirms(DictionaryMatch match, const QString& word) const;
    bool runQuery(const QString& query);
    void keepWord(const QString& word);
    void fill();
    void showChosen();
    QString sourceOf(const QString& className) const;

    Services& m_services;
    const AppState& m_state;
    const DictionaryProfile& m_profile;
    DictionaryControls m_controls;
    DataControl m_result;
};

} // namespace lumen
