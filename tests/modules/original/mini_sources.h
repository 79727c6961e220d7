// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "modules/source_files.h"
#include "original/original_corpus.h"

#include <QString>

namespace lumen {

/// A tagged Hebrew book of made-up verses: elements between the tags of each verse.
QString oshbBook(const QString& verses);
QString oshbVerse(const QString& id, const QString& elements);
/// <w> with lemma, morph and text.
QString oshbWord(const QString& lemma, const QString& morph, const QString& text);
/// A tagged English Bible of made-up verses.
QString kjvBible(const QString& chapters);
QString kjvVerse(const QString& id, const QString& elements);

/// Writes a whole set of made-up sources: Genesis 1:1-2, John 1:1, four dictionary entries in all.
/// Some words stand twice, one has two numbers, one is a ketiv with its qere.
OriginalSources writeMiniSources(const SourceFiles& files);

} // namespace lumen
