// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/words/strong_entry.h"

#include <QChar>
#include <QPoint>
#include <QString>

#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace lumen {

class FlexGrid;
class TextControl;

/// The words that a record of the word analysis has room for.
inline constexpr int kWordColumns = 74;

/// One verse word by word, readable. Words count from 1 in the order of reading.
class VerseWords
{
public:
    VerseWords() = default;
    /// Reads the records of one verse, one a kind of data.
    explicit VerseWords(Recordset& rows);

    /// A verse with a row of Hebrew word forms.
    bool isHebrew() const { return m_kinds.count(u'h') > 0; }
    /// The words up to the first that has no form.
    int count() const { return m_count; }
    bool hasKind(QChar kind) const { return m_kinds.count(kind) > 0; }
    /// What a word has of a kind ("s", "k", ...); nothing for Null and for words beyond the last.
    std::optional<QString> value(QChar kind, int word) const;
    /// Hebrew reads from the right: its first word stands in the last column. Column 0 holds the
    /// labels. The same way back.
    int columnOf(int word) const { return isHebrew() ? m_count + 1 - word : word; }

private:
    std::map<QChar, std::vector<std::optional<QString>>> m_kinds;
    int m_count = 0;
};

/// The analysis line of a word: `head` is the word in its script, `code` the parsing code, nothing
/// where the sources have none. RTF, code page 949 not yet applied.
QString composeParsing(const QString& head, const std::optional<QString>& code,
                       Testament testament);

/// What the word analysis needs of the window that shows it.
struct WordAnalysisHost
{
    FlexGrid& grid;
    TextControl& txParsing;
    TextControl& dictionary;
    /// Whether a word of this Strong's number stands out; unset none does.
    std::function<bool(const QString& strongNumber)> marksWord = {};
    /// The menu was asked for on the grid, at a place of the screen.
    std::function<void(const QPoint& at)> popUpEditMenu = {};
    /// A click on a cell without a text chooses nothing then.
    bool passesOverEmptyCells = false;
};

/// A verse word by word: a grid with a column a word, the analysis of the chosen word and its entry
/// in the dictionary of Strong's numbers.
class WordAnalysis
{
public:
    WordAnalysis(Services& services, const AppState& state, WordAnalysisHost host);

    StrongEntry& entry() { return m_entry; }
    /// Fills the grid from the open records of a verse and shows its first word. Throws JetError.
    void Proc원전분해결과채우기(Recordset& rows, Testament testament);
    /// Shows the analysis of the chosen word.
    void ProcShowParsing();
    /// The testament of the verse on show.
    Testament testament() const { return m_testament; }
    /// Forgets the verse; the host empties the controls.
    void forget();

    /// A double click on a word.
    std::function<void()> onDblClick;

private:
    void fillGrid();
    void fillRow(int row, QChar kind, QStringView label);
    void markWords();
    void selectWord(int word);
    void wordChosen();
    void popUpEditMenu(const QPoint& at);
    void showWord();

    Services& m_services;
    WordAnalysisHost m_host;
    StrongEntry m_entry;
    VerseWords m_words;
    Testament m_testament = Testament::Old;
    int m_column = 0; ///< of the chosen word, 0 for none
};

} // namespace lumen
