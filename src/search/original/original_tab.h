// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "forms/services.h"
#include "search/original/original_search.h"
#include "search/original/scratch_tables.h"

#include <QPoint>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <memory>

class QWidget;

namespace lumen {

class ParsingPanel;
class ParsingResults;
class WordAnalysis;

/// The third tab of the search window at work: it asks the question that its controls hold, lists
/// the verses and shows the chosen one with its words.
class OriginalTab
{
public:
    /// `lookUps` is the window's data control; what the other tabs found in it is gone when this
    /// one searches or shows a verse.
    OriginalTab(Services& services, const AppState& state, QWidget& window, ParsingPanel& panel,
                ParsingResults& results, BibleSearch& lookUps);
    ~OriginalTab();

    /// The window has been loaded afresh.
    void Form_Load();
    /// The tab comes on show.
    void open();
    /// The end of the window; what it looked up must be closed.
    void Form_Unload();

    void ProcParsingSearch(const QString& scopeTag);

    /// State or count of the search, for the status bar.
    std::function<void(const QString& text)> onState;
    /// The word analysis is on neither drive.
    std::function<void()> onAnalysisLost;
    /// The user wants to read a verse, told by its short reference.
    std::function<void(const QString& reference)> onOpenVerse;
    /// The right button was used on the grid of words.
    std::function<void(const QPoint& at)> onEditMenu;

private:
    bool isComplete(const OriginalQuestion& question);
    bool findRoot();
    bool prepareTables();
    QString modulePath(QStringView module) const;
    void search(const OriginalQuestion& question);
    void Proc파싱검색결과채우기();
    void clearVerse();
    bool wasSearched(const QString& strongNumber) const;
    void lstResult_Click();
    void showWords(const QString& key);
    void showKoreanVerse(const QString& key);

    Services& m_services;
    const AppState& m_state;
    QWidget& m_window;
    ParsingPanel& m_panel;
    ParsingResults& m_results;
    BibleSearch& m_lookUps;
    ScratchTables m_tables;
    OriginalSearch m_search;
    std::unique_ptr<WordAnalysis> m_words;
    QString m_root; ///< AppPath or the CD drive, whichever holds the word analysis
    QStringList m_keys;
    int m_shownVerse = -1; ///< the list index of the verse in the panes
    std::array<QString, kConditionCount> m_strongNumbers; ///< those of the root conditions
    bool m_fresh = false; ///< the scratch tables hold nothing of an earlier run
};

} // namespace lumen
