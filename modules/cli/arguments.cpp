// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/arguments.h"

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

Failure misuse(const QString& text)
{
    return Failure{FailureKind::Invalid, text};
}

} // namespace

Result<Arguments> parseArguments(const QStringList& args, const QStringList& withValue,
                                 const QStringList& flags)
{
    Arguments result;
    bool optionsEnded = false;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& arg = args[i];
        if (optionsEnded || !arg.startsWith(u"--"_s)) {
            result.positional << arg;
            continue;
        }
        if (arg == u"--"_s) {
            optionsEnded = true;
            continue;
        }
        const qsizetype equals = arg.indexOf(u'=');
        const QString name = arg.mid(2, equals < 0 ? -1 : equals - 2);
        if (withValue.contains(name)) {
            if (equals < 0 && i + 1 == args.size())
                return misuse(u"--%1 뒤에 값이 없습니다."_s.arg(name));
            result.options.insert(name, equals < 0 ? args[++i] : arg.mid(equals + 1));
        } else if (flags.contains(name) && equals < 0) {
            result.options.insert(name, {});
        } else {
            return misuse(u"알 수 없는 선택 사항입니다: %1"_s.arg(arg));
        }
    }
    return result;
}

} // namespace lumen
