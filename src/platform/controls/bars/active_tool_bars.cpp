// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/bars/active_tool_bars.h"

#include "platform/controls/named.h"

#include <QCursor>
#include <QIcon>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kPackedMargin = 3; // pixels on either side of a packed button's text

QString tipFor(const QString& caption, const QKeySequence& shortcut)
{
    if (shortcut.isEmpty())
        return spokenCaption(caption);
    return spokenCaption(caption) + u" ("_s + shortcut.toString(QKeySequence::NativeText) + u')';
}

} // namespace

QString Tool::id() const
{
    return m_action ? m_action->objectName() : QString();
}

bool Tool::enabled() const
{
    return m_action && m_action->isEnabled();
}

void Tool::setEnabled(bool enabled)
{
    if (m_action)
        m_action->setEnabled(enabled);
}

bool Tool::checked() const
{
    return m_action && m_action->isChecked();
}

void Tool::setChecked(bool checked)
{
    if (m_action)
        m_action->setChecked(checked);
}

bool Tool::visible() const
{
    return m_action && m_action->isVisible();
}

void Tool::setVisible(bool visible)
{
    if (m_action)
        m_action->setVisible(visible);
}

QString Tool::caption() const
{
    return m_action ? m_action->text() : QString();
}

void Tool::setCaption(const QString& caption)
{
    if (!m_action)
        return;
    m_action->setText(caption);
    m_action->setToolTip(tipFor(caption, m_action->shortcut()));
}

QVariant Tool::tag() const
{
    return m_action ? m_action->data() : QVariant();
}

void Tool::setTag(const QVariant& tag)
{
    if (m_action)
        m_action->setData(tag);
}

void Tool::setIcon(const QIcon& icon)
{
    if (m_action)
        m_action->setIcon(icon);
}

ComboBox& Tool::combo() const
{
    return *m_combo;
}

struct ActiveToolBars::Entry
{
    QString id;
    QString caption;
    QString place;
    QString shortcut;
    QString icon;
    ToolKind kind = ToolKind::Button;
    QAction* action = nullptr;
    QMenu* menu = nullptr;
    ComboBox* combo = nullptr;
};

ActiveToolBars::ActiveToolBars(QMainWindow& window) : m_window(window)
{
    m_noCombo = new ComboBox(&window);
    m_noCombo->hide();
}

ActiveToolBars::~ActiveToolBars() = default;

void ActiveToolBars::add(std::span<const ToolRow> rows)
{
    for (const ToolRow& row : rows)
        addRow(row);
}

ActiveToolBars::Entry& ActiveToolBars::entryFor(const ToolRow& row)
{
    const QString id = row.id.toString();
    std::unique_ptr<Entry>& slot = m_entries[id];
    if (slot)
        return *slot;
    slot = std::make_unique<Entry>();
    Entry& entry = *slot;
    m_order.push_back(&entry);
    entry.id = id;
    entry.caption = row.caption.toString();
    entry.place = row.place.toString();
    entry.shortcut = row.shortcut.toString();
    entry.icon = row.icon.toString();
    entry.kind = row.kind;
    if (row.kind == ToolKind::Menu)
        makeMenu(entry);
    else if (row.kind != ToolKind::Combo)
        makeAction(entry);
    return entry;
}

void ActiveToolBars::makeMenu(Entry& entry)
{
    entry.menu = new QMenu(entry.caption, &m_window);
    entry.menu->setObjectName(entry.id);
    entry.action = entry.menu->menuAction();
    QObject::connect(entry.menu, &QMenu::aboutToShow, &m_window,
                     [this, id = entry.id] { clicked(id); });
    finishAction(entry);
}

void ActiveToolBars::makeAction(Entry& entry)
{
    entry.action = new QAction(entry.caption, &m_window);
    entry.action->setCheckable(entry.kind == ToolKind::Toggle);
    if (!entry.shortcut.isEmpty())
        entry.action->setShortcut(QKeySequence(entry.shortcut, QKeySequence::PortableText));
    Q_ASSERT(entry.shortcut.isEmpty() || !entry.action->shortcut().isEmpty());
    // The window itself holds the action, so that the key works while the tool's bar is hidden.
    m_window.addAction(entry.action);
    QObject::connect(entry.action, &QAction::triggered, &m_window,
                     [this, id = entry.id] { clicked(id); });
    finishAction(entry);
}

void ActiveToolBars::finishAction(Entry& entry)
{
    entry.action->setObjectName(entry.id);
    entry.action->setToolTip(tipFor(entry.caption, entry.action->shortcut()));
}

void ActiveToolBars::addRow(const ToolRow& row)
{
    const auto parent = m_entries.find(row.place.toString());
    QMenu* menu = parent != m_entries.end() ? parent->second->menu : nullptr;
    if (row.kind == ToolKind::Separator) {
        if (menu)
            menu->addSeparator();
        else
            barFor(row.place).addSeparator();
        return;
    }
    Entry& entry = entryFor(row);
    if (menu)
        menu->addAction(entry.action);
    else if (row.place == kMenuBar)
        m_window.menuBar()->addAction(entry.action);
    else if (row.place != kNowhere)
        placeOnBar(entry, barFor(row.place));
}

void ActiveToolBars::placeOnBar(Entry& entry, QToolBar& bar)
{
    if (entry.kind == ToolKind::Combo) {
        makeCombo(entry, bar);
        return;
    }
    bar.addAction(entry.action);
    auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(entry.action));
    if (button && entry.menu)
        button->setPopupMode(QToolButton::InstantPopup);
    if (button)
        button->setAccessibleName(spokenCaption(entry.caption));
}

void ActiveToolBars::makeCombo(Entry& entry, QToolBar& bar)
{
    // A list can stand in one place only.
    Q_ASSERT(!entry.combo);
    entry.combo = new ComboBox;
    entry.combo->setObjectName(entry.id);
    entry.combo->setAccessibleName(spokenCaption(entry.caption));
    entry.combo->setToolTip(spokenCaption(entry.caption));
    entry.combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    entry.combo->onClick = [this, id = entry.id] {
        if (onComboChange)
            onComboChange(id);
    };
    entry.action = bar.addWidget(entry.combo);
    entry.action->setText(entry.caption);
    finishAction(entry);
}

QToolBar& ActiveToolBars::barFor(QStringView caption)
{
    QToolBar*& bar = m_bars[caption.toString()];
    if (!bar) {
        if (m_bars.size() > 1)
            m_window.addToolBarBreak();
        bar = m_window.addToolBar(caption.toString());
        bar->setObjectName(caption.toString());
        // The window's own menu of bars would hide them behind the back of the check tools.
        bar->setContextMenuPolicy(Qt::PreventContextMenu);
    }
    return *bar;
}

Tool ActiveToolBars::tool(QStringView id) const
{
    const auto found = m_entries.find(id.toString());
    if (found == m_entries.end())
        return {nullptr, m_noCombo};
    const Entry& entry = *found->second;
    return {entry.action, entry.combo ? entry.combo : m_noCombo};
}

void ActiveToolBars::checkOnly(QStringView prefix, QStringView id)
{
    for (const Entry* entry : m_order)
        if (entry->kind == ToolKind::Toggle && entry->id.startsWith(prefix))
            entry->action->setChecked(entry->id == id);
}

QToolBar* ActiveToolBars::bar(QStringView caption) const
{
    const auto found = m_bars.find(caption.toString());
    return found == m_bars.end() ? nullptr : found->second;
}

bool ActiveToolBars::barVisible(QStringView caption) const
{
    const QToolBar* found = bar(caption);
    return found && !found->isHidden();
}

void ActiveToolBars::setBarVisible(QStringView caption, bool visible)
{
    if (QToolBar* found = bar(caption))
        found->setVisible(visible);
}

void ActiveToolBars::packButtons(QStringView caption)
{
    const QToolBar* const found = bar(caption);
    if (!found)
        return;
    for (QAction* action : found->actions()) {
        QWidget* const button = found->widgetForAction(action);
        if (button && !action->text().isEmpty())
            button->setFixedWidth(button->fontMetrics().horizontalAdvance(action->text()) +
                                  2 * kPackedMargin);
    }
}

void ActiveToolBars::popUp(QStringView menuId, const QPoint& at)
{
    if (QMenu* found = menu(menuId))
        found->popup(at);
}

QMenu* ActiveToolBars::menu(QStringView id) const
{
    const auto found = m_entries.find(id.toString());
    return found == m_entries.end() ? nullptr : found->second->menu;
}

std::vector<ToolRow> ActiveToolBars::rows() const
{
    std::vector<ToolRow> all;
    all.reserve(m_order.size());
    std::transform(m_order.begin(), m_order.end(), std::back_inserter(all), [](const Entry* entry) {
        return ToolRow{entry->id,    entry->caption,  entry->kind,
                       entry->place, entry->shortcut, entry->icon};
    });
    return all;
}

void ActiveToolBars::clicked(const QString& toolId) const
{
    if (onToolClick)
        onToolClick(toolId);
}

} // namespace lumen
