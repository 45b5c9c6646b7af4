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

TEST(BatchTests, AllStandInTheOrderInWhichTheyMustBeWorked)
{
    std::set<std::string_view> worked;
    for (const laboratory::Description* test : laboratory::TestsInWorkOrder()) {
        for (const terravane::Test needed : test->needs) {
            const std::string_view key = laboratory::Describe(needed).key;
            EXPECT_TRUE(worked.contains(key)) << test->key << " before " << key;
        }
        worked.insert(test->key);
    }
    EXPECT_EQ(worked.size(), laboratory::Tests().size()) << "None stands there twice.";
}

TEST(BatchTests, EveryColumnOfSummaryButTheKeyIsPostedByOneTest)
{
    std::map<std::string, int> posted;
    const TableSchema& summary = SummaryTable();
    for (const laboratory::Description* test : laboratory::TestsInWorkOrder())
        for (const laboratory::Posted& result : test->posts) ++posted[summary.ColumnName(result.column)];
    for (const ColumnSchema& column : summary.columns.subspan(1))
        EXPECT_EQ(posted[summary.ColumnName(column.suffix)], 1) << column.suffix;
    EXPECT_EQ(posted.size(), summary.columns.size() - 1);
}

TEST(BatchTests, WhatATestTakesStandsInItsTableAndInTheOtherOne)
{
    for (const laboratory::Description* test : laboratory::TestsInWorkOrder()) {
        for (const laboratory::Taken& taken : test->takes) {
            EXPECT_TRUE(HasColumn(TableOf(test->test, Material::Soil), taken.column)) << test->key;
            const terravane::Test source = taken.from == terravane::Test::None ? terravane::Test::StdSoil : taken.from;
            EXPECT_TRUE(HasColumn(TableOf(source, Material::Soil), taken.source)) << test->key;
        }
    }
}

TEST(HasReadings, NotInANewProjectAndNotForZerosAndHeads)
{
    support::BatchBench bench;
    for (const laboratory::Description* test : laboratory::Tests())
        EXPECT_FALSE(HasReadings(bench.Texts(), *test, Material::Crush)) << test->key;
    bench.Put("ATTCRUSH", "att_blows", 1, "0");
    bench.PutAll("ATTCRUSH", "att_date", "21/11/2026");
    EXPECT_FALSE(HasReadings(bench.Texts(), *laboratory::FindTest("att"), Material::Crush));
}

TEST(HasReadings, FromTheFirstMassOnInItsOwnMaterialOnly)
{
    support::BatchBench bench;
    bench.Put("ATTCRUSH", "att_wscan2", 4, "31.2");
    EXPECT_TRUE(HasReadings(bench.Texts(), *laboratory::FindTest("att"), Material::Crush));
    EXPECT_FALSE(HasReadings(bench.Texts(), *laboratory::FindTest("att"), Material::Soil));
}

TEST(SourceOf, AnMddComesFromTheCompactionThatTheDensityTestNames)
{
    support::BatchBench bench;
    const laboratory::Description& density = *laboratory::FindTest("den");
    const auto source = [&] { return SourceOf(density.takes[0], bench.Texts(), density, Material::Soil); };
    EXPECT_EQ(source(), nullptr);
    bench.PutAll("DENSOIL", "den_comp", "Mod");
    EXPECT_EQ(source(), laboratory::FindTest("mod"));
}

}  // namespace
}  // namespace terravane
