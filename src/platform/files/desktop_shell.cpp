// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/desktop_shell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// A drive letter looks like a scheme of one letter.
bool isAddress(const QString& target)
{
    return target.contains(u"://"_s);
}

/// The opener of the desktop reports success also where it finds nothing to show a page with, so
/// this is looked into first.
bool hasBrowser()
{
    constexpr int kMostWait = 800; // milliseconds
    if (qEnvironmentVariableIsSet("BROWSER"))
        return true;
    for (const QString& name : {u"x-www-browser"_s, u"firefox"_s, u"firefox-esr"_s, u"chromium"_s,
                                u"google-chrome"_s, u"epiphany"_s, u"konqueror"_s})
        if (!QStandardPaths::findExecutable(name).isEmpty())
            return true;
    QProcess query;
    query.start(u"xdg-mime"_s, {u"query"_s, u"default"_s, u"text/html"_s});
    return query.waitForFinished(kMostWait) && !query.readAllStandardOutput().trimmed().isEmpty();
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
    if (!hasBrowser() || !QDesktopServices::openUrl(url))
        return Failure{FailureKind::System, url.toString()};
    return Done{};
}

} // namespace lumen
