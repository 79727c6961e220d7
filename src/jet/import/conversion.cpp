// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/import/conversion.h"

#include "jet/error.h"
#include "jet/import/import_talk.h"
#include "jet/import/jet_header.h"
#include "jet/store/sqlite_statement.h"
#include "jet/store/store_layout.h"
#include "platform/confined_process.h"
#include "platform/log.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>

#include <sqlite3.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kTalkEveryMs = 100;
constexpr qint64 kCpuLimitSeconds = 15;
/// A sound file takes less than a tenth of it, a damaged one may never end.
constexpr qint64 kBytesACpuSecond = 1'000'000;

QStringList importArguments(const JetConversion& conversion)
{
    const bool asText = conversion.compare == StoreCompare::Text;
    return {u"import"_s, u"--compare"_s,    asText ? u"text"_s : u"binary"_s,
            u"--"_s,     conversion.source, conversion.destination};
}

/// False when the user has ended it.
bool waitForEnd(QProcess& child, const QString& source, ImportTalk* talk)
{
    QElapsedTimer since;
    since.start();
    bool wanted = true;
    // A program that can't be started is told by its state: waiting for it ends at once.
    while (wanted && !child.waitForFinished(kTalkEveryMs) && child.state() != QProcess::NotRunning)
        wanted = talk == nullptr || talk->goesOn(source, since.elapsed());
    if (talk != nullptr)
        talk->ended();
    return wanted;
}

[[noreturn]] void throwFailure(ImportExit exit, const QString& source)
{
    switch (exit) {
    case ImportExit::WrongPassword:
        throw jetError(ErrorNumber::kWrongPassword, source);
    case ImportExit::CannotWrite:
        throw jetError(ErrorNumber::kWriteFailed, source);
    default:
        throw jetError(ErrorNumber::kNotADatabase, source);
    }
}

} // namespace

void convertJetFile(const JetConversion& conversion, const QString& importProgram, ImportTalk* talk)
{
    QProcess child;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(kImportPasswordVariable), conversion.password);
    child.setProcessEnvironment(environment);
    child.setStandardOutputFile(QProcess::nullDevice());
    confine(child, {kCpuLimitSeconds + QFileInfo(conversion.source).size() / kBytesACpuSecond,
                    ProcessLimits::Files::Writes});
    child.start(importProgram, importArguments(conversion));

    if (!waitForEnd(child, conversion.source, talk)) {
        child.kill();
        child.waitForFinished();
        throw jetError(ErrorNumber::kCancelled, conversion.source);
    }
    if (child.error() == QProcess::FailedToStart) {
        qCWarning(jetLog) << "import of" << conversion.source
                          << "did not run:" << child.errorString();
        throwFailure(ImportExit::Damaged, conversion.source);
    }
    if (child.exitStatus() != QProcess::NormalExit)
        throwFailure(ImportExit::Damaged, conversion.source);
    if (child.exitCode() != static_cast<int>(ImportExit::Done))
        throwFailure(static_cast<ImportExit>(child.exitCode()), conversion.source);
    if (databaseKind(readDatabaseHead(conversion.destination)) != DatabaseKind::Store)
        throwFailure(ImportExit::Damaged, conversion.source);
}

QStringList lossesOf(const QString& store)
{
    const SqliteHandle handle(store, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX);
    // The import notes there what it couldn't read, and nothing else.
    SqliteStatement lines(
        handle.get(),
        u"SELECT key, value FROM %1 ORDER BY rowid"_s.arg(StoreLayout::kOriginTable).toUtf8());
    QStringList losses;
    while (lines.step())
        losses << lines.text(0) + u": "_s + lines.text(1);
    return losses;
}

} // namespace lumen
