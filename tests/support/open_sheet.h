/// A program without windows on a disk in memory, with a project, and one of its sheets open as a person opens it;
/// cells and boxes are written as a script's `put` does.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/form_makers.h"
#include "app/mdiBack.h"
#include "controls/text_grid.h"
#include "jet/connection.h"
#include "laboratory/tests.h"
#include "program/program.h"
#include "runtime/memory_file_system.h"
#include "sheets/pattern/test_sheet.h"
#include "store/new_stores.h"
#include "store/project_texts.h"
#include "support/test_surroundings.h"

namespace terravane::support {

class OpenSheet {
  public:
    static constexpr std::string_view kProject = "/lab/TRVN_road.mdb";

    /// statements  run on the new project first
    explicit OpenSheet(Test test, char menuDigit = '1', const std::vector<std::string>& statements = {})
        : files_(Disk()), program_(ask_, files_, "/lab")
    {
        jet::Connection project;
        project.Open(files_, std::string(kProject));
        for (const std::string& statement : statements) project.Execute(statement);
        project.Flush();
        AddForms(program_);
        program_.Run("Start", [this] { program_.Show(kFrameName); });
        auto& frame = program_.Get<mdiBack>(kFrameName);
        frame.OpenFile(std::string(kProject));
        const laboratory::Description& described = laboratory::Describe(test);
        frame.tbrLab.PressItem(std::string(described.menu) + menuDigit);
        sheet_ = &program_.Get<TestSheet>(described.sheet.form);
    }

    Program& TheProgram() { return program_; }
    TestSheet& Sheet() const { return *sheet_; }
    MemoryFileSystem& Files() { return files_; }
    const TestSurroundings& Asked() const { return ask_; }

    /// "MSHWt 2 1", a box, or an option or tick with "on".
    void Put(std::string_view place, std::string_view text)
    {
        const auto blank = place.find(' ');
        Control& control = *sheet_->Find(place.substr(0, blank));
        if (blank != std::string_view::npos)
            return PutCell(dynamic_cast<TextGrid&>(control), place.substr(blank), text);
        if (auto* option = dynamic_cast<OptionButton*>(&control)) return option->Choose();
        if (auto* tick = dynamic_cast<CheckBox*>(&control)) return tick->SetValue(text == "on");
        dynamic_cast<TextControl&>(control).SetText(std::string(text));
    }

    ProjectTexts Job() const { return ProjectTexts(files_.Read(std::string(kProject))); }

  private:
    static void PutCell(TextGrid& grid, std::string_view place, std::string_view text)
    {
        const int row = std::stoi(std::string(place));
        const int column = std::stoi(std::string(place.substr(place.find_last_of(' '))));
        if (row >= grid.Rows()) grid.SetRows(row + 1);
        grid(row, column) = text;
    }

    static MemoryFileSystem Disk()
    {
        static const MemoryFileSystem made = [] {
            MemoryFileSystem files;
            files.MakeFolders("/lab/BrandList/");
            WriteFirstContent(files, "/lab/BrandList/");
            CreateProjectFile(files, std::string(kProject));
            return files;
        }();
        return made;
    }

    TestSurroundings ask_;
    MemoryFileSystem files_;
    Program program_;
    TestSheet* sheet_ = nullptr;
};

}  // namespace terravane::support
