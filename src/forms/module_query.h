// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

namespace lumen {

class DataControl;
class Recordset;
struct AppState;
struct Services;

/// Points a data control at a module, read-only, and runs a query: `module` is relative to the
/// program, "\Data\CRef.dts". The rows stand on the first one and hold until the control is asked
/// again. Throws a JetError, also when the module is nowhere.
Recordset& askModule(DataControl& control, const Services& services, const AppState& state,
                     QStringView module, const QString& query);

} // namespace lumen
