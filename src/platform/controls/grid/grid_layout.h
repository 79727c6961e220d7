// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/grid/grid_model.h"
#include "platform/controls/text/text_range.h"

#include <QFont>
#include <QHash>
#include <QString>
#include <QTextLayout>

#include <utility>

namespace lumen {

/// The room around the text of a cell, pixels. Left and right together with the grid line stay
/// below 100 twips, which divided Hebrew leaves free of its column's width: its lines never wrap.
inline constexpr int kCellMarginLeft = 3;
inline constexpr int kCellMarginRight = 2;
inline constexpr int kCellMarginY = 3;

/// The text of a cell as it is laid out: "\r\n", "\n" and "\r" become line separators.
QString shownText(const QString& text);
/// A range of a cell's text as one of its shownText.
TextRange shownRange(const QString& text, const TextRange& range);

/// The width in pixels, margins included, that a cell's text takes without wrapping.
int naturalCellWidth(const QString& text, const QFont& font);

/// Lays a cell's text out for a cell of a width in pixels, margins included. The text runs from
/// left to right whatever it holds: the fonts of the original languages keep their letters in
/// visual order. Gives the cell's height, margins included.
int layOutCell(QTextLayout& layout, int width, GridAlign align);

/// The heights of a grid's rows. Heights are kept by text, font and width, so that a row that comes
/// again (another verse marked, a chapter reread, a version added) is not laid out again.
class RowHeights
{
public:
    /// The height of a cell in pixels.
    int cellHeight(const QString& text, const QFont& font, int width);
    /// The width in pixels, margins included, in which the text doesn't wrap.
    int cellWidth(const QString& text, const QFont& font);

private:
    struct Key
    {
        QString text;
        QString font;
        int width = 0;

        friend bool operator==(const Key&, const Key&) = default;
        friend size_t qHash(const Key& key, size_t seed = 0) noexcept
        {
            return qHashMulti(seed, key.text, key.font, key.width);
        }
    };
    static constexpr int kUnwrapped = -1; ///< stands for the width of a key whose value is a width
    template <typename Measure>
    int kept(const Key& key, Measure measure);
    QString fontKey(const QFont& font);

    QHash<Key, int> m_heights;
    std::pair<QFont, QString> m_lastFont;
};

} // namespace lumen
