// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/verse_index.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace lumen {

class Database;
struct AppState;
struct Services;

/// Verses that hold what was typed.
struct VerseHits
{
    int count = 0;
    std::vector<int> first; ///< the numbers of the first ones, in canon order
};

/// The text of one version in memory, folded so that it can be searched while one types; 31,000
/// verses are read book by book, as the caller finds time, and take some 20 MB.
class VerseTexts
{
public:
    VerseTexts();
    VerseTexts(VerseTexts&&) noexcept;
    VerseTexts& operator=(VerseTexts&&) noexcept;
    ~VerseTexts();

    /// Begins anew with another version; nothing happens when it is the same. Throws a JetError
    /// when its module can't be opened.
    void open(Services& services, const AppState& state, int code);
    /// Reads one more book; false when all are read. Throws a JetError.
    bool readOn();
    bool isComplete() const { return m_book >= kBooks; }
    /// Takes a verse, as readOn does; books from 0 in their order.
    void add(const VersePlace& place, const QString& text);

    int size() const { return static_cast<int>(m_places.size()); }
    const VersePlace& place(int verse) const { return m_places[static_cast<std::size_t>(verse)]; }
    /// The verse as it is shown: Hebrew and Greek as Unicode.
    QString text(int verse) const;

    /// The verses that hold all words of a text, wherever they stand; the first `most` of them.
    /// None for an empty text.
    VerseHits search(const QString& typed, int most) const;

private:
    static constexpr int kBooks = 66;

    bool holds(std::size_t verse, const QString& word) const;

    int m_code = 0;
    QString m_table;
    std::unique_ptr<Database> m_module;
    int m_book = 0; ///< the next one to be read
    std::vector<VersePlace> m_places;
    std::vector<qsizetype> m_starts{0}; ///< of each verse in m_shown, and the end
    std::vector<qsizetype> m_foldedStarts{0};
    QString m_shown;
    QString m_folded;   ///< each verse ends with a line end
    QString m_initials; ///< as long as m_folded
};

} // namespace lumen
