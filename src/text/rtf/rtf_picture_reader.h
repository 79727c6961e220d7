// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/rtf/rtf_content.h"
#include "text/rtf/rtf_control_words.h"

#include <QByteArrayView>
#include <QImage>

namespace lumen {

/// Collects the parts of a \pict destination.
class RtfPictureReader
{
public:
    void begin() { *this = RtfPictureReader(); }
    void setPart(RtfPicturePart part, int value);
    /// Hexadecimal digits in pairs; all other bytes are passed over.
    void addHex(QByteArrayView text);
    void addBytes(QByteArrayView bytes) { m_picture.data += bytes; }
    RtfPicture take();

private:
    QSize size() const;

    RtfPicture m_picture;
    int m_digit = -1; ///< first of a pair that its second is missing of
    int m_width = 0;  ///< pixels, of metafiles hundredths of a millimetre
    int m_height = 0;
    int m_widthGoal = 0; ///< twips
    int m_heightGoal = 0;
    int m_scaleX = 100; ///< percent
    int m_scaleY = 100;
};

/// The picture to be shown: bitmaps as they are, of a metafile the bitmap that it paints, for
/// everything else a framed box.
QImage toImage(const RtfPicture& picture);

} // namespace lumen
