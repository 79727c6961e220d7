// SPDX-License-Identifier: GPL-2.0-or-later
// Tries the engine on many damaged copies of sample files, stores and genuine Jet files alike.
//
//   damage_trials <folder of samples> <count> <seed> [password ...]
//
// Each copy is opened and read by a child process with a time limit. Copies that crash a child or
// keep it busy for too long stay in the folder "damage-trials" of the current directory. Ends with
// 0 when there were none.
#include "data/user_files.h"
#include "jet/engine_fixture.h"
#include "jet/file_damage.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <array>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <sys/wait.h>
#include <unistd.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

// An import may take 15 s by itself before the engine gives it up.
constexpr int kLimitMs = 40000;
constexpr int kPollMs = 2;

enum class Ending { Opened, Refused, Crashed, Hung };

struct Trials
{
    QString samples;
    int count = 0;
    quint32 seed = 0;
    QStringList passwords;
};

/// Runs in the child: opens with each password until one fits, and reads everything.
Ending openAndRead(const QString& folder, const QString& file, const QStringList& passwords)
{
    const OneFolderPaths paths(folder);
    ImportOptions options = importOptions();
    options.cacheFolder = folder + u"/cache"_s;
    JetEngine engine(paths, filePolicy, options);
    for (const QString& password : passwords) {
        try {
            walkDatabase(engine, file, u";pwd="_s + password);
            return Ending::Opened;
        } catch (const JetError& error) {
            if (error.number() != ErrorNumber::kWrongPassword)
                return Ending::Refused;
        }
    }
    return Ending::Refused;
}

void pause()
{
    const timespec time{0, kPollMs * 1000000L};
    ::nanosleep(&time, nullptr);
}

Ending waitFor(pid_t child)
{
    QElapsedTimer timer;
    timer.start();
    int status = 0;
    while (::waitpid(child, &status, WNOHANG) == 0) {
        if (timer.elapsed() > kLimitMs) {
            ::kill(child, SIGKILL);
            ::waitpid(child, &status, 0);
            return Ending::Hung;
        }
        pause();
    }
    if (!WIFEXITED(status) || WEXITSTATUS(status) > static_cast<int>(Ending::Refused))
        return Ending::Crashed;
    return static_cast<Ending>(WEXITSTATUS(status));
}

Ending tryFile(const QString& folder, const QString& file, const QStringList& passwords)
{
    const pid_t child = ::fork();
    if (child < 0)
        qFatal("no child process");
    if (child == 0) {
        // What libraries say about damage is of no interest.
        std::freopen("/dev/null", "w", stderr);
        ::_exit(static_cast<int>(openAndRead(folder, file, passwords)));
    }
    return waitFor(child);
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void keep(const QByteArray& bytes, const QString& name)
{
    QDir().mkpath(u"damage-trials"_s);
    QFile file(u"damage-trials/"_s + name);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
    std::printf("kept %s\n", qPrintable(file.fileName()));
}

int run(const Trials& trials)
{
    const QDir samples(trials.samples);
    const QStringList names = samples.entryList({u"*.mdb"_s, u"*.dts"_s}, QDir::Files, QDir::Name);
    if (names.isEmpty()) {
        std::fprintf(stderr, "no *.mdb or *.dts in %s\n", qPrintable(trials.samples));
        return 2;
    }
    std::mt19937 random(trials.seed);
    std::array<int, 4> counts{};
    for (int i = 0; i < trials.count; ++i) {
        const QString& name = names[i % names.size()];
        const QByteArray bytes = damaged(contents(samples.filePath(name)), random);
        const QTemporaryDir folder;
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        file.close();
        const Ending ending = tryFile(folder.path(), name, trials.passwords);
        ++counts[static_cast<std::size_t>(ending)];
        if (ending == Ending::Crashed || ending == Ending::Hung)
            keep(bytes, u"%1-%2-%3"_s.arg(trials.seed).arg(i).arg(name));
    }
    std::printf("opened %d, refused %d, crashed %d, hung %d\n", counts[0], counts[1], counts[2],
                counts[3]);
    return counts[2] + counts[3] == 0 ? 0 : 1;
}

} // namespace
} // namespace lumen

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4) {
        std::fprintf(stderr, "damage_trials <folder of samples> <count> <seed> [password ...]\n");
        return 2;
    }
    return lumen::run({arguments[1], arguments[2].toInt(), arguments[3].toUInt(),
                       QStringList{QString()} + arguments.mid(4)});
}
