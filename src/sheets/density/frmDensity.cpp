#include "sheets/density/frmDensity.h"

#include <array>
#include <string>

#include "runtime/numbers.h"
#include "sheets/pattern/grids.h"

namespace terravane {

namespace {

using namespace field;

/// The way that Enter takes.
constexpr std::array<std::string_view, 8> kWay{"txtClient",   "txtID",   "txtProject", "txtLocation",
                                               "txtPosition", "txtSoil", "cboTest",    "cboCheck"};

}  // namespace

frmDensity::frmDensity(Program& owner)
    : TestSheet(owner, laboratory::kFieldSheet),
      txtData(*this, "txtData", MSHWsand, TypedCellsOf(laboratory::kSandInCone)),
      txtData1(*this, "txtData1", MSHDsand, TypedCellsOf(laboratory::kSandDensity)),
      txtData2(*this, "txtData2", MSHWsoil, TypedCellsOf(laboratory::kHoleSoil)),
      txtData3(*this, "txtData3", MSHWater, TypedCellsOf(laboratory::kHoleWater)),
      txtData4(*this, "txtData4", MSHVolume, TypedCellsOf(laboratory::kHoleVolume)),
      txtData5(*this, "txtData5", MSHSummary, TypedCellsOf(laboratory::kHoleSummary))
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
    BuildGrid(MSHWsand, laboratory::kSandInCone);
    BuildGrid(MSHDsand, laboratory::kSandDensity);
    BuildGrid(MSHWsoil, laboratory::kHoleSoil);
    BuildGrid(MSHWater, laboratory::kHoleWater);
    BuildGrid(MSHVolume, laboratory::kHoleVolume);
    BuildGrid(MSHSummary, laboratory::kHoleSummary);
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
    const std::string stored = ResultsOf(test)["mdd"];
    for (int hole = 1; hole <= kColumns; ++hole)
        if (Val(MSHWater(water::WetAndCan, hole)) != 0) MSHSummary(summary::MaximumDensity, hole) = stored;
}

}  // namespace terravane
