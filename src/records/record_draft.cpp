// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/record_draft.h"

#include "jet/engine.h"
#include "jet/error.h"
#include "jet/store/store_writer.h"
#include "jet/transaction.h"
#include "platform/aside_name.h"
#include "platform/files/file_system.h"
#include "platform/log.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr QStringView kTable = u"초안";
constexpr QStringView kPart = u"부분";
constexpr QStringView kText = u"글";
constexpr QStringView kRtf = u"rtf";
constexpr QStringView kWhen = u"때";

TableSchema draftTable()
{
    return {kTable.toString(),
            {{kRecordKey.toString(), FieldType::Long},
             {kPart.toString(), FieldType::Long},
             {kWhen.toString(), FieldType::Date},
             {kText.toString(), FieldType::Memo},
             {kRtf.toString(), FieldType::Memo}},
            {}};
}

QString ofRecord(int key)
{
    return u" from %1 where %2 = %3"_s.arg(kTable, kRecordKey).arg(key);
}

DraftPart readPart(Recordset& rows)
{
    const int part = std::clamp(Number(rows.Fields(kPart)), 0, kRecordParts - 1);
    return {static_cast<RecordPart>(part), Text(rows.Fields(kText)), Text(rows.Fields(kRtf))};
}

std::vector<Draft> readDrafts(Recordset& rows)
{
    std::vector<Draft> drafts;
    for (; !rows.Eof(); rows.MoveNext()) {
        const int key = Number(rows.Fields(kRecordKey));
        auto draft = std::ranges::find(drafts, key, &Draft::key);
        if (draft == drafts.end())
            draft = drafts.insert(draft, {key, {}, {}});
        draft->when = momentOf(rows.Fields(kWhen).Value().toDouble());
        draft->parts.push_back(readPart(rows));
    }
    return drafts;
}

} // namespace

void DraftSchedule::changed(const QDateTime& now)
{
    if (!m_first.isValid())
        m_first = now;
    m_last = now;
}

QDateTime DraftSchedule::due() const
{
    if (!m_first.isValid())
        return {};
    return std::min(m_first.addMSecs(kLongestMs), m_last.addMSecs(kPauseMs));
}

RecordDraft::RecordDraft(JetEngine& jet, FileSystem& files, QString path)
    : m_jet(jet), m_files(files), m_path(std::move(path))
{
}

RecordDraft::~RecordDraft() = default;

bool RecordDraft::isThere() const
{
    return m_files.FileExists(m_path);
}

void RecordDraft::open()
{
    if (m_database)
        return;
    if (!isThere()) {
        StoreWriter writer(m_jet.paths().nativePath(m_path), StoreCompare::Binary);
        writer.createTable(draftTable());
        writer.commit();
    }
    m_database = m_jet.OpenDatabase(m_path);
}

std::vector<Draft> RecordDraft::read()
{
    if (!isThere())
        return {};
    try {
        open();
        const auto rows = m_database->OpenRecordset(u"select * from "_s + kTable.toString());
        return readDrafts(*rows);
    } catch (const JetError& error) {
        qCWarning(dataLog) << "no draft:" << m_path << error.text();
        m_database.reset();
        const auto isTaken = [this](const QString& name) { return m_files.FileExists(name); };
        // Somebody may still get text out of it; without a copy it stays where it is.
        if (m_files.CopyFile(m_path, freeAsideName(m_path, isTaken)))
            ignoreFailure(m_files.DeleteFile(m_path), "the next draft tells that it can't be kept");
        return {};
    }
}

void RecordDraft::write(const Draft& draft)
{
    open();
    Transaction step(*m_database);
    m_database->Execute(u"delete *"_s + ofRecord(draft.key));
    const auto rows = m_database->OpenRecordset(u"select *"_s + ofRecord(draft.key));
    for (const DraftPart& part : draft.parts) {
        rows->AddNew();
        rows->Fields(kRecordKey).setValue(draft.key);
        rows->Fields(kPart).setValue(static_cast<int>(part.part));
        rows->Fields(kWhen).setValue(dayNumber(draft.when));
        rows->Fields(kText).setValue(part.text);
        rows->Fields(kRtf).setValue(part.rtf);
        rows->Update();
    }
    step.commit();
}

void RecordDraft::clear(int key)
{
    if (!m_database && !isThere())
        return;
    open();
    Transaction step(*m_database);
    m_database->Execute(u"delete *"_s + ofRecord(key));
    step.commit();
}

void RecordDraft::close()
{
    if (!m_database)
        return;
    const bool isEmpty =
        m_database->OpenRecordset(u"select * from "_s + kTable.toString())->RecordCount() == 0;
    m_database->Close();
    m_database.reset();
    if (isEmpty)
        ignoreFailure(m_files.DeleteFile(m_path), "an empty draft offers nothing");
}

} // namespace lumen
