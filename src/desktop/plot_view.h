/// Picture boxes on the screen: what they hold, as vectors, at any scale. The boxes keep their sizes in twips; the view
/// shows them as large as it can in their own proportions, on the paper's white in every palette. A plot answers: a
/// cross hair tells the values under the mouse, Ctrl and the wheel or a dragged frame look closer, a double click shows
/// the whole, and the context menu and Ctrl+C copy. What the boxes hold, and so the page, stays as it is.
#pragma once

#include <QTransform>
#include <QWidget>
#include <optional>

#include "controls/picture_box.h"
#include "desktop/bindings.h"

namespace terravane {

class PlotView : public QWidget {
  public:
    /// frame  the outer box; plot stands on it where its Left and Top say, and may be nothing
    PlotView(PictureBox& frame, PictureBox* plot, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// What is said over the empty axes until something is plotted.
    void WaitFor(const QString& sentence);
    /// The values at a point of the view, one axis a line; empty where nothing is plotted.
    QString ValuesAt(const QPointF& point) const;
    /// How much closer than the whole the view looks; 1 is the whole.
    double Zoom() const { return zoom_; }

    void CopyPicture() const;
    /// Marks and curves as lines of two numbers with a tab between them, as spreadsheets take them.
    void CopyNumbers() const;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    bool IsPlotted() const { return plot_ && plot_->Axes; }
    QPointF PlotCorner() const;
    QTransform WholeTransform() const;
    QTransform Transform() const;
    QRectF PlotOnView() const;
    DisplayList Drawing() const;
    void PaintCross(QPainter& painter) const;
    void PaintWaiting(QPainter& painter) const;
    void ZoomAt(const QPointF& point, double factor);
    void ZoomInto(const QRect& part);
    void ShowWhole();

    PictureBox& frame_;
    PictureBox* plot_;
    double zoom_ = 1;
    QPointF moved_;  // pixels, of the enlarged drawing
    std::optional<QPoint> mouse_, dragFrom_;
    QString waiting_;
    Bindings bindings_;
};

}  // namespace terravane
