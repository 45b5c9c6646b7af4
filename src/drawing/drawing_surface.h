/// The platform's drawing operations, recorded. A picture box, the preview's page and each page of a print
/// job are surfaces; coordinates are twips from the surface's upper left corner.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "drawing/display_list.h"
#include "drawing/font_metrics.h"

namespace terravane {

/// A piece of state lasts until it is set again, as on the platform: fonts, draw width, current position.
class DrawingSurface {
  public:
    DrawingSurface() = default;
    DrawingSurface(double width, double height);

    double Width = 0, Height = 0;
    double ScaleLeft = 0, ScaleTop = 0, ScaleWidth = 0, ScaleHeight = 0;

    double CurrentX = 0, CurrentY = 0;
    std::string FontName = "MS Sans Serif";
    double FontSize = 8.25;  // points
    bool FontBold = false;
    bool FontItalic = false;
    Colour ForeColor = kBlack;
    int DrawWidth = 1;  // 5 twips each
    int DrawStyle = 0;  // 0 solid, 1 dash, 2 dot, 3 dash and dot
    bool FillSolid = false;
    Colour FillColor = kBlack;

    /// The size of the whole surface and of its scale, at one stroke.
    void Resize(double width, double height);

    /// Text at the current position, in ForeColor, ending the line: CurrentX to the left edge, CurrentY down
    /// by one text height.
    void Print(std::string_view text = "");
    /// The same, staying on the line: CurrentX behind the text.
    void PrintOn(std::string_view text);
    /// Text that reads upwards, turned counter-clockwise by 90 degrees about (x, y); moves nothing.
    void PrintTurned(std::string_view text, double x, double y);

    void Line(double x1, double y1, double x2, double y2);
    void Line(double x1, double y1, double x2, double y2, Colour colour);
    /// A run of joined lines; fewer than two points draw nothing.
    void Polyline(std::span<const DrawnPoint> points, Colour colour);
    void Box(double x1, double y1, double x2, double y2);
    void FilledBox(double x1, double y1, double x2, double y2, Colour colour);
    /// Outlined in ForeColor, filled with FillColor where FillSolid.
    void Circle(double x, double y, double radius);
    void PSet(double x, double y, Colour colour);

    void PaintPicture(const std::shared_ptr<const Picture>& picture, double x, double y, double width, double height);
    /// Another surface's present content, under the name of its control.
    void PaintPicture(std::string name, const std::shared_ptr<const DisplayList>& drawing, double x, double y,
                      double width, double height);

    double TextWidth(std::string_view text) const;
    double TextHeight(std::string_view text) const;

    /// Says what the items from `part.first` on are, which were drawn last. src/drawing/scopes.h has it for a scope.
    void Mark(PagePart part);

    /// Empties the surface and takes the current position to the left top; fonts and pens stay.
    void Cls();

    /// A copy of what stands on the surface now.
    std::shared_ptr<const DisplayList> Image() const;
    const std::vector<DrawnItem>& Items() const { return items_; }
    Font CurrentFont() const;

  private:
    Pen CurrentPen(Colour colour) const { return {DrawWidth, DrawStyle, colour}; }

    std::vector<DrawnItem> items_;
    std::vector<PagePart> parts_;
};

}  // namespace terravane
