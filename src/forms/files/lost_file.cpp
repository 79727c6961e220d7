// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/files/lost_file.h"

#include "data/app_state.h"
#include "data/compact_and_backup.h"
#include "forms/services.h"
#include "jet/engine.h"
#include "platform/dialogs/message_boxes.h"

namespace lumen {
namespace {

// %1 the file, %2 its backup, %3 the name under which a damaged file is kept.
constexpr MessageText kDamaged{u"자료 손상",
                               u"%1 파일이 손상되어 읽을 수 없습니다.\r\n%2에 백업된 것을 "
                               u"되살릴까요? 지금 파일은 %3(으)로 남겨 둡니다.",
                               52};
constexpr MessageText kEmptied{u"자료 손상",
                               u"%1 파일이 비어 있습니다.\r\n%2에 백업된 것을 되살릴까요? 지금 "
                               u"파일은 %3(으)로 남겨 둡니다.",
                               52};
constexpr MessageText kGone{u"자료 없음", u"%1 파일이 없습니다.\r\n%2에 백업된 것을 되살릴까요?",
                            52};
constexpr MessageText kNoBackup{u"자료 손상",
                                u"%1 파일이 손상되어 읽을 수 없고 온전한 백업도 없습니다. 파일은 "
                                u"그대로 남겨 둡니다.",
                                48};
constexpr MessageText kNotRestored{u"자료 손상",
                                   u"백업을 되살리지 못했습니다. 파일은 전과 같습니다.\r\n%1", 48};

const MessageText& messageOf(LostFile::Fault fault)
{
    switch (fault) {
    case LostFile::Fault::Gone:
        return kGone;
    case LostFile::Fault::Emptied:
        return kEmptied;
    case LostFile::Fault::Damaged:
        break;
    }
    return kDamaged;
}

} // namespace

void offerBackup(Services& services, const AppState& state, const UserFile& file, QWidget* parent)
{
    const auto lost = findLostFile(state.AppPath, file, services.jet, services.files);
    if (!lost)
        return;
    const PathResolver& paths = services.jet.paths();
    const QString native = paths.nativePath(lost->path);
    if (lost->backup.isEmpty() || !state.canStore) {
        services.messages.show(parent, kNoBackup, {native});
        return;
    }
    const Answer answer = services.messages.show(
        parent, messageOf(lost->fault),
        {native, paths.nativePath(lost->backup), paths.nativePath(lost->aside)});
    if (answer != Answer::Yes)
        return;
    const Result<Done> restored = restoreBackup(*lost, services.files);
    if (!restored)
        services.messages.show(parent, kNotRestored, {restored.failure().detail});
}

} // namespace lumen
