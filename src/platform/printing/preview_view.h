// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/printing/vs_printer.h"

#include <QAbstractScrollArea>

#include <functional>

namespace lumen {

/// How the preview fits pages; the values are those of the list that shows them.
enum class PreviewZoom { Percentage, Thumbnail, TwoPages, WholePage, PageWidth, Stretch };

/// Shows the pages of a VSPrinter as the paper will have them. Zoom and page moves paint what was
/// recorded; nothing is laid out here.
class PreviewView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    /// The document outlives the view.
    explicit PreviewView(const VSPrinter& printer, QWidget* parent = nullptr);

    PreviewZoom ZoomMode() const { return m_mode; }
    void setZoomMode(PreviewZoom mode);
    /// Percent of the paper's own size, as it comes out in the mode at hand.
    double Zoom() const;
    /// Goes to PreviewZoom::Percentage; between 5 and 800.
    void setZoom(double percent);
    /// The first page in view, from 1.
    int PreviewPage() const { return m_page; }
    void setPreviewPage(int page);
    /// How many pages stand in view at once.
    int PreviewPages() const;
    bool ShowGuides() const { return m_guides; }
    void setShowGuides(bool show);
    /// The document has been made anew.
    void documentChanged();

    /// The wheel or a key asks for another page: -1, 1.
    std::function<void(int step)> onStep;
    /// Zoom, or the number of pages in view, has changed by wheel, key or size.
    std::function<void()> onViewChange;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QSizeF pageTwips() const;
    double pixelsPerTwip(double percent) const;
    double percentToFit(double width, double height) const;
    int columns() const;
    int rows() const;
    QSize contentSize() const;
    void updateBars();
    void drawPage(QPainter& painter, int page, const QRectF& place) const;

    const VSPrinter& m_printer;
    PreviewZoom m_mode = PreviewZoom::WholePage;
    double m_percent = 100;
    int m_page = 1;
    bool m_guides = false;
};

} // namespace lumen
