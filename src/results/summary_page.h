/// The print of the overall results: one upright page, drawn from what the form shows.
#pragma once

#include <string_view>
#include <vector>

#include "results/frmSummary.h"

namespace terravane {

/// On the page and as the print job's name.
inline constexpr std::string_view kSummaryTitle = "Overall Testing Results";

/// Draws the page on the printer and leaves the job open. The printer is turned upright, as its dialog offers it.
void DrawSummaryPage(const frmSummary& form, Printer& printer);

/// The one page that printing would send, drawn on a copy of the program's printer.
std::vector<DisplayList> PagesOfSummary(const frmSummary& form);

}  // namespace terravane
