#include "desktop/looks.h"

#include <QApplication>
#include <QFontDatabase>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QVariant>
#include <QWidget>
#include <cmath>
#include <vector>

#include "drawing/drawing_surface.h"
#include "render/painter.h"

namespace terravane::looks {

namespace {

constexpr double kMarkSize = 3840;  // twips: 256 pixels

constexpr Colour kSky{232, 240, 250};
constexpr Colour kTopSoil{196, 164, 120};
constexpr Colour kSubSoil{160, 120, 84};
constexpr Colour kRock{112, 104, 100};
constexpr Colour kCurveBlue{0, 0, 192};

/// A layer of the profile from `top` to `bottom`, in parts of the mark's height.
struct Layer {
    double top, bottom;
    Colour colour;
};
constexpr Layer kLayers[] = {{0, 0.58, kSky}, {0.58, 0.72, kTopSoil}, {0.72, 0.86, kSubSoil}, {0.86, 1, kRock}};

/// The curve of a compaction test: a steep wet side, a flat dry side.
std::vector<DrawnPoint> CurveOverProfile()
{
    std::vector<DrawnPoint> points;
    for (int i = 0; i <= 60; ++i) {
        const double t = i / 60.0;
        const double fall = t - 0.55;
        const double y = 0.14 + (fall < 0 ? 1.15 : 1.6) * fall * fall;
        points.push_back({(0.08 + 0.84 * t) * kMarkSize, y * kMarkSize});
    }
    return points;
}

/// An icon is made once and goes with the application: to paint the mark takes longer than to make the preview's
/// window, and so does the search for two of the platform's icons.
template <class Make>
QIcon CachedIcon(const QByteArray& name, const Make& make)
{
    if (const QVariant kept = qApp->property(name); kept.isValid()) return kept.value<QIcon>();
    QIcon icon = make();
    qApp->setProperty(name, icon);
    return icon;
}

/// Lines on a field of 16 by 16.
QPainterPath LinesOf(Sign sign)
{
    QPainterPath lines;
    switch (sign) {
        case Sign::Save:  // an arrow into a tray
            lines.moveTo(8, 2);
            lines.lineTo(8, 10);
            lines.moveTo(4.5, 6.5);
            lines.lineTo(8, 10);
            lines.lineTo(11.5, 6.5);
            lines.moveTo(2.5, 10);
            lines.lineTo(2.5, 13.5);
            lines.lineTo(13.5, 13.5);
            lines.lineTo(13.5, 10);
            break;
        case Sign::Page:  // with three lines of text
            lines.addRect(3.5, 2, 9, 12);
            for (const double y : {5.0, 8.0, 11.0}) {
                lines.moveTo(5.5, y);
                lines.lineTo(10.5, y);
            }
            break;
        case Sign::Cross:
            lines.moveTo(3.5, 3.5);
            lines.lineTo(12.5, 12.5);
            lines.moveTo(12.5, 3.5);
            lines.lineTo(3.5, 12.5);
            break;
    }
    return lines;
}

class SignEngine : public QIconEngine {
  public:
    explicit SignEngine(Sign sign) : sign_(sign) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        constexpr double kField = 16, kPen = 1.6;
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / kField, rect.height() / kField);
        painter->setPen(QPen(QApplication::palette().color(group, QPalette::ButtonText), kPen, Qt::SolidLine,
                             Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(LinesOf(sign_));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new SignEngine(sign_); }

  private:
    Sign sign_;
};

QIcon PaintMark()
{
    QIcon icon;
    const DisplayList mark = ProgramMark();
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / mark.width, size / mark.height);
        PaintList(painter, mark);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

}  // namespace

QColor ToQt(Colour colour)
{
    return {colour.red, colour.green, colour.blue};
}

QColor InkOn(const QColor& ground)
{
    const double light = 0.2126 * std::pow(ground.redF(), 2.2) + 0.7152 * std::pow(ground.greenF(), 2.2) +
                         0.0722 * std::pow(ground.blueF(), 2.2);
    return light > 0.18 ? Qt::black : Qt::white;
}

QFont WithThaiLetters(QFont font)
{
    if (!QFontDatabase::writingSystems(font.family()).contains(QFontDatabase::Thai))
        font.setFamilies({font.family(), "Loma"});
    return font;
}

QFont Scaled(QFont font, double factor, bool bold)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    return font;
}

void SetGround(QWidget& widget, const QColor& ground)
{
    if (!ground.isValid()) return widget.setPalette(QPalette());
    QPalette palette = widget.palette();
    for (const auto role : {QPalette::Button, QPalette::Base, QPalette::Window}) palette.setColor(role, ground);
    for (const auto role : {QPalette::ButtonText, QPalette::Text, QPalette::WindowText}) {
        palette.setColor(QPalette::Active, role, InkOn(ground));
        palette.setColor(QPalette::Inactive, role, InkOn(ground));
    }
    widget.setPalette(palette);
    widget.setAutoFillBackground(true);
}

DisplayList ProgramMark()
{
    DrawingSurface mark(kMarkSize, kMarkSize);
    for (const Layer& layer : kLayers) {
        mark.FilledBox(0, layer.top * kMarkSize, kMarkSize, layer.bottom * kMarkSize, layer.colour);
    }
    mark.DrawWidth = 30;
    mark.Polyline(CurveOverProfile(), kCurveBlue);
    mark.DrawWidth = 6;
    mark.ForeColor = kCurveBlue;
    mark.FillSolid = true;
    mark.FillColor = kWhite;
    mark.Circle((0.08 + 0.84 * 0.55) * kMarkSize, 0.14 * kMarkSize, 0.06 * kMarkSize);
    return *mark.Image();
}

QIcon ProgramIcon()
{
    return CachedIcon("programIcon", PaintMark);
}

QIcon SignIcon(Sign sign)
{
    return CachedIcon("sign" + QByteArray::number(static_cast<int>(sign)),
                      [sign] { return QIcon(new SignEngine(sign)); });
}

QIcon StandardIcon(QStyle::StandardPixmap which)
{
    return CachedIcon("standardIcon" + QByteArray::number(which),
                      [which] { return QApplication::style()->standardIcon(which); });
}

}  // namespace terravane::looks
