// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/temporary_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cerrno>
#include <csignal>
#include <cstdio>
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

/// The new name has to outlive a power cut too. A folder that can't be synced (some network file
/// systems) has the file all the same.
void syncFolder(const QString& folder)
{
    const int descriptor =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

} // namespace

TemporaryFile::TemporaryFile(const QString& target) : m_target(target)
{
    const QFileInfo info(target);
    for (int number = 0; m_descriptor < 0 && m_error == 0; ++number) {
        m_path = u"%1/.%2.new-%3-%4"_s.arg(info.absolutePath(), info.fileName())
                     .arg(::getpid())
                     .arg(number);
        m_descriptor = ::open(QFile::encodeName(m_path).constData(),
                              O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode);
        if (m_descriptor < 0 && errno != EEXIST)
            fail();
    }
    m_made = m_descriptor >= 0;
}

TemporaryFile::~TemporaryFile()
{
    closeFile();
    if (!m_made)
        return;
    QFile::remove(m_path);
    QFile::remove(m_path + u"-journal"_s);
}

void TemporaryFile::fail()
{
    if (m_error == 0)
        m_error = errno == 0 ? EIO : errno;
}

void TemporaryFile::closeFile()
{
    if (m_descriptor >= 0 && ::close(m_descriptor) != 0)
        fail();
    m_descriptor = -1;
}

bool TemporaryFile::takeName()
{
    if (m_error == 0 && ::fsync(m_descriptor) != 0)
        fail();
    closeFile();
    if (m_error == 0 && std::rename(QFile::encodeName(m_path).constData(),
                                    QFile::encodeName(m_target).constData()) != 0)
        fail();
    if (m_error != 0)
        return false;
    m_made = false;
    syncFolder(QFileInfo(m_target).absolutePath());
    return true;
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
