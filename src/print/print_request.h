// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/printing/vs_printer.h"

#include <QString>
#include <QStringView>

#include <functional>

namespace lumen {

/// The documents that can be printed, by the names that the windows hand over.
namespace print_source {
inline constexpr QStringView kSermon = u"설교 매니저";
inline constexpr QStringView kSermonSample = u"설교 매니저 HTML";
inline constexpr QStringView kQuietTime = u"QT 매니저";
inline constexpr QStringView kSermonSearch = u"설교검색";
inline constexpr QStringView kQuietTimeSearch = u"QT검색";
inline constexpr QStringView kBible = u"성서";
inline constexpr QStringView kBibleSearch = u"성서검색";
inline constexpr QStringView kMap = u"성서지도";
} // namespace print_source

/// What may be printed of a document. Records print their selected part once; asked again, they
/// are whole.
enum class PrintParts { WholeOnly, WholeOrSelected, None };

/// One document of a window, as the preview asks for it.
struct PrintRequest
{
    QString source;     ///< one of print_source
    QString headTitle;  ///< stands in the middle above each page; "" for none
    QString footerLeft; ///< stands at the left below each page
    QString docName;    ///< in the printer's queue, and as the name of a file
    PrintParts parts = PrintParts::WholeOrSelected;
    bool hasSelection = false;
    /// Lays the document out between StartDoc and EndDoc; a JetError ends the preview's filling.
    std::function<void(VSPrinter& vp, bool whole)> layOut;
};

} // namespace lumen
