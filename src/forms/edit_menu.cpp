// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/edit_menu.h"

#include "data/version_font.h"
#include "platform/controls/bars/active_tool_bars.h"
#include "platform/controls/bars/tool_dispatch.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/dialogs/clipboard.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <algorithm>
#include <array>

namespace lumen {
namespace {

struct EditRow
{
    EditCommand command;
    QStringView EditToolIds::*id;
    bool EditState::*offered;
    QStringView caption;
    QStringView shortcut = {};
    QStringView icon = {};
};

// clang-format off
constexpr std::array kRows{
    EditRow{EditCommand::Undo, &EditToolIds::undo, &EditState::undo, u"실행 취소(&Z)", u"Ctrl+Z"},
    EditRow{EditCommand::Cut, &EditToolIds::cut, &EditState::cut, u"잘라내기(&T)", u"Ctrl+X", u"cut"},
    EditRow{EditCommand::Copy, &EditToolIds::copy, &EditState::copy, u"복사(&C)", u"Ctrl+C", u"copy"},
    EditRow{EditCommand::CopyUnicode, &EditToolIds::copyUnicode, &EditState::copyUnicode, u"유니코드로 복사(&U)", u"Ctrl+Shift+C", u"copy-unicode"},
    EditRow{EditCommand::Paste, &EditToolIds::paste, &EditState::paste, u"붙이기(&P)", u"Ctrl+V", u"paste"},
    EditRow{EditCommand::Delete, &EditToolIds::remove, &EditState::remove, u"지우기(&D)"},
    EditRow{EditCommand::SelectAll, &EditToolIds::selectAll, &EditState::selectAll, u"전체 선택(&A)", u"Ctrl+A"},
};
// clang-format on

bool clipboardHasText()
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    return content && content->hasText();
}

EditState textState(bool readOnly, bool selected, bool empty, bool changed)
{
    const bool editable = !readOnly;
    return {.cut = editable && selected,
            .copy = selected,
            .paste = editable && clipboardHasText(),
            .remove = editable && selected,
            .selectAll = !empty,
            .undo = editable && changed};
}

template <typename TextBox>
EditState textStateOf(const TextBox& box)
{
    return textState(box.isReadOnly(), box.textCursor().hasSelection(), box.document()->isEmpty(),
                     box.document()->isUndoAvailable());
}

EditState gridState(const FlexGrid& grid)
{
    return {.copy = grid.Row() >= 0, .selectAll = grid.Rows() > grid.FixedRows()};
}

// The text part of a combo, or the control itself when it is a text line.
template <typename Line, typename Control>
Line* lineOf(Control* control)
{
    // A combo's list is read; only its text part takes edits.
    if (auto* combo = qobject_cast<const QComboBox*>(control))
        return combo->lineEdit();
    return qobject_cast<Line*>(control);
}

void runOnLine(EditCommand command, QLineEdit& line)
{
    switch (command) {
    case EditCommand::Undo:
        line.undo();
        break;
    case EditCommand::Cut:
        line.cut();
        break;
    case EditCommand::Copy:
        line.copy();
        break;
    case EditCommand::Paste:
        line.paste();
        break;
    case EditCommand::Delete:
        line.del();
        break;
    case EditCommand::SelectAll:
        line.selectAll();
        break;
    case EditCommand::CopyUnicode:
        break;
    }
}

template <typename TextBox>
void runOnText(EditCommand command, TextBox& box)
{
    switch (command) {
    case EditCommand::Undo:
        box.undo();
        break;
    case EditCommand::Cut:
        box.cut();
        break;
    case EditCommand::Copy:
        box.copy();
        break;
    case EditCommand::Paste:
        box.paste();
        break;
    case EditCommand::Delete:
        box.textCursor().removeSelectedText();
        break;
    case EditCommand::SelectAll:
        box.selectAll();
        break;
    case EditCommand::CopyUnicode:
        break;
    }
}

void runOnGrid(EditCommand command, FlexGrid& grid, Clipboard& clipboard)
{
    if (command == EditCommand::Copy)
        clipboard.set({grid.selectionText(unicodeOfFont), {}, {}});
    else if (command == EditCommand::SelectAll)
        grid.selectAll();
}

bool offers(const EditState& state, EditCommand command)
{
    return state.*std::ranges::find(kRows, command, &EditRow::command)->offered;
}

void enableTools(const ActiveToolBars& bars, const EditToolIds& ids, const EditState& state)
{
    for (const EditRow& row : kRows)
        if (!(ids.*row.id).isEmpty())
            bars.tool(ids.*row.id).setEnabled(state.*row.offered);
}

} // namespace

std::vector<ToolRow> editMenuRows(const EditToolIds& ids)
{
    std::vector<ToolRow> rows{{ids.menu, u"편집(&E)", ToolKind::Menu, kMenuBar}};
    for (const EditRow& row : kRows) {
        if ((ids.*row.id).isEmpty())
            continue;
        if (row.command == EditCommand::SelectAll)
            rows.push_back({u"", u"", ToolKind::Separator, ids.menu});
        rows.push_back(
            {ids.*row.id, row.caption, ToolKind::Button, ids.menu, row.shortcut, row.icon});
        if (row.command == EditCommand::Undo)
            rows.push_back({u"", u"", ToolKind::Separator, ids.menu});
    }
    return rows;
}

EditMenu::EditMenu(QWidget& window, ActiveToolBars& bars, Clipboard& clipboard,
                   const EditToolIds& ids)
    : m_window(window), m_bars(bars), m_clipboard(clipboard), m_ids(ids)
{
}

void EditMenu::addRows()
{
    m_bars.add(editMenuRows(m_ids));
}

void EditMenu::bind(ToolDispatch& tools)
{
    tools.on(m_ids.menu, [this] { bringUpToDate(); });
    for (const EditRow& row : kRows)
        if (!(m_ids.*row.id).isEmpty())
            tools.on(m_ids.*row.id, [this, command = row.command] { run(command); });
    QObject::connect(m_bars.menu(m_ids.menu), &QMenu::aboutToHide, &m_window, [this] {
        enableTools(m_bars, m_ids, {true, true, true, true, true, true, true});
    });
}

void EditMenu::popUp(const QPoint& at) const
{
    m_bars.popUp(m_ids.menu, at);
}

void EditMenu::offerOn(FlexGrid& grid)
{
    grid.onContextMenu = [this](const QPoint& at) { popUp(at); };
}

void EditMenu::offerOn(QLineEdit& box)
{
    box.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&box, &QLineEdit::customContextMenuRequested, &m_window,
                     [this, &box](const QPoint& at) { popUp(box.mapToGlobal(at)); });
}

void EditMenu::run(EditCommand command) const
{
    QWidget* const control = editTarget(m_window);
    if (!onCommand || !onCommand(control, command))
        runEditCommand(command, control, m_clipboard);
}

void EditMenu::bringUpToDate() const
{
    const QWidget* const control = editTarget(m_window);
    EditState state = editStateOf(control);
    if (onState)
        onState(control, state);
    enableTools(m_bars, m_ids, state);
}

EditState editStateOf(const QWidget* control)
{
    if (const auto* line = lineOf<const QLineEdit>(control))
        return textState(line->isReadOnly(), line->hasSelectedText(), line->text().isEmpty(),
                         line->isUndoAvailable());
    if (const auto* box = qobject_cast<const QTextEdit*>(control))
        return textStateOf(*box);
    if (const auto* box = qobject_cast<const QPlainTextEdit*>(control))
        return textStateOf(*box);
    if (const auto* grid = qobject_cast<const FlexGrid*>(control))
        return gridState(*grid);
    return {};
}

void runEditCommand(EditCommand command, QWidget* control, Clipboard& clipboard)
{
    if (!offers(editStateOf(control), command))
        return;
    if (auto* line = lineOf<QLineEdit>(control))
        runOnLine(command, *line);
    else if (auto* text = qobject_cast<QTextEdit*>(control))
        runOnText(command, *text);
    else if (auto* plain = qobject_cast<QPlainTextEdit*>(control))
        runOnText(command, *plain);
    else if (auto* grid = qobject_cast<FlexGrid*>(control))
        runOnGrid(command, *grid, clipboard);
}

QWidget* editTarget(const QWidget& window)
{
    QWidget* focused = window.window()->focusWidget();
    auto* combo = focused ? qobject_cast<QComboBox*>(focused->parentWidget()) : nullptr;
    return combo && combo->lineEdit() == focused ? combo : focused;
}

} // namespace lumen
