// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/check_command.h"

#include "check/row_digest.h"
#include "check/verse_check.h"
#include "cli/arguments.h"
#include "cli/console.h"
#include "data/user_files.h"
#include "jet/error.h"
#include "jet/import/conversion.h"
#include "jet/import/jet_header.h"
#include "jet/store/store_inspection.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <optional>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kShownBadKeys = 10;

QString usage()
{
    return uR"(사용법: lumen-modules check [선택 사항] 파일

모듈이나 사용자 데이터베이스를 읽기 전용으로 열어 온전한지 검사하고 내용을 보여 줍니다.
성경 모듈이면 책마다 절 수를 세어 기준과 다른 곳을 알려 줍니다.
Jet 데이터베이스이면 임시 파일로 가져와서 검사하며, 원본은 그대로 둡니다.

  --password 암호   Jet 데이터베이스의 암호. 환경 변수 LUMEN_IMPORT_PASSWORD로도 줄 수 있습니다.
  --help            이 도움말

끝나는 값: 0 문제없음, 1 문제 있음, 2 잘못된 인수)"_s;
}

bool isVersionTable(const StoreTable& table)
{
    const QStringList needed{u"index"_s, u"Chap"_s, u"Verse"_s, u"Cont"_s};
    return std::all_of(needed.begin(), needed.end(), [&table](const QString& column) {
        return table.columns.contains(column, Qt::CaseInsensitive);
    });
}

/// Tells about a version's verses; false when keys are wrong.
bool checkVerses(const QString& path, const StoreTable& table)
{
    VerseCheck check;
    readColumnPair(
        path, table.name, u"index"_s, u"Cont"_s,
        [&check](const QString& key, const QString& text) { check.addKey(key, !text.isNull()); });
    const CanonCheck canon = check.againstNearest();
    printLine(u"  절 %1개, 본문이 없는 절 %2개"_s.arg(canon.rows).arg(canon.withoutWords));
    for (const QString& line : canon.deviations)
        printLine(u"  "_s + line);
    if (check.badKeys().isEmpty())
        return true;
    printLine(u"  잘못되었거나 겹치는 절 번호 %1개: %2"_s.arg(check.badKeys().size())
                  .arg(check.badKeys().mid(0, kShownBadKeys).join(u", "_s)));
    return false;
}

/// False when the module holds the check sum of its rows and they have another.
bool rowsAreAsWritten(const QString& path, const StoreInspection& store)
{
    for (const auto& [key, value] : store.originLines)
        if (key == RowDigest::kKey && value != digestOfModule(path)) {
            printLine(u"손상: 행들의 검사합이 만들 때와 다릅니다."_s);
            return false;
        }
    return true;
}

int checkStore(const QString& path)
{
    const StoreInspection store = inspectStore(path);
    for (const QString& fault : store.faults)
        printLine(u"손상: %1"_s.arg(fault));
    if (!store.faults.isEmpty())
        return kExitFailed;
    if (!store.isOurs)
        printLine(u"이 프로그램이 만든 파일이 아닙니다."_s);
    else
        printLine(u"만든 방법: %1, 비교: %2, 암호: %3"_s.arg(
            store.origin, store.compare, store.hasPassword ? u"있음"_s : u"없음"_s));
    for (const auto& [key, value] : store.originLines)
        printLine(u"%1: %2"_s.arg(key, value));
    bool sound = store.isOurs && rowsAreAsWritten(path, store);
    for (const StoreTable& table : store.tables) {
        printLine(u"표 \"%1\": 행 %2개"_s.arg(table.name).arg(table.rows));
        if (isVersionTable(table))
            sound = checkVerses(path, table) && sound;
    }
    printLine(sound ? u"문제가 없습니다."_s : u"문제가 있습니다."_s);
    return sound ? kExitDone : kExitFailed;
}

/// A genuine file goes through the same import as in the workbench, in a process of its own.
int checkJetFile(const QString& path, const QString& password)
{
    const QTemporaryDir work;
    const QString store = work.filePath(u"store"_s);
    convertJetFile({path, store, password, filePolicy(path).compare},
                   QCoreApplication::applicationFilePath());
    printLine(u"Jet 데이터베이스입니다. 가져온 내용:"_s);
    return checkStore(store);
}

int checkFile(const QString& path, const QString& password)
{
    if (!QFileInfo(path).isReadable()) {
        printError(u"파일을 찾을 수 없거나 읽을 수 없습니다: %1"_s.arg(path));
        return kExitFailed;
    }
    switch (databaseKind(readDatabaseHead(path))) {
    case DatabaseKind::Store:
        return checkStore(path);
    case DatabaseKind::JetFile:
        return checkJetFile(path, password);
    default:
        printError(u"데이터베이스가 아닙니다: %1"_s.arg(path));
        return kExitFailed;
    }
}

} // namespace

int runCheck(const QStringList& args)
{
    const auto parsed = parseArguments(args, {u"password"_s}, {u"help"_s});
    if (parsed && parsed.value().has(u"help"_s)) {
        printLine(usage());
        return kExitDone;
    }
    if (!parsed || parsed.value().positional.size() != 1) {
        printError(parsed ? u"검사할 파일 하나를 적어야 합니다."_s : parsed.failure().detail);
        printError(u"\"lumen-modules check --help\"를 보십시오."_s);
        return kExitUsage;
    }
    const Arguments& arguments = parsed.value();
    try {
        return checkFile(
            arguments.positional[0],
            arguments.value(u"password"_s, qEnvironmentVariable(kImportPasswordVariable)));
    } catch (const JetError& error) {
        printError(error.text());
        return kExitFailed;
    }
}

} // namespace lumen
