// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/record_history.h"

#include "jet/database.h"
#include "jet/error.h"
#include "jet/store/store_writer.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr QStringView kTable = u"이전본";
constexpr QStringView kNumber = u"번호";
constexpr QStringView kWhen = u"때";
constexpr QStringView kDeleted = u"삭제";
constexpr int kYes = -1;

bool hasTable(const Database& database)
{
    const TableDefs tables = database.TableDefs();
    for (int i = 0; i < tables.Count(); ++i)
        if (tables(i).Name == kTable)
            return true;
    return false;
}

QString statesText(QStringView columns, const QString& condition)
{
    return u"select %1 from %2 where %3 order by %4"_s.arg(columns, kTable, condition, kNumber);
}

QString ofRecord(int key)
{
    return u"%1 = %2"_s.arg(kRecordKey).arg(key);
}

QString ofState(int number)
{
    return u"%1 = %2"_s.arg(kNumber).arg(number);
}

QString deletedOnes()
{
    return u"%1 = %2"_s.arg(kDeleted).arg(kYes);
}

QDateTime momentIn(Recordset& states)
{
    return momentOf(states.Fields(kWhen).Value().toDouble());
}

bool isTooYoung(Database& database, int key, const QDateTime& now)
{
    const auto states =
        database.OpenRecordset(statesText(u"%1, %2"_s.arg(kNumber, kWhen), ofRecord(key)));
    if (states->RecordCount() == 0)
        return false;
    states->MoveLast();
    const QDateTime youngest = momentIn(*states);
    const QDateTime wall(now.date(), now.time(), Qt::UTC); // stored moments have no zone
    // A clock that was put back must not keep states from being kept.
    return youngest <= wall && youngest.secsTo(wall) < RecordHistory::kApartMinutes * 60;
}

void copyColumns(Recordset& from, Recordset& to)
{
    for (int i = 0; i < from.FieldCount(); ++i) {
        const QString name = from.Fields(i).Name();
        for (int j = 0; j < to.FieldCount(); ++j)
            if (to.Fields(j).Name() == name)
                to.Fields(j).setValue(from.Fields(i).Value());
    }
}

std::unique_ptr<Recordset> addState(Database& database, Recordset& records, const QDateTime& now)
{
    const int key = Number(records.Fields(kRecordKey));
    auto states = database.OpenRecordset(statesText(u"*", ofRecord(key)));
    states->AddNew();
    copyColumns(records, *states);
    states->Fields(kWhen).setValue(dayNumber(now));
    return states;
}

void dropOldest(Database& database, int key)
{
    const auto states = database.OpenRecordset(statesText(kNumber, ofRecord(key)));
    for (int count = states->RecordCount(); count > RecordHistory::kMostStates; --count) {
        states->MoveFirst();
        states->Delete();
    }
}

std::vector<FormerState> listed(Database& database, const QString& condition)
{
    if (!hasTable(database))
        return {};
    std::vector<FormerState> list;
    const auto states = database.OpenRecordset(
        statesText(u"%1, %2, %3, %4, 제목"_s.arg(kNumber, kRecordKey, kWhen, kDeleted), condition));
    for (; !states->Eof(); states->MoveNext())
        list.push_back({Number(states->Fields(kNumber)), Number(states->Fields(kRecordKey)),
                        momentIn(*states), Number(states->Fields(kDeleted)) != 0,
                        Text(states->Fields(u"제목"))});
    std::ranges::reverse(list);
    return list;
}

} // namespace

void putPart(Recordset& record, const RecordProfile& profile, const DraftPart& part)
{
    switch (part.part) {
    case RecordPart::Category:
        record.Fields(profile.category).setValue(part.text);
        return;
    case RecordPart::PreachedDay:
        record.Fields(profile.preachedDay).setValue(part.text);
        return;
    case RecordPart::WrittenDay:
        record.Fields(profile.writtenDay).setValue(part.text);
        return;
    default:
        const RecordColumn& text = profile.texts[static_cast<std::size_t>(part.part)];
        Field plain = record.Fields(text.plain);
        // A title of another program's file may be shorter still.
        const int most = part.part == RecordPart::Title ? kTitleLength : plain.Size();
        const int room = plain.Size() > 0 ? std::min(most, plain.Size()) : most;
        plain.setValue(room > 0 ? part.text.left(room) : part.text);
        record.Fields(text.rtf).setValue(part.rtf);
    }
}

void RecordHistory::prepare(Database& database, Recordset& records)
{
    if (hasTable(database))
        return;
    TableSchema table{kTable.toString(),
                      {{kNumber.toString(), FieldType::Long, 0, true},
                       {kWhen.toString(), FieldType::Date},
                       {kDeleted.toString(), FieldType::Boolean}},
                      {{u"기록"_s, {kRecordKey.toString()}}, {u"지움"_s, {kDeleted.toString()}}}};
    for (int i = 0; i < records.FieldCount(); ++i) {
        const Field field = records.Fields(i);
        // Room for whatever the record's own column is widened to.
        const FieldType type = field.Type() == FieldType::Text ? FieldType::Memo : field.Type();
        table.columns.push_back({field.Name(), type});
    }
    database.MakeTable(table);
}

void RecordHistory::keep(Database& database, Recordset& records, const QDateTime& now)
{
    const int key = Number(records.Fields(kRecordKey));
    if (isTooYoung(database, key, now))
        return;
    addState(database, records, now)->Update();
    dropOldest(database, key);
}

void RecordHistory::keepDeleted(Database& database, Recordset& records,
                                const RecordProfile& profile, const std::vector<DraftPart>& unsaved,
                                const QDateTime& now)
{
    const int key = Number(records.Fields(kRecordKey));
    const auto state = addState(database, records, now);
    state->Fields(kDeleted).setValue(kYes);
    for (const DraftPart& part : unsaved)
        putPart(*state, profile, part);
    state->Update();
    dropOldest(database, key);
}

void RecordHistory::forgetOld(Database& database, const QDateTime& now)
{
    const QString before = dayText(dayNumber(now.addDays(-kDaysOfDeleted)));
    const auto old =
        database.OpenRecordset(statesText(u"%1, %2"_s.arg(kNumber, kRecordKey),
                                          deletedOnes() + u" and %1 < #%2#"_s.arg(kWhen, before)));
    for (; !old->Eof(); old->MoveNext())
        database.Execute(
            u"delete * from %1 where %2"_s.arg(kTable, ofRecord(Number(old->Fields(kRecordKey)))));
}

std::vector<FormerState> RecordHistory::statesOf(Database& database, int key)
{
    return listed(database, ofRecord(key));
}

std::vector<FormerState> RecordHistory::deleted(Database& database)
{
    return listed(database, deletedOnes());
}

std::unique_ptr<Recordset> RecordHistory::open(Database& database, int number)
{
    return database.OpenRecordset(statesText(u"*", ofState(number)));
}

void RecordHistory::fill(Database& database, int number, Recordset& records)
{
    const auto state = open(database, number);
    for (int i = 0; i < state->FieldCount(); ++i) {
        const QString name = state->Fields(i).Name();
        for (int j = 0; j < records.FieldCount(); ++j)
            if (records.Fields(j).Name() == name && name != kRecordKey)
                records.Fields(j).setValue(state->Fields(i).Value());
    }
}

void RecordHistory::forget(Database& database, int number)
{
    database.Execute(u"delete * from %1 where %2"_s.arg(kTable, ofState(number)));
}

} // namespace lumen
