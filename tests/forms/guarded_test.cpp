// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/guarded.h"
#include "forms/wait_pointer.h"
#include "jet/engine.h"
#include "jet/store/store_writer.h"
#include "platform/controls/grid/flex_grid.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

const QString kNotes = u"C:\\lumenscript\\Data\\note.mdb"_s;

class GuardedTest : public testing::Test
{
protected:
    GuardedTest()
    {
        StoreWriter writer(world.folders.data(u"note.mdb"_s), StoreCompare::Text);
        TableSchema notes;
        notes.name = u"note"_s;
        notes.columns = {{.name = u"title"_s}};
        writer.createTable(notes);
        writer.addRow(u"note"_s, {u"하나"_s});
        writer.commit();
    }

    void addNote(Database& database)
    {
        const auto rows = database.OpenRecordset(u"note"_s);
        rows->AddNew();
        rows->Fields(u"title").setValue(u"둘"_s);
        rows->Update();
    }
    int noteCount()
    {
        return world.jet.OpenDatabase(kNotes)->OpenRecordset(u"note"_s)->RecordCount();
    }

    TestServices world;
};

TEST_F(GuardedTest, AnEngineErrorIsShownAndTheHandlersWritesTakenBack)
{
    const auto database = world.jet.OpenDatabase(kNotes);
    const auto held = database->OpenRecordset(u"note"_s);
    world.messages.expect(u"Lumenscript"_s, u"표가 없습니다."_s, 16);
    const bool done = guarded(world.services, nullptr, [&] {
        held->AddNew();
        held->Fields(u"title").setValue(u"둘"_s);
        held->Update();
        throw JetError(ErrorNumber::kUnknownTable, u"표가 없습니다."_s);
    });
    EXPECT_FALSE(done);
    world.messages.verify();
    EXPECT_EQ(noteCount(), 1);
}

TEST_F(GuardedTest, PointerAndPaintingArePutBackBeforeTheMessage)
{
    FlexGrid grid;
    bool restored = false;
    world.messages.expect(u"Lumenscript"_s, u"파일이 없습니다."_s, 16, Answer::Ok,
                          [&] { restored = !QGuiApplication::overrideCursor() && grid.Redraw(); });
    guarded(world.services, &grid, [&] {
        const WaitPointer outer;
        const WaitPointer inner;
        const RedrawHold hold(grid);
        EXPECT_TRUE(QGuiApplication::overrideCursor());
        throw JetError(ErrorNumber::kFileNotFound, u"파일이 없습니다."_s);
    });
    EXPECT_TRUE(restored);
}

} // namespace
} // namespace lumen
