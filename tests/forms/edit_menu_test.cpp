// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/edit_menu.h"
#include "platform/controls/bars/active_tool_bars.h"
#include "platform/controls/bars/tool_dispatch.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/text/text_control.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>
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
    EXPECT_EQ(editStateOf(&line), EditState{.undo = true});
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
    run(EditCommand::Undo, box);
    EXPECT_EQ(box.toPlainText(), u"적은 글"_s);

    ComboBox combo;
    combo.setEditable(true);
    combo.setEditText(u"검색어"_s);
    run(EditCommand::SelectAll, combo);
    run(EditCommand::Copy, combo);
    run(EditCommand::Delete, combo);
    EXPECT_EQ(combo.Text(), QString());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"검색어"_s);
}

/// A window with a box, a combo and a grid of one row.
class EditMenuTest : public EditCommandsTest
{
protected:
    EditMenuTest()
    {
        auto* page = new QWidget;
        auto* rows = new QVBoxLayout(page);
        for (QWidget* control : std::initializer_list<QWidget*>{box, combo, grid})
            rows->addWidget(control);
        combo->setEditable(true);
        grid->setCols(1);
        grid->AddItem({u"창1:1"_s});
        window.setCentralWidget(page);
        menu.addRows();
        menu.bind(tools);
        menu.offerOn(*box);
        menu.offerOn(*grid);
        bars.onToolClick = [this](const QString& tool) { tools.run(tool); };
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
    }
    /// The tools that the menu offers when it opens.
    QString offered()
    {
        menu.popUp(QPoint());
        const QString captions = enabledTools();
        bars.menu(u"ID_편집")->hide();
        return captions;
    }
    QString enabledTools()
    {
        QStringList captions;
        for (const QAction* tool : bars.menu(u"ID_편집")->actions())
            if (!tool->isSeparator() && tool->isEnabled())
                captions << tool->text().section(u'(', 0, 0);
        return captions.join(u' ');
    }
    bool takeMenu()
    {
        QMenu& edit = *bars.menu(u"ID_편집");
        const bool open = edit.isVisible();
        edit.hide();
        return open;
    }

    const QString all = u"실행 취소 잘라내기 복사 붙이기 지우기 전체 선택"_s;
    QMainWindow window;
    ActiveToolBars bars{window};
    ToolDispatch tools;
    EditMenu menu{window, bars, clipboard, {.undo = u"ID_실행취소", .paste = u"ID_붙여넣기"}};
    QLineEdit* box = new QLineEdit(u"말씀"_s);
    ComboBox* combo = new ComboBox;
    FlexGrid* grid = new FlexGrid;
};

TEST_F(EditMenuTest, ItsToolsFollowTheFocusAndComeAliveAgainBehindIt)
{
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A);
    box->selectAll();
    EXPECT_EQ(offered(), all);
    combo->setFocus();
    EXPECT_EQ(offered(), u"붙이기"_s);
    // A tool that stayed disabled would be dead on its bar and by its key.
    EXPECT_EQ(enabledTools(), all);
    menu.onState = [this](const QWidget* control, EditState& state) {
        state.remove = control == combo;
    };
    EXPECT_EQ(offered(), u"붙이기 지우기"_s);
}

TEST_F(EditMenuTest, ItsToolsActOnTheFocusedControl)
{
    box->setFocus();
    tools.run(u"ID_전체선택"_s);
    tools.run(u"ID_잘라내기"_s);
    EXPECT_EQ(box->text(), QString());
    tools.run(u"ID_실행취소"_s);
    EXPECT_EQ(box->text(), u"말씀"_s);
    combo->setFocus();
    tools.run(u"ID_붙여넣기"_s);
    EXPECT_EQ(combo->Text(), u"말씀"_s);
    menu.onCommand = [this](const QWidget* control, EditCommand command) {
        return control == grid && command == EditCommand::Copy;
    };
    grid->setFocus();
    grid->selectAll();
    tools.run(u"ID_복사"_s);
    EXPECT_EQ(clipboard.setCount, 0) << "the window has copied in its own way";
    menu.onCommand = nullptr;
    QTest::keyClick(grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard.content.plain, u"창1:1"_s);
}

TEST_F(EditMenuTest, ControlsOfferItAsTheirContextMenu)
{
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint());
    for (QWidget* control : std::initializer_list<QWidget*>{box, grid->viewport()}) {
        QApplication::sendEvent(control, &asked);
        EXPECT_TRUE(takeMenu());
    }
    QTest::mouseClick(grid->viewport(), Qt::RightButton, {}, QPoint(2, 2));
    EXPECT_TRUE(takeMenu());
}

} // namespace
} // namespace lumen
