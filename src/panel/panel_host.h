// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPoint>
#include <QString>

#include <functional>

namespace lumen {

class DataControl;
class Database;
class ReaderPlace;
struct AppState;
struct Services;

/// What the tabs ask of the window that holds the panel.
struct PanelHost
{
    Services& services;
    const AppState& state;
    ReaderPlace& reader;
    DataControl& dacRefTab; ///< shared by the tabs and pointed anew by each
    /// The open module of the base version, nullptr while there is none.
    std::function<Database*()> baseModule = {};
    /// The verses of a Strong's number are asked for.
    std::function<void(const QString& language, const QString& number)> openStrongList = {};
    /// The window is not the reader: what opens a verse there brings the reader to the front.
    bool isBesideReader = false;
    /// The menu was asked for on what can be copied, at a place of the screen.
    std::function<void(const QPoint& at)> popUpEditMenu = {};
};

} // namespace lumen
