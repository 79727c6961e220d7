// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace lumen {

/// Ends the program as its user would when the session or the system asks for it (SIGTERM, SIGHUP,
/// SIGINT), so that notes and settings are saved. One object a process.
class EndingSignals
{
public:
    explicit EndingSignals(std::function<void()> end);
    ~EndingSignals();
    EndingSignals(const EndingSignals&) = delete;
    EndingSignals& operator=(const EndingSignals&) = delete;

private:
    std::function<void()> m_end;
    std::unique_ptr<QSocketNotifier> m_notifier;
    int m_readEnd = -1;
};

} // namespace lumen
