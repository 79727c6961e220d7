// SPDX-License-Identifier: GPL-2.0-or-later
#include "print/header_footer.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr double kHeaderPoints = 14;

/// A text of the user's in a place where "|" parts the columns.
QString plain(QString text)
{
    return text.replace(u'|', u'/').simplified();
}

} // namespace

void bindHeaderAndFooter(VSPrinter& vp, const PrintRequest& request)
{
    vp.Header = QString();
    vp.Footer = kFooterPlaceholder.toString();
    vp.onBeforeHeader = [&vp, title = plain(request.headTitle)] {
        if (title.isEmpty())
            return;
        vp.HdrFontSize = kHeaderPoints;
        vp.HdrFontBold = true;
        vp.Header = u'|' + title;
    };
    vp.onBeforeFooter = [&vp, left = plain(request.footerLeft)] {
        vp.Footer = left + u"||Page "_s + QString::number(vp.CurrentPage());
    };
}

} // namespace lumen
