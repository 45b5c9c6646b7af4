/// The program on a disk in memory with a project and its journal, driven as a person drives it.
#pragma once

#include <memory>
#include <string>

#include "app/form_makers.h"
#include "app/mdiBack.h"
#include "controls/cell_editor.h"
#include "controls/choice_controls.h"
#include "controls/visit_control.h"
#include "journal/journal.h"
#include "runtime/memory_file_system.h"
#include "store/new_stores.h"
#include "support/test_surroundings.h"

namespace terravane::support {

struct JournalBench {
    static constexpr const char* kProject = "/lab/TRVN_road.mdb";

    MemoryFileSystem files;
    TestSurroundings ask;
    std::unique_ptr<Program> program;
    std::unique_ptr<Journal> journal;

    JournalBench()
    {
        files.MakeFolders("/lab/BrandList/");
        WriteFirstContent(files, "/lab/BrandList/");
        CreateProjectFile(files, kProject);
        Start();
    }

    void Start()
    {
        Leave();
        program = std::make_unique<Program>(ask, files, "/lab");
        AddForms(*program);
        journal = std::make_unique<Journal>(*program);
        program->Run("Start", [this] { program->Show(kFrameName); });
        Frame().OpenFile(kProject);
    }
    /// As a power cut would.
    void Leave()
    {
        journal.reset();
        program.reset();
    }

    mdiBack& Frame() const { return program->Get<mdiBack>(kFrameName); }
    Form& Open(const std::string& key = "mnuStd1")
    {
        Frame().tbrLab.PressItem(key);
        return Sheet();
    }
    Form& Sheet() const { return *journal->Sheet(); }
    std::string Text(const std::string& box) const { return Sheet().Get<Control>(box).Text(); }
    std::string Cell(const std::string& grid, int row, int column) const
    {
        return Sheet().Get<TextGrid>(grid)(row, column).Text();
    }
    void Type(const std::string& box, const std::string& text) const { Sheet().Get<TextControl>(box).Type(text); }
    void Type(const std::string& grid, int row, int column, const std::string& text) const
    {
        for (CellEditor* editor : ControlsOf<CellEditor>(Sheet())) {
            if (editor->Grid().Name() != grid || !editor->OpenAt(row, column)) continue;
            editor->Type(text);
            editor->PressKey(Key::Enter);
        }
    }
    void Press(const std::string& button) const { Sheet().Get<CommandButton>(button).Press(); }
    void Save() const { Sheet().Get<Toolbar>("tblMenu").Press(1); }
};

}  // namespace terravane::support
