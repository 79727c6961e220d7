// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/mail/address_book.h"

#include "data/app_state.h"
#include "data/module_path.h"
#include "jet/engine.h"
#include "jet/transaction.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// Closes the file whatever happens.
struct Opened
{
    explicit Opened(DataControl& control) : data(control) { data.Refresh(); }
    ~Opened() { data.Close(); }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;

    DataControl& data;
};

QString ofEntry(int id)
{
    return u" where ID = %1"_s.arg(id);
}

} // namespace

AddressBook::AddressBook(JetEngine& jet, const AppState& state) : m_data(jet)
{
    m_data.DatabaseName = joinedPath(state.AppPath, u"\\data\\전자우편주소록.mdb");
    m_data.RecordSource = u"select * from 전자우편주소록"_s;
}

std::unique_ptr<Recordset> AddressBook::rows(const QString& condition)
{
    return m_data.Database()->OpenRecordset(m_data.RecordSource + condition);
}

std::vector<AddressEntry> AddressBook::entries()
{
    const Opened file(m_data);
    std::vector<AddressEntry> list;
    for (Recordset& row = *m_data.Recordset(); !row.Eof(); row.MoveNext())
        list.push_back({Number(row.Fields(u"ID")), Text(row.Fields(u"성명")),
                        Text(row.Fields(u"전자우편")), Text(row.Fields(u"메모"))});
    return list;
}

void AddressBook::save(const AddressEntry& entry)
{
    const Opened file(m_data);
    Transaction step(*m_data.Database());
    const auto row = rows(ofEntry(entry.id));
    if (row->RecordCount() > 0)
        row->Edit();
    else
        row->AddNew();
    row->Fields(u"성명").setValue(entry.name);
    row->Fields(u"전자우편").setValue(entry.address);
    row->Fields(u"메모").setValue(entry.note);
    row->Update();
    step.commit();
}

void AddressBook::remove(int id)
{
    const Opened file(m_data);
    Transaction step(*m_data.Database());
    const auto row = rows(ofEntry(id));
    if (row->RecordCount() > 0)
        row->Delete();
    step.commit();
}

} // namespace lumen
