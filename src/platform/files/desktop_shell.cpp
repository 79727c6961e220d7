// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/desktop_shell.h"

#include <QDesktopServices>
#include <QFile>
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

QString writer()
{
    for (const QString& name : {u"soffice"_s, u"libreoffice"_s, u"lowriter"_s})
        if (const QString found = QStandardPaths::findExecutable(name); !found.isEmpty())
            return found;
    return {};
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

bool DesktopShell::hasWordProcessor() const
{
    return !writer().isEmpty() || hasProgramFor(u"application/rtf"_s);
}

Result<Done> DesktopShell::openInWordProcessor(const QByteArray& rtf)
{
    if (!m_handedOver)
        m_handedOver = std::make_unique<QTemporaryDir>();
    const QString path = m_handedOver->filePath(u"%1.rtf"_s.arg(++m_handed));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(rtf) != rtf.size() || !file.flush())
        return Failure{FailureKind::System, path};
    file.close();
    // "-n" takes the file as a template: the document has no name, and saving asks for one.
    const QString program = writer();
    const bool opened = program.isEmpty() ? QDesktopServices::openUrl(QUrl::fromLocalFile(path))
                                          : QProcess::startDetached(program, {u"-n"_s, path});
    if (!opened)
        return Failure{FailureKind::System, path};
    return Done{};
}

} // namespace lumen
