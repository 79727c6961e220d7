// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/twips.h"
#include "platform/printing/paper_table.h"
#include "print/preview_window.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPainter>
#include <QScrollArea>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr double kMostCentimetres = 100;
constexpr double kSpinStep = 0.5;
constexpr int kRestMs = 150; // after the last turn of a spin

void setUpCentimetres(QDoubleSpinBox& spin)
{
    spin.setDecimals(1);
    spin.setRange(0, kMostCentimetres);
    spin.setSingleStep(kSpinStep);
    spin.setSuffix(u" cm"_s);
    spin.setKeyboardTracking(false);
}

QPixmap sheetPicture(const QSize& sheet)
{
    QPixmap picture(sheet.width() + 1, sheet.height() + 1);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setBrush(Qt::white);
    painter.drawRect(QRect({0, 0}, sheet));
    return picture;
}

void addAll(ComboBox& combo, std::initializer_list<QStringView> texts)
{
    for (const QStringView text : texts)
        combo.AddItem(text.toString());
}

} // namespace

QWidget* frm미리보기::makePaperBox()
{
    auto* box = new QGroupBox(u"용지"_s);
    auto* form = new QFormLayout(box);
    for (ComboBox* const combo : {cb프린터목록, cb용지크기}) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(14);
    }
    form->addRow(u"프린터(&R)"_s, cb프린터목록);
    form->addRow(u"용지 크기(&Z)"_s, cb용지크기);
    form->addRow(u"너비(&I)"_s, spnPaperSize(0));
    form->addRow(u"높이(&T)"_s, spnPaperSize(1));
    auto* turns = new QHBoxLayout;
    auto* group = new QButtonGroup(this);
    for (int i = 0; i < 2; ++i) {
        imgOrient(i)->setPixmap(sheetPicture(i == 0 ? QSize(12, 16) : QSize(16, 12)));
        imgOrient(i)->setAccessibleName(i == 0 ? u"세로로 놓은 용지"_s : u"가로로 놓은 용지"_s);
        turns->addWidget(imgOrient(i));
    }
    for (QRadioButton* const turn : opOrient) {
        group->addButton(turn);
        turns->addWidget(turn);
    }
    turns->addStretch(1);
    form->addRow(turns);
    form->addRow(u"경계선(&B)"_s, cb경계선);
    addAll(*cb경계선, {u"없음", u"하단", u"상단", u"상단 & 하단", u"테두리"});
    return box;
}

QWidget* frm미리보기::makeMarginBox()
{
    auto* box = new QGroupBox(u"여백"_s);
    auto* grid = new QGridLayout(box);
    constexpr std::array kNames{u"위", u"왼쪽", u"아래", u"오른쪽"};
    for (int side = 0; side < 4; ++side) {
        const QString name = QString::fromUtf16(kNames[static_cast<std::size_t>(side)]);
        spnSpace(side)->setAccessibleName(name + u" 여백"_s);
        auto* label = new QLabel(name);
        label->setBuddy(spnSpace(side));
        grid->addWidget(label, side / 2, 2 * (side % 2));
        grid->addWidget(spnSpace(side), side / 2, 2 * (side % 2) + 1);
    }
    return box;
}

QWidget* frm미리보기::makeViewBox()
{
    auto* box = new QGroupBox(u"보기"_s);
    auto* form = new QFormLayout(box);
    addAll(*cbZoomMode, {u"퍼센트", u"아이콘 모양", u"두 페이지 단위", u"쪽 전체 표시",
                         u"쪽 너비를 기준", u"가득 채워 보기"});
    cbPercent->setEditable(true);
    cbPercent->setInsertPolicy(QComboBox::NoInsert);
    addAll(*cbPercent, {u"25%", u"50%", u"75%", u"100%", u"150%", u"200%", u"400%"});
    form->addRow(u"보기 방식(&V)"_s, cbZoomMode);
    form->addRow(u"배율(&M)"_s, cbPercent);
    form->addRow(chkShowGuides);
    auto* parts = new QHBoxLayout;
    parts->addWidget(Op전체);
    parts->addWidget(Op선택);
    parts->addStretch(1);
    form->addRow(parts);
    return box;
}

void frm미리보기::layOut()
{
    for (QDoubleSpinBox* const spin : spnPaperSize)
        setUpCentimetres(*spin);
    for (QDoubleSpinBox* const spin : spnSpace)
        setUpCentimetres(*spin);
    m_relayTimer.setSingleShot(true);
    m_relayTimer.setInterval(kRestMs);

    auto* pages = new QHBoxLayout;
    sld쪽이동->setOrientation(Qt::Horizontal);
    sld쪽이동->setMinimum(1);
    pages->addWidget(sld쪽이동, 1);
    pages->addWidget(lbl쪽표시);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* const button : {cmd인쇄, cmdCancel, cmd도움말}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->addWidget(makePaperBox());
    column->addWidget(makeMarginBox());
    column->addWidget(makeViewBox());
    column->addStretch(1);
    // On a small screen with large letters the choices scroll; the buttons stay in view.
    auto* scroll = new QScrollArea;
    scroll->setWidget(side);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setMinimumWidth(side->minimumSizeHint().width() + 20);
    scroll->setFocusPolicy(Qt::NoFocus);
    auto* right = new QVBoxLayout;
    right->addWidget(scroll, 1);
    right->addLayout(buttons);
    auto* left = new QVBoxLayout;
    left->addWidget(vp, 1);
    left->addLayout(pages);
    auto* all = new QHBoxLayout(this);
    all->addLayout(left, 1);
    all->addLayout(right);
}

void frm미리보기::wirePaper()
{
    cb프린터목록->onClick = [this] {
        if (m_isShowing || cb프린터목록->Text() == printer.Device())
            return;
        ClearPreview();
        printer.setDevice(cb프린터목록->Text());
        m_takesStored = false;
        UpdatePreview();
    };
    cb용지크기->onClick = [this] {
        const int code = cb용지크기->ItemData(cb용지크기->ListIndex());
        if (m_isShowing || cb용지크기->ListIndex() < 0 || code == printer.PaperSize())
            return;
        ClearPreview();
        m_takesStored = false;
        printer.setPaperSize(code);
        if (code == kUserPaper)
            GetUserPaperSize();
        UpdatePreview();
    };
    for (int i = 0; i < 2; ++i) {
        connect(spnPaperSize(i), &QDoubleSpinBox::valueChanged, this, [this, i](double cm) {
            if (m_isShowing)
                return;
            const double twips = std::max(0.0, cm) * kTwipsPerInch / 2.54;
            i == 0 ? printer.setPaperWidth(twips) : printer.setPaperHeight(twips);
            m_relayTimer.start();
        });
        connect(opOrient(i), &QRadioButton::clicked, this, [this, i] {
            if (static_cast<int>(printer.Orientation) == i)
                return;
            ClearPreview();
            printer.Orientation = static_cast<PageOrientation>(i);
            UpdatePreview();
        });
    }
    cb경계선->onClick = [this] {
        const auto border = static_cast<PageBorder>(cb경계선->ListIndex());
        if (m_isShowing || border == printer.PageBorder)
            return;
        printer.PageBorder = border;
        UpdatePreview();
    };
    for (int side = 0; side < 4; ++side)
        connect(spnSpace(side), &QDoubleSpinBox::valueChanged, this, [this, side] {
            if (!m_isShowing)
                changeMargin(side);
        });
    connect(&m_relayTimer, &QTimer::timeout, this, [this] { UpdatePreview(); });
}

void frm미리보기::wireView()
{
    for (QRadioButton* const part : {Op전체, Op선택})
        connect(part, &QRadioButton::clicked, this, [this] {
            m_state.PrintWhole = Op전체->isChecked();
            UpdatePreview();
        });
    cbZoomMode->onClick = [this] {
        if (m_isShowing || cbZoomMode->ListIndex() < 0)
            return;
        vp->setZoomMode(static_cast<PreviewZoom>(cbZoomMode->ListIndex()));
        vp->setPreviewPage(1);
        showZoom();
        showPages();
    };
    const auto zoomTo = [this](const QString& text) {
        const double percent = Val(text);
        if (m_isShowing || percent <= 0)
            return;
        vp->setZoom(percent);
        showZoom();
        showPages();
    };
    cbPercent->onClick = [this, zoomTo] { zoomTo(cbPercent->List(cbPercent->ListIndex())); };
    connect(cbPercent->lineEdit(), &QLineEdit::returnPressed, this,
            [this, zoomTo] { zoomTo(cbPercent->lineEdit()->text()); });
    connect(chkShowGuides, &QCheckBox::toggled, this, [this](bool on) { vp->setShowGuides(on); });
    connect(sld쪽이동, &QSlider::valueChanged, this, [this](int value) {
        if (m_isShowing)
            return;
        const int pages = vp->PreviewPages();
        vp->setPreviewPage(pages >= 2 ? (value - 1) * pages + 1 : value);
        showPages();
    });
    vp->onStep = [this](int step) { stepPage(step); };
    vp->onViewChange = [this] {
        showZoom();
        showPages();
    };
    connect(cmd인쇄, &QPushButton::clicked, this, [this] { cmd인쇄_Click(); });
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

} // namespace lumen
