// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/results/result_pages.h"

#include "text/basic_text.h"

using namespace Qt::StringLiterals;

namespace lumen {

int ResultPages::count() const
{
    // A full last page opens one more, empty page: 100 rows make 3 pages.
    return m_recordCount > kRowsPerPage ? m_recordCount / kRowsPerPage + 1 : 1;
}

QStringList ResultPages::labels() const
{
    if (count() == 1)
        return {u"1 page"_s};
    QStringList result;
    for (int page = 0; page < count(); ++page)
        result << Str(firstRecord(page) + 1) + u" ~ "_s + Str(firstRecord(page + 1));
    return result;
}

} // namespace lumen
