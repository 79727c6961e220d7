// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/startup.h"

#include "app/ending_signals.h"
#include "app/windows.h"
#include "app/world.h"
#include "data/check_data.h"
#include "data/compact_and_backup.h"
#include "data/data_store.h"
#include "data/leftovers.h"
#include "data/module_path.h"
#include "forms/files/import_messages.h"
#include "forms/files/lost_file.h"
#include "forms/files/twin_files.h"
#include "forms/guarded.h"
#include "jet/engine.h"
#include "platform/files/instance_lock.h"
#include "platform/log.h"
#include "platform/registry/registry_store.h"
#include "reader/bible_window.h"
#include "tools/about_window.h"

#include <QApplication>
#include <QElapsedTimer>

#include <array>

using namespace Qt::StringLiterals;

namespace lumen {

namespace {

constexpr std::array<QStringView, 8> kFontFiles{
    u"OrvaneHeb.TTF", u"OrvaneHebC.TTF", u"OrvaneGrk.TTF", u"OrvaneFra.TTF",
    u"OrvaneGrm.TTF", u"OrvaneSpa.TTF",  u"OrvaneSwe.TTF", u"Mssong.TTF"};

constexpr int kTrialBytes = 16384; // a small note and its journal

constexpr MessageText kRunsAlready{
    u"Lumenscript", u"Lumenscript이 이미 실행되고 있습니다. 열려 있는 창을 사용하십시오.", 64};
constexpr MessageText kNothingIsStored{
    u"Lumenscript",
    u"프로그램 폴더에 쓸 수 없습니다. 성경은 읽을 수 있지만 개인 주석과 책갈피는 저장되지 "
    u"않습니다. "
    u"폴더의 쓰기 권한과 디스크의 빈 곳을 확인하시기 바랍니다.\r\n%1",
    48};

/// Whether files can be made in the Data folder now: a full disc takes new names but no bytes.
bool takesFiles(FileSystem& files, const QString& appPath)
{
    const QString trial = joinedPath(appPath, QString(u"\\Data"_s + kStoreTrial.toString()));
    const bool written = files.CreateFolder(joinedPath(appPath, u"\\Data")).ok() &&
                         files.writeAll(trial, QByteArray(kTrialBytes, '\0')).ok();
    if (files.FileExists(trial))
        ignoreFailure(files.DeleteFile(trial), "an empty file that is left does no harm");
    return written;
}

// Before a file that is gone is made anew: its backups would be lost with the next two ends.
void offerBackups(Services& services, const AppState& state)
{
    for (const UserFile& file : {user_file::kNotes, user_file::kBookmarks})
        offerBackup(services, state, file);
    // The work of years is not looked through at each start, but by the window that opens it.
    for (const UserFile& file : {user_file::kSermons, user_file::kQuietTime, user_file::kAddresses,
                                 user_file::kIllustrations})
        if (!services.files.FileExists(
                joinedPath(state.AppPath, u"\\Data"_s + file.name.toString())))
            offerBackup(services, state, file);
}

} // namespace

void RegisterFonts(Fonts& fonts)
{
    // Application fonts last as long as the process: they are added at every start.
    for (const QStringView file : kFontFiles)
        if (fonts.AddFontResource(u"\\Fonts\\"_s + file.toString()) == 0)
            qCInfo(platformLog) << "no font file" << file;
}

int Main(World& world)
{
    QElapsedTimer sinceStart;
    sinceStart.start();
    Services& services = world.services();
    AppState state;
    state.AppPath = services.drives.appPath();
    InstanceLock lock(world.programFolder());
    const Result<Done> locked = lock.acquire();
    if (!locked && locked.failure().kind == FailureKind::InUse) {
        services.messages.show(nullptr, kRunsAlready);
        return 1;
    }
    removeUserLeftovers(state.AppPath, settingsFile(), world.drives());
    // Reading needs no place to write to: who can't store anything is told so once and reads on.
    state.canStore = locked.ok() && takesFiles(services.files, state.AppPath);
    ImportMessages importMessages(services.messages);
    if (!state.canStore) {
        services.messages.show(nullptr, kNothingIsStored, {world.programFolder()});
        importMessages.setNothingIsStored();
    }
    services.jet.setImportTalk(&importMessages);
    state.CdDrive = FindCdDrive(services.drives);
    RegisterFonts(services.fonts);
    tellTwinFiles(services, state);
    offerBackups(services, state);
    ignoreFailure(createUserDatabases(state.AppPath, services.files, world.drives(),
                                      services.clock.now().date()),
                  "the windows tell what they miss when they are used");

    Windows windows(services, state);
    frm성서 reader(services, state, windows);
    services.jet.setCommitFailed(
        [&](const JetError& error) { handleEngineError(services, &reader, error); });
    windows.setReader(reader);
    {
        frmAbout splash;
        if (!reader.Form_Load(splash))
            return 1;
    }
    const EndingSignals signals([&reader] { closeWithDialogs(reader); });
    reader.show();
    reader.repaint();
    qCInfo(formsLog) << "first chapter shown after" << sinceStart.elapsed() << "ms";
    return QApplication::exec();
}

} // namespace lumen
