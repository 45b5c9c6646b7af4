/// Drawn items as answers.
#pragma once

#include "drawing/display_list.h"
#include "script/answers.h"

namespace terravane {

/// Coordinates and sizes in twips of the surface, rounded to two decimals, whole ones without a point.
Json ItemAnswer(const DrawnItem& item);

/// Every item of a list; a placed drawing is followed by its own items, placed.
void WriteItems(AnswerWriter& answers, const DisplayList& list);

}  // namespace terravane
