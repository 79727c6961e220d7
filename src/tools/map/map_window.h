// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "forms/edit_menu.h"
#include "forms/services.h"
#include "jet/data_control.h"
#include "panel/lookup/concordance.h"
#include "panel/lookup/dictionary_tabs.h"
#include "platform/controls/bars/active_tool_bars.h"
#include "platform/controls/bars/tool_dispatch.h"
#include "platform/controls/elided_label.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "platform/controls/splitter.h"
#include "platform/controls/tab_control.h"
#include "print/print_request.h"
#include "tools/map/map_list.h"
#include "tools/map/map_tools.h"
#include "tools/map/map_view.h"

#include <QLineEdit>
#include <QMainWindow>
#include <QStatusBar>

#include <vector>

namespace lumen {

class WindowOpener;

/// Maps of the lands of the Bible, and beside them the dictionary and the concordance in which a
/// place of the map is looked up. It may be closed and loaded again.
class frm성서지도 : public QMainWindow // no Q_OBJECT: moc cannot read the name
{
public:
    frm성서지도(Services& services, AppState& state, ReaderPlace& reader, WindowOpener& windows,
                QWidget* parent = nullptr);

    /// Fills the window afresh; the opener calls it before it shows the window.
    void Form_Load();
    const ToolDispatch& toolClicks() const { return m_tools; }
    /// The map on show as a document, its name below it.
    PrintRequest printRequest() const;

    ActiveToolBars atbar{*this};
    Splitter* splitter = named<Splitter>(u"splitter");
    TabControl* ssTab = named<TabControl>(u"ssTab", u"지도와 사전");
    ListBox* lst지도목록 = named<ListBox>(u"lst지도목록", u"지도 목록");
    QLineEdit* tx지명 = named<QLineEdit>(u"tx지명", u"지명 찾기");
    ListBox* lst지명 = named<ListBox>(u"lst지명", u"찾은 지명");
    MapView* vsPort = named<MapView>(u"vsPort", u"지도");
    QWidget* picMap = vsPort->viewport();
    QStatusBar* sb상황판 = named<QStatusBar>(u"sb상황판");
    ElidedLabel* statusPanel1 = named<ElidedLabel>(u"sb상황판(1)");
    QLabel* statusPanel2 = named<QLabel>(u"sb상황판(2)");

private:
    DataControl m_maps;
    PanelHost m_host;

public:
    BibleDictionary dictionary;
    Concordance concordance;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut();
    QWidget* listPage();
    void bindTools();
    void bindView();
    void bindWindows();
    void wire();
    void SetupMapList();
    void SetupVersionCombo();
    void showMap();
    void DrawMap(const QImage& picture);
    void showPlaces();
    void openPlace();
    void lookUp(const QString& place);
    void showTab(int tab, QWidget& focus);
    void showZoom();
    void setStatus(const QString& text);
    int shownMap() const;

    Services& m_services;
    AppState& m_state;
    WindowOpener& m_windows;
    EditMenu m_editMenu{*this, atbar, m_services.clipboard, kMapEditTools};
    ToolDispatch m_tools;
    std::vector<MapSheetEntry> m_sheets;       ///< in the order of the list
    std::vector<MapPlaceEntry> m_places;       ///< of all maps
    std::vector<MapPlaceEntry> m_placesOnShow; ///< in the order of the list
    QString m_shownTitle;
    bool m_isOpening = false; ///< a place that was found brings its map on show
};

} // namespace lumen
