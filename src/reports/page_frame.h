/// The furniture that every report page begins with: footer, banner, boxed title with logos and names, head
/// block.
#pragma once

#include <string_view>

#include "program/program.h"
#include "reports/medium.h"

namespace terravane {

/// Furniture and head block of the first page of the current test's report. Errors: what the brand store and its
/// pictures raise; the page is left half drawn.
void DrawPageFrame(Program& program, DrawingSurface& page, Medium medium);

/// The furniture alone, for pages without a head block. `pageText` stands at the right of the footer: "Page
/// 2".
void DrawFurniture(Program& program, DrawingSurface& page, Medium medium, std::string_view pageText);

/// The English title of the current test's report.
std::string_view EnglishTitle(const Program& program);

}  // namespace terravane
