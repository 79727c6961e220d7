// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/data_control.h"
#include "records/record_draft.h"
#include "records/record_history.h"
#include "records/record_values.h"

#include <QTimer>

#include <bitset>
#include <functional>
#include <optional>
#include <vector>

namespace lumen {

class Clock;
class JetError;
struct AppState;
struct Services;

enum class RecordMove { First, Previous, Next, Last };

/// What became of the wish to store the record in hand. All but Stored keep the user on it, with
/// the text in the boxes.
enum class SaveOutcome {
    NoRecord,
    Stored, ///< also when nothing had been changed
    NoTitle,
    RecordGone, ///< deleted by another program while it was edited; saveAsNew() keeps the text
};

/// The notebook behind a manager's window: records browsed one by one and stored when the user
/// moves on, drafts of what was not stored yet, former states. Knows no widget: values go out by
/// values(), changed parts come in by `boxes`. Errors are JetErrors; what failed is undone, and the
/// user stays on the record with the changes still to be stored.
class RecordManager
{
public:
    /// All references must outlive the manager.
    RecordManager(const RecordProfile& profile, Services& services, const AppState& state,
                  const RecordBoxes& boxes);

    /// Opens the first record. A table without any gets one, since all else begins from a record.
    void open();
    /// Closes the file. The draft goes unless it holds what could not be stored.
    void close();
    bool isOpen() const { return m_data.Recordset() != nullptr; }

    const RecordProfile& profile() const { return m_profile; }
    DataControl& data() { return m_data; }
    const RecordValues& values() const { return m_values; }
    bool hasRecord() const { return m_values.key != 0; }
    int count() const;
    /// Zero-based; -1 without a record.
    int position() const;
    void setPosition(int position);
    /// "3/12".
    QString positionText() const;

    /// To be called at each change by the user. Reads nothing yet.
    void changed(RecordPart part);
    bool isChanged() const { return m_changed.any(); }
    /// Gives up what was changed; values() are those that are stored.
    void revert();

    /// Stores what was changed, and only that.
    SaveOutcome save();
    /// Stores all that the boxes hold as a new record and stays on it.
    void saveAsNew();
    /// Stores, then moves; the list wraps at both ends. Without Stored nothing moves.
    SaveOutcome move(RecordMove move);
    /// Stores what was changed, then shows the record of a number; one that is gone moves nothing.
    SaveOutcome goTo(int key);
    /// Stores, then begins a record of today with the first category and no text.
    SaveOutcome addNew();
    /// The last record stays.
    bool canRemove() const { return hasRecord() && count() > 1; }
    /// Deletes the record in hand and shows the next one, or the last. It can be brought back for
    /// thirty days, with the text that was in the boxes.
    void remove();

    /// Writes the draft when it is due, for the timer and for tests that set the clock.
    void writeDraftWhenDue();
    /// Writes it now; to be called before the program is ended without closing.
    void writeDraft();
    /// Unsaved text of a former run that differs from what is stored; the first of several.
    std::optional<Draft> offeredDraft() const;
    /// Shows the draft's record with the unsaved text as a change to be stored; a record that is
    /// gone begins anew.
    void takeDraft();
    void dropDraft();

    std::vector<FormerState> formerStates();
    std::vector<FormerState> deletedRecords();
    RecordValues valuesOf(const FormerState& state);
    /// Stores, then adds a former state as a new record and shows it.
    SaveOutcome bringBack(const FormerState& state);

    /// Is told once in a row of failures that unsaved text can't be kept.
    std::function<void(const JetError&)> onDraftFailed;

private:
    Recordset& records() const { return *m_data.Recordset(); }
    bool isWritable() const;
    void prepareHistory();
    bool readCurrent();
    void showNear(int target, bool backwards);
    void step(RecordMove move);
    std::vector<DraftPart> changedParts() const;
    std::vector<DraftPart> allParts() const;
    void store(const std::vector<DraftPart>& parts);
    void makeRoom(const std::vector<DraftPart>& parts);
    template <typename Fill>
    void addRecord(Fill fill);
    void addEmptyRecord();
    void forgetDraft(int key);
    void collectOffers();
    RecordValues storedValues(int key);

    const RecordProfile& m_profile;
    Services& m_services;
    const RecordBoxes& m_boxes;
    DataControl m_data;
    RecordDraft m_draft;
    DraftSchedule m_schedule;
    QTimer m_draftTimer;
    bool m_isDrafted = false; ///< the draft file has text of the record in hand
    bool m_draftFails = false;
    std::vector<Draft> m_offers;
    RecordValues m_values;
    std::bitset<kRecordParts> m_changed;
};

} // namespace lumen
