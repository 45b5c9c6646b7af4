// New files as they are born, read back from the bytes that reached the disk.
#include "store/new_stores.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "jet/database.h"
#include "jet/engine_error.h"
#include "runtime/memory_file_system.h"
#include "store/brand_pictures.h"
#include "store/schema.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

constexpr const char* kNewFile = "/lab/TRVN_road.mdb";

struct NewStores : testing::Test {
    MemoryFileSystem files;
    NewStores() { files.MakeFolders("/lab/"); }

    jet::Database Opened(const std::string& path) const { return jet::Database::FromBytes(files.Content(path)); }
};

TEST_F(NewStores, HoldTheTablesInTheOrderOfCreationWithTheirRows)
{
    CreateProjectFile(files, kNewFile);
    const auto project = Opened(kNewFile);
    const auto listed = ProjectTables();
    const auto names = project.TableNames();
    ASSERT_EQ(names.size(), listed.size());
    for (std::size_t i = 0; i < listed.size(); ++i) {
        EXPECT_EQ(names[i], listed[i].name);
        EXPECT_EQ(project.ReadRows(listed[i].name).rows.size(), static_cast<std::size_t>(listed[i].rows)) << names[i];
    }
}

TEST_F(NewStores, HoldKeysAndThreeBlanksEverywhereElse)
{
    CreateProjectFile(files, kNewFile);
    const auto project = Opened(kNewFile);
    EXPECT_EQ(project.ReadRows("STDSOIL").rows[2][0], " 3");
    for (const TableSchema& table : ProjectTables()) {
        const auto rows = project.ReadRows(table.name).rows;
        for (std::size_t row = 0; row < rows.size(); ++row) {
            ASSERT_EQ(rows[row].size(), table.columns.size());
            for (std::size_t column = 0; column < rows[row].size(); ++column) {
                const std::string right =
                    table.keyed && column == 0 ? " " + std::to_string(row + 1) : std::string("   ");
                EXPECT_EQ(rows[row][column], right) << table.name << " row " << row + 1 << " column " << column + 1;
            }
        }
    }
}

TEST_F(NewStores, HaveTheirColumnsInTheFileAsTheyAreListed)
{
    CreateProjectFile(files, kNewFile);
    const auto project = Opened(kNewFile);
    EXPECT_EQ(project.ReadRows("HEAD").columns,
              (std::vector<std::string>{"project_client", "project_name", "project_location", "project_number"}));
    for (const TableSchema& table : ProjectTables()) {
        const auto names = project.ReadRows(table.name).columns;
        ASSERT_EQ(names.size(), table.columns.size()) << table.name;
        for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(names[i], table.ColumnName(table.columns[i].suffix));
    }
}

TEST_F(NewStores, DoNotTouchAFileThatExists)
{
    files.Put(kNewFile, "something else");
    EXPECT_EQ(ErrorOf([&] { CreateProjectFile(files, kNewFile); }), jet::engine::kDatabaseExists);
    EXPECT_EQ(ErrorOf([&] { CreateBrandStore(files, kNewFile); }), jet::engine::kDatabaseExists);
    const Bytes kept = files.Content(kNewFile);
    EXPECT_EQ(std::string(kept.begin(), kept.end()), "something else");
}

TEST_F(NewStores, FailWhereTheFolderIsMissing)
{
    EXPECT_EQ(ErrorOf([&] { CreateProjectFile(files, "/nowhere/TRVN_x.mdb"); }), jet::engine::kPathNotValid);
}

TEST_F(NewStores, LeaveNothingBehindWhereTheDiskIsFull)
{
    files.FailAtStep(1, error::kDiskFull);
    EXPECT_EQ(ErrorOf([&] { CreateProjectFile(files, kNewFile); }), error::kDiskFull);
    EXPECT_TRUE(files.Paths().empty());
}

TEST_F(NewStores, HoldAnEmptyBrandForTheLaboratory)
{
    CreateBrandStore(files, "/lab/logo.mdb");
    const auto brand = Opened("/lab/logo.mdb");
    const auto logo = brand.ReadRows("LOGO").rows;
    ASSERT_EQ(logo.size(), 1U);
    EXPECT_EQ(logo[0][0], " 16") << "The row counter stood behind the fifteen persons.";
    EXPECT_TRUE(std::all_of(logo[0].begin() + 1, logo[0].end(), [](const auto& text) { return text == "   "; }));
    const auto persons = brand.ReadRows("PERSON").rows;
    ASSERT_EQ(persons.size(), 15U);
    EXPECT_EQ(persons[14][0], " 15");
    EXPECT_EQ(persons[14][1], "   ");
    EXPECT_EQ(persons[14][2], "   ");
}

TEST_F(NewStores, PutTheFirstContentIntoANewBrandFolder)
{
    WriteFirstContent(files, "/lab/BrandList/");
    for (const char* name : {"logo.mdb", "ins_logo.jpg", "dep_logo.jpg", "cov_logo.jpg"}) {
        EXPECT_TRUE(files.Exists("/lab/BrandList/" + std::string(name))) << name;
    }
    for (const BrandPicture& picture : FirstBrandPictures()) {
        const Bytes stored = files.Content("/lab/BrandList/" + std::string(picture.name));
        ASSERT_GT(stored.size(), 100U) << picture.name;
        EXPECT_TRUE(stored[0] == 0xFF && stored[1] == 0xD8) << picture.name << " is a JPEG picture.";
    }
}

TEST_F(NewStores, LeaveTheLaboratorysOwnBrandAlone)
{
    files.MakeFolders("/lab/BrandList/");
    CreateBrandStore(files, "/lab/BrandList/Logo.mdb");
    files.Put("/lab/BrandList/ins_logo.jpg", "our own");
    const Bytes store = files.Content("/lab/BrandList/Logo.mdb");
    WriteFirstContent(files, "/lab/BrandList/");
    EXPECT_EQ(files.Content("/lab/BrandList/Logo.mdb"), store);
    EXPECT_FALSE(files.Exists("/lab/BrandList/logo.mdb")) << "Either spelling is the one store.";
    EXPECT_EQ(files.Content("/lab/BrandList/ins_logo.jpg").size(), 7U);
    EXPECT_TRUE(files.Exists("/lab/BrandList/dep_logo.jpg")) << "What was missing is there.";
}

struct Guide : NewStores {
    Guide()
    {
        files.MakeFolders("/lab/BrandList/");
        files.MakeFolders("/share/");
    }

    std::string AfterStart()
    {
        WriteGuide(files, "/share/UserGuide.pdf", "/lab/BrandList/");
        if (!files.Exists("/lab/BrandList/UserGuide.pdf")) return "none";
        const Bytes content = files.Content("/lab/BrandList/UserGuide.pdf");
        return {content.begin(), content.end()};
    }
};

TEST_F(Guide, ComesIntoTheBrandFolder)
{
    files.Put("/share/UserGuide.pdf", "version 1 (terravane-user-guide)");
    EXPECT_EQ(AfterStart(), "version 1 (terravane-user-guide)");
}

TEST_F(Guide, TakesThePlaceOfAnEarlierVersions)
{
    files.Put("/lab/BrandList/UserGuide.pdf", "version 1 (terravane-user-guide)");
    files.Put("/share/UserGuide.pdf", "version 2 (terravane-user-guide)");
    EXPECT_EQ(AfterStart(), "version 2 (terravane-user-guide)");
}

TEST_F(Guide, LeavesTheLaboratorysOwnInPlace)
{
    files.Put("/lab/BrandList/UserGuide.pdf", "our own, in Thai");
    files.Put("/share/UserGuide.pdf", "version 2 (terravane-user-guide)");
    EXPECT_EQ(AfterStart(), "our own, in Thai");
}

TEST_F(Guide, IsNotMissedWhereTheProgramCameWithoutOne)
{
    EXPECT_EQ(AfterStart(), "none");
}

}  // namespace
}  // namespace terravane
