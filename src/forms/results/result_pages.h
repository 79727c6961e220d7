// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

namespace lumen {

/// Splits a result into pages for the page combos of the search windows.
/// Plain numbers in, plain text out; page and record numbers are zero-based.
class ResultPages
{
public:
    static constexpr int kRowsPerPage = 50;

    explicit ResultPages(int recordCount) : m_recordCount(recordCount) {}

    /// At least 1, also for an empty result.
    int count() const;
    int firstRecord(int page) const { return kRowsPerPage * page; }
    /// " 1 ~  50", " 51 ~  100" and so on; a single page reads "1 page".
    QStringList labels() const;
    /// The page buttons wrap round at both ends.
    int next(int page) const { return page + 1 < count() ? page + 1 : 0; }
    int previous(int page) const { return page > 0 ? page - 1 : count() - 1; }

private:
    int m_recordCount;
};

} // namespace lumen
