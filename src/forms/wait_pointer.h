// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

/// Shows the hourglass for as long as it lives, also when an exception ends the work. They nest.
class WaitPointer
{
public:
    WaitPointer();
    ~WaitPointer();
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;
};

} // namespace lumen
