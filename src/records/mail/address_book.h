// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/data_control.h"

#include <QString>

#include <vector>

namespace lumen {

class JetEngine;
struct AppState;

struct AddressEntry
{
    int id = 0; ///< 0 for one that is not stored yet
    QString name;
    QString address;
    QString note;
};

/// The people whom sermons are sent to. Each call opens the file for itself, so that it is free in
/// between; errors are JetErrors, and what failed is undone.
class AddressBook
{
public:
    AddressBook(JetEngine& jet, const AppState& state);

    std::vector<AddressEntry> entries();
    /// Stores a new one, or one over its former self; one that is gone meanwhile is stored anew.
    void save(const AddressEntry& entry);
    void remove(int id);

private:
    std::unique_ptr<Recordset> rows(const QString& condition);

    DataControl m_data;
};

} // namespace lumen
