// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/basic_text.h"
#include "text/rtf/rtf_document_writer.h"
#include "text/rtf/rtf_reader.h"

#include <QTextEdit>

#include <functional>
#include <optional>

namespace lumen {

/// An editor of formatted text: sermons, prayers, notes. Positions are UTF-16 units from 0; a
/// paragraph end is one position. The text goes in and out as RTF; what was given is given back to
/// the letter until it is edited, since what is read and written anew knows less than the word
/// processor that a text came from.
///
/// Properties of the selection are those of the caret where nothing is selected, and have no value
/// where the selection is mixed. Setting one without a selection holds for what is typed next.
class RichTextBox : public QTextEdit
{
    Q_OBJECT

public:
    explicit RichTextBox(QWidget* parent = nullptr);

    /// Paragraphs are parted by "\n", pictures are blanks.
    QString Text() const;
    /// Shows a text in the box's font, or one that begins as RTF as such.
    void setText(const QString& text);
    /// RTF as a database keeps it: characters beyond ASCII may stand for themselves.
    QString TextRTF() const;
    /// The text as the box writes it, whatever was given.
    QByteArray writtenRtf() const;
    /// Replaces all, and forgets what could be undone; the caret goes to 0. No RTF is taken as
    /// text.
    void setTextRTF(const QString& rtf);

    int SelStart() const;
    void setSelStart(int start) { select(start, 0); }
    int SelLength() const;
    void setSelLength(int length) { select(SelStart(), length); }
    /// Positions beyond the text are cut to it.
    void select(int start, int length);
    QString SelText() const;
    /// Puts text in place of the selection, with the format that stands there.
    void setSelText(const QString& text);
    QString SelRTF() const;
    void setSelRTF(const QString& rtf);

    std::optional<bool> SelBold() const;
    void setSelBold(bool on);
    std::optional<bool> SelItalic() const;
    void setSelItalic(bool on);
    std::optional<bool> SelUnderline() const;
    void setSelUnderline(bool on);
    /// 0 left, 1 right, 2 centred, of the paragraphs of the selection; a justified one counts as
    /// left.
    std::optional<int> SelAlignment() const;
    void setSelAlignment(int alignment);
    std::optional<QString> SelFontName() const;
    void setSelFontName(const QString& name);
    /// Points.
    std::optional<double> SelFontSize() const;
    void setSelFontSize(double points);
    /// The automatic colour counts as black.
    std::optional<RgbLong> selColor() const;
    void setSelColor(RgbLong color);

    /// The height of all lines at the box's present width, twips.
    int textHeight() const;
    /// What stands here now has been stored: it is what is given back from here on. Undo stays.
    void setStored();
    /// False while the text is what was given.
    bool isEdited() const { return document()->isModified(); }
    /// The text has something that is not shown, and that the first edit would lose.
    bool wouldLose() const { return m_wouldLose; }

    void cut();
    /// Clipboard text without any of its formats.
    void pastePlain();

    /// The user or a command has changed the text or its looks; code that shows a text is not told.
    std::function<void()> onChange;
    /// Caret or selection have moved, or the format under them has changed.
    std::function<void()> onSelectionChange;
    std::function<void()> onFocus;
    /// The context menu was asked for by mouse or key; the position is global.
    std::function<void(const QPoint& position)> onContextMenu;
    /// Asked before the first edit of a text that would lose something by it; false keeps it.
    std::function<bool()> onFirstLoss;

protected:
    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    template <typename Value, typename Read>
    std::optional<Value> common(Read read) const;
    void merge(const QTextCharFormat& format);
    bool mayEdit();
    void display(const std::function<void()>& fill);
    void reportSelection();
    void showPaper();
    RtfReadOptions readOptions() const;
    RtfWriteOptions writeOptions() const;
    void insertRtfBytes(const QByteArray& rtf);

    QString m_given; ///< RTF as it came in
    bool m_wouldLose = false;
    bool m_isLoading = false;
};

} // namespace lumen
