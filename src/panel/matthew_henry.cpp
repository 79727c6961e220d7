// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/matthew_henry.h"

#include "canon/canon_table.h"
#include "forms/guarded.h"
#include "forms/wait_pointer.h"
#include "jet/rows/recordset.h"
#include "platform/controls/bars/wrapping_row.h"
#include "text/basic_text.h"
#include "text/field_scramble.h"

#include <QHBoxLayout>
#include <QRegularExpression>
#include <QVBoxLayout>

#include <limits>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kModule = u"\\Data\\mhcc.dts";

/// The verses that a row covers, "5", "1-3" or "1,3"; an empty text is the whole chapter.
struct Section
{
    int first = 0;
    int last = std::numeric_limits<int>::max();
    bool isChapter = true;

    bool holds(int verse) const { return isChapter || (verse >= first && verse <= last); }
};

Section sectionOf(const QString& verses)
{
    if (verses.isEmpty())
        return {};
    static const QRegularExpression division(u"[-,]"_s);
    const qsizetype cut = verses.indexOf(division);
    const int first = ValInt(cut < 0 ? verses : verses.left(cut));
    const QString last = cut < 0 ? QString() : verses.mid(cut + 1);
    return {first, last.isEmpty() ? first : ValInt(last), false};
}

QString plainText(Recordset& rows, QStringView field)
{
    return DES::UnscrambleField(Text(rows.Fields(field)));
}

} // namespace

MatthewHenry::MatthewHenry(const PanelHost& host) : ModuleTab(host, kModule, &InstalledFlags::mhcc)
{
    layOut();
    Opt절별주석->setChecked(true);
    for (QRadioButton* option : {Opt절별주석, Opt장별주석})
        QObject::connect(option, &QRadioButton::clicked, m_page, [this] {
            guarded(m_host.services, m_page, [this] { ProcMH주석표시(); });
        });
}

void MatthewHenry::layOut()
{
    tx주석인덱스->setReadOnly(true);
    for (TextControl* text : {txMH주석한글, txMH주석영문})
        text->setReadOnly(true);
    auto* options = new WrappingRow;
    for (QWidget* control : {static_cast<QWidget*>(Opt절별주석), static_cast<QWidget*>(Opt장별주석),
                             static_cast<QWidget*>(tx주석인덱스)})
        options->addWidget(control);
    auto* texts = new QHBoxLayout;
    texts->addWidget(txMH주석한글);
    texts->addWidget(txMH주석영문);
    auto* layout = new QVBoxLayout(m_page);
    layout->addLayout(options);
    layout->addLayout(texts, 1);
}

void MatthewHenry::enter()
{
    tell(QString());
    takeStock();
    ProcMH주석표시();
}

MatthewHenry::Mode MatthewHenry::mode() const
{
    return Opt절별주석->isChecked() ? Mode::Verse : Mode::Chapter;
}

bool MatthewHenry::isShown(const QString& key, int verse) const
{
    return m_shown && m_shown->key == key && m_shown->mode == mode() &&
           (m_shown->mode == Mode::Chapter ||
            (verse >= m_shown->firstVerse && verse <= m_shown->lastVerse));
}

void MatthewHenry::ProcMH주석표시()
{
    const std::optional<VersePlace> place = readerPlace();
    if (!m_host.state.installed.mhcc || !place)
        return;
    const QString key = bookAbbreviation(place->book) + QString::number(place->chapter);
    if (isShown(key, place->verse))
        return;
    const WaitPointer wait;
    // A verse without a section is known too; a section found widens this below.
    m_shown = Shown{key, mode(), place->verse, place->verse};
    // Before the query: one that fails leaves no commentary of another place.
    clear();
    if (mode() == Mode::Chapter)
        showChapter(key);
    else
        showVerse(key, place->verse);
}

void MatthewHenry::showChapter(const QString& key)
{
    Recordset& rows = ask(u"select * from 책별주석 where book = '"_s + key + u"'"_s);
    if (rows.RecordCount() == 0)
        return;
    tx주석인덱스->setText(Text(rows.Fields(u"Book")));
    QString korean;
    QString english;
    for (; !rows.Eof(); rows.MoveNext()) {
        english += plainText(rows, u"cont") + u"\r\n\r\n"_s;
        korean += plainText(rows, u"Kcont") + u"\r\n\r\n"_s;
    }
    showTexts(korean, english);
}

void MatthewHenry::showVerse(const QString& key, int verse)
{
    Recordset& rows = ask(u"select * from 절별주석 where book = '"_s + key + u"'"_s);
    for (; !rows.Eof(); rows.MoveNext()) {
        const QString verses = Text(rows.Fields(u"verse"));
        const Section section = sectionOf(verses);
        if (!section.holds(verse))
            continue;
        m_shown->firstVerse = section.first;
        m_shown->lastVerse = section.last;
        const QString head = Text(rows.Fields(u"Book"));
        tx주석인덱스->setText(section.isChapter ? head + u" 전체"_s : head + u':' + verses);
        showTexts(plainText(rows, u"Kcont"), plainText(rows, u"cont"));
        return;
    }
}

void MatthewHenry::clear()
{
    tx주석인덱스->clear();
    showTexts({}, {});
}

void MatthewHenry::showTexts(const QString& korean, const QString& english)
{
    txMH주석한글->setText(korean.trimmed().isEmpty() ? QString() : korean);
    txMH주석영문->setText(english.trimmed().isEmpty() ? QString() : english);
    const bool englishAlone = txMH주석한글->Text().isEmpty() && !txMH주석영문->Text().isEmpty();
    txMH주석한글->setHidden(englishAlone);
}

} // namespace lumen
