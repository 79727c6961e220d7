// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/text/rich_text_box.h"

#include "platform/controls/colors.h"
#include "platform/controls/twips.h"
#include "text/rtf/rtf_parser.h"
#include "text/rtf/rtf_writer.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QImage>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>
#include <QTextFragment>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Of an empty box, as the notebooks begin a record.
constexpr QStringView kFontName = u"굴림체";
constexpr double kFontPoints = 10;

// What word processors and browsers offer RTF as, the first found is taken.
constexpr std::array kRtfTypes{"text/rtf"_L1, "application/rtf"_L1, "text/richtext"_L1,
                               "application/x-qt-windows-mime;value=\"Rich Text Format\""_L1};

QByteArray offeredRtf(const QMimeData& source)
{
    for (const QLatin1StringView type : kRtfTypes)
        if (source.hasFormat(type)) {
            QByteArray rtf = source.data(type);
            while (rtf.endsWith('\0'))
                rtf.chop(1);
            if (isRtf(rtf))
                return rtf;
        }
    return {};
}

Qt::Alignment alignmentOf(int number)
{
    constexpr int kRight = 1;
    constexpr int kCenter = 2;
    if (number == kRight)
        return Qt::AlignRight;
    return number == kCenter ? Qt::AlignHCenter : Qt::AlignLeft;
}

int numberOf(Qt::Alignment alignment)
{
    if (alignment & Qt::AlignRight)
        return 1;
    return alignment & Qt::AlignHCenter ? 2 : 0;
}

bool isBold(const QTextCharFormat& format)
{
    return format.fontWeight() >= QFont::DemiBold;
}

bool edits(const QKeyEvent& event)
{
    for (const QKeySequence::StandardKey key :
         {QKeySequence::Copy, QKeySequence::SelectAll, QKeySequence::Cut, QKeySequence::Paste,
          QKeySequence::Undo, QKeySequence::Redo})
        if (event.matches(key))
            return false; // reads, or comes by a slot that asks itself
    constexpr std::array kEditKeys{Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Enter,
                                   Qt::Key_Tab};
    const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    return std::ranges::find(kEditKeys, event.key()) != kEditKeys.end() ||
           (!event.text().isEmpty() && !isCommand);
}

} // namespace

RichTextBox::RichTextBox(QWidget* parent) : QTextEdit(parent)
{
    document()->setDefaultFont(QFont(kFontName.toString(), int(kFontPoints)));
    setAutoFormatting(AutoNone);
    showPaper();
    onSchemeChange(*this, [this] { showPaper(); });
    connect(document(), &QTextDocument::contentsChanged, this, [this] {
        if (!m_isLoading && onChange &&
            (isEdited() || document()->isUndoAvailable() || document()->isRedoAvailable()))
            onChange();
    });
    connect(this, &QTextEdit::selectionChanged, this, &RichTextBox::reportSelection);
    connect(this, &QTextEdit::cursorPositionChanged, this, &RichTextBox::reportSelection);
    connect(this, &QTextEdit::currentCharFormatChanged, this, &RichTextBox::reportSelection);
}

void RichTextBox::showPaper()
{
    showScheme(*this);
    // A page is white under any theme: texts bring colours of their own that were chosen for it.
    QPalette paper = palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    setPalette(paper);
}

void RichTextBox::reportSelection()
{
    if (!m_isLoading && onSelectionChange)
        onSelectionChange();
}

RtfReadOptions RichTextBox::readOptions() const
{
    RtfReadOptions options;
    options.pixelsPerTwip = double(screenDpi()) / kTwipsPerInch;
    options.lastPar = LastPar::EndsDocument;
    return options;
}

RtfWriteOptions RichTextBox::writeOptions() const
{
    return {readOptions().pixelsPerTwip, LastPar::EndsDocument};
}

QString RichTextBox::Text() const
{
    return document()->toPlainText().replace(QChar::ObjectReplacementCharacter, u' ');
}

void RichTextBox::display(const std::function<void()>& fill)
{
    m_isLoading = true;
    setUpdatesEnabled(false);
    fill();
    document()->clearUndoRedoStacks();
    document()->setModified(false);
    setTextCursor(QTextCursor(document()));
    setUpdatesEnabled(true);
    m_isLoading = false;
    reportSelection();
}

void RichTextBox::setText(const QString& text)
{
    if (text.startsWith(u"{\\rtf"))
        return setTextRTF(text);
    m_given.clear();
    m_wouldLose = false;
    display([this, &text] {
        setPlainText(text);
        QTextCursor all(document());
        all.select(QTextCursor::Document);
        QTextCharFormat format;
        format.setFontFamilies({kFontName.toString()});
        format.setFontPointSize(kFontPoints);
        all.setCharFormat(format);
        all.setBlockCharFormat(format);
    });
}

QString RichTextBox::TextRTF() const
{
    if (!isEdited() && !m_given.isEmpty())
        return m_given;
    return QString::fromLatin1(writtenRtf());
}

QByteArray RichTextBox::writtenRtf() const
{
    return writeRtf(*document(), writeOptions());
}

void RichTextBox::setTextRTF(const QString& rtf)
{
    if (!rtf.startsWith(u"{\\rtf"))
        return setText(rtf);
    m_given = rtf;
    display([this] { m_wouldLose = !readRtf(toRtfBytes(m_given), *document(), readOptions()); });
}

void RichTextBox::setStored()
{
    m_given = TextRTF();
    document()->setModified(false);
}

int RichTextBox::SelStart() const
{
    return textCursor().selectionStart();
}

int RichTextBox::SelLength() const
{
    return textCursor().selectionEnd() - textCursor().selectionStart();
}

void RichTextBox::select(int start, int length)
{
    const int last = document()->characterCount() - 1;
    const int first = std::clamp(start, 0, last);
    QTextCursor caret(document());
    caret.setPosition(first);
    caret.setPosition(first + std::clamp(length, 0, last - first), QTextCursor::KeepAnchor);
    setTextCursor(caret);
}

QString RichTextBox::SelText() const
{
    return Text().mid(SelStart(), SelLength());
}

void RichTextBox::setSelText(const QString& text)
{
    if (!mayEdit())
        return;
    textCursor().insertText(text, currentCharFormat());
    ensureCursorVisible();
}

QString RichTextBox::SelRTF() const
{
    return QString::fromLatin1(writeRtf(textCursor(), {writeOptions().pixelsPerTwip}));
}

void RichTextBox::setSelRTF(const QString& rtf)
{
    insertRtfBytes(toRtfBytes(rtf));
}

void RichTextBox::insertRtfBytes(const QByteArray& rtf)
{
    if (!mayEdit())
        return;
    QTextCursor cursor = textCursor();
    insertRtf(rtf, cursor, readOptions());
    setTextCursor(cursor);
    ensureCursorVisible();
}

template <typename Value, typename Read>
std::optional<Value> RichTextBox::common(Read read) const
{
    const QTextCursor caret = textCursor();
    if (!caret.hasSelection())
        return read(currentCharFormat());
    std::optional<Value> found;
    for (QTextBlock block = document()->findBlock(caret.selectionStart());
         block.isValid() && block.position() < caret.selectionEnd(); block = block.next())
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment run = it.fragment();
            if (run.position() >= caret.selectionEnd() ||
                run.position() + run.length() <= caret.selectionStart())
                continue;
            const Value value = read(run.charFormat());
            if (found && *found != value)
                return std::nullopt;
            found = value;
        }
    return found ? found : std::optional<Value>(read(currentCharFormat()));
}

void RichTextBox::merge(const QTextCharFormat& format)
{
    // Without a selection only what is typed next is changed, which loses nothing.
    if (textCursor().hasSelection() && !mayEdit())
        return;
    mergeCurrentCharFormat(format);
    reportSelection();
}

std::optional<bool> RichTextBox::SelBold() const
{
    return common<bool>(isBold);
}

void RichTextBox::setSelBold(bool on)
{
    QTextCharFormat format;
    format.setFontWeight(on ? QFont::Bold : QFont::Normal);
    merge(format);
}

std::optional<bool> RichTextBox::SelItalic() const
{
    return common<bool>([](const QTextCharFormat& format) { return format.fontItalic(); });
}

void RichTextBox::setSelItalic(bool on)
{
    QTextCharFormat format;
    format.setFontItalic(on);
    merge(format);
}

std::optional<bool> RichTextBox::SelUnderline() const
{
    return common<bool>([](const QTextCharFormat& format) { return format.fontUnderline(); });
}

void RichTextBox::setSelUnderline(bool on)
{
    QTextCharFormat format;
    format.setFontUnderline(on);
    merge(format);
}

std::optional<int> RichTextBox::SelAlignment() const
{
    const QTextCursor caret = textCursor();
    std::optional<int> found;
    for (QTextBlock block = document()->findBlock(caret.selectionStart());
         block.isValid() && block.position() <= caret.selectionEnd(); block = block.next()) {
        const int number = numberOf(block.blockFormat().alignment());
        if (found && *found != number)
            return std::nullopt;
        found = number;
    }
    return found;
}

void RichTextBox::setSelAlignment(int alignment)
{
    if (SelAlignment() == alignment || !mayEdit())
        return;
    QTextBlockFormat format;
    format.setAlignment(alignmentOf(alignment));
    textCursor().mergeBlockFormat(format);
    reportSelection();
}

std::optional<QString> RichTextBox::SelFontName() const
{
    return common<QString>([this](const QTextCharFormat& format) {
        const QStringList families = format.fontFamilies().toStringList();
        return families.value(0, document()->defaultFont().family());
    });
}

void RichTextBox::setSelFontName(const QString& name)
{
    QTextCharFormat format;
    format.setFontFamilies({name});
    merge(format);
}

std::optional<double> RichTextBox::SelFontSize() const
{
    return common<double>([this](const QTextCharFormat& format) {
        return format.fontPointSize() > 0 ? format.fontPointSize()
                                          : document()->defaultFont().pointSizeF();
    });
}

void RichTextBox::setSelFontSize(double points)
{
    if (points <= 0)
        return;
    QTextCharFormat format;
    format.setFontPointSize(points);
    merge(format);
}

std::optional<RgbLong> RichTextBox::selColor() const
{
    return common<RgbLong>([](const QTextCharFormat& format) -> RgbLong {
        if (format.foreground().style() == Qt::NoBrush)
            return 0;
        const QColor color = format.foreground().color();
        return RGB(color.red(), color.green(), color.blue());
    });
}

void RichTextBox::setSelColor(RgbLong color)
{
    QTextCharFormat format;
    format.setForeground(toColor(color));
    merge(format);
}

int RichTextBox::textHeight() const
{
    return toTwips(static_cast<int>(std::ceil(
        document()->documentLayout()->documentSize().height() - 2 * document()->documentMargin())));
}

// Asked once a text: who has agreed is not asked again, who has not keeps it as it is.
bool RichTextBox::mayEdit()
{
    if (isReadOnly())
        return false;
    if (!m_wouldLose || !onFirstLoss)
        return true;
    if (!onFirstLoss())
        return false;
    m_wouldLose = false;
    return true;
}

void RichTextBox::pastePlain()
{
    setSelText(QGuiApplication::clipboard()->text());
}

void RichTextBox::cut()
{
    if (SelLength() > 0 && mayEdit())
        QTextEdit::cut();
}

QMimeData* RichTextBox::createMimeDataFromSelection() const
{
    std::unique_ptr<QMimeData> content(QTextEdit::createMimeDataFromSelection());
    const QByteArray rtf = SelRTF().toLatin1();
    content->setData(kRtfTypes[0], rtf);
    content->setData(kRtfTypes[1], rtf);
    content->setText(SelText());
    return content.release();
}

bool RichTextBox::canInsertFromMimeData(const QMimeData* source) const
{
    return source->hasText() || source->hasHtml() || source->hasImage() ||
           !offeredRtf(*source).isEmpty();
}

// What comes as HTML or as a picture goes through the writer, so that what is shown now is what
// will be read again.
void RichTextBox::insertFromMimeData(const QMimeData* source)
{
    if (const QByteArray rtf = offeredRtf(*source); !rtf.isEmpty())
        return insertRtfBytes(rtf);
    QTextDocument content;
    content.setDefaultFont(document()->defaultFont());
    if (source->hasHtml()) {
        content.setHtml(source->html());
    } else if (source->hasImage()) {
        QTextCursor(&content).insertImage(source->imageData().value<QImage>());
    } else {
        return setSelText(source->text());
    }
    insertRtfBytes(writeRtf(content, {writeOptions().pixelsPerTwip}));
}

void RichTextBox::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cut))
        return cut();
    if (edits(*event) && !(event->key() == Qt::Key_Tab && tabChangesFocus()) && !mayEdit()) {
        event->accept();
        return;
    }
    QTextEdit::keyPressEvent(event);
}

void RichTextBox::inputMethodEvent(QInputMethodEvent* event)
{
    const bool isText = !event->commitString().isEmpty() || !event->preeditString().isEmpty();
    if (isText && !mayEdit())
        return event->ignore();
    QTextEdit::inputMethodEvent(event);
}

void RichTextBox::dropEvent(QDropEvent* event)
{
    if (mayEdit())
        QTextEdit::dropEvent(event);
}

void RichTextBox::focusInEvent(QFocusEvent* event)
{
    QTextEdit::focusInEvent(event);
    if (onFocus)
        onFocus();
}

void RichTextBox::mousePressEvent(QMouseEvent* event)
{
    if (onFocus)
        onFocus();
    if (event->button() == Qt::RightButton)
        setFocus(Qt::MouseFocusReason);
    QTextEdit::mousePressEvent(event);
}

void RichTextBox::contextMenuEvent(QContextMenuEvent* event)
{
    if (onContextMenu)
        onContextMenu(event->globalPos());
    else
        QTextEdit::contextMenuEvent(event);
}

} // namespace lumen
