// SPDX-License-Identifier: GPL-2.0-or-later
#include "print/preview_window.h"

#include "forms/form_geometry.h"
#include "forms/guarded.h"
#include "forms/help_menu.h"
#include "platform/controls/twips.h"
#include "platform/dialogs/file_dialogs.h"
#include "platform/dialogs/html_help.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/dialogs/modal.h"
#include "platform/printing/paper_table.h"
#include "platform/registry/registry_store.h"
#include "print/header_footer.h"
#include "print/messages.h"
#include "print/print_dialog.h"

#include <QFileInfo>
#include <QKeyEvent>

#include <cmath>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr double kTwipsPerCm = kTwipsPerInch / 2.54;
constexpr int kLeastWidth = 8850; // twips
constexpr int kLeastHeight = 6015;
constexpr int kDesignWidth = 14000;
constexpr int kDesignHeight = 10200;
constexpr QStringView kUserPaperName = u"사용자 정의";

QString oneDecimal(double number)
{
    QString text = QString::number(number, 'f', 1);
    return text.endsWith(u".0") ? text.chopped(2) : text;
}

QString fileNameOf(QString name)
{
    for (const QChar sign : u"\\/:*?\"<>|\n\r\t"_s)
        name.remove(sign);
    constexpr qsizetype kLongest = 60; // letters, well below what file systems take
    name = name.trimmed().first(std::min(name.trimmed().size(), kLongest));
    return name.isEmpty() ? u"인쇄"_s : name;
}

bool isHeight(int side)
{
    return side % 2 == 0;
}

} // namespace

QString ToCentiMeter(double twips)
{
    return oneDecimal(twips * 2.54 / kTwipsPerInch);
}

QString ToInch(double twips)
{
    return oneDecimal(twips / kTwipsPerInch) + u'"';
}

frm미리보기::frm미리보기(Services& services, PrintState& state, PrintRequest request,
                         QWidget* parent)
    : QDialog(parent), printer(services.printers), vp(new PreviewView(printer)),
      spnPaperSize(u"spnPaperSize", [](int i) { return i == 0 ? u"너비"_s : u"높이"_s; }),
      opOrient(u"opOrient", [](int i) { return i == 0 ? u"세로(&S)"_s : u"가로(&G)"_s; }),
      spnSpace(u"spnSpace"), m_services(services), m_state(state), m_request(std::move(request))
{
    setObjectName(u"frm미리보기"_s);
    setWindowTitle(u"미리보기"_s);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    vp->setObjectName(u"vp"_s);
    vp->setAccessibleName(u"인쇄될 쪽"_s);
    layOut();
    wirePaper();
    wireView();
    connect(cmd도움말, &QPushButton::clicked, this, [this] {
        ignoreFailure(m_services.help.showPage(u"Preview.htm"_s), "no help is installed");
    });
    setMinimumSize(toPixels(kLeastWidth), toPixels(kLeastHeight));
    resize(toPixels(kDesignWidth), toPixels(kDesignHeight));
}

void frm미리보기::Form_Load()
{
    printer.PageBorder = PageBorder::Bottom;
    printer.DocName = m_request.docName;
    m_state.PrintSource = m_request.source;
    m_state.PrintWhole = true;
    m_settings = readSettings(m_services.registry, previewTable());
    Op선택->setEnabled(m_request.hasSelection);
    UpdatePreview();
    Proc시동크기위치설정(m_services.registry, geometry::kPreview, *this);
    vp->setFocus();
}

void frm미리보기::ClearPreview()
{
    vp->setShowGuides(false);
    printer.StartDoc();
    printer.KillDoc();
}

void frm미리보기::UpdatePreview()
{
    m_relayTimer.stop();
    const bool before = std::exchange(m_isShowing, true);
    if (printer.NDevices() > 0)
        SetupPrinterNPaperLists();
    guarded(m_services, this, [this] { layOutDocument(); });
    showPartChoice();
    vp->setShowGuides(chkShowGuides->isChecked());
    printer.EndDoc();
    vp->documentChanged();
    m_isShowing = before;
    showZoom();
    showPages();
}

void frm미리보기::layOutDocument()
{
    bindHeaderAndFooter(printer, m_request);
    printer.StartDoc();
    m_request.layOut(printer, m_state.PrintWhole || !m_request.hasSelection);
}

void frm미리보기::showPartChoice()
{
    const bool hasParts = m_request.parts != PrintParts::None;
    Op전체->setEnabled(hasParts);
    Op선택->setEnabled(hasParts && m_request.hasSelection);
    for (QRadioButton* const part : {Op전체, Op선택})
        part->setAutoExclusive(hasParts);
    Op전체->setChecked(hasParts && m_state.PrintWhole);
    Op선택->setChecked(hasParts && !m_state.PrintWhole);
}

void frm미리보기::fillPapers()
{
    cb용지크기->Clear();
    for (const PaperRow& row : paperRows())
        if (printer.PaperSizes(row.code))
            cb용지크기->AddItem(row.name.toString(), row.code);
    if (printer.PaperSizes(kUserPaper))
        cb용지크기->AddItem(kUserPaperName.toString(), kUserPaper);
    const int last = cb용지크기->ListCount() - 1;
    if (m_takesStored && m_settings.PaperSize >= 0 && m_settings.PaperSize <= last)
        cb용지크기->setListIndex(m_settings.PaperSize);
    else if (const int index = cb용지크기->findItemData(printer.PaperSize()); index >= 0)
        cb용지크기->setListIndex(index);
    if (cb용지크기->ListIndex() < 0)
        return;
    printer.setPaperSize(cb용지크기->ItemData(cb용지크기->ListIndex()));
    if (m_takesStored && cb용지크기->ListIndex() == last)
        GetUserPaperSize();
    m_takesStored = false; // from here on the user's choice counts
}

void frm미리보기::SetupPrinterNPaperLists()
{
    if (cb프린터목록->ListCount() == 0)
        for (int i = 0; i < printer.NDevices(); ++i)
            cb프린터목록->AddItem(printer.Devices(i));
    if (cb프린터목록->Text() != printer.Device())
        cb프린터목록->setListIndex(cb프린터목록->findItem(printer.Device()));
    fillPapers();
    const int turn = static_cast<int>(printer.Orientation);
    opOrient(turn)->setChecked(true);
    imgOrient(turn)->show();
    imgOrient(1 - turn)->hide();
    cb경계선->setListIndex(static_cast<int>(printer.PageBorder));
    const std::array margins{printer.MarginTop, printer.MarginLeft, printer.MarginBottom,
                             printer.MarginRight};
    for (int side = 0; side < 4; ++side)
        spnSpace(side)->setValue(ToCentiMeter(margins[static_cast<std::size_t>(side)]).toDouble());
    for (QDoubleSpinBox* const spin : spnPaperSize)
        spin->setEnabled(printer.PaperSize() == kUserPaper);
    spnPaperSize(0)->setValue(ToCentiMeter(printer.PaperWidth()).toDouble());
    spnPaperSize(1)->setValue(ToCentiMeter(printer.PaperHeight()).toDouble());
}

void frm미리보기::GetUserPaperSize()
{
    if (m_settings.UserPaperWidth > 0)
        printer.setPaperWidth(m_settings.UserPaperWidth * kTwipsPerCm);
    if (m_settings.UserPaperHeight > 0)
        printer.setPaperHeight(m_settings.UserPaperHeight * kTwipsPerCm);
}

void frm미리보기::changeMargin(int side)
{
    QDoubleSpinBox& spin = *spnSpace(side);
    const double paper = spnPaperSize(isHeight(side) ? 1 : 0)->value();
    const double limit = std::round(paper / 3 * 10) / 10;
    if (spin.value() > limit) {
        m_services.messages.show(this, isHeight(side) ? messages::kMarginTooHigh
                                                      : messages::kMarginTooWide);
        const QSignalBlocker quiet(spin);
        spin.setValue(paper / 3);
    }
    const std::array margins{&printer.MarginTop, &printer.MarginLeft, &printer.MarginBottom,
                             &printer.MarginRight};
    double& margin = *margins[static_cast<std::size_t>(side)];
    if (ToCentiMeter(margin) != oneDecimal(spin.value()))
        margin = spin.value() * kTwipsPerCm;
    m_relayTimer.start();
}

void frm미리보기::showZoom()
{
    const bool before = std::exchange(m_isShowing, true);
    cbZoomMode->setListIndex(static_cast<int>(vp->ZoomMode()));
    cbPercent->setEnabled(vp->ZoomMode() == PreviewZoom::Percentage);
    cbPercent->setEditText(oneDecimal(vp->Zoom()) + u'%');
    m_isShowing = before;
}

void frm미리보기::showPages()
{
    const bool before = std::exchange(m_isShowing, true);
    const int count = printer.PageCount();
    const int inView = vp->PreviewPages();
    const int views = (count + inView - 1) / inView;
    const int first = vp->PreviewPage();
    sld쪽이동->setEnabled(views > 1);
    sld쪽이동->setMaximum(std::max(1, views));
    if (views > 1) {
        sld쪽이동->setValue(inView > 1 ? first / inView + 1 : first);
        const QString last = QString::number(std::min(first + inView - 1, count));
        lbl쪽표시->setText(QString::number(first) + (inView > 1 ? u" to "_s + last : QString()) +
                           u" of "_s + QString::number(count));
    } else {
        sld쪽이동->setValue(1);
        lbl쪽표시->setText(count > 1 ? u"1 to %1 of %1"_s.arg(count) : u"1 of 1"_s);
    }
    m_isShowing = before;
}

void frm미리보기::stepPage(int step)
{
    if (sld쪽이동->isEnabled())
        sld쪽이동->setValue(sld쪽이동->value() + step);
}

void frm미리보기::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Print)) {
        cmd인쇄_Click();
        return;
    }
    QDialog::keyPressEvent(event);
}

void frm미리보기::cmd인쇄_Click()
{
    const bool wholeBefore = m_state.PrintWhole;
    frm인쇄 dialog(printer, m_state, m_request, this);
    m_services.modal.run(dialog);
    if (!m_state.PrintAccepted)
        return;
    if (wholeBefore != m_state.PrintWhole || cb프린터목록->Text() != printer.Device())
        UpdatePreview();
    const PrintJob job = m_state.PrintFromPage > 0
                             ? printer.job(m_state.PrintFromPage, m_state.PrintToPage)
                             : printer.job();
    printJob(m_services, job, this);
}

void frm미리보기::done(int result)
{
    Form_Unload();
    QDialog::done(result);
}

void frm미리보기::Form_Unload()
{
    saveFormGeometry(m_services.registry, geometry::kPreview, *this);
    m_settings.PaperSize = cb용지크기->ListIndex();
    if (spnPaperSize(0)->isEnabled()) {
        m_settings.UserPaperWidth = spnPaperSize(0)->value();
        m_settings.UserPaperHeight = spnPaperSize(1)->value();
    }
    saveSettings(m_services.registry, previewTable(), m_settings);
    ignoreFailure(m_services.registry.flush(), "the place of the preview is no loss");
}

bool hasPrinter(Services& services, QWidget* parent)
{
    if (!services.printers.names().isEmpty())
        return true;
    services.messages.show(parent, messages::kNoPrinter);
    return false;
}

void openPreview(Services& services, PrintState& state, PrintRequest request, QWidget* parent)
{
    if (!hasPrinter(services, parent))
        return;
    frm미리보기 preview(services, state, std::move(request), parent);
    preview.Form_Load();
    services.modal.run(preview);
}

bool printJob(Services& services, PrintJob job, QWidget* parent)
{
    if (services.printers.isFile(job.device)) {
        const auto path =
            services.fileDialogs.save(parent, {u"PDF 파일로 저장"_s, u"PDF 파일 (*.pdf)|*.pdf"_s,
                                               u".pdf"_s, fileNameOf(job.title)});
        if (!path)
            return false;
        if (QFileInfo::exists(*path) &&
            services.messages.show(parent, messages::kPdfExists, {*path}) != Answer::Yes)
            return false;
        job.file = *path;
    }
    const Result<Done> printed = services.printers.print(job);
    if (printed)
        return true;
    const Failure& failure = printed.failure();
    services.messages.show(parent,
                           failure.kind == FailureKind::NotFound ? messages::kPrinterGone
                                                                 : messages::kNotPrinted,
                           {failure.detail});
    return false;
}

} // namespace lumen
