// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

/// The windows that others may ask for.
enum class WindowId { Search, Extract, Preferences, UserVersionPreferences, About };

/// Opens, raises or runs a window, so that windows need not know each other.
class WindowOpener
{
public:
    virtual ~WindowOpener() = default;
    virtual void open(WindowId window) = 0;
};

} // namespace lumen
