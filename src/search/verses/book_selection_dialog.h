// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/services.h"
#include "platform/controls/named.h"
#include "search/verses/book_selection.h"

#include <QCheckBox>
#include <QDialog>
#include <QPushButton>

namespace lumen {

/// Lets the user tick the books that a search looks in. After Accepted, scopeTag() holds their
/// abbreviations, comma-separated; "" means that the user wants no choice of books after all.
class dlog책별선택 : public QDialog // no Q_OBJECT: moc cannot read the name
{
public:
    explicit dlog책별선택(Services& services, QWidget* parent = nullptr);

    const QString& scopeTag() const { return m_scopeTag; }
    /// Unticks all books and leaves those of one testament and its group buttons enabled.
    void restrictTo(Testament testament);

    ControlArray<QCheckBox, kBookCount> chk책명{u"chk책명", bookName};
    std::array<QPushButton*, kBookRanges.size()> groupButtons{};
    QPushButton* cmd지우기 = named<QPushButton>(u"cmd지우기", u"모두 지우기");
    QPushButton* cmd승인 = named<QPushButton>(u"cmd승인", u"확인");
    QPushButton* cmd취소 = named<QPushButton>(u"cmd취소", u"취소");

private:
    QWidget* testamentBox(const QString& title, int first, int last);
    QLayout* buttonColumn();
    void cmd승인_Click();
    void setBooks(int first, int last, bool ticked);

    Services& m_services;
    QString m_scopeTag;
};

} // namespace lumen
