// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "app/windows.h"
#include "app/world.h"
#include "data/check_data.h"
#include "data/data_store.h"
#include "forms/startup_progress.h"
#include "reader/bible_window.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <initializer_list>

namespace lumen::real {

using namespace Qt::StringLiterals;

class NoSplash : public StartupProgress
{
public:
    void showSplash() override {}
    void setProgress(int) override {}
    void hideSplash() override {}
};

/// A program folder of its own whose Data folder shows the modules; settings and caches too.
class ProgramFolder
{
public:
    ProgramFolder()
    {
        const QString data = m_folder.filePath(u"lumenscript/Data"_s);
        QDir().mkpath(data);
        const QDir modules(qEnvironmentVariable("LUMENSCRIPT_MODULES"));
        for (const QString& file : modules.entryList({u"*.dts"_s}, QDir::Files))
            QFile::link(modules.absoluteFilePath(file), data + u'/' + file);
        qputenv("XDG_CONFIG_HOME", m_folder.filePath(u"config"_s).toUtf8());
        qputenv("XDG_CACHE_HOME", m_folder.filePath(u"cache"_s).toUtf8());
    }
    DriveFolders drives() const { return {m_folder.filePath(u"lumenscript"_s), {}}; }

private:
    QTemporaryDir m_folder;
};

/// The reader over the modules that LUMENSCRIPT_MODULES names, loaded and on the screen.
class Program
{
public:
    explicit Program(const ProgramFolder& folder)
        : world(folder.drives()), windows(world.services(), prepared(state, world)),
          reader(world.services(), state, windows)
    {
        windows.setReader(reader);
        NoSplash splash;
        loaded = reader.Form_Load(splash);
        reader.resize(1200, 800);
        reader.show();
        reader.repaint();
        QApplication::processEvents();
    }

    /// Selects versions from the first slot on; codes that are not installed are passed over.
    int openVersions(std::initializer_list<int> codes, int count)
    {
        int slot = 0;
        for (const int code : codes) {
            if (slot == count || !state.installed.hasVersion(code))
                continue;
            const QString id = slot == 0 ? u"ID_cb기본버전"_s : u"ID_cb대역본%1"_s.arg(slot);
            ComboBox& combo = reader.atbar.tool(id).combo();
            combo.setListIndex(combo.findItemData(code));
            ++slot;
        }
        return slot;
    }

    AppState state;
    World world;
    Windows windows;
    frm성서 reader;
    bool loaded = false;

private:
    static AppState& prepared(AppState& state, World& world)
    {
        Services& services = world.services();
        state.AppPath = services.drives.appPath();
        state.CdDrive = FindCdDrive(services.drives);
        ignoreFailure(createUserDatabases(state.AppPath, services.files, world.drives(),
                                          services.clock.now().date()),
                      "the bench reads modules only");
        return state;
    }
};

} // namespace lumen::real
