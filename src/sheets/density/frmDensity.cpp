#include "sheets/density/frmDensity.h"

#include <array>
#include <string>

#include "runtime/numbers.h"
#include "sheets/pattern/grids.h"

namespace terravane {

namespace {

using namespace field;

constexpr double kTitleWidth = 3000;  // twips, of the grids' titles

constexpr CellRange kConeWeighings{cone::Initial, cone::Final, 1, kColumns};
constexpr CellRange kSandMeasures{sand::Diameter, sand::MouldAndSand, 1, kColumns};
constexpr CellRange kSoilWeighings{soil::WetAndPan, soil::Pan, 1, kColumns};
constexpr CellRange kWaterWeighings{water::WetAndCan, water::Can, 1, kColumns};
constexpr CellRange kHoleWeighings{volume::Initial, volume::Final, 1, kColumns};
constexpr CellRange kMaximumDensities{summary::MaximumDensity, summary::MaximumDensity, 1, kColumns};

/// The way that Enter takes.
constexpr std::array<std::string_view, 8> kWay{"txtClient",   "txtID",   "txtProject", "txtLocation",
                                               "txtPosition", "txtSoil", "cboTest",    "cboCheck"};

/// The titles of the rows; those from `firstCalculated` on are worked out.
void BuildGrid(TextGrid& grid, const std::vector<std::string_view>& titles, int firstCalculated)
{
    grid.SetRowTitles(titles);
    grid.SetColumnTitles({titles.front(), "1 ", "2 ", "3", "4 ", "5 ", "6 "});
    grid.SetColumnWidth(0, kTitleWidth);
    MarkCalculatedFrom(grid, firstCalculated);
}

}  // namespace

frmDensity::frmDensity(Program& owner)
    : TestSheet(owner, "frmDensity", "Field Density Test",
                {"Calibration of Sand", "Soil and Volume of Hole", "Water Content and Compaction"}),
      txtData(*this, "txtData", MSHWsand, [] { return kConeWeighings; }),
      txtData1(*this, "txtData1", MSHDsand, [] { return kSandMeasures; }),
      txtData2(*this, "txtData2", MSHWsoil, [] { return kSoilWeighings; }),
      txtData3(*this, "txtData3", MSHWater, [] { return kWaterWeighings; }),
      txtData4(*this, "txtData4", MSHVolume, [] { return kHoleWeighings; }),
      txtData5(*this, "txtData5", MSHSummary, [] { return kMaximumDensities; })
{
    ChainFocus(kWay);
}

void frmDensity::Form_Load()
{
    BuildGrids();
    TestSheet::Form_Load();
}

void frmDensity::BuildGrids()
{
    BuildGrid(MSHWsand,
              {"Determination no.  ", "Initial Mass of Sand + Jar + Cone, (g)", "Final Mass of Sand + Jar + Cone, (g)",
               "Mass of Sand in Cone, (g)", "Average, (g)"},
              cone::SandInCone);
    BuildGrid(MSHDsand,
              {"Determination no. ", "Diameter of Mold, (cm)  ", "Height of Mold, (cm)  ",
               "Mass of Empty Mold + Baseplate, (g) ", "Mass of Mold + Sand + Baseplate, (g) ", "Mass of Sand, (g) ",
               "Volume of Mold, (cm^3) ", "Density of Sand, (g/cm^3)"},
              sand::Sand);
    BuildGrid(MSHWsoil, {"Test Hole no.  ", "Mass of Wet Soil + Pan, (g)", "Mass of Pan, (g)", "Mass of Wet Soil, (g)"},
              soil::WetSoil);
    BuildGrid(MSHWater,
              {"Test Hole no.  ", "Mass of Wet Soil + Can, (g)", "Mass of Dry Soil + Can, (g)", "Mass of Can, (g)",
               "Mass of Water, (g)", "Mass of Dry Soil, (g)", "Water Content, (%)"},
              water::Water);
    BuildGrid(MSHVolume,
              {"Test Hole no.", "Initial Mass of Sand + Jar + Cone, (g)", "Final Mass of Sand + Jar + Cone, (g)",
               "Mass of Sand in Cone, (g)", "Mass of Sand in Hole, (g)", "Density of Sand, (g/cm^3)",
               "Volume of Hole, (cm^3)"},
              volume::SandInCone);
    BuildGrid(MSHSummary,
              {"Test Hole no.", "MDD from Compation Test, (g/cm^3)", "Wet Density in Field, (g/cm^3)",
               "Dry Density in Field, (g/cm^3)", "Percent Compaction, (%)"},
              summary::WetDensity);
}

void frmDensity::optStd_Click()
{
    FetchMaximumDensity(Test::StdSoil, "Standard");
}

void frmDensity::optMod_Click()
{
    FetchMaximumDensity(Test::ModSoil, "Modified");
}

void frmDensity::FetchMaximumDensity(Test test, std::string_view name)
{
    fraSummary.SetCaption("Summary (Percent Compaction for " + std::string(name) + " Compaction)");
    const std::string& stored = ResultsOf(test)["mdd"];
    for (int hole = 1; hole <= kColumns; ++hole)
        if (Val(MSHWater(water::WetAndCan, hole)) != 0) MSHSummary(summary::MaximumDensity, hole) = stored;
}

}  // namespace terravane
