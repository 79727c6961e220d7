// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/edit_menu.h"
#include "platform/controls/bars/active_tool_bars.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/text/text_control.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class EditCommandsTest : public testing::Test
{
protected:
    EditCommandsTest() { QGuiApplication::clipboard()->setText(u"붙일 글"_s); }
    ~EditCommandsTest() override { QGuiApplication::clipboard()->clear(); }

    void run(EditCommand command, QWidget& control)
    {
        runEditCommand(command, &control, clipboard);
    }

    MemoryClipboard clipboard;
};

TEST_F(EditCommandsTest, AnEditableBoxOffersWhatItsSelectionAllows)
{
    QLineEdit line(u"성경사전"_s);
    EXPECT_EQ(editStateOf(&line), (EditState{.paste = true, .selectAll = true}));
    line.selectAll();
    EXPECT_EQ(editStateOf(&line), (EditState{true, true, true, true, true}));
    line.clear();
    QGuiApplication::clipboard()->clear();
    EXPECT_EQ(editStateOf(&line), EditState());
}

TEST_F(EditCommandsTest, AGridCopiesItsRowsToTheWindowsClipboard)
{
    FlexGrid grid;
    grid.setCols(2);
    EXPECT_EQ(editStateOf(&grid), EditState());
    grid.AddItem({u"창1:1"_s, u"글"_s});
    grid.AddItem({u"창1:2"_s, u"둘째 글"_s});
    run(EditCommand::Copy, grid);
    EXPECT_EQ(clipboard.setCount, 0);
    run(EditCommand::SelectAll, grid);
    EXPECT_EQ(editStateOf(&grid), (EditState{.copy = true, .selectAll = true}));
    run(EditCommand::Copy, grid);
    EXPECT_EQ(clipboard.content.plain, u"창1:1\t글\r\n창1:2\t둘째 글"_s);

    // Words in the program's own fonts are readable elsewhere as Unicode alone.
    grid.setCellStyle(2, 0, {.family = u"OrvaneHeb"_s});
    grid.setTextMatrix(2, 0, u"ba"_s);
    grid.setCellStyle(2, 1, {.family = u"OrvaneGrk"_s});
    grid.setTextMatrix(2, 1, u"logoj"_s);
    run(EditCommand::Copy, grid);
    EXPECT_EQ(clipboard.content.plain, u"창1:1\t글\r\nאב\tλογος"_s);
}

TEST_F(EditCommandsTest, CommandsWorkOnAllKindsOfTextBoxes)
{
    QPlainTextEdit note;
    note.setPlainText(u"적은 글"_s);
    run(EditCommand::SelectAll, note);
    run(EditCommand::Cut, note);
    EXPECT_EQ(note.toPlainText(), QString());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"적은 글"_s);

    QTextEdit box;
    run(EditCommand::Paste, box);
    EXPECT_EQ(box.toPlainText(), u"적은 글"_s);
    run(EditCommand::SelectAll, box);
    run(EditCommand::Delete, box);
    EXPECT_EQ(box.toPlainText(), QString());

    ComboBox combo;
    combo.setEditable(true);
    combo.setEditText(u"검색어"_s);
    run(EditCommand::SelectAll, combo);
    run(EditCommand::Copy, combo);
    run(EditCommand::Delete, combo);
    EXPECT_EQ(combo.Text(), QString());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"검색어"_s);
}

TEST_F(EditCommandsTest, TheToolsFollowTheFocusedControl)
{
    QMainWindow window;
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    auto* line = new QLineEdit(u"말씀"_s);
    auto* combo = new ComboBox;
    combo->setEditable(true);
    rows->addWidget(line);
    rows->addWidget(combo);
    window.setCentralWidget(page);
    ActiveToolBars bars(window);
    bars.add(ToolRow{u"ID_편집", u"편집", ToolKind::Menu, kMenuBar});
    for (const QStringView id : {u"ID_잘라내기", u"ID_복사", u"ID_붙여넣기", u"ID_지우기"})
        bars.add(ToolRow{id, id, ToolKind::Button, u"ID_편집"});
    bars.add(ToolRow{u"ID_전체선택", u"전체 선택", ToolKind::Button, u"ID_편집"});
    window.show();
    window.activateWindow();
    QCoreApplication::processEvents();

    line->setFocus();
    line->selectAll();
    EXPECT_EQ(editTarget(window), line);
    showEditState(bars, editStateOf(editTarget(window)), {.paste = u"ID_붙여넣기"});
    EXPECT_TRUE(bars.tool(u"ID_잘라내기").enabled());
    EXPECT_TRUE(bars.tool(u"ID_붙여넣기").enabled());

    combo->setFocus();
    EXPECT_EQ(editTarget(window), combo);
    showEditState(bars, editStateOf(editTarget(window)), {.paste = u"ID_붙여넣기"});
    EXPECT_FALSE(bars.tool(u"ID_잘라내기").enabled());
    EXPECT_FALSE(bars.tool(u"ID_전체선택").enabled());
    EXPECT_TRUE(bars.tool(u"ID_붙여넣기").enabled());
}

} // namespace
} // namespace lumen
