/// A program without windows for tests of reports: brand store and pictures on a disk in memory, a printer that keeps
/// its jobs, and every sheet by its name.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "jet/connection.h"
#include "laboratory/tests.h"
#include "program/program.h"
#include "reports/frmPreview.h"
#include "runtime/memory_file_system.h"
#include "sheets/compaction/frmCompaction.h"
#include "store/new_stores.h"
#include "support/bare_description.h"
#include "support/drawn_items.h"
#include "support/test_surroundings.h"

namespace terravane::support {

/// The furniture of a sheet without a method, under the name of any form.
struct BareSheet : TestSheet {
    BareSheet(Program& owner, const std::string& name) : TestSheet(owner, BareDescription(name)) {}

    TextBox txtPosition{*this, "txtPosition", "Position"};

    void Form_Load() override {}
    void cmdCal_Click() override {}
};

inline constexpr std::string_view kBrandFolder = "/home/BrandList/";

struct ReportBench {
    TestSurroundings ask;
    MemoryFileSystem files;
    Program program{ask, files, "/home"};
    std::vector<std::vector<DisplayList>> printed;  // the pages of each job
    std::vector<std::string> jobTitles;

    ReportBench()
    {
        ask.paper = [this](std::span<const DisplayList> pages, const std::string& title) {
            printed.emplace_back(pages.begin(), pages.end());
            jobTitles.push_back(title);
        };
        files.MakeFolders("/home/");
        WriteFirstContent(files, std::string(kBrandFolder));
        Brand(
            "UPDATE LOGO Set logo_ins ='Institute of Roads',  logo_dep ='Materials Laboratory',  "
            "logo_cov1 ='First Reporter',  logo_cov2 ='Second Reporter',  logo_cov3 ='   '");
        program.AddForm("frmPreview", [](Program& owner) { return std::make_unique<frmPreview>(owner); });
        for (const laboratory::Sheet* sheet : laboratory::SheetsClosedBeforeFile()) {
            const std::string name(sheet->form);
            program.AddForm(name, [name](Program& owner) { return std::make_unique<BareSheet>(owner, name); });
        }
        program.AddForm("frmCompaction", [](Program& owner) { return std::make_unique<frmCompaction>(owner); });
    }

    /// A statement on the brand store, in the file at once.
    void Brand(const std::string& statement)
    {
        jet::Connection connection;
        connection.Open(files, std::string(kBrandFolder) + "logo.mdb");
        connection.Execute(statement);
        connection.Flush();
    }

    void MakePerson(int row, const std::string& name, const std::string& position)
    {
        Brand("UPDATE PERSON Set person_name ='" + name + "',  person_position ='" + position +
              "' Where person_ID =' " + std::to_string(row) + "'");
    }

    /// Opens the sheet of a test as the frame does, with a job's particulars on it.
    TestSheet& Open(Test test, const std::string& sheetName, const std::string& labName = "Standard Compaction Test")
    {
        program.CurrentTest = test;
        auto& sheet = dynamic_cast<TestSheet&>(program.Show(sheetName));
        sheet.txtLabName.SetText(labName);
        sheet.txtClient.SetText("Highway Department");
        sheet.txtProject.SetText("Bypass Road");
        sheet.txtLocation.SetText("Km 12+400");
        sheet.txtID.SetText("R-17");
        sheet.txtSoil.SetText("Sample 3");
        sheet.cboTest.SetText("Anong Jai");
        sheet.cboCheck.SetText("Boon Dee");
        sheet.DTPDate.SetText("21/11/2026");
        sheet.stbDes.SetPanel(1, "Database File is /home/road.mdb");
        return sheet;
    }

    frmCompaction& OpenCompaction() { return dynamic_cast<frmCompaction&>(Open(Test::StdSoil, "frmCompaction")); }

    /// The preview of the open sheet; a failing load is thrown.
    frmPreview& Preview() { return dynamic_cast<frmPreview&>(program.Show("frmPreview", Modality::Modal)); }
};

}  // namespace terravane::support
