// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/text/text_range.h"
#include "text/basic_text.h"

#include <QTextEdit>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace lumen {

class ReadableText;

/// The reader's text view and the text boxes of the panel: read-only, with a caret that the keys
/// move. Positions are UTF-16 units from 0; a paragraph end is one position.
class TextControl : public QTextEdit
{
    Q_OBJECT

public:
    explicit TextControl(QWidget* parent = nullptr);
    ~TextControl() override;

    /// Shows an RTF document (code page 949); bytes that are no RTF come in as plain text.
    void LoadRtf(const QByteArray& rtf);
    /// Shows a document that was made elsewhere and owns it; the caret goes to 0. Line spacing and
    /// tab width of this control are put on it.
    void takeDocument(std::unique_ptr<QTextDocument> content);
    void setText(const QString& text);
    /// Paragraphs are parted by "\n".
    QString Text() const;

    int SelStart() const;
    int SelLength() const;
    QString SelText() const;
    /// The caret stands at the end of the selection; positions beyond the text are cut to it.
    void select(int start, int length);
    void setSelStart(int start) { select(start, 0); }
    void setSelLength(int length) { select(SelStart(), length); }
    /// Selects the word that the last mouse button went down on (see wordAt).
    void SelectClickedWord();
    /// The position under a point of the viewport.
    int positionAt(const QPoint& point) const;

    /// Distance of the tab stops and the space below each paragraph, twips.
    void setTabWidth(int twips);
    void setParagraphSpacing(int twips);
    /// Percent of the single line height: 100, 150, 200.
    void setLineSpacing(int percent);
    int lineSpacing() const { return m_lineSpacing; }
    void setBackColor(RgbLong color);
    /// The width that text has, twips: without frame, margins and scroll bar.
    int textWidth() const;
    /// Scrolls so that the line of a position is the topmost, as far as the text allows.
    void scrollToPosition(int position);
    /// The position of the first character in view, for keeping the place over a fill.
    int firstVisiblePosition() const;

    /// Button and position of the viewport; also when the selection was dragged.
    std::function<void(Qt::MouseButton button, const QPoint& position)> onMouseUp;
    std::function<void(int key, Qt::KeyboardModifiers modifiers)> onKeyUp;
    /// The context menu was asked for by mouse or key; the position is global.
    std::function<void(const QPoint& position)> onContextMenu;
    /// The user moved the caret or changed the selection; code that selects is not told.
    std::function<void()> onSelectionChange;
    /// The copy key; without it the control copies its selection itself.
    std::function<void()> onCopy;
    /// The text width has changed and the resizing has come to rest.
    std::function<void()> onResizeEnded;

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    static constexpr int kSingleSpacing = 100; // percent

    void display(std::unique_ptr<QTextDocument> content);
    void applyTabs(QTextDocument& content) const;
    void applySpacing(QTextDocument& content) const;

    void reportSelection();
    void followScheme();

    QTextDocument* m_content = nullptr;       // a child; nullptr while the toolkit's own is shown
    std::unique_ptr<ReadableText> m_readable; // on a dark desktop
    std::optional<RgbLong> m_ground;
    QTimer m_resizeTimer;
    std::pair<int, int> m_reported{0, 0}; // anchor and position last told
    int m_lastWidth = 0;
    std::optional<int> m_topBeforeResize; // the position to bring back once resizing has ended
    int m_tabWidth = 0;
    std::optional<int> m_paragraphSpacing; // as the document has it
    int m_lineSpacing = kSingleSpacing;
    int m_clickedPosition = 0;
    bool m_loading = false;
};

} // namespace lumen
