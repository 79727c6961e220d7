// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "forms/services.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "print/print_request.h"

#include <QButtonGroup>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

namespace lumen {

/// Copies, quality and range of a print. Its answer stands in the PrintState.
class frm인쇄 : public QDialog // no Q_OBJECT: moc cannot read the name
{
public:
    frm인쇄(VSPrinter& vp, PrintState& state, const PrintRequest& request,
            QWidget* parent = nullptr);

    QLabel* lbl프린터이름 = named<QLabel>(u"lbl프린터이름");
    QPushButton* cmd설정 = named<QPushButton>(u"cmd설정", u"설정(&S)...");
    ComboBox* cb인쇄품질 = named<ComboBox>(u"cb인쇄품질", u"인쇄 품질");
    QGroupBox* fr페이지범위 = named<QGroupBox>(u"fr페이지범위", u"페이지 범위");
    QRadioButton* op모든페이지 = named<QRadioButton>(u"op모든페이지", u"모든 페이지(&A)");
    QRadioButton* op범위 = named<QRadioButton>(u"op범위", u"범위(&R)");
    QSpinBox* tx시작 = named<QSpinBox>(u"tx시작", u"시작 페이지");
    QSpinBox* tx끝 = named<QSpinBox>(u"tx끝", u"끝 페이지");
    QGroupBox* fr인쇄대상 = named<QGroupBox>(u"fr인쇄대상", u"인쇄 대상");
    QRadioButton* opt전체 = named<QRadioButton>(u"opt전체", u"전체(&W)");
    QRadioButton* opt선택 = named<QRadioButton>(u"opt선택", u"선택 부분(&L)");
    QSpinBox* tx인쇄매수 = named<QSpinBox>(u"tx인쇄매수", u"인쇄 매수");
    QPushButton* OKButton = named<QPushButton>(u"OKButton", u"인쇄(&P)");
    QPushButton* CancelButton = named<QPushButton>(u"CancelButton", u"취소(&C)");

private:
    void layOut();
    void setUpRanges(const PrintRequest& request);
    void takeAnswer();

    VSPrinter& m_vp;
    PrintState& m_state;
};

} // namespace lumen
