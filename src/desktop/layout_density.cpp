// The field density sheet, in the order of the work: the sand, the hole and its soil, the water content and the result.
#include "desktop/layouts.h"

namespace terravane {

using namespace layout;

namespace {

/// A short grid beside a long one ends with its rows.
Place Short(std::string_view frame, std::string_view grid)
{
    return Column({Group(frame, {One(grid)}), Space()}, 1);
}

Place SandTab()
{
    return Row({Short("FraWsand", "MSHWsand"), Group("FraDsand", {One("MSHDsand", 1)}, 1)});
}

Place HoleTab()
{
    return Row({Short("FraWsoil", "MSHWsoil"), Group("fraVolume", {One("MSHVolume", 1)}, 1)});
}

/// The compaction test is chosen after the water contents: only holes that have one take its maximum density.
Place CompactionTab()
{
    return Column({
        Row({Group("fraWater", {One("MSHWater", 1)}, 1),
             Column({Row({One("optStd"), One("optMod"), Space()}), Group("fraSummary", {One("MSHSummary", 1)}, 1)}, 1)},
            1),
        Row({Space(), One("cmdCal"), One("cmdView")}),
    });
}

}  // namespace

Place DensityLayout()
{
    return Column(
        {Banner("txtLabName"), GeneralData("txtPosition"), Tabs("SSTData", {SandTab(), HoleTab(), CompactionTab()})});
}

}  // namespace terravane
