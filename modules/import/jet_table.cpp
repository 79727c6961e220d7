// SPDX-License-Identifier: GPL-2.0-or-later
#include "import/jet_table.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

/// Jet's own limits; a definition beyond them is damaged and would only cost time and memory.
constexpr unsigned kMaxColumns = 255;
constexpr unsigned kMaxIndexes = 255;
/// What stands as the owner of pages with long values instead of a table.
constexpr quint32 kLongValueOwner = 0x4C41564C;
constexpr int kOwnerOffset = 4;
/// A moved row may have been moved again; so many times is more than any engine does.
constexpr int kMaxMoves = 4;
constexpr int kRelationIndex = 2;
constexpr int kPrimaryIndex = 1;
/// An inline usage map has its first page and then its bits behind the type byte, a map page has
/// its bits behind four bytes.
constexpr qsizetype kInlineMapBits = 5;
constexpr int kMapPageBits = 4;

/// The library copies the map from where the row table says it is, flags and all.
bool mapRowIsSound(JetHandle& file, PageRow where)
{
    if (!file.readPage(where >> 8))
        return false;
    const auto row = static_cast<int>(where & 0xFF);
    const int rowCountOffset = file.get()->fmt->row_count_offset;
    if (row >= file.shortAt(rowCountOffset))
        return false;
    const quint16 start = file.shortAt(rowCountOffset + 2 + 2 * row);
    return start <= kRowOffset && file.copyRow(where).has_value();
}

/// The library takes the precision for the scale and the other way round; the scale is never more.
int digitsBehindThePoint(const MdbColumn& column)
{
    return std::min(column.col_scale, column.col_prec);
}

} // namespace

std::unique_ptr<JetTable> JetTable::open(JetHandle& file, const QString& name, quint32 page)
{
    std::unique_ptr<JetTable> table(new JetTable(file, name, page));
    return table->readDefinition() && table->readColumns() ? std::move(table) : nullptr;
}

JetTable::JetTable(JetHandle& file, QString name, quint32 page)
    : m_file(file), m_name(std::move(name)), m_page(page)
{
    m_entry.mdb = file.get();
    m_entry.object_type = MDB_TABLE;
    m_entry.table_pg = page;
    const QByteArray utf8 = m_name.toUtf8().left(MDB_MAX_OBJ_NAME);
    std::memcpy(m_entry.object_name, utf8.constData(), static_cast<size_t>(utf8.size()));
}

bool JetTable::readDefinition()
{
    const MdbFormatConstants& format = *m_file.get()->fmt;
    if (!m_file.readPage(m_page) || m_file.byteAt(0) != MDB_PAGE_TABLE)
        return false;
    const PageRow usedPages = m_file.longAt(format.tab_usage_map_offset);
    const PageRow freePages = m_file.longAt(format.tab_free_map_offset);
    const bool sound = m_file.shortAt(format.tab_num_cols_offset) <= kMaxColumns &&
                       m_file.longAt(format.tab_num_idxs_offset) <= kMaxIndexes &&
                       m_file.longAt(format.tab_num_ridxs_offset) <= kMaxIndexes;
    if (!sound || !mapRowIsSound(m_file, usedPages) || !mapRowIsSound(m_file, freePages))
        return false;
    m_table.reset(mdb_read_table(&m_entry));
    return m_table && m_table->usage_map && m_table->map_sz >= 1;
}

bool JetTable::readColumns()
{
    const GPtrArray* columns = mdb_read_columns(m_table.get());
    if (!columns || columns->len != m_table->num_cols || columns->len == 0)
        return false;
    for (guint i = 0; i < columns->len; ++i) {
        const auto* column = static_cast<const MdbColumn*>(g_ptr_array_index(columns, i));
        const QString name = QString::fromUtf8(column->name);
        if (name.isEmpty() || columnNamed(name) >= 0)
            return false;
        m_columns.push_back({name, column->col_type, column->col_size,
                             digitsBehindThePoint(*column), column->is_long_auto != 0});
    }
    return true;
}

int JetTable::columnNamed(QStringView name) const
{
    const auto found =
        std::find_if(m_columns.begin(), m_columns.end(), [name](const JetColumn& column) {
            return column.name.compare(name, Qt::CaseInsensitive) == 0;
        });
    return found == m_columns.end() ? -1 : static_cast<int>(found - m_columns.begin());
}

std::vector<IndexDef> JetTable::indexes()
{
    std::vector<IndexDef> result;
    if (m_table->num_idxs != 0)
        mdb_read_indices(m_table.get()); // has no result of use
    const GPtrArray* indexes = m_table->indices;
    // The array's own length counts: the definition's number may include deleted indexes.
    for (guint i = 0; indexes && i < indexes->len; ++i) {
        const auto* index = static_cast<const MdbIndex*>(g_ptr_array_index(indexes, i));
        if (index->index_type == kRelationIndex || index->num_keys == 0)
            continue;
        IndexDef def;
        def.name = QString::fromUtf8(index->name);
        def.primary = index->index_type == kPrimaryIndex;
        def.unique = def.primary || (index->flags & MDB_IDX_UNIQUE) != 0;
        const auto keys = std::min<unsigned>(index->num_keys, MDB_MAX_IDX_COLS);
        bool sound = !def.name.isEmpty();
        for (unsigned key = 0; key < keys; ++key) {
            const int column = index->key_col_num[key]; // one-based
            sound = sound && column >= 1 && column <= static_cast<int>(m_columns.size());
            if (sound)
                def.columns << m_columns[static_cast<size_t>(column - 1)].name;
        }
        if (sound)
            result.push_back(def);
    }
    return result;
}

TableFaults JetTable::walk(const std::function<bool(const RawRow& row)>& take)
{
    TableFaults faults;
    for (const quint32 page : pages()) {
        if (!m_file.readPage(page))
            ++faults.missingPages;
        else if (belongsToOther())
            ++faults.strangePages;
        else if (m_file.longAt(kOwnerOffset) == m_page && !walkPage(page, take, faults))
            break;
    }
    return faults;
}

bool JetTable::belongsToOther() const
{
    const quint32 owner = m_file.longAt(kOwnerOffset);
    return m_file.byteAt(0) != MDB_PAGE_DATA || (owner != m_page && owner != kLongValueOwner);
}

std::vector<quint32> JetTable::pages()
{
    const QByteArray map(reinterpret_cast<const char*>(m_table->usage_map),
                         static_cast<qsizetype>(m_table->map_sz));
    std::vector<quint32> result;
    if (map[0] == 0) {
        if (map.size() > kInlineMapBits)
            addPages(result, map.mid(kInlineMapBits), longFrom(map, 1));
        return result;
    }
    // A map of maps: the page numbers of further pages, each of which is one long run of bits.
    const auto pagesAMap = static_cast<quint64>(m_file.pageSize() - kMapPageBits) * 8;
    const qsizetype maps = (map.size() - 1) / 4;
    for (qsizetype i = 0; i < maps; ++i) {
        const quint32 mapPage = longFrom(map, 1 + 4 * i);
        if (mapPage == 0)
            continue;
        if (m_file.readPage(mapPage))
            addPages(result, m_file.currentPage().mid(kMapPageBits),
                     static_cast<quint64>(i) * pagesAMap);
        else
            result.push_back(m_file.pageCount()); // a page that isn't there, so that it is counted
    }
    return result;
}

void JetTable::addPages(std::vector<quint32>& pages, const QByteArray& bits,
                        quint64 firstPage) const
{
    for (qsizetype i = 0; i < bits.size(); ++i)
        for (unsigned bit = 0; bits[i] != 0 && bit < 8; ++bit)
            if (static_cast<unsigned char>(bits[i]) >> bit & 1) {
                const quint64 page = firstPage + static_cast<quint64>(i) * 8 + bit;
                pages.push_back(static_cast<quint32>(std::min<quint64>(page, m_file.pageCount())));
            }
}

bool JetTable::walkPage(quint32 page, const std::function<bool(const RawRow&)>& take,
                        TableFaults& faults)
{
    const int rowCountOffset = m_file.get()->fmt->row_count_offset;
    // A row's entry takes two bytes, so a page can't hold more than that.
    const int rows =
        std::min<int>(m_file.shortAt(rowCountOffset), (m_file.pageSize() - rowCountOffset - 2) / 2);
    RawRow fields;
    for (int row = 0; row < rows; ++row) {
        m_file.readPage(page); // the row before may have led to another page
        int start = 0;
        size_t size = 0;
        const bool found = mdb_find_row(m_file.get(), row, &start, &size) == 0;
        if ((start & kRowDeleted) != 0 || (found && size == 0))
            continue;
        if (!found || !readRow(page, row, fields))
            ++faults.rows;
        else if (!take(fields))
            return false;
    }
    return true;
}

bool JetTable::readRow(quint32 page, int row, RawRow& fields)
{
    for (int moves = 0; moves <= kMaxMoves; ++moves) {
        int start = 0;
        size_t size = 0;
        if (!m_file.readPage(page) || mdb_find_row(m_file.get(), row, &start, &size) != 0)
            return false;
        const int offset = start & kRowOffset;
        if (offset + static_cast<qint64>(size) > m_file.pageSize())
            return false;
        // The flag "deleted" of a row that a moved one points to only keeps it from being met
        // twice.
        if ((start & kRowMoved) == 0)
            return crackRow(offset, size, fields);
        if (size < 4)
            return false;
        const PageRow target = m_file.longAt(offset);
        page = target >> 8;
        row = static_cast<int>(target & 0xFF);
    }
    return false;
}

bool JetTable::crackRow(int start, size_t size, RawRow& fields)
{
    std::array<MdbField, kMaxColumns + 1> cracked{};
    // Its result also counts columns that were deleted from the table.
    if (mdb_crack_row(m_table.get(), start, size, cracked.data()) < 0)
        return false;
    const int end = start + static_cast<int>(size);
    fields.resize(m_columns.size());
    for (size_t i = 0; i < m_columns.size(); ++i) {
        const MdbField& field = cracked[i];
        fields[i].isNull = field.is_null != 0;
        fields[i].bytes.clear();
        if (fields[i].isNull || m_columns[i].type == MDB_BOOL)
            continue;
        if (field.start < start || field.siz < 0 || field.siz > end - field.start)
            return false;
        fields[i].bytes = QByteArray(
            reinterpret_cast<const char*>(m_file.get()->pg_buf) + field.start, field.siz);
    }
    return true;
}

} // namespace lumen
