// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/ending_signals.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace lumen {

namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};

// A signal handler reaches nothing but statics, and may do little more than write to a pipe.
volatile std::sig_atomic_t writeEnd = -1;

void noteSignal(int)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, &byte, 1);
}

} // namespace

void closeWithDialogs(QWidget& mainWindow)
{
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->close()) {
        mainWindow.close();
        return;
    }
    // Each dialog runs an event loop of its own, which has to end before that of the one below.
    QTimer::singleShot(0, &mainWindow, [&mainWindow] { closeWithDialogs(mainWindow); });
}

EndingSignals::EndingSignals(std::function<void()> end) : m_end(std::move(end))
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return; // the signals then end the process at once, as they do by themselves
    m_readEnd = ends[0];
    writeEnd = ends[1];
    m_notifier = std::make_unique<QSocketNotifier>(m_readEnd, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] {
        char byte = 0;
        [[maybe_unused]] const ssize_t taken = ::read(m_readEnd, &byte, 1);
        m_end();
    });
    for (const int signal : kSignals)
        std::signal(signal, noteSignal);
}

EndingSignals::~EndingSignals()
{
    if (m_readEnd < 0)
        return;
    for (const int signal : kSignals)
        std::signal(signal, SIG_DFL);
    m_notifier.reset();
    ::close(m_readEnd);
    ::close(writeEnd);
}

} // namespace lumen
