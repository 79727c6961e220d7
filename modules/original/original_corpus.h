// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/glosses/korean_glosses.h"
#include "original/original_text.h"
#include "original/readers/strong_reader.h"
#include "platform/result.h"

#include <QString>
#include <QStringList>

#include <mutex>
#include <optional>

namespace lumen {

/// The files that the modules of the original languages are made of. Native paths.
struct OriginalSources
{
    QStringList hebrewFiles; ///< the tagged Hebrew text, a book a file
    QString verseMap;        ///< between its numbering and the English one
    QString kjv;             ///< the tagged King James Version
    QString hebrewStrong;
    QString hebrewIndex; ///< of the Hebrew lexicon, with references to the Theological Wordbook
    QString greekStrong;
    WrittenGlosses glosses;  ///< in Korean
    QStringList koreanFiles; ///< of the user: the Korean text that glosses are derived from

    /// What words and their analysis come from, without the Korean text.
    QStringList textFiles() const;
    QStringList strongFiles() const { return {hebrewStrong, hebrewIndex, greekStrong}; }
};

/// All that the modules are made of, under the keys that they share.
struct OriginalContent
{
    OriginalText verses; ///< both testaments
    StrongEntries hebrewStrong;
    StrongEntries greekStrong;
    KoreanGlosses korean;
    QStringList hebrewRemarks;
    QStringList greekRemarks;
};

/// Reads the sources once for all modules. May be asked from several threads.
class OriginalCorpus
{
public:
    explicit OriginalCorpus(OriginalSources sources) : m_sources(std::move(sources)) {}

    const OriginalSources& sources() const { return m_sources; }
    /// The same object at each call; NotFound and Damaged name the file, Cancelled when the user
    /// asked to stop.
    const Result<OriginalContent>& content();

private:
    OriginalSources m_sources;
    std::once_flag m_once;
    std::optional<Result<OriginalContent>> m_content;
};

} // namespace lumen
