// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/build_command.h"
#include "cli/check_command.h"
#include "cli/console.h"
#include "cli/import_command.h"
#include "jet/error.h"
#include "platform/log.h"
#include "sources/fault_texts.h"
#include "sources/interruption.h"
#include "sources/sword/sword_process.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QStringList>

#include <algorithm>
#include <array>
#include <exception>
#include <memory>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

struct Command
{
    QStringView name;
    int (*run)(const QStringList& args);
};

constexpr std::array kCommands{
    Command{u"build", runBuild},
    Command{u"check", runCheck},
    Command{u"import", runImport},
    Command{u"list", runList},
    Command{kReadSwordCommand, runReadSword},
};

QString usage()
{
    return uR"(사용법: lumen-modules 명령 [인수...]

루멘 스크립트의 자료 모듈을 만들고, 옛 데이터베이스를 가져오고, 모듈을 검사합니다.

명령:
  build    공개 자료나 직접 가진 파일로 모듈을 만듭니다.
  list     만들 수 있는 모듈과 그 원본이 있는지를 보여 줍니다.
  import   Jet 데이터베이스(.mdb, .dts) 하나를 이 프로그램의 파일로 바꿉니다.
  check    모듈이나 데이터베이스 하나를 검사합니다.

각 명령의 설명은 "lumen-modules 명령 --help"로 볼 수 있습니다.
  --help      이 도움말
  --version   판 번호)"_s;
}

int runCommand(const Command& command, const QStringList& args)
{
    try {
        return command.run(args);
    } catch (const JetError& error) {
        printError(error.text());
    } catch (const std::exception& error) {
        printError(u"작업을 마치지 못했습니다: %1"_s.arg(faultText(error)));
    }
    return kExitFailed;
}

int run(QStringList args)
{
    args.removeFirst();
    if (args.isEmpty()) {
        printError(u"명령이 없습니다."_s);
        printLine(usage());
        return kExitUsage;
    }
    const QString name = args.takeFirst();
    if (name == u"--help"_s || name == u"-h"_s || name == u"help"_s) {
        printLine(usage());
        return kExitDone;
    }
    if (name == u"--version"_s) {
        printLine(u"lumen-modules %1"_s.arg(QCoreApplication::applicationVersion()));
        return kExitDone;
    }
    const auto* command =
        std::find_if(kCommands.begin(), kCommands.end(),
                     [&name](const Command& known) { return known.name == name; });
    if (command == kCommands.end()) {
        printError(u"알 수 없는 명령입니다: %1"_s.arg(name));
        printLine(usage());
        return kExitUsage;
    }
    return runCommand(*command, args);
}

} // namespace
} // namespace lumen

namespace {

// Writing on maps needs fonts, thus the application of Qt Gui, though never a screen. The other
// commands start without them.
std::unique_ptr<QCoreApplication> application(int& argc, char** argv)
{
    if (argc < 2 || qstrcmp(argv[1], "build") != 0)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int main(int argc, char** argv)
{
    const auto app = application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("lumen-modules"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LUMEN_VERSION));
    lumen::setUpLogging();
    lumen::watchForInterruption();
    return lumen::run(QCoreApplication::arguments());
}
