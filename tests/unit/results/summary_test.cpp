// The overall results on the screen: what stands where, as it was posted, and the marks behind it.
#include <gtest/gtest.h>

#include "support/results_bench.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

using support::ResultsBench;

constexpr int kGravel = 6, kFine = 8, kCbr = 16, kLast = 17;
constexpr int kSoil = 2, kCrush = 3;

std::vector<std::string> ColumnOf(const TextGrid& grid, int column)
{
    std::vector<std::string> texts;
    for (int row = 0; row < grid.Rows(); ++row) texts.push_back(grid(row, column));
    return texts;
}

TEST(OverallResults, ListsTheTestsAndTheirProperties)
{
    ResultsBench bench;
    const TextGrid& grid = bench.Open().mshSum;
    EXPECT_EQ(grid.Columns(), 4);
    EXPECT_EQ(grid.HeadRows(), 2);
    const std::vector<std::string> tests{
        "List of Testing",          "List of Testing",           "Atterberg Limits",    "Atterberg Limits",
        "Atterberg Limits",         "Atterberg Limits",          "Sieve Analysis",      "Sieve Analysis",
        "Sieve Analysis",           "Soil Classification",       "Soil Classification", "Specific Gravity",
        "Standard Compaction",      "Standard Compaction",       "Modified Compaction", "Modified Compaction",
        "California Bearing Ratio", "Field Density by Sand Cone"};
    const std::vector<std::string> properties{
        "Properties",        "Properties",         "LL (%)",  "PL (%)",     "PI (%)",  "FI",      "Gravel Fraction (%)",
        "Sand Fraction (%)", "Fine Fraction  (%)", "USCS",    "AASHTO",     "Avg. Gs", "OMC (%)", "MDD (g/cm^3)",
        "OMC (%)",           "MDD (g/cm^3)",       "CBR (%)", "Avg. PC (%)"};
    EXPECT_EQ(ColumnOf(grid, 0), tests);
    EXPECT_EQ(ColumnOf(grid, 1), properties);
    EXPECT_EQ(grid(0, kSoil), "Values");
    EXPECT_EQ(grid(0, kCrush), "Values");
    EXPECT_EQ(grid(1, kSoil), "Soil");
    EXPECT_EQ(grid(1, kCrush), "Crushed Rock");
}

TEST(OverallResults, HeadsAndGroupsStandAsOneCell)
{
    ResultsBench bench;
    const TextGrid& grid = bench.Open().mshSum;
    EXPECT_EQ(grid.AreaOf(0, 0), (CellArea{0, 0, 2, 1}));
    EXPECT_EQ(grid.AreaOf(0, 1), (CellArea{0, 1, 2, 1}));
    EXPECT_EQ(grid.AreaOf(0, 2), (CellArea{0, 2, 1, 2}));
    EXPECT_EQ(grid.AreaOf(3, 0), (CellArea{2, 0, 4, 1})) << "the four Atterberg limits";
    EXPECT_EQ(grid.AreaOf(7, 0), (CellArea{6, 0, 3, 1})) << "the three fractions";
    EXPECT_EQ(grid.AreaOf(12, 1), (CellArea{12, 1, 1, 1})) << "OMC of both compactions stay apart";
    EXPECT_EQ(grid.AreaOf(5, kSoil), (CellArea{5, kSoil, 1, 1})) << "values never merge, though all are blank";
}

TEST(OverallResults, ColumnsHaveTheirWidths)
{
    ResultsBench bench;
    const TextGrid& grid = bench.Open().mshSum;
    EXPECT_EQ(grid.ColumnWidth(0), 2200);
    EXPECT_EQ(grid.ColumnWidth(1), 1700);
    EXPECT_GT(grid.ColumnWidth(2), 1700);
    EXPECT_EQ(grid.ColumnWidth(2), grid.ColumnWidth(3));
}

TEST(OverallResults, NewProjectShowsThreeBlanksAndNoMark)
{
    ResultsBench bench;
    const frmSummary& form = bench.Open();
    for (int row = 2; row <= kLast; ++row) {
        EXPECT_EQ(form.mshSum(row, kSoil), "   ") << "row " << row;
        EXPECT_EQ(form.mshSum(row, kCrush), "   ") << "row " << row;
    }
    EXPECT_EQ(form.txtProject.Text(), "   ");
    EXPECT_EQ(form.txtLocation.Text(), "   ");
}

TEST(OverallResults, TellTheJobTheyAreOf)
{
    ResultsBench bench;
    bench.Change("UPDATE HEAD Set project_name ='ถนนสาย ก-ข',  project_location ='จ.น่าน'");
    const frmSummary& form = bench.Open();
    EXPECT_EQ(form.Caption(), "Overall Report");
    EXPECT_EQ(form.fraResults.Caption(), "Overall Testing Results ");
    EXPECT_EQ(form.txtProject.Text(), "ถนนสาย ก-ข");
    EXPECT_EQ(form.txtLocation.Text(), "จ.น่าน");
}

// Each column of SUMMARY gets its own name as its value, for soil; rock gets it in capitals of another kind: "R"
// before.
TEST(OverallResults, EveryPostedColumnHasItsRow)
{
    ResultsBench bench;
    const std::vector<std::string> columns{"LL",     "PL", "PI",   "swelling", "gravel", "sand", "finer", "USCS",
                                           "AASHTO", "Gs", "omcS", "mddS",     "omcM",   "mddM", "CBR",   "compaction"};
    for (const std::string& column : columns) {
        bench.Post("sum_" + column, column, 1);
        bench.Post("sum_" + column, "R" + column.substr(0, 9), 2);
    }
    const frmSummary& form = bench.Open();
    for (std::size_t line = 0; line < columns.size(); ++line) {
        const int row = static_cast<int>(line) + 2;
        EXPECT_EQ(form.mshSum(row, kSoil), columns[line]);
        EXPECT_EQ(form.mshSum(row, kCrush), "R" + columns[line].substr(0, 9));
    }
}

// 12.34 is nearer to 12.3; 12.35 lies half-way and goes away from zero; the posted blank before the figure goes too.
TEST(OverallResults, FractionsShowOneDecimal)
{
    ResultsBench bench;
    bench.Post("sum_gravel", "12.34");
    bench.Post("sum_sand", " 12.35");
    bench.Post("sum_finer", " .5");
    const frmSummary& form = bench.Open();
    EXPECT_EQ(form.mshSum(6, kSoil), "12.3");
    EXPECT_EQ(form.mshSum(7, kSoil), "12.4");
    EXPECT_EQ(form.mshSum(8, kSoil), "0.5");
}

TEST(OverallResults, OtherFiguresStandAsPosted)
{
    ResultsBench bench;
    bench.Post("sum_LL", "25.014");
    bench.Post("sum_compaction", " 97.416667");
    bench.Post("sum_CBR", "/");
    const frmSummary& form = bench.Open();
    EXPECT_EQ(form.mshSum(2, kSoil), "25.014");
    EXPECT_EQ(form.mshSum(17, kSoil), " 97.416667");
    EXPECT_EQ(form.mshSum(16, kSoil), "/");
}

TEST(OverallResults, WetSieveIsMarkedBehindItsFractions)
{
    ResultsBench bench;
    bench.Change("UPDATE SIESOIL Set sie_pwash =' 1 '");
    bench.Post("sum_gravel", "12.34");
    bench.Post("sum_finer", "7");
    const frmSummary& form = bench.Open();
    EXPECT_EQ(form.mshSum(6, kSoil), "12.3*");
    EXPECT_EQ(form.mshSum(7, kSoil), "   ") << "A fraction that was never posted bears no mark.";
    EXPECT_EQ(form.mshSum(8, kSoil), "7.0*");
    for (int row = kGravel; row <= kFine; ++row)
        EXPECT_EQ(form.mshSum(row, kCrush), "   ") << "The rock is another sieve.";
    EXPECT_EQ(form.mshSum(9, kSoil), "   ");
}

TEST(OverallResults, EachMaterialHasItsOwnSieve)
{
    ResultsBench bench;
    bench.Change("UPDATE SIECRUSH Set sie_pwash ='1'");
    bench.Change("UPDATE SIESOIL Set sie_pwash ='0'");
    bench.Post("sum_gravel", " 40", 1);
    bench.Post("sum_gravel", " 60", 2);
    const frmSummary& form = bench.Open();
    EXPECT_EQ(form.mshSum(6, kSoil), "40.0") << "A dry sieve bears no mark.";
    EXPECT_EQ(form.mshSum(6, kCrush), "60.0*");
}

TEST(OverallResults, UnsoakedCbrIsMarkedAlsoWithoutAResult)
{
    ResultsBench bench;
    bench.Change("UPDATE CBRSOIL Set cbr_typ ='0'");
    bench.Change("UPDATE CBRCRUSH Set cbr_typ ='0'");
    bench.Post("sum_CBR", "88.9", 2);
    const frmSummary& form = bench.Open();
    EXPECT_EQ(form.mshSum(kCbr, kSoil), "   *") << "Saved, not calculated: the blanks and the mark.";
    EXPECT_EQ(form.mshSum(kCbr, kCrush), "88.9*");
}

TEST(OverallResults, SoakedCbrAndBothWaysBearNoMark)
{
    ResultsBench bench;
    bench.Change("UPDATE CBRSOIL Set cbr_typ ='1'");
    bench.Change("UPDATE CBRCRUSH Set cbr_typ ='2'");
    bench.Post("sum_CBR", "6.8", 1);
    bench.Post("sum_CBR", "88.9", 2);
    const frmSummary& form = bench.Open();
    EXPECT_EQ(form.mshSum(kCbr, kSoil), "6.8");
    EXPECT_EQ(form.mshSum(kCbr, kCrush), "88.9");
}

TEST(OverallResults, TheFirstRowTellsTheWayOfTesting)
{
    ResultsBench bench;
    bench.Change("UPDATE CBRSOIL Set cbr_typ ='0' Where cbr_ID =' 2'");
    EXPECT_EQ(bench.Open().mshSum(kCbr, kSoil), "   ");
}

TEST(OverallResults, ComeFromTheRecentEntrysFileWhichBecomesTheProject)
{
    ResultsBench bench;
    bench.Post("sum_LL", "25.01");
    bench.program.CurrentProjectPath = "/jobs/another.mdb";
    EXPECT_EQ(bench.Open().mshSum(2, kSoil), "25.01");
    EXPECT_EQ(bench.program.CurrentProjectPath, "/jobs/TRVN_road.mdb");
}

TEST(OverallResults, EachOpeningReadsTheFileAfresh)
{
    ResultsBench bench;
    bench.Post("sum_LL", "25.01");
    bench.Open().mshSum(2, kSoil) = "typed over";
    bench.Post("sum_LL", "26.02");
    EXPECT_EQ(bench.Open().mshSum(2, kSoil), "26.02");
}

TEST(OverallResults, CloseUnloadsTheForm)
{
    ResultsBench bench;
    bench.Open().cmdClose.Press();
    EXPECT_EQ(bench.program.Loaded("frmSummary"), nullptr);
}

TEST(OverallResults, WithoutARecentPathNothingIsLeftLoaded)
{
    ResultsBench bench;
    bench.Recent("");
    EXPECT_NE(ErrorOf([&] { bench.Open(); }), 0);
    EXPECT_EQ(bench.program.Loaded("frmSummary"), nullptr);
}

TEST(OverallResults, WithoutOneOfItsTablesNothingIsLeftLoaded)
{
    ResultsBench whole;
    whole.MakeWithout("STDSOIL");
    EXPECT_EQ(ErrorOf([&] { whole.Open(); }), 0) << "A table of no concern here may be missing.";
    for (const char* table : {"HEAD", "SUMMARY", "SIESOIL", "SIECRUSH", "CBRSOIL", "CBRCRUSH"}) {
        ResultsBench bench;
        bench.MakeWithout(table);
        EXPECT_NE(ErrorOf([&] { bench.Open(); }), 0) << table;
        EXPECT_EQ(bench.program.Loaded("frmSummary"), nullptr) << table;
    }
}

}  // namespace
}  // namespace terravane
