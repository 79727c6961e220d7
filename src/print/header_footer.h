// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "print/print_request.h"

namespace lumen {

/// Stands in the foot of a document that nobody has asked for.
inline constexpr QStringView kFooterPlaceholder = u"임시설정";

/// Head and foot of each page as the page's events write them: the title in the middle, at the foot
/// what the document says at the left and the page's number at the right.
void bindHeaderAndFooter(VSPrinter& vp, const PrintRequest& request);

} // namespace lumen
