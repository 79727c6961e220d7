// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/hebrew_morphology.h"

#include <algorithm>
#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kOpen{u'-'};
// Stands where "-" would say that a verb lacks something which the source doesn't tell.
constexpr QChar kUntold{u'.'};

struct Letters
{
    char16_t source;
    char16_t code;
};

constexpr std::array kHebrewStems{
    Letters{'q', 'q'},
    Letters{'N', 'n'},
    Letters{'p', 'p'},
    Letters{'P', 'u'},
    Letters{'h', 'h'},
    Letters{'H', 'o'},
    Letters{'t', 't'},
    Letters{'o', 'e'},
    Letters{'O', 'f'},
    Letters{'r', 'v'},
    Letters{'m', 'k'},
    Letters{'M', 'l'},
    Letters{'k', 'a'},
    Letters{'K', 'i'},
    Letters{'Q', 'y'},
    Letters{'l', 'd'},
    Letters{'L', 'g'},
    Letters{'f', 'w'},
    Letters{'D', 'x'},
    Letters{'j', 'b'},
    Letters{'i', 'c'},
    Letters{'u', 'r'},
    Letters{'c', 'm'},
    Letters{'v', 's'},
    // Nithpael forms and a Hithpoel have no letter of their own; these are the nearest.
    Letters{'w', 'x'},
    Letters{'y', 'x'},
    Letters{'z', 'v'},
};

constexpr std::array kAramaicStems{
    Letters{'q', 'N'}, Letters{'Q', 'O'}, Letters{'u', 'F'}, Letters{'p', 'M'}, Letters{'P', 'K'},
    Letters{'M', 'S'}, Letters{'a', 'A'}, Letters{'h', 'B'}, Letters{'s', 'Q'}, Letters{'e', 'R'},
    Letters{'H', 'D'}, Letters{'i', 'J'}, Letters{'t', 'H'}, Letters{'v', 'I'}, Letters{'w', 'E'},
    Letters{'o', 'P'}, Letters{'z', 'V'}, Letters{'r', 'G'}, Letters{'f', 'T'}, Letters{'b', 'C'},
    Letters{'c', 'W'}, Letters{'m', 'L'}, Letters{'l', 'M'}, Letters{'L', 'K'}, Letters{'O', 'V'},
    Letters{'G', 'A'},
};

constexpr std::array kAspects{
    Letters{'p', 'p'}, Letters{'q', 'p'}, Letters{'i', 'i'}, Letters{'u', 'i'},
    Letters{'h', 'i'}, Letters{'j', 'i'}, Letters{'w', 'w'}, Letters{'v', 'v'},
    Letters{'r', 'P'}, Letters{'a', 'a'}, Letters{'c', 'c'},
};

constexpr std::array kParticles{
    Letters{'a', 'd'}, Letters{'d', 'a'}, Letters{'e', 'i'}, Letters{'i', 'g'}, Letters{'j', 'i'},
    Letters{'m', 'i'}, Letters{'n', 'n'}, Letters{'o', 'o'}, Letters{'r', 'r'},
};

template <std::size_t N>
QChar codeOf(const std::array<Letters, N>& table, QChar source)
{
    const auto found = std::ranges::find(table, source.unicode(), &Letters::source);
    return found == table.end() ? kOpen : QChar(found->code);
}

// Beyond the end of a piece nothing is told, and "x" tells that nothing is known.
QChar letterAt(const QString& piece, qsizetype at)
{
    if (at >= piece.size() || piece[at] == u'x')
        return kOpen;
    return piece[at];
}

QChar oneOf(QChar letter, QStringView allowed)
{
    return allowed.contains(letter) ? letter : kOpen;
}

QChar nounGender(QChar letter)
{
    return letter == u'c' ? QChar(u'b') : oneOf(letter, u"mfb");
}

// Verbs and pronouns know a common gender only.
QChar verbGender(QChar letter)
{
    return letter == u'b' ? QChar(u'c') : oneOf(letter, u"mfc");
}

QChar numberOf(QChar letter)
{
    return oneOf(letter, u"spd");
}

QChar stateOf(QChar letter)
{
    return oneOf(letter, u"acd");
}

QChar personOf(QChar letter)
{
    return oneOf(letter, u"123");
}

bool isSuffix(const QString& piece)
{
    return piece.startsWith(u'S');
}

bool takesSuffix(const QString& piece)
{
    return piece.startsWith(u'N') || piece.startsWith(u'A') || piece.startsWith(u'V');
}

// The parts of a word that stand behind its head in the code.
struct Tail
{
    QString suffix = u"---"_s;
    QChar ending = kOpen;
    QChar homonym = kOpen;
    QChar reading = kOpen;

    QString code() const { return u"S"_s + suffix + endCode(); }
    QString endCode() const { return u"E"_s + ending + u"H"_s + homonym + u"R"_s + reading; }
};

QChar readingLetter(Reading reading)
{
    if (reading == Reading::Plain)
        return kOpen;
    return reading == Reading::Ketiv ? u'k' : u'q';
}

// Three homonyms can be told apart; a fourth and further ones count as the third.
QChar homonymLetter(QStringView lemmaPiece)
{
    for (const QChar c : lemmaPiece)
        if (c >= u'a' && c <= u'z')
            return QChar(u'1' + std::min(c.unicode() - u'a', 2));
    return kOpen;
}

int digitsOf(QStringView piece)
{
    int number = 0;
    for (const QChar c : piece)
        if (c.isDigit())
            number = number * 10 + c.digitValue();
    return number;
}

class HebrewWordParser
{
public:
    HebrewWordParser(const QString& morph, const QString& lemma, const QString& consonants,
                     Reading reading);

    HebrewParsing run();

private:
    void dropEmphaticEndings();
    void findHead();
    void takeTail(qsizetype piece);
    void takeLemma();
    bool isInterrogative(const QString& piece) const;
    QString coded(const QString& piece, const Tail& tail);
    QString nounCode(const QString& piece, const Tail& tail);
    QString adjectiveCode(const QString& piece, const Tail& tail) const;
    QString pronounCode(const QString& piece, const Tail& tail);
    QString particleCode(QChar kind, const Tail& tail);
    QString verbCode(const QString& piece, const Tail& tail);
    QString finiteOrNot(const QString& piece, QChar type) const;
    static QChar shortened(QChar type);
    QChar lengthened(QChar type) const;

    bool m_isAramaic;
    QStringList m_pieces;
    QStringList m_lemmas;
    QString m_consonants;
    qsizetype m_head = 0;
    Tail m_tail;
    HebrewParsing m_result;
};

HebrewWordParser::HebrewWordParser(const QString& morph, const QString& lemma,
                                   const QString& consonants, Reading reading)
    : m_isAramaic(morph.startsWith(u'A')), m_pieces(morph.mid(1).split(u'/')),
      m_lemmas(lemma.split(u'/')), m_consonants(consonants)
{
    m_tail.reading = readingLetter(reading);
}

HebrewParsing HebrewWordParser::run()
{
    if (m_isAramaic)
        dropEmphaticEndings();
    findHead();
    for (qsizetype i = m_head + 1; i < m_pieces.size(); ++i)
        takeTail(i);
    takeLemma();
    Tail empty;
    empty.reading = m_tail.reading;
    for (qsizetype i = 0; i < m_head; ++i)
        m_result.prefixes << coded(m_pieces[i], empty);
    m_result.code = coded(m_pieces[m_head], m_tail);
    return m_result;
}

// The article of Aramaic is an ending: its state stands in the noun already.
void HebrewWordParser::dropEmphaticEndings()
{
    while (m_pieces.size() > 1 && m_pieces.last() == u"Td")
        m_pieces.removeLast();
}

void HebrewWordParser::findHead()
{
    m_head = m_pieces.size() - 1;
    while (m_head > 0) {
        const QString& piece = m_pieces[m_head];
        const bool pronounBehind = piece.startsWith(u"Pp") && takesSuffix(m_pieces[m_head - 1]);
        if (!isSuffix(piece) && !pronounBehind)
            break;
        --m_head;
    }
}

void HebrewWordParser::takeTail(qsizetype at)
{
    const QString& piece = m_pieces[at];
    const QChar kind = letterAt(piece, 1);
    if (kind == u'p')
        m_tail.suffix = QString(personOf(letterAt(piece, 2))) + oneOf(letterAt(piece, 3), u"mfbc") +
                        numberOf(letterAt(piece, 4));
    else
        m_tail.ending = oneOf(kind, u"hdn");
}

void HebrewWordParser::takeLemma()
{
    QString piece = m_lemmas.value(m_head);
    for (qsizetype i = m_lemmas.size() - 1; i >= 0 && digitsOf(piece) == 0; --i)
        piece = m_lemmas[i];
    m_result.strong = digitsOf(piece);
    if (m_result.strong != 0)
        m_tail.homonym = homonymLetter(piece);
}

// Who, what and which are tagged as particles or demonstratives.
bool HebrewWordParser::isInterrogative(const QString& piece) const
{
    const int strong = m_result.strong;
    if (piece == u"Ti")
        return m_isAramaic ? strong == 4101 : strong == 4310 || strong == 4100;
    return m_isAramaic && (piece.startsWith(u"Pf") || piece.startsWith(u"Pi")) &&
           (strong == 4101 || strong == 4479);
}

QString HebrewWordParser::coded(const QString& piece, const Tail& tail)
{
    const QString language = m_isAramaic ? u"%"_s : u"@"_s;
    const QChar kind = letterAt(piece, 0);
    const QChar type = letterAt(piece, 1);
    if (isInterrogative(piece))
        return language + u"pq---"_s + tail.code();
    if (kind == u'N')
        return language + nounCode(piece, tail);
    if (kind == u'A' && type == u'g')
        return language + nounCode(u"Ng"_s + piece.mid(2), tail);
    if (kind == u'A')
        return language + adjectiveCode(piece, tail);
    if (kind == u'V')
        return language + verbCode(piece, tail);
    if (kind == u'P' && type != u'r')
        return language + pronounCode(piece, tail);
    if (kind == u'P')
        return language + particleCode(u'r', tail);
    if (kind == u'R')
        return language + particleCode(type == u'd' ? u's' : u'p', tail);
    if (kind == u'C' || kind == u'D')
        return language + particleCode(kind.toLower(), tail);
    return language + particleCode(codeOf(kParticles, type), tail);
}

QString HebrewWordParser::nounCode(const QString& piece, const Tail& tail)
{
    const QChar kind = oneOf(letterAt(piece, 1), u"cpg");
    m_result.isComplete = m_result.isComplete && kind != kOpen;
    if (kind == u'p') // a name tells gender here and there only, so it is left open throughout
        return u"np---"_s + tail.code();
    return u"n"_s + kind + nounGender(letterAt(piece, 2)) + numberOf(letterAt(piece, 3)) +
           stateOf(letterAt(piece, 4)) + tail.code();
}

QString HebrewWordParser::adjectiveCode(const QString& piece, const Tail& tail) const
{
    return u"a"_s + oneOf(letterAt(piece, 2), u"mfbc") + numberOf(letterAt(piece, 3)) +
           stateOf(letterAt(piece, 4)) + tail.code();
}

QString HebrewWordParser::pronounCode(const QString& piece, const Tail& tail)
{
    const QChar type = letterAt(piece, 1);
    const QChar kind = type == u'p' ? QChar(u'i') : type == u'i' ? QChar(u'q') : kOpen;
    m_result.isComplete = m_result.isComplete && kind != kOpen;
    return u"p"_s + kind + personOf(letterAt(piece, 2)) + verbGender(letterAt(piece, 3)) +
           numberOf(letterAt(piece, 4)) + tail.code();
}

QString HebrewWordParser::particleCode(QChar kind, const Tail& tail)
{
    m_result.isComplete = m_result.isComplete && kind != kOpen;
    return u"P"_s + kind + tail.code();
}

// Person, gender, number and state, as far as the form has them.
QString HebrewWordParser::finiteOrNot(const QString& piece, QChar type) const
{
    if (type == u'a' || type == u'c')
        return u"----"_s;
    if (type == u'r' || type == u's')
        return QString(kOpen) + verbGender(letterAt(piece, 3)) + numberOf(letterAt(piece, 4)) +
               stateOf(letterAt(piece, 5));
    return QString(personOf(letterAt(piece, 3))) + verbGender(letterAt(piece, 4)) +
           numberOf(letterAt(piece, 5)) + kOpen;
}

// Jussives are told. Other imperfects and imperatives may have a short form, the rest has none.
QChar HebrewWordParser::shortened(QChar type)
{
    if (type == u'j')
        return u'm';
    return QStringView(u"iuwv").contains(type) ? kUntold : kOpen;
}

// A cohortative that shows its ending is lengthened in form and meaning, else in meaning only.
QChar HebrewWordParser::lengthened(QChar type) const
{
    if (type != u'h')
        return kOpen;
    return m_consonants.endsWith(u'h') ? u't' : u'm';
}

QString HebrewWordParser::verbCode(const QString& piece, const Tail& tail)
{
    const QChar sourceStem = letterAt(piece, 1);
    const QChar stem =
        m_isAramaic ? codeOf(kAramaicStems, sourceStem) : codeOf(kHebrewStems, sourceStem);
    const QChar type = letterAt(piece, 2);
    QChar aspect = codeOf(kAspects, type);
    if (type == u's') // only the passive participle of the simple stem has a letter
        aspect = sourceStem == u'q' ? u's' : u'P';
    m_result.isComplete = m_result.isComplete && stem != kOpen && aspect != kOpen;
    return u"v"_s + stem + aspect + finiteOrNot(piece, type) + u"S"_s + tail.suffix + u"J"_s +
           shortened(type) + u"C"_s + lengthened(type) + u"A"_s + kUntold + tail.endCode();
}

} // namespace

HebrewParsing parseHebrew(const QString& morph, const QString& lemma, const QString& consonants,
                          Reading reading)
{
    return HebrewWordParser(morph, lemma, consonants, reading).run();
}

QString hebrewMarkCode(bool isAramaic)
{
    return isAramaic ? u"%xxxxxx"_s : u"@xxxxxx"_s;
}

} // namespace lumen
