// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mail/curl_mail_sender.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>

#include <atomic>
#include <utility>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// How long the end of the program waits for a thread that hears a server out, milliseconds.
constexpr int kLastWait = 500;

/// Lets the sender's thread do something, unless all is over by then.
template <typename Told, typename What>
void tell(const std::shared_ptr<Told>& told, What what)
{
    if (told->isOver)
        return;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [told, what = std::move(what)] {
            if (!told->isOver)
                what(*told);
        },
        Qt::QueuedConnection);
}

} // namespace

/// What is told of a letter; what waits in the event loop may outlive the run.
struct CurlMailSender::Told
{
    MailEvents events;                ///< called in the sender's thread
    std::atomic<bool> isOver = false; ///< reported, or cancelled: nothing is told any more
};

/// One letter in its thread. Made and deleted by the sender; `transfer` is the thread's own.
struct CurlMailSender::Run
{
    QThread thread;
    QObject worker; ///< lives in the thread
    QPointer<MailTransfer> transfer;
    std::shared_ptr<Told> told = std::make_shared<Told>();
};

CurlMailSender::CurlMailSender(MailHabits habits) : m_habits(std::move(habits)) {}

CurlMailSender::~CurlMailSender()
{
    cancel();
    for (std::unique_ptr<Run>& run : m_runs)
        if (!run->thread.wait(kLastWait))
            run.release(); // NOLINT: a thread that runs can't be deleted; it goes with the process
}

void CurlMailSender::forgetEnded()
{
    std::erase_if(m_runs, [](const std::unique_ptr<Run>& run) {
        return run->told->isOver && run->thread.isFinished();
    });
}

Result<Done> CurlMailSender::send(const MailMessage& message, const MailServer& server,
                                  MailEvents events)
{
    forgetEnded();
    if (!m_runs.empty() && !m_runs.back()->told->isOver)
        return Failure{FailureKind::InUse, u"메일을 전송하는 중입니다."_s};
    auto mail = composeMail(message);
    if (!mail)
        return mail.failure();
    MailTask task{message.recipients, std::move(mail.value()), server};
    Run* const run = m_runs.emplace_back(std::make_unique<Run>()).get();
    run->told->events = std::move(events);
    MailEvents inside;
    if (run->told->events.progress)
        inside.progress = [told = run->told](int percent) {
            tell(told, [percent](Told& to) { to.events.progress(percent); });
        };
    inside.finished = [run, told = run->told](const MailReport& report) {
        tell(told, [report](Told& to) {
            to.isOver = true;
            to.events.finished(report);
        });
        run->thread.quit();
    };
    run->worker.moveToThread(&run->thread);
    run->thread.start();
    QMetaObject::invokeMethod(
        &run->worker,
        [run, task = std::move(task), habits = m_habits, inside = std::move(inside)] {
            run->transfer = new MailTransfer(task, habits, inside);
        },
        Qt::QueuedConnection);
    return Done{};
}

void CurlMailSender::cancel()
{
    if (m_runs.empty() || m_runs.back()->told->isOver.exchange(true))
        return;
    Run* const run = m_runs.back().get();
    QMetaObject::invokeMethod(
        &run->worker,
        [run] {
            if (run->transfer)
                run->transfer->stop();
            run->thread.quit();
        },
        Qt::QueuedConnection);
}

} // namespace lumen
