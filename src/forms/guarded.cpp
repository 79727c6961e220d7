// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/guarded.h"

#include "jet/engine.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/log.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kCritical = 16;

/// What the user can do about an error of a file, "" for the others.
QString adviceOn(int error)
{
    switch (error) {
    case ErrorNumber::kFileNotFound:
        return u"파일을 제자리에 두십시오. 모듈이라면 lumen-modules build로 다시 만들 수 있습니다."_s;
    case ErrorNumber::kNotADatabase:
    case ErrorNumber::kCorrupt:
        return u"모듈이라면 lumen-modules build --force로 다시 만들고, 직접 쓴 자료라면 "
               "OrvaneBackup 폴더의 백업을 쓰십시오."_s;
    case ErrorNumber::kReadOnly:
        return u"파일과 그 폴더에 쓸 수 있는 권한이 있는지 확인하십시오."_s;
    case ErrorNumber::kFileInUse:
    case ErrorNumber::kAlreadyInUse:
    case ErrorNumber::kOpenElsewhere:
        return u"파일을 쓰고 있는 창이나 프로그램을 닫은 다음 다시 하십시오."_s;
    case ErrorNumber::kRecordDeleted:
        return u"다른 창에서 지웠을 수 있습니다. 창을 닫았다가 다시 여십시오."_s;
    default:
        return {};
    }
}

} // namespace

void handleEngineError(Services& services, QWidget* parent, const JetError& error)
{
    try {
        services.jet.rollbackAll();
    } catch (const JetError& second) {
        // The first error is the one that tells the user something.
        qCWarning(formsLog) << "rollback failed:" << second.text();
    }
    services.messages.show(parent, u"Lumenscript"_s, error.text(), kCritical,
                           adviceOn(error.number()));
}

} // namespace lumen
