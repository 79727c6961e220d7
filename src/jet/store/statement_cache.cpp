// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/store/statement_cache.h"

#include <algorithm>

namespace lumen {

namespace {

constexpr std::size_t kMostEntries = 32;

} // namespace

StatementCache::Loan::Loan(StatementCache& cache, QByteArray sql,
                           std::unique_ptr<SqliteStatement> statement)
    : m_cache(cache), m_sql(std::move(sql)), m_statement(std::move(statement))
{
}

StatementCache::Loan::~Loan()
{
    m_statement->reset();
    m_statement->clearBindings();
    m_cache.m_entries.push_front({std::move(m_sql), std::move(m_statement)});
    if (m_cache.m_entries.size() > kMostEntries)
        m_cache.m_entries.pop_back();
}

StatementCache::Loan StatementCache::take(const QByteArray& sql)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&sql](const Entry& entry) { return entry.sql == sql; });
    if (found == m_entries.end())
        return {*this, sql, std::make_unique<SqliteStatement>(m_handle, sql)};
    auto statement = std::move(found->statement);
    m_entries.erase(found);
    return {*this, sql, std::move(statement)};
}

} // namespace lumen
