// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/hymnal/hymn_search_dialog.h"

#include "forms/guarded.h"
#include "forms/module_query.h"
#include "forms/wait_pointer.h"
#include "forms/window_opener.h"
#include "text/field_scramble.h"
#include "text/query_literal.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kDesignSize(380, 320); // pixels

struct SearchField
{
    QStringView caption;
    QStringView column;
};

// The first row looks in all columns.
constexpr std::array kFields{
    SearchField{u"전체", u""},       SearchField{u"제목", u"Title"},
    SearchField{u"가사", u"cont"},   SearchField{u"분류", u"category"},
    SearchField{u"작사", u"Writer"}, SearchField{u"작곡", u"composer"},
};
constexpr std::array kAllColumns{u"title", u"cont", u"composer", u"writer", u"category"};

} // namespace

QString hymnSearchQuery(int field, const QString& word)
{
    // Scrambling comes first: it turns some Latin letters into signs of a pattern.
    const QString pattern =
        u" like '*"_s + EscapeLikeText(DES::ScrambleField(word), true) + u"*'"_s;
    QStringList conditions;
    if (field == 0)
        for (const char16_t* column : kAllColumns)
            conditions << QString::fromUtf16(column) + pattern;
    else
        conditions << kFields.at(static_cast<std::size_t>(field)).column.toString() + pattern;
    return u"Select * from Hymm where "_s + conditions.join(u" or "_s) + u"order by Num"_s;
}

dlog찬송가검색::dlog찬송가검색(Services& services, const AppState& state, QWidget* parent)
    : QDialog(parent), m_services(services), m_state(state), m_hymns(services.jet)
{
    setObjectName(u"dlog찬송가검색"_s);
    setWindowTitle(u"찬송가 검색"_s);
    for (const SearchField& field : kFields)
        fieldCombo->AddItem(field.caption.toString());
    fieldCombo->setListIndex(0);
    layOut();
    cmd검색->setDefault(true);
    closeButton->setAutoDefault(false);
    // Enter in the word's box comes by the default button.
    connect(cmd검색, &QPushButton::clicked, this, [this] { cmd검색_Click(); });
    connect(closeButton, &QPushButton::clicked, this, &QDialog::reject);
    lst검색결과->onDblClick = [this] { choose(); };
}

void dlog찬송가검색::layOut()
{
    auto* word = new QHBoxLayout;
    word->addWidget(fieldCombo);
    word->addWidget(tx검색어, 1);
    word->addWidget(cmd검색);
    auto* foot = new QHBoxLayout;
    foot->addWidget(statusPanel1, 1);
    foot->addWidget(closeButton);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(word);
    layout->addWidget(lst검색결과, 1);
    layout->addLayout(foot);
    setTabOrder(tx검색어, fieldCombo);
    setTabOrder(fieldCombo, cmd검색);
    resize(kDesignSize.boundedTo(parentWidget()->size()));
}

void dlog찬송가검색::begin()
{
    raiseWindow(*this);
    tx검색어->setFocus();
    tx검색어->selectAll();
}

void dlog찬송가검색::release()
{
    close();
    m_hymns.Close();
}

void dlog찬송가검색::cmd검색_Click()
{
    guarded(m_services, this, [this] {
        const WaitPointer wait;
        // Before the query: one that fails leaves no result of another word.
        statusPanel1->clear();
        lst검색결과->Clear();
        Recordset& rows = askModule(m_hymns, m_services, m_state, kHymnalModule,
                                    hymnSearchQuery(fieldCombo->ListIndex(), tx검색어->text()));
        QStringList items;
        for (; !rows.Eof(); rows.MoveNext())
            items << Text(rows.Fields(u"num")) + u" 장\t"_s +
                         DES::UnscrambleField(Text(rows.Fields(u"Title")));
        lst검색결과->AddItems(items);
        for (int i = 0; i < items.size(); ++i)
            lst검색결과->setItemData(i, items[i].section(u' ', 0, 0).toInt());
        statusPanel1->setText(u"검색 갯수: "_s + QString::number(items.size()));
    });
}

void dlog찬송가검색::choose()
{
    const int number = lst검색결과->ItemData(lst검색결과->ListIndex());
    if (number > 0 && onChosen)
        guarded(m_services, this, [this, number] { onChosen(number); });
}

} // namespace lumen
