// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/illustrations/illustration_window.h"

#include "data/compact_and_backup.h"
#include "data/messages.h"
#include "data/user_files.h"
#include "forms/files/lost_file.h"
#include "forms/form_geometry.h"
#include "forms/guarded.h"
#include "forms/help_menu.h"
#include "forms/tool_icons.h"
#include "forms/wait_pointer.h"
#include "platform/controls/colors.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/registry/registry_store.h"
#include "records/messages.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFormLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr QStringView kNothing = u"내용 없음"; // a category or a text that is not there
constexpr QStringView kEmptyBook =
    u"아직 예화가 없습니다. 편집(Ctrl+3)에서 '새 예화'를 누르고 적으십시오.";
constexpr QStringView kHelpPage = u"ExIntro.htm";
constexpr double kTreeShare = 0.3;
enum Page { kReading, kSearching, kEditing };
constexpr int kNumRole = Qt::UserRole;      // of a title's node
constexpr int kCategoryRole = kNumRole + 1; // of a category's node

// clang-format off
constexpr std::array kFileMenu{
    // id, caption, kind, bar or menu that it stands on, shortcut, icon
    ToolRow{u"ID_파일", u"파일(&F)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_닫기", u"닫기(&C)", ToolKind::Button, u"ID_파일", u"Ctrl+W", u"close"},
    ToolRow{u"ID_종료", u"종료(&X)", ToolKind::Button, u"ID_파일", u"Ctrl+Q"},
};
constexpr std::array kTools{
    ToolRow{u"ID_보기", u"보기(&V)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_열람", u"열람(&1)", ToolKind::Button, u"ID_보기", u"Ctrl+1"},
    ToolRow{u"ID_검색", u"검색(&2)", ToolKind::Button, u"ID_보기", u"Ctrl+2"},
    ToolRow{u"ID_편집쪽", u"편집(&3)", ToolKind::Button, u"ID_보기", u"Ctrl+3"},
    ToolRow{u"ID_나무", u"분류와 제목(&4)", ToolKind::Button, u"ID_보기", u"Ctrl+4"},
};
// clang-format on

QString shown(const QString& category)
{
    return category.isEmpty() ? kNothing.toString() : category;
}

} // namespace

frm예화사전::frm예화사전(Services& services, AppState& state, QWidget* parent)
    : QMainWindow(parent), m_services(services), m_state(state), m_book(services.jet, state)
{
    setObjectName(u"frm예화사전"_s);
    setWindowTitle(u"예화 사전"_s);
    layOut();
    atbar.add(kFileMenu);
    m_editMenu.addRows();
    atbar.add(kTools);
    atbar.add(kHelpMenu);
    setToolIcons(*this, atbar);
    onSchemeChange(*this, [this] { showFieldGrounds(); });
    bindTools();
    wire();
}

void frm예화사전::layOut()
{
    Tree예화->setHeaderHidden(true);
    Tree예화->setUniformRowHeights(true);
    ATab예화->addTab(readingPage(), u"열람"_s);
    ATab예화->addTab(searchPage(), u"검색"_s);
    ATab예화->addTab(editingPage(), u"편집"_s);
    splt예화->addWidget(Tree예화);
    splt예화->addWidget(ATab예화);
    splt예화->setChildrenCollapsible(false);
    splt예화->setRatio(kTreeShare);
    setCentralWidget(splt예화);
    setEditing(false);
}

QWidget* frm예화사전::readingPage()
{
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    QFont large = lbl제목->font();
    large.setBold(true);
    lbl제목->setFont(large);
    for (QLabel* label : {lbl제목, lbl분류}) {
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);
        column->addWidget(label);
    }
    column->addWidget(tx열람, 1);
    return page;
}

QWidget* frm예화사전::searchPage()
{
    for (const QString& scope : {u"전체"_s, u"제목"_s, u"분류"_s, u"본문"_s})
        cb검색범위->AddItem(scope);
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    auto* inputs = new QHBoxLayout;
    inputs->addWidget(tx검색어, 1);
    inputs->addWidget(cb검색범위);
    inputs->addWidget(cmd검색);
    inputs->addWidget(lbl개수);
    column->addLayout(inputs);
    column->addWidget(lst결과, 1);
    return page;
}

QWidget* frm예화사전::editingPage()
{
    cb분류->setEditable(true);
    cb분류->setInsertPolicy(QComboBox::NoInsert);
    tx본문->setTabChangesFocus(true);
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    auto* fields = new QFormLayout;
    fields->addRow(u"제목(&T):"_s, tx제목);
    fields->addRow(u"분류(&G):"_s, cb분류);
    column->addLayout(fields);
    column->addWidget(tx본문, 1);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmd신규, cmd수정, cmd저장, cmd취소, cmd삭제})
        buttons->addWidget(button);
    column->addLayout(buttons);
    return page;
}

void frm예화사전::bindTools()
{
    m_tools.on(u"ID_닫기", [this] { close(); });
    m_tools.on(u"ID_종료", [] { QApplication::closeAllWindows(); });
    m_editMenu.bind(m_tools);
    m_tools.on(u"ID_열람", [this] {
        ATab예화->setTab(kReading);
        tx열람->setFocus();
    });
    m_tools.on(u"ID_검색", [this] {
        ATab예화->setTab(kSearching);
        tx검색어->setFocus();
    });
    m_tools.on(u"ID_편집쪽", [this] { ATab예화->setTab(kEditing); });
    m_tools.on(u"ID_나무", [this] { Tree예화->setFocus(); });
    bindHelpMenu(m_tools, m_services, this, kHelpPage);
    atbar.onToolClick = [this](const QString& toolId) { m_tools.run(toolId); };
}

void frm예화사전::wire()
{
    connect(Tree예화, &QTreeWidget::itemExpanded, this,
            [this](QTreeWidgetItem* node) { fillCategory(*node); });
    connect(Tree예화, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* node) {
        if (node && node->parent())
            show(node->data(0, kNumRole).toInt());
    });
    ATab예화->onTabClick = [this](int tab, int) {
        if (tab == kReading)
            tx열람->setFocus();
        else if (tab == kEditing && !m_isEditing)
            guarded(m_services, this, [this] { fillCategories(); });
    };
    connect(cmd검색, &QPushButton::clicked, this, [this] { Proc예화검색(); });
    connect(tx검색어, &QLineEdit::returnPressed, this, [this] { Proc예화검색(); });
    lst결과->onClick = [this] {
        if (lst결과->ListIndex() >= 0 && !m_isEditing)
            show(lst결과->ItemData(lst결과->ListIndex()));
    };
    lst결과->onDblClick = [this] { ATab예화->setTab(kReading); };
    connect(cmd신규, &QPushButton::clicked, this, [this] { beginEdit(true); });
    connect(cmd수정, &QPushButton::clicked, this, [this] { beginEdit(false); });
    connect(cmd저장, &QPushButton::clicked, this, [this] { store(); });
    connect(cmd취소, &QPushButton::clicked, this, [this] { cancelEdit(); });
    connect(cmd삭제, &QPushButton::clicked, this, [this] { removeCurrent(); });
    m_editMenu.offerOn(*tx검색어);
    m_editMenu.offerOn(*tx제목);
    tx열람->onContextMenu = [this](const QPoint& at) { m_editMenu.popUp(at); };
}

void frm예화사전::Form_Load()
{
    Proc시동크기위치설정(m_services.registry, geometry::kExViewer, *this);
    const WaitPointer wait;
    offerBackup(m_services, m_state, user_file::kIllustrations, this);
    cb검색범위->setListIndex(0);
    lst결과->Clear();
    lbl개수->setText(QString());
    tx검색어->clear();
    emptyPages();
    ATab예화->setTab(kReading);
    setEditing(false);
    const bool opened = guarded(m_services, this, [this] {
        m_book.open();
        fillTree();
        if (Tree예화->topLevelItemCount() == 0)
            tx열람->setText(kEmptyBook.toString());
    });
    centralWidget()->setEnabled(opened);
    Tree예화->setFocus();
}

void frm예화사전::fillTree()
{
    const QTreeWidgetItem* open = Tree예화->currentItem();
    const QString before =
        open && open->parent() ? open->parent()->data(0, kCategoryRole).toString() : QString();
    Tree예화->clear();
    for (const QString& category : m_book.categories()) {
        auto* node = new QTreeWidgetItem(Tree예화, {shown(category)});
        node->setData(0, kCategoryRole, category);
        node->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
        if (!before.isEmpty() && category == before)
            node->setExpanded(true);
    }
}

// Titles are read when a category is opened for the first time.
void frm예화사전::fillCategory(QTreeWidgetItem& node)
{
    if (node.parent() || node.childCount() > 0)
        return;
    guarded(m_services, this, [this, &node] {
        QList<QTreeWidgetItem*> titles;
        for (const IllustrationTitle& row :
             m_book.titlesIn(node.data(0, kCategoryRole).toString())) {
            auto* title = new QTreeWidgetItem({row.title});
            title->setData(0, kNumRole, row.num);
            titles << title;
        }
        node.addChildren(titles);
    });
}

void frm예화사전::show(int num)
{
    guarded(m_services, this, [this, num] {
        if (const auto illustration = m_book.find(num))
            Proc예화사전표시(*illustration);
    });
}

void frm예화사전::Proc예화사전표시(const Illustration& illustration)
{
    m_num = illustration.num;
    const QString body = illustration.body.value_or(kNothing.toString());
    lbl제목->setText(illustration.title);
    lbl분류->setText(illustration.category);
    tx열람->setText(body);
    tx제목->setText(illustration.title);
    cb분류->setEditText(illustration.category);
    tx본문->setPlainText(body);
    setEditing(false);
}

void frm예화사전::Proc예화검색()
{
    guarded(m_services, this, [this] {
        const WaitPointer wait;
        const auto scope = static_cast<IllustrationScope>(cb검색범위->ListIndex());
        const auto found = m_book.search(tx검색어->text(), scope);
        lst결과->Clear();
        QStringList titles;
        for (const IllustrationTitle& row : found)
            titles << row.title;
        lst결과->AddItems(titles);
        for (int i = 0; i < lst결과->ListCount(); ++i)
            lst결과->setItemData(i, found[static_cast<std::size_t>(i)].num);
        lbl개수->setText(u"( %1 )"_s.arg(found.size()));
    });
}

void frm예화사전::fillCategories()
{
    const QString before = cb분류->Text();
    cb분류->Clear();
    for (const QString& category : m_book.categories())
        if (!category.isEmpty())
            cb분류->AddItem(category);
    cb분류->setEditText(before);
}

void frm예화사전::setEditing(bool editing)
{
    m_isEditing = editing;
    for (QPushButton* button : {cmd저장, cmd취소})
        button->setEnabled(editing);
    cmd신규->setEnabled(!editing);
    for (QPushButton* button : {cmd수정, cmd삭제})
        button->setEnabled(!editing && m_num != 0);
    Tree예화->setEnabled(!editing);
    tx제목->setReadOnly(!editing);
    tx본문->setReadOnly(!editing);
    cb분류->setEnabled(editing);
    showFieldGrounds();
}

void frm예화사전::showFieldGrounds()
{
    // What can't be written into has the ground of a disabled window.
    const QPalette::ColorGroup group = m_isEditing ? QPalette::Active : QPalette::Disabled;
    for (QWidget* field : std::initializer_list<QWidget*>{tx제목, tx본문}) {
        QPalette look;
        look.setColor(QPalette::Base,
                      look.color(group, m_isEditing ? QPalette::Base : QPalette::Window));
        field->setPalette(look);
    }
}

void frm예화사전::beginEdit(bool isNew)
{
    guarded(m_services, this, [this, isNew] {
        fillCategories();
        m_isNew = isNew;
        if (isNew) {
            tx제목->clear();
            cb분류->setEditText(QString());
            tx본문->clear();
        }
        setEditing(true);
        tx제목->setFocus();
    });
}

// False when something is missing or could not be written; the fields stay open then.
bool frm예화사전::store()
{
    const Illustration edited{m_isNew ? 0 : m_num, tx제목->text().trimmed(),
                              cb분류->Text().trimmed(), tx본문->toPlainText().trimmed()};
    const std::tuple<const QString&, const MessageText&, QWidget*> needed[] = {
        {edited.title, messages::kNoIllustrationTitle, tx제목},
        {edited.category, messages::kNoIllustrationCategory, cb분류},
        {*edited.body, messages::kNoIllustrationBody, tx본문},
    };
    for (const auto& [text, message, field] : needed) {
        if (!text.isEmpty())
            continue;
        m_services.messages.show(this, message);
        field->setFocus();
        return false;
    }
    return guarded(m_services, this, [this, &edited] {
        Illustration stored = edited;
        stored.num = m_book.save(edited);
        Proc예화사전표시(stored);
        fillTree();
    });
}

void frm예화사전::cancelEdit()
{
    if (m_services.messages.show(this, messages::kCancelIllustration) != Answer::Yes)
        return;
    setEditing(false);
    if (m_num != 0)
        show(m_num);
    else
        emptyPages();
}

void frm예화사전::removeCurrent()
{
    if (m_num == 0 || m_services.messages.show(this, messages::kDeleteIllustration) != Answer::Yes)
        return;
    guarded(m_services, this, [this] {
        m_book.remove(m_num);
        emptyPages();
        setEditing(false);
        fillTree();
    });
}

void frm예화사전::emptyPages()
{
    m_num = 0;
    lbl제목->clear();
    lbl분류->clear();
    tx열람->setText(QString());
    tx제목->clear();
    cb분류->setEditText(QString());
    tx본문->clear();
}

// Text that is being written is stored, given up or kept open, as the user says.
bool frm예화사전::leaveEdit()
{
    if (!m_isEditing)
        return true;
    const bool isTouched = tx본문->document()->isModified() || tx제목->isModified();
    if (!isTouched && m_isNew)
        return true;
    const Answer answer = m_services.messages.show(this, messages::kLeaveIllustration);
    return answer == Answer::No || (answer == Answer::Yes && store());
}

void frm예화사전::Form_Unload()
{
    saveFormGeometry(m_services.registry, geometry::kExViewer, *this);
    ignoreFailure(m_services.registry.flush(), "unsaved settings never keep the window open");
    const WaitPointer wait;
    const bool wasOpen = m_book.isOpen();
    guarded(m_services, this, [this] { m_book.close(); });
    if (!wasOpen)
        return;
    const QString notCopied = CompactAndBackup(m_state.AppPath, user_file::kIllustrations,
                                               m_services.jet, m_services.files);
    if (!notCopied.isEmpty() && m_state.canStore)
        m_services.messages.show(this, messages::kNotStored, {notCopied});
}

void frm예화사전::closeEvent(QCloseEvent* event)
{
    if (!leaveEdit()) {
        event->ignore();
        return;
    }
    setEditing(false);
    Form_Unload();
    QMainWindow::closeEvent(event);
}

} // namespace lumen
