// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/build_options.h"

#include "cli/arguments.h"
#include "recipes/reference_recipes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostJobs = 64;
constexpr QChar kConcordanceMark = u'c'; // behind the version's code

Failure misuse(const QString& text)
{
    return Failure{FailureKind::Invalid, text};
}

Result<Done> takeOnly(const QString& text, BuildOptions& options)
{
    const QStringList items = text.split(u',', Qt::SkipEmptyParts);
    for (const QString& item : items) {
        const QString file = referenceFile(item.trimmed());
        if (!file.isEmpty()) {
            options.onlyFiles.insert(file);
            continue;
        }
        bool isNumber = false;
        const bool isConcordance = item.trimmed().endsWith(kConcordanceMark);
        const int code = item.trimmed().chopped(isConcordance ? 1 : 0).toInt(&isNumber);
        if (!isNumber || code < 101 || code > 999)
            return misuse(u"역본 번호나 모듈 이름이 아닙니다: %1"_s.arg(item));
        if (isConcordance)
            options.onlyFiles.insert(item.trimmed());
        else
            options.only.insert(code);
    }
    if (options.makesAll())
        return misuse(u"--only 뒤에 역본 번호가 없습니다."_s);
    return Done{};
}

Result<Done> takeModule(const Arguments& arguments, BuildOptions& options)
{
    options.files = arguments.positional;
    if (!arguments.has(u"module"_s)) {
        if (options.files.isEmpty())
            return Done{};
        return misuse(u"원본 파일은 --module과 --format을 함께 줄 때만 쓸 수 있습니다: %1"_s.arg(
            options.files.first()));
    }
    bool isNumber = false;
    options.moduleCode = arguments.value(u"module"_s).toInt(&isNumber);
    options.moduleName = arguments.value(u"name"_s);
    options.format = arguments.value(u"format"_s);
    if (!isNumber)
        return misuse(u"역본 번호가 아닙니다: %1"_s.arg(arguments.value(u"module"_s)));
    if (options.format.isEmpty())
        return misuse(u"--module에는 --format이 필요합니다."_s);
    const QString refused = whyNotBuildable(options.moduleCode, options.moduleName);
    if (!refused.isEmpty())
        return misuse(refused);
    return Done{};
}

Result<Done> takeJobs(const Arguments& arguments, BuildOptions& options)
{
    options.jobs = std::clamp(QThread::idealThreadCount(), 1, kMostJobs);
    if (!arguments.has(u"jobs"_s))
        return Done{};
    bool isNumber = false;
    options.jobs = arguments.value(u"jobs"_s).toInt(&isNumber);
    if (!isNumber || options.jobs < 1 || options.jobs > kMostJobs)
        return misuse(u"--jobs에는 1부터 %1까지의 수를 주십시오."_s.arg(kMostJobs));
    return Done{};
}

Result<Done> takeFolders(const Arguments& arguments, BuildOptions& options)
{
    options.outFolder = QDir::cleanPath(arguments.value(u"out"_s, defaultDataFolder()));
    options.reportFile = arguments.value(u"report"_s);
    options.sourceFolder = arguments.value(u"source"_s, arguments.value(u"user"_s));
    if (!options.sourceFolder.isEmpty() && !QFileInfo(options.sourceFolder).isDir())
        return misuse(u"폴더가 아닙니다: %1"_s.arg(options.sourceFolder));
    return Done{};
}

} // namespace

Result<BuildOptions> parseBuildOptions(const QStringList& args)
{
    const auto parsed =
        parseArguments(args,
                       {u"out"_s, u"only"_s, u"source"_s, u"user"_s, u"module"_s, u"name"_s,
                        u"format"_s, u"report"_s, u"jobs"_s},
                       {u"help"_s, u"baptist"_s, u"renumber"_s, u"force"_s, u"accept-loss"_s});
    if (!parsed)
        return parsed.failure();
    const Arguments& arguments = parsed.value();
    BuildOptions options;
    options.help = arguments.has(u"help"_s);
    options.baptist = arguments.has(u"baptist"_s);
    options.mode = {arguments.has(u"force"_s), arguments.has(u"accept-loss"_s)};
    options.renumbering = arguments.has(u"renumber"_s) ? Renumbering::English : Renumbering::Keep;
    if (arguments.has(u"only"_s)) {
        const auto taken = takeOnly(arguments.value(u"only"_s), options);
        if (!taken)
            return taken.failure();
    }
    for (const auto take : {takeModule, takeJobs, takeFolders}) {
        const auto taken = take(arguments, options);
        if (!taken)
            return taken.failure();
    }
    return options;
}

QString defaultDataFolder()
{
    const QString home = qEnvironmentVariable("LUMENSCRIPT_HOME");
    if (!home.isEmpty())
        return home + u"/Data"_s;
    QString beside = QCoreApplication::applicationDirPath() + u"/Data"_s;
    if (QFileInfo(beside).isDir())
        return beside;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           u"/lumenscript/Data"_s;
}

QString buildUsage()
{
    return uR"(사용법: lumen-modules build [선택 사항]
        lumen-modules build --module 번호 --format 형식 [--name 이름] 파일...

설치된 공개 자료와 직접 가진 파일로 성경 모듈을 만듭니다. 원본이 그대로이고 온전한 모듈은 다시
만들지 않습니다.

  --out 폴더       모듈을 둘 폴더. 주지 않으면 프로그램의 Data 폴더
  --only 번호,...  이 역본과 모듈만 만듭니다. 역본은 그 성구사전과 함께 만들고, 101c는
                   성구사전만 만듭니다. 예: --only 101,201c,z101
  --source 폴더    직접 가진 파일이 있는 폴더(--user도 같음). 개역한글의 JSON, USFM, OSIS, SWORD
                   모듈, 비잔틴 헬라어 본문의 CSV를 찾습니다. 폴더나 파일의 이름이 역본 번호로 시작하면 그 역본이 됩니다.
                   예: "214", "901 나의 역본"
                   찬송가(z201)는 hymns.tsv와 tunes.tsv로 만듭니다. 칸을 탭으로 나눈 UTF-8 표이며
                   hymns.tsv는 장, 제목, 작사, 작곡, 분류, 관련 찬송, 관련 성구, 가사,
                   tunes.tsv는 장, 박자, 빠르기, 음입니다. 잘못된 줄은 파일과 줄과 까닭을 알리고
                   전의 모듈을 둡니다. 같은 꼴의 표로 성구사전(101c.tsv: 낱말, 성구, 횟수), 성경사전
                   (bible-dictionary.tsv: 표제어, 설명), 영한영사전(english-dictionary.tsv), 주석
                   (commentary.tsv: 장, 절, 한글, 영문), 웨슬리 주석(wesley.tsv: 장, 글)도 받습니다.
                   easton.json, hitchcock.json과 wesley 폴더의 JSON도 찾습니다.
  --module 번호    적은 파일로 이 역본 하나만 만듭니다. 901부터 915까지는 사용자 역본입니다.
  --format 형식    그 파일의 형식: sword, osis, usfm, json
  --name 이름      사용자 역본의 이름
  --baptist        개역한글에서 "세례"를 "침례"로 바꾼 103도 만듭니다.
  --renumber       불가타와 러시아어 성경의 절 번호를 영어 성경에 맞춥니다.
  --force          원본이 그대로인 모듈도 다시 만듭니다.
  --accept-loss    절이 줄었거나 본문이 빠진 원본으로도 만듭니다. 주지 않으면 그런 모듈은 만들지 않고
                   전의 것을 둡니다.
  --report 파일    모듈마다 절 수와 다른 점을 적을 파일
  --jobs 수        함께 만들 모듈의 수
  --help           이 도움말

끝나는 값: 0 모두 됨(원본이 설치되지 않은 모듈은 건너뜀), 1 만들지 못한 모듈이 있음,
           2 잘못된 인수, 130 중단됨)"_s;
}

} // namespace lumen
