/// The overall results: what the sheets posted for both materials, in one grid. Nothing is worked out here; the form
/// knows neither the sheets nor how they post.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/text_controls.h"
#include "controls/text_grid.h"
#include "program/program.h"
#include "results/summary_lines.h"

namespace terravane {

/// On the print and as its job's name.
inline constexpr std::string_view kSummaryTitle = "Overall Testing Results";

struct frmSummary : Form {
    explicit frmSummary(Program& program);

    Program& program;

    Image imgLogo{*this, "imgLogo"};
    Frame fraResults{*this, "fraResults", "Overall Testing Results "};
    TextBox txtProject{*this, "txtProject", "Project Name"};
    TextBox txtLocation{*this, "txtLocation", "Location"};
    TextGrid mshSum{*this, "mshSum", summary::kRows, summary::kColumns};
    CommandButton cmdPrint{*this, "cmdPrint", "Print", {.Click = [this] { cmdPrint_Click(); }}};
    CommandButton cmdClose{*this, "cmdClose", "Close", {.Click = [this] { cmdClose_Click(); }}};

    /// Reads the results afresh from the file of the recent entry, which becomes the current project. Errors of the
    /// store where that file is missing, damaged or without one of the tables.
    void Form_Load() override;
    bool HoldsUnkeptTexts() const override;

    /// One page, on the printer that the user chooses. Cancel and every failure end it without a word.
    void cmdPrint_Click() const;
    void cmdClose_Click() const { program.Unload(Name()); }

    /// The one page that printing would send, drawn on a copy of the program's printer.
    std::vector<DisplayList> Pages() const;

  private:
    void OpenRecentProject() const;
    void ShowHeadings();
    void ShowResults();
    void MarkResults();
    void LayOutGrid();
    void ShowTitles();
    void DrawPage(Printer& printer) const;

    std::array<std::string, 2> headings_;  // project and location as they were read
};

}  // namespace terravane
