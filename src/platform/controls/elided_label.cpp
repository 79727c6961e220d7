// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace lumen {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance(u"…"_s), QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), option.palette,
                          isEnabled(), shownText(), foregroundRole());
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    // As rich text it is broken into lines, a list without blanks at its commas: the screen may be
    // narrower than the text.
    QString tip;
    if (shownText() != text())
        tip = u"<qt>"_s + text().toHtmlEscaped().replace(u',', u",&#8203;"_s) + u"</qt>"_s;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
    return true;
}

} // namespace lumen
