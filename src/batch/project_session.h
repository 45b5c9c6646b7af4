/// One project file open in a program of its own, without windows and on a private copy: sheets are opened as from the
/// toolbar, commands pressed as by hand, pages drawn as they would be printed.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "batch/batch_surroundings.h"
#include "batch/batch_tests.h"
#include "batch/brand_folder.h"
#include "batch/choices.h"
#include "drawing/display_list.h"
#include "laboratory/current_test.h"
#include "laboratory/description.h"
#include "notes/find_notes.h"
#include "program/program.h"
#include "runtime/dates.h"
#include "runtime/file_system.h"
#include "runtime/memory_file_system.h"
#include "sheets/pattern/test_sheet.h"
#include "store/project_texts.h"

namespace terravane {

class ProjectSession {
  public:
    ProjectSession(const Brand& brand, const std::string& path, Bytes content, Moment now);

    const BatchSurroundings& Heard() const { return heard_; }

    /// Opens the sheet of a test and fills it from the copy; nullptr, with a trouble heard, where that fails.
    TestSheet* Open(const laboratory::Description& test, Material material);
    /// Presses the commands of the sheet and saves its results in the copy, readings and headings untouched. False,
    /// with a trouble heard and nothing saved, where a command goes wrong; what it posted before stands.
    bool Press(TestSheet& sheet, const laboratory::Description& test, const Choices& choices,
               const ProjectTexts& saved);

    /// The pages of the open sheet's report, cover first; none, with a trouble heard, where they can't be drawn.
    std::vector<DisplayList> ReportPages();
    std::string ReportTitle() const;
    /// The page of the overall results; none, with a trouble heard, where it can't be drawn.
    std::vector<DisplayList> ResultsPages();

    /// What an experienced eye would say of the open sheet.
    std::vector<notes::SaidNote> Notes();

    /// The copy's texts now, of one table or of all.
    ProjectTexts Texts(std::string_view only = {}) const { return ProjectTexts(disk_.Content(path_), only); }

  private:
    std::string path_;
    MemoryFileSystem disk_;
    BatchSurroundings heard_;
    Program program_;
    std::optional<notes::Checker> checker_;  // from the first question on
};

}  // namespace terravane
