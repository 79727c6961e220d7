// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/bars/tool_row.h"

#include <functional>
#include <vector>

class QLineEdit;
class QPoint;
class QWidget;

namespace lumen {

class ActiveToolBars;
class Clipboard;
class FlexGrid;
class ToolDispatch;

enum class EditCommand { Undo, Cut, Copy, CopyUnicode, Paste, Delete, SelectAll };

/// What the focused control offers.
struct EditState
{
    bool cut = false;
    bool copy = false;
    bool paste = false;
    bool remove = false;
    bool selectAll = false;
    bool copyUnicode = false; ///< by its window alone
    bool undo = false;

    friend bool operator==(const EditState&, const EditState&) = default;
};

/// The ids of a window's edit menu and its tools; the windows call some by two names. A tool whose
/// id is empty is none of the window's.
struct EditToolIds
{
    QStringView menu = u"ID_편집";
    QStringView undo = u"";
    QStringView cut = u"ID_잘라내기";
    QStringView copy = u"ID_복사";
    QStringView copyUnicode = u"";
    QStringView paste = u"ID_붙이기";
    QStringView remove = u"ID_지우기";
    QStringView selectAll = u"ID_전체선택";
};

/// The menu on the menu bar with its tools.
std::vector<ToolRow> editMenuRows(const EditToolIds& ids);

/// The edit menu of a window: its rows, what they do and when they are enabled. It acts on the
/// focused control. While it is open its tools are enabled as that control allows; behind it all
/// are, as the focus may go elsewhere before a key or a button of a bar asks for one.
class EditMenu
{
public:
    EditMenu(QWidget& window, ActiveToolBars& bars, Clipboard& clipboard, const EditToolIds& ids);

    /// Puts the rows on the bars; what the menu bar has by then stands before them.
    void addRows();
    /// Leads the tools to their commands; the rows are there by then.
    void bind(ToolDispatch& tools);
    void popUp(const QPoint& at) const;
    /// A control's context menu is the edit menu.
    void offerOn(FlexGrid& grid);
    void offerOn(QLineEdit& box);

    /// Changes what a control offers.
    std::function<void(const QWidget* control, EditState& state)> onState;
    /// Runs a command in a way of the window's own; false leaves it to the control.
    std::function<bool(const QWidget* control, EditCommand command)> onCommand;

private:
    void run(EditCommand command) const;
    void bringUpToDate() const;

    QWidget& m_window;
    ActiveToolBars& m_bars;
    Clipboard& m_clipboard;
    EditToolIds m_ids;
};

/// What a control takes: text boxes and combos with a text all (undo after a change, cut, copy and
/// delete with a selection only, paste with text on the clipboard), read-only views and grids copy
/// and select-all, all others (and nullptr) nothing.
EditState editStateOf(const QWidget* control);
/// Runs a command on a control; nothing happens where editStateOf does not offer it. Text boxes use
/// the desktop's clipboard themselves; what a grid copies (FlexGrid::selectionText, Hebrew and
/// Greek as Unicode) goes to `clipboard`.
void runEditCommand(EditCommand command, QWidget* control, Clipboard& clipboard);
/// The control of a window that edit commands act on: the one with the focus, or its combo when
/// it is the text part of one.
QWidget* editTarget(const QWidget& window);

} // namespace lumen
