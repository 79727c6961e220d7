// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/verse_index.h"
#include "data/settings.h"
#include "forms/reader_place.h"
#include "reader/version_slots.h"
#include "reader/views/chapter_document.h"

#include <QString>

#include <array>
#include <functional>
#include <vector>

namespace lumen {

/// What a command has changed; told once, at its end.
struct ReaderChange
{
    bool text = false;     ///< a chapter has been read: place or versions are others, or it is anew
    bool versions = false; ///< a slot has another version, or a refused choice has to be put back
    bool view = false;     ///< the other view is to be shown
    bool stand = false;    ///< the reader stands at another verse of the same text
    int marked = 0;        ///< the verse to be marked and scrolled to, 0 for none
    QString moved = {};    ///< a typed move that succeeded, as the history names it
};

/// Where the reader is, in which versions and in which view. What shows it calls a command or
/// reports where the user stands; the model reads the chapter once a command and tells once what
/// has changed.
class ReaderModel : public ReaderPlace
{
public:
    /// Messages stand before `window`.
    ReaderModel(Services& services, const AppState& state, QWidget* window);

    /// Told at the end of each command that has changed something.
    std::function<void(const ReaderChange& change)> onChange;
    /// What the window alone can do of ReaderPlace.
    std::function<void()> onApplySettings;
    std::function<void()> onBringToFront;

    /// Takes the lists of versions anew, as the start has found them.
    void takeStock() { m_slots.takeStock(); }
    /// Goes to where the settings have left the reader, absent versions being passed over, and
    /// reads the first chapter. Book, chapter and view are within their limits.
    void open(const ReaderSettings& left);
    /// The window has come on the screen: from now on there is a current verse.
    void appear();

    /// The one way to another place: goes to a verse and marks it; verse 0 goes to the chapter's
    /// head and marks none. Numbers beyond book or chapter are brought to their limits.
    void moveTo(const VersePlace& place);
    /// Moves within the book; behind the last chapter comes its first.
    void stepChapter(int step);
    /// Takes a row of a slot's list of versions; the former one stays, after a message, when it is
    /// absent.
    void chooseVersion(int slot, int index);
    void setView(ViewMode view);
    /// The view on show stands at a verse and has verses selected; nothing is told.
    void settle(int verse, const QString& range);
    /// It is the user who has gone there.
    void stand() { tell({.stand = true}); }

    ViewMode view() const { return m_view; }
    /// What is on show, a source for each open slot, the base version first; empty when it could
    /// not be read.
    const std::vector<ChapterSource>& text() const { return m_text; }
    bool hasText() const { return !m_text.empty() && !m_text.front().verses.empty(); }
    /// The chapter as the print preview takes it. Throws JetError.
    std::vector<ChapterSource> readPreview();
    const VersionChoice& choice(int slot) const { return m_slots(slot).choice; }
    bool holdsHebrew() const { return m_slots.holdsHebrew(); }
    Database* baseModule() { return m_slots.dacBasis().Database(); }
    /// The current verse as a bookmark names it, "창1:3"; "" where the base version has none.
    QString reference() const;
    /// Frees the modules.
    void close() { m_slots.close(); }

    // ReaderPlace
    int book() const override { return m_place.book; }
    int chapter() const override { return m_place.chapter; }
    QString versionName(int slot) const override { return m_slots(slot).table; }
    int versionCode(int slot) const override { return m_slots(slot).code; }
    int GetCurVerse() const override { return m_onScreen ? m_place.verse : 0; }
    QString GetCurVerseRange() const override { return m_onScreen ? m_range : QString(); }
    void Proc이동(QString& reference) override;
    void goTo(int book, int chapter, int verse) override;
    void applySettings() override { onApplySettings(); }
    void bringToFront() override { onBringToFront(); }

private:
    bool take(int slot, int index, bool loading);
    /// Numbers beyond book or chapter are brought to their limits.
    void readChapter(int book, int chapter);
    void read();
    void tell(const ReaderChange& change) const;

    Services& m_services;
    QWidget* m_window;
    VersionSlots m_slots;
    std::vector<ChapterSource> m_text;
    VersePlace m_place{0, 1, 1};
    QString m_range;
    ViewMode m_view = ViewMode::Text;
    bool m_onScreen = false;
};

} // namespace lumen
