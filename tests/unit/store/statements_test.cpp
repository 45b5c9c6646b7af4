// The statements' texts, and what the stores do with them.
#include "store/statements.h"

#include <gtest/gtest.h>

#include "jet/engine_error.h"
#include "runtime/memory_file_system.h"
#include "store/new_stores.h"
#include "support/test_surroundings.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

constexpr const char* kPath = "/lab/TRVN_road.mdb";

struct Statements : testing::Test {
    MemoryFileSystem files;
    support::TestSurroundings ask;
    Program program{ask, files, "/lab"};

    Statements()
    {
        files.MakeFolders("/lab/BrandList/");
        CreateProjectFile(files, kPath);
        program.CurrentProjectPath = kPath;
        program.BrandFolder = program.BrandFolderNow();
    }

    const TableSchema& Trials() const { return TableOf(terravane::Test::StdSoil, Material::Soil); }

    /// The texts of a column after the command, from the disk.
    std::vector<std::string> OnDisk(const std::string& table, std::string_view column) const
    {
        std::vector<std::string> texts;
        jet::Recordset rows(jet::Database::FromBytes(files.Content(kPath)).ReadRows(table));
        for (; !rows.Eof(); rows.MoveNext()) texts.push_back(rows.Fields(column));
        return texts;
    }

    void InCommand(const std::function<void()>& command) { program.Run("test", command); }
};

TEST_F(Statements, QueryWholeTablesWithAStrayApostrophe)
{
    EXPECT_EQ(SelectAll("HEAD"), "SELECT * from HEAD'");
    EXPECT_EQ(SelectAll("STDSOIL"), "SELECT * from STDSOIL'");
    OpenProjectConnection(program);
    const jet::Recordset rows = Query(program, program.ProjectConnection, SelectAll("STDSOIL"));
    EXPECT_EQ(rows.RowCount(), 6U);
    EXPECT_EQ(rows.Fields("STD_ID"), " 1");
    EXPECT_EQ(program.CurrentSql, "SELECT * from STDSOIL'");
    EXPECT_EQ(program.CurrentRecordset.ColumnNames(), rows.ColumnNames());
}

TEST_F(Statements, RowsOfAQueryStayWhenAnotherOneIsMade)
{
    OpenProjectConnection(program);
    jet::Recordset trials = Query(program, program.ProjectConnection, SelectAll("STDSOIL"));
    trials.MoveNext();
    Query(program, program.ProjectConnection, SelectAll("ATTSOIL"));
    Execute(program, program.ProjectConnection, UpdateRow(Trials(), {{"std_mdd", "2.10"}}, 2));
    EXPECT_EQ(trials.Fields("std_ID"), " 2");
    EXPECT_EQ(trials.Fields("std_mdd"), "   ") << "as it stood when it was asked for";
}

TEST_F(Statements, UpdateTheHeadWithoutAWhere)
{
    EXPECT_EQ(UpdateHead("a", "b", "c", "d"),
              "UPDATE HEAD Set Project_Client ='a',  Project_Name ='b',  Project_Location ='c',  Project_Number = 'd'");
    InCommand([&] {
        OpenProjectConnection(program);
        Execute(program, program.ProjectConnection, UpdateHead("กรมทางหลวง", "ทางหลวงหมายเลข 4", "ชุมพร", "T-7"));
    });
    EXPECT_EQ(OnDisk("HEAD", "project_client"), std::vector<std::string>{"กรมทางหลวง"});
    EXPECT_EQ(OnDisk("HEAD", "project_name"), std::vector<std::string>{"ทางหลวงหมายเลข 4"});
    EXPECT_EQ(OnDisk("HEAD", "project_location"), std::vector<std::string>{"ชุมพร"});
    EXPECT_EQ(OnDisk("HEAD", "project_number"), std::vector<std::string>{"T-7"});
}

TEST_F(Statements, UpdateOneRowByItsKey)
{
    EXPECT_EQ(UpdateRow(Trials(), {{"std_soil", "S-1"}, {"std_can", "A1"}}, 3),
              "UPDATE STDSOIL Set std_soil ='S-1',  std_can ='A1' Where std_ID =' 3'");
    InCommand([&] {
        OpenProjectConnection(program);
        Execute(program, program.ProjectConnection, UpdateRow(Trials(), {{"std_can", "A3"}}, 3));
    });
    EXPECT_EQ(OnDisk("STDSOIL", "std_can"), (std::vector<std::string>{"   ", "   ", "A3", "   ", "   ", "   "}));
    EXPECT_EQ(OnDisk("STDCRUSH", "std_can")[2], "   ") << "The other material keeps its blanks.";
}

TEST_F(Statements, ChangeNothingInARowThatIsNotThere)
{
    const auto before = files.Content(kPath);
    InCommand([&] {
        OpenProjectConnection(program);
        Execute(program, program.ProjectConnection, UpdateRow(Trials(), {{"std_can", "A7"}}, 7));
    });
    EXPECT_TRUE(ask.errors.empty());
    EXPECT_EQ(files.Content(kPath), before);
}

TEST_F(Statements, BreakAtAnApostrophe)
{
    OpenProjectConnection(program);
    EXPECT_EQ(ErrorOf([&] {
                  Execute(program, program.ProjectConnection, UpdateRow(Trials(), {{"std_soil", "O'Hara"}}, 1));
              }),
              jet::engine::kSyntax);
}

// std_can takes five characters.
TEST_F(Statements, RefuseATextThatIsLongerThanItsColumn)
{
    OpenProjectConnection(program);
    const auto update = [&](std::string text) {
        Execute(program, program.ProjectConnection, UpdateRow(Trials(), {{"std_can", std::move(text)}}, 1));
    };
    EXPECT_EQ(ErrorOf([&] { update("12345"); }), 0);
    EXPECT_EQ(ErrorOf([&] { update("กระป5"); }), 0) << "Five Thai characters are five.";
    EXPECT_EQ(ErrorOf([&] { update("123456"); }), jet::engine::kTextTooLong);
    const std::string told = DescriptionOf([&] { update("123456"); });
    for (const char* part : {"std_can", "6", "5"}) {
        EXPECT_NE(told.find(part), std::string::npos) << "'" << told << "' does not name " << part << ".";
    }
}

TEST_F(Statements, PostResultsIntoTheMaterialsRow)
{
    InCommand([&] {
        program.CurrentMaterial = Material::Soil;
        PostSummary(program, {{"omcS", "12.3"}, {"mddS", "1.98"}});
    });
    InCommand([&] {
        program.CurrentMaterial = Material::Crush;
        PostSummary(program, {{"omcM", "6.5"}, {"mddM", "2.15"}});
    });
    EXPECT_EQ(program.CurrentSql, "UPDATE SUMMARY Set sum_omcM ='6.5',  sum_mddM ='2.15' Where sum_ID =' 2'");
    EXPECT_EQ(OnDisk("SUMMARY", "sum_omcS"), (std::vector<std::string>{"12.3", "   "}));
    EXPECT_EQ(OnDisk("SUMMARY", "sum_mddS"), (std::vector<std::string>{"1.98", "   "}));
    EXPECT_EQ(OnDisk("SUMMARY", "sum_omcM"), (std::vector<std::string>{"   ", "6.5"}));
    EXPECT_EQ(OnDisk("SUMMARY", "sum_mddM"), (std::vector<std::string>{"   ", "2.15"}));
}

TEST_F(Statements, SayWhichProjectFileIsMissing)
{
    program.CurrentProjectPath = "/lab/TRVN_gone.mdb";
    EXPECT_EQ(ErrorOf([&] { OpenProjectConnection(program); }), jet::engine::kFile);
    EXPECT_EQ(DescriptionOf([&] { OpenProjectConnection(program); }), "Could not find file '/lab/TRVN_gone.mdb'.");
}

TEST_F(Statements, FailOnAFileThatIsNoProject)
{
    files.Put("/lab/notes.mdb", "just a text");
    program.CurrentProjectPath = "/lab/notes.mdb";
    EXPECT_EQ(ErrorOf([&] { OpenProjectConnection(program); }), jet::engine::kFile);
}

TEST_F(Statements, ReachTheBrandStoreInEitherSpelling)
{
    for (const char* name : {"logo.mdb", "Logo.mdb", "LOGO.MDB"}) {
        const std::string path = program.BrandFolder + name;
        CreateBrandStore(files, path);
        OpenBrandConnection(program);
        EXPECT_EQ(program.BrandConnection.Path(), path);
        EXPECT_EQ(Query(program, program.BrandConnection, SelectAll("PERSON")).RowCount(), 15U);
        EXPECT_EQ(Query(program, program.BrandConnection, SelectAll("LOGO")).RowCount(), 1U);
        files.TakeAway(path);
    }
}

TEST_F(Statements, SayThatThereIsNoBrandStore)
{
    EXPECT_EQ(ErrorOf([&] { OpenBrandConnection(program); }), jet::engine::kFile);
    EXPECT_EQ(DescriptionOf([&] { OpenBrandConnection(program); }), "Could not find file '/lab/BrandList/Logo.mdb'.");
}

TEST_F(Statements, SayThatATableIsMissing)
{
    CreateBrandStore(files, "/lab/other.mdb");
    program.CurrentProjectPath = "/lab/other.mdb";
    OpenProjectConnection(program);
    EXPECT_EQ(ErrorOf([&] { Query(program, program.ProjectConnection, SelectAll("HEAD")); }),
              jet::engine::kNoSuchTable);
}

}  // namespace
}  // namespace terravane
