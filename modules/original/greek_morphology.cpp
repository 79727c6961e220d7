// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/greek_morphology.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kOpen{u'-'};

struct TagRow
{
    QStringView tag;
    QStringView code;
};

// Tags that are a code by themselves, before those that are made of letters.
constexpr std::array kWholeTags{
    TagRow{u"N-PRI", u"$tp"}, TagRow{u"N-OI", u"$to"},   TagRow{u"N-LI", u"$tl"},
    TagRow{u"A-NUI", u"$tn"}, TagRow{u"CONJ-K", u"$qc"}, TagRow{u"CONJ-C", u"$qc"},
    TagRow{u"CONJ", u"$qo"},  TagRow{u"COND", u"$c"},    TagRow{u"PREP", u"$p"},
    TagRow{u"INJ", u"$i"},    TagRow{u"ARAM", u"$ta"},   TagRow{u"HEB", u"$th"},
    TagRow{u"PRT-I", u"$xi"}, TagRow{u"PRT-N", u"$xn"},  TagRow{u"PRT", u"$xo"},
    TagRow{u"ADV-C", u"$bc"}, TagRow{u"ADV-S", u"$bs"},  TagRow{u"ADV-I", u"$bi"},
    TagRow{u"ADV", u"$bn"},
};

struct Letters
{
    char16_t source;
    char16_t code;
};

constexpr std::array kMoods{
    Letters{'P', 'p'}, Letters{'N', 'n'}, Letters{'I', 'i'}, Letters{'M', 'd'},
    Letters{'S', 's'}, Letters{'O', 'o'}, Letters{'R', 'p'},
};

constexpr std::array kTenses{
    Letters{'P', 'p'}, Letters{'I', 'i'}, Letters{'F', 'f'}, Letters{'A', 'a'},
    Letters{'R', 'x'}, Letters{'L', 'y'}, Letters{'X', 'v'},
};

constexpr std::array kVoices{
    Letters{'A', 'a'}, Letters{'M', 'm'}, Letters{'P', 'p'}, Letters{'E', 'e'}, Letters{'D', 'd'},
    Letters{'O', 'o'}, Letters{'N', 'n'}, Letters{'Q', 'q'}, Letters{'X', 'x'},
};

constexpr std::array kPronouns{
    Letters{'P', 'p'}, Letters{'R', 'r'}, Letters{'C', 'e'}, Letters{'D', 'd'}, Letters{'K', 'c'},
    Letters{'I', 'q'}, Letters{'X', 'i'}, Letters{'Q', 'o'}, Letters{'F', 'x'}, Letters{'S', 's'},
};

template <std::size_t N>
QChar codeOf(const std::array<Letters, N>& table, QChar source)
{
    const auto found = std::ranges::find(table, source.unicode(), &Letters::source);
    return found == table.end() ? kOpen : QChar(found->code);
}

QChar firstOf(QStringView letters, QStringView allowed)
{
    for (const QChar c : letters)
        if (allowed.contains(c))
            return c.toLower();
    return kOpen;
}

// Case, gender and number, each found by its letter: some tags lack one or put them in another
// order. A case is looked for in front only, as N is the neuter too.
QString caseGenderNumber(QStringView letters)
{
    const QChar grammaticalCase = firstOf(letters.left(1), u"NGDAV");
    const QStringView rest = grammaticalCase == kOpen ? letters : letters.mid(1);
    const QChar gender = firstOf(rest, u"MFN");
    const QChar number = firstOf(rest, u"SP");
    return QString(grammaticalCase) + gender + number;
}

// A possessive tells person and number of the owner first, "1SNSM"; a personal pronoun the person.
QString pronounCode(QChar kind, QStringView letters)
{
    if (!letters.isEmpty() && letters[0].isDigit()) {
        letters = letters.mid(1);
        if (kind == u'S' && letters.size() > 3)
            letters = letters.mid(1);
    }
    return u"$r"_s + codeOf(kPronouns, kind) + caseGenderNumber(letters);
}

QString verbEnding(QChar mood, QStringView letters)
{
    if (mood == u'n')
        return {};
    if (letters.isEmpty() || !letters[0].isDigit())
        return mood == u'p' || !letters.isEmpty() ? caseGenderNumber(letters) : u"--"_s;
    return QString(firstOf(letters, u"123")) + firstOf(letters, u"SP");
}

QString verbCode(const QStringList& parts)
{
    QStringView letters = parts[1];
    if (letters.startsWith(u'2'))
        letters = letters.mid(1);
    const auto at = [letters](qsizetype i) { return i < letters.size() ? letters[i] : kOpen; };
    const QChar mood = codeOf(kMoods, at(2));
    return u"$v"_s + mood + codeOf(kTenses, at(0)) + codeOf(kVoices, at(1)) +
           verbEnding(mood, parts.value(2));
}

QString adjectiveCode(const QStringList& parts)
{
    const QString degree = parts.value(2);
    return u"$a"_s + caseGenderNumber(parts[1]) +
           (degree == u"C"   ? u'c'
            : degree == u"S" ? u's'
                             : u'n');
}

QString wholeTagCode(QStringView tag)
{
    for (const TagRow& row : kWholeTags)
        if (tag == row.tag || (tag.startsWith(row.tag) && tag.at(row.tag.size()) == u'-'))
            return row.code.toString();
    return {};
}

} // namespace

QString parseGreek(QStringView robinson)
{
    // One tag is written with a low line.
    const QString tag = robinson.toString().trimmed().replace(u'_', u'-');
    const QString whole = wholeTagCode(tag);
    if (!whole.isEmpty())
        return whole;
    const QStringList parts = tag.split(u'-');
    if (parts.size() < 2 || parts[0].size() != 1)
        return {};
    const QChar kind = parts[0][0];
    // A participle tagged as an article: "T-PAP-NSM".
    const bool isVerb = kind == u'V' || (kind == u'T' && parts.size() > 2 && parts[2].size() == 3);
    if (isVerb)
        return verbCode(parts);
    if (kind == u'N')
        return u"$n"_s + caseGenderNumber(parts[1]);
    if (kind == u'A')
        return adjectiveCode(parts);
    if (kind == u'T')
        return u"$d"_s + caseGenderNumber(parts[1]);
    if (codeOf(kPronouns, kind) != kOpen)
        return pronounCode(kind, parts[1]);
    return {};
}

QString greekSearchCodes(const QString& code)
{
    QString result = u"("_s + code + u");"_s;
    if (code.startsWith(u"$q"))
        result += u"($q);($c);"_s;
    else if (code.startsWith(u"$x"))
        result += u"($x);"_s;
    return result;
}

} // namespace lumen
