#include "desktop/plot_view.h"

#include <QPainter>
#include <algorithm>

#include "desktop/looks.h"
#include "render/painter.h"

namespace terravane {

PlotView::PlotView(PictureBox& frame, PictureBox* plot, QWidget* parent) : QWidget(parent), frame_(frame), plot_(plot)
{
    bindings_.push_back(frame.Show([this] { update(); }));
    if (plot) bindings_.push_back(plot->Show([this] { update(); }));
    setObjectName(QString::fromStdString((plot ? plot : &frame)->Name()));
    setAccessibleName(tr("Curve, no result yet"));
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

void PlotView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = std::min(width() / frame_.Width, height() / frame_.Height);
    painter.translate((width() - frame_.Width * scale) / 2, (height() - frame_.Height * scale) / 2);
    painter.scale(scale, scale);
    DrawingSurface both(frame_.Width, frame_.Height);
    both.PaintPicture(frame_.Name(), frame_.Image(), 0, 0, frame_.Width, frame_.Height);
    if (plot_) {
        const bool inside = plot_->Container == &frame_;
        both.PaintPicture(plot_->Name(), plot_->Image(), plot_->Left - (inside ? 0 : frame_.Left),
                          plot_->Top - (inside ? 0 : frame_.Top), plot_->Width, plot_->Height);
    }
    PaintList(painter, *both.Image());
}

}  // namespace terravane
