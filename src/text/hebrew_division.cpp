// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/hebrew_division.h"

#include <QFont>
#include <QFontMetricsF>
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
    // The blank at a cut ends the line here and takes no room; in display order it begins the line.
    const double blank = QFontMetricsF(font).horizontalAdvance(u' ');
    double room = (width - taken) * m_pixelsPerTwip - blank;
    std::vector<qsizetype> lengths;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(1.0, room));
        lengths.push_back(line.textLength());
        room = width * m_pixelsPerTwip - blank;
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
