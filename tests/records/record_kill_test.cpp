// SPDX-License-Identifier: GPL-2.0-or-later
// A program that is killed at a random moment of typing, moving, deleting, ending: whatever it had
// stored is there, and of what was typed at most the last two seconds are missing. The number of
// kills is LUMENSCRIPT_KILLS, 50 without it.
#include "data/compact_and_backup.h"
#include "jet/engine.h"
#include "records/record_fixture.h"
#include "records/record_manager.h"

#include <map>
#include <poll.h>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// What a record's body says: the number of the change that it comes from. 0 for none.
int serialOf(const QString& rtf)
{
    return rtf.mid(7, 8).toInt();
}

QString bodyOf(int serial, int length)
{
    return u"%1"_s.arg(serial, 8, 10, QChar(u'0')) + QString(length, u'말');
}

/// What the program says on its way: what it begins to do, and what it has done.
struct Line
{
    enum class Kind : int { Typed, Saves, Saved, Deletes, Deleted, Adds, Added, Moved };

    Kind kind;
    int key;
    int serial;
    qint64 clock; ///< ms
};

/// The records of a file as they ought to be, by what was said until the kill.
struct Ledger
{
    std::map<int, int> stored; ///< key and serial
    Line begun{Line::Kind::Moved, 0, 0, 0};
    std::vector<Line> typed; ///< in the record in hand, not stored yet
    qint64 clock = 0;

    void hear(const Line& line)
    {
        clock = line.clock;
        switch (line.kind) {
        case Line::Kind::Typed:
            typed.push_back(line);
            return;
        case Line::Kind::Saved:
            stored[line.key] = line.serial;
            typed.clear();
            break;
        case Line::Kind::Deleted:
            stored.erase(line.key);
            typed.clear();
            break;
        case Line::Kind::Added:
            stored[line.key] = 0;
            break;
        default:
            break;
        }
        begun = line;
    }
    /// The latest change that was two seconds old; 0 when there is none.
    int safeSerial() const
    {
        int serial = 0;
        for (const Line& line : typed)
            if (line.clock <= clock - 2000)
                serial = line.serial;
        return serial;
    }
};

class RecordKillTest : public RecordFixture
{
protected:
    static constexpr int kFewest = 3; // records that are left when there is deleting

    std::map<int, int> stored()
    {
        std::map<int, int> serials;
        const auto database = services.jet.OpenDatabase(u"C:\\lumenscript\\Data\\설교매니저.mdb"_s);
        const auto rows = database->OpenRecordset(profile.source());
        for (; !rows->Eof(); rows->MoveNext()) {
            const int serial = serialOf(Text(rows->Fields(u"rtf본문"_s)));
            serials[Number(rows->Fields(kRecordKey))] = serial;
            EXPECT_EQ(Text(rows->Fields(u"본문"_s)).left(8).toInt(), serial) << "half a record";
        }
        database->Close();
        return serials;
    }

    // In the child process: works until it is killed.
    [[noreturn]] void work(int pipe, unsigned seed, int serial)
    {
        std::mt19937 random(seed);
        m_pipe = pipe;
        open();
        for (;;) {
            const int key = manager->values().key;
            if (title().isEmpty())
                type(RecordPart::Title, u"제목"_s);
            for (auto keys = static_cast<int>(random() % 30); keys > 0; --keys) {
                type(RecordPart::Body, bodyOf(++serial, static_cast<int>(random() % 9000)));
                say(Line::Kind::Typed, key, serial);
                wait(20 + static_cast<int>(random() % 400));
                manager->writeDraftWhenDue();
            }
            const int shown = serialOf(boxes.formatted[2]);
            if (manager->isChanged()) {
                say(Line::Kind::Saves, key, shown);
                if (manager->save() != SaveOutcome::Stored)
                    _exit(1);
                say(Line::Kind::Saved, key, shown);
            }
            act(random() % 6, key);
            show();
        }
    }
    void act(unsigned long what, int key)
    {
        if (what == 0 && manager->count() > kFewest) {
            say(Line::Kind::Deletes, key, 0);
            manager->remove();
            say(Line::Kind::Deleted, key, 0);
        } else if (what == 1 || manager->count() < kFewest) {
            say(Line::Kind::Adds, 0, 0);
            if (manager->addNew() != SaveOutcome::Stored)
                _exit(1);
            say(Line::Kind::Added, manager->values().key, 0);
        } else if (what == 2) {
            manager->close();
            CompactAndBackup(services.state.AppPath, *profile.file, services.jet, services.files);
            open();
        } else {
            static_cast<void>(manager->move(what == 3 ? RecordMove::Previous : RecordMove::Next));
            say(Line::Kind::Moved, 0, 0);
        }
    }
    void say(Line::Kind kind, int key, int serial) const
    {
        const Line line{kind, key, serial, services.clock.time.toMSecsSinceEpoch()};
        if (write(m_pipe, &line, sizeof line) != sizeof line)
            _exit(2);
    }

    // Listens for a while, kills the child and listens to what it had said before.
    Ledger run(std::mt19937& random, int serial)
    {
        int ends[2];
        if (pipe(ends) != 0)
            ADD_FAILURE() << "no pipe";
        Ledger ledger;
        ledger.stored = stored();
        const auto seed = static_cast<unsigned>(random());
        const pid_t child = fork();
        if (child == 0) {
            close(ends[0]);
            work(ends[1], seed, serial);
        }
        close(ends[1]);
        int lines = 5 + static_cast<int>(random() % 120);
        Line line{};
        while (lines-- > 0 && read(ends[0], &line, sizeof line) == sizeof line)
            ledger.hear(line);
        // Somewhere between this step and the next.
        const timespec moment{0, static_cast<long>(random() % 3000000)};
        ppoll(nullptr, 0, &moment, nullptr);
        kill(child, SIGKILL);
        while (read(ends[0], &line, sizeof line) == sizeof line)
            ledger.hear(line);
        close(ends[0]);
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << status;
        return ledger;
    }

    void checkStored(const Ledger& ledger)
    {
        std::map<int, int> found = stored();
        std::map<int, int> expected = ledger.stored;
        const Line& begun = ledger.begun;
        // What was on its way may have come through, whole.
        if (begun.kind == Line::Kind::Saves && found[begun.key] == begun.serial)
            expected[begun.key] = begun.serial;
        if (begun.kind == Line::Kind::Deletes && found.count(begun.key) == 0)
            expected.erase(begun.key);
        if (begun.kind == Line::Kind::Adds && found.size() == expected.size() + 1)
            expected[found.rbegin()->first] = 0;
        EXPECT_EQ(found, expected);
    }

    void checkDraft(const Ledger& ledger)
    {
        const int safe = ledger.safeSerial();
        if (ledger.typed.empty())
            return;
        const int key = ledger.typed.front().key;
        const auto draft = manager->offeredDraft();
        int kept = stored()[key];
        if (draft && draft->key == key)
            for (const DraftPart& part : draft->parts)
                if (part.part == RecordPart::Body)
                    kept = std::max(kept, serialOf(part.rtf));
        EXPECT_GE(kept, safe) << "typed more than two seconds before the end";
        EXPECT_LE(kept, ledger.typed.back().serial);
    }

    int m_pipe = -1;
};

TEST_F(RecordKillTest, KillsAtAnyMomentCostNoMoreThanTwoSeconds)
{
    bool given = false;
    const int wanted = qEnvironmentVariableIntValue("LUMENSCRIPT_KILLS", &given);
    std::mt19937 random(given ? std::random_device()() : 1);
    open();
    make({u"하나"_s, u"둘"_s, u"셋"_s, u"넷"_s});
    manager->close();
    manager.reset();
    int drafts = 0;
    for (int round = 0; round < (given ? wanted : 50) && !HasFailure(); ++round) {
        SCOPED_TRACE(round);
        const Ledger ledger = run(random, (round + 1) * 100000);
        EXPECT_NO_THROW(services.jet.CheckDatabase(u"C:\\lumenscript\\Data\\설교매니저.mdb"_s));
        checkStored(ledger);
        services.clock.time = services.clock.time.addSecs(3600);
        open();
        checkDraft(ledger);
        for (; manager->offeredDraft(); ++drafts) {
            manager->takeDraft();
            show();
            EXPECT_EQ(manager->save(), SaveOutcome::Stored);
        }
        manager->close();
        manager.reset();
    }
    EXPECT_GT(drafts, 0) << "no kill came while there was unsaved text";
}

} // namespace
} // namespace lumen
