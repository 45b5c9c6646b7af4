// What stands in SUMMARY is what the sheet shows, in the material's own row, and nothing else is touched.
#include <set>

#include "properties/every_case.h"

namespace terravane::support {
namespace {

class PostedResults : public EverySheet {};
INSTANTIATE_TEST_SUITE_P(Sheets, PostedResults, AllCases(), NameOf);

std::string PlaceOf(const SheetBench& bench, std::string_view column)
{
    return "SUMMARY(" + std::to_string(bench.TheMaterial().summaryRow) + "," + std::string(column) + ")";
}

std::string ShownText(const SheetBench& bench, const Posting& posting)
{
    const Control* control = bench.Sheet().Find(posting.control);
    if (const auto* grid = dynamic_cast<const TextGrid*>(control)) return (*grid)(posting.row, posting.cell);
    return control->Text();
}

std::string BoxOf(const SheetBench& bench, std::string_view box)
{
    return bench.Sheet().Get<TextControl>(box).Text();
}

std::string TwoDecimals(double number)
{
    return Format(number, "0.00");
}

/// Percentages of the coarse parts by the boxes of the sieves; the classes beside them are posted as they stand.
void ExpectFractions(const SheetBench& bench, Texts& expected)
{
    const double p4 = Val(BoxOf(bench, "txtP4")), p200 = Val(BoxOf(bench, "txtP200"));
    expected[PlaceOf(bench, "sum_gravel")] = SignedNumberText(Val(TwoDecimals(100 - p4)));
    expected[PlaceOf(bench, "sum_sand")] = SignedNumberText(Val(TwoDecimals(p4 - p200)));
    expected[PlaceOf(bench, "sum_finer")] = SignedNumberText(p200);
}

/// The mean of the percentages under the maximum densities, up to the first hole without one.
void ExpectMeanCompaction(const SheetBench& bench, Texts& expected)
{
    const auto& grid = bench.Sheet().Get<TextGrid>("MSHSummary");
    double sum = 0;
    int holes = 0;
    while (holes < field::kColumns && Val(grid(field::summary::MaximumDensity, holes + 1)) != 0)
        sum += Val(grid(field::summary::Compaction, ++holes));
    const auto mean = static_cast<float>(Val(TwoDecimals(sum / holes)));
    expected[PlaceOf(bench, "sum_compaction")] = SignedNumberText(mean);
}

/// With three molds the value read at the share of the maximum density, with one the higher of its two ratios.
void ExpectBearingRatio(const SheetBench& bench, std::string_view command, Texts& expected)
{
    const auto& ratios = bench.Sheet().Get<TextGrid>("mshLPC");
    const std::string at01 = ratios(cbr::result::At01, 1), at02 = ratios(cbr::result::At02, 1);
    if (command == "cmdCBR") {
        expected[PlaceOf(bench, "sum_CBR")] = BoxOf(bench, "txtCBR");
    } else if (!bench.Sheet().SSTData.TabEnabled(cbr::kValueTab)) {
        expected[PlaceOf(bench, "sum_CBR")] = Val(at02) > Val(at01) ? at02 : at01;
    }
}

void Expect(const SheetBench& bench, std::string_view command, Texts& expected)
{
    for (const Posting& posting : bench.Table().posts)
        if (posting.command == command) expected[PlaceOf(bench, posting.column)] = ShownText(bench, posting);
    if (command == "cmdClass") ExpectFractions(bench, expected);
    if (bench.Table().test == Test::DenSoil && command == "cmdCal") ExpectMeanCompaction(bench, expected);
    if (command == "cmdLPen" || command == "cmdCBR") ExpectBearingRatio(bench, command, expected);
}

/// The columns that a command may post.
std::set<std::string_view> Columns(const SheetUnderTest& sheet)
{
    if (sheet.test == Test::DenSoil) return {"sum_compaction"};
    if (sheet.test == Test::CBRSoil) return {"sum_CBR"};
    std::set<std::string_view> columns;
    for (const Posting& posting : sheet.posts) columns.insert(posting.column);
    if (sheet.test == Test::SieSoil) columns.insert({"sum_gravel", "sum_sand", "sum_finer"});
    return columns;
}

TEST_P(PostedResults, AreTheTextsOnTheSheet)
{
    auto missing = Columns(*GetParam().sheet);
    TryAll([&missing](SheetBench& bench, RandomReadings& hand) {
        const Plan plan = bench.PlanOf(hand);
        bench.Choose(plan);
        bench.Fill(hand);
        bench.Fetch(plan);
        for (const SheetPress& command : bench.Table().commands) {
            const Texts before = bench.Stored("SUMMARY"), readings = bench.StoredReadings();
            Texts expected = before;
            const bool can = bench.CanPress(command), done = bench.Press(command);
            if (can && done) Expect(bench, command.button, expected);
            const Texts after = bench.Stored("SUMMARY");
            EXPECT_EQ(Differences(expected, after), "") << command.button;
            EXPECT_EQ(Differences(readings, bench.StoredReadings()), "") << command.button << " is no Save.";
            std::erase_if(missing, [&](auto column) {
                return before.at(PlaceOf(bench, column)) != after.at(PlaceOf(bench, column));
            });
        }
    });
    EXPECT_TRUE(missing.empty()) << *missing.begin() << " was never posted: the readings prove nothing.";
}

}  // namespace
}  // namespace terravane::support
