/// A project file on a disk in memory, a frame that has nothing but its recent entry, and the overall results form.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "controls/furniture.h"
#include "jet/connection.h"
#include "program/program.h"
#include "results/frmSummary.h"
#include "runtime/memory_file_system.h"
#include "store/new_stores.h"
#include "store/schema.h"
#include "support/test_surroundings.h"

namespace terravane::support {

struct FrameWithARecentEntry : Form {
    explicit FrameWithARecentEntry(Program& program) : Form(program, "mdiBack", "Frame") {}
    MenuEntry mnuRecent{*this, "mnuRecent", ""};
};

struct ResultsBench {
    static constexpr std::string_view kFile = "/jobs/TRVN_road.mdb";

    TestSurroundings ask;
    MemoryFileSystem files;
    Program program{ask, files, "/home"};
    std::vector<std::vector<DisplayList>> printed;  // the pages of each job
    std::vector<std::string> jobTitles;

    ResultsBench()
    {
        files.MakeFolders("/home/");
        files.MakeFolders("/jobs/");
        CreateProjectFile(files, std::string(kFile));
        program.AddForm("mdiBack", [](Program& owner) { return std::make_unique<FrameWithARecentEntry>(owner); });
        program.AddForm("frmSummary", [](Program& owner) { return std::make_unique<frmSummary>(owner); });
        Recent(std::string(kFile));
    }

    void Recent(const std::string& path) { program.Load("mdiBack").Get<MenuEntry>("mnuRecent").SetCaption(path); }

    /// Prints are kept; without a call the print dialog is cancelled.
    void AnswerPrintDialog()
    {
        ask.paper = [this](std::span<const DisplayList> pages, const std::string& title) {
            printed.emplace_back(pages.begin(), pages.end());
            jobTitles.push_back(title);
        };
    }

    /// A statement straight into the project file, as a sheet would have sent it.
    void Change(const std::string& statement)
    {
        jet::Connection connection;
        connection.Open(files, std::string(kFile));
        connection.Execute(statement);
        connection.Flush();
    }

    void Post(const std::string& column, const std::string& value, int row = 1)
    {
        Change("UPDATE SUMMARY Set " + column + " ='" + value + "' Where sum_ID =' " + std::to_string(row) + "'");
    }

    /// The project file made anew with all its tables but one.
    void MakeWithout(std::string_view missing)
    {
        files.TakeAway(std::string(kFile));
        jet::NewDatabase file(files, std::string(kFile));
        for (const TableSchema& table : ProjectTables()) {
            if (table.name != missing) MakeTable(file, table);
        }
        file.Close();
    }

    static void MakeTable(jet::NewDatabase& file, const TableSchema& table)
    {
        std::string names, columns, values;
        for (const ColumnSchema& column : table.columns) {
            const std::string comma = names.empty() ? "" : ",", name = table.ColumnName(column.suffix);
            names += comma + name;
            columns += comma + name + " text(10)";
            values += comma + "'" + std::string(kSeed) + "'";
        }
        const std::string name(table.name);
        file.Execute("CREATE TABLE " + name + "(" + columns + ")");
        const std::string insert = "insert into " + name + " (" + names + ") Values (" + values + ")";
        for (int row = 0; row < table.rows; ++row) file.Execute(insert);
    }

    /// A failing load is thrown.
    frmSummary& Open()
    {
        program.Unload("frmSummary");
        return dynamic_cast<frmSummary&>(program.Show("frmSummary", Modality::Modal));
    }
};

}  // namespace terravane::support
