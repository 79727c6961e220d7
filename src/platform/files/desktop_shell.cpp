// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/desktop_shell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QMimeDatabase>
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

bool hasProgramFor(const QString& mimeType)
{
    constexpr int kMostWait = 800; // milliseconds
    QProcess query;
    query.start(u"xdg-mime"_s, {u"query"_s, u"default"_s, mimeType});
    return query.waitForFinished(kMostWait) && !query.readAllStandardOutput().trimmed().isEmpty();
}

bool hasBrowser()
{
    if (qEnvironmentVariableIsSet("BROWSER"))
        return true;
    for (const QString& name : {u"x-www-browser"_s, u"firefox"_s, u"firefox-esr"_s, u"chromium"_s,
                                u"google-chrome"_s, u"epiphany"_s, u"konqueror"_s})
        if (!QStandardPaths::findExecutable(name).isEmpty())
            return true;
    return hasProgramFor(u"text/html"_s);
}

/// The opener of the desktop reports success also where it finds nothing to show a file with, so
/// this is looked into first.
bool canShow(const QUrl& url)
{
    if (!url.isLocalFile())
        return hasBrowser();
    const QMimeType type = QMimeDatabase().mimeTypeForFile(url.toLocalFile());
    const bool isPage = type.inherits(u"text/html"_s) || type.inherits(u"application/xhtml+xml"_s);
    return isPage ? hasBrowser() : hasProgramFor(type.name());
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
    if (!canShow(url) || !QDesktopServices::openUrl(url))
        return Failure{FailureKind::System, url.toString()};
    return Done{};
}

} // namespace lumen
