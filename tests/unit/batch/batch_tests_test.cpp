#include "batch/batch_tests.h"

#include <algorithm>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "batch_bench.h"

namespace terravane {
namespace {

bool HasColumn(const TableSchema& table, std::string_view suffix)
{
    return std::ranges::find(table.columns, suffix, &ColumnSchema::suffix) != table.columns.end();
}

TEST(BatchTests, AllSevenStandInTheOrderInWhichTheyMustBeWorked)
{
    std::set<std::string_view> worked;
    for (const BatchTest& test : BatchTests()) {
        for (const auto needed : test.needs) EXPECT_TRUE(worked.contains(needed)) << test.key << " before " << needed;
        worked.insert(test.key);
    }
    EXPECT_EQ(worked, (std::set<std::string_view>{"att", "sie", "spc", "std", "mod", "den", "cbr"}));
}

TEST(BatchTests, EveryColumnOfSummaryButTheKeyIsPostedByOneTest)
{
    std::map<std::string, int> posted;
    for (const BatchTest& test : BatchTests())
        for (const auto column : test.posts) ++posted[std::string(column)];
    const TableSchema& summary = SummaryTable();
    for (const ColumnSchema& column : summary.columns.subspan(1))
        EXPECT_EQ(posted[summary.ColumnName(column.suffix)], 1) << column.suffix;
    EXPECT_EQ(posted.size(), summary.columns.size() - 1);
}

TEST(BatchTests, EveryColumnNamedStandsInTheTestsTable)
{
    for (const BatchTest& test : BatchTests()) {
        const TableSchema& table = TableOf(test.test, Material::Soil);
        for (const auto suffix : test.readings) EXPECT_TRUE(HasColumn(table, suffix)) << test.key << ' ' << suffix;
        for (const auto suffix : test.keeps) EXPECT_TRUE(HasColumn(table, suffix)) << test.key << ' ' << suffix;
        for (const TakenResult& taken : test.takes) EXPECT_TRUE(HasColumn(table, taken.column)) << test.key;
    }
}

TEST(HasReadings, NotInANewProjectAndNotForZerosAndHeads)
{
    support::BatchBench bench;
    for (const BatchTest& test : BatchTests())
        EXPECT_FALSE(HasReadings(bench.Texts(), test, Material::Crush)) << test.key;
    bench.Put("ATTCRUSH", "att_blows", 1, "0");
    bench.PutAll("ATTCRUSH", "att_date", "21/11/2026");
    EXPECT_FALSE(HasReadings(bench.Texts(), *FindBatchTest("att"), Material::Crush));
}

TEST(HasReadings, FromTheFirstMassOnInItsOwnMaterialOnly)
{
    support::BatchBench bench;
    bench.Put("ATTCRUSH", "att_wscan2", 4, "31.2");
    EXPECT_TRUE(HasReadings(bench.Texts(), *FindBatchTest("att"), Material::Crush));
    EXPECT_FALSE(HasReadings(bench.Texts(), *FindBatchTest("att"), Material::Soil));
}

TEST(SourceOf, AnMddComesFromTheCompactionThatTheDensityTestNames)
{
    support::BatchBench bench;
    const BatchTest& density = *FindBatchTest("den");
    const auto source = [&] { return SourceOf(density.takes[0], bench.Texts(), density, Material::Soil); };
    EXPECT_EQ(source(), nullptr);
    bench.PutAll("DENSOIL", "den_comp", "Mod");
    EXPECT_EQ(source(), FindBatchTest("mod"));
}

}  // namespace
}  // namespace terravane
