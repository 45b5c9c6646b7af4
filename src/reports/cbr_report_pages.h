/// The bodies of the two pages, the same on printer and preview. Private to the bearing ratio report.
#pragma once

#include "drawing/drawing_surface.h"
#include "sheets/cbr/frmCBR.h"

namespace terravane {

/// All but the signatures.
void DrawCbrPage1(const frmCBR& sheet, DrawingSurface& page);

void DrawCbrPage2(const frmCBR& sheet, DrawingSurface& page);

}  // namespace terravane
