/// The measures that all report pages share, and the body of a page. Lengths are twips.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "controls/picture_box.h"
#include "drawing/placed_text.h"
#include "laboratory/description.h"
#include "reports/report.h"

namespace terravane {

inline constexpr double kBodySize = 13;      // points
inline constexpr double kFooterSize = 12;    // points
inline constexpr double kLeft = 500;         // left edge of a page's content
inline constexpr double kBodyTop = 3800;     // where most reports' bodies begin
inline constexpr double kLabelWidth = 3000;  // what most tables leave for the labels of their rows
inline constexpr double kLabelInset = 200;   // from a cell's left edge to its label

/// The right edge of a page's content.
double RightEdge(const DrawingSurface& page);

/// The room that something takes across a page.
struct Edges {
    double left, right;

    double Width() const { return right - left; }
};

Edges WholeWidth(const DrawingSurface& page);
/// The halves of the width, a little apart.
Edges LeftHalf(const DrawingSurface& page);
Edges RightHalf(const DrawingSurface& page);

/// Equal columns side by side, counted from 1. The edges of the first few stand behind one another.
struct PageColumns {
    double left;
    double width;

    double Left(int column) const { return left + width * (column - 1); }
    std::vector<double> EdgesOf(int count) const;
};

/// `count` columns on what the labels leave.
PageColumns ColumnsBeside(double labelWidth, const Edges& edges, int count);

/// Rows of a page: y(n) lies n lines below the top. The line is measured once, in the size then in force.
class PageLines {
  public:
    PageLines(const DrawingSurface& page, double top) : top_(top), height_(LineHeight(page)) {}

    double operator()(double lines) const { return top_ + height_ * lines; }
    /// The edges of `count` rows, a line each, from the line `first` on.
    std::vector<double> EdgesOf(double first, int count) const;

  private:
    double top_, height_;
};

/// The rows of a body in the body's size, which is in force afterwards.
PageLines BodyLines(DrawingSurface& page, double top);

/// A label, the text control that its value comes from, and what stands behind the value.
struct ReportField {
    std::string_view label, control, unit = {};
};

/// A box that the sheet is described with, under its label on the page.
constexpr ReportField FieldOf(const laboratory::Sheet& sheet, std::string_view control, std::string_view unit = {})
{
    const bool isResult = std::ranges::find(sheet.boxes, control, &laboratory::Box::control) == sheet.boxes.end();
    return {std::ranges::find(isResult ? sheet.results : sheet.boxes, control, &laboratory::Box::control)->is.page,
            control, unit};
}

/// What a text control of the sheet shows, as it stands.
std::string TextOf(const TestSheet& sheet, std::string_view control);

/// The body of a page being drawn, and its rows. The body's size is in force afterwards.
struct ReportPage : Printing {
    PageLines y;

    explicit ReportPage(const Printing& printing, double top = kBodyTop)
        : Printing(printing), y(BodyLines(printing.page, top))
    {}

    double Right() const { return RightEdge(page); }
    std::string Text(std::string_view control) const { return TextOf(sheet, control); }
};

/// Where a unit stands behind the value that was printed last: at its place, a blank behind the value where that ends
/// less than half a blank in front of the place, or behind it.
double UnitLeft(const DrawingSurface& page, double place);

/// Where a colon stands in front of a value that begins at `valueLeft`: at its place, a blank in front of the value
/// where that begins less than half a blank behind the colon. colon  with the blanks it is printed with; those behind
/// it count for nothing
double ColonLeft(const DrawingSurface& page, double place, std::string_view colon, double valueLeft);

/// What a page begins with: the reports' font, neither bold nor italic.
void SetReportFont(DrawingSurface& page);

/// A caption at (x, y), bold, ending the line.
void PrintCaption(DrawingSurface& page, double x, double y, std::string_view text);

/// A sheet's plot, copied as it stands and not drawn anew: both boxes in their own sizes, the frame with its upper left
/// corner at (x, y), the plot on top of it as far inside as on the sheet.
/// shows  in words, with the result that is read from it
void CopyPlot(DrawingSurface& page, const PictureBox& frame, const PictureBox& plot, const DrawnPoint& at,
              std::string shows);

/// "Compaction curve, top at 11.2 %": a plot's name and what is read from it; "Compaction curve, no result" where the
/// text `result` is empty.
std::string Shows(std::string_view plot, std::string_view result, const std::string& read);

}  // namespace terravane
