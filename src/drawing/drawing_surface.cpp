#include "drawing/drawing_surface.h"

#include <utility>

#include "runtime/runtime_error.h"

namespace terravane {

namespace {

constexpr int kUpwards = 90;  // degrees, counter-clockwise

}  // namespace

DrawingSurface::DrawingSurface(double width, double height)
{
    Resize(width, height);
}

void DrawingSurface::Resize(double width, double height)
{
    Width = ScaleWidth = width;
    Height = ScaleHeight = height;
}

void DrawingSurface::Print(std::string_view text)
{
    PrintOn(text);
    CurrentX = ScaleLeft;
    CurrentY += TextHeight(text);
}

void DrawingSurface::PrintOn(std::string_view text)
{
    if (text.empty()) return;
    items_.emplace_back(TextItem{std::string(text), CurrentX, CurrentY, CurrentFont(), ForeColor, 0});
    CurrentX += TextWidth(text);
}

void DrawingSurface::PrintTurned(std::string_view text, double x, double y)
{
    if (text.empty()) return;
    items_.emplace_back(TextItem{std::string(text), x, y, CurrentFont(), ForeColor, kUpwards});
}

void DrawingSurface::Line(double x1, double y1, double x2, double y2)
{
    Line(x1, y1, x2, y2, ForeColor);
}

void DrawingSurface::Line(double x1, double y1, double x2, double y2, Colour colour)
{
    items_.emplace_back(LineItem{x1, y1, x2, y2, CurrentPen(colour)});
}

void DrawingSurface::Polyline(std::span<const DrawnPoint> points, Colour colour)
{
    if (points.size() < 2) return;
    items_.emplace_back(PolylineItem{{points.begin(), points.end()}, CurrentPen(colour)});
}

void DrawingSurface::Box(double x1, double y1, double x2, double y2)
{
    items_.emplace_back(BoxItem{x1, y1, x2, y2, CurrentPen(ForeColor)});
}

void DrawingSurface::FilledBox(double x1, double y1, double x2, double y2, Colour colour)
{
    items_.emplace_back(FillItem{x1, y1, x2, y2, colour});
}

void DrawingSurface::Circle(double x, double y, double radius)
{
    items_.emplace_back(CircleItem{x, y, radius, FillSolid, FillColor, CurrentPen(ForeColor)});
}

void DrawingSurface::PSet(double x, double y, Colour colour)
{
    items_.emplace_back(PointItem{x, y, DrawWidth, colour});
}

void DrawingSurface::PaintPicture(const std::shared_ptr<const Picture>& picture, double x, double y, double width,
                                  double height)
{
    if (!picture) throw RuntimeError(error::kInvalidPicture);
    items_.emplace_back(PictureItem{picture->name, x, y, width, height, picture, nullptr});
}

void DrawingSurface::PaintPicture(std::string name, const std::shared_ptr<const DisplayList>& drawing, double x,
                                  double y, double width, double height)
{
    if (!drawing) throw RuntimeError(error::kInvalidPicture, "Invalid picture: " + name);
    items_.emplace_back(PictureItem{std::move(name), x, y, width, height, nullptr, drawing});
}

double DrawingSurface::TextWidth(std::string_view text) const
{
    return terravane::TextWidth(CurrentFont(), text);
}

double DrawingSurface::TextHeight(std::string_view) const
{
    return terravane::TextHeight(CurrentFont());
}

void DrawingSurface::Mark(PagePart part)
{
    part.last = items_.size();
    if (part.last > part.first) parts_.push_back(std::move(part));
}

void DrawingSurface::Cls()
{
    items_.clear();
    parts_.clear();
    CurrentX = ScaleLeft;
    CurrentY = ScaleTop;
}

std::shared_ptr<const DisplayList> DrawingSurface::Image() const
{
    return std::make_shared<const DisplayList>(DisplayList{Width, Height, items_, {}, parts_});
}

Font DrawingSurface::CurrentFont() const
{
    return {FontName, FontSize, FontBold, FontItalic};
}

}  // namespace terravane
