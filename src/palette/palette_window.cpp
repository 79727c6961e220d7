// SPDX-License-Identifier: GPL-2.0-or-later
#include "palette/palette_window.h"

#include "forms/guarded.h"
#include "forms/reader_place.h"
#include "platform/controls/bars/active_tool_bars.h"
#include "platform/dialogs/modal.h"

#include <QApplication>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostVerses = 50;
// Many tools hold a single consonant; more of them would push the verses out of view.
constexpr std::size_t kMostTools = 12;
constexpr QSize kDesign(620, 420); // pixels
constexpr double kDown = 0.12;     // of the window's height, where the palette begins

constexpr QStringView kHint = u"Enter 고르기, Ctrl+Enter 검색 창에서 찾기, Esc 닫기";

// A single letter stands in nearly every verse.
bool isWorthSearching(const QString& typed)
{
    const QString word = typed.trimmed();
    return word.size() > 1 || (!word.isEmpty() && word[0].unicode() >= 0xAC00);
}

} // namespace

frmPalette::frmPalette(const PaletteHost& host, QWidget* parent) : QDialog(parent), m_host(host)
{
    setObjectName(u"frmPalette"_s);
    setWindowTitle(u"명령과 구절 찾기"_s);
    layOut();
    m_reading.setInterval(0);
    connect(&m_reading, &QTimer::timeout, this, [this] { readOn(); });
    connect(txTyped, &QLineEdit::textChanged, this, [this] { fill(); });
    connect(lstFound, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* item) { take(lstFound->indexOfTopLevelItem(item)); });
    txTyped->installEventFilter(this);
    lstFound->installEventFilter(this);
}

void frmPalette::layOut()
{
    txTyped->setPlaceholderText(u"명령, 장절(요 3:16), 찾을 말"_s);
    lstFound->setColumnCount(2);
    lstFound->setHeaderHidden(true);
    lstFound->setRootIsDecorated(false);
    lstFound->setUniformRowHeights(true);
    lstFound->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstFound->header()->setStretchLastSection(false);
    lstFound->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    lstFound->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    lblState->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(txTyped);
    column->addWidget(lstFound, 1);
    column->addWidget(lblState);
    const QSize room = m_host.window.size();
    resize(kDesign.boundedTo(room));
    move(m_host.window.pos() +
         QPoint((room.width() - width()) / 2, static_cast<int>(kDown * room.height())));
}

void frmPalette::Form_Load()
{
    guarded(m_host.services, this, [this] {
        m_host.verses.open(m_host.services, m_host.state, m_host.reader.versionCode(0));
    });
    if (!m_host.verses.isComplete())
        m_reading.start();
    fill();
    txTyped->setFocus();
}

void frmPalette::readOn()
{
    // What can't be read is told once; the verses so far can be searched.
    bool goesOn = false;
    guarded(m_host.services, this, [&] { goesOn = m_host.verses.readOn(); });
    if (goesOn)
        return;
    m_reading.stop();
    fill();
}

QString frmPalette::typed() const
{
    QString text = txTyped->text();
    return text.insert(txTyped->cursorPosition(), m_composed);
}

void frmPalette::fill()
{
    const QString text = typed();
    std::vector<PaletteEntry> entries = placeEntries(text);
    std::vector<PaletteEntry> tools = toolEntries(m_host.bars, text);
    if (!text.trimmed().isEmpty() && tools.size() > kMostTools)
        tools.resize(kMostTools);
    entries.insert(entries.end(), tools.begin(), tools.end());
    lblState->setText(kHint.toString());
    if (isWorthSearching(text))
        addVerses(entries);
    if (!text.trimmed().isEmpty() && m_host.searchFor)
        entries.push_back({PaletteKind::Search, u"검색 창에서 '%1' 찾기"_s.arg(text.trimmed()),
                           QKeySequence(u"Ctrl+Return"_s).toString(QKeySequence::NativeText)});
    show(entries);
}

void frmPalette::addVerses(std::vector<PaletteEntry>& entries)
{
    const VerseHits hits = m_host.verses.search(typed(), kMostVerses);
    for (const int verse : hits.first) {
        const VersePlace& place = m_host.verses.place(verse);
        PaletteEntry entry{PaletteKind::Verse, BibleCode::IndexToRef(BibleCode::verseKey(
                                                   place.book, place.chapter, place.verse)) +
                                                   u"  "_s + m_host.verses.text(verse)};
        entry.verse = place;
        entries.push_back(entry);
    }
    const QString version = m_host.reader.versionName(0);
    QString state = u"%1 %2절"_s.arg(version).arg(hits.count);
    if (hits.count > kMostVerses)
        state += u" 가운데 처음 %1절"_s.arg(kMostVerses);
    if (!m_host.verses.isComplete())
        state += u" (본문을 읽는 중)"_s;
    lblState->setText(state + u". "_s + kHint.toString());
}

void frmPalette::show(const std::vector<PaletteEntry>& entries)
{
    m_entries = entries;
    lstFound->setUpdatesEnabled(false);
    lstFound->clear();
    QList<QTreeWidgetItem*> items;
    for (const PaletteEntry& entry : entries) {
        auto* const item = new QTreeWidgetItem({entry.text, entry.key});
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        item->setToolTip(0, entry.kind == PaletteKind::Verse ? entry.text : QString());
        items << item;
    }
    lstFound->addTopLevelItems(items);
    if (!items.isEmpty())
        lstFound->setCurrentItem(items.front());
    lstFound->setUpdatesEnabled(true);
}

bool frmPalette::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::InputMethod && watched == txTyped) {
        // Behind the line, which takes the event first.
        m_composed = static_cast<const QInputMethodEvent*>(event)->preeditString();
        QMetaObject::invokeMethod(
            this, [this] { fill(); }, Qt::QueuedConnection);
    }
    if (event->type() == QEvent::KeyPress)
        return keyPressed(static_cast<const QKeyEvent&>(*event));
    return QDialog::eventFilter(watched, event);
}

bool frmPalette::keyPressed(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if ((key.modifiers() & Qt::ControlModifier) != 0)
            takeSearch();
        else
            take(lstFound->indexOfTopLevelItem(lstFound->currentItem()));
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        moveChoice(key.key());
        return true;
    default:
        return false;
    }
}

// The line keeps the focus, so that typing goes on.
void frmPalette::moveChoice(int key)
{
    const int count = lstFound->topLevelItemCount();
    if (count == 0)
        return;
    const int page =
        std::max(1, lstFound->viewport()->height() /
                        std::max(1, lstFound->visualItemRect(lstFound->topLevelItem(0)).height()));
    const int now = lstFound->indexOfTopLevelItem(lstFound->currentItem());
    const int step = key == Qt::Key_Up       ? -1
                     : key == Qt::Key_Down   ? 1
                     : key == Qt::Key_PageUp ? -page
                                             : page;
    lstFound->setCurrentItem(lstFound->topLevelItem(std::clamp(now + step, 0, count - 1)));
}

void frmPalette::take(int row)
{
    if (row < 0)
        return;
    m_chosen = m_entries[static_cast<std::size_t>(row)];
    accept();
}

void frmPalette::takeSearch()
{
    if (typed().trimmed().isEmpty() || !m_host.searchFor)
        return;
    m_chosen = PaletteEntry{PaletteKind::Search, {}};
    accept();
}

void runPalette(const PaletteHost& host)
{
    frmPalette palette(host, &host.window);
    palette.Form_Load();
    host.services.modal.run(palette);
    if (!palette.chosen())
        return;
    const PaletteEntry entry = *palette.chosen();
    switch (entry.kind) {
    case PaletteKind::Tool:
        return host.bars.tool(entry.tool).action()->trigger();
    case PaletteKind::Search:
        return host.searchFor(palette.typed().trimmed());
    case PaletteKind::Place: {
        QString reference = entry.reference;
        guarded(host.services, &host.window, [&] { host.reader.Proc이동(reference); });
        return;
    }
    case PaletteKind::Verse:
        guarded(host.services, &host.window, [&] {
            host.reader.goTo(entry.verse.book, entry.verse.chapter, entry.verse.verse);
        });
    }
}

} // namespace lumen
