// What an experienced eye looks for wherever soil is dried in a can.
#include <array>

#include "laboratory/all_tests.h"
#include "notes/figures.h"
#include "notes/rule.h"
#include "runtime/text.h"

namespace terravane::notes {

namespace on_cans {

namespace {

constexpr int kNone = -1;

/// A grid of weighings in cans, by its lines; kNone where a sheet has no such line.
struct CanGrid {
    const laboratory::Sheet* sheet;
    const laboratory::Grid* grid;
    int number, wet, dry, can, content;
};
constexpr std::array kCanGrids{
    CanGrid{&laboratory::kCompactionSheet, &laboratory::kCompactionWater, compaction::water::CanNumber,
            compaction::water::WetAndCan, compaction::water::DryAndCan, compaction::water::Can,
            compaction::water::WaterContent},
    CanGrid{&laboratory::kAtterbergSheet, &laboratory::kLiquidLimit, kNone, ll::WetAndCan, ll::DryAndCan, ll::Can,
            ll::WaterContent},
    CanGrid{&laboratory::kAtterbergSheet, &laboratory::kPlasticLimit, kNone, pl::WetAndCan, pl::DryAndCan, pl::Can,
            pl::WaterContent},
    CanGrid{&laboratory::kBearingSheet, &laboratory::kBearingWater, cbr::water::CanNumber, cbr::water::WetAndCan,
            cbr::water::DryAndCan, cbr::water::Can, cbr::water::WaterContent},
    CanGrid{&laboratory::kFieldSheet, &laboratory::kHoleWater, kNone, field::water::WetAndCan, field::water::DryAndCan,
            field::water::Can, field::water::WaterContent},
};

/// Calls `look` with each grid of cans that the sheet has.
template <class Look>
void ForEachCanGrid(const SheetReadings& read, Look look)
{
    for (const CanGrid& cans : kCanGrids)
        if (cans.sheet->form == read.Described().sheet.form) look(cans);
}

void DryNotLighter(const SheetReadings& read, Findings& found)
{
    ForEachCanGrid(read, [&](const CanGrid& cans) {
        for (const Reading& dry : read.Line(*cans.grid, cans.dry)) {
            const auto wet = read.Number(*cans.grid, cans.wet, dry.trial);
            if (wet && dry.value >= *wet) found.Add(dry.at, {Whole(dry.trial), Plain(dry.value), Plain(*wet)});
        }
    });
}

void CanNotLighter(const SheetReadings& read, Findings& found)
{
    ForEachCanGrid(read, [&](const CanGrid& cans) {
        for (const Reading& can : read.Line(*cans.grid, cans.can)) {
            const auto dry = read.Number(*cans.grid, cans.dry, can.trial);
            if (dry && can.value >= *dry) found.Add(can.at, {Whole(can.trial), Plain(can.value), Plain(*dry)});
        }
    });
}

void MoreWaterThanSoil(const SheetReadings& read, Findings& found)
{
    ForEachCanGrid(read, [&](const CanGrid& cans) {
        for (const Reading& content : read.Line(*cans.grid, cans.content))
            if (content.value > found.Limit())
                found.Add(content.at, {Whole(content.trial), Hundredths(content.value), Plain(found.Limit())});
    });
}

/// A can by its number and its tare, and where it was typed.
struct Can {
    std::string number, test;
    double tare;
    Place at = {};
};

/// The cans of the open sheet.
std::vector<Can> OwnCans(const SheetReadings& read)
{
    std::vector<Can> own;
    ForEachCanGrid(read, [&](const CanGrid& cans) {
        if (cans.number == kNone) return;
        for (const Reading& tare : read.Line(*cans.grid, cans.can)) {
            const std::string number = read.Text(*cans.grid, cans.number, tare.trial);
            if (!number.empty()) own.push_back({number, "this sheet", tare.value, tare.at});
        }
    });
    return own;
}

/// Those that the file keeps of the job's other tests. Dishes of specific gravity are numbered by themselves.
std::vector<Can> OtherCans(const SheetReadings& read)
{
    std::vector<Can> others;
    for (const laboratory::Description* test : laboratory::Tests()) {
        if (test->test == read.Described().test) continue;
        for (const CanGrid& cans : kCanGrids) {
            if (cans.sheet->form != test->sheet.form || cans.number == kNone) continue;
            const laboratory::Grid& grid = *cans.grid;
            for (int row = 1; row <= grid.count; ++row) {
                const std::string number = read.Kept(test->test, grid[cans.number].is.kept, row);
                const auto tare = read.KeptNumber(test->test, grid[cans.can].is.kept, row);
                if (!number.empty() && tare) others.push_back({number, std::string(test->names.sentence), *tare});
            }
        }
    }
    return others;
}

void TwoTares(const SheetReadings& read, Findings& found)
{
    std::vector<Can> seen = OtherCans(read);
    for (const Can& can : OwnCans(read)) {
        for (const Can& other : seen) {
            const double apart =
                RoundedToPlaces(can.tare > other.tare ? can.tare - other.tare : other.tare - can.tare, 6);
            if (!SameName(other.number, can.number) || apart <= found.Limit()) continue;
            found.Add(can.at, {can.number, Plain(can.tare), Plain(other.tare), other.test, Plain(found.Limit())});
            break;
        }
        seen.push_back(can);
    }
}

using enum Level;

constexpr Rule kRules[]{
    {"water.dry-not-lighter",
     Impossible,
     "Dry against wet soil in the same can",
     0,
     {},
     "",
     "masses",
     "Trial {}: the can with dry soil, {} g, is not lighter than with wet soil, {} g.",
     "Look for swapped masses or cans.",
     DryNotLighter},
    {"water.can-not-lighter",
     Impossible,
     "The empty can against the can with dry soil",
     0,
     {},
     "",
     "masses",
     "Trial {}: the empty can, {} g, is not lighter than with dry soil, {} g.",
     "Look for swapped masses or cans.",
     CanNotLighter},
    {"water.more-than-soil",
     Doubtful,
     "The water content",
     1,
     {100},
     "%",
     "only peat and very soft clay hold so much",
     "Trial {} holds {} % of water, more than {} %.",
     "Look for a swapped can, unless the soil is peat.",
     MoreWaterThanSoil},
    {"water.two-tares",
     Doubtful,
     "Cans of one number over the whole job",
     1,
     {0.05},
     "g",
     "a can keeps its mass",
     "Can {} weighs {} g here and {} g in {}, more than {} g apart: a can is swapped or its number wrong.",
     "Weigh the can.",
     TwoTares},
};

}  // namespace

}  // namespace on_cans

std::span<const Rule> WaterContentRules()
{
    return on_cans::kRules;
}

}  // namespace terravane::notes
