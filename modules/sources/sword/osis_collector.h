// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/version_text.h"

#include <QString>
#include <QStringView>

#include <functional>

namespace lumen {

/// Whether the number of the original word is written behind each word, as "God<430>".
enum class StrongNumbers { Drop, Write };

/// Gathers the words and titles of one verse after the other from OSIS elements, wherever they come
/// from: a well-formed file or the entries of a SWORD module, which need not be. Notes and
/// introductions are passed over; an end without a start does no harm.
class OsisCollector
{
public:
    /// The value of an attribute of the element at hand, empty when it has none of that name.
    using Attribute = std::function<QStringView(QStringView name)>;

    explicit OsisCollector(StrongNumbers numbers = StrongNumbers::Drop) : m_numbers(numbers) {}

    void start(QStringView element, const Attribute& attribute);
    void end(QStringView element);
    void characters(QStringView text);

    bool insideTitle() const { return m_title != Title::None; }
    bool hasWords() const;

    /// Moves words and titles into the verse and begins anew. Returns the heading behind the last
    /// word, which belongs to no word of this verse: that of the next one, or a book's colophon.
    QString takeVerse(VerseText& verse);
    /// A heading for the verse to come.
    void addPendingHeading(const QString& heading) { addHeading(m_heading, heading); }
    /// Forgets words but keeps the titles, which stand in front of the verse to come.
    void dropWords();
    /// Forgets all.
    void reset();

private:
    enum class Title { None, Psalm, Heading, Passed };

    static Title titleKind(const Attribute& attribute);
    bool passesOver(QStringView element, const Attribute& attribute);
    void startTitle(const Attribute& attribute);
    void endTitle();
    void startWord(const Attribute& attribute);
    void endWord();
    void flushDivineName();
    void append(QStringView text);
    QString& target() { return insideTitle() ? m_titleText : m_words; }

    StrongNumbers m_numbers;
    QString m_words;
    QString m_psalmTitle;
    QString m_heading;
    QString m_lateHeading;
    QString m_titleText;
    QString m_divineName;
    QString m_lemma;
    QString m_passedElement;
    QString m_passedUntil; ///< the eID that ends a passed milestone, "" when an end tag does
    int m_passedDepth = 0;
    qsizetype m_wordStart = 0;
    bool m_insideDivineName = false;
    Title m_title = Title::None;
};

} // namespace lumen
