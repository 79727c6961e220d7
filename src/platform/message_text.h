// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

/// A message word for word. Flags: low four bits for the buttons (0 확인; 1 확인, 취소;
/// 3 예, 아니요, 취소; 4 예, 아니요) plus the icon (16 critical, 32 question, 48 warning,
/// 64 information). The advice, where there is one, stands below the text: what to do next.
struct MessageText
{
    const char16_t* title;
    const char16_t* text;
    int flags;
    const char16_t* advice = nullptr;
};

} // namespace lumen
