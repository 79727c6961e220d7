// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "platform/controls/text/text_control.h"
#include "records/record_manager.h"

#include <QDialog>
#include <QPushButton>
#include <QRadioButton>

namespace lumen {

/// The former states of the record in hand, and the records that were deleted: looked at, and
/// brought back as new records. Accepted when one was chosen, which chosen() tells.
class HistoryDialog : public QDialog
{
public:
    HistoryDialog(const RecordProfile& profile, Services& services, RecordManager& manager,
                  QWidget* parent);

    void Form_Load();
    const std::optional<FormerState>& chosen() const { return m_chosen; }

    QRadioButton* opStates = named<QRadioButton>(u"opStates", u"이 자료의 이전 상태(&S)");
    QRadioButton* opDeleted = named<QRadioButton>(u"opDeleted", u"지운 자료(&D)");
    ListBox* lstStates = named<ListBox>(u"lstStates", u"이전 상태");
    TextControl* txState = named<TextControl>(u"txState", u"내용");
    QPushButton* cmd되살리기 = named<QPushButton>(u"cmd되살리기", u"새 자료로 되살리기(&B)");
    QPushButton* cmd닫기 = named<QPushButton>(u"cmd닫기", u"닫기(&C)");

private:
    void layOut();
    void fill();
    void showState();
    void bringBack();

    const RecordProfile& m_profile;
    Services& m_services;
    RecordManager& m_manager;
    std::vector<FormerState> m_states;
    std::optional<FormerState> m_chosen;
};

} // namespace lumen
