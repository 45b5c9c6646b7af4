/// How a test is described: its names, its tables, the texts of its sheet and what it gives, each said once, as data
/// that the compiler checks. Titles, editors, load and save, the tables of a project file, page labels, the overall
/// results, the batch tool and the tests are made from it. Knows no control and no form: these are named.
#pragma once

#include <algorithm>
#include <span>
#include <string_view>

#include "laboratory/current_test.h"
#include "laboratory/unit.h"

namespace terravane::laboratory {

/// What most columns of a test's table take, in UTF-16 units.
inline constexpr int kReadingLength = 10;

/// The place of a column that stands where the description comes to it.
inline constexpr int kInOrder = -1;

/// What a careful technician types: from `low` to `high` with so many decimals, in the unit of the value, for the first
/// trial; each later one is `step` further.
struct Plausible {
    double low = 0, high = 0;
    int decimals = 0;
    double step = 0;

    constexpr bool IsGiven() const { return high > low; }
};

/// What a text of a sheet is.
/// page         its label on the report; empty: the title that the sheet has
/// kept         the column of the test's table that keeps it, without the table's prefix; empty: none does
/// length       the most UTF-16 units that the column takes
/// place        of the column in the table, from 0, the row's key; kInOrder: behind the one described before it
/// isLoaded     whether the sheet reads it back; what another command works out anew is saved only
/// isWorkedOut  whether a command writes it; such a text is not typed
/// isReading    whether a number but 0 in it tells that the test was begun
/// isResult     whether its column holds what the test gave or took: other tests and the batch tool read it
/// mask         that a typed text is committed through, and that a worked out number is written with
struct Value {
    std::string_view page = {};
    std::string_view kept = {};
    int length = kReadingLength;
    int place = kInOrder;
    bool isLoaded = true;
    bool isWorkedOut = false;
    bool isReading = false;
    bool isResult = false;
    Unit unit = kText;
    std::string_view mask = {};
    Plausible like = {};
};

/// A box of a sheet: the control and the caption beside it.
struct Box {
    std::string_view control, caption;
    Value is = {};
};

/// One quantity in a grid, over all trials: a row where the trials stand side by side, a column where they stand one
/// below the other.
/// number  of the row or column; a grid's lines are listed in this order, each once
struct Line {
    int number;
    std::string_view title;
    Value is = {};

    constexpr std::string_view Page() const { return is.page.empty() ? title : is.page; }
};

enum class Trials { SideBySide, OneBelowAnother };

/// A grid of readings and of what is worked out from them.
/// frame        caption of the frame around it
/// count        trials that it takes; of a list the most
/// trialTitles  above or beside the trials, the corner first
/// heads        lines at the beginning that hold titles and names, no readings
/// firstTrial   row or column of the first trial
/// records      rows of the test's table that keep it; 0: one a trial
/// firstRecord  row or column that the first of these keeps
/// isList       whether it grows and shrinks with its trials
/// titleWidth   twips that the titles of side-by-side trials take
struct Grid {
    std::string_view control, frame;
    Trials trials;
    int count;
    std::span<const Line> lines;
    std::span<const std::string_view> trialTitles = {};
    int heads = 1;
    int firstTrial = 1;
    int records = 0;
    int firstRecord = 1;
    bool isList = false;
    double titleWidth = 0;

    constexpr int Records() const { return records == 0 ? count : records; }
    constexpr bool IsAcross() const { return trials == Trials::SideBySide; }
    constexpr int Lines() const { return static_cast<int>(lines.size()); }
    constexpr int Rows() const { return IsAcross() ? Lines() : isList ? firstTrial + 1 : firstTrial + count; }
    constexpr int Columns() const { return IsAcross() ? firstTrial + count : Lines(); }
    constexpr const Line& operator[](int line) const { return lines[static_cast<std::size_t>(line)]; }

    constexpr bool IsTyped(int line) const { return line >= heads && !(*this)[line].is.isWorkedOut; }
    /// The first and the last line that is typed.
    constexpr int FirstTyped() const
    {
        int line = heads;
        while (!IsTyped(line)) ++line;
        return line;
    }
    constexpr int LastTyped() const
    {
        int line = Lines() - 1;
        while (!IsTyped(line)) --line;
        return line;
    }
};

/// Whether a grid's lines are all there, each at its number.
constexpr bool IsInOrder(const Grid& grid)
{
    int number = 0;
    return std::ranges::all_of(grid.lines, [&](const Line& line) { return line.number == number++; });
}

/// One of several that exclude each other, and the text that the table keeps where it is chosen.
struct Option {
    std::string_view control, caption, stored;
};

/// The choice that a test's table keeps.
struct Choice {
    Value is;
    std::span<const Option> options;
};

/// When the sheets are closed, each by its number from 1: by the commands that choose a file, and by those that go on
/// in a copy or open another sheet.
struct ClosingOrder {
    int beforeFile, beforeSheet;
};

/// A form that serves one test, or several that differ in their tables alone.
/// boxes       typed, before the grids in the order of the table
/// results     boxes whose columns stand behind the grids': worked out, or taken from another test
/// commands    in the order in which the method presses them; Print Preview comes behind them. What only prepares the
///             typing, such as the list of sieves, is none
/// trimsLists  whether the texts of its grids lose the blanks at their ends when they are loaded
struct Sheet {
    std::string_view form, caption;
    std::span<const std::string_view> tabs;
    std::span<const Box> boxes;
    std::span<const Grid> grids;
    std::span<const Box> results = {};
    std::span<const std::string_view> commands = {};
    Choice choice = {};
    bool trimsLists = false;
    ClosingOrder closing = {};

    constexpr const Grid& TheGrid(std::string_view control) const
    {
        return *std::ranges::find(grids, control, &Grid::control);
    }
};

/// A result that a test posts into its material's row of SUMMARY, and the line that shows it among the overall results.
/// column    without the table's prefix
/// property  what the line is headed with
/// printed   the same on paper
/// mask      of the shown value; empty: the text as it was posted
/// group     what the line stands under; empty: the test's title
/// control   box that shows it on the sheet, or grid; empty where it stands nowhere as it is posted
/// line      of that grid, whose first trial's cell it is
struct Posted {
    std::string_view column;
    std::string_view property, printed;
    Unit unit;
    std::string_view control = {};
    int line = 0;
    std::string_view mask = {};
    std::string_view group = {};
    int length = kReadingLength;
    int place = kInOrder;
};

/// A result of another test that the project file holds a second time, in this test's table.
/// column      of this test's table, `source` of the other one's; both without prefixes
/// name        it is called by: "MDD"
/// from        the other test; None where the file's choice tells which
/// mayBeTyped  whether a person may have typed it where the other test has none
struct Taken {
    std::string_view column, name;
    Test from;
    std::string_view source;
    bool mayBeTyped;
};

/// What a test is called.
/// title     at the head of a section
/// sentence  within a sentence
/// button    on the toolbar
/// english   on banner and page
/// banner    in Thai; `preview` and `paper` where the page's title differs from it
/// cover     on the cover, in Thai
struct Names {
    std::string_view title, sentence, button, english;
    std::string_view banner;
    std::string_view cover;
    std::string_view preview = {}, paper = {};

    constexpr std::string_view OnPreview() const { return preview.empty() ? banner : preview; }
    constexpr std::string_view OnPaper() const { return paper.empty() ? banner : paper; }
};

/// A test's table for one material, and where it stands among those of a new project file.
struct Table {
    std::string_view name;
    int place;
};

/// key         in options and file names
/// menu        stem of the two items that open the sheet, "1" behind it for soil, "2" for crushed rock
/// buttonKey   of the toolbar's button that drops them down
/// prefix      of its columns
/// rows        of each of its tables
/// workOrder   when it is worked: a test stands behind those whose results it takes
/// needs       tests whose results its commands read
struct Description {
    Test test;
    std::string_view key, menu, buttonKey, prefix;
    Names names;
    const Sheet& sheet;
    Table soil, crushedRock;
    int rows;
    int workOrder;
    std::span<const Posted> posts;
    std::span<const Taken> takes = {};
    std::span<const Test> needs = {};

    constexpr const Table& TableFor(Material material) const
    {
        return material == Material::Crush ? crushedRock : soil;
    }
};

}  // namespace terravane::laboratory
