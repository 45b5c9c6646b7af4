#include "desktop/picture_view.h"

#include <QPainter>
#include <algorithm>

#include "desktop/looks.h"
#include "render/painter.h"

namespace terravane {

namespace {

constexpr int kCheck = 8;  // pixels

void PaintChecks(QPainter& painter, const QRect& room, const QPalette& palette)
{
    painter.fillRect(room, palette.color(QPalette::Base));
    painter.save();
    painter.setClipRect(room);
    for (int y = room.top(), row = 0; y <= room.bottom(); y += kCheck, ++row) {
        for (int x = room.left() + (row % 2) * kCheck; x <= room.right(); x += 2 * kCheck) {
            painter.fillRect(x, y, kCheck, kCheck, palette.color(QPalette::AlternateBase));
        }
    }
    painter.restore();
}

}  // namespace

PictureView::PictureView(PictureBox& box, const QString& name, QWidget* parent) : QWidget(parent), box_(box)
{
    bindings_.push_back(box.Show([this] { update(); }));
    setObjectName(QString::fromStdString(box.Name()));
    setAccessibleName(name);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize PictureView::sizeHint() const
{
    return {static_cast<int>(box_.Width / looks::kTwipsPerPixel),
            static_cast<int>(box_.Height / looks::kTwipsPerPixel)};
}

QSize PictureView::minimumSizeHint() const
{
    return sizeHint() * 0.6;
}

void PictureView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const double scale = std::min((width() - 2) / box_.Width, (height() - 2) / box_.Height);
    const QSize size(static_cast<int>(box_.Width * scale), static_cast<int>(box_.Height * scale));
    const QRect room(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size);
    PaintChecks(painter, room, palette());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(room.adjusted(-1, -1, 0, 0));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(room.topLeft());
    painter.scale(scale, scale);
    PaintList(painter, *box_.Image());
}

}  // namespace terravane
