// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/text/text_control.h"

#include "platform/controls/colors.h"
#include "platform/controls/text/readable_text.h"
#include "platform/controls/twips.h"
#include "text/rtf/rtf_reader.h"

#include <QAbstractTextDocumentLayout>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace lumen {
namespace {

// How long a width must stand still before the text is divided anew, milliseconds.
constexpr int kResizeRest = 150;

} // namespace

TextControl::TextControl(QWidget* parent) : QTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    // A bar that comes and goes would lay a long chapter out twice.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    followScheme();
    onSchemeChange(*this, [this] { followScheme(); });
    m_resizeTimer.setParent(this);
    m_resizeTimer.setSingleShot(true);
    m_resizeTimer.setInterval(kResizeRest);
    connect(&m_resizeTimer, &QTimer::timeout, this, [this] {
        if (m_topBeforeResize)
            scrollToPosition(*m_topBeforeResize);
        if (onResizeEnded)
            onResizeEnded();
    });
    connect(this, &QTextEdit::selectionChanged, this, &TextControl::reportSelection);
    connect(this, &QTextEdit::cursorPositionChanged, this, &TextControl::reportSelection);
}

TextControl::~TextControl() = default;

void TextControl::reportSelection()
{
    const std::pair now(textCursor().anchor(), textCursor().position());
    // The toolkit tells a moved caret and a changed selection apart; here both are one event.
    if (m_loading || now == m_reported)
        return;
    m_reported = now;
    if (onSelectionChange)
        onSelectionChange();
}

void TextControl::LoadRtf(const QByteArray& rtf)
{
    RtfReadOptions options;
    options.lineSpacingPercent = m_lineSpacing;
    options.tabWidth = m_tabWidth;
    options.paragraphSpacing = m_paragraphSpacing.value_or(0);
    options.pixelsPerTwip = double(screenDpi()) / kTwipsPerInch;
    auto content = std::make_unique<QTextDocument>();
    readRtf(rtf, *content, options);
    display(std::move(content));
}

void TextControl::takeDocument(std::unique_ptr<QTextDocument> content)
{
    Q_ASSERT(content);
    applyTabs(*content);
    if (m_lineSpacing != kSingleSpacing || m_paragraphSpacing)
        applySpacing(*content);
    display(std::move(content));
}

void TextControl::display(std::unique_ptr<QTextDocument> content)
{
    m_loading = true;
    setUpdatesEnabled(false);
    content->setUndoRedoEnabled(false);
    QTextDocument* before = m_content;
    m_content = content.release();
    m_content->setParent(this);
    setDocument(m_content);
    if (m_readable)
        m_readable->show(*m_content);
    delete before;
    verticalScrollBar()->setValue(0);
    setUpdatesEnabled(true);
    m_clickedPosition = 0;
    m_topBeforeResize.reset();
    m_reported = {0, 0};
    m_loading = false;
}

void TextControl::setText(const QString& text)
{
    auto content = std::make_unique<QTextDocument>();
    content->setDefaultFont(font());
    content->setPlainText(text);
    takeDocument(std::move(content));
}

QString TextControl::Text() const
{
    return document()->toPlainText();
}

int TextControl::SelStart() const
{
    return textCursor().selectionStart();
}

int TextControl::SelLength() const
{
    const QTextCursor caret = textCursor();
    return caret.selectionEnd() - caret.selectionStart();
}

QString TextControl::SelText() const
{
    return Text().mid(SelStart(), SelLength());
}

void TextControl::select(int start, int length)
{
    const int last = document()->characterCount() - 1;
    const int first = std::clamp(start, 0, last);
    QTextCursor caret(document());
    caret.setPosition(first);
    caret.setPosition(first + std::clamp(length, 0, last - first), QTextCursor::KeepAnchor);
    m_loading = true;
    setTextCursor(caret);
    m_reported = {caret.anchor(), caret.position()};
    m_loading = false;
}

void TextControl::SelectClickedWord()
{
    const TextRange word = wordAt(Text(), m_clickedPosition);
    select(word.start, word.length);
}

int TextControl::positionAt(const QPoint& point) const
{
    return cursorForPosition(point).position();
}

void TextControl::setTabWidth(int twips)
{
    m_tabWidth = twips;
    applyTabs(*document());
}

void TextControl::setParagraphSpacing(int twips)
{
    m_paragraphSpacing = twips;
    applySpacing(*document());
}

void TextControl::setLineSpacing(int percent)
{
    m_lineSpacing = percent;
    const int top = verticalScrollBar()->value() > 0 ? firstVisiblePosition() : 0;
    applySpacing(*document());
    if (top > 0)
        scrollToPosition(top);
}

void TextControl::applyTabs(QTextDocument& content) const
{
    if (m_tabWidth <= 0)
        return;
    QTextOption option = content.defaultTextOption();
    option.setTabStopDistance(toPixels(m_tabWidth));
    content.setDefaultTextOption(option);
}

void TextControl::applySpacing(QTextDocument& content) const
{
    QTextBlockFormat format;
    format.setLineHeight(m_lineSpacing, m_lineSpacing == kSingleSpacing
                                            ? QTextBlockFormat::SingleHeight
                                            : QTextBlockFormat::ProportionalHeight);
    if (m_paragraphSpacing)
        format.setBottomMargin(toPixels(*m_paragraphSpacing));
    QTextCursor all(&content);
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(format);
}

void TextControl::setBackColor(RgbLong color)
{
    m_ground = color;
    followScheme();
}

void TextControl::followScheme()
{
    // The selected verse has to be seen while the panel has the focus.
    showScheme(*this, m_ground);
    m_readable = isDark(QPalette()) ? std::make_unique<ReadableText>(*this) : nullptr;
}

int TextControl::textWidth() const
{
    const int margins = qRound(2 * document()->documentMargin());
    return toTwips(std::max(0, viewport()->width() - margins));
}

void TextControl::scrollToPosition(int position)
{
    const int last = document()->characterCount() - 1;
    QTextCursor caret(document());
    caret.setPosition(std::clamp(position, 0, last));
    // The text is laid out on demand, and the bar only knows what is laid out.
    document()->documentLayout()->blockBoundingRect(document()->lastBlock());
    m_topBeforeResize.reset();
    QScrollBar* bar = verticalScrollBar();
    const int top = bar->value() + cursorRect(caret).top();
    bar->setValue(top <= document()->documentMargin() ? 0 : top);
}

int TextControl::firstVisiblePosition() const
{
    return positionAt(QPoint(qRound(document()->documentMargin()), 1));
}

bool TextControl::event(QEvent* event)
{
    // The text only reads keys for moving the caret; what the window's tools claim is theirs.
    if (event->type() == QEvent::ShortcutOverride && isReadOnly() &&
        !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy))
        return false;
    return QTextEdit::event(event);
}

void TextControl::mousePressEvent(QMouseEvent* event)
{
    m_clickedPosition = positionAt(event->position().toPoint());
    QTextEdit::mousePressEvent(event);
    // A menu acts on what lies under the pointer, or on the selection when that lies there.
    const bool onSelection = SelLength() > 0 && m_clickedPosition >= SelStart() &&
                             m_clickedPosition <= SelStart() + SelLength();
    if (event->button() == Qt::RightButton && !onSelection) {
        QTextCursor caret(document());
        caret.setPosition(m_clickedPosition);
        setTextCursor(caret);
    }
}

void TextControl::mouseReleaseEvent(QMouseEvent* event)
{
    const Qt::MouseButton button = event->button();
    const QPoint position = event->position().toPoint();
    QTextEdit::mouseReleaseEvent(event);
    if (onMouseUp)
        onMouseUp(button, position);
}

void TextControl::keyPressEvent(QKeyEvent* event)
{
    if (onCopy && event->matches(QKeySequence::Copy))
        onCopy();
    else
        QTextEdit::keyPressEvent(event);
}

void TextControl::keyReleaseEvent(QKeyEvent* event)
{
    const int key = event->key();
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    QTextEdit::keyReleaseEvent(event);
    if (onKeyUp)
        onKeyUp(key, modifiers);
}

void TextControl::contextMenuEvent(QContextMenuEvent* event)
{
    if (onContextMenu)
        onContextMenu(event->globalPos());
    else
        QTextEdit::contextMenuEvent(event);
}

void TextControl::resizeEvent(QResizeEvent* event)
{
    // The lines break anew, but the bar keeps its value: another part of the text would stand
    // there.
    const int top = verticalScrollBar()->value() > 0 ? firstVisiblePosition() : 0;
    QTextEdit::resizeEvent(event);
    const int width = textWidth();
    if (width == m_lastWidth)
        return;
    if (!m_topBeforeResize) // else a later step of the same resizing
        m_topBeforeResize = top;
    m_lastWidth = width;
    m_resizeTimer.start();
}

} // namespace lumen
