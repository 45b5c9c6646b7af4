/// The printing of a whole report.
#pragma once

#include <string>
#include <vector>

#include "reports/report.h"

namespace terravane {

/// What stands on a page below its frame: the body and, on the first page, the signatures.
void DrawPageBody(const Printing& of);

/// Draws the current test's report on the printer, cover included; the job is left open, and the printer on its side
/// where the last page is. Where it fails half-way the caller drops what was drawn.
void PrintReport(const Program& program, Printer& printer);

/// The pages that printing would send, drawn on a copy of the program's printer.
std::vector<DisplayList> PagesOfReport(const Program& program);

/// What a print job is called: the English title, and the report's number where it has one.
std::string JobTitle(const Program& program);

}  // namespace terravane
