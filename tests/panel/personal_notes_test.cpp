// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/data_store.h"
#include "data/user_files.h"
#include "jet/data_control.h"
#include "jet/engine.h"
#include "jet/error.h"
#include "panel/notes/personal_notes.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <csignal>
#include <ostream>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

int writesLeft = 0; // 0: writes go on for ever

} // namespace

/// Stands before the C library's, which the database library calls: the last write that is left is
/// half done when the process dies.
extern "C" ssize_t pwrite64(int file, const void* bytes, size_t size, off64_t offset)
{
    const bool isLast = writesLeft > 0 && --writesLeft == 0;
    const ssize_t written = ::syscall(SYS_pwrite64, file, bytes, isLast ? size / 2 : size, offset);
    if (isLast)
        std::raise(SIGKILL);
    return written;
}

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

using Notes = std::vector<Note>;

/// Notes in a data folder of their own. Each access has an engine of its own, as each run of the
/// program has.
class PersonalNotesTest : public testing::Test
{
protected:
    PersonalNotesTest()
    {
        EXPECT_TRUE(createUserDatabases(world.state.AppPath, world.files, world.drives,
                                        world.clock.now().date()));
    }

    template <typename Work>
    auto with(Work work)
    {
        JetEngine engine(world.drives, filePolicy, importOptions());
        DataControl dacPersnote(engine);
        PersonalNotes notes(dacPersnote, world.state.AppPath + u"\\Data\\myc.mdb"_s);
        return work(notes);
    }
    Notes load(const QString& chapter)
    {
        return with([&](PersonalNotes& notes) { return notes.load(chapter); });
    }
    void save(const QString& chapter, const Notes& rows)
    {
        with([&](PersonalNotes& notes) { notes.save(chapter, rows); });
    }

    TestServices world;
};

TEST_F(PersonalNotesTest, NotesComeBackInTheirOrder)
{
    const Notes notes{{u"요3:16"_s, u"it's *[ | \"#"_s},
                      {u"요3:1-5"_s, u"둘째 줄\r\n셋째 줄"_s},
                      {u"요3:2"_s, QString(5000, u'긴')}};
    save(u"요3:"_s, notes);
    EXPECT_EQ(load(u"요3:"_s), notes);
    const Notes turned(notes.rbegin(), notes.rend());
    save(u"요3:"_s, turned);
    EXPECT_EQ(load(u"요3:"_s), turned);
}

TEST_F(PersonalNotesTest, OtherChaptersStay)
{
    save(u"창1:"_s, {{u"창1:1"_s, u"첫 장"_s}});
    save(u"창10:"_s, {{u"창10:1"_s, u"열째 장"_s}});
    save(u"창1:"_s, {});
    EXPECT_EQ(load(u"창1:"_s), Notes());
    EXPECT_EQ(load(u"창10:"_s), (Notes{{u"창10:1"_s, u"열째 장"_s}}));
}

TEST_F(PersonalNotesTest, AFailedSaveLeavesTheOldNotes)
{
    const Notes old{{u"요3:1"_s, u"하나"_s}, {u"요3:2"_s, u"둘"_s}};
    save(u"요3:"_s, old);
    const Notes tooLong{{u"요3:1"_s, u"새 것"_s},
                        {u"요3:"_s + QString(300, u'1'), u"자리가 길다"_s}};
    with([&](PersonalNotes& notes) {
        EXPECT_THROW(notes.save(u"요3:"_s, tooLong), JetError);
        EXPECT_EQ(notes.load(u"요3:"_s), old) << "also in the same run";
    });
    EXPECT_EQ(load(u"요3:"_s), old);
}

// Runs the save in children that die in the middle of their first, second, ... write to the disc,
// until one gets through.
TEST_F(PersonalNotesTest, KilledAtAnyWriteTheOldOrTheNewNotesAreThere)
{
    const Notes old{{u"시119:1"_s, QString(3000, u'옛')}, {u"시119:2"_s, u"둘"_s}};
    const Notes fresh{
        {u"시119:2"_s, QString(9000, u'새')}, {u"시119:1"_s, u"하나"_s}, {u"시119:3-4"_s, u"셋"_s}};
    const QString chapter = u"시119:"_s;
    int killed = 0;
    int foundOld = 0;
    int foundFresh = 0;
    for (bool through = false; !through;) {
        save(chapter, old);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            writesLeft = killed + 1;
            save(chapter, fresh);
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        through = WIFEXITED(status) && WEXITSTATUS(status) == 0;
        if (!through) {
            ASSERT_TRUE(WIFSIGNALED(status));
            ASSERT_EQ(WTERMSIG(status), SIGKILL);
            ++killed;
        }
        const Notes found = load(chapter);
        foundOld += found == old ? 1 : 0;
        foundFresh += found == fresh ? 1 : 0;
        ASSERT_EQ(foundOld + foundFresh, killed + (through ? 1 : 0)) << "half of a save";
        ASSERT_LT(killed, 1000);
    }
    EXPECT_GE(killed, 5) << "a save writes journal and database";
    EXPECT_GE(foundOld, 2);
    EXPECT_GE(foundFresh, 1);
}

} // namespace
} // namespace lumen
