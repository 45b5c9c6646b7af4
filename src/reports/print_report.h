/// Which report belongs to which test, and the printing of a whole report.
#pragma once

#include <string>
#include <vector>

#include "program/program.h"

namespace terravane {

/// The bodies of a test's report, below the page frame.
/// print             all pages but the cover, on the printer, from below the first page's frame on
/// show              page 1
/// showSecond        page 2 with its own frame, if any; null where the report has one page
/// secondOnItsSide   whether page 2 is laid on its side on the preview
struct Report {
    Test test;
    void (*print)(Program& program, Printer& printer);
    void (*show)(Program& program, DrawingSurface& picView);
    void (*showSecond)(Program& program, DrawingSurface& picView) = nullptr;
    bool secondOnItsSide = false;
};

/// Error 5 for a test without a report.
const Report& ReportOf(Test test);

/// Draws the current test's report on the printer, cover included; the job is left open. Where it fails
/// half-way the caller drops what was drawn.
void PrintReport(Program& program, Printer& printer);

/// The pages that printing would send, drawn on a copy of the program's printer.
std::vector<DisplayList> PagesOfReport(Program& program);

/// What a print job is called: the English title, and the report's number where it has one.
std::string JobTitle(const Program& program);

}  // namespace terravane
