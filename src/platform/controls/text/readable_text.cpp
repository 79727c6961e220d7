// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/text/readable_text.h"

#include "platform/controls/colors.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>

namespace lumen {

ReadableText::ReadableText(const QTextEdit& box)
    : QSyntaxHighlighter(static_cast<QObject*>(nullptr)), m_box(box)
{
    show(*box.document());
}

void ReadableText::show(QTextDocument& content)
{
    setDocument(&content);
    rehighlight(); // now: else the text would be seen once in its own colours
}

void ReadableText::highlightBlock(const QString&)
{
    const QPalette& look = m_box.palette();
    const QTextBlock block = currentBlock();
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextFragment fragment = part.fragment();
        const QTextCharFormat own = fragment.charFormat();
        const QColor ground = own.background().style() == Qt::NoBrush ? look.color(QPalette::Base)
                                                                      : own.background().color();
        const QColor color = own.foreground().style() == Qt::NoBrush ? look.color(QPalette::Text)
                                                                     : own.foreground().color();
        const QColor readable = readableOn(ground, color);
        if (readable == color)
            continue;
        QTextCharFormat shown;
        shown.setForeground(readable);
        setFormat(fragment.position() - block.position(), fragment.length(), shown);
    }
}

} // namespace lumen
