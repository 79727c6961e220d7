// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/temporary_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr mode_t kNewFileMode = 0666; // less what the user's umask takes away

bool runs(const QString& processId)
{
    bool fits = false;
    const int id = processId.toInt(&fits);
    // 0 and what is no id at all would ask for whole groups of processes.
    return !fits || id <= 0 || ::kill(id, 0) == 0 || errno != ESRCH;
}

} // namespace

int createTemporary(const QString& target, int flags, QString& path)
{
    const QFileInfo info(target);
    for (int number = 0;; ++number) {
        path = u"%1/.%2.new-%3-%4"_s.arg(info.absolutePath(), info.fileName())
                   .arg(::getpid())
                   .arg(number);
        const int descriptor = ::open(QFile::encodeName(path).constData(),
                                      flags | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode);
        if (descriptor >= 0 || errno != EEXIST)
            return descriptor;
    }
}

void removeLeftovers(const QString& folder, const std::function<bool(const QString& name)>& isOwn)
{
    static const QRegularExpression form(uR"(\A\.(.+)\.new-(\d+)-\d+(-journal)?\z)"_s);
    const QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString& name : names) {
        const auto match = form.match(name);
        if (match.hasMatch() && isOwn(match.captured(1)) && !runs(match.captured(2)))
            QFile::remove(folder + u'/' + name);
    }
}

} // namespace lumen
