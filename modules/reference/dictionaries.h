// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reference/module_task.h"
#include "sources/dictionary_readers.h"

#include <QString>
#include <QStringList>

namespace lumen {

/// What the Bible dictionary is made of; what is empty or not there is left out.
struct BibleDictionarySources
{
    QStringList korean; ///< tables of head and text, class "t"
    QString easton;     ///< JSON, class "e"
    QString hitchcock;  ///< JSON, class "h"
    QString nave;       ///< stem of a SWORD dictionary, class "n"
};

/// The table of the Bible dictionary: the Korean entries first, then the others.
Result<ModuleReport> fillBibleDictionary(const BibleDictionarySources& sources, ModuleStore& store);

/// What the English dictionary is made of.
struct EnglishDictionarySources
{
    QString index; ///< of a DICT dictionary
    QString text;
    QStringList own; ///< tables of head and text
};

/// The table of the English dictionary: a user's entries, then `korean`, then the English ones.
Result<ModuleReport> fillEnglishDictionary(const EnglishDictionarySources& sources,
                                           const std::vector<DictionaryEntry>& korean,
                                           ModuleStore& store);

} // namespace lumen
