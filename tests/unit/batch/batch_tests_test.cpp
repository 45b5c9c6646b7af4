#include "batch/batch_tests.h"

#include <algorithm>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "batch_bench.h"
#include "runtime/numbers.h"

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

/// Three molds of 1.80, 1.90 and 2.00 g/cm³, dry, that bear the more the denser they are.
void PutBearing(support::BatchBench& bench)
{
    bench.PutAll("CBRSOIL", "cbr_typ", "0");
    bench.PutAll("CBRSOIL", "cbr_k", "5");
    for (int mold = 1; mold <= 3; ++mold) {
        const std::string number = std::to_string(mold);
        const std::pair<const char*, std::string> readings[]{
            {"cbr_mcan", number},  {"cbr_wcanw", "110"},
            {"cbr_wcand", "110"},  {"cbr_wcan", "10"},
            {"cbr_nb", "25"},      {"cbr_dm", "10"},
            {"cbr_hs", "12.7324"}, {"cbr_wms", std::to_string(5700 + 100 * mold)},
            {"cbr_wm", "4000"}};
        for (const auto& [column, text] : readings) bench.Put("CBRSOIL", column, mold, text);
        for (int row = 1; row <= 9; ++row) {
            bench.Put("CBRSOIL", "cbr_pen", row, std::to_string(0.025 * (row - 1)).substr(0, 5));
            bench.Put("CBRSOIL", "cbr_read" + number, row, std::to_string(4 * mold * (row - 1)));
        }
    }
}

/// The posted ratio at 95 % of the maximum density of the test that the field density sheet names.
double PostedRatio(std::string_view compaction)
{
    support::BatchBench bench;
    PutBearing(bench);
    bench.PutAll("STDSOIL", "std_mdd", "1.95");
    bench.PutAll("MODSOIL", "mod_mdd", "2.05");
    bench.PutAll("DENSOIL", "den_comp", std::string(compaction));
    bench.options.posts = true;
    EXPECT_EQ(bench.Work().failure, "");
    return Val(bench.Stored("SUMMARY", "sum_CBR"));
}

TEST(Commands, BearingRatioRefersToTheCompactionOfTheFieldDensityTest)
{
    EXPECT_GT(PostedRatio("Std"), 0);
    EXPECT_LT(PostedRatio("Std"), PostedRatio("Mod")) << "1.85 g/cm^3 against 1.95.";
    EXPECT_EQ(PostedRatio(""), PostedRatio("Mod")) << "The likelier one where none is named.";
}

}  // namespace
}  // namespace terravane
