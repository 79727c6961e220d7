// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSplitter>

#include <functional>

namespace lumen {

/// A splitter between two panes (the first two widgets put into it) that keeps its ratio when it is
/// resized.
class Splitter : public QSplitter
{
    Q_OBJECT

public:
    explicit Splitter(Qt::Orientation orientation = Qt::Horizontal, QWidget* parent = nullptr);

    /// The share of the first pane, 0 to 1.
    double ratio() const;
    void setRatio(double ratio);
    /// The size of a pane (0 or 1) along the splitter in twips; the other takes the rest.
    int paneTwips(int pane) const;
    void setPaneTwips(int pane, int twips);

    /// The user moved the bar.
    std::function<void()> onMoved;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void applyRatio();
    int length() const;

    double m_ratio = 0.5;
};

} // namespace lumen
