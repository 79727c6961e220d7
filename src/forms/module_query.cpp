// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/module_query.h"

#include "data/data_store.h"
#include "data/module_path.h"
#include "forms/services.h"
#include "jet/data_control.h"

namespace lumen {

Recordset& askModule(DataControl& control, const Services& services, const AppState& state,
                     QStringView module, const QString& query)
{
    control.DatabaseName = modulePath(services.files, state, module);
    control.Connect = QString::fromUtf16(connect_text::kDataControl);
    control.ReadOnly = true;
    control.RecordSource = query;
    control.Refresh();
    return *control.Recordset();
}

} // namespace lumen
