/// The overall results as data: a line a result, in the order of the grid. The grid, its filling from SUMMARY and the
/// print walk this one table.
#pragma once

#include <array>
#include <string_view>

namespace terravane {

/// test, property  what the grid's first two columns say
/// column          of SUMMARY
/// caption         the property on the print
/// unit            behind a value on the print
/// mask            the value's format; empty: the text as it was posted
struct SummaryLine {
    std::string_view test, property;
    std::string_view column;
    std::string_view caption;
    std::string_view unit = {};
    std::string_view mask = {};
};

inline constexpr std::string_view kPercent = " %";
inline constexpr std::string_view kDensityUnit = " g/cm^3";
inline constexpr std::string_view kFractionMask = "#0.0";

/// The flow index has no unit and prints the sign of its neighbours all the same; its column bears an old name.
inline constexpr std::array kSummaryLines{
    SummaryLine{"Atterberg Limits", "LL (%)", "sum_LL", "Liquid Limit (LL)", kPercent},
    SummaryLine{"Atterberg Limits", "PL (%)", "sum_PL", "Plastic Limit (PL)", kPercent},
    SummaryLine{"Atterberg Limits", "PI (%)", "sum_PI", "Plasticity Index (PI)", kPercent},
    SummaryLine{"Atterberg Limits", "FI", "sum_swelling", "Flow Index (FI)", kPercent},
    SummaryLine{"Sieve Analysis", "Gravel Fraction (%)", "sum_gravel", "Gravel Fraction (GF)", kPercent, kFractionMask},
    SummaryLine{"Sieve Analysis", "Sand Fraction (%)", "sum_sand", "Sand Fraction (SF)", kPercent, kFractionMask},
    SummaryLine{"Sieve Analysis", "Fine Fraction  (%)", "sum_finer", "Fine Fraction (Passing #200)", kPercent,
                kFractionMask},
    SummaryLine{"Soil Classification", "USCS", "sum_USCS", "USCS"},
    SummaryLine{"Soil Classification", "AASHTO", "sum_AASHTO", "AASHTO"},
    SummaryLine{"Specific Gravity", "Avg. Gs", "sum_Gs", "Average Specific Gravity (Gs)"},
    SummaryLine{"Standard Compaction", "OMC (%)", "sum_omcS", "Optimum Moisture Content (OMC)", kPercent},
    SummaryLine{"Standard Compaction", "MDD (g/cm^3)", "sum_mddS", "Maximum Dry Density (MDD)", kDensityUnit},
    SummaryLine{"Modified Compaction", "OMC (%)", "sum_omcM", "Optimum Moisture Content (OMC)", kPercent},
    SummaryLine{"Modified Compaction", "MDD (g/cm^3)", "sum_mddM", "Maximum Dry Density (MDD)", kDensityUnit},
    SummaryLine{"California Bearing Ratio", "CBR (%)", "sum_CBR", "Percent CBR", kPercent},
    SummaryLine{"Field Density by Sand Cone", "Avg. PC (%)", "sum_compaction", "Average Percent Compaction", kPercent},
};

/// Places on the grid: two rows of heads, then a row a line; the values of a material in a column each.
namespace summary {
inline constexpr int kHeadRows = 2;
inline constexpr int kRows = kHeadRows + static_cast<int>(kSummaryLines.size());
inline constexpr int kTest = 0, kProperty = 1, kSoil = 2, kCrush = 3;
inline constexpr int kColumns = 4;

/// The line that a row from kHeadRows on shows.
constexpr const SummaryLine& LineOf(int row)
{
    return kSummaryLines[static_cast<std::size_t>(row - kHeadRows)];
}
}  // namespace summary

}  // namespace terravane
