#include "render/painter.h"

#include <QImage>
#include <QList>
#include <QPainter>
#include <QPen>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <QTransform>
#include <algorithm>
#include <cmath>

#include "drawing/font_metrics.h"
#include "render/decoded_pictures.h"
#include "render/drawing_rules.h"
#include "render/fonts.h"

namespace terravane {

namespace {

QColor QtColour(Colour colour)
{
    return {colour.red, colour.green, colour.blue};
}

QRectF Corners(double x1, double y1, double x2, double y2)
{
    return QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized();
}

QRectF PlaceOf(const PictureItem& item)
{
    return {item.x, item.y, item.width, item.height};
}

/// A stay in another coordinate system, or within a clip.
class Saved {
  public:
    explicit Saved(QPainter& painter) : painter_(painter) { painter_.save(); }
    ~Saved() { painter_.restore(); }
    Saved(const Saved&) = delete;
    Saved& operator=(const Saved&) = delete;

  private:
    QPainter& painter_;
};

class ItemPainter {
  public:
    explicit ItemPainter(QPainter& painter) : painter_(painter) {}

    void operator()(const TextItem& item) const
    {
        const Saved saved(painter_);
        painter_.translate(item.x, item.y);
        painter_.rotate(-item.angle);
        painter_.setPen(QtColour(item.colour));
        double x = 0;
        for (const FontRun& run : FontRuns(item.font, item.text)) {
            DrawRun(run, item.font, x);
            x += run.width;
        }
    }

    void operator()(const LineItem& item) const
    {
        painter_.setPen(QtPen(item.pen, Qt::MiterJoin));
        if (IsThin(item.pen.width) && (item.x1 == item.x2 || item.y1 == item.y2))
            painter_.drawLine(OnPixel({item.x1, item.y1}), OnPixel({item.x2, item.y2}));
        else
            painter_.drawLine(QPointF(item.x1, item.y1), QPointF(item.x2, item.y2));
    }

    void operator()(const PolylineItem& item) const
    {
        QPolygonF points;
        points.reserve(static_cast<qsizetype>(item.points.size()));
        for (const DrawnPoint& point : item.points) points << QPointF(point.x, point.y);
        painter_.setPen(QtPen(item.pen, Qt::RoundJoin));
        painter_.drawPolyline(points);
    }

    void operator()(const BoxItem& item) const
    {
        QRectF box = Corners(item.x1, item.y1, item.x2, item.y2);
        if (IsThin(item.pen.width)) box = {OnPixel(box.topLeft()), OnPixel(box.bottomRight())};
        painter_.setPen(QtPen(item.pen, Qt::MiterJoin));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawRect(box);
    }

    void operator()(const FillItem& item) const
    {
        painter_.fillRect(Corners(item.x1, item.y1, item.x2, item.y2), QtColour(item.colour));
    }

    void operator()(const CircleItem& item) const
    {
        painter_.setPen(QtPen(item.pen, Qt::MiterJoin));
        painter_.setBrush(item.filled ? QBrush(QtColour(item.fill)) : QBrush(Qt::NoBrush));
        painter_.drawEllipse(QPointF(item.x, item.y), item.radius, item.radius);
    }

    void operator()(const PointItem& item) const
    {
        if (IsThin(item.width)) {
            painter_.fillRect(WholePixels({OnPixel({item.x, item.y}), QSizeF()}), QtColour(item.colour));
            return;
        }
        painter_.setPen(QPen(QtColour(item.colour), Ink(item.width), Qt::SolidLine, Qt::RoundCap));
        painter_.drawPoint(QPointF(item.x, item.y));
    }

    void operator()(const PictureItem& item) const
    {
        if (item.drawing)
            DrawDrawing(item);
        else if (const QImage image = item.picture ? Decoded(item.picture) : QImage(); !image.isNull())
            painter_.drawImage(PlaceOf(item), image);
        else
            for (const DrawnItem& line : MissingPicture(item)) std::visit(*this, line);
    }

  private:
    /// Device pixels of one twip.
    double Scale() const
    {
        const QTransform& transform = painter_.deviceTransform();
        return std::hypot(transform.m11(), transform.m12());
    }

    /// A draw width in twips, but never thinner than one device pixel.
    double Ink(int width) const { return std::max(width * kTwipsPerDrawWidth, 1 / Scale()); }

    /// Whether a line or dot comes out one pixel wide and is better kept from straddling two.
    bool IsThin(int width) const { return width * kTwipsPerDrawWidth * Scale() <= 1; }

    /// The middle of the pixel that holds a point.
    QPointF OnPixel(QPointF point) const
    {
        const QTransform& transform = painter_.deviceTransform();
        const QPointF pixel = transform.map(point);
        const QPointF middle(std::floor(pixel.x()) + 0.5, std::floor(pixel.y()) + 0.5);
        return transform.inverted().map(middle);
    }

    /// A rectangle with all pixels it touches: a frame on a drawing's edge must not fall to the clip.
    QRectF WholePixels(const QRectF& place) const
    {
        const QTransform& transform = painter_.deviceTransform();
        return transform.inverted().mapRect(QRectF(transform.mapRect(place).toAlignedRect()));
    }

    QPen QtPen(const Pen& pen, Qt::PenJoinStyle join) const
    {
        const double ink = Ink(pen.width);
        QPen result(QtColour(pen.colour), ink, Qt::SolidLine, Qt::FlatCap, join);
        QList<qreal> pattern;  // Qt counts in pen widths
        for (const double length : DashOf(pen)) pattern << length / ink;
        if (!pattern.isEmpty()) result.setDashPattern(pattern);
        return result;
    }

    void DrawRun(const FontRun& run, const Font& font, double x) const
    {
        const Saved saved(painter_);
        const FaceAtSize face = FaceFor(font, run.family);
        painter_.translate(x, SubstituteFor(font.name).ascent * font.size);
        if (face.scale != 1) painter_.scale(face.scale, face.scale);
        painter_.setFont(face.font);
        painter_.drawText(QPointF(0, 0), QString::fromStdU16String(run.text));
    }

    void DrawDrawing(const PictureItem& item) const
    {
        const DisplayList& drawing = *item.drawing;
        if (drawing.width <= 0 || drawing.height <= 0 || item.width <= 0 || item.height <= 0) return;
        const Saved saved(painter_);
        const QRectF place = WholePixels(PlaceOf(item));
        painter_.setClipRect(place, Qt::IntersectClip);
        painter_.fillRect(place, Qt::white);
        painter_.translate(item.x, item.y);
        painter_.scale(item.width / drawing.width, item.height / drawing.height);
        for (const DrawnItem& inner : drawing.items) std::visit(*this, inner);
    }

    QPainter& painter_;
};

}  // namespace

void PaintList(QPainter& painter, const DisplayList& list)
{
    const Saved saved(painter);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    for (const DrawnItem& item : list.items) std::visit(ItemPainter(painter), item);
}

}  // namespace terravane
