// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/grid/grid_layout.h"

#include <QTextOption>

#include <algorithm>
#include <cmath>

namespace lumen {
namespace {

// About ten chapters of four versions; the whole is dropped when it is full.
constexpr qsizetype kMostHeights = 8192;
constexpr qreal kEndlessLine = 1e6; // pixels

} // namespace

QString shownText(const QString& text)
{
    if (!text.contains(u'\n') && !text.contains(u'\r'))
        return text;
    QString shown = text;
    shown.replace(QStringLiteral("\r\n"), QString(QChar(QChar::LineSeparator)));
    shown.replace(u'\n', QChar(QChar::LineSeparator));
    shown.replace(u'\r', QChar(QChar::LineSeparator));
    return shown;
}

TextRange shownRange(const QString& text, const TextRange& range)
{
    const auto shortened = [&text](int position) {
        return static_cast<int>(QStringView(text).left(position).count(u"\r\n"));
    };
    const int start = range.start - shortened(range.start);
    const int end = range.start + range.length;
    return {start, end - shortened(end) - start};
}

int naturalCellWidth(const QString& text, const QFont& font)
{
    QTextLayout layout(shownText(text), font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(Qt::LeftToRight);
    layout.setTextOption(option);
    qreal width = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(kEndlessLine);
        width = std::max(width, line.naturalTextWidth());
    }
    layout.endLayout();
    return static_cast<int>(std::ceil(width)) + 1 + kCellMarginLeft + kCellMarginRight;
}

int layOutCell(QTextLayout& layout, int width, GridAlign align)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(Qt::LeftToRight);
    option.setAlignment(align == GridAlign::Right    ? Qt::AlignRight
                        : align == GridAlign::Center ? Qt::AlignHCenter
                                                     : Qt::AlignLeft);
    layout.setTextOption(option);
    const int room = std::max(1, width - kCellMarginLeft - kCellMarginRight);
    qreal height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(room);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return static_cast<int>(std::ceil(height)) + 2 * kCellMarginY;
}

QString RowHeights::fontKey(const QFont& font)
{
    // Rows come in runs of one font; writing a font out costs more than laying a short cell out.
    if (m_lastFont.second.isEmpty() || m_lastFont.first != font)
        m_lastFont = {font, font.key()};
    return m_lastFont.second;
}

int RowHeights::cellHeight(const QString& text, const QFont& font, int width)
{
    return kept({text, fontKey(font), width}, [&] {
        QTextLayout layout(shownText(text), font);
        return layOutCell(layout, width, GridAlign::Left);
    });
}

int RowHeights::cellWidth(const QString& text, const QFont& font)
{
    return kept({text, fontKey(font), kUnwrapped}, [&] { return naturalCellWidth(text, font); });
}

template <typename Measure>
int RowHeights::kept(const Key& key, Measure measure)
{
    if (const auto known = m_heights.constFind(key); known != m_heights.cend())
        return *known;
    const int pixels = measure();
    if (m_heights.size() >= kMostHeights)
        m_heights.clear();
    m_heights.insert(key, pixels);
    return pixels;
}

} // namespace lumen
