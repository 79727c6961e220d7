// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/guarded.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/dialogs/modal.h"
#include "print/header_footer.h"
#include "print/preview_window.h"
#include "records/record_print.h"
#include "records/record_window.h"

#include <QProgressDialog>

using namespace Qt::StringLiterals;

namespace lumen {

void RecordWindow::printRecord()
{
    PrintRequest request = recordRequest(m_profile, *this);
    request.hasSelection = m_current->SelLength() > 0;
    request.layOut = [this, whole = request.layOut](VSPrinter& vp, bool isWhole) {
        if (isWhole)
            whole(vp, true);
        else
            vp.addRtf(m_current->SelRTF());
    };
    openPreview(m_services, m_state.print, std::move(request), this);
}

void RecordWindow::printAllRecords()
{
    if (!hasPrinter(m_services, this))
        return;
    if (m_services.messages.show(this, m_profile.messages.confirmPrintAll) != Answer::Ok)
        return;
    m_state.print.PrintSource = m_profile.printSource.toString();
    m_state.print.PrintWhole = true;
    guarded(m_services, this, [this] {
        if (!Proc저장확인(m_manager.save()))
            return;
        const int before = m_manager.position();
        printEach(m_manager.count());
        m_manager.setPosition(before);
        Proc필드표시();
    });
}

void RecordWindow::printEach(int count)
{
    VSPrinter vp(m_services.printers);
    vp.PageBorder = PageBorder::Bottom;
    PrintJob all{vp.Device(), m_profile.caption.toString(), {}, 1, vp.PrintQuality, {}};
    QProgressDialog progress(u"전체 자료 인쇄 중..."_s, u"그만두기"_s, 0, count, this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0);
    for (int position = 0; position < count && !progress.wasCanceled(); ++position) {
        progress.setValue(position);
        m_services.modal.letEventsRun();
        m_manager.setPosition(position);
        Proc필드표시();
        const PrintRequest request = recordRequest(m_profile, *this);
        bindHeaderAndFooter(vp, request);
        vp.DocName = request.docName;
        vp.StartDoc();
        request.layOut(vp, true);
        vp.EndDoc();
        // A file takes all records one behind the other; a printer each as a document of its own.
        PrintJob job = vp.job();
        if (vp.printsFile())
            std::move(job.pages.begin(), job.pages.end(), std::back_inserter(all.pages));
        else if (!printJob(m_services, std::move(job), this))
            return;
    }
    const bool stopped = progress.wasCanceled();
    progress.reset();
    if (vp.printsFile() && !stopped)
        printJob(m_services, std::move(all), this);
}

} // namespace lumen
