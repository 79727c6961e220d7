// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/dialogs/clipboard.h"
#include "text/basic_text.h"

#include <QString>

#include <vector>

namespace lumen {

/// One verse of one version, as it was selected. It makes a line of the copy.
struct CopiedVerse
{
    int code = 0;  ///< of the version
    QString label; ///< stands before the text: verse number or reference; "" for none
    QString text;  ///< unscrambled; Hebrew and Greek in the codes of their fonts, as stored
    QString font;
    int halfPoints = 0;
    RgbLong color = 0;
};

/// How plain text and RTF hold Hebrew and Greek: in the codes of the program's fonts, which look
/// right in those fonts alone, or as Unicode in reading order. HTML always has Unicode.
enum class OriginalText { FontCodes, Unicode };

/// The verses as one copy puts them on the clipboard; `ending` stands behind the last of them.
ClipboardContent composeVerseCopy(const std::vector<CopiedVerse>& verses, const QString& ending,
                                  OriginalText originals);

} // namespace lumen
