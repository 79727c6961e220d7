// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/mail/address_dialogs.h"

#include "forms/guarded.h"
#include "platform/controls/twips.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/dialogs/modal.h"
#include "records/messages.h"

#include <QFormLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Twips.
constexpr int kBookWidth = 8400;
constexpr int kBookHeight = 5400;
constexpr int kNameWidth = 1500;
constexpr int kAddressWidth = 3300;
constexpr int kNoteWidth = 2700;
enum Column { kName, kAddress, kNote, kId, kColumns };

// The header and one address.
constexpr int kLeastRows = 3;

/// A dot and an "@" are all that is asked for; what a server takes is found out when it is sent.
bool looksLikeAddress(const QString& address)
{
    return address.contains(u'.') && address.contains(u'@');
}

QBoxLayout* buttonRow(std::initializer_list<QPushButton*> buttons)
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* button : buttons)
        row->addWidget(button);
    return row;
}

} // namespace

dlog전자우편주소추가::dlog전자우편주소추가(Services& services, AddressBook& book,
                                           const AddressEntry& entry, QWidget* parent)
    : QDialog(parent), m_services(services), m_book(book), m_id(entry.id)
{
    setObjectName(u"dlog전자우편주소추가"_s);
    setWindowTitle(entry.id == 0 ? u"추가"_s : u"수정"_s);
    tx성명->setText(entry.name);
    tx전자우편->setText(entry.address);
    tx메모->setText(entry.note);
    auto* fields = new QFormLayout;
    fields->addRow(u"성명(&N):"_s, tx성명);
    fields->addRow(u"전자우편 주소(&M):"_s, tx전자우편);
    fields->addRow(u"메모(&O):"_s, tx메모);
    tx전자우편->setMinimumWidth(toPixels(kAddressWidth));
    auto* column = new QVBoxLayout(this);
    column->addLayout(fields);
    column->addLayout(buttonRow({cmd저장, cmd취소}));
    cmd저장->setDefault(true);
    cmd취소->setAutoDefault(false);
    connect(cmd저장, &QPushButton::clicked, this, [this] { store(); });
    connect(cmd취소, &QPushButton::clicked, this, &QDialog::reject);
}

void dlog전자우편주소추가::store()
{
    const auto refuse = [this](const MessageText& message, QWidget* field) {
        m_services.messages.show(this, message);
        field->setFocus();
    };
    if (tx성명->text().isEmpty())
        return refuse(messages::kNoName, tx성명);
    if (tx전자우편->text().isEmpty())
        return refuse(messages::kNoAddress, tx전자우편);
    if (!looksLikeAddress(tx전자우편->text()))
        return refuse(messages::kWrongAddress, tx전자우편);
    const bool stored = guarded(m_services, this, [this] {
        m_book.save({m_id, tx성명->text(), tx전자우편->text(), tx메모->text()});
    });
    if (stored)
        accept();
}

frm전자우편주소록::frm전자우편주소록(Services& services, AppState& state, QWidget* parent)
    : QDialog(parent), m_services(services), m_book(services.jet, state)
{
    setObjectName(u"frm전자우편주소록"_s);
    setWindowTitle(u"전자우편 주소록"_s);
    resize(toPixels(kBookWidth), toPixels(kBookHeight));
    auto* column = new QVBoxLayout(this);
    column->addWidget(flex주소록, 1);
    column->addLayout(buttonRow({cmd추가, cmd수정, cmd삭제, cmd닫기}));
    for (QPushButton* button : {cmd추가, cmd수정, cmd삭제, cmd닫기})
        button->setAutoDefault(false);
    connect(cmd추가, &QPushButton::clicked, this, [this] { edit({}); });
    connect(cmd수정, &QPushButton::clicked, this, [this] { edit(selected()); });
    connect(cmd삭제, &QPushButton::clicked, this, [this] { removeSelected(); });
    connect(cmd닫기, &QPushButton::clicked, this, &QDialog::close);
    const auto change = [this] {
        if (selected().id != 0)
            edit(selected());
    };
    flex주소록->onDblClick = [change](int, int) { change(); };
    flex주소록->onEnter = change;
}

void frm전자우편주소록::Form_Load()
{
    ProcFillList();
    flex주소록->setFocus();
}

void frm전자우편주소록::ProcFillList()
{
    std::vector<AddressEntry> entries;
    guarded(m_services, this, [this, &entries] { entries = m_book.entries(); });
    FlexGrid& grid = *flex주소록;
    const RedrawHold hold(grid);
    grid.setCols(kColumns);
    grid.setRows(1);
    grid.setSingleLines(true);
    grid.setHeaderStyle({.align = GridAlign::Center});
    const QStringList captions{u"성 명"_s, u"전자우편 주소"_s, u"메 모"_s, u"ID"_s};
    for (int col = 0; col < kColumns; ++col)
        grid.setTextMatrix(0, col, captions[col]);
    grid.setColWidth(kName, kNameWidth);
    grid.setColWidth(kAddress, kAddressWidth);
    grid.setColWidth(kNote, kNoteWidth);
    grid.setColHidden(kId, true);
    for (const AddressEntry& entry : entries)
        grid.AddItem({entry.name, entry.address, entry.note, QString::number(entry.id)});
    if (!entries.empty())
        grid.setRow(1);
    cmd수정->setEnabled(!entries.empty());
    cmd삭제->setEnabled(!entries.empty());
}

AddressEntry frm전자우편주소록::selected() const
{
    const int row = flex주소록->Row();
    if (row < 1)
        return {};
    const auto cell = [this, row](int col) { return flex주소록->TextMatrix(row, col); };
    return {cell(kId).toInt(), cell(kName), cell(kAddress), cell(kNote)};
}

void frm전자우편주소록::edit(const AddressEntry& entry)
{
    dlog전자우편주소추가 dialog(m_services, m_book, entry, this);
    if (m_services.modal.run(dialog) == QDialog::Accepted)
        ProcFillList();
}

void frm전자우편주소록::removeSelected()
{
    const AddressEntry entry = selected();
    if (entry.id == 0)
        return;
    if (flex주소록->Rows() < kLeastRows) {
        m_services.messages.show(this, messages::kLastAddress);
        return;
    }
    if (m_services.messages.show(this, messages::kDeleteAddress, {entry.name}) != Answer::Yes)
        return;
    guarded(m_services, this, [this, &entry] { m_book.remove(entry.id); });
    ProcFillList();
}

} // namespace lumen
