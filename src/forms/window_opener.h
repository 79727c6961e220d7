// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace lumen {

/// The windows that others may ask for.
enum class WindowId {
    Reader,
    Search,
    Extract,
    Preferences,
    UserVersionPreferences,
    About,
    Sermons,
    QuietTime,
    Illustrations,
    AddressBook,
    SendSermon,
    MailSettings,
    Map
};

/// Opens, raises or runs a window, so that windows need not know each other.
class WindowOpener
{
public:
    virtual ~WindowOpener() = default;
    virtual void open(WindowId window) = 0;
    /// Brings the search window up and searches words in the version of this code.
    virtual void search(int version, const QString& words) = 0;
    /// Lists the verses in which a Strong's number occurs; the language is "히브리어" or "헬라어".
    virtual void openStrongList(const QString& language, const QString& number) = 0;
    /// Lets the user take verses for a text: onto the clipboard, or through `insert` to its caret.
    virtual void openVerseInsertion(QWidget* parent,
                                    const std::function<void(const QString&)>& insert) = 0;
    virtual void openHomePage() = 0;
    /// Ends the program without closing its windows. What is being written in the notebooks is kept
    /// as a draft.
    virtual void endAtOnce() = 0;
};

/// Brings a window to the front, be it hidden, covered or minimised; a maximised one stays so.
void raiseWindow(QWidget& window);

} // namespace lumen
