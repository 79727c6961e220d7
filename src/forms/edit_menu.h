// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringView>

#include <functional>

class QWidget;

namespace lumen {

class ActiveToolBars;
class Clipboard;
class ToolDispatch;

enum class EditCommand { Cut, Copy, Paste, Delete, SelectAll };

/// What the focused control offers.
struct EditState
{
    bool cut = false;
    bool copy = false;
    bool paste = false;
    bool remove = false;
    bool selectAll = false;

    friend bool operator==(const EditState&, const EditState&) = default;
};

/// The ids of a window's edit tools; the windows call the paste tool by two names.
struct EditToolIds
{
    QStringView cut = u"ID_잘라내기";
    QStringView copy = u"ID_복사";
    QStringView paste = u"ID_붙이기";
    QStringView remove = u"ID_지우기";
    QStringView selectAll = u"ID_전체선택";
};

/// Binds the five tools to `run`.
void bindEditMenu(ToolDispatch& tools, const EditToolIds& ids,
                  const std::function<void(EditCommand command)>& run);

/// What a control takes: text boxes and combos with a text all five (cut, copy and delete with a
/// selection only, paste with text on the clipboard), read-only views and grids copy and
/// select-all, all others (and nullptr) nothing.
EditState editStateOf(const QWidget* control);
/// Enables a window's edit tools accordingly.
void showEditState(const ActiveToolBars& bars, const EditState& state, const EditToolIds& ids = {});
/// Runs a command on a control; nothing happens where editStateOf does not offer it. Text boxes use
/// the desktop's clipboard themselves; what a grid copies (FlexGrid::selectionText, Hebrew and
/// Greek as Unicode) goes to `clipboard`.
void runEditCommand(EditCommand command, QWidget* control, Clipboard& clipboard);
/// The control of a window that edit commands act on: the one with the focus, or its combo when
/// it is the text part of one.
QWidget* editTarget(const QWidget& window);

} // namespace lumen
