/// A sheet's plot on a report page: copied as it stands, not drawn anew.
#pragma once

#include "controls/picture_box.h"

namespace terravane {

/// Both boxes in their own sizes, the frame with its upper left corner at (x, y), the plot on top of it as far inside
/// as on the sheet.
void CopyPlot(DrawingSurface& page, const PictureBox& frame, const PictureBox& plot, double x, double y);

}  // namespace terravane
