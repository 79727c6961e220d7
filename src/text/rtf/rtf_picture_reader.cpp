// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_picture_reader.h"

#include <QPainter>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lumen {
namespace {

constexpr int kTwipsPerPixel = 15; // at 96 dpi
constexpr double kTwipsPerHundredthMm = 1440.0 / 2540.0;
constexpr int kBoxSide = 96;         // pixels, of a box whose size nothing tells
constexpr int kLargestSide = 31'680; // twips: 22 inches, as far as word processors go
// Of the file head that stands before a bitmap's own head.
constexpr int kBitmapFileHead = 14;
// Records of Windows metafiles that paint a bitmap, with the place of the bitmap in their
// parameters (bytes).
struct BitmapRecord
{
    quint16 function;
    qsizetype bitmapAt;
};
constexpr BitmapRecord kBitmapRecords[] = {{0x0F43, 22}, {0x0B41, 20}, {0x0940, 16}, {0x0D33, 18}};
constexpr qsizetype kMetafileHead = 18;
constexpr qsizetype kPlaceableHead = 22;
constexpr quint32 kPlaceableMark = 0x9AC6CDD7;

template <typename Number>
Number numberAt(QByteArrayView bytes, qsizetype at)
{
    return at >= 0 && at + qsizetype(sizeof(Number)) <= bytes.size()
               ? qFromLittleEndian<Number>(bytes.data() + at)
               : Number(0);
}

// A bitmap without file head; the pixels stand behind the head and the colour table.
QImage dibImage(QByteArrayView dib)
{
    const auto headSize = numberAt<quint32>(dib, 0);
    if (headSize < 12 || headSize > quint32(dib.size()))
        return {};
    const bool isOld = headSize == 12;
    const int bits = numberAt<quint16>(dib, isOld ? 10 : 14);
    const quint32 compression = isOld ? 0 : numberAt<quint32>(dib, 16);
    quint32 colors = isOld ? 0 : numberAt<quint32>(dib, 32);
    if (colors == 0 && bits <= 8)
        colors = 1U << bits;
    constexpr quint32 kBitFields = 3;
    const quint32 masks = compression == kBitFields && headSize == 40 ? 12 : 0;
    const quint32 pixels = headSize + masks + std::min(colors, 256U) * (isOld ? 3 : 4);
    QByteArray file(kBitmapFileHead, '\0');
    file[0] = 'B';
    file[1] = 'M';
    qToLittleEndian(quint32(kBitmapFileHead + dib.size()), file.data() + 2);
    qToLittleEndian(quint32(kBitmapFileHead + pixels), file.data() + 10);
    return QImage::fromData(file + dib.toByteArray(), "BMP");
}

// What rich text boxes make of a pasted bitmap is a metafile that paints it.
QImage metafileImage(QByteArrayView file)
{
    qsizetype at = numberAt<quint32>(file, 0) == kPlaceableMark ? kPlaceableHead : 0;
    at += kMetafileHead;
    while (at + 6 <= file.size()) {
        const qsizetype size = qsizetype(numberAt<quint32>(file, at)) * 2;
        const auto function = numberAt<quint16>(file, at + 4);
        if (size < 6 || function == 0)
            break;
        const QByteArrayView parameters = file.sliced(at + 6, std::min(size, file.size() - at) - 6);
        for (const BitmapRecord& record : kBitmapRecords)
            if (function == record.function && parameters.size() > record.bitmapAt)
                if (QImage image = dibImage(parameters.sliced(record.bitmapAt)); !image.isNull())
                    return image;
        at += size;
    }
    return {};
}

QImage boxOf(QSize twips)
{
    const QSize size = twips.isEmpty() ? QSize(kBoxSide, kBoxSide) : twips / kTwipsPerPixel;
    QImage box(size.expandedTo({2, 2}), QImage::Format_RGB32);
    box.fill(QColor(0xF2, 0xF2, 0xF2));
    QPainter painter(&box);
    painter.setPen(QColor(0x80, 0x80, 0x80));
    painter.drawRect(box.rect().adjusted(0, 0, -1, -1));
    painter.drawLine(box.rect().topLeft(), box.rect().bottomRight());
    painter.drawLine(box.rect().topRight(), box.rect().bottomLeft());
    return box;
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

} // namespace

void RtfPictureReader::setPart(RtfPicturePart part, int value)
{
    using enum RtfPicturePart;
    switch (part) {
    case Png:
        m_picture.kind = RtfPicture::Kind::Png;
        break;
    case Jpeg:
        m_picture.kind = RtfPicture::Kind::Jpeg;
        break;
    case Dib:
        m_picture.kind = RtfPicture::Kind::Dib;
        break;
    case Metafile:
        m_picture.kind = RtfPicture::Kind::Metafile;
        break;
    case OtherKind:
        m_picture.kind = RtfPicture::Kind::Unknown;
        break;
    case Width:
        m_width = value;
        break;
    case Height:
        m_height = value;
        break;
    case WidthGoal:
        m_widthGoal = value;
        break;
    case HeightGoal:
        m_heightGoal = value;
        break;
    case ScaleX:
        m_scaleX = value;
        break;
    case ScaleY:
        m_scaleY = value;
        break;
    }
}

void RtfPictureReader::addHex(QByteArrayView text)
{
    for (const char c : text) {
        const int digit = hexDigit(c);
        if (digit < 0)
            continue;
        if (m_digit < 0) {
            m_digit = digit;
            continue;
        }
        m_picture.data.append(static_cast<char>(m_digit << 4 | digit));
        m_digit = -1;
    }
}

QSize RtfPictureReader::size() const
{
    const bool isBitmap = m_picture.kind == RtfPicture::Kind::Png ||
                          m_picture.kind == RtfPicture::Kind::Jpeg ||
                          m_picture.kind == RtfPicture::Kind::Dib;
    const double unit = isBitmap ? double(kTwipsPerPixel) : kTwipsPerHundredthMm;
    const auto side = [unit](int goal, int natural, int scale) {
        const double twips = goal > 0 ? goal : natural * unit;
        const double scaled = twips * (scale > 0 ? scale : 100) / 100;
        return static_cast<int>(std::lround(std::clamp(scaled, 0.0, double(kLargestSide))));
    };
    return {side(m_widthGoal, m_width, m_scaleX), side(m_heightGoal, m_height, m_scaleY)};
}

RtfPicture RtfPictureReader::take()
{
    m_picture.size = size();
    return std::exchange(m_picture, {});
}

QImage toImage(const RtfPicture& picture)
{
    QImage image;
    switch (picture.kind) {
    case RtfPicture::Kind::Png:
        image = QImage::fromData(picture.data, "PNG");
        break;
    case RtfPicture::Kind::Jpeg:
        image = QImage::fromData(picture.data, "JPG");
        break;
    case RtfPicture::Kind::Dib:
        image = dibImage(picture.data);
        break;
    case RtfPicture::Kind::Metafile:
        image = metafileImage(picture.data);
        break;
    case RtfPicture::Kind::Unknown:
        break;
    }
    return image.isNull() ? boxOf(picture.size) : image;
}

} // namespace lumen
