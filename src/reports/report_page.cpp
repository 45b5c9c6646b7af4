#include "reports/report_page.h"

#include <utility>

#include "drawing/scopes.h"
#include "runtime/text.h"
#include "sheets/pattern/plot.h"

namespace terravane {

namespace {

constexpr double kRightMargin = 500;
constexpr double kHalfGap = 50;  // from the middle of the page to either half

double Middle(const DrawingSurface& page)
{
    return kLeft + WholeWidth(page).Width() / 2;
}

/// Nearer than half a blank two texts read as one.
double Apart(const DrawingSurface& page)
{
    return page.TextWidth(" ") / 2;
}

void CopyBox(DrawingSurface& page, const PictureBox& box, double x, double y)
{
    page.PaintPicture(box.Name(), box.Image(), x, y, box.Width, box.Height);
}

}  // namespace

double RightEdge(const DrawingSurface& page)
{
    return page.ScaleWidth - kRightMargin;
}

Edges WholeWidth(const DrawingSurface& page)
{
    return {kLeft, RightEdge(page)};
}

Edges LeftHalf(const DrawingSurface& page)
{
    return {kLeft, Middle(page) - kHalfGap};
}

Edges RightHalf(const DrawingSurface& page)
{
    return {Middle(page) + kHalfGap, RightEdge(page)};
}

std::vector<double> PageColumns::EdgesOf(int count) const
{
    std::vector<double> edges;
    for (int column = 1; column <= count + 1; ++column) edges.push_back(Left(column));
    return edges;
}

std::vector<double> PageLines::EdgesOf(double first, int count) const
{
    std::vector<double> edges;
    for (int row = 0; row <= count; ++row) edges.push_back((*this)(first + row));
    return edges;
}

PageColumns ColumnsBeside(double labelWidth, const Edges& edges, int count)
{
    return {edges.left + labelWidth, (edges.Width() - labelWidth) / count};
}

PageLines BodyLines(DrawingSurface& page, double top)
{
    page.FontSize = kBodySize;
    return {page, top};
}

std::string TextOf(const TestSheet& sheet, std::string_view control)
{
    return sheet.Get<TextControl>(control).Text();
}

double UnitLeft(const DrawingSurface& page, double place)
{
    return page.CurrentX + Apart(page) > place ? page.CurrentX + page.TextWidth(" ") : place;
}

double ColonLeft(const DrawingSurface& page, double place, std::string_view colon, double valueLeft)
{
    const double width = page.TextWidth(colon.substr(0, colon.find_last_not_of(' ') + 1));
    return place + width + Apart(page) > valueLeft ? valueLeft - page.TextWidth(" ") - width : place;
}

void SetReportFont(DrawingSurface& page)
{
    page.FontName = kReportFont;
    page.FontBold = false;
    page.FontItalic = false;
}

void PrintCaption(DrawingSurface& page, double x, double y, std::string_view text)
{
    const AsCaption caption(page);
    const Bold bold(page);
    page.CurrentY = y;
    PrintLineFrom(page, x, text);
}

void CopyPlot(DrawingSurface& page, const PictureBox& frame, const PictureBox& plot, const DrawnPoint& at,
              std::string shows)
{
    const AsFigure figure(page, std::move(shows));
    const Inset inset = InsetOf(plot, frame);
    CopyBox(page, frame, at.x, at.y);
    CopyBox(page, plot, at.x + inset.left, at.y + inset.top);
}

std::string Shows(std::string_view plot, std::string_view result, const std::string& read)
{
    return std::string(plot) + ", " + (Trim(result).empty() ? std::string("no result") : read);
}

}  // namespace terravane
