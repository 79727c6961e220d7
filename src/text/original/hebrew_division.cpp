// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/original/hebrew_division.h"

#include <QFont>
#include <QGuiApplication>
#include <QScreen>
#include <QTextLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kMargin = 100; // twips, so that a line never quite reaches the target's edge
constexpr double kTwipsPerInch = 1440.0;
constexpr double kUsualDpi = 96.0;
// Lines of measured verses that are kept: some chapters of three Hebrew versions.
constexpr int kCachedVerses = 4096;

double screenPixelsPerTwip()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return (screen ? screen->logicalDotsPerInchX() : kUsualDpi) / kTwipsPerInch;
}

// As a layout counts it: a sign that hangs over its place belongs to it.
double drawnWidth(const QString& text, const QFont& font)
{
    constexpr double kEndless = 1e6;
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(kEndless);
    layout.endLayout();
    return line.naturalTextWidth();
}

// Lays one line out so that it fits the room as it will be drawn: turned round, where the blank at
// the cut begins the line and takes room, and where neighbouring signs may stand wider.
void fitLine(QTextLine& line, const QString& text, const QFont& font, double room)
{
    double width = room;
    for (;;) {
        line.setLineWidth(std::max(1.0, width));
        QString drawn = text.sliced(line.textStart(), line.textLength());
        std::reverse(drawn.begin(), drawn.end());
        if (drawn.size() <= 1 || width <= 1 || drawnWidth(drawn, font) <= room)
            return;
        width = std::min(width, line.naturalTextWidth()) - 1;
    }
}

} // namespace

FontLineBreaker::FontLineBreaker(double pixelsPerTwip)
    : m_pixelsPerTwip(pixelsPerTwip > 0 ? pixelsPerTwip : screenPixelsPerTwip()),
      m_cache(kCachedVerses)
{
}

std::vector<qsizetype> FontLineBreaker::lineLengths(const QString& text, const QString& fontName,
                                                    double pointSize, int width, int taken)
{
    const QString key = fontName + u'\n' + QString::number(pointSize) + u'\n' +
                        QString::number(width) + u'\n' + QString::number(taken) + u'\n' + text;
    if (const auto* known = m_cache.object(key))
        return *known;
    QFont font(fontName);
    font.setPointSizeF(std::max(pointSize, 1.0));
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(Qt::LeftToRight);
    layout.setTextOption(option);
    double room = (width - taken) * m_pixelsPerTwip;
    std::vector<qsizetype> lengths;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        fitLine(line, text, font, room);
        lengths.push_back(line.textLength());
        room = width * m_pixelsPerTwip;
    }
    layout.endLayout();
    m_cache.insert(key, new std::vector<qsizetype>(lengths));
    return lengths;
}

QStringList hebrewLines(const QString& text, const HebrewTarget& target, LineBreaker& breaker)
{
    if (!target.isVisible)
        return {};
    QString reversed(text);
    std::reverse(reversed.begin(), reversed.end());
    // The ruler's size is a point above the target's.
    const std::vector<qsizetype> lengths = breaker.lineLengths(
        reversed, target.fontName, target.fontSize / 2.0 + 1, target.width - kMargin, target.taken);
    // A verse is cut from its end; what is left in front is the line that is read last.
    QStringList lines;
    qsizetype end = text.size();
    for (std::size_t i = 0; i + 1 < lengths.size(); ++i) {
        const qsizetype start = std::max<qsizetype>(0, end - lengths[i]);
        lines << text.sliced(start, end - start);
        end = start;
    }
    return lines << text.first(end);
}

QString DivideHebrewCont(const QString& text, const HebrewTarget& target, bool asRtf,
                         LineBreaker& breaker)
{
    return hebrewLines(text, target, breaker).join(asRtf ? u"\\par "_s : u"\r\n"_s);
}

QString DivideHebrewContForPrint(const QString& text, const HebrewTarget& target, bool asRtf,
                                 LineBreaker& breaker)
{
    return hebrewLines(text, target, breaker).join(asRtf ? u"\\par "_s : u"\n"_s);
}

} // namespace lumen
