// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/files/process_list.h"

namespace lumen {

/// The processes of this machine as /proc names them, at most 15 characters each; none where there
/// is no /proc.
class ProcProcessList : public ProcessList
{
public:
    QStringList names() const override;
};

} // namespace lumen
