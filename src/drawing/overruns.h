/// Texts of a page that do not fit where they are printed: they are drawn all the same, and cut or hard to read on
/// paper. Knows what stands where, not what it means; the inside of figures is their own business.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "drawing/display_list.h"

namespace terravane {

enum class OverrunKind {
    LeavesPaper,    // and is cut at its edge
    WiderThanCell,  // of the table that it stands in
    RunsOverText,   // on the same line
};

/// page   from 1
/// text   what does not fit
/// place  the caption above the table; the other text; empty for the paper
struct Overrun {
    std::size_t page = 1;
    OverrunKind kind = OverrunKind::LeavesPaper;
    std::string text;
    std::string place = {};
    bool operator==(const Overrun&) const = default;
};

/// Of one page, in the order in which its texts were printed; a text that fits nowhere is told once.
std::vector<Overrun> OverrunsOf(const DisplayList& page, std::size_t number = 1);

/// Of a document.
std::vector<Overrun> OverrunsOf(std::span<const DisplayList> pages);

/// "“Bypass Road of the ...” runs over “Date of Test”." Long texts are cut.
std::string Told(const Overrun& overrun);

/// A line that tells of all of them: the first one and how many more there are; empty where there is none.
std::string StatusOf(std::span<const Overrun> overruns);

}  // namespace terravane
