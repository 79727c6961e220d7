// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/map/map_window.h"

#include "data/module_path.h"
#include "forms/form_geometry.h"
#include "forms/guarded.h"
#include "forms/help_menu.h"
#include "forms/reader_place.h"
#include "forms/tool_icons.h"
#include "forms/wait_pointer.h"
#include "forms/window_opener.h"
#include "platform/files/file_system.h"
#include "platform/registry/registry_store.h"
#include "print/preview_window.h"

#include <QApplication>
#include <QBuffer>
#include <QCloseEvent>
#include <QImageReader>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr QStringView kHelpPage = u"BibleMapList.htm";
constexpr QStringView kNoMaps =
    u"성서 지도가 없습니다. 프로그램의 data 폴더에 BibleMap.dts가, maps 폴더에 "
    u"지도 파일이 있어야 합니다.";
constexpr double kListShare = 0.36;
constexpr int kPlacesStretch = 3; // to 2 of the list of maps
enum Page { kList, kDictionary, kConcordancePage };

// Pictures of any format; none for what can't be read.
QImage readPicture(const FileSystem& files, const QString& path)
{
    const auto bytes = files.readAll(path);
    if (!bytes)
        return {};
    QBuffer buffer;
    buffer.setData(bytes.value());
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    return reader.read();
}

} // namespace

frm성서지도::frm성서지도(Services& services, AppState& state, ReaderPlace& reader,
                         WindowOpener& windows, QWidget* parent)
    : QMainWindow(parent), m_maps(services.jet), m_host{.services = services,
                                                        .state = state,
                                                        .reader = reader,
                                                        .dacRefTab = m_maps,
                                                        .isBesideReader = true},
      dictionary(m_host), concordance(m_host, u"cb버전"), m_services(services), m_state(state),
      m_windows(windows)
{
    setObjectName(u"frm성서지도"_s);
    setWindowTitle(u"성서 지도"_s);
    picMap->setObjectName(u"picMap"_s);
    layOut();
    atbar.add(kMapFileMenu);
    m_editMenu.addRows();
    atbar.add(kMapTools);
    atbar.add(kHelpMenu);
    setToolIcons(*this, atbar);
    bindTools();
    bindView();
    bindWindows();
    wire();
}

void frm성서지도::layOut()
{
    ssTab->addTab(listPage(), u"지도 목록"_s);
    ssTab->addTab(dictionary.page(), panel_caption::kBibleDictionary.toString());
    ssTab->addTab(concordance.page(), panel_caption::kConcordance.toString());
    splitter->addWidget(ssTab);
    splitter->addWidget(vsPort);
    splitter->setChildrenCollapsible(false);
    splitter->setRatio(kListShare);
    setCentralWidget(splitter);
    sb상황판->addWidget(statusPanel1, 1);
    sb상황판->addPermanentWidget(statusPanel2);
    setStatusBar(sb상황판);
}

QWidget* frm성서지도::listPage()
{
    tx지명->setPlaceholderText(u"지명 찾기"_s);
    tx지명->setClearButtonEnabled(true);
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->addWidget(lst지도목록, 2);
    column->addWidget(tx지명);
    column->addWidget(lst지명, kPlacesStretch);
    return page;
}

void frm성서지도::bindTools()
{
    m_tools.on(u"ID_인쇄", [this] {
        if (!vsPort->picture().isNull())
            openPreview(m_services, m_state.print, printRequest(), this);
    });
    m_tools.on(u"ID_닫기", [this] { close(); });
    m_tools.on(u"ID_종료", [] { QApplication::closeAllWindows(); });
    m_editMenu.bind(m_tools);
    bindHelpMenu(m_tools, m_services, this, kHelpPage);
    atbar.onToolClick = [this](const QString& toolId) {
        m_tools.run(toolId);
        showZoom(); // a click has turned a toggle's own check mark round
    };
}

void frm성서지도::bindView()
{
    m_tools.on(u"ID_도구막대표시",
               [this] { atbar.setBarVisible(kMapBar, !atbar.barVisible(kMapBar)); });
    m_tools.on(u"ID_Enlarge", [this] { vsPort->enlarge(); });
    m_tools.on(u"ID_Reduce", [this] { vsPort->reduce(); });
    m_tools.on(u"ID_ActualSize", [this] { vsPort->setZoom(1); });
    m_tools.on(u"ID_FitMap", [this] { vsPort->setFitted(!vsPort->isFitted()); });
    m_tools.on(u"ID_ToMap", [this] { vsPort->setFocus(); });
}

void frm성서지도::bindWindows()
{
    m_tools.on(u"ID_지도목록", [this] { showTab(kList, *lst지도목록); });
    m_tools.on(u"ID_FindPlace", [this] {
        showTab(kList, *tx지명);
        tx지명->selectAll();
    });
    m_tools.on(u"ID_성경사전", [this] { showTab(kDictionary, *dictionary.cb성경사전검색어); });
    m_tools.on(u"ID_성구사전",
               [this] { showTab(kConcordancePage, *concordance.tx성구사전검색어); });
    const std::pair<QStringView, WindowId> windows[] = {{u"ID_성서", WindowId::Reader},
                                                        {u"ID_설교매니저", WindowId::Sermons},
                                                        {u"ID_QT매니저", WindowId::QuietTime},
                                                        {u"ID_예화사전", WindowId::Illustrations}};
    for (const auto& [id, window] : windows)
        m_tools.on(id, [this, window = window] { m_windows.open(window); });
    m_tools.on(u"ID_인터넷", [this] { m_windows.openHomePage(); });
}

void frm성서지도::wire()
{
    lst지도목록->onClick = [this] { showMap(); };
    connect(tx지명, &QLineEdit::textChanged, this, [this] { showPlaces(); });
    connect(tx지명, &QLineEdit::returnPressed, this, [this] {
        if (lst지명->ListCount() == 0)
            return;
        lst지명->setListIndex(-1);
        lst지명->setListIndex(0);
        lst지명->setFocus(); // would choose the first place without showing it
    });
    lst지명->onClick = [this] { openPlace(); };
    lst지명->onDblClick = [this] {
        if (const int index = lst지명->ListIndex(); index >= 0)
            lookUp(m_placesOnShow[static_cast<std::size_t>(index)].name);
    };
    vsPort->onPlace = [this](const QString& name) { lookUp(name); };
    vsPort->onZoom = [this] { showZoom(); };
    const std::pair<PanelTab*, int> lookUps[] = {{&dictionary, kDictionary},
                                                 {&concordance, kConcordancePage}};
    for (const auto& [tab, page] : lookUps)
        tab->setStatus = [this, page = page](const QString& text) {
            if (ssTab->Tab() == page)
                setStatus(text);
        };
    ssTab->onTabClick = [this](int tab, int) {
        setStatus({});
        if (tab == kDictionary)
            dictionary.enter();
        else if (tab == kConcordancePage)
            concordance.enter();
    };
    for (QLineEdit* box :
         {tx지명, dictionary.cb성경사전검색어->lineEdit(), concordance.tx성구사전검색어})
        m_editMenu.offerOn(*box);
    for (TextControl* text : {dictionary.tx성경사전의미, concordance.tx성구본문})
        text->onContextMenu = [this](const QPoint& at) { m_editMenu.popUp(at); };
}

void frm성서지도::Form_Load()
{
    Proc시동크기위치설정(m_services.registry, geometry::kBibleMap, *this);
    const WaitPointer wait;
    vsPort->setNotice(kNoMaps.toString());
    vsPort->setZoom(1);
    ssTab->setTab(kList);
    dictionary.cb사전선택->setListIndex(0);
    dictionary.enter();
    SetupVersionCombo();
    tx지명->clear();
    guarded(m_services, this, [this] { SetupMapList(); });
    setStatus({});
    showZoom();
    lst지도목록->setFocus();
}

void frm성서지도::SetupVersionCombo()
{
    concordance.fillVersions(0);
}

void frm성서지도::SetupMapList()
{
    m_sheets.clear();
    m_places.clear();
    lst지도목록->Clear();
    showPlaces();
    if (!moduleExists(m_services.files, m_state, kMapModule))
        return;
    m_sheets = readMapSheets(m_maps, m_services, m_state);
    m_places = readMapPlaces(m_maps);
    m_maps.Close();
    QStringList titles;
    for (const MapSheetEntry& sheet : m_sheets)
        titles << sheet.title;
    lst지도목록->AddItems(titles);
    lst지도목록->setListIndex(0);
}

int frm성서지도::shownMap() const
{
    const auto index = static_cast<std::size_t>(lst지도목록->ListIndex());
    return index < m_sheets.size() ? m_sheets[index].number : 0;
}

void frm성서지도::showMap()
{
    const WaitPointer wait;
    if (!m_isOpening)
        showPlaces();
    const QImage picture = readPicture(m_services.files, mapFile(m_state, shownMap()));
    // What can't be loaded leaves the map that is on show.
    if (picture.isNull())
        return;
    m_shownTitle = lst지도목록->Text();
    DrawMap(picture);
    setStatus({});
}

void frm성서지도::DrawMap(const QImage& picture)
{
    vsPort->setPicture(picture);
    vsPort->setAccessibleName(m_shownTitle);
    showZoom();
}

void frm성서지도::showPlaces()
{
    m_placesOnShow = foundPlaces(m_places, tx지명->text(), shownMap());
    QStringList items;
    for (const MapPlaceEntry& place : m_placesOnShow) {
        const auto sheet = std::ranges::find(m_sheets, place.number, &MapSheetEntry::number);
        const bool isElsewhere = place.number != shownMap() && sheet != m_sheets.end();
        items << (isElsewhere ? place.name + u" - "_s + sheet->title : place.name);
    }
    lst지명->Clear();
    lst지명->AddItems(items);
}

void frm성서지도::openPlace()
{
    const int index = lst지명->ListIndex();
    if (index < 0)
        return;
    const MapPlaceEntry place = m_placesOnShow[static_cast<std::size_t>(index)];
    if (place.number != shownMap()) {
        // The list of the places that were found stays as it is.
        const QScopedValueRollback opening(m_isOpening, true);
        const auto sheet = std::ranges::find(m_sheets, place.number, &MapSheetEntry::number);
        lst지도목록->setListIndex(static_cast<int>(sheet - m_sheets.begin()));
    }
    const auto& names = vsPort->names();
    if (const auto name = std::ranges::find(names, place.name, &MapName::name); name != names.end())
        vsPort->showPlace(name->at);
}

void frm성서지도::lookUp(const QString& place)
{
    const QString word = placeWord(place);
    if (ssTab->Tab() == kList)
        ssTab->setTab(kDictionary);
    if (dictionary.page()->isEnabled()) {
        dictionary.opt시작->setChecked(true);
        guarded(m_services, this, [&] { dictionary.Proc성경사전검색(word); });
    }
    // A concordance holds single words. That one is missing is told where it would be in view.
    if (ssTab->Tab() == kConcordancePage || concordance.hasModule()) {
        concordance.op성구시작->setChecked(true);
        QString first = word.section(u' ', 0, 0);
        guarded(m_services, this, [&] { concordance.Proc성구사전검색(first); });
    }
}

void frm성서지도::showTab(int tab, QWidget& focus)
{
    ssTab->setTab(tab);
    focus.setFocus();
}

void frm성서지도::showZoom()
{
    atbar.tool(u"ID_FitMap").setChecked(vsPort->isFitted());
    atbar.tool(u"ID_도구막대표시").setChecked(atbar.barVisible(kMapBar));
    const bool hasMap = !vsPort->picture().isNull();
    for (const QStringView id :
         {u"ID_인쇄", u"ID_Enlarge", u"ID_Reduce", u"ID_ActualSize", u"ID_FitMap"})
        atbar.tool(id).setEnabled(hasMap);
    statusPanel2->setText(hasMap ? QString::number(qRound(vsPort->zoom() * 100)) + u'%'
                                 : QString());
}

void frm성서지도::setStatus(const QString& text)
{
    statusPanel1->setText(text.isEmpty() ? m_shownTitle : text);
}

PrintRequest frm성서지도::printRequest() const
{
    PrintRequest request;
    request.source = print_source::kMap.toString();
    request.footerLeft = m_shownTitle;
    request.docName = m_shownTitle;
    request.parts = PrintParts::None;
    request.layOut = [picture = vsPort->picture()](VSPrinter& vp, bool) { vp.addPicture(picture); };
    return request;
}

void frm성서지도::closeEvent(QCloseEvent* event)
{
    saveFormGeometry(m_services.registry, geometry::kBibleMap, *this);
    ignoreFailure(m_services.registry.flush(), "unsaved settings never keep the window open");
    QMainWindow::closeEvent(event);
}

} // namespace lumen
