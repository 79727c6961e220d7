// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/record_manager.h"

#include "data/app_state.h"
#include "data/module_path.h"
#include "forms/services.h"
#include "jet/engine.h"
#include "jet/error.h"
#include "jet/transaction.h"
#include "platform/files/clock.h"
#include "platform/log.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kShortestWaitMs = 20;
/// What a category may have where an older file has less room.
constexpr int kCategoryRoom = 255;

std::optional<QString> textOrNull(const Field& field)
{
    const QVariant value = field.Value();
    return value.isNull() ? std::nullopt : std::optional(value.toString());
}

std::optional<QDate> dayOrNull(const Field& field)
{
    const QVariant value = field.Value();
    const QDate day = value.isNull() ? QDate() : momentOf(value.toDouble()).date();
    return day.isValid() ? std::optional(day) : std::nullopt;
}

RecordValues readValues(Recordset& record, const RecordProfile& profile)
{
    RecordValues values;
    values.key = Number(record.Fields(kRecordKey));
    for (std::size_t i = 0; i < profile.texts.size(); ++i)
        values.rtf[i] = textOrNull(record.Fields(profile.texts[i].rtf));
    values.category = textOrNull(record.Fields(profile.category));
    if (profile.hasPreachedDay())
        values.preached = dayOrNull(record.Fields(profile.preachedDay));
    values.written = dayOrNull(record.Fields(profile.writtenDay));
    return values;
}

bool hasPart(const RecordProfile& profile, RecordPart part)
{
    return part != RecordPart::PreachedDay || profile.hasPreachedDay();
}

} // namespace

RecordManager::RecordManager(const RecordProfile& profile, Services& services,
                             const AppState& state, const RecordBoxes& boxes)
    : m_profile(profile), m_services(services), m_boxes(boxes), m_data(services.jet),
      m_draft(services.jet, services.files, joinedPath(state.AppPath, profile.draft))
{
    m_data.DatabaseName = joinedPath(state.AppPath, profile.path);
    m_data.RecordSource = profile.source();
    m_draftTimer.setSingleShot(true);
    m_draftTimer.callOnTimeout(&m_draftTimer, [this] { writeDraftWhenDue(); });
}

void RecordManager::open()
{
    m_data.Refresh();
    if (isWritable())
        prepareHistory();
    showNear(0, false);
    collectOffers();
}

void RecordManager::close()
{
    if (isChanged())
        writeDraft();
    m_draftTimer.stop();
    try {
        m_draft.close();
    } catch (const JetError& error) {
        qCWarning(dataLog) << "draft not closed:" << error.text();
    }
    m_data.Close();
    m_values = {};
    m_changed.reset();
}

bool RecordManager::isWritable() const
{
    return !m_data.Database()->isReadOnly();
}

void RecordManager::prepareHistory()
{
    const QDateTime now = m_services.clock.now();
    Transaction step(*m_data.Database());
    RecordHistory::prepare(*m_data.Database(), records());
    RecordHistory::forgetOld(*m_data.Database(), now);
    step.commit();
}

int RecordManager::count() const
{
    return isOpen() ? records().RecordCount() : 0;
}

int RecordManager::position() const
{
    return isOpen() ? records().AbsolutePosition() : -1;
}

void RecordManager::setPosition(int position)
{
    showNear(std::clamp(position, 0, std::max(count() - 1, 0)), false);
}

QString RecordManager::positionText() const
{
    return QString::number(position() + 1) + u'/' + QString::number(count());
}

// Without a key when there is no such record.
RecordValues RecordManager::storedValues(int key)
{
    const auto record = m_data.Database()->OpenRecordset(
        m_profile.source() + u" where %1 = %2"_s.arg(kRecordKey).arg(key));
    return record->RecordCount() > 0 ? readValues(*record, m_profile) : RecordValues();
}

// False when another program has deleted the record.
bool RecordManager::readCurrent()
{
    try {
        m_values = readValues(records(), m_profile);
    } catch (const JetError& error) {
        if (error.number() != ErrorNumber::kRecordDeleted)
            throw;
        return false;
    }
    m_changed.reset();
    m_isDrafted = false;
    m_schedule.written();
    m_draftTimer.stop();
    return true;
}

// A record that is gone takes itself out of the list at the next look; the one beside it is shown.
void RecordManager::showNear(int target, bool backwards)
{
    while (count() > 0) {
        records().setAbsolutePosition(target);
        if (readCurrent())
            return;
        m_data.Refresh();
        const int last = count() - 1;
        if (backwards)
            target = target > 0 ? target - 1 : last;
        else if (target > last)
            target = 0;
    }
    m_values = {};
    if (isWritable())
        addEmptyRecord();
}

void RecordManager::step(RecordMove move)
{
    const int last = count() - 1;
    const int here = position();
    switch (move) {
    case RecordMove::First:
        return showNear(0, false);
    case RecordMove::Last:
        return showNear(last, true);
    case RecordMove::Next:
        return showNear(here < last ? here + 1 : 0, false);
    case RecordMove::Previous:
        return showNear(here > 0 ? here - 1 : last, true);
    }
}

void RecordManager::changed(RecordPart part)
{
    if (!hasRecord() || !hasPart(m_profile, part))
        return;
    m_changed.set(static_cast<std::size_t>(part));
    const QDateTime now = m_services.clock.now();
    m_schedule.changed(now);
    m_draftTimer.start(
        static_cast<int>(std::max<qint64>(now.msecsTo(m_schedule.due()), kShortestWaitMs)));
}

void RecordManager::revert()
{
    const int key = m_values.key;
    if (readCurrent())
        forgetDraft(key);
}

std::vector<DraftPart> RecordManager::changedParts() const
{
    std::vector<DraftPart> parts;
    for (int i = 0; i < kRecordParts; ++i)
        if (m_changed.test(static_cast<std::size_t>(i)))
            parts.push_back(partOf(m_boxes, static_cast<RecordPart>(i)));
    return parts;
}

std::vector<DraftPart> RecordManager::allParts() const
{
    std::vector<DraftPart> parts;
    for (int i = 0; i < kRecordParts; ++i)
        if (hasPart(m_profile, static_cast<RecordPart>(i)))
            parts.push_back(partOf(m_boxes, static_cast<RecordPart>(i)));
    return parts;
}

SaveOutcome RecordManager::save()
{
    if (!isOpen() || !hasRecord())
        return SaveOutcome::NoRecord;
    if (m_boxes.plainText(kTitleText).isEmpty())
        return SaveOutcome::NoTitle;
    if (!isChanged())
        return SaveOutcome::Stored;
    const int key = m_values.key;
    try {
        store(changedParts());
    } catch (const JetError& error) {
        if (records().editMode() != EditMode::None)
            records().CancelUpdate();
        if (error.number() != ErrorNumber::kRecordDeleted)
            throw;
        return SaveOutcome::RecordGone;
    }
    const bool wasDrafted = m_isDrafted;
    readCurrent();
    if (wasDrafted)
        forgetDraft(key);
    return SaveOutcome::Stored;
}

void RecordManager::store(const std::vector<DraftPart>& parts)
{
    makeRoom(parts);
    Transaction step(*m_data.Database());
    RecordHistory::keep(*m_data.Database(), records(), m_services.clock.now());
    records().Edit();
    for (const DraftPart& part : parts)
        putPart(records(), m_profile, part);
    records().Update();
    step.commit();
}

// A file that was taken over may have categories of 30 letters only.
void RecordManager::makeRoom(const std::vector<DraftPart>& parts)
{
    const auto category = std::ranges::find(parts, RecordPart::Category, &DraftPart::part);
    if (category == parts.end())
        return;
    const int room = records().Fields(m_profile.category).Size();
    if (room == 0 || category->text.size() <= room || room >= kCategoryRoom)
        return;
    Transaction step(*m_data.Database());
    m_data.Database()->WidenText(m_profile.table.toString(), m_profile.category.toString(),
                                 kCategoryRoom);
    step.commit();
    const int here = position();
    m_data.Refresh();
    records().setAbsolutePosition(here);
}

// In one step with its values, and on the record behind it.
template <typename Fill>
void RecordManager::addRecord(Fill fill)
{
    try {
        Transaction step(*m_data.Database());
        records().AddNew();
        fill();
        records().Update();
        step.commit();
    } catch (const JetError&) {
        if (records().editMode() != EditMode::None)
            records().CancelUpdate();
        throw;
    }
    records().setBookmark(records().LastModified());
    readCurrent();
}

void RecordManager::addEmptyRecord()
{
    addRecord([this] {
        const QString today = dayString(m_services.clock.now().date());
        records().Fields(m_profile.category).setValue(m_profile.categories.front().toString());
        if (m_profile.hasPreachedDay())
            records().Fields(m_profile.preachedDay).setValue(today);
        records().Fields(m_profile.writtenDay).setValue(today);
    });
}

void RecordManager::saveAsNew()
{
    const int former = m_values.key;
    const std::vector<DraftPart> parts = allParts();
    makeRoom(parts);
    addRecord([this, &parts] {
        for (const DraftPart& part : parts)
            putPart(records(), m_profile, part);
    });
    forgetDraft(former);
}

SaveOutcome RecordManager::move(RecordMove move)
{
    const SaveOutcome outcome = save();
    if (outcome == SaveOutcome::Stored)
        step(move);
    return outcome;
}

SaveOutcome RecordManager::goTo(int key)
{
    if (isChanged()) {
        const SaveOutcome outcome = save();
        if (outcome != SaveOutcome::Stored)
            return outcome;
    }
    const int here = position();
    records().FindFirst(u"%1 = %2"_s.arg(kRecordKey).arg(key));
    showNear(records().NoMatch() ? std::max(here, 0) : position(), false);
    return SaveOutcome::Stored;
}

SaveOutcome RecordManager::addNew()
{
    const SaveOutcome outcome = save();
    if (outcome == SaveOutcome::Stored)
        addEmptyRecord();
    return outcome;
}

void RecordManager::remove()
{
    const int here = position();
    const int key = m_values.key;
    try {
        Transaction step(*m_data.Database());
        RecordHistory::keepDeleted(*m_data.Database(), records(), m_profile, changedParts(),
                                   m_services.clock.now());
        records().Delete();
        step.commit();
    } catch (const JetError& error) {
        records().setAbsolutePosition(here);
        if (error.number() != ErrorNumber::kRecordDeleted)
            throw;
    }
    forgetDraft(key);
    showNear(std::min(here, count() - 1), false);
}

std::vector<FormerState> RecordManager::formerStates()
{
    return RecordHistory::statesOf(*m_data.Database(), m_values.key);
}

std::vector<FormerState> RecordManager::deletedRecords()
{
    return RecordHistory::deleted(*m_data.Database());
}

RecordValues RecordManager::valuesOf(const FormerState& state)
{
    return readValues(*RecordHistory::open(*m_data.Database(), state.number), m_profile);
}

SaveOutcome RecordManager::bringBack(const FormerState& state)
{
    if (isChanged()) {
        const SaveOutcome outcome = save();
        if (outcome != SaveOutcome::Stored)
            return outcome;
    }
    addRecord([this, &state] {
        RecordHistory::fill(*m_data.Database(), state.number, records());
        if (state.deleted)
            RecordHistory::forget(*m_data.Database(), state.number);
    });
    return SaveOutcome::Stored;
}

} // namespace lumen
