// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/export/record_document.h"

#include "text/rtf/rtf_reader.h"
#include "text/rtf/rtf_writer.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocumentWriter>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr double kPixelsPerTwip = 96.0 / 1440;
constexpr double kTitlePoints = 18;
constexpr double kHeadingPoints = 12;
constexpr double kTextPoints = 10;
constexpr double kAboveHeading = 14; // pixels
constexpr double kBelowHeading = 4;
constexpr int kMarginMm = 20;
const QColor kHeadingColor(0x1F, 0x3A, 0x5F);

QTextCharFormat letters(double points, bool bold)
{
    QTextCharFormat format;
    format.setFontFamilies({u"Noto Serif CJK KR"_s, u"바탕"_s, u"serif"_s});
    format.setFontPointSize(points);
    format.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    return format;
}

void addHeading(QTextCursor& cursor, const QString& text)
{
    QTextBlockFormat block;
    block.setHeadingLevel(2);
    block.setTopMargin(kAboveHeading);
    block.setBottomMargin(kBelowHeading);
    QTextCharFormat format = letters(kHeadingPoints, true);
    format.setForeground(kHeadingColor);
    cursor.insertBlock(block, format);
    cursor.insertText(text, format);
}

// What stands in for the usual Korean fonts elsewhere gives the blank the code of a control sign
// when a PDF file is read back.
QString installedFont(const QString& name)
{
    if (QFontDatabase::hasFamily(name))
        return name;
    const bool isSerif = name.startsWith(u"바탕") || name.startsWith(u"궁서");
    return isSerif ? u"Noto Serif CJK KR"_s : u"Noto Sans CJK KR"_s;
}

void addText(QTextCursor& cursor, const QString& rtf, RecordFonts fonts)
{
    cursor.insertBlock(QTextBlockFormat(), letters(kTextPoints, false));
    RtfReadOptions options{.pixelsPerTwip = kPixelsPerTwip, .lastPar = LastPar::EndsDocument};
    if (fonts == RecordFonts::Installed)
        options.fontResolver = installedFont;
    insertRtf(toRtfBytes(rtf), cursor, options);
    cursor.movePosition(QTextCursor::End);
}

QString detailsOf(const RecordProfile& profile, const RecordBoxes& boxes)
{
    QStringList details;
    if (profile.hasPreachedDay())
        details << profile.preachedDay.toString() + u' ' + dayString(boxes.preachedDay());
    details << profile.writtenDay.toString() + u' ' + dayString(boxes.writtenDay());
    if (!boxes.category().isEmpty())
        details << profile.categoryLabel.toString() + u' ' + boxes.category();
    return details.join(u"   "_s);
}

} // namespace

std::unique_ptr<QTextDocument> recordDocument(const RecordProfile& profile,
                                              const RecordBoxes& boxes, RecordFonts fonts)
{
    auto document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    QTextCursor cursor(document.get());
    QTextBlockFormat title;
    title.setHeadingLevel(1);
    title.setAlignment(Qt::AlignHCenter);
    cursor.setBlockFormat(title);
    cursor.insertText(boxes.plainText(kTitleText).simplified(), letters(kTitlePoints, true));
    QTextBlockFormat details;
    details.setAlignment(Qt::AlignRight);
    cursor.insertBlock(details, letters(kTextPoints, false));
    cursor.insertText(detailsOf(profile, boxes), letters(kTextPoints, false));
    for (int i = kTitleText + 1; i < kRecordTexts; ++i) {
        if (boxes.plainText(i).trimmed().isEmpty())
            continue;
        addHeading(cursor, profile.texts[static_cast<std::size_t>(i)].heading.toString());
        addText(cursor, boxes.rtf(i), fonts);
    }
    document->setMetaInformation(QTextDocument::DocumentTitle,
                                 boxes.plainText(kTitleText).simplified());
    return document;
}

QByteArray odtBytes(const QTextDocument& document)
{
    QByteArray bytes;
    QBuffer file(&bytes);
    file.open(QIODevice::WriteOnly);
    return QTextDocumentWriter(&file, "odf").write(&document) ? bytes : QByteArray();
}

QByteArray pdfBytes(QTextDocument& document, const QString& title)
{
    QByteArray bytes;
    QBuffer file(&bytes);
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    writer.setTitle(title);
    writer.setCreator(u"Lumenscript"_s);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                     QMarginsF(kMarginMm, kMarginMm, kMarginMm, kMarginMm),
                                     QPageLayout::Millimeter));
    document.print(&writer);
    file.close();
    return bytes;
}

} // namespace lumen
