// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace lumen {

/// An entry as a source has it, in plain text with "\n" between its lines.
struct DictionaryEntry
{
    QString head;
    QString text;

    friend bool operator==(const DictionaryEntry&, const DictionaryEntry&) = default;
};

/// NotFound when a file is not there, Damaged with file, line and reason when it can't be read to
/// its end or holds no entry.
using DictionaryResult = Result<std::vector<DictionaryEntry>>;

/// {"HEAD": {"name": "Head", "definitions": [{"text": "..."}]}}
DictionaryResult readJsonDictionary(const QString& file);

/// A dictionary of the DICT protocol: an index of heads with places in base 64, and the text, which
/// may be compressed by gzip. The line of the head above a text is left out, lines that only the
/// width of a page has broken are joined.
DictionaryResult readDictDictionary(const QString& indexFile, const QString& textFile);

/// Tables of a head and its text, parted by a tab; "\\n" in a text begins a new line.
DictionaryResult readTableDictionary(const QStringList& files);

} // namespace lumen
