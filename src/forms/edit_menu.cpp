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
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace lumen {
namespace {

bool clipboardHasText()
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    return content && content->hasText();
}

EditState textState(bool readOnly, bool selected, bool empty)
{
    const bool editable = !readOnly;
    return {editable && selected, selected, editable && clipboardHasText(), editable && selected,
            !empty};
}

EditState gridState(const FlexGrid& grid)
{
    return {false, grid.Row() >= 0, false, false, grid.Rows() > grid.FixedRows()};
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
    }
}

template <typename TextBox>
void runOnText(EditCommand command, TextBox& box)
{
    switch (command) {
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
    switch (command) {
    case EditCommand::Cut:
        return state.cut;
    case EditCommand::Copy:
        return state.copy;
    case EditCommand::Paste:
        return state.paste;
    case EditCommand::Delete:
        return state.remove;
    case EditCommand::SelectAll:
        return state.selectAll;
    }
    return false;
}

} // namespace

void bindEditMenu(ToolDispatch& tools, const EditToolIds& ids,
                  const std::function<void(EditCommand command)>& run)
{
    const std::pair<QStringView, EditCommand> rows[] = {
        {ids.cut, EditCommand::Cut},
        {ids.copy, EditCommand::Copy},
        {ids.paste, EditCommand::Paste},
        {ids.remove, EditCommand::Delete},
        {ids.selectAll, EditCommand::SelectAll},
    };
    for (const auto& [id, command] : rows)
        tools.on(id, [run, command = command] { run(command); });
}

EditState editStateOf(const QWidget* control)
{
    if (const auto* line = lineOf<const QLineEdit>(control))
        return textState(line->isReadOnly(), line->hasSelectedText(), line->text().isEmpty());
    if (const auto* box = qobject_cast<const QTextEdit*>(control))
        return textState(box->isReadOnly(), box->textCursor().hasSelection(),
                         box->document()->isEmpty());
    if (const auto* box = qobject_cast<const QPlainTextEdit*>(control))
        return textState(box->isReadOnly(), box->textCursor().hasSelection(),
                         box->document()->isEmpty());
    if (const auto* grid = qobject_cast<const FlexGrid*>(control))
        return gridState(*grid);
    return {};
}

void showEditState(const ActiveToolBars& bars, const EditState& state, const EditToolIds& ids)
{
    bars.tool(ids.cut).setEnabled(state.cut);
    bars.tool(ids.copy).setEnabled(state.copy);
    bars.tool(ids.paste).setEnabled(state.paste);
    bars.tool(ids.remove).setEnabled(state.remove);
    bars.tool(ids.selectAll).setEnabled(state.selectAll);
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
