// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/illustrations/illustration_book.h"

#include "data/app_state.h"
#include "data/data_store.h"
#include "data/module_path.h"
#include "data/user_files.h"
#include "jet/engine.h"
#include "jet/error.h"
#include "jet/transaction.h"
#include "text/query_literal.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

QString categoryCondition(const QString& category)
{
    const QString condition = u"category = '"_s + EscapeSqlText(category) + u'\'';
    return category.isEmpty() ? condition + u" or category is null"_s : condition;
}

QString scopeCondition(const QString& term, IllustrationScope scope)
{
    const auto holds = [&term](const QString& column) {
        return column + u" like '*"_s + EscapeLikeText(term, true) + u"*'"_s;
    };
    switch (scope) {
    case IllustrationScope::Title:
        return holds(u"title"_s);
    case IllustrationScope::Category:
        return holds(u"category"_s);
    case IllustrationScope::Body:
        return holds(u"Cont"_s);
    case IllustrationScope::All:
        break;
    }
    // A column without a value fits nothing: all are asked for where nothing is.
    if (term.isEmpty())
        return u"num is not null"_s;
    return holds(u"title"_s) + u" or "_s + holds(u"category"_s) + u" or "_s + holds(u"Cont"_s);
}

std::optional<QString> textOrNull(const Field& field)
{
    const QVariant value = field.Value();
    return value.isNull() ? std::nullopt : std::optional(value.toString());
}

} // namespace

QString cleanedTerm(QString text)
{
    return text.remove(u'*').remove(u'%').remove(u'\'').trimmed();
}

IllustrationBook::IllustrationBook(JetEngine& jet, const AppState& state) : m_data(jet)
{
    m_data.DatabaseName = joinedPath(state.AppPath, u"\\Data\\예화.dts");
    m_data.Connect = QString::fromUtf16(connect_text::kDataControl);
}

void IllustrationBook::open()
{
    m_data.RecordSource = u"select num from 예화"_s;
    m_data.Refresh();
}

QStringList IllustrationBook::categories()
{
    QStringList list;
    const auto rows =
        m_data.Database()->OpenRecordset(u"Select distinct category from 예화 order by category"_s);
    for (; !rows->Eof(); rows->MoveNext()) {
        const QString category = Text(rows->Fields(u"category"));
        if (!list.contains(category))
            list << category;
    }
    return list;
}

std::vector<IllustrationTitle> IllustrationBook::titles(const QString& condition)
{
    std::vector<IllustrationTitle> list;
    const auto rows =
        m_data.Database()->OpenRecordset(u"select num, title from 예화 where "_s + condition);
    for (; !rows->Eof(); rows->MoveNext())
        list.push_back({Number(rows->Fields(u"num")), Text(rows->Fields(u"title"))});
    return list;
}

std::vector<IllustrationTitle> IllustrationBook::titlesIn(const QString& category)
{
    return titles(categoryCondition(category) + u" order by title"_s);
}

std::optional<Illustration> IllustrationBook::find(int num)
{
    const auto row =
        m_data.Database()->OpenRecordset(u"select * from 예화 where num = %1"_s.arg(num));
    if (row->RecordCount() == 0)
        return std::nullopt;
    return Illustration{num, Text(row->Fields(u"Title")), Text(row->Fields(u"Category")),
                        textOrNull(row->Fields(u"cont"))};
}

std::vector<IllustrationTitle> IllustrationBook::search(const QString& term,
                                                        IllustrationScope scope)
{
    return titles(scopeCondition(cleanedTerm(term), scope));
}

int IllustrationBook::save(const Illustration& illustration)
{
    Transaction step(*m_data.Database());
    const auto row = m_data.Database()->OpenRecordset(
        u"select * from 예화 where num = %1"_s.arg(illustration.num));
    // One that another program has deleted meanwhile is stored anew.
    if (row->RecordCount() > 0)
        row->Edit();
    else
        row->AddNew();
    row->Fields(u"Title").setValue(illustration.title);
    row->Fields(u"Category").setValue(illustration.category);
    row->Fields(u"cont").setValue(illustration.body.value_or(QString()));
    row->Update();
    row->setBookmark(row->LastModified());
    const int num = Number(row->Fields(u"num"));
    step.commit();
    return num;
}

void IllustrationBook::remove(int num)
{
    Transaction step(*m_data.Database());
    const auto row =
        m_data.Database()->OpenRecordset(u"select * from 예화 where num = %1"_s.arg(num));
    if (row->RecordCount() > 0)
        row->Delete();
    step.commit();
}

} // namespace lumen
