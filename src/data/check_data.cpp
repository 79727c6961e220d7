// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/check_data.h"

#include "data/data_store.h"
#include "data/module_path.h"
#include "data/version_lists.h"
#include "jet/engine.h"
#include "jet/error.h"
#include "platform/files/drives.h"
#include "platform/log.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kDriveBuffer = 64;
constexpr int kCdRom = 5;

class Check
{
public:
    Check(AppState& state, const FileSystem& files, JetEngine& jet)
        : m_state(state), m_files(files), m_jet(jet)
    {
        m_state.installed = {};
    }

    void run();

private:
    bool exists(QStringView relative) const { return moduleExists(m_files, m_state, relative); }
    bool existsBesideProgram(QStringView relative) const
    {
        return m_files.FileExists(joinedPath(m_state.AppPath, relative));
    }
    void versions();
    void version(int code);
    void userVersion(int code);
    void referenceModules();
    std::optional<QString> firstTable(const QString& path);
    void count(int code, const QString& name);

    AppState& m_state;
    const FileSystem& m_files;
    JetEngine& m_jet;
};

void Check::run()
{
    versions();
    referenceModules();
}

void Check::versions()
{
    std::vector<VersionRow> rows(versionRows().begin(), versionRows().end());
    std::ranges::stable_sort(rows, {}, &VersionRow::checked);
    for (const VersionRow& row : rows)
        if (row.group == VersionGroup::User)
            userVersion(row.code);
        else
            version(row.code);
}

void Check::referenceModules()
{
    InstalledFlags& installed = m_state.installed;
    installed.cRef = exists(u"\\data\\CRef.dts");
    installed.ekDic = exists(u"\\data\\EKDic.dts");
    installed.bibleDic = exists(u"\\data\\BibleDic.dts");
    installed.mhcc = exists(u"\\data\\mhcc.dts");
    installed.wesley = exists(u"\\data\\Wesley.dts");
    installed.myc = exists(u"\\data\\myc.mdb");
    installed.z101 = exists(u"\\Data\\z101.dts");
}

void Check::version(int code)
{
    // As a first version 311 goes under the name of 310; that is kept.
    constexpr int kTischendorf = 311;
    constexpr int kByzantine = 310;
    if (exists(versionFile(code)))
        count(code, versionName(code == kTischendorf ? kByzantine : code, m_state.installed));
    if (exists(versionFile(code, u"c")))
        m_state.installed.concordances.insert(code);
}

// The user's own modules are looked for beside the program alone, never on the disc.
void Check::userVersion(int code)
{
    const QString path = joinedPath(m_state.AppPath, versionFile(code));
    if (m_files.FileExists(path)) {
        const std::optional<QString> table = firstTable(path);
        if (table && table->isEmpty())
            qCWarning(dataLog) << "user version left out, it has no table of its own:" << path;
        else if (table) {
            const auto slot = static_cast<std::size_t>(code - kFirstUserVersion);
            m_state.installed.userTables[slot] = *table;
            count(code, *table);
        }
    }
    if (existsBesideProgram(versionFile(code, u"c")))
        m_state.installed.concordances.insert(code);
}

// The first table that isn't the engine's own, "" without one; nothing when the module can't be
// opened.
std::optional<QString> Check::firstTable(const QString& path)
{
    try {
        const auto database =
            m_jet.OpenDatabase(path, false, true, QString::fromUtf16(connect_text::kCheckData));
        const TableDefs tables = database->TableDefs();
        for (int i = 0; i < tables.Count(); ++i)
            if (!tables(i).Name.startsWith(u"MSys"))
                return tables(i).Name;
        return QString();
    } catch (const JetError& error) {
        qCWarning(dataLog) << "user version left out:" << path << error.number() << error.text();
        return {};
    }
}

void Check::count(int code, const QString& name)
{
    m_state.installed.versions.insert(code);
    ++m_state.installed.versionCount;
    if (m_state.installed.firstVersion.isEmpty())
        m_state.installed.firstVersion = name;
}

} // namespace

QString FindCdDrive(const Drives& drives)
{
    QString list = drives.driveStrings().left(kDriveBuffer);
    QString current;
    while (!list.isEmpty()) {
        const qsizetype end = list.indexOf(QChar(u'\0'));
        const qsizetype length = end < 0 ? list.size() : end;
        current = list.left(length);
        list.remove(0, length + 1);
        if (drives.driveType(current) == kCdRom)
            break;
    }
    return current.left(2);
}

void CheckData(AppState& state, const FileSystem& files, JetEngine& jet)
{
    Check(state, files, jet).run();
}

} // namespace lumen
