// What --history and --diff list.
#include "batch/history_report.h"

#include <sstream>

#include <gtest/gtest.h>

#include "journal/history.h"
#include "runtime/memory_file_system.h"
#include "runtime/runtime_error.h"
#include "store/new_stores.h"

namespace terravane {
namespace {

const std::string kProject = "/lab/TRVN_a.mdb";

/// A project with two saves in its history, on two days.
class HistoryReport : public testing::Test {
  protected:
    HistoryReport()
    {
        files_.MakeFolders("/lab/");
        CreateProjectFile(files_, kProject);
        Save("2026-11-20T09:00:00", "UPDATE STDSOIL Set std_wcanw='85.30' Where std_ID =' 1'");
        Save("2026-11-21T12:00:00", "UPDATE STDSOIL Set std_wcanw='86.00' Where std_ID =' 1'");
        Save("2026-11-21T12:05:00", "UPDATE HEAD Set Project_Client ='=A, \"B\"'");
    }

    struct Keeping : jet::SaveListener {
        HistoryKeeper& keeper;
        std::string at;

        Keeping(HistoryKeeper& of, std::string when) : keeper(of), at(std::move(when)) {}
        void FileSaved(const jet::SavedFile& saved) override { keeper.Save(saved, {at, "somchai", "1.0"}); }
    };
    void Save(const std::string& at, const std::string& statement)
    {
        Keeping keeping(keeper_, at);
        jet::Connection connection;
        connection.Open(files_, kProject, &keeping);
        connection.Execute(statement);
        connection.Flush();
    }

    std::string History(ListFormat format)
    {
        std::ostringstream out;
        EXPECT_EQ(ListHistory(files_, kProject, format, out, complaints_), 0);
        return out.str();
    }
    std::string Diff(const std::string& before, const std::string& after, ListFormat format = ListFormat::Text)
    {
        std::ostringstream out;
        EXPECT_EQ(ListDifferences(files_, before, after, format, out), 0);
        return out.str();
    }

    MemoryFileSystem files_;
    HistoryKeeper keeper_{files_};
    std::ostringstream complaints_;
};

TEST_F(HistoryReport, ListsEveryChangeInTheSheetsWords)
{
    EXPECT_EQ(History(ListFormat::Text),
              "2026-11-20 09:00:00  somchai  the history begins\n"
              "2026-11-20 09:00:00  somchai  Standard Compaction, soil: Mass of Can + Wet Soil, (g), trial 1: \"\" > "
              "\"85.30\"\n"
              "2026-11-21 12:00:00  somchai  Standard Compaction, soil: Mass of Can + Wet Soil, (g), trial 1: "
              "\"85.30\" > \"86.00\"\n"
              "2026-11-21 12:05:00  somchai  General data: Client Name: \"\" > \"=A, \"B\"\"\n");
}

TEST_F(HistoryReport, IsATableForSpreadsheetsWithoutFormulas)
{
    const std::string table = History(ListFormat::Csv);
    EXPECT_TRUE(table.starts_with("at,login,version,kind,test,material,cell,words,before,after\n")) << table;
    EXPECT_TRUE(table.ends_with(",changed,job,,txtClient,Client Name,,\"'=A, \"\"B\"\"\"\n")) << table;
}

TEST_F(HistoryReport, IsAListForPrograms)
{
    const std::string list = History(ListFormat::JsonLines);
    EXPECT_NE(list.find("\"cell\": \"MSHWt 2 1\""), std::string::npos) << list;
}

TEST_F(HistoryReport, TellsTheLinesThatDoNotFit)
{
    Bytes content = files_.Content("/lab/TRVN_a.history");
    const std::string_view mark = "85.30";
    *std::search(content.begin(), content.end(), mark.begin(), mark.end()) = '9';
    files_.Put("/lab/TRVN_a.history", content);
    std::ostringstream out;
    EXPECT_EQ(ListHistory(files_, kProject, ListFormat::Text, out, complaints_), 1);
    EXPECT_EQ(complaints_.str(), "Line 2 was changed: it does not fit its sum.\n");
}

TEST_F(HistoryReport, ComparesTwoStatesOfOneProject)
{
    const std::string change =
        "Standard Compaction, soil\n"
        "  Mass of Can + Wet Soil, (g), trial 1: \"85.30\" > \"86.00\"\n";
    EXPECT_EQ(Diff(kProject + "@2026-11-20", kProject + "@2026-11-21T12:00"), change);
    EXPECT_EQ(Diff(kProject + "@2", kProject + "@3"), change);
    EXPECT_EQ(Diff(kProject + "@4", kProject), "");
    EXPECT_THROW(Diff(kProject + "@2025", kProject), RuntimeError);
}

TEST_F(HistoryReport, ComparesTwoProjectsInTheOrderOfTheSheets)
{
    const std::string other = "/lab/TRVN_b.mdb";
    CreateProjectFile(files_, other);
    EXPECT_EQ(Diff(kProject, other),
              "General data\n"
              "  Client Name: \"=A, \"B\"\" > \"\"\n"
              "Standard Compaction, soil\n"
              "  Mass of Can + Wet Soil, (g), trial 1: \"86.00\" > \"\"\n");
    EXPECT_EQ(Diff(other, other, ListFormat::Csv), "test,material,cell,words,before,after\n");
}

}  // namespace
}  // namespace terravane
