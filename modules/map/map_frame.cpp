// SPDX-License-Identifier: GPL-2.0-or-later
#include "map/map_frame.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>
#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kTextPixels{24, 34, 46, 76}; // by TextSize
constexpr double kPad = 22;
constexpr double kSample = 150;     // how long a line of the legend is drawn
constexpr double kLeastScale = 260; // pixels
constexpr double kCorner = 0.02;    // share of a side
constexpr double kBand = 12;        // the breadth of the frame's black and white band

// Twelve at most of these fit beside a side of the frame.
constexpr std::array kDegreeSteps{0.005, 0.01, 0.05, 0.1, 0.25, 0.5, 1.0, 2.0, 5.0};
constexpr int kMostSteps = 8;
constexpr std::array kKilometres{0.1, 0.2, 0.5, 1.0, 5.0, 10.0, 20.0, 50.0, 100.0, 200.0, 500.0};

double degreeStep(const GeoBox& box)
{
    const double range = std::min(box.east - box.west, box.north - box.south);
    const auto* step = std::ranges::find_if(
        kDegreeSteps, [range](double one) { return range / one <= kMostSteps; });
    return step == kDegreeSteps.end() ? kDegreeSteps.back() : *step;
}

// Degrees and minutes, with seconds where the steps are smaller than a minute.
QString degreeText(double degrees, QChar side)
{
    const int seconds = qRound(degrees * 3600);
    QString text = u"%1°"_s.arg(seconds / 3600);
    if (seconds % 3600 != 0)
        text += u"%1′"_s.arg(seconds / 60 % 60, 2, 10, QChar(u'0'));
    if (seconds % 60 != 0)
        text += u"%1″"_s.arg(seconds % 60, 2, 10, QChar(u'0'));
    return text + side;
}

double scaleLength(const MapProjection& projection)
{
    const double perKilometre = projection.pixelsPerKilometre();
    const auto* length = std::ranges::find_if(
        kKilometres, [perKilometre](double one) { return one * perKilometre >= kLeastScale; });
    return length == kKilometres.end() ? kKilometres.back() : *length;
}

QString lengthText(double kilometres)
{
    return kilometres < 1 ? u"%1 m"_s.arg(kilometres * 1000) : u"%1 km"_s.arg(kilometres);
}

void drawScale(QPainter& painter, const QPointF& at, double kilometres, double pixels)
{
    constexpr double kHigh = 14;
    constexpr int kParts = 4;
    painter.setPen(QPen(Qt::black, 2));
    for (int part = 0; part < kParts; ++part) {
        painter.setBrush(part % 2 == 0 ? Qt::black : Qt::white);
        painter.drawRect(QRectF(at.x() + part * pixels / kParts, at.y(), pixels / kParts, kHigh));
    }
    painter.setFont(mapFont(TextSize::Small));
    painter.drawText(QPointF(at.x(), at.y() - kHigh / 2), u"0"_s);
    const QString text = lengthText(kilometres);
    const double wide = QFontMetricsF(painter.font()).horizontalAdvance(text);
    painter.drawText(QPointF(at.x() + pixels - wide, at.y() - kHigh / 2), text);
}

QRectF bestCorner(const QRectF& frame, const QSizeF& size, const std::vector<QPointF>& marks)
{
    const double left = frame.left() + kPad;
    const double top = frame.top() + kPad;
    const double right = frame.right() - kPad - size.width();
    const double bottom = frame.bottom() - kPad - size.height();
    std::array corners{QRectF({left, bottom}, size), QRectF({right, bottom}, size),
                       QRectF({left, top}, size), QRectF({right, top}, size)};
    const auto covered = [&marks](const QRectF& box) {
        return std::ranges::count_if(marks, [&box](const QPointF& mark) {
            return box.adjusted(-kPad, -kPad, kPad, kPad).contains(mark);
        });
    };
    return *std::ranges::min_element(corners, {}, covered);
}

// Beside the frame's left and right; `at` is the height.
void writeLatitude(QPainter& painter, const QRectF& frame, double at, const QString& text)
{
    for (const double x : {frame.left() - MapProjection::kMargin / 2.0 - kBand / 2,
                           frame.right() + MapProjection::kMargin / 2.0 + kBand / 2}) {
        painter.save();
        painter.translate(x, at);
        painter.rotate(-90);
        painter.drawText(QRectF(-200, -30, 400, 60), Qt::AlignCenter, text);
        painter.restore();
    }
}

void drawBand(QPainter& painter, const MapProjection& projection, double step)
{
    const GeoBox& box = projection.box();
    const QRectF& frame = projection.frame();
    const auto drawPart = [&painter](const QRectF& part, int number) {
        painter.setBrush(number % 2 == 0 ? Qt::black : Qt::white);
        painter.drawRect(part);
    };
    for (int i = qFloor(box.west / step); i * step < box.east; ++i) {
        const double from = projection.at({0, std::max(i * step, box.west)}).x();
        const double to = projection.at({0, std::min((i + 1) * step, box.east)}).x();
        drawPart({from, frame.top() - kBand, to - from, kBand}, i);
        drawPart({from, frame.bottom(), to - from, kBand}, i);
    }
    for (int i = qFloor(box.south / step); i * step < box.north; ++i) {
        const double from = projection.at({std::min((i + 1) * step, box.north), 0}).y();
        const double to = projection.at({std::max(i * step, box.south), 0}).y();
        drawPart({frame.left() - kBand, from, kBand, to - from}, i);
        drawPart({frame.right(), from, kBand, to - from}, i);
    }
}

} // namespace

QString mapFontFamily()
{
    const QStringList korean = QFontDatabase::families(QFontDatabase::Korean);
    for (const QString& family : {u"NanumGothic"_s, u"나눔고딕"_s, u"Noto Sans CJK KR"_s})
        if (korean.contains(family))
            return family;
    return korean.value(0);
}

QFont mapFont(TextSize size)
{
    QFont font(mapFontFamily());
    font.setPixelSize(kTextPixels[std::size_t(size)]);
    font.setBold(size == TextSize::Title);
    return font;
}

QPen routePen(int order)
{
    struct Form
    {
        QColor color;
        QList<qreal> dashes; // in breadths of the pen
        double breadth;
    };
    static const std::array kForms{
        Form{QColor(176, 32, 32), {}, 6},
        Form{QColor(24, 72, 168), {4, 2}, 7},
        Form{QColor(24, 112, 56), {0.6, 1.8}, 9},
        Form{QColor(120, 40, 130), {5, 1.5, 1, 1.5}, 7},
        Form{QColor(150, 90, 10), {9, 2, 1, 2, 1, 2}, 5},
    };
    const Form& form = kForms[std::size_t(order) % kForms.size()];
    QPen pen(form.color, form.breadth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (!form.dashes.isEmpty())
        pen.setDashPattern(form.dashes);
    return pen;
}

QPainterPath smoothPath(const QPolygonF& points)
{
    QPainterPath path(points.value(0));
    const qsizetype last = points.size() - 1;
    const bool closed = last > 1 && points.first() == points.last();
    for (qsizetype i = 0; i < last; ++i) {
        // Through each point in the direction from the one before to the one behind it.
        const QPointF before = i > 0 ? points[i - 1] : closed ? points[last - 1] : points[0];
        const QPointF behind = i + 2 <= last ? points[i + 2] : closed ? points[1] : points[last];
        path.cubicTo(points[i] + (points[i + 1] - before) / 6,
                     points[i + 1] - (behind - points[i]) / 6, points[i + 1]);
    }
    return path;
}

QRectF drawLegendBox(QPainter& painter, const MapProjection& projection,
                     const std::vector<LegendRow>& rows, const std::vector<QPointF>& marks)
{
    const QFontMetricsF metrics(mapFont(TextSize::Small));
    const double kilometres = scaleLength(projection);
    const double scale = kilometres * projection.pixelsPerKilometre();
    double wide = scale;
    for (const LegendRow& row : rows)
        wide = std::max(wide, kSample + kPad + metrics.horizontalAdvance(row.name));
    const double rowHeight = metrics.height() + kPad / 3;
    const QSizeF size(wide + 2 * kPad,
                      double(rows.size()) * rowHeight + metrics.height() + 3 * kPad);
    const QRectF box = bestCorner(projection.frame(), size, marks);
    painter.setPen(QPen(Qt::black, 2));
    painter.setBrush(QColor(255, 255, 255, 235));
    painter.drawRect(box);
    painter.setFont(mapFont(TextSize::Small));
    double y = box.top() + kPad;
    for (const LegendRow& row : rows) {
        painter.setPen(row.pen);
        const double middle = y + metrics.height() / 2;
        painter.drawLine(QPointF(box.left() + kPad, middle),
                         QPointF(box.left() + kPad + kSample, middle));
        painter.setPen(Qt::black);
        painter.drawText(QPointF(box.left() + 2 * kPad + kSample, y + metrics.ascent()), row.name);
        y += rowHeight;
    }
    drawScale(painter, {box.left() + kPad, box.bottom() - 1.6 * kPad}, kilometres, scale);
    return box;
}

void drawFrame(QPainter& painter, const MapProjection& projection)
{
    const GeoBox& box = projection.box();
    const QRectF& frame = projection.frame();
    const double step = degreeStep(box);
    painter.setPen(QPen(Qt::black, 2));
    drawBand(painter, projection, step);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame);
    painter.setFont(mapFont(TextSize::Small));
    for (int i = qCeil(box.west / step); i * step <= box.east; ++i) {
        const double x = projection.at({0, i * step}).x();
        const QRectF below(x - 200, frame.bottom() + kBand, 400, MapProjection::kMargin - kBand);
        painter.drawText(below, Qt::AlignCenter, degreeText(i * step, u'E'));
    }
    // At a corner there is only room for the longitude.
    const double corner = (box.north - box.south) * kCorner;
    for (int i = qCeil((box.south + corner) / step); i * step <= box.north; ++i)
        writeLatitude(painter, frame, projection.at({i * step, 0}).y(), degreeText(i * step, u'N'));
}

void writeTitle(QPainter& painter, const MapProjection& projection, const QString& title,
                const QString& note)
{
    const QRectF& frame = projection.frame();
    const QRectF line(frame.left(), 0, frame.width(), MapProjection::kTitleHeight - kBand);
    painter.setPen(Qt::black);
    painter.setFont(mapFont(TextSize::Title));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, title);
    const double used = QFontMetricsF(painter.font()).horizontalAdvance(title);
    painter.setFont(mapFont(TextSize::Small));
    const QRectF right = line.adjusted(used + 2 * kPad, kPad, 0, -kPad / 2);
    painter.drawText(right, Qt::AlignRight | Qt::AlignTop, note);
    painter.setFont(mapFont(TextSize::Credit));
    painter.drawText(right, Qt::AlignRight | Qt::AlignBottom,
                     u"자리: OpenBible.info (CC BY 4.0) · 해안선: Natural Earth"_s);
}

} // namespace lumen
