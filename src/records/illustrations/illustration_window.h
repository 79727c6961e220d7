// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "forms/edit_menu.h"
#include "forms/services.h"
#include "platform/controls/bars/active_tool_bars.h"
#include "platform/controls/bars/tool_dispatch.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "platform/controls/splitter.h"
#include "platform/controls/tab_control.h"
#include "platform/controls/text/text_control.h"
#include "records/illustrations/illustration_book.h"

#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace lumen {

inline constexpr EditToolIds kIllustrationEditTools{.undo = u"ID_실행취소",
                                                    .paste = u"ID_붙여넣기"};

/// The collection of illustrations: a tree by category, a page to read, one to search, one to
/// edit. It may be closed and loaded again.
class frm예화사전 : public QMainWindow // no Q_OBJECT: moc cannot read the name
{
public:
    frm예화사전(Services& services, AppState& state, QWidget* parent = nullptr);

    /// Opens the collection; the opener calls it before it shows the window.
    void Form_Load();
    const ToolDispatch& toolClicks() const { return m_tools; }

    ActiveToolBars atbar{*this};
    Splitter* splt예화 = named<Splitter>(u"splt예화");
    QTreeWidget* Tree예화 = named<QTreeWidget>(u"Tree예화", u"분류와 제목");
    TabControl* ATab예화 = named<TabControl>(u"ATab예화");
    QLabel* lbl제목 = named<QLabel>(u"lbl제목");
    QLabel* lbl분류 = named<QLabel>(u"lbl분류");
    TextControl* tx열람 = named<TextControl>(u"tx열람", u"내용");
    QLineEdit* tx검색어 = named<QLineEdit>(u"tx검색어", u"검색어");
    ComboBox* cb검색범위 = named<ComboBox>(u"cb검색범위", u"검색 범위");
    QPushButton* cmd검색 = named<QPushButton>(u"cmd검색", u"검색(&S)");
    QLabel* lbl개수 = named<QLabel>(u"lbl개수");
    ListBox* lst결과 = named<ListBox>(u"lst결과", u"검색 결과");
    QLineEdit* tx제목 = named<QLineEdit>(u"tx제목", u"제목");
    ComboBox* cb분류 = named<ComboBox>(u"cb분류", u"분류");
    QPlainTextEdit* tx본문 = named<QPlainTextEdit>(u"tx본문", u"본문");
    QPushButton* cmd신규 = named<QPushButton>(u"cmd신규", u"새 예화(&N)");
    QPushButton* cmd수정 = named<QPushButton>(u"cmd수정", u"고치기(&U)");
    QPushButton* cmd저장 = named<QPushButton>(u"cmd저장", u"저장(&A)");
    QPushButton* cmd취소 = named<QPushButton>(u"cmd취소", u"취소(&X)");
    QPushButton* cmd삭제 = named<QPushButton>(u"cmd삭제", u"삭제(&L)");

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut();
    QWidget* readingPage();
    QWidget* searchPage();
    QWidget* editingPage();
    void bindTools();
    void wire();
    void fillTree();
    void fillCategory(QTreeWidgetItem& node);
    void show(int num);
    void Proc예화사전표시(const Illustration& illustration);
    void Proc예화검색();
    void fillCategories();
    void beginEdit(bool isNew);
    bool store();
    void cancelEdit();
    void removeCurrent();
    void setEditing(bool editing);
    void showFieldGrounds();
    void emptyPages();
    bool leaveEdit();
    void Form_Unload();

    Services& m_services;
    AppState& m_state;
    IllustrationBook m_book;
    EditMenu m_editMenu{*this, atbar, m_services.clipboard, kIllustrationEditTools};
    ToolDispatch m_tools;
    int m_num = 0; ///< on show, 0 for none
    bool m_isEditing = false;
    bool m_isNew = false;
};

} // namespace lumen
