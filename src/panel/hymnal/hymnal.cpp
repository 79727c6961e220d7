// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/hymnal/hymnal.h"

#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "data/module_path.h"
#include "forms/guarded.h"
#include "forms/reader_place.h"
#include "forms/wait_pointer.h"
#include "jet/rows/recordset.h"
#include "panel/hymnal/hymn_search_dialog.h"
#include "panel/messages.h"
#include "platform/controls/bars/wrapping_row.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/files/shell.h"
#include "text/basic_text.h"
#include "text/field_scramble.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kLastNumber = 558;
constexpr int kLongestNumber = 4; // digits
constexpr int kNumberWidth = 60;  // pixels

// A hymnal brings its lists as texts; lines and semicolons divide both kinds. A comma divides
// numbers only: in a reference it stands between verses.
QStringList itemsOf(const QString& text, const QString& division)
{
    QStringList items;
    for (const QString& part : text.split(QRegularExpression(division), Qt::SkipEmptyParts))
        if (const QString item = part.trimmed(); !item.isEmpty())
            items << item;
    return items;
}

QStringList hymnItems(const QString& text)
{
    QStringList items = itemsOf(text, u"[;,\r\n]"_s);
    for (QString& item : items) {
        bool isNumber = false;
        item.toInt(&isNumber);
        if (isNumber)
            item += u" 장"_s;
    }
    return items;
}

QStringList verseItems(const QString& text)
{
    return itemsOf(text, u"[;\r\n]"_s);
}

// A text that names no chapter would lead to Genesis; a chapter alone is its first verse.
std::optional<VersePlace> placeOf(const QString& item)
{
    QString reference = QString(item).remove(u' ');
    if (!reference.contains(u':'))
        reference += u":1"_s;
    const VersePlace place = BibleCode::ParseRef(reference);
    if (!reference.startsWith(bookAbbreviation(place.book) + QString::number(place.chapter) + u':'))
        return {};
    return place;
}

} // namespace

Hymnal::Hymnal(const PanelHost& host) : ModuleTab(host, kHymnalModule)
{
    tx찬송가장->setText(u"1"_s);
    tx찬송가장->setMaxLength(kLongestNumber);
    tx찬송가장->setValidator(
        new QRegularExpressionValidator(QRegularExpression(u"[0-9 ]*"_s), tx찬송가장));
    updn찬송가->setRange(1, kLastNumber);
    updn찬송가->showArrowsOnly();
    for (QLineEdit* field : {tx찬송가제목, tx작사, tx작곡, tx분류})
        field->setReadOnly(true);
    layOut();
    wire();
}

void Hymnal::layOut()
{
    tx찬송가장->setFixedWidth(kNumberWidth);
    auto* number = new QWidget;
    auto* numberRow = new QHBoxLayout(number);
    numberRow->setContentsMargins(0, 0, 0, 0);
    numberRow->addWidget(tx찬송가장);
    numberRow->addWidget(updn찬송가);
    numberRow->addWidget(new QLabel(u"장"_s));
    numberRow->addStretch();
    auto* head = new WrappingRow;
    for (QWidget* control :
         {number, static_cast<QWidget*>(cmd찬송가연주), static_cast<QWidget*>(cmd찬송가검색)})
        head->addWidget(control);
    auto* lists = new QHBoxLayout;
    for (ListBox* list : {lst관련찬송, lst관련성구}) {
        auto* column = new QVBoxLayout;
        column->addWidget(new QLabel(list->accessibleName()));
        column->addWidget(list, 1);
        lists->addLayout(column, 1);
    }
    auto* layout = new QVBoxLayout(m_page);
    layout->addLayout(head);
    layout->addLayout(fieldColumn());
    layout->addLayout(lists, 1);
    m_page->setFocusProxy(tx찬송가장);
}

QLayout* Hymnal::fieldColumn()
{
    auto* fields = new QGridLayout;
    int row = 0;
    for (QLineEdit* field : {tx찬송가제목, tx작사, tx작곡, tx분류}) {
        fields->addWidget(new QLabel(field->accessibleName()), row, 0);
        fields->addWidget(field, row, 1);
        ++row;
    }
    return fields;
}

void Hymnal::wire()
{
    const auto handler = [this](auto handle) {
        return [this, handle] { guarded(m_host.services, m_page, handle); };
    };
    QObject::connect(tx찬송가장, &QLineEdit::returnPressed, m_page,
                     handler([this] { showTyped(); }));
    // The arrows go on from what the box holds, also before Enter.
    QObject::connect(tx찬송가장, &QLineEdit::textEdited, m_page, [this](const QString& typed) {
        const QSignalBlocker quiet(updn찬송가);
        updn찬송가->setNumber(ValInt(typed));
    });
    updn찬송가->onChange = handler([this] {
        const int number = updn찬송가->Value();
        show(number, m_shown && number < *m_shown ? Towards::Lower : Towards::Higher);
    });
    const auto step = [this](Qt::Key key, int steps) {
        auto* shortcut = new QShortcut(key, tx찬송가장, nullptr, nullptr, Qt::WidgetShortcut);
        QObject::connect(shortcut, &QShortcut::activated, m_page,
                         [this, steps] { updn찬송가->stepBy(steps); });
    };
    step(Qt::Key_Up, 1);
    step(Qt::Key_Down, -1);
    lst관련찬송->onDblClick = handler([this] {
        if (const int number = ValInt(lst관련찬송->Text()); number > 0)
            show(number, Towards::Lower);
    });
    lst관련성구->onDblClick = [this] { openVerse(); };
    QObject::connect(cmd찬송가연주, &QPushButton::clicked, m_page, handler([this] { play(); }));
    QObject::connect(cmd찬송가검색, &QPushButton::clicked, m_page, [this] { openSearch(); });
}

void Hymnal::enter()
{
    tell(QString());
    const bool installed = takeStock();
    tx찬송가제목->setPlaceholderText(installed ? QString() : u"찬송가 모듈 z201.dts 없음"_s);
    if (installed)
        Proc찬송가표시();
}

void Hymnal::close()
{
    if (m_search != nullptr)
        m_search->release();
}

void Hymnal::Proc찬송가표시()
{
    show(ValInt(tx찬송가장->text()), Towards::Lower);
}

void Hymnal::showTyped()
{
    // What is no number goes back to the hymn on show.
    if (ValInt(tx찬송가장->text()) < 1)
        setNumber(m_shown.value_or(1));
    Proc찬송가표시();
}

void Hymnal::show(int number, Towards towards)
{
    number = std::clamp(number, 1, kLastNumber);
    setNumber(number);
    if (m_shown == number)
        return;
    const WaitPointer wait;
    m_shown = number;
    // Before the query: one that fails leaves nothing of another hymn.
    clear();
    if (showRecord(number))
        return;
    const Towards back = towards == Towards::Lower ? Towards::Higher : Towards::Lower;
    std::optional<int> valid = nextNumber(number, towards);
    if (!valid)
        valid = nextNumber(number, back);
    if (!valid)
        return; // a hymnal without hymns
    m_shown = valid;
    setNumber(*valid);
    showRecord(*valid);
}

bool Hymnal::showRecord(int number)
{
    Recordset& rows = ask(u"Select * from Hymm where Num = "_s + QString::number(number));
    if (rows.RecordCount() == 0)
        return false;
    if (rows.Fields(u"cont").Value().isNull())
        return true;
    const auto plain = [&rows](QStringView field) {
        return DES::UnscrambleField(Text(rows.Fields(field)));
    };
    const struct
    {
        QLineEdit* box;
        QStringView field;
    } boxes[] = {{tx찬송가제목, u"Title"},
                 {tx작사, u"Writer"},
                 {tx작곡, u"Composer"},
                 {tx분류, u"Category"}};
    for (const auto& [box, field] : boxes) {
        box->setText(plain(field));
        box->setToolTip(box->text()); // the panel may be too narrow for it
        box->setCursorPosition(0);
    }
    lst관련찬송->AddItems(hymnItems(plain(u"SongRef")));
    lst관련성구->AddItems(verseItems(plain(u"BibleRef")));
    return true;
}

std::optional<int> Hymnal::nextNumber(int number, Towards towards)
{
    const bool lower = towards == Towards::Lower;
    Recordset& rows = ask(u"Select Num from Hymm where Num %1 %2 order by Num%3"_s.arg(
        lower ? u"<"_s : u">"_s, QString::number(number), lower ? u" desc"_s : QString()));
    if (rows.RecordCount() == 0)
        return {};
    return Number(rows.Fields(u"Num"));
}

void Hymnal::setNumber(int number)
{
    tx찬송가장->setText(QString::number(number));
    tx찬송가장->selectAll(); // the next number that is typed takes its place
    const QSignalBlocker quiet(updn찬송가);
    updn찬송가->setNumber(number);
}

void Hymnal::clear()
{
    for (QLineEdit* field : {tx찬송가제목, tx작사, tx작곡, tx분류}) {
        field->clear();
        field->setToolTip({});
    }
    lst관련찬송->Clear();
    lst관련성구->Clear();
}

void Hymnal::openVerse()
{
    if (const std::optional<VersePlace> place = placeOf(lst관련성구->Text()))
        m_host.reader.goTo(place->book, place->chapter, place->verse);
}

void Hymnal::play()
{
    // A number that was typed is shown first, so that the tune is that of the hymn in view.
    showTyped();
    const QString tune = modulePath(m_host.services.files, m_host.state,
                                    u"\\Hymn\\%1.mid"_s.arg(Trim(tx찬송가장->text())));
    const Result<Done> opened = m_host.services.shell.open(tune);
    if (!opened)
        m_host.services.messages.show(m_page,
                                      opened.failure().kind == FailureKind::NotFound
                                          ? messages::kTuneMissing
                                          : messages::kNoPlayer,
                                      {tune});
}

void Hymnal::openSearch()
{
    if (m_search == nullptr) {
        m_search = new dlog찬송가검색(m_host.services, m_host.state, m_page->window());
        m_search->onChosen = [this](int number) {
            setNumber(number);
            // The search may stand open while another tab is on show, or none.
            if (bringOnShow)
                bringOnShow();
            Proc찬송가표시();
        };
    }
    m_search->begin();
}

} // namespace lumen
