// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/services.h"
#include "palette/palette_entries.h"
#include "palette/verse_texts.h"
#include "platform/controls/named.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QTreeWidget>

#include <functional>
#include <optional>
#include <vector>

namespace lumen {

class ActiveToolBars;
class ReaderPlace;
struct AppState;

/// What the palette of a window works on.
struct PaletteHost
{
    Services& services;
    const AppState& state;
    QWidget& window;
    const ActiveToolBars& bars;
    ReaderPlace& reader;
    VerseTexts& verses;
    /// Searches words in the search window.
    std::function<void(const QString& words)> searchFor;
};

/// One line to type and a list below it: places, tools and verses of the base version that it may
/// mean. What was chosen is done when the dialog has ended, by runPalette.
class frmPalette : public QDialog // no Q_OBJECT: its kin has Hangul names
{
public:
    frmPalette(const PaletteHost& host, QWidget* parent = nullptr);

    /// Begins to read the base version; to be called before it is shown.
    void Form_Load();
    /// What Enter or a click took.
    const std::optional<PaletteEntry>& chosen() const { return m_chosen; }
    /// The line with what is being composed in it.
    QString typed() const;

    QLineEdit* txTyped = named<QLineEdit>(u"txTyped", u"명령이나 장절, 찾을 말");
    QTreeWidget* lstFound = named<QTreeWidget>(u"lstFound", u"찾은 것");
    QLabel* lblState = named<QLabel>(u"lblState");

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut();
    void readOn();
    void fill();
    void addVerses(std::vector<PaletteEntry>& entries);
    void show(const std::vector<PaletteEntry>& entries);
    bool keyPressed(const QKeyEvent& key);
    void moveChoice(int key);
    void take(int row);
    void takeSearch();

    PaletteHost m_host;
    QTimer m_reading; ///< a book each time that nothing else is to be done
    std::vector<PaletteEntry> m_entries;
    std::optional<PaletteEntry> m_chosen;
    QString m_composed; ///< by the input method, not yet in the line
};

/// Shows the palette over a window and does what was chosen.
void runPalette(const PaletteHost& host);

} // namespace lumen
