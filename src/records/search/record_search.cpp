// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/search/record_search.h"

#include "data/app_state.h"
#include "data/module_path.h"
#include "jet/engine.h"
#include "jet/error.h"
#include "records/record_values.h"
#include "text/query_literal.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr qsizetype kPreviewLength = 30;

QString dayLiteral(const QDate& day)
{
    return u'#' + dayString(day) + u'#';
}

// Half of a surrogate pair would turn into a wildcard on its way into the query.
QString withoutHalves(QString text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair)
            ++i;
        else if (text[i].isSurrogate())
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

// "like '*...*'" for a word that stands for itself.
QString likeWord(const QString& word)
{
    return u" like '*"_s + EscapeLikeText(withoutHalves(word.trimmed()), true) + u"*'"_s;
}

bool hasWord(const QString& word)
{
    return !word.trimmed().isEmpty();
}

QString oneLine(QString text, bool keepReturns)
{
    text.replace(u'\t', u' ').replace(u'\n', u' ');
    return keepReturns ? text.replace(u'\r', u' ') : text.remove(u'\r');
}

} // namespace

QString recordPreview(const QString& text)
{
    const bool isLong = text.size() > kPreviewLength;
    return oneLine(isLong ? text.left(kPreviewLength) + u"..."_s : text, false);
}

bool putInOrder(QDate& first, QDate& last)
{
    if (first <= last)
        return false;
    std::swap(first, last);
    return true;
}

namespace record_condition {

QString onDay(const QString& column, const QDate& day)
{
    return column + u" = "_s + dayLiteral(day);
}

QString betweenDays(const QString& column, const QDate& first, const QDate& last)
{
    return column + u" >= "_s + dayLiteral(first) + u" AND "_s + column + u" <= "_s +
           dayLiteral(last);
}

QString ofCategory(const QString& category)
{
    const QString text = category.trimmed();
    const QString condition = u"분류 = '"_s + EscapeSqlText(text) + u'\'';
    return text.isEmpty() ? condition + u" OR 분류 is null"_s : condition;
}

QString holds(const QString& column, const QString& word)
{
    return u'[' + column + u']' + likeWord(word);
}

QString holdsTerms(const QString& column, const Terms& terms)
{
    QString condition = column + likeWord(terms.words[0]) + u' ';
    for (std::size_t i = 1; i < terms.words.size(); ++i)
        if (hasWord(terms.words[i]))
            condition += (terms.connectors[i - 1] == Connector::And ? u" AND "_s : u" OR "_s) +
                         column + likeWord(terms.words[i]);
    return condition;
}

} // namespace record_condition

RecordSearch::RecordSearch(const RecordProfile& profile, JetEngine& jet, const AppState& state)
    : m_profile(profile), m_data(jet)
{
    m_data.DatabaseName = joinedPath(state.AppPath, profile.path);
    m_data.ReadOnly = true;
}

void RecordSearch::query(const QString& text)
{
    m_data.RecordSource = text;
    m_data.Refresh();
}

void RecordSearch::queryWhere(const QString& condition)
{
    query(m_profile.source() + u" where  "_s + condition);
}

QStringList RecordSearch::categories()
{
    query(u"select distinct 분류 from "_s + m_profile.table.toString());
    QStringList list;
    for (Recordset& rows = *m_data.Recordset(); !rows.Eof(); rows.MoveNext()) {
        const QString category = Text(rows.Fields(m_profile.category));
        if (!list.contains(category))
            list << category;
    }
    // The list is no result of a search that one could look within.
    m_data.setRecordset(nullptr);
    return list;
}

void RecordSearch::showAll()
{
    query(m_profile.source());
}

void RecordSearch::byDay(const QString& column, const QDate& day)
{
    queryWhere(record_condition::onDay(column, day));
}

void RecordSearch::byDays(const QString& column, const QDate& first, const QDate& last)
{
    queryWhere(record_condition::betweenDays(column, first, last));
}

void RecordSearch::byCategory(const QString& category)
{
    queryWhere(record_condition::ofCategory(category));
}

RecordSearch::Outcome RecordSearch::narrow(const QString& condition)
{
    if (count() < 1)
        return Outcome::NothingFound;
    Recordset& result = *m_data.Recordset();
    result.setFilter(condition);
    const auto found = result.OpenRecordset();
    m_data.setRecordset(found->Clone());
    return Outcome::Searched;
}

RecordSearch::Outcome RecordSearch::easy(const QString& column, const QString& word,
                                         RecordScope scope)
{
    if (!hasWord(word))
        return Outcome::NoWord;
    if (scope == RecordScope::WithinResult)
        return narrow(column + likeWord(word));
    query(m_profile.source() + u" where "_s + record_condition::holds(column, word));
    return Outcome::Searched;
}

RecordSearch::Outcome RecordSearch::power(const QString& column,
                                          const record_condition::Terms& terms, RecordScope scope)
{
    if (!hasWord(terms.words[0]))
        return Outcome::NoWord;
    const QString condition = record_condition::holdsTerms(column, terms);
    if (scope == RecordScope::WithinResult)
        return narrow(condition);
    query(m_profile.source() + u" where "_s + condition);
    return Outcome::Searched;
}

int RecordSearch::count() const
{
    return m_data.Recordset() != nullptr ? m_data.Recordset()->RecordCount() : 0;
}

QString RecordSearch::cell(const RecordResultColumn& column) const
{
    const Field field = m_data.Recordset()->Fields(column.column);
    if (field.Type() == FieldType::Date) {
        const QVariant day = field.Value();
        return day.isNull() ? QString() : dayText(day.toDouble());
    }
    if (column.column == m_profile.texts[kTitleText].plain)
        return oneLine(Text(field), true);
    const bool isText = std::ranges::find(m_profile.texts, column.column, &RecordColumn::plain) !=
                        m_profile.texts.end();
    return isText ? recordPreview(Text(field)) : Text(field);
}

std::optional<QStringList> RecordSearch::row(int index)
{
    m_data.Recordset()->setAbsolutePosition(index);
    QStringList cells;
    try {
        for (const RecordResultColumn& column : m_profile.resultColumns)
            cells << cell(column);
    } catch (const JetError& error) {
        if (error.number() != ErrorNumber::kRecordDeleted)
            throw;
        return std::nullopt;
    }
    return cells;
}

} // namespace lumen
