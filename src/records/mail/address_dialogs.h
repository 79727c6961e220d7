// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "forms/services.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/named.h"
#include "records/mail/address_book.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

namespace lumen {

/// Adds an address to the book, or changes one. Accepted when it was stored.
class dlog전자우편주소추가 : public QDialog // no Q_OBJECT: moc cannot read the name
{
public:
    /// An entry with a number is changed, one without is added.
    dlog전자우편주소추가(Services& services, AddressBook& book, const AddressEntry& entry,
                         QWidget* parent);

    QLineEdit* tx성명 = named<QLineEdit>(u"tx성명", u"성명");
    QLineEdit* tx전자우편 = named<QLineEdit>(u"tx전자우편", u"전자우편 주소");
    QLineEdit* tx메모 = named<QLineEdit>(u"tx메모", u"메모");
    QPushButton* cmd저장 = named<QPushButton>(u"cmd저장", u"저장(&S)");
    QPushButton* cmd취소 = named<QPushButton>(u"cmd취소", u"취소(&C)");

private:
    void store();

    Services& m_services;
    AddressBook& m_book;
    int m_id;
};

/// The book of addresses: a list, and buttons to add, change and delete.
class frm전자우편주소록 : public QDialog
{
public:
    frm전자우편주소록(Services& services, AppState& state, QWidget* parent = nullptr);

    void Form_Load();

    FlexGrid* flex주소록 = named<FlexGrid>(u"flex주소록", u"주소록");
    QPushButton* cmd추가 = named<QPushButton>(u"cmd추가", u"추가(&A)...");
    QPushButton* cmd수정 = named<QPushButton>(u"cmd수정", u"수정(&E)...");
    QPushButton* cmd삭제 = named<QPushButton>(u"cmd삭제", u"삭제(&D)...");
    QPushButton* cmd닫기 = named<QPushButton>(u"cmd닫기", u"닫기(&C)");

private:
    void ProcFillList();
    AddressEntry selected() const;
    void edit(const AddressEntry& entry);
    void removeSelected();

    Services& m_services;
    AddressBook m_book;
};

} // namespace lumen
