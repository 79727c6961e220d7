// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/original/strong_list_window.h"

#include "canon/verse_index.h"
#include "data/chapter_reader.h"
#include "data/data_store.h"
#include "data/module_path.h"
#include "forms/guarded.h"
#include "forms/reader_place.h"
#include "forms/results/result_pages.h"
#include "forms/tool_icons.h"
#include "forms/wait_pointer.h"
#include "forms/window_opener.h"
#include "jet/engine.h"
#include "platform/dialogs/message_boxes.h"
#include "search/messages.h"
#include "text/field_scramble.h"
#include "text/query_literal.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr QStringView kModule = u"\\Data\\z102.dts";
constexpr QStringView kVersionCombo = u"ID_cb기본버전";
constexpr QSize kDesignSize(720, 560); // pixels

} // namespace

QString strongListQuery(const QString& language, const QString& number)
{
    const QString table = language == u"히브리어" ? u"BHSStrongPos"_s : u"NSStrongPos"_s;
    return u"select * from "_s + table + u" where word like '"_s +
           EscapeLikeText(DES::ScrambleField(number), true) + u"'"_s;
}

QString occurrenceKey(const QString& item)
{
    return !item.isEmpty() && item.front().isDigit() ? item : BibleCode::RefToIndex(item);
}

frm스트롱관주목록::frm스트롱관주목록(Services& services, AppState& state, ReaderPlace& reader,
                                     QWidget* parent)
    : QMainWindow(parent), m_services(services), m_state(state), m_reader(reader),
      m_versions(services, state, {}), m_verses(services.jet),
      m_results(*flex결과,
                [this](const QString& text, const QString& font, int halfPoints, int width) {
                    return DivideHebrewCont(text, {font, halfPoints, width}, false, m_lineBreaker);
                })
{
    setObjectName(u"frm스트롱관주목록"_s);
    setWindowTitle(u"스트롱 코드 관주 목록"_s);
    vsAwk1.setFS(u";"_s);
    layOut();
    atbar.add(kStrongListFileMenu);
    m_editMenu.addRows();
    atbar.add(kStrongListTools);
    setToolIcons(*this, atbar);
    bindTools();
    wire();
}

void frm스트롱관주목록::layOut()
{
    auto* central = new QWidget;
    auto* column = new QVBoxLayout(central);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(flex결과, 1);
    column->addLayout(centred(mover.panel));
    setCentralWidget(central);
    sb상황판->addWidget(statusPanel1, 1);
    setStatusBar(sb상황판);
    resize(kDesignSize);
}

void frm스트롱관주목록::bindTools()
{
    m_tools.on(u"ID_닫기", [this] { close(); });
    m_editMenu.bind(m_tools);
    m_editMenu.onCommand = [this](const QWidget*, EditCommand) {
        m_results.copyTo(m_services.clipboard);
        return true;
    };
    m_tools.on(u"ID_PreviousPage", [this] { turnPage(false); });
    m_tools.on(u"ID_NextPage", [this] { turnPage(true); });
    atbar.onToolClick = [this](const QString& toolId) { atbar_event9(toolId); };
    m_combos.on(kVersionCombo, [this] { chooseVersion(); });
    atbar.onComboChange = [this](const QString& toolId) { m_combos.run(toolId); };
}

void frm스트롱관주목록::wire()
{
    mover.pages->onClick = [this] { fillPage(FillPlace::First); };
    connect(mover.previous, &QToolButton::clicked, this, [this] { turnPage(false); });
    connect(mover.next, &QToolButton::clicked, this, [this] { turnPage(true); });
    flex결과->onClick = [this] { openRow(); };
    flex결과->onEnter = [this] { openRow(); };
    flex결과->onDblClick = [this](int, int) { m_reader.bringToFront(); };
    m_editMenu.offerOn(*flex결과);
    flex결과->onResizeEnded = [this] { m_results.divideAnew(); };
}

void frm스트롱관주목록::atbar_event9(const QString& toolId)
{
    m_tools.run(toolId);
}

void frm스트롱관주목록::FillBibleIndex(const QString& language, const QString& strongNumber)
{
    const WaitPointer wait;
    clear();
    const QString number = Trim(strongNumber).toString();
    bool found = false;
    if (!guarded(m_services, this, [&] { found = readOccurrences(language, number); }))
        return;
    if (!found) {
        m_services.messages.show(this, messages::kNoStrongList);
        return;
    }
    // In view first: the lines of Hebrew verses take the width of the column.
    raiseWindow(*this);
    if (m_version.tableName.isEmpty())
        chooseReadersVersion();
    fillPageCombo();
}

bool frm스트롱관주목록::readOccurrences(const QString& language, const QString& number)
{
    // A missing one is told by its path in the program's folder.
    const QString path = findModule(m_services.files, m_state, kModule)
                             .value_or(joinedPath(m_state.AppPath, kModule));
    const auto database =
        m_services.jet.OpenDatabase(path, false, true, QString::fromUtf16(connect_text::kSearch));
    const auto rows = database->OpenRecordset(strongListQuery(language, number));
    if (rows->RecordCount() == 0)
        return false;
    vsAwk1.setText(Text(rows->Fields(u"Pos")));
    statusPanel1->setText(language + u" 스트롱 코드 번호: "_s + number + u"   전체 관주 수: "_s +
                          Text(rows->Fields(u"num")));
    return true;
}

void frm스트롱관주목록::clear()
{
    vsAwk1.setText({});
    mover.pages->Clear();
    m_results.clear();
    statusPanel1->clear();
}

void frm스트롱관주목록::chooseReadersVersion()
{
    ComboBox& versions = atbar.tool(kVersionCombo).combo();
    m_versions.fill(versions);
    const QList<VersionItem>& items = m_versions.items();
    const int code = m_reader.versionCode(0);
    auto first = std::ranges::find(items, code, &VersionItem::code);
    if (first == items.end() || !first->present)
        first = std::ranges::find(items, true, &VersionItem::present);
    if (first != items.end())
        versions.setListIndex(first->index);
}

void frm스트롱관주목록::chooseVersion()
{
    ComboBox& versions = atbar.tool(kVersionCombo).combo();
    const ChosenVersion chosen = m_versions.choose(this, versions.ListIndex(), false);
    if (!chosen.accepted) {
        versions.setListIndex(chosen.index);
        return;
    }
    m_version = chosen;
    fillPage(FillPlace::Kept);
}

void frm스트롱관주목록::fillPageCombo()
{
    mover.pages->Clear();
    for (const QString& label : ResultPages(verseCount()).labels())
        mover.pages->AddItem(label);
    mover.pages->setListIndex(0);
}

void frm스트롱관주목록::fillPage(FillPlace place)
{
    const int page = mover.pages->ListIndex();
    if (page < 0 || m_version.tableName.isEmpty())
        return;
    const WaitPointer wait;
    QList<ResultVerse> verses;
    guarded(m_services, this, [&] { readPage(page, verses); });
    m_results.showVerses(verses, m_version.code, m_state.fonts, place);
    flex결과->setTextMatrix(0, ResultGrid::kTextColumn,
                            u"본문 ("_s + QString::number(verseCount()) + u"개 존재)"_s);
}

void frm스트롱관주목록::readPage(int page, QList<ResultVerse>& verses)
{
    const int first = ResultPages(verseCount()).firstRecord(page);
    const int last = std::min(first + ResultPages::kRowsPerPage, verseCount());
    for (int place = first; place < last; ++place) {
        const QString key = occurrenceKey(vsAwk1.F(place + 1));
        const QList<VerseRow> found =
            readVerses(m_verses, m_version.path, verseQuery(m_version.tableName, key));
        verses << ResultVerse{BibleCode::IndexToRef(key),
                              found.isEmpty() ? QString() : verseText(found.front())};
    }
}

void frm스트롱관주목록::turnPage(bool forward)
{
    const ResultPages pages(verseCount());
    if (pages.count() < 2)
        return;
    const int page = mover.pages->ListIndex();
    mover.pages->setListIndex(forward ? pages.next(page) : pages.previous(page));
}

void frm스트롱관주목록::openRow()
{
    const QString reference =
        flex결과->TextMatrix(flex결과->RowSel(), ResultGrid::kReferenceColumn);
    if (flex결과->RowSel() < 1 || reference.isEmpty())
        return;
    const VersePlace place = BibleCode::ParseRef(reference);
    m_reader.goTo(place.book, place.chapter, place.verse);
}

void frm스트롱관주목록::closeEvent(QCloseEvent* event)
{
    m_verses.Close();
    QMainWindow::closeEvent(event);
}

} // namespace lumen
