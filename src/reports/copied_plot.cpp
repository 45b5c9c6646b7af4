#include "reports/copied_plot.h"

#include "sheets/pattern/plot.h"

namespace terravane {

namespace {

void CopyBox(DrawingSurface& page, const PictureBox& box, double x, double y)
{
    page.PaintPicture(box.Name(), box.Image(), x, y, box.Width, box.Height);
}

}  // namespace

void CopyPlot(DrawingSurface& page, const PictureBox& frame, const PictureBox& plot, double x, double y)
{
    const Inset inset = InsetOf(plot, frame);
    CopyBox(page, frame, x, y);
    CopyBox(page, plot, x + inset.left, y + inset.top);
}

}  // namespace terravane
