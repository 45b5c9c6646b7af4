/// What a report is: what the parts that all reports share must know about each, and one of its pages on its way to a
/// surface. Knows no report; the table of them is in all_reports.
#pragma once

#include <optional>
#include <string_view>

#include "laboratory/description.h"
#include "program/program.h"
#include "reports/medium.h"
#include "sheets/pattern/test_sheet.h"

namespace terravane {

struct Printing;

/// Where the signatures stand, in lines of the body's size.
/// anchor         from the page's top
/// second, third  rows, from the anchor; the first stands one line below it
/// fixedPreview   whether the preview shows the fixed approver
struct SignaturePlace {
    PerMedium<double> anchor;
    double second, third;
    bool fixedPreview = false;
};

/// One page of a report.
/// drawBody     what stands on it but for its frame and the signatures
/// isOnItsSide  where no frame stands: the body prints the footer itself
struct PageOfReport {
    void (*drawBody)(const Printing& printing);
    bool isOnItsSide = false;
};

/// test         what it is called, and the form that serves it
/// headFactor   height of the head block's first row, as a multiple of the width of "D"
/// hasPosition  whether the head block tells the position, too
/// isTitleCrossed  whether the Thai title is centred by the other medium's wording
/// first        with head block and signatures
/// second       without them, if any
struct Report {
    const laboratory::Description& test;
    PerMedium<double> headFactor;
    SignaturePlace signatures;
    PageOfReport first;
    std::optional<PageOfReport> second = std::nullopt;
    bool hasPosition = false;
    bool isTitleCrossed = false;
};

inline constexpr int kCover = 0, kFirstPage = 1, kSecondPage = 2;

/// One page being drawn: all that its routines may ask.
/// titled  whose title its frame bears: on a compaction page the sheet's banner tells, whatever the report's cover says
/// number  of the page; kCover is the cover
struct Printing {
    const Report& report;
    const Report& titled;
    const TestSheet& sheet;
    DrawingSurface& page;
    Medium medium;
    int number;

    /// The sheet as the form that it is; error 424 where another stands under that name.
    template <class Sheet>
    const Sheet& SheetAs() const
    {
        return sheet.program.Get<Sheet>(report.test.sheet.form);
    }

    const PageOfReport& Kind() const { return number == kSecondPage ? report.second.value() : report.first; }
};

}  // namespace terravane
