// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/sword/sword_process.h"

#include "platform/confined_process.h"
#include "sources/exit_codes.h"
#include "sources/interruption.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <csignal>
#include <cstdio>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 kBegin = 0x4C535752;
constexpr quint32 kEnd = 0x57524F44;
constexpr auto kStreamVersion = QDataStream::Qt_6_4;
constexpr int kLookMs = 50; // how soon an interruption is noticed
constexpr qint64 kMostOutput = 128LL * 1024 * 1024;
constexpr qint64 kMegabyte = 1024 * 1024;
// A Bible of 3 MB takes two to three seconds; a busy machine may need many times that by the clock.
constexpr qint64 kCpuSeconds = 15;
constexpr qint64 kCpuSecondsPerMegabyte = 10;
constexpr qint64 kWallFactor = 8;

qint64 cpuSecondsFor(const SwordModule& module)
{
    qint64 bytes = 0;
    for (const QString& file : swordFiles(module))
        bytes += QFileInfo(file).size();
    return kCpuSeconds + kCpuSecondsPerMegabyte * (bytes / kMegabyte);
}

QString readerProgram()
{
    const QString self = QCoreApplication::applicationFilePath();
    if (QFileInfo(self).fileName() == u"lumen-modules"_s)
        return self;
    return QCoreApplication::applicationDirPath() + u"/lumen-modules"_s;
}

QDataStream& operator<<(QDataStream& stream, const std::optional<QString>& text)
{
    return stream << text.has_value() << text.value_or(QString());
}

QDataStream& operator>>(QDataStream& stream, std::optional<QString>& text)
{
    bool there = false;
    QString value;
    stream >> there >> value;
    text = there ? std::optional(value) : std::nullopt;
    return stream;
}

QByteArray packed(const VersionResult& result)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(kStreamVersion);
    stream << kBegin << result.ok();
    if (!result) {
        stream << static_cast<qint32>(result.failure().kind) << result.failure().detail << kEnd;
        return bytes;
    }
    const VersionText& version = result.value();
    stream << static_cast<quint32>(version.verses.size());
    for (const VerseText& verse : version.verses)
        stream << verse.book << verse.chapter << verse.verse << verse.text << verse.part
               << verse.miniTitle;
    stream << version.remarks << version.losses << kEnd;
    return bytes;
}

// Nothing unless the answer is whole.
std::optional<VersionResult> unpacked(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(kStreamVersion);
    quint32 begin = 0;
    quint32 end = 0;
    bool ok = false;
    stream >> begin >> ok;
    Failure failure;
    VersionText version;
    if (!ok) {
        qint32 kind = 0;
        stream >> kind >> failure.detail >> end;
        failure.kind = static_cast<FailureKind>(kind);
    } else {
        quint32 count = 0;
        stream >> count;
        for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
            VerseText verse;
            stream >> verse.book >> verse.chapter >> verse.verse >> verse.text >> verse.part >>
                verse.miniTitle;
            version.verses.push_back(std::move(verse));
        }
        stream >> version.remarks >> version.losses >> end;
    }
    if (stream.status() != QDataStream::Ok || begin != kBegin || end != kEnd)
        return std::nullopt;
    return ok ? VersionResult(std::move(version)) : VersionResult(std::move(failure));
}

enum class Ending { Done, Interrupted, OverLimit, NotStarted };

Ending collect(QProcess& child, qint64 wallSeconds, QByteArray& output)
{
    QElapsedTimer timer;
    timer.start();
    if (!child.waitForStarted())
        return Ending::NotStarted;
    while (child.state() != QProcess::NotRunning) {
        child.waitForFinished(kLookMs);
        output += child.readAllStandardOutput();
        const bool over = output.size() > kMostOutput || timer.hasExpired(wallSeconds * 1000);
        if (!over && !interrupted())
            continue;
        child.kill();
        child.waitForFinished();
        return over ? Ending::OverLimit : Ending::Interrupted;
    }
    output += child.readAllStandardOutput();
    return interrupted() ? Ending::Interrupted : Ending::Done;
}

} // namespace

VersionResult readSwordApart(const SwordModule& module)
{
    const QString confFile = swordConfFile(module);
    if (confFile.isEmpty())
        return missingSource(module.root + u"/mods.d: "_s + module.name);
    const qint64 cpuSeconds = cpuSecondsFor(module);
    QProcess child;
    confine(child, {cpuSeconds, ProcessLimits::Files::WritesNone});
    child.start(readerProgram(), {kReadSwordCommand.toString(), module.root, module.name});
    QByteArray output;
    switch (collect(child, kWallFactor * cpuSeconds, output)) {
    case Ending::Interrupted:
        return Failure{FailureKind::Cancelled, confFile};
    case Ending::NotStarted:
        return Failure{FailureKind::System,
                       u"모듈을 읽을 프로그램을 시작할 수 없습니다: %1"_s.arg(child.program())};
    case Ending::OverLimit:
        return sourceFailure(confFile, 0, u"모듈이 손상되어 읽기가 끝나지 않습니다."_s);
    case Ending::Done:
        break;
    }
    auto answer = unpacked(output);
    if (!answer || child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0)
        return sourceFailure(confFile, 0, u"모듈이 손상되어 읽을 수 없습니다."_s);
    return *answer;
}

int runReadSword(const QStringList& args)
{
    // Whoever waits for the answer ends this process when it is no longer wanted.
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    if (args.size() != 2)
        return kExitUsage;
    const QByteArray bytes = packed(readSwordModule({args[0], args[1]}));
    const bool written = std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()),
                                     stdout) == static_cast<std::size_t>(bytes.size());
    return written && std::fflush(stdout) == 0 ? kExitDone : kExitFailed;
}

} // namespace lumen
