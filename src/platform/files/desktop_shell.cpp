// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/desktop_shell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// A drive letter looks like a scheme of one letter.
bool isAddress(const QString& target)
{
    return target.contains(u"://"_s);
}

} // namespace

Result<Done> DesktopShell::open(const QString& target)
{
    QUrl url;
    if (isAddress(target)) {
        url = QUrl(target, QUrl::StrictMode);
        if (!url.isValid() || (url.scheme() != u"http" && url.scheme() != u"https"))
            return Failure{FailureKind::Invalid, target};
    } else {
        const QString native = m_paths.nativePath(target);
        if (native.isEmpty() || !QFileInfo::exists(native))
            return Failure{FailureKind::NotFound, target};
        url = QUrl::fromLocalFile(native);
    }
    if (!QDesktopServices::openUrl(url))
        return Failure{FailureKind::System, url.toString()};
    return Done{};
}

} // namespace lumen
