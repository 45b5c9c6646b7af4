/// What the parts that all reports share must know about each, as one row a test: cover, frame, head block, signatures,
/// preview and print walk this one table.
#pragma once

#include <string_view>

#include "program/program.h"
#include "reports/medium.h"

namespace terravane {

/// What a page and the cover are headed with.
/// cover    in Thai
/// crossed  the Thai title is centred by the other medium's wording
struct ReportTitles {
    PerMedium<std::string_view> thai;
    std::string_view english, cover;
    bool crossed = false;
};

/// Where the signatures stand, in lines of the body's size.
/// anchor         from the page's top
/// second, third  rows, from the anchor; the first stands one line below it
/// fixedPreview   whether the preview shows the fixed approver
struct SignaturePlace {
    PerMedium<double> anchor;
    double second, third;
    bool fixedPreview = false;
};

using DrawPage = void (*)(Program& program, DrawingSurface& page, Medium medium);

/// sheet              the form that serves the test
/// headFactor         height of the head block's first row, as a multiple of the width of "D"
/// hasPosition        whether the head block tells the position, too
/// drawBody           the first page, below frame and head block
/// drawSecondPage     with its own frame, if any; null where the report has one page
/// isSecondOnItsSide  whether that page is laid on its side
struct Report {
    Test test;
    std::string_view sheet;
    ReportTitles titles;
    PerMedium<double> headFactor;
    SignaturePlace signatures;
    DrawPage drawBody;
    DrawPage drawSecondPage = nullptr;
    bool isSecondOnItsSide = false;
    bool hasPosition = false;
};

/// Error 5 for a test without a report.
const Report& ReportOf(Test test);

}  // namespace terravane
