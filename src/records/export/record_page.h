// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "records/record_values.h"

namespace lumen {

/// A sermon as a page for the web, from a fixed template: names of places in it are taken one after
/// the other by the texts, so that a text that holds a later name is itself replaced there. Nothing
/// of a text is escaped; lines end in CR LF. To be written in code page 949.
QString recordPage(const RecordBoxes& boxes);

/// The page as bytes; what the code page lacks stands as "&#1488;".
QByteArray pageBytes(const QString& page);

} // namespace lumen
