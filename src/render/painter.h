/// A display list replayed with Qt's painter: the one way in which screen, printer and picture files come to
/// their ink.
#pragma once

#include "drawing/display_list.h"

class QPainter;

namespace terravane {

/// Draws the items of a list in their order. The painter is scaled beforehand so that one unit is one twip.
/// What the list itself leaves bare stays as it is: the ground is the caller's. A picture whose bytes can't
/// be decoded is drawn as a crossed grey box; nothing fails, so that a window may call it from its paint
/// event.
void PaintList(QPainter& painter, const DisplayList& list);

}  // namespace terravane
