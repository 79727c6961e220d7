// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "print/print_request.h"
#include "print/record_layout.h"
#include "records/record_profile.h"
#include "records/record_values.h"

namespace lumen {

class RecordSearch;

/// The record in the boxes, for paper.
RecordSheet recordSheet(const RecordProfile& profile, const RecordBoxes& boxes);
/// What stands around it; the document itself is the caller's.
PrintRequest recordRequest(const RecordProfile& profile, const RecordBoxes& boxes);
/// Rows `first` up to `behind` of a result.
RecordListSheet recordListSheet(const RecordProfile& profile, RecordSearch& search, int first,
                                int behind);

} // namespace lumen
