// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/jet/jet_import.h"

#include "platform/jet/jet_error.h"
#include "platform/jet/jet_header.h"
#include "platform/log.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>

#include <sys/resource.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kWallLimitMs = 15'000;
constexpr rlim_t kCpuLimitSeconds = 15;
#ifndef LUMEN_SANITIZE
constexpr rlim_t kAddressLimitBytes = 1024UL * 1024 * 1024;
#endif

void limit(decltype(RLIMIT_CPU) resource, rlim_t value)
{
    const rlimit limits{value, value};
    setrlimit(resource, &limits);
}

/// Runs in the child between fork and exec: system calls only.
void limitImportProcess()
{
    limit(RLIMIT_CPU, kCpuLimitSeconds);
    limit(RLIMIT_CORE, 0); // a crash on a damaged file is expected and needs no image
#ifndef LUMEN_SANITIZE
    limit(RLIMIT_AS, kAddressLimitBytes);
#endif
}

QStringList importArguments(const JetConversion& conversion)
{
    const bool asText = conversion.compare == StoreCompare::Text;
    return {u"import"_s, u"--compare"_s,    asText ? u"text"_s : u"binary"_s,
            u"--"_s,     conversion.source, conversion.destination};
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

bool isUserDatabase(const QString& nativePath)
{
    const QString name = QFileInfo(nativePath).fileName().toLower();
    return name.endsWith(u".mdb"_s) || name == u"예화.dts"_s || name == u"z199.dts"_s;
}

StoreCompare compareOfFile(const QString& nativePath)
{
    const QString name = QFileInfo(nativePath).fileName().toLower();
    return name.endsWith(u".mdb"_s) || name == u"예화.dts"_s ? StoreCompare::Text
                                                             : StoreCompare::Binary;
}

QString findImportProgram()
{
    const QString folder = QCoreApplication::applicationDirPath();
    for (const QString& place : {u"/lumen-modules"_s, u"/../libexec/lumenscript/lumen-modules"_s}) {
        const QFileInfo program(folder + place);
        if (program.isFile() && program.isExecutable())
            return program.absoluteFilePath();
    }
    return {};
}

void convertJetFile(const JetConversion& conversion, const QString& importProgram)
{
    QProcess child;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(kImportPasswordVariable), conversion.password);
    child.setProcessEnvironment(environment);
    // The reading library prints its complaints about a damaged file there.
    child.setStandardErrorFile(QProcess::nullDevice());
    child.setStandardOutputFile(QProcess::nullDevice());
    child.setStandardInputFile(QProcess::nullDevice());
    child.setChildProcessModifier(limitImportProcess);
    child.start(importProgram, importArguments(conversion));

    if (!child.waitForFinished(kWallLimitMs)) {
        qCWarning(jetLog) << "import of" << conversion.source
                          << "did not run:" << child.errorString();
        child.kill();
        child.waitForFinished();
        throwFailure(ImportExit::Damaged, conversion.source);
    }
    if (child.exitStatus() != QProcess::NormalExit)
        throwFailure(ImportExit::Damaged, conversion.source);
    if (child.exitCode() != static_cast<int>(ImportExit::Done))
        throwFailure(static_cast<ImportExit>(child.exitCode()), conversion.source);
    if (databaseKind(readDatabaseHead(conversion.destination)) != DatabaseKind::Store)
        throwFailure(ImportExit::Damaged, conversion.source);
}

} // namespace lumen
