// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/bars/tool_row.h"
#include "platform/controls/item_boxes.h"

#include <QAction>
#include <QPoint>
#include <QString>
#include <QVariant>

#include <functional>
#include <map>
#include <memory>
#include <span>
#include <vector>

class QMainWindow;
class QMenu;
class QToolBar;

namespace lumen {

/// A handle on one tool. A handle on a tool that does not exist answers empty and does nothing.
class Tool
{
public:
    QString id() const;
    bool exists() const { return m_action != nullptr; }

    bool enabled() const;
    void setEnabled(bool enabled);
    bool checked() const;
    /// No click is reported.
    void setChecked(bool checked);
    bool visible() const;
    void setVisible(bool visible);
    /// As it was given, with its "&".
    QString caption() const;
    void setCaption(const QString& caption);
    /// What the window keeps with the tool.
    QVariant tag() const;
    void setTag(const QVariant& tag);
    void setIcon(const QIcon& icon);
    /// The box of a Combo tool; a combo without items for all others.
    ComboBox& combo() const;
    /// The action; nullptr when the tool does not exist. Its objectName is the id.
    QAction* action() const { return m_action; }

private:
    friend class ActiveToolBars;
    Tool(QAction* action, ComboBox* combo) : m_action(action), m_combo(combo) {}

    QAction* m_action;
    ComboBox* m_combo;
};

/// The bars and menus of one window, built from a table of tools. Bars come in the order in which
/// the table first names them, each on a line of its own; tools come in the order of their rows.
/// A click on a tool and the opening of a menu end in onToolClick, a changed combo in
/// onComboChange. Bars, menus and actions belong to the window.
class ActiveToolBars
{
public:
    explicit ActiveToolBars(QMainWindow& window);
    ~ActiveToolBars();
    ActiveToolBars(const ActiveToolBars&) = delete;
    ActiveToolBars& operator=(const ActiveToolBars&) = delete;

    /// Puts the rows of a table in, in order. May be called again with rows known at run time only
    /// (the texts are copied). A Menu's row must come before the rows that stand in it.
    void add(std::span<const ToolRow> rows);
    void add(const ToolRow& row) { add(std::span(&row, 1)); }

    Tool tool(QStringView id) const;
    /// Checks `id` and clears all other Toggles whose ids begin with `prefix`.
    void checkOnly(QStringView prefix, QStringView id);

    /// nullptr when no row has named the bar. A bar's objectName is its caption.
    QToolBar* bar(QStringView caption) const;
    bool barVisible(QStringView caption) const;
    void setBarVisible(QStringView caption, bool visible);

    /// Lets the text buttons that stand on a bar now take hardly more room than their texts.
    void packButtons(QStringView caption);

    /// Shows a Menu tool at a place of the screen and returns at once; a click in it ends in
    /// onToolClick.
    void popUp(QStringView menuId, const QPoint& at);
    /// nullptr when the tool is no Menu.
    QMenu* menu(QStringView id) const;

    /// The tools there are now, generated ones included, in the order in which they came; views
    /// into this object.
    std::vector<ToolRow> rows() const;

    std::function<void(const QString& toolId)> onToolClick;
    std::function<void(const QString& toolId)> onComboChange;

private:
    struct Entry;

    Entry& entryFor(const ToolRow& row);
    void addRow(const ToolRow& row);
    void makeMenu(Entry& entry);
    void makeAction(Entry& entry);
    void makeCombo(Entry& entry, QToolBar& bar);
    static void finishAction(Entry& entry);
    void placeOnBar(Entry& entry, QToolBar& bar);
    QToolBar& barFor(QStringView caption);
    void clicked(const QString& toolId) const;

    QMainWindow& m_window;
    std::map<QString, std::unique_ptr<Entry>> m_entries; // by id
    std::vector<Entry*> m_order;
    std::map<QString, QToolBar*> m_bars; // by caption
    ComboBox* m_noCombo = nullptr;
};

} // namespace lumen
