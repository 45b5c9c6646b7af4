/// The field density sheet, by the sand cone: the sand is calibrated for its mass in the cone and its density, the
/// sand that fills a hole gives the hole's volume, and the soil from the hole its density, in percent of the maximum
/// of the project's compaction test. Up to six holes. Masses in g, lengths in cm, volumes in cm³, densities in g/cm³.
#pragma once

#include <string_view>

#include "controls/text_grid.h"
#include "laboratory/field_density.h"
#include "sheets/pattern/grids.h"
#include "sheets/pattern/test_sheet.h"

namespace terravane {

struct frmDensity : TestSheet {
    explicit frmDensity(Program& program);

    TextBox txtPosition{*this, laboratory::kPosition};

    Frame FraWsand{*this, "FraWsand", laboratory::kSandInCone.frame};
    TextGrid MSHWsand{*this,
                      laboratory::kSandInCone.control,
                      laboratory::kSandInCone.Rows(),
                      laboratory::kSandInCone.Columns(),
                      {.MouseDown = OpensByMouse(txtData)}};
    Frame FraDsand{*this, "FraDsand", laboratory::kSandDensity.frame};
    TextGrid MSHDsand{*this,
                      laboratory::kSandDensity.control,
                      laboratory::kSandDensity.Rows(),
                      laboratory::kSandDensity.Columns(),
                      {.MouseDown = OpensByMouse(txtData1)}};
    Frame FraWsoil{*this, "FraWsoil", laboratory::kHoleSoil.frame};
    TextGrid MSHWsoil{*this,
                      laboratory::kHoleSoil.control,
                      laboratory::kHoleSoil.Rows(),
                      laboratory::kHoleSoil.Columns(),
                      {.MouseDown = OpensByMouse(txtData2)}};
    Frame fraWater{*this, "fraWater", laboratory::kHoleWater.frame};
    TextGrid MSHWater{*this,
                      laboratory::kHoleWater.control,
                      laboratory::kHoleWater.Rows(),
                      laboratory::kHoleWater.Columns(),
                      {.MouseDown = OpensByMouse(txtData3)}};
    Frame fraVolume{*this, "fraVolume", laboratory::kHoleVolume.frame};
    TextGrid MSHVolume{*this,
                       laboratory::kHoleVolume.control,
                       laboratory::kHoleVolume.Rows(),
                       laboratory::kHoleVolume.Columns(),
                       {.MouseDown = OpensByMouse(txtData4)}};
    Frame fraSummary{*this, "fraSummary",
                     laboratory::kHoleSummary.frame};  // the caption names the compaction test that was chosen
    TextGrid MSHSummary{*this,
                        laboratory::kHoleSummary.control,
                        laboratory::kHoleSummary.Rows(),
                        laboratory::kHoleSummary.Columns(),
                        {.MouseDown = OpensByMouse(txtData5)}};
    CellEditor txtData;   // over MSHWsand
    CellEditor txtData1;  // over MSHDsand
    CellEditor txtData2;  // over MSHWsoil
    CellEditor txtData3;  // over MSHWater
    CellEditor txtData4;  // over MSHVolume
    CellEditor txtData5;  // over the maximum densities of MSHSummary, for a job without a compaction test of its own

    OptionButton optStd{*this, laboratory::kFieldCompactions[0], "compaction", {.Click = [this] { optStd_Click(); }}};
    OptionButton optMod{*this, laboratory::kFieldCompactions[1], "compaction", {.Click = [this] { optMod_Click(); }}};

    void Form_Load() override;

    /// The maximum dry density that Save stored with the compaction test of the same material, into the columns that
    /// have a water content. A test that was never plotted and saved leaves them blank.
    void optStd_Click();
    void optMod_Click();
    /// Calculate: from the sand to the percent compaction of each hole, and the posting of its average; each stage from
    /// the text of the one before. Error 11 or 6 where the sand has no density, a hole no volume or the first hole no
    /// maximum density; the cells before it stand and nothing is posted.
    void cmdCal_Click() override;

  private:
    void BuildGrids();
    void FetchMaximumDensity(Test test, std::string_view name);

    void SandInCone();
    void SandDensity();
    void WetSoil();
    void Volumes();
    void DensitiesOf(int hole);
    float AverageCompaction();
};

}  // namespace terravane
