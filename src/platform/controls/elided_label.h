// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>

namespace lumen {

/// A line of plain text that is cut with an ellipsis where its room ends, so that it asks for none:
/// a long text never widens the window. What is cut can be read in the tool tip; text() stays
/// whole.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    /// The text as it stands in view.
    QString shownText() const;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
};

} // namespace lumen
