// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSyntaxHighlighter>

class QTextEdit;

namespace lumen {

/// Shows a text whose colours were chosen for a light page on the dark ground of its box: what
/// could not be read is shown lighter. The document keeps its colours, and so does what is copied.
class ReadableText : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// Begins with the document that the box shows.
    explicit ReadableText(const QTextEdit& box);

    /// The box shows another document from now on.
    void show(QTextDocument& content);

protected:
    void highlightBlock(const QString& text) override;

private:
    const QTextEdit& m_box;
};

} // namespace lumen
