// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "data/settings.h"
#include "forms/services.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "platform/printing/preview_view.h"
#include "print/print_request.h"

#include <QCheckBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTimer>

namespace lumen {

/// Everything that is printed is seen here first, as the paper will have it; printers, paper,
/// margins and borders are chosen beside it.
class frm미리보기 : public QDialog // no Q_OBJECT: moc cannot read the name
{
public:
    frm미리보기(Services& services, PrintState& state, PrintRequest request,
                QWidget* parent = nullptr);

    /// Lays the document out and restores the window; to be called before it is shown.
    void Form_Load();
    /// Lays the document out anew.
    void UpdatePreview();

    VSPrinter printer; ///< the document
    PreviewView* vp;
    ComboBox* cb프린터목록 = named<ComboBox>(u"cb프린터목록", u"프린터");
    ComboBox* cb용지크기 = named<ComboBox>(u"cb용지크기", u"용지 크기");
    ControlArray<QDoubleSpinBox, 2> spnPaperSize;
    ControlArray<QRadioButton, 2> opOrient;
    ControlArray<QLabel, 2> imgOrient{u"imgOrient"};
    ComboBox* cb경계선 = named<ComboBox>(u"cb경계선", u"경계선");
    ControlArray<QDoubleSpinBox, 4> spnSpace; ///< top, left, bottom, right
    QRadioButton* Op전체 = named<QRadioButton>(u"Op전체", u"전체(&W)");
    QRadioButton* Op선택 = named<QRadioButton>(u"Op선택", u"선택 부분(&L)");
    ComboBox* cbZoomMode = named<ComboBox>(u"cbZoomMode", u"보기 방식");
    ComboBox* cbPercent = named<ComboBox>(u"cbPercent", u"배율");
    QCheckBox* chkShowGuides = named<QCheckBox>(u"chkShowGuides", u"여백선 표시(&U)");
    QSlider* sld쪽이동 = named<QSlider>(u"sld쪽이동", u"쪽 이동");
    QLabel* lbl쪽표시 = named<QLabel>(u"lbl쪽표시");
    QPushButton* cmd인쇄 = named<QPushButton>(u"cmd인쇄", u"인쇄(&P)...");
    QPushButton* cmdCancel = named<QPushButton>(u"cmdCancel", u"닫기(&C)");
    QPushButton* cmd도움말 = named<QPushButton>(u"cmd도움말", u"도움말(&H)");

protected:
    void done(int result) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // preview_window_layout.cpp
    void layOut();
    QWidget* makePaperBox();
    QWidget* makeMarginBox();
    QWidget* makeViewBox();
    void wirePaper();
    void wireView();

    void ClearPreview();
    void layOutDocument();
    void SetupPrinterNPaperLists();
    void fillPapers();
    void GetUserPaperSize();
    void changeMargin(int side);
    void showPartChoice();
    void showPages();
    void showZoom();
    void stepPage(int step);
    void cmd인쇄_Click();
    void Form_Unload();

    Services& m_services;
    PrintState& m_state;
    PrintRequest m_request;
    PreviewSettings m_settings;
    QTimer m_relayTimer;       ///< runs a new layout once the spins have come to rest
    bool m_takesStored = true; ///< the stored paper counts until another one is chosen
    bool m_isShowing = false;  ///< controls are filled by code
};

/// Shows the preview of a document over a window; without a printer a message instead.
void openPreview(Services& services, PrintState& state, PrintRequest request, QWidget* parent);
/// False, after the message, when there is no printer to lay pages out for.
bool hasPrinter(Services& services, QWidget* parent);
/// Prints, and asks for the file where the device makes one. False when the user cancelled it, or
/// after a message that it failed.
bool printJob(Services& services, PrintJob job, QWidget* parent);

/// Twips as centimetres in a list: "2", "29.7".
QString ToCentiMeter(double twips);
/// Twips as inches: "11.7\"".
QString ToInch(double twips);

} // namespace lumen
