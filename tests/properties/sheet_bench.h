/// A sheet under random hands: the whole program on a disk in memory, one project, one of the sheets opened as a
/// person opens it, typed into, commanded, saved and opened again.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "drawing/display_list.h"
#include "program/program.h"
#include "runtime/memory_file_system.h"
#include "sheets/pattern/test_sheet.h"
#include "support/every_sheet.h"
#include "support/random_readings.h"
#include "support/test_surroundings.h"

namespace terravane::support {

/// A sheet and a material: what a property is tested on.
struct SheetCase {
    const SheetUnderTest* sheet;
    const MaterialUnderTest* material;
};
std::vector<SheetCase> AllSheetCases();
std::string CaseName(const SheetCase& of);

/// How many seeds a property tries with each hand: few in the test command, more with TERRAVANE_SEEDS=1000.
unsigned Seeds();

/// "MSHWt(2,3)", "txtDia", "SUMMARY(1,sum_LL)" and what stands there.
using Texts = std::map<std::string, std::string>;

/// The first few places where the two differ, as a sentence each; empty where they are alike.
std::string Differences(const Texts& before, const Texts& after);

/// What a person chooses and presses beside the readings; done again after the sheet was opened anew.
struct Plan {
    std::vector<std::string_view> choices;
    std::vector<std::pair<std::string_view, std::string>> session;
    std::vector<std::string_view> fetches;
};

class SheetBench {
  public:
    explicit SheetBench(const SheetCase& of);

    /// Closes the program and starts it again on the file as it is: the sheet knows what the file knows.
    void Reopen();

    TestSheet& Sheet() const { return *sheet_; }
    Program& TheProgram() const { return *program_; }
    const SheetUnderTest& Table() const { return *case_.sheet; }
    const MaterialUnderTest& TheMaterial() const { return *case_.material; }

    Plan PlanOf(RandomReadings& hand) const;
    void Choose(const Plan& plan);
    /// Types into every box and cell that the file keeps. Texts that no column takes are typed again as nothing.
    void Fill(RandomReadings& hand);
    void TypeBox(std::string_view box, const std::string& text);
    /// Types the product with `factor` over each number that the file keeps: other readings in the same places.
    void ScaleEntries(double factor);
    /// Types nothing into every box and cell that the file keeps, and takes away the rows that a person can take away.
    void Clear();
    /// The session's boxes and the fetches.
    void Fetch(const Plan& plan);
    bool CanPress(const SheetPress& command) const;
    /// Presses one command, if it can be pressed. False where it ended in an error or a message.
    bool Press(const SheetPress& command);
    void PressAll();
    bool Save();

    /// What was typed: boxes, date and cells that the file keeps.
    Texts Entries() const;
    /// All that is seen, and the posted results.
    Texts Everything() const;
    /// All pictures, box by box.
    std::vector<std::shared_ptr<const DisplayList>> Drawings() const;
    /// The rows of a table on the disk.
    Texts Stored(std::string_view table) const;
    /// All tables but SUMMARY.
    Texts StoredReadings() const;
    Bytes File() const;
    void TakeFileAway();
    void PutFileBack(const Bytes& content);

    /// What was told last.
    std::string LastWord() const;

  private:
    void Start();
    void TypeDate(RandomReadings& hand);
    void TypeGrid(CellEditor& editor, RandomReadings& hand);
    void TypeCell(CellEditor& editor, int row, int column, const std::string& text);
    void PrepareStack(RandomReadings& hand);
    void TypeSwellDates(RandomReadings& hand);
    void DropWhatNoColumnTakes();
    void ForEachBox(const std::function<void(std::string_view box)>& act) const;
    void EraseRows(std::string_view grid, int from, int to);
    std::string BoxText(std::string_view box, RandomReadings& hand) const;
    std::string CellText(const TextGrid& grid, int row, int column, int trial, RandomReadings& hand) const;
    int Units(std::string_view control, int row, int column) const;
    std::size_t Told() const { return ask_.errors.size() + ask_.messages.size(); }
    template <class Act>
    bool Quietly(Act act);

    SheetCase case_;
    MemoryFileSystem files_;
    TestSurroundings ask_;
    std::unique_ptr<Program> program_;
    TestSheet* sheet_ = nullptr;
};

}  // namespace terravane::support
