// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/version_font.h"
#include "forms/services.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"

#include <QDialog>
#include <QPushButton>

class QGroupBox;

namespace lumen {

class ReaderPlace;

/// Fonts and sizes of the fifteen user versions: slots 1 to 5 are meant for Korean text, the
/// others for Western text.
class dlogUserVersionPref : public QDialog // no Q_OBJECT: moc cannot read names in messages
{
public:
    dlogUserVersionPref(Services& services, ReaderPlace& reader, QWidget* parent = nullptr);

    /// Slot i at index i - 1.
    ControlArray<ComboBox, kUserVersionCount> cbFont{u"cbFont"};
    ControlArray<ComboBox, kUserVersionCount> cbSize{u"cbSize"};
    QPushButton* cmdOK = named<QPushButton>(u"cmdOK", u"확인(&O)");
    QPushButton* cmdApply = named<QPushButton>(u"cmdApply", u"적용(&A)");
    QPushButton* cmdCancel = named<QPushButton>(u"cmdCancel", u"취소(&C)");

private:
    void fillLists();
    void showStored();
    QGroupBox* frame(const QString& title, int firstSlot, int lastSlot);
    void layOut();
    void save();

    Services& m_services;
    ReaderPlace& m_reader;
};

} // namespace lumen
