// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/import_command.h"

#include "cli/arguments.h"
#include "cli/console.h"
#include "data/user_files.h"
#include "import/jet_conversion.h"
#include "sources/interruption.h"

#include <QFileInfo>

#include <optional>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

QString usage()
{
    return uR"(사용법: lumen-modules import [선택 사항] 원본 대상

Jet 데이터베이스(97 형식과 2000~2003 형식의 .mdb와 .dts)를 이 프로그램의 파일로 바꿉니다.
원본은 고치지 않으며, 대상 파일이 이미 있으면 바꾸지 않고 끝납니다.

  --password 암호   데이터베이스의 암호. 환경 변수 LUMEN_IMPORT_PASSWORD로도 줄 수 있습니다.
  --compare text    글자를 비교할 때 대소문자를 가리지 않습니다 (사용자 데이터베이스).
  --compare binary  글자를 코드 값으로 비교합니다 (성경과 참고 자료 모듈).
                    이 선택 사항이 없으면 원본의 이름으로 정합니다.
  --help            이 도움말

끝나는 값: 0 성공, 1 중단 또는 다른 실패, 2 잘못된 인수, 3 데이터베이스가 아니거나 손상됨,
           4 암호가 다름, 5 대상에 쓸 수 없음)"_s;
}

int misuse(const QString& text)
{
    printError(text);
    printError(u"\"lumen-modules import --help\"를 보십시오."_s);
    return static_cast<int>(ImportExit::Usage);
}

/// Nothing for a word that is neither "text" nor "binary".
std::optional<StoreCompare> compareFrom(const Arguments& arguments, const QString& source)
{
    const QString word = arguments.value(u"compare"_s);
    if (word == u"text"_s)
        return StoreCompare::Text;
    if (word == u"binary"_s)
        return StoreCompare::Binary;
    return arguments.has(u"compare"_s) ? std::nullopt : std::optional(filePolicy(source).compare);
}

void tellFaults(const JetFaults& faults)
{
    for (const QString& table : faults.tables)
        printError(u"표 \"%1\"은(는) 손상되어 읽지 못했습니다."_s.arg(table));
    if (faults.rows > 0)
        printError(u"손상된 행 %1개를 건너뛰었습니다."_s.arg(faults.rows));
    if (faults.absentRows > 0)
        printError(u"있어야 할 행 %1개를 찾지 못했습니다."_s.arg(faults.absentRows));
    if (faults.strangePages > 0)
        printError(u"손상된 쪽 %1개를 건너뛰었습니다."_s.arg(faults.strangePages));
    if (faults.values > 0)
        printError(u"값 %1개가 온전하지 않습니다."_s.arg(faults.values));
}

void tellResult(ImportExit exit, const JetConversion& conversion, const ConversionReport& report)
{
    switch (exit) {
    case ImportExit::Done:
        printLine(u"%1: 표 %2개, 행 %3개를 가져왔습니다."_s.arg(conversion.destination)
                      .arg(report.tables)
                      .arg(report.rows));
        tellFaults(report.faults);
        break;
    case ImportExit::WrongPassword:
        printError(u"암호가 다릅니다: %1"_s.arg(conversion.source));
        break;
    case ImportExit::CannotWrite:
        printError(u"대상 파일을 쓸 수 없습니다: %1"_s.arg(conversion.destination));
        break;
    case ImportExit::Damaged:
        printError(u"Jet 데이터베이스가 아니거나 손상된 파일입니다: %1"_s.arg(conversion.source));
        break;
    default:
        printError(interrupted() ? u"중단했습니다."_s : u"가져오지 못했습니다."_s);
    }
}

} // namespace

int runImport(const QStringList& args)
{
    const auto parsed = parseArguments(args, {u"password"_s, u"compare"_s}, {u"help"_s});
    if (!parsed)
        return misuse(parsed.failure().detail);
    const Arguments& arguments = parsed.value();
    if (arguments.has(u"help"_s)) {
        printLine(usage());
        return kExitDone;
    }
    if (arguments.positional.size() != 2)
        return misuse(u"원본과 대상을 하나씩 적어야 합니다."_s);

    JetConversion conversion{arguments.positional[0], arguments.positional[1], {}, {}};
    const auto compare = compareFrom(arguments, conversion.source);
    if (!compare)
        return misuse(u"--compare의 값은 text나 binary입니다."_s);
    conversion.compare = *compare;
    conversion.password =
        arguments.value(u"password"_s, qEnvironmentVariable(kImportPasswordVariable));
    if (!QFileInfo(conversion.source).isReadable()) {
        printError(u"파일을 찾을 수 없거나 읽을 수 없습니다: %1"_s.arg(conversion.source));
        return static_cast<int>(ImportExit::Damaged);
    }
    if (QFileInfo::exists(conversion.destination)) {
        printError(u"대상 파일이 이미 있습니다: %1"_s.arg(conversion.destination));
        return static_cast<int>(ImportExit::Failed);
    }
    ConversionReport report;
    const ImportExit exit = convertIntoStore(conversion, report);
    tellResult(exit, conversion, report);
    return interrupted() && exit != ImportExit::Done ? kExitInterrupted : static_cast<int>(exit);
}

} // namespace lumen
