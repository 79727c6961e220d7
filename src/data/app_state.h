// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/version_font.h"

#include <QString>

#include <array>
#include <set>

namespace lumen {

/// What CheckData found at start. Nothing changes it afterwards: a new module takes a restart.
struct InstalledFlags
{
    std::set<int> versions;     ///< codes whose <nnn>.dts is there, user slots among them
    std::set<int> concordances; ///< codes whose <nnn>c.dts is there

    bool cRef = false;
    bool ekDic = false;
    bool bibleDic = false;
    bool mhcc = false;
    bool wesley = false;
    bool myc = false;
    bool z101 = false;

    /// The table names of the user slots, slot i at index i - 1; "" when absent.
    std::array<QString, kUserVersionCount> userTables;
    int versionCount = 0;
    QString firstVersion;

    bool hasVersion(int code) const { return versions.count(code) > 0; }
};

/// What a window hands over to the preview and its dialog.
struct PrintState
{
    QString PrintSource;    ///< which document is laid out; kept after the preview has closed
    bool PrintWhole = true; ///< else the selected part alone
    int PrintFromPage = 0;  ///< from 1; 0 stands for all pages
    int PrintToPage = 0;
    bool PrintAccepted = false; ///< the dialog was left by its print button
    int PrintCopies = 1;
};

/// What the windows share; made in `Main` and passed by reference.
struct AppState
{
    QString AppPath; ///< ends in a backslash only when it is a drive's root
    QString CdDrive; ///< such as "D:"
    InstalledFlags installed;
    /// False when the program folder took no file at the start, which the user has been told.
    bool canStore = true;
    FontSettings fonts = defaultFontSettings();
    /// True adds a blank line at the head of the text view.
    bool LanguageBarRunning = false;
    PrintState print;
};

} // namespace lumen
