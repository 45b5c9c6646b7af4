#include "desktop/plot_view.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "desktop/looks.h"
#include "desktop/qt_text.h"
#include "program/plot_numbers.h"
#include "render/painter.h"

namespace terravane {

namespace {

constexpr double kClosest = 16, kStep = 1.25;
constexpr double kGhost = 0.25;                        // of the drawing's ink
constexpr int kLeastDrag = 8;                          // pixels; less is a press
constexpr double kCopyScale = 2;                       // pixels of a copied picture to one of the screen at 100 %
const QColor kCross(96, 96, 96), kTag(255, 255, 225);  // on paper, in every palette

}  // namespace

PlotView::PlotView(PictureBox& frame, PictureBox* plot, QWidget* parent) : QWidget(parent), frame_(frame), plot_(plot)
{
    bindings_.push_back(frame.Show([this] { update(); }));
    if (plot) bindings_.push_back(plot->Show([this] { update(); }));
    setObjectName(QString::fromStdString((plot ? plot : &frame)->Name()));
    setAccessibleName(tr("Curve, no result yet"));
    setMouseTracking(true);
    if (plot) setFocusPolicy(Qt::ClickFocus);
}

QSize PlotView::sizeHint() const
{
    return {static_cast<int>(frame_.Width / looks::kTwipsPerPixel * 1.25),
            static_cast<int>(frame_.Height / looks::kTwipsPerPixel * 1.25)};
}

QSize PlotView::minimumSizeHint() const
{
    return sizeHint() * 0.55;
}

void PlotView::WaitFor(const QString& sentence)
{
    waiting_ = sentence;
}

/// Of the plot on its frame, twips.
QPointF PlotView::PlotCorner() const
{
    const bool inside = plot_->Container == &frame_;
    return {plot_->Left - (inside ? 0 : frame_.Left), plot_->Top - (inside ? 0 : frame_.Top)};
}

/// From the frame's twips to pixels.
QTransform PlotView::WholeTransform() const
{
    const double scale = std::min(width() / frame_.Width, height() / frame_.Height);
    return QTransform::fromTranslate((width() - frame_.Width * scale) / 2, (height() - frame_.Height * scale) / 2)
        .scale(scale, scale);
}

QTransform PlotView::Transform() const
{
    return WholeTransform() * QTransform::fromScale(zoom_, zoom_) * QTransform::fromTranslate(moved_.x(), moved_.y());
}

QRectF PlotView::PlotOnView() const
{
    return Transform().mapRect(QRectF(PlotCorner(), QSizeF(plot_->Width, plot_->Height)));
}

DisplayList PlotView::Drawing() const
{
    DrawingSurface both(frame_.Width, frame_.Height);
    both.PaintPicture(frame_.Name(), frame_.Image(), 0, 0, frame_.Width, frame_.Height);
    if (plot_) {
        const QPointF corner = PlotCorner();
        both.PaintPicture(plot_->Name(), plot_->Image(), corner.x(), corner.y(), plot_->Width, plot_->Height);
    }
    return *both.Image();
}

void PlotView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool waits = plot_ && !waiting_.isEmpty() && !plot_->Axes;
    painter.save();
    const QRectF paper = Transform().mapRect(QRectF(0, 0, frame_.Width, frame_.Height));
    if (waits) {
        painter.fillRect(paper, Qt::white);
        painter.setOpacity(kGhost);
    }
    painter.setTransform(Transform(), true);
    PaintList(painter, Drawing());
    painter.restore();
    if (waits) PaintWaiting(painter);
    if (dragFrom_ && mouse_) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DashLine));
        painter.drawRect(QRect(*dragFrom_, *mouse_).normalized());
    } else {
        PaintCross(painter);
    }
    if (!hasFocus()) return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void PlotView::PaintWaiting(QPainter& painter) const
{
    painter.setFont(looks::Scaled(font(), looks::kFigureSize));
    painter.setPen(Qt::black);
    painter.drawText(PlotOnView().adjusted(looks::kMargin, 0, -looks::kMargin, 0), Qt::AlignCenter | Qt::TextWordWrap,
                     waiting_);
}

QString PlotView::ValuesAt(const QPointF& point) const
{
    if (!IsPlotted() || !PlotOnView().contains(point)) return {};
    const QTransform back = Transform().inverted();
    const QPointF here = back.map(point) - PlotCorner(), next = back.map(point + QPointF(1, 1)) - PlotCorner();
    const auto line = [](const PlotAxis& axis, double at, double after) {
        return ToQt(axis.title + ": " + ReadingText(axis.ValueAt(at), axis.ValueAt(after)));
    };
    return line(plot_->Axes->across, here.x(), next.x()) + "\n" + line(plot_->Axes->upwards, here.y(), next.y());
}

/// Thin lines across the plot, and the values in a tag that stays within the view.
void PlotView::PaintCross(QPainter& painter) const
{
    const QString values = mouse_ ? ValuesAt(*mouse_) : QString();
    if (values.isEmpty()) return;
    const QRectF plot = PlotOnView().intersected(rect());
    painter.setPen(QPen(kCross, 0));
    painter.drawLine(QPointF(plot.left(), mouse_->y()), QPointF(plot.right(), mouse_->y()));
    painter.drawLine(QPointF(mouse_->x(), plot.top()), QPointF(mouse_->x(), plot.bottom()));
    QRect tag = painter.fontMetrics().boundingRect(QRect(0, 0, width(), height()), 0, values);
    tag.adjust(-6, -4, 6, 4);
    tag.moveTo(std::min(mouse_->x() + 12, width() - tag.width() - 1), std::max(1, mouse_->y() - tag.height() - 12));
    painter.setPen(Qt::black);
    painter.setBrush(kTag);
    painter.drawRect(tag);
    painter.drawText(tag, Qt::AlignCenter, values);
}

void PlotView::mouseMoveEvent(QMouseEvent* event)
{
    mouse_ = event->position().toPoint();
    if (plot_) update();
}

void PlotView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && IsPlotted()) dragFrom_ = event->position().toPoint();
}

void PlotView::mouseReleaseEvent(QMouseEvent* event)
{
    if (!dragFrom_) return;
    const QRect part = QRect(*dragFrom_, event->position().toPoint()).normalized();
    dragFrom_.reset();
    if (part.width() >= kLeastDrag && part.height() >= kLeastDrag) ZoomInto(part);
    update();
}

void PlotView::mouseDoubleClickEvent(QMouseEvent*)
{
    ShowWhole();
}

void PlotView::leaveEvent(QEvent*)
{
    mouse_.reset();
    update();
}

void PlotView::wheelEvent(QWheelEvent* event)
{
    if (!(event->modifiers() & Qt::ControlModifier) || !IsPlotted()) return event->ignore();
    ZoomAt(event->position(), event->angleDelta().y() > 0 ? kStep : 1 / kStep);
}

/// The spot under the point stays there.
void PlotView::ZoomAt(const QPointF& point, double factor)
{
    const double zoom = std::clamp(zoom_ * factor, 1.0, kClosest);
    moved_ = point - (point - moved_) * (zoom / zoom_);
    zoom_ = zoom;
    if (zoom_ == 1) moved_ = {};
    update();
}

void PlotView::ZoomInto(const QRect& part)
{
    const QPointF middle = QRectF(part).center();
    ZoomAt(middle,
           std::min(width() / static_cast<double>(part.width()), height() / static_cast<double>(part.height())));
    if (zoom_ > 1) moved_ += QPointF(width() / 2.0, height() / 2.0) - middle;
}

void PlotView::ShowWhole()
{
    zoom_ = 1;
    moved_ = {};
    update();
}

/// Ctrl+C is the curve's while it has the focus, not the Edit menu's.
bool PlotView::event(QEvent* event)
{
    const bool isAsked = event->type() == QEvent::ShortcutOverride && IsPlotted();
    if (isAsked && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) event->accept();
    return QWidget::event(event);
}

void PlotView::keyPressEvent(QKeyEvent* event)
{
    if (!IsPlotted()) return QWidget::keyPressEvent(event);
    if (event->matches(QKeySequence::Copy)) return CopyPicture();
    switch (event->key()) {
        case Qt::Key_Plus:
            return ZoomAt(rect().center(), kStep);
        case Qt::Key_Minus:
            return ZoomAt(rect().center(), 1 / kStep);
        case Qt::Key_0:
            return ShowWhole();
        default:
            QWidget::keyPressEvent(event);
    }
}

void PlotView::contextMenuEvent(QContextMenuEvent* event)
{
    if (!IsPlotted()) return event->ignore();
    QMenu menu(this);
    menu.addAction(tr("Copy as &Picture"), this, [this] { CopyPicture(); });
    menu.addAction(tr("Copy as &Numbers"), this, [this] { CopyNumbers(); });
    menu.addSeparator();
    menu.addAction(tr("Whole &Curve"), this, [this] { ShowWhole(); })->setEnabled(zoom_ > 1);
    menu.exec(event->globalPos());
}

/// The whole, however close the view looks.
void PlotView::CopyPicture() const
{
    const double scale = kCopyScale / looks::kTwipsPerPixel;
    QImage picture(static_cast<int>(frame_.Width * scale), static_cast<int>(frame_.Height * scale),
                   QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    PaintList(painter, Drawing());
    painter.end();
    QApplication::clipboard()->setImage(picture);
}

void PlotView::CopyNumbers() const
{
    if (IsPlotted()) QApplication::clipboard()->setText(ToQt(PlotNumbers(plot_->Items(), *plot_->Axes)));
}

}  // namespace terravane
