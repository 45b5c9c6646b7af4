/// Projects on a disk in memory, filled by statements as another program would, and what the report program makes of
/// them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "batch/brand_folder.h"
#include "batch/project_work.h"
#include "jet/connection.h"
#include "runtime/memory_file_system.h"
#include "store/new_stores.h"
#include "store/project_texts.h"
#include "store/schema.h"

namespace terravane::support {

inline constexpr std::string_view kRoad = "/jobs/TRVN_road.mdb";

struct BatchBench {
    MemoryFileSystem disk;
    Brand brand = FirstBrand();
    BatchOptions options;
    ProjectFile project{std::string(kRoad), "/out/TRVN_road"};

    BatchBench()
    {
        disk.MakeFolders("/jobs/");
        options.today = MakeMoment(2026, 11, 21, 12);
        CreateProjectFile(disk, project.path);
    }

    void Run(const std::string& statement)
    {
        jet::Connection connection;
        connection.Open(disk, project.path);
        connection.Execute(statement);
        connection.Flush();
    }

    /// One text into a row from 1.
    void Put(const std::string& table, const std::string& column, int row, const std::string& text)
    {
        const std::string key = column.substr(0, column.find('_')) + "_ID";
        Run("UPDATE " + table + " Set " + column + " ='" + text + "' Where " + key + " ='" + RowKey(row) + "'");
    }
    /// The same text into every row.
    void PutAll(const std::string& table, const std::string& column, const std::string& text)
    {
        Run("UPDATE " + table + " Set " + column + " ='" + text + "'");
    }

    ProjectTexts Texts() const { return ProjectTexts(disk.Content(project.path)); }
    std::string Stored(std::string_view table, std::string_view column, int row = 1) const
    {
        return Texts().Text(table, column, row);
    }

    ProjectAnswer Work(const std::optional<JournalEntry>& earlier = std::nullopt)
    {
        return WorkProject({disk, disk}, project, options, brand, earlier);
    }

    std::vector<std::string> Stale()
    {
        options.checks = true;
        return Work().stale;
    }
};

/// One trial of a compaction: water content in percent from 100 g of dry soil, wet soil in g in a mold of 1000 cm³.
struct PlainTrial {
    int water, wetSoil;
};

/// A mold of 10 cm by 12.7324 cm holds 1000.0 cm³, so that grams are thousandths of the density. Dry densities under
/// the sheet's two decimals: 2050 g at 8 % is 2.05 / 1.08 = 1.90, 2200 g at 10 % 2.00, 2130 g at 12 % 1.90. The spline
/// through three points that mirror each other has its top at the middle one: 2.00 at 10.0 %.
inline const std::vector<PlainTrial> kTopAt200{{8, 2050}, {10, 2200}, {12, 2130}};
/// The same with 2750 g in the middle: 2.50.
inline const std::vector<PlainTrial> kTopAt250{{8, 2050}, {10, 2750}, {12, 2130}};

inline void PutCompaction(BatchBench& bench, const std::string& table, const std::vector<PlainTrial>& trials)
{
    const std::string prefix = table.starts_with("STD") ? "std_" : "mod_";
    bench.PutAll(table, prefix + "dia", "10");
    bench.PutAll(table, prefix + "height", "12.7324");
    for (std::size_t i = 0; i < trials.size(); ++i) {
        const int row = static_cast<int>(i) + 1;
        bench.Put(table, prefix + "wcanw", row, std::to_string(110 + trials[i].water));
        bench.Put(table, prefix + "wcand", row, "110");
        bench.Put(table, prefix + "wcan", row, "10");
        bench.Put(table, prefix + "wsm", row, std::to_string(4000 + trials[i].wetSoil));
        bench.Put(table, prefix + "wm", row, "4000");
    }
}

/// What plotting posts and Save keeps.
inline void PutPeak(BatchBench& bench, const std::string& omc, const std::string& mdd)
{
    bench.PutAll("STDSOIL", "std_omc", omc);
    bench.PutAll("STDSOIL", "std_mdd", mdd);
    bench.Put("SUMMARY", "sum_omcS", 1, omc);
    bench.Put("SUMMARY", "sum_mddS", 1, mdd);
}

/// One hole of 2.00 g/cm³: 1500 g of sand in the cone; 1400 g of sand fill the calibration mold of 1000 cm³, so 1.40
/// g/cm³; 6000 - 3100 - 1500 = 1400 g fill the hole, so 1000 cm³; 2200 g of wet soil came out of it, 2.20 g/cm³; 20 g
/// of water in 200 g of dry soil are 10 %, so 2.00 g/cm³ dry. Against an MDD of 2.00 that is 100 %, against 2.50 it is
/// 80 %.
inline void PutDensity(BatchBench& bench, const std::string& mdd, const std::string& percent)
{
    constexpr std::pair<const char*, const char*> kReadings[]{
        {"den_imsjc", "3000"}, {"den_fmsjc", "1500"}, {"den_dia", "10"},    {"den_height", "12.7324"},
        {"den_mem", "5000"},   {"den_mms", "6400"},   {"den_mmsp", "2300"}, {"den_mp", "100"},
        {"den_imsj", "6000"},  {"den_fmsj", "3100"},  {"den_mwsc", "230"},  {"den_mdsc", "210"},
        {"den_mc", "10"},
    };
    for (const auto& [column, text] : kReadings) bench.Put("DENSOIL", column, 1, text);
    bench.Put("DENSOIL", "den_mdd", 1, mdd);
    bench.PutAll("DENSOIL", "den_comp", "Std");
    bench.Put("SUMMARY", "sum_compaction", 1, percent);
}

}  // namespace terravane::support
