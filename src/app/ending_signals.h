// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <memory>

class QWidget;

namespace lumen {

/// Closes the main window as its user would: the dialogs that are open over it are dismissed first,
/// the last opened one before those below it. The closing itself may come after the return.
void closeWithDialogs(QWidget& mainWindow);

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
