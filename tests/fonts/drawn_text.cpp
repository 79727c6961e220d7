// SPDX-License-Identifier: GPL-2.0-or-later
#include "fonts/drawn_text.h"

#include <QFont>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QPainterPath>
#include <QRawFont>
#include <QTextLayout>

#include <cmath>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kUnitsPerEm = 2048; // of both source fonts; at this size a pixel is a font unit
constexpr double kEndlessWidth = 1e7;

QList<QGlyphRun> glyphRuns(const QString& family, const QString& text)
{
    QFont font(family);
    font.setPixelSize(kUnitsPerEm);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoFontMerging);
    QTextLayout layout(text, font);
    QTextOption option;
    option.setTextDirection(Qt::LeftToRight);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(kEndlessWidth);
    layout.endLayout();
    return layout.glyphRuns();
}

QString outlineText(const QPainterPath& path)
{
    QString text;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element& element = path.elementAt(i);
        text += u"%1 %2 %3,"_s.arg(int(element.type))
                    .arg(std::lround(element.x))
                    .arg(std::lround(element.y));
    }
    return text;
}

} // namespace

QStringList drawnOutlines(const QString& family, const QString& text)
{
    QStringList outlines;
    const QList<QGlyphRun> runs = glyphRuns(family, text);
    for (const QGlyphRun& run : runs) {
        const QRawFont font = run.rawFont();
        const bool isForeign = font.familyName() != family;
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        for (qsizetype i = 0; i < glyphs.size(); ++i) {
            if (isForeign || glyphs[i] == 0)
                outlines << u"not drawn by the font"_s;
            QPainterPath path = font.pathForGlyph(glyphs[i]);
            path.translate(positions[i].x(), 0);
            if (!path.isEmpty())
                outlines << outlineText(path);
        }
    }
    outlines.sort();
    return outlines;
}

DrawnEdges drawnEdges(const QString& family, const QString& text)
{
    QRectF drawn;
    const QList<QGlyphRun> runs = glyphRuns(family, text);
    for (const QGlyphRun& run : runs) {
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        for (qsizetype i = 0; i < glyphs.size(); ++i)
            drawn |= run.rawFont().pathForGlyph(glyphs[i]).boundingRect().translated(
                positions[i].x(), 0);
    }
    return {drawn.left(), drawn.right()};
}

QString builtFontFolder()
{
    return qEnvironmentVariable("LUMENSCRIPT_FONTS", QStringLiteral(LUMEN_BUILT_FONTS));
}

void BuiltFontsTest::SetUpTestSuite()
{
    for (const QString& name : {u"OrvaneHeb"_s, u"OrvaneHebC"_s, u"OrvaneGrk"_s}) {
        const QString file = builtFontFolder() + u'/' + name + u".ttf"_s;
        const int id = QFontDatabase::addApplicationFont(file);
        ASSERT_GE(id, 0) << file.toStdString() << " is missing: run scripts/build-fonts";
        ASSERT_EQ(QFontDatabase::applicationFontFamilies(id), QStringList{name});
    }
    for (const QString& source : {u"Ezra SIL"_s, u"Galatia SIL"_s})
        ASSERT_TRUE(QFontDatabase::families().contains(source)) << source.toStdString();
}

} // namespace lumen
