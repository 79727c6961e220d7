// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/window_opener.h"
#include "platform/controls/text/typing_watch.h"

#include <QCoreApplication>
#include <QPointer>

#include <memory>

namespace lumen {

class frm성서;
class frm성서검색;
class frm스트롱관주목록;
class RecordWindow;
class frm예화사전;
class frm전자우편주소록;
class frm설교문발송;
class frm성서지도;
struct AppState;
struct Services;

/// Opens the windows of the program. Tool windows are made at their first use and live until the
/// reader ends; dialogs run modally.
class Windows : public WindowOpener
{
public:
    Windows(Services& services, AppState& state);
    ~Windows() override;

    /// The reader that the windows call back into, and that takes them down with it; set once,
    /// before anything is opened.
    void setReader(frm성서& reader);
    void open(WindowId window) override;
    void search(int version, const QString& words) override;
    void openStrongList(const QString& language, const QString& number) override;
    void openVerseInsertion(QWidget* parent,
                            const std::function<void(const QString&)>& insert) override;
    void openHomePage() override;
    void endAtOnce() override;
    /// Closes the tool windows; false when one refuses.
    bool closeAll();

private:
    /// Makes a tool window at its first use, fills it afresh when it is closed, brings it to the
    /// front.
    template <typename Window, typename... Arguments>
    void raise(std::unique_ptr<Window>& window, Arguments&&... arguments);
    /// Makes a dialog, fills it where it has something to fill, and waits for its end.
    template <typename Dialog, typename... Arguments>
    void runModally(Arguments&&... arguments);

    Services& m_services;
    AppState& m_state;
    TypingWatch m_typing{*QCoreApplication::instance()}; ///< for the boxes of all windows
    frm성서* m_reader = nullptr;
    std::unique_ptr<frm성서검색> m_search;
    std::unique_ptr<frm스트롱관주목록> m_strongList;
    std::unique_ptr<RecordWindow> m_sermons;
    std::unique_ptr<RecordWindow> m_quietTime;
    std::unique_ptr<frm예화사전> m_illustrations;
    std::unique_ptr<frm전자우편주소록> m_addresses;
    std::unique_ptr<frm설교문발송> m_sending;
    std::unique_ptr<frm성서지도> m_map;
};

} // namespace lumen
