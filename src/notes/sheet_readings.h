/// The numbers of a sheet as it stands, and what the project file holds of the job's other tests: what the checker's
/// rules look at. Nothing is worked out here that the sheet works out: its cells are read.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "controls/form.h"
#include "laboratory/tests.h"
#include "notes/note.h"
#include "store/project_texts.h"

namespace terravane::notes {

/// A trial's number in a line of a grid, and where it stands.
struct Reading {
    int trial;
    double value;
    Place at;
};

class SheetReadings {
  public:
    /// sheet  an open form of the test
    /// job    the project file; nullptr where there is none to look into
    SheetReadings(const Form& sheet, const laboratory::Description& test, Material material, const ProjectTexts* job)
        : sheet_(sheet), test_(test), material_(material), job_(job)
    {}

    const laboratory::Description& Described() const { return test_; }
    Material TheMaterial() const { return material_; }

    /// Without the blanks around it.
    std::string Text(const laboratory::Box& box) const;
    std::string Text(const laboratory::Grid& grid, int line, int trial) const;
    /// As the sheet reads it; nothing for an empty text.
    std::optional<double> Number(const laboratory::Box& box) const;
    std::optional<double> Number(const laboratory::Grid& grid, int line, int trial) const;
    /// Of all trials that have one, from 1.
    std::vector<Reading> Line(const laboratory::Grid& grid, int line) const;
    bool IsChosen(std::string_view option) const;
    bool IsTicked(std::string_view box) const;

    static Place At(const laboratory::Box& box) { return {box.control}; }
    static Place At(const laboratory::Grid& grid, int line, int trial);
    /// Trials that the grid has now: of a list those in sight.
    int Trials(const laboratory::Grid& grid) const;

    /// What the file keeps of another test of the same material, in a row from 1, without the blanks around it; empty
    /// where there is no file. The column without its prefix.
    std::string Kept(Test test, std::string_view column, int row = 1) const;
    std::optional<double> KeptNumber(Test test, std::string_view column, int row = 1) const;
    /// What SUMMARY holds of the material.
    std::optional<double> Posted(std::string_view column) const;

  private:
    const Form& sheet_;
    const laboratory::Description& test_;
    Material material_;
    const ProjectTexts* job_;
};

}  // namespace terravane::notes
