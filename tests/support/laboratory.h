/// A laboratory for tests: a disk in memory with a brand store and one project file, the program over it, and the
/// compaction sheet as a technician finds it.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "program/program.h"
#include "runtime/memory_file_system.h"
#include "sheets/compaction/frmCompaction.h"
#include "store/new_stores.h"
#include "support/test_surroundings.h"

namespace terravane::support {

inline constexpr std::string_view kProject = "/lab/TRVN_road.mdb";

struct Laboratory {
    MemoryFileSystem files;
    TestSurroundings ask;
    Program program{ask, files, "/lab"};

    Laboratory()
    {
        files.MakeFolders("/lab/BrandList/");
        WriteFirstContent(files, program.BrandFolderNow());
        CreateProjectFile(files, std::string(kProject));
        program.CurrentProjectPath = kProject;
    }

    /// Opens a sheet as the frame does: shown with the last sheet's test, then told its own, then filled.
    template <class Sheet>
    Sheet& Open(const std::string& name, Test test, Material material = Material::Soil)
    {
        program.AddForm(name, [](Program& owner) { return std::make_unique<Sheet>(owner); });
        program.Unload(name);
        auto& sheet = dynamic_cast<Sheet&>(program.Show(name));
        sheet.tblMenu.SetButtonEnabled(1, true);
        program.CurrentTest = test;
        program.CurrentMaterial = material;
        program.Run("mdiBack.tbrLab_ButtonMenuClick", [&] { LoadTestSheet(sheet); });
        return sheet;
    }

    frmCompaction& OpenSheet(Test test = Test::StdSoil, Material material = Material::Soil)
    {
        return Open<frmCompaction>("frmCompaction", test, material);
    }

    /// What the project file holds on the disk, row by row in the order of the table.
    std::vector<std::vector<std::string>> Stored(const std::string& table) const
    {
        std::vector<std::vector<std::string>> texts;
        const auto database = jet::Database::FromBytes(files.Content(std::string(kProject)));
        for (const auto& row : database.ReadRows(table).rows) {
            auto& line = texts.emplace_back();
            for (const auto& value : row) line.push_back(value.value_or("(null)"));
        }
        return texts;
    }

    /// One column of the project file on the disk.
    std::vector<std::string> StoredColumn(const std::string& table, std::string_view column) const
    {
        std::vector<std::string> texts;
        const auto database = jet::Database::FromBytes(files.Content(std::string(kProject)));
        jet::Recordset rows(database.ReadRows(table));
        for (; !rows.Eof(); rows.MoveNext()) texts.push_back(rows.Fields(column));
        return texts;
    }

    /// What is posted in the summary, of soil (row 0) and crushed rock.
    std::string Posted(std::string_view column, std::size_t row = 0) const
    {
        return StoredColumn("SUMMARY", column).at(row);
    }

    /// The number of the only error so far; 0 for none or several.
    int OnlyError() const { return ask.errors.size() == 1 ? ask.errors[0].number : 0; }

    /// A statement straight into the project file, as another program would.
    void Change(const std::string& statement)
    {
        jet::Connection connection;
        connection.Open(files, std::string(kProject));
        connection.Execute(statement);
        connection.Flush();
    }
};

/// Puts a text into a cell as typing and Enter do.
inline void TypeCell(CellEditor& editor, int row, int column, std::string_view text)
{
    editor.OpenAt(row, column);
    editor.Type(text);
    editor.PressKey(Key::Enter);
}

/// Texts one below the other.
inline void TypeColumn(CellEditor& editor, int firstRow, int column, const std::vector<std::string_view>& texts)
{
    for (std::size_t i = 0; i < texts.size(); ++i) TypeCell(editor, firstRow + static_cast<int>(i), column, texts[i]);
}

/// The cells of a grid's row between two columns, "a|b|c".
inline std::string CellsOf(const TextGrid& grid, int row, int first, int last)
{
    std::string text;
    for (int column = first; column <= last; ++column) text += (column == first ? "" : "|") + grid(row, column);
    return text;
}

/// The cells of a grid's row behind its title.
inline std::string RowOf(const TextGrid& grid, int row)
{
    return CellsOf(grid, row, 1, grid.Columns() - 1);
}

/// One trial as a technician types it: can number, masses in g; assumed water content in percent.
struct Trial {
    std::string_view can, wetAndCan, dryAndCan, justCan, assumedWater, wetAndMold, mold;
};

inline void TypeTrial(frmCompaction& sheet, int trial, const Trial& typed)
{
    TypeColumn(sheet.txtData, compaction::water::CanNumber, trial,
               {typed.can, typed.wetAndCan, typed.dryAndCan, typed.justCan});
    TypeColumn(sheet.txtData1, compaction::density::AssumedWater, trial,
               {typed.assumedWater, typed.wetAndMold, typed.mold});
}

inline void TypeTrials(frmCompaction& sheet, const std::vector<Trial>& trials)
{
    for (std::size_t i = 0; i < trials.size(); ++i) TypeTrial(sheet, static_cast<int>(i) + 1, trials[i]);
}

/// A mold of 4 in: 10.16 cm across and 11.64 cm high, 943.69 cm³.
inline void SetMold(frmCompaction& sheet, std::string_view height = "11.64", std::string_view diameter = "10.16")
{
    sheet.txtHeight.Type(height);
    sheet.txtDia.Type(diameter);
}

/// A worked example of a sandy clay: five trials in a mold of 10.0 by 12.5 cm.
inline const std::vector<Trial> kSandyClay{
    {"1", "36.3", "35.65", "30", "", "4020", "2315"},    {"2", "41.27", "40.17", "32.4", "", "4245", "2315"},
    {"3", "38.66", "37.58", "30.6", "", "4400", "2315"}, {"4", "37.22", "35.73", "26.71", "", "4370", "2315"},
    {"5", "37.5", "36.04", "29.8", "", "4290", "2315"},
};

/// Six trials of crushed rock in a mold of 15.24 by 11.64 cm.
inline const std::vector<Trial> kCrushedRock{
    {"C1", "653.6", "635", "35", "3", "10775", "6480"}, {"C2", "670.6", "645", "35", "4", "11000", "/"},
    {"C3", "687.9", "655", "35", "5", "11216", "/"},    {"C4", "705.3", "665", "35", "6", "11342", "/"},
    {"C5", "723.0", "675", "35", "7", "11344", "/"},    {"C6", "740.9", "685", "35", "8", "11256", "/"},
};

}  // namespace terravane::support
