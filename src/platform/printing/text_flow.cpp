// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/printing/text_flow.h"

#include "data/version_font.h"
#include "platform/printing/twips_device.h"
#include "text/rtf/rtf_reader.h"
#include "text/rtf/rtf_writer.h"

#include <QAbstractTextDocumentLayout>
#include <QFont>
#include <QPainter>
#include <QRawFont>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextImageFormat>
#include <QTextLayout>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr double kTwipsPerPoint = 20;
// Of the screen's dots that lengths in documents count in.
constexpr double kPixelsPerTwip = 96.0 / kTwipsPerInch;
// What touches by rounding doesn't overlap.
constexpr double kSlack = 1;

/// The letters of the modules' own fonts are codes; on paper, too, stands what others can read. The
/// fonts are such whose every glyph has a character: where two letters become one glyph, a PDF file
/// can't give them back.
QString paperFamily(const QString& family)
{
    if (family == u"OrvaneHeb" || family == u"OrvaneHebC")
        return u"Noto Serif Hebrew"_s;
    if (family == u"OrvaneGrk")
        return u"Noto Serif"_s;
    return family;
}

bool isHebrewFamily(const QString& family)
{
    return family == u"OrvaneHeb" || family == u"OrvaneHebC";
}

QFont fontOf(const PrintLook& look)
{
    QFont font(paperFamily(look.family));
    font.setPixelSize(std::max(1, qRound(look.points * kTwipsPerPoint)));
    font.setBold(look.bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// A run without the glyphs of its blanks: they paint nothing, and readers of PDF files take some
/// fonts' blanks for control signs.
QGlyphRun withoutBlanks(const QGlyphRun& run)
{
    const QRawFont font = run.rawFont();
    const QList<quint32> blanks =
        font.glyphIndexesForString(u" "_s) + font.glyphIndexesForString(QString(QChar(0xA0)));
    const QList<quint32> glyphs = run.glyphIndexes();
    if (std::none_of(glyphs.begin(), glyphs.end(),
                     [&blanks](quint32 glyph) { return blanks.contains(glyph); }))
        return run;
    const QList<QPointF> places = run.positions();
    QList<quint32> keptGlyphs;
    QList<QPointF> keptPlaces;
    for (qsizetype i = 0; i < glyphs.size(); ++i)
        if (!blanks.contains(glyphs[i])) {
            keptGlyphs << glyphs[i];
            keptPlaces << places[i];
        }
    QGlyphRun kept = run;
    kept.setGlyphIndexes(keptGlyphs);
    kept.setPositions(keptPlaces);
    return kept;
}

QColor onPaper(const QColor& color)
{
    // Light letters are meant for a dark screen: paper would not show them.
    constexpr double kTooLight = 0.75;
    return color.isValid() && color.lightnessF() < kTooLight ? color : QColor(Qt::black);
}

struct ColoredRange
{
    int start = 0;
    int length = 0;
    QColor color;
};

PageText lineItem(const QString& text, const QTextLine& line, const QPointF& origin,
                  const std::vector<ColoredRange>& colors)
{
    PageText item;
    item.origin = origin;
    item.box = line.naturalTextRect().translated(origin);
    item.text = text.sliced(line.textStart(), line.textLength());
    const int end = line.textStart() + line.textLength();
    for (const ColoredRange& range : colors) {
        const int from = std::max(range.start, line.textStart());
        const int to = std::min(range.start + range.length, end);
        if (from >= to)
            continue;
        const QList<QGlyphRun> runs = line.glyphRuns(from, to - from);
        for (const QGlyphRun& run : runs)
            if (const QGlyphRun kept = withoutBlanks(run); !kept.glyphIndexes().isEmpty())
                item.glyphs.push_back({kept, range.color});
    }
    return item;
}

void addParagraph(TextFlow& flow, const QString& text, const PrintLook& look, double width)
{
    QTextLayout layout(text, fontOf(look));
    QTextOption option(look.align);
    option.setUseDesignMetrics(true);
    option.setWrapMode(look.wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                  : QTextOption::NoWrap);
    option.setTextDirection(look.rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    layout.setTextOption(option);
    double y = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, y});
        y += line.height();
    }
    layout.endLayout();
    const int paragraph = flow.bands.empty() ? 0 : flow.bands.back().paragraph + 1;
    const std::vector<ColoredRange> all{{0, static_cast<int>(text.size()), onPaper(look.color)}};
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        const double top = flow.height + line.y();
        FlowBand band{top, top + line.height(), paragraph, {}};
        if (line.textLength() > 0)
            band.items.emplace_back(lineItem(text, line, {0, flow.height}, all));
        flow.bands.push_back(std::move(band));
    }
    flow.height += y;
}

// A document's fonts, pictures and codes made fit for paper

struct Change
{
    int start = 0;
    int length = 0;
    QTextCharFormat format;
    QString text; ///< "" keeps what stands there
};

QTextCharFormat fittedPicture(const QTextImageFormat& former, const QTextDocument& document,
                              double width, double height)
{
    QTextImageFormat format = former;
    const QSizeF natural =
        document.resource(QTextDocument::ImageResource, QUrl(former.name())).value<QImage>().size();
    QSizeF size(former.width() > 0 ? former.width() : natural.width(),
                former.height() > 0 ? former.height() : natural.height());
    const QSizeF room(width * kPixelsPerTwip, height * kPixelsPerTwip);
    if (size.width() > room.width() || size.height() > room.height())
        size.scale(room, Qt::KeepAspectRatio);
    format.setWidth(size.width());
    format.setHeight(size.height());
    return format;
}

std::optional<Change> changeOf(const QTextFragment& fragment, const QTextDocument& document,
                               double width, double height)
{
    const QTextCharFormat format = fragment.charFormat();
    Change change{fragment.position(), fragment.length(), format, {}};
    if (format.isImageFormat()) {
        change.format = fittedPicture(format.toImageFormat(), document, width, height);
        return change;
    }
    const QString family = format.fontFamilies().toStringList().value(0);
    const QString paper = paperFamily(family);
    const QColor color = format.foreground().color();
    const bool hasColor = format.foreground().style() != Qt::NoBrush;
    if (paper == family && (!hasColor || onPaper(color) == color))
        return {};
    if (paper != family) {
        change.text = unicodeOfFont(fragment.text(), family);
        change.format.setFontFamilies({paper});
    }
    if (hasColor)
        change.format.setForeground(onPaper(color));
    return change;
}

void fitForPaper(QTextDocument& document, double width, double height)
{
    std::vector<Change> changes;
    std::vector<int> hebrew; // positions of blocks
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        int letters = 0; // of Hebrew
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextFragment fragment = at.fragment();
            if (const auto change = changeOf(fragment, document, width, height))
                changes.push_back(*change);
            if (isHebrewFamily(fragment.charFormat().fontFamilies().toStringList().value(0)))
                letters += fragment.length();
        }
        if (2 * letters > block.length())
            hebrew.push_back(block.position());
    }
    QTextCursor cursor(&document);
    for (const int position : hebrew) {
        cursor.setPosition(position);
        QTextBlockFormat format = cursor.blockFormat();
        // Aligned by its side of reading, a line of Hebrew begins at the right.
        format.setLayoutDirection(Qt::RightToLeft);
        format.setAlignment(Qt::AlignLeft);
        cursor.setBlockFormat(format);
    }
    // From the end, as texts change their length.
    std::sort(changes.begin(), changes.end(),
              [](const Change& a, const Change& b) { return a.start > b.start; });
    for (const Change& change : changes) {
        cursor.setPosition(change.start);
        cursor.setPosition(change.start + change.length, QTextCursor::KeepAnchor);
        if (change.text.isEmpty())
            cursor.setCharFormat(change.format);
        else
            cursor.insertText(change.text, change.format);
    }
}

std::vector<ColoredRange> colorsOf(const QTextBlock& block)
{
    std::vector<ColoredRange> ranges;
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        const QTextFragment fragment = at.fragment();
        if (fragment.charFormat().isImageFormat())
            continue;
        const QBrush brush = fragment.charFormat().foreground();
        ranges.push_back({fragment.position() - block.position(), fragment.length(),
                          brush.style() == Qt::NoBrush ? QColor(Qt::black) : brush.color()});
    }
    return ranges;
}

/// Puts what overlaps in height into one band: cells of a row may have lines side by side.
void joinBands(std::vector<FlowBand>& bands)
{
    std::stable_sort(bands.begin(), bands.end(),
                     [](const FlowBand& a, const FlowBand& b) { return a.top < b.top; });
    std::vector<FlowBand> joined;
    for (FlowBand& band : bands) {
        if (joined.empty() || band.top >= joined.back().bottom - kSlack) {
            joined.push_back(std::move(band));
            continue;
        }
        FlowBand& into = joined.back();
        into.bottom = std::max(into.bottom, band.bottom);
        std::move(band.items.begin(), band.items.end(), std::back_inserter(into.items));
    }
    bands = std::move(joined);
}

} // namespace

std::size_t TextFlow::fitting(std::size_t first, double room, bool isTop) const
{
    const double top = bands[first].top;
    std::size_t behind = first;
    while (behind < bands.size() && bands[behind].bottom - top <= room + kSlack)
        ++behind;
    if (behind == bands.size())
        return behind;
    const std::size_t greedy = behind;
    const auto sameParagraph = [this](std::size_t one, std::size_t other) {
        return other < bands.size() && bands[one].paragraph == bands[other].paragraph;
    };
    if (behind > first && sameParagraph(behind - 1, behind)) {
        if (!sameParagraph(behind, behind + 1) && behind > first)
            --behind; // the last line takes one along
        if (behind > first && sameParagraph(behind - 1, behind) &&
            (behind - 1 == 0 || !sameParagraph(behind - 1, behind - 2)))
            --behind; // the first line goes along
    }
    if (behind > first)
        return behind;
    return isTop ? std::max(greedy, first + 1) : first;
}

double TextFlow::heightOf(std::size_t first, std::size_t behind) const
{
    if (first >= behind)
        return 0;
    const double end = behind < bands.size() ? bands[behind].top : height;
    return std::max(end, bands[behind - 1].bottom) - (first == 0 ? 0 : bands[first].top);
}

std::vector<PageItem> TextFlow::piece(std::size_t first, std::size_t behind,
                                      const QPointF& at) const
{
    const double top = first == 0 ? 0 : bands[first].top;
    const double bottom = top + heightOf(first, behind);
    const QPointF offset(at.x(), at.y() - top);
    std::vector<PageItem> items;
    for (const PageFill& fill : fills) {
        QRectF box = fill.box;
        box.setTop(std::max(box.top(), top));
        box.setBottom(std::min(box.bottom(), bottom));
        if (box.height() > 0)
            items.push_back(movedBy(PageFill{box, fill.color}, offset));
    }
    for (std::size_t i = first; i < behind; ++i)
        for (const PageItem& item : bands[i].items)
            items.push_back(movedBy(item, offset));
    return items;
}

TextFlow flowOfText(const QString& text, const PrintLook& look, double width)
{
    TextFlow flow;
    const QString readable = unicodeOfFont(text, look.family);
    PrintLook shown = look;
    shown.rightToLeft = look.rightToLeft || isHebrewFamily(look.family);
    // A layout takes sides as they are named, whichever way its text runs.
    if (shown.rightToLeft && shown.align == Qt::AlignLeft)
        shown.align = Qt::AlignRight;
    for (const QString& paragraph : readable.split(u'\n'))
        addParagraph(flow, paragraph, shown, std::max(width, kTwipsPerPoint));
    return flow;
}

TextFlow flowOfDocument(QTextDocument& document, double width, double pageHeight)
{
    document.setUndoRedoEnabled(false);
    fitForPaper(document, width, pageHeight);
    TwipsDevice device;
    QFont font = document.defaultFont();
    font.setHintingPreference(QFont::PreferNoHinting);
    document.setDefaultFont(font);
    document.setDocumentMargin(0);
    document.setUseDesignMetrics(true);
    document.documentLayout()->setPaintDevice(&device);
    document.setPageSize({width, -1});
    QAbstractTextDocumentLayout& layout = *document.documentLayout();
    TextFlow flow;
    flow.height = layout.documentSize().height();
    int paragraph = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next(), ++paragraph) {
        const QPointF origin = layout.blockBoundingRect(block).topLeft();
        const std::vector<ColoredRange> colors = colorsOf(block);
        // The layout's own place stands in the position of its lines only by the block's.
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine line = block.layout()->lineAt(i);
            const double top = origin.y() + line.y();
            FlowBand band{top, top + line.height(), paragraph, {}};
            if (line.textLength() > 0)
                band.items.emplace_back(lineItem(block.text(), line, origin, colors));
            flow.bands.push_back(std::move(band));
        }
    }
    QPainter painter(&device);
    QAbstractTextDocumentLayout::PaintContext context;
    layout.draw(&painter, context);
    painter.end();
    flow.fills = device.recorder().fills;
    for (const PagePicture& picture : device.recorder().pictures)
        flow.bands.push_back({picture.box.top(), picture.box.bottom(), -1, {picture}});
    joinBands(flow.bands);
    layout.setPaintDevice(nullptr); // the device ends here
    return flow;
}

TextFlow flowOfRtf(const QString& rtf, double width, double pageHeight, int tabWidth)
{
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    QFont font(u"굴림"_s);
    font.setPointSizeF(10);
    document.setDefaultFont(font);
    if (rtf.startsWith(u"{\\rtf"))
        readRtf(toRtfBytes(rtf), document,
                {.tabWidth = tabWidth,
                 .pixelsPerTwip = kPixelsPerTwip,
                 .lastPar = LastPar::EndsDocument});
    else
        document.setPlainText(rtf);
    return flowOfDocument(document, width, pageHeight);
}

} // namespace lumen
