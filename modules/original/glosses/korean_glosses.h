// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/original_text.h"
#include "platform/result.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace lumen {

/// A Korean word or a few for each of Strong's numbers. They come written; numbers without are
/// derived from a Korean text of the user, as far as they come out with some certainty.
class KoreanGlosses
{
public:
    enum class Source { Written, Derived };

    void add(bool isGreek, int strong, const QStringList& words, Source source);
    void addRemark(const QString& remark) { m_remarks << remark; }

    /// The best word, "" for none.
    QString gloss(bool isGreek, int strong) const { return words(isGreek, strong).value(0); }
    /// A few words, the best first.
    QStringList words(bool isGreek, int strong) const;
    bool isDerived(bool isGreek, int strong) const;

    /// What a module's origin says about them.
    QString originLine() const;
    const QStringList& remarks() const { return m_remarks; }

private:
    struct Entry
    {
        QStringList words;
        Source source = Source::Written;
    };

    const Entry* find(bool isGreek, int strong) const;

    QHash<int, Entry> m_hebrew;
    QHash<int, Entry> m_greek;
    QStringList m_remarks;
};

/// Tables of number and words, parted by ", "; a file that is not there is passed over.
struct WrittenGlosses
{
    QString hebrew;
    QString greek;
};

/// The glosses for a text. With Korean files a remark tells how far the written ones agree with
/// what the Korean text has, and which of the commonest don't. NotFound and Damaged when a file
/// can't be read, Cancelled when the user asked to stop.
Result<KoreanGlosses> koreanGlosses(const OriginalText& text, const WrittenGlosses& written,
                                    const QStringList& koreanFiles);

} // namespace lumen
