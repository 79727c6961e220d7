// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/file_damage.h"

#include "jet/engine.h"
#include "jet/error.h"

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kPage = 2048; // divides the page sizes of all formats

class Damage
{
public:
    Damage(const QByteArray& bytes, std::mt19937& random) : m_bytes(bytes), m_random(random) {}

    QByteArray result()
    {
        switch (upTo(5)) {
        case 0:
            flipBytes(1 + upTo(3));
            break;
        case 1:
            flipBytes(1 + upTo(200));
            break;
        case 2:
            m_bytes.truncate(upTo(m_bytes.size() - 1));
            break;
        case 3:
            overwrite(upTo(m_bytes.size() - 1), 1 + upTo(600));
            break;
        case 4:
            copyPage();
            break;
        default:
            // The header and the first tables are where most can go wrong.
            flipBytesBelow(std::min<qsizetype>(m_bytes.size(), 2 * kPage), 1 + upTo(10));
        }
        return m_bytes;
    }

private:
    qsizetype upTo(qsizetype most)
    {
        return std::uniform_int_distribution<qsizetype>(0, std::max<qsizetype>(most, 0))(m_random);
    }

    void flipBytesBelow(qsizetype end, qsizetype count)
    {
        for (; count > 0; --count) {
            const auto change = static_cast<char>(1 + upTo(254));
            char& byte = m_bytes.data()[upTo(end - 1)];
            byte = static_cast<char>(byte ^ change);
        }
    }

    void flipBytes(qsizetype count) { flipBytesBelow(m_bytes.size(), count); }

    void overwrite(qsizetype from, qsizetype length)
    {
        const bool noise = upTo(1) == 0;
        for (qsizetype i = from; i < std::min(m_bytes.size(), from + length); ++i)
            m_bytes[i] = noise ? static_cast<char>(upTo(255)) : '\0';
    }

    void copyPage()
    {
        const qsizetype pages = m_bytes.size() / kPage;
        if (pages < 2)
            return flipBytes(1);
        const qsizetype from = upTo(pages - 1);
        const qsizetype to = upTo(pages - 1);
        m_bytes.replace(to * kPage, kPage, m_bytes.mid(from * kPage, kPage));
    }

    QByteArray m_bytes;
    std::mt19937& m_random;
};

void walkTable(Database& database, const QString& name)
{
    const auto records = database.OpenRecordset(u"["_s + name + u"]"_s);
    for (; !records->Eof(); records->MoveNext())
        for (int i = 0; i < records->FieldCount(); ++i)
            Text(records->Fields(i));
    if (records->FieldCount() == 0)
        return;
    const QString column = u"["_s + records->Fields(0).Name() + u"]"_s;
    records->FindFirst(column + u" like '*zz*'"_s);
    database.OpenRecordset(u"select * from [%1] order by %2"_s.arg(name, column));
    database.OpenRecordset(u"select distinct %2 from [%1]"_s.arg(name, column));
}

} // namespace

QByteArray damaged(const QByteArray& bytes, std::mt19937& random)
{
    for (;;)
        if (QByteArray result = Damage(bytes, random).result(); result != bytes)
            return result;
}

void walkDatabase(JetEngine& engine, const QString& path, const QString& connect)
{
    const auto database = engine.OpenDatabase(path, false, false, connect);
    const TableDefs tables = database->TableDefs();
    std::exception_ptr first;
    for (int i = 0; i < tables.Count(); ++i) {
        try {
            walkTable(*database, tables(i).Name);
        } catch (const JetError&) {
            if (!first)
                first = std::current_exception();
        }
    }
    if (first)
        std::rethrow_exception(first);
}

} // namespace lumen
