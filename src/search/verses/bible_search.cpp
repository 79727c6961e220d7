// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/verses/bible_search.h"

#include "data/data_store.h"

using namespace Qt::StringLiterals;

namespace lumen {

void BibleSearch::setModule(const QString& databaseName)
{
    dacSearch.DatabaseName = databaseName;
    dacSearch.Connect = QString::fromUtf16(connect_text::kDataControl);
}

void BibleSearch::query(const QString& sql)
{
    dacSearch.RecordSource = sql;
    dacSearch.Refresh();
    makeCountExact();
}

void BibleSearch::narrow(const QString& criterion)
{
    Recordset* wide = dacSearch.Recordset();
    Q_ASSERT(wide != nullptr);
    wide->setFilter(criterion);
    dacSearch.setRecordset(wide->OpenRecordset()->Clone());
    makeCountExact();
}

void BibleSearch::makeCountExact()
{
    Recordset* result = dacSearch.Recordset();
    if (result->RecordCount() < 1)
        return;
    result->MoveLast();
    result->MoveFirst();
}

void BibleSearch::empty(const QString& table)
{
    query(u"select * from ["_s + table + u"] where index = '0'"_s);
}

void BibleSearch::close()
{
    dacSearch.setRecordset(nullptr);
    dacSearch.Close();
}

std::optional<int> BibleSearch::openCount() const
{
    const Recordset* result = dacSearch.Recordset();
    if (result == nullptr)
        return std::nullopt;
    return result->RecordCount();
}

} // namespace lumen
