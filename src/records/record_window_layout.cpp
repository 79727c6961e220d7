// SPDX-License-Identifier: GPL-2.0-or-later
// Controls and tools of record_window.h.
#include "forms/help_menu.h"
#include "forms/tool_icons.h"
#include "forms/window_opener.h"
#include "platform/controls/splitter.h"
#include "platform/controls/twips.h"
#include "platform/dialogs/message_boxes.h"
#include "records/messages.h"
#include "records/record_window.h"
#include "records/search/record_search_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QFormLayout>
#include <QLineEdit>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Twips.
constexpr int kLeastWidth = 7000;
constexpr int kLeastHeight = 6500;
constexpr int kTitleTop = 60;
constexpr int kTitleDocumentMargin = 2; // pixels: its lowest height takes one line, no bar
constexpr int kStandardWidth = 11400;   // with its frame it stays on a screen of 800 x 600
constexpr int kStandardHeight = 8100;

QWidget* labelled(QLabel* label, QWidget* control)
{
    auto* frame = new QWidget;
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    label->setBuddy(control);
    column->addWidget(label);
    column->addWidget(control, 1);
    return frame;
}

} // namespace

void RecordWindow::makeBoxes()
{
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        auto* box = named<RichTextBox>(m_profile.names.boxes[i], m_profile.texts[i].heading);
        boxes[i] = box;
        box->onChange = [this, part = static_cast<RecordPart>(i)] { changed(part); };
        box->onSelectionChange = [this] { ProcUpdateToolBar(); };
        box->onFocus = [this, box] {
            makeCurrent(*box);
            ProcUpdateToolBar();
        };
        box->onContextMenu = [this](const QPoint& at) { m_editMenu.popUp(at); };
        box->onFirstLoss = [this] {
            return m_services.messages.show(this, messages::kLosesOnEdit) == Answer::Yes;
        };
    }
    // A title has no tabs in it; the key leads on, as in a form.
    boxes[kTitleText]->setTabChangesFocus(true);
    boxes[kTitleText]->document()->setDocumentMargin(kTitleDocumentMargin);
    cb분류->setEditable(true);
    cb분류->setInsertPolicy(QComboBox::NoInsert);
    for (const QStringView category : m_profile.categories)
        cb분류->AddItem(category.toString());
    cb분류->setEditText(m_profile.categoryAtFirst.toString());
    connect(cb분류, &QComboBox::editTextChanged, this, [this] { changed(RecordPart::Category); });
    for (QDateEdit* day : {dtp설교일, dtp작성일}) {
        day->setDisplayFormat(u"yyyy-MM-dd"_s);
        day->setCalendarPopup(true);
        connect(day, &QDateEdit::dateChanged, this, [this, day] {
            changed(day == dtp설교일 ? RecordPart::PreachedDay : RecordPart::WrittenDay);
        });
    }
}

QWidget* RecordWindow::makeInfo()
{
    auto* frame = named<QGroupBox>(m_profile.names.info, m_profile.names.infoCaption);
    auto* rows = new QFormLayout(frame);
    cb분류->setAccessibleName(m_profile.categoryLabel.toString());
    rows->addRow(m_profile.categoryLabel.toString() + u"(&G)"_s, cb분류);
    if (m_profile.hasPreachedDay())
        rows->addRow(u"설교일(&Y)"_s, dtp설교일);
    else
        dtp설교일->setParent(this); // stays unseen: there is one day only
    dtp설교일->setVisible(m_profile.hasPreachedDay());
    rows->addRow(u"작성일(&W)"_s, dtp작성일);
    return frame;
}

void RecordWindow::layOut()
{
    // A screen of large pixels may be smaller still.
    setMinimumSize(
        QSize(toPixels(kLeastWidth), toPixels(kLeastHeight)).boundedTo(screen()->availableSize()));
    resize(toPixels(kStandardWidth), toPixels(kStandardHeight));

    tabs = named<TabControl>(m_profile.names.tabs);
    tabs->addTab(boxes[3], m_profile.texts[3].heading.toString());
    tabs->addTab(boxes[4], m_profile.texts[4].heading.toString());
    tabs->onTabClick = [this](int tab, int) { boxes[tab == 0 ? 3 : 4]->setFocus(); };

    auto* central = new QWidget;
    auto* column = new QVBoxLayout(central);
    column->setContentsMargins(6, toPixels(kTitleTop), 6, 4);
    auto* titleRow = new QHBoxLayout;
    lbl제목->setBuddy(boxes[kTitleText]);
    titleRow->addWidget(lbl제목, 0, Qt::AlignTop);
    titleRow->addWidget(boxes[kTitleText], 1);
    column->addLayout(titleRow);

    const QString bodyCaption = m_profile.texts[2].heading.toString() + u"(&3)"_s;
    auto* left = new QSplitter(Qt::Vertical);
    left->addWidget(labelled(named<QLabel>(u"lbl말씀", u"말씀(&2)"), boxes[1]));
    left->addWidget(labelled(named<QLabel>(u"lbl본문", bodyCaption), boxes[2]));
    left->setStretchFactor(0, 1);
    left->setStretchFactor(1, 3);
    auto* right = new QWidget;
    auto* rightColumn = new QVBoxLayout(right);
    rightColumn->setContentsMargins(0, 0, 0, 0);
    rightColumn->addWidget(makeInfo());
    rightColumn->addWidget(tabs, 1);
    auto* both = new QSplitter(Qt::Horizontal);
    both->setChildrenCollapsible(false);
    left->setChildrenCollapsible(false);
    both->addWidget(left);
    both->addWidget(right);
    both->setStretchFactor(0, 5);
    both->setStretchFactor(1, 2);
    column->addWidget(both, 1);
    setCentralWidget(central);

    sb상황판->addWidget(statusPanel1, 1);
    sb상황판->addPermanentWidget(statusPanel2);
    setStatusBar(sb상황판);
}

void RecordWindow::addTools()
{
    atbar.add(recordFileRows(m_profile));
    m_editMenu.addRows();
    atbar.add(recordRows(m_profile));
    for (std::size_t i = 0; i < boxes.size(); ++i)
        atbar.tool(u"ID_Box"_s + QString::number(i + 1))
            .setCaption(m_profile.texts[i].heading.toString() + u"(&%1)"_s.arg(i + 1));
    setToolIcons(*this, atbar);

    ComboBox& fonts = atbar.tool(u"ID_서체").combo();
    fonts.setEditable(true);
    fonts.setInsertPolicy(QComboBox::NoInsert);
    for (const QString& family : QFontDatabase::families())
        fonts.AddItem(family);
    const int standard = fonts.findItem(u"굴림체"_s);
    fonts.setListIndex(standard >= 0 ? standard : fonts.ListCount() - 1);
    ComboBox& sizes = atbar.tool(u"ID_크기").combo();
    sizes.setEditable(true);
    sizes.setInsertPolicy(QComboBox::NoInsert);
    for (const int size : kFontSizes)
        sizes.AddItem(QString::number(size));
    connect(sizes.lineEdit(), &QLineEdit::returnPressed, this, [this] { chooseSize(false); });
    connect(fonts.lineEdit(), &QLineEdit::returnPressed, this, [this] { chooseFont(); });
}

void RecordWindow::bindTools()
{
    m_tools.on(u"ID_저장", [this] { storeHere(); });
    m_tools.on(u"ID_닫기", [this] { close(); });
    m_tools.on(u"ID_종료", [this] { m_windows.endAtOnce(); });
    bindRecordTools();
    bindEditing();
    bindFormatTools();
    bindExports();
    m_tools.on(u"ID_mn도구", [this] { showInsertionState(); });
    m_tools.on(u"ID_성구삽입", [this] {
        RichTextBox* const box = m_current;
        m_windows.openVerseInsertion(this, [box](const QString& text) { box->setSelText(text); });
    });
    m_tools.on(u"ID_성서", [this] { m_windows.open(WindowId::Reader); });
    const std::pair<QStringView, WindowId> mail[] = {
        {u"ID_전자우편주소록편집", WindowId::AddressBook},
        {u"ID_설교문발송", WindowId::SendSermon},
        {u"ID_전자우편환경설정", WindowId::MailSettings},
    };
    for (const auto& [id, window] : mail)
        if (!m_profile.lacksTool(id))
            m_tools.on(id, [this, window = window] { m_windows.open(window); });
    m_tools.on(u"ID_예화사전", [this] { m_windows.open(WindowId::Illustrations); });
    m_tools.on(u"ID_성서지도", [this] { m_windows.open(WindowId::Map); });
    m_tools.on(u"ID_인터넷", [this] { m_windows.openHomePage(); });
    m_tools.on(m_profile.tools.otherManager.id, [this] {
        m_windows.open(m_profile.hasPreachedDay() ? WindowId::QuietTime : WindowId::Sermons);
    });
    bindHelpMenu(m_tools, m_services, this, m_profile.helpPage);
    atbar.onToolClick = [this](const QString& toolId) {
        if (!isEnabled())
            return;
        m_tools.run(toolId);
        // A click has turned the tool's own check mark round.
        ProcUpdateToolBar();
    };
    m_combos.on(u"ID_서체", [this] { chooseFont(); });
    m_combos.on(u"ID_크기", [this] { chooseSize(true); });
    atbar.onComboChange = [this](const QString& toolId) {
        if (isEnabled() && !m_isLoading)
            m_combos.run(toolId);
    };
}

void RecordWindow::bindRecordTools()
{
    const RecordTools& tools = m_profile.tools;
    m_tools.on(tools.create.id, [this] { addRecord(); });
    m_tools.on(tools.remove.id, [this] { removeRecord(); });
    m_tools.on(u"ID_검색", [this] { openSearch(); });
    m_tools.on(u"ID_인쇄", [this] { printRecord(); });
    m_tools.on(u"ID_전체자료인쇄", [this] { printAllRecords(); });
    m_tools.on(u"ID_History", [this] { openHistory(); });
    m_tools.on(tools.list.id, [this] { openSearch().showAll(); });
    const std::pair<QStringView, RecordMove> moves[] = {
        {tools.first.id, RecordMove::First},
        {tools.previous.id, RecordMove::Previous},
        {tools.next.id, RecordMove::Next},
        {tools.last.id, RecordMove::Last},
    };
    for (const auto& [id, move] : moves)
        m_tools.on(id, [this, move = move] { moveTo(move); });
}

void RecordWindow::bindExports()
{
    m_tools.on(u"ID_MS워드로추출", [this] { m_export.ProcMS워드로추출(m_current); });
    m_tools.on(u"ID_HWP로추출", [this] { m_export.ProcHWP로추출(); });
    m_tools.on(u"ID_RTF파일로추출", [this] { m_export.ProcRTF로추출(); });
    m_tools.on(u"ID_텍스트파일로추출", [this] { m_export.Proc텍스트파일로추출(); });
    if (!m_profile.lacksTool(u"ID_HTML로저장"))
        m_tools.on(u"ID_HTML로저장", [this] { m_export.saveAsPage(); });
    m_tools.on(u"ID_HWPX로추출", [this] { m_export.saveAsHwpx(); });
    m_tools.on(u"ID_ODT로추출", [this] { m_export.saveAsOdt(); });
    m_tools.on(u"ID_PDF로추출", [this] { m_export.saveAsPdf(); });
    // No box: an export that fails has lost nothing.
    m_export.onWritten = [this](const QString& path, bool written) {
        statusPanel1->setText((written ? u"저장했습니다: "_s : u"파일을 쓰지 못했습니다: "_s) +
                              path);
    };
}

void RecordWindow::bindEditing()
{
    m_editMenu.bind(m_tools);
    m_editMenu.onState = [](const QWidget* control, EditState& state) {
        const auto* box = qobject_cast<const RichTextBox*>(control);
        if (box == nullptr)
            state = {};
        else
            state.paste = box->canPaste();
    };
    // A box asks before it would lose something, which the toolkit's own commands don't.
    m_editMenu.onCommand = [this](const QWidget*, EditCommand command) {
        RichTextBox* const box = activeBox();
        if (box == nullptr)
            return false;
        if (command == EditCommand::Cut)
            box->cut();
        else if (command == EditCommand::Delete && box->SelLength() > 0)
            box->setSelText(QString());
        else if (command == EditCommand::Paste)
            box->paste();
        else
            return false;
        return true;
    };
    m_tools.on(u"ID_Redo", [this] {
        if (RichTextBox* const box = activeBox())
            box->redo();
    });
    m_tools.on(u"ID_PastePlain", [this] {
        if (RichTextBox* const box = activeBox())
            box->pastePlain();
    });
    for (std::size_t i = 0; i < boxes.size(); ++i)
        m_tools.on(u"ID_Box"_s + QString::number(i + 1), [this, i] {
            if (i >= 3)
                tabs->setCurrentIndex(static_cast<int>(i) - 3);
            boxes[i]->setFocus();
        });
}

void RecordWindow::bindFormatTools()
{
    const auto onCurrent = [this](QStringView id, auto act) {
        m_tools.on(id, [this, act] {
            if (m_current)
                act(*m_current);
        });
    };
    for (const ColorTool& tool : kColorTools)
        onCurrent(tool.id, [color = tool.color](RichTextBox& box) { box.setSelColor(color); });
    m_tools.on(u"ID_Color", [this] { popUpColors(); });
    onCurrent(u"ID_굵게", [](RichTextBox& box) { box.setSelBold(!box.SelBold().value_or(false)); });
    onCurrent(u"ID_기울임꼴",
              [](RichTextBox& box) { box.setSelItalic(!box.SelItalic().value_or(false)); });
    onCurrent(u"ID_밑줄",
              [](RichTextBox& box) { box.setSelUnderline(!box.SelUnderline().value_or(false)); });
    onCurrent(u"ID_좌측정렬", [](RichTextBox& box) { box.setSelAlignment(0); });
    onCurrent(u"ID_우측정렬", [](RichTextBox& box) { box.setSelAlignment(1); });
    onCurrent(u"ID_중앙정렬", [](RichTextBox& box) { box.setSelAlignment(2); });
}

} // namespace lumen
