/// The printing of a whole report.
#pragma once

#include <string>
#include <vector>

#include "program/program.h"

namespace terravane {

/// Draws the current test's report on the printer, cover included; the job is left open, and the printer on its side
/// where the last page is. Where it fails half-way the caller drops what was drawn.
void PrintReport(Program& program, Printer& printer);

/// The pages that printing would send, drawn on a copy of the program's printer.
std::vector<DisplayList> PagesOfReport(Program& program);

/// What a print job is called: the English title, and the report's number where it has one.
std::string JobTitle(const Program& program);

}  // namespace terravane
