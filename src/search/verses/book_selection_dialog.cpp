// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/verses/book_selection_dialog.h"

#include "platform/dialogs/message_boxes.h"
#include "search/messages.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kColumns = 6;

} // namespace

dlog책별선택::dlog책별선택(Services& services, QWidget* parent)
    : QDialog(parent), m_services(services)
{
    setObjectName(u"dlog책별선택"_s);
    setWindowTitle(u"검색 범위 책별 선택"_s);
    auto* books = new QVBoxLayout;
    books->addWidget(testamentBox(u"구약"_s, 0, kFirstNewTestamentBook - 1));
    books->addWidget(testamentBox(u"신약"_s, kFirstNewTestamentBook, kBookCount - 1));
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(books);
    layout->addLayout(buttonColumn());
    cmd승인->setDefault(true);
    connect(cmd승인, &QPushButton::clicked, this, [this] { cmd승인_Click(); });
    connect(cmd취소, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmd지우기, &QPushButton::clicked, this, [this] { setBooks(0, kBookCount - 1, false); });
    chk책명(0)->setFocus();
}

QWidget* dlog책별선택::testamentBox(const QString& title, int first, int last)
{
    auto* box = new QGroupBox(title);
    auto* grid = new QGridLayout(box);
    for (int book = first; book <= last; ++book)
        grid->addWidget(chk책명(book), (book - first) / kColumns, (book - first) % kColumns);
    return box;
}

QLayout* dlog책별선택::buttonColumn()
{
    auto* column = new QVBoxLayout;
    for (std::size_t i = 0; i < kBookRanges.size(); ++i) {
        const BookRange& range = kBookRanges[i];
        auto* button = named<QPushButton>(range.name, range.caption);
        // The captions are fixed words: the key stands in the tip.
        const QKeySequence key(u"Alt+%1"_s.arg(i + 1));
        button->setShortcut(key);
        button->setToolTip(key.toString(QKeySequence::NativeText));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [this, range] { setBooks(range.first, range.last, true); });
        column->addWidget(button);
        groupButtons[i] = button;
    }
    cmd지우기->setShortcut(QKeySequence(u"Alt+0"_s));
    cmd지우기->setToolTip(u"Alt+0"_s);
    cmd지우기->setAutoDefault(false);
    column->addWidget(cmd지우기);
    column->addStretch();
    column->addWidget(cmd승인);
    column->addWidget(cmd취소);
    return column;
}

void dlog책별선택::setBooks(int first, int last, bool ticked)
{
    for (int book = first; book <= last; ++book)
        if (chk책명(book)->isEnabled())
            chk책명(book)->setChecked(ticked);
}

void dlog책별선택::restrictTo(Testament testament)
{
    const bool old = testament == Testament::Old;
    setBooks(0, kBookCount - 1, false);
    for (int book = 0; book < kBookCount; ++book)
        chk책명(book)->setEnabled((book < kFirstNewTestamentBook) == old);
    for (std::size_t i = 0; i < kBookRanges.size(); ++i)
        groupButtons[i]->setEnabled((kBookRanges[i].first < kFirstNewTestamentBook) == old);
    chk책명(old ? 0 : kFirstNewTestamentBook)->setFocus();
}

void dlog책별선택::cmd승인_Click()
{
    BookSet chosen;
    for (int book = 0; book < kBookCount; ++book)
        chosen.set(static_cast<std::size_t>(book), chk책명(book)->isChecked());
    if (chosen.none() && m_services.messages.show(this, messages::kNoBookChosen) != Answer::Yes)
        return;
    m_scopeTag = bookListTag(chosen);
    accept();
}

} // namespace lumen
