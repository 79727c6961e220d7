// SPDX-License-Identifier: GPL-2.0-or-later
#include "print/print_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kMostCopies = 999;

/// What of the frames a document lets be chosen; documents without a row have all of it.
struct RangeRow
{
    QStringView source;
    bool pages = true;
    bool parts = true;
};

// The name with a blank is another one than that of the search's layout: a search has all frames,
// by the rule of what has no row.
constexpr std::array kRanges{
    RangeRow{print_source::kSermon, false, true},
    RangeRow{print_source::kSermonSearch, false, false}, RangeRow{print_source::kBible, true, true},
    RangeRow{u"성서 검색", true, true}, RangeRow{print_source::kMap, false, false}};

constexpr std::array kQualities{std::pair{u"최고 품질", -4}, std::pair{u"고급 품질", -4},
                                std::pair{u"보통 품질", -2}, std::pair{u"고속 인쇄", -1}};

RangeRow rangeOf(const QString& source)
{
    for (const RangeRow& row : kRanges)
        if (row.source == source)
            return row;
    return {};
}

} // namespace

frm인쇄::frm인쇄(VSPrinter& vp, PrintState& state, const PrintRequest& request, QWidget* parent)
    : QDialog(parent), m_vp(vp), m_state(state)
{
    setObjectName(u"frm인쇄"_s);
    setWindowTitle(u"인쇄"_s);
    layOut();
    lbl프린터이름->setText(vp.Device());
    for (const auto& [name, quality] : kQualities)
        cb인쇄품질->AddItem(QString::fromUtf16(name), quality);
    cb인쇄품질->setListIndex(0);
    setUpRanges(request);
    m_state.PrintAccepted = false;
    connect(cmd설정, &QPushButton::clicked, this, [this] {
        if (const auto device = m_vp.printers().setUp(this, m_vp.Device())) {
            m_vp.setDevice(*device);
            lbl프린터이름->setText(m_vp.Device());
        }
    });
    connect(op범위, &QRadioButton::toggled, this, [this](bool on) {
        tx시작->setEnabled(on);
        tx끝->setEnabled(on);
        if (on)
            tx시작->setFocus();
    });
    connect(OKButton, &QPushButton::clicked, this, [this] {
        takeAnswer();
        accept();
    });
    connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

void frm인쇄::setUpRanges(const PrintRequest& request)
{
    const RangeRow range = rangeOf(request.source);
    const int last = std::max(1, m_vp.PageCount());
    fr페이지범위->setEnabled(range.pages);
    op모든페이지->setChecked(true);
    tx시작->setRange(1, last);
    tx끝->setRange(1, last);
    tx끝->setValue(last);
    tx시작->setEnabled(false);
    tx끝->setEnabled(false);
    const bool hasParts = range.parts && request.parts != PrintParts::None;
    opt전체->setEnabled(hasParts);
    opt선택->setEnabled(hasParts && request.hasSelection);
    (m_state.PrintWhole || !opt선택->isEnabled() ? opt전체 : opt선택)->setChecked(true);
    fr인쇄대상->setEnabled(hasParts);
}

void frm인쇄::layOut()
{
    tx인쇄매수->setRange(1, kMostCopies);
    auto* printer = new QHBoxLayout;
    printer->addWidget(lbl프린터이름, 1);
    printer->addWidget(cmd설정);
    auto* pages = new QHBoxLayout(fr페이지범위);
    pages->addWidget(op모든페이지);
    pages->addWidget(op범위);
    pages->addWidget(tx시작);
    auto* to = new QLabel(u"~"_s);
    pages->addWidget(to);
    pages->addWidget(tx끝);
    auto* parts = new QHBoxLayout(fr인쇄대상);
    parts->addWidget(opt전체);
    parts->addWidget(opt선택);
    parts->addStretch(1);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(OKButton, QDialogButtonBox::AcceptRole);
    buttons->addButton(CancelButton, QDialogButtonBox::RejectRole);
    // Enter prints, wherever the focus stands.
    cmd설정->setAutoDefault(false);
    CancelButton->setAutoDefault(false);
    OKButton->setDefault(true);
    OKButton->setFocus();
    auto* form = new QFormLayout(this);
    form->addRow(u"프린터"_s, printer);
    form->addRow(u"인쇄 품질(&Q)"_s, cb인쇄품질);
    form->addRow(u"인쇄 매수(&N)"_s, tx인쇄매수);
    form->addRow(fr페이지범위);
    form->addRow(fr인쇄대상);
    form->addRow(buttons);
}

void frm인쇄::takeAnswer()
{
    m_state.PrintCopies = tx인쇄매수->value();
    m_vp.Copies = m_state.PrintCopies;
    m_vp.PrintQuality = cb인쇄품질->ItemData(cb인쇄품질->ListIndex());
    if (fr인쇄대상->isEnabled())
        m_state.PrintWhole = opt전체->isChecked();
    m_state.PrintFromPage = 0;
    if (fr페이지범위->isEnabled() && op범위->isChecked()) {
        m_state.PrintFromPage = std::min(tx시작->value(), tx끝->value());
        m_state.PrintToPage = std::max(tx시작->value(), tx끝->value());
    }
    m_state.PrintAccepted = true;
}

} // namespace lumen
