// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/sword/osis_collector.h"

#include "sources/text_cleaning.h"

#include <algorithm>
#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QStringView, 5> kPassedElements{u"note", u"figure", u"header", u"index",
                                                     u"rdg"};
constexpr std::array<QStringView, 3> kPassedDivisions{u"colophon", u"introduction", u"x-colophon"};
// Titles that don't head a passage: those of books and chapters, cross references, page heads.
constexpr std::array<QStringView, 6> kPassedTitles{u"main",     u"chapter", u"runningHead",
                                                   u"parallel", u"scope",   u"continued"};
// These stand between words without a blank of their own.
constexpr std::array<QStringView, 13> kBlanks{u"l",    u"lg",    u"lb",     u"p",   u"div",
                                              u"item", u"list",  u"table",  u"row", u"cell",
                                              u"head", u"verse", u"chapter"};

template <typename Names>
bool isOneOf(QStringView name, const Names& names)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

// "strong:H0853 strong:H01254" gives "<853><1254>"; words of the Greek text stand there too.
QString strongNumbers(QStringView lemma)
{
    QString result;
    for (QStringView item : lemma.split(u' ', Qt::SkipEmptyParts)) {
        if (item.startsWith(u"strong:"))
            item = item.mid(7);
        if (!item.startsWith(u'G') && !item.startsWith(u'H'))
            continue;
        bool isNumber = false;
        const int number = item.mid(1).toInt(&isNumber);
        if (isNumber && number > 0)
            result += u"<%1>"_s.arg(number);
    }
    return result;
}

} // namespace

bool OsisCollector::hasWords() const
{
    return std::any_of(m_words.begin(), m_words.end(), [](QChar c) { return !c.isSpace(); });
}

bool OsisCollector::passesOver(QStringView element, const Attribute& attribute)
{
    if (m_passedDepth > 0) {
        // Only the element's own name is counted: entries of modules break off inside notes.
        if (element != m_passedElement)
            return true;
        if (m_passedUntil.isEmpty())
            ++m_passedDepth;
        else if (attribute(u"eID") == m_passedUntil)
            m_passedDepth = 0;
        return true;
    }
    const bool passed = isOneOf(element, kPassedElements) ||
                        (element == u"div" && isOneOf(attribute(u"type"), kPassedDivisions) &&
                         attribute(u"eID").isEmpty());
    if (!passed)
        return false;
    m_passedElement = element.toString();
    m_passedUntil = attribute(u"sID").toString();
    m_passedDepth = 1;
    return true;
}

void OsisCollector::start(QStringView element, const Attribute& attribute)
{
    if (passesOver(element, attribute))
        return;
    if (element == u"title")
        startTitle(attribute);
    else if (element == u"w")
        startWord(attribute);
    else if (element == u"divineName") {
        flushDivineName();
        m_insideDivineName = true;
    } else if (element == u"foreign" && insideTitle() && !attribute(u"n").isEmpty())
        append(attribute(u"n").toString() + u' ');
    else if (element == u"q" || (element == u"milestone" && attribute(u"type") == u"cQuote"))
        append(attribute(u"marker"));
    else if (isOneOf(element, kBlanks) ||
             (element == u"milestone" && attribute(u"type") == u"line"))
        append(u" ");
}

void OsisCollector::end(QStringView element)
{
    if (m_passedDepth > 0) {
        if (m_passedUntil.isEmpty() && element == m_passedElement)
            --m_passedDepth;
        return;
    }
    if (element == u"title")
        endTitle();
    else if (element == u"w")
        endWord();
    else if (element == u"divineName")
        flushDivineName();
    else if (isOneOf(element, kBlanks))
        append(u" ");
}

void OsisCollector::characters(QStringView text)
{
    if (m_passedDepth > 0)
        return;
    if (!insideTitle() && !m_lateHeading.isEmpty() && !text.trimmed().isEmpty()) {
        // Words follow, so the heading stood inside the verse: it is shown above it.
        addHeading(m_heading, m_lateHeading);
        m_lateHeading.clear();
    }
    append(text);
}

void OsisCollector::append(QStringView text)
{
    (m_insideDivineName ? m_divineName : target()) += text;
}

void OsisCollector::flushDivineName()
{
    if (!m_insideDivineName)
        return;
    m_insideDivineName = false;
    target() += divineCapitals(m_divineName);
    m_divineName.clear();
}

void OsisCollector::startWord(const Attribute& attribute)
{
    if (m_numbers == StrongNumbers::Drop || insideTitle())
        return;
    m_lemma = attribute(u"lemma").toString();
    m_wordStart = m_words.size() + m_divineName.size();
}

void OsisCollector::endWord()
{
    if (m_lemma.isEmpty())
        return;
    // An empty element is a word that the translation leaves out.
    if (m_words.size() + m_divineName.size() > m_wordStart)
        append(strongNumbers(m_lemma));
    m_lemma.clear();
}

OsisCollector::Title OsisCollector::titleKind(const Attribute& attribute)
{
    const QStringView type = attribute(u"type");
    if (type == u"psalm")
        return Title::Psalm;
    return isOneOf(type, kPassedTitles) ? Title::Passed : Title::Heading;
}

void OsisCollector::startTitle(const Attribute& attribute)
{
    flushDivineName();
    m_titleText.clear();
    m_title = titleKind(attribute);
}

void OsisCollector::endTitle()
{
    flushDivineName();
    const QString title = tidyText(m_titleText);
    const Title kind = std::exchange(m_title, Title::None);
    m_titleText.clear();
    if (title.isEmpty() || kind == Title::Passed || kind == Title::None)
        return;
    if (hasWords())
        addHeading(m_lateHeading, title);
    else if (kind == Title::Heading)
        addHeading(m_heading, title);
    else
        m_psalmTitle += m_psalmTitle.isEmpty() ? title : u' ' + title;
}

QString OsisCollector::takeVerse(VerseText& verse)
{
    flushDivineName();
    verse.text = textOrNothing(m_words);
    if (!m_psalmTitle.isEmpty())
        verse.part = m_psalmTitle;
    verse.miniTitle = m_heading;
    QString late = m_lateHeading;
    reset();
    return late;
}

void OsisCollector::dropWords()
{
    const QString psalmTitle = m_psalmTitle;
    const QString heading = m_heading;
    reset();
    m_psalmTitle = psalmTitle;
    m_heading = heading;
}

void OsisCollector::reset()
{
    *this = OsisCollector(m_numbers);
}

} // namespace lumen
