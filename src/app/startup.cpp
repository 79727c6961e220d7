// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/startup.h"

#include "app/ending_signals.h"
#include "app/windows.h"
#include "app/world.h"
#include "data/check_data.h"
#include "data/data_store.h"
#include "forms/guarded.h"
#include "platform/files/instance_lock.h"
#include "platform/jet/jet_engine.h"
#include "platform/log.h"
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

constexpr MessageText kRunsAlready{
    u"Lumenscript", u"Lumenscript이 이미 실행되고 있습니다. 열려 있는 창을 사용하십시오.", 64};
constexpr MessageText kNoFolder{u"Lumenscript",
                                u"프로그램 폴더에 쓸 수 없어 시작할 수 없습니다.\r\n%1", 16};

/// Says why the program can't start in its folder; true when it can.
bool lockFolder(InstanceLock& lock, World& world)
{
    const Result<Done> locked = lock.acquire();
    if (locked)
        return true;
    const bool second = locked.failure().kind == FailureKind::InUse;
    const MessageText& message = second ? kRunsAlready : kNoFolder;
    world.services().messages.show(
        nullptr, QString::fromUtf16(message.title),
        QString::fromUtf16(message.text).replace(u"%1"_s, world.programFolder()), message.flags);
    return false;
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
    InstanceLock lock(world.programFolder());
    if (!lockFolder(lock, world))
        return 1;

    Services& services = world.services();
    AppState state;
    state.AppPath = services.drives.appPath();
    state.CdDrive = FindCdDrive(services.drives);
    RegisterFonts(services.fonts);
    ignoreFailure(createUserDatabases(state.AppPath, services.files, world.drives(),
                                      services.clock.now().date()),
                  "the windows tell what they miss when they are used");

    Windows windows(services, state);
    frm성서 reader(services, state, windows);
    services.jet.setCommitFailed(
        [&](const JetError& error) { handleEngineError(services, &reader, error); });
    windows.setReader(&reader);
    reader.closeToolWindows = [&windows] { return windows.closeAll(); };
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
