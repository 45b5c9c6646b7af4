// Which cells of each sheet can be typed, from the sheets' descriptions: those and no others take an editor.
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "sheets/atterberg/frmAtterberg.h"
#include "sheets/cbr/frmCBR.h"
#include "sheets/compaction/frmCompaction.h"
#include "sheets/density/frmDensity.h"
#include "sheets/sieve/frmSieve.h"
#include "sheets/specific/frmSpecific.h"
#include "support/laboratory.h"

namespace terravane {
namespace {

using namespace support;

using Cells = std::set<std::pair<int, int>>;  // row, column

Cells Rectangle(const std::vector<int>& rows, const std::vector<int>& columns)
{
    Cells cells;
    for (const int row : rows)
        for (const int column : columns) cells.emplace(row, column);
    return cells;
}

/// Every cell of the editor's grid is tried, and what lies one beyond.
void ExpectTyped(CellEditor& editor, const std::vector<int>& rows, const std::vector<int>& columns)
{
    Cells opened;
    for (int row = -1; row <= editor.Grid().Rows(); ++row)
        for (int column = -1; column <= editor.Grid().Columns(); ++column)
            if (editor.OpenAt(row, column)) opened.emplace(row, column);
    EXPECT_EQ(opened, Rectangle(rows, columns)) << editor.Grid().Name();
}

struct TypedCells : testing::Test {
    Laboratory lab;

    template <class Sheet>
    Sheet& Open(const std::string& name, terravane::Test test)
    {
        return lab.Open<Sheet>(name, test);
    }
};

TEST_F(TypedCells, OfCompactionAreTheWeighingsOfSixTrials)
{
    frmCompaction& sheet = lab.OpenSheet();
    ExpectTyped(sheet.txtData, {1, 2, 3, 4}, {1, 2, 3, 4, 5, 6});
    ExpectTyped(sheet.txtData1, {0, 1, 2}, {1, 2, 3, 4, 5, 6});
}

TEST_F(TypedCells, OfAtterbergAreBlowsAndWeighingsOfFiveTrials)
{
    auto& sheet = Open<frmAtterberg>("frmAtterberg", terravane::Test::AttSoil);
    ExpectTyped(sheet.txtData, {1, 2, 3, 4}, {1, 2, 3, 4, 5});
    ExpectTyped(sheet.txtData1, {1, 2, 3}, {1, 2, 3, 4, 5});
}

TEST_F(TypedCells, OfTheSieveAreTwoMassesASieve)
{
    auto& sheet = Open<frmSieve>("frmSieve", terravane::Test::SieSoil);
    ExpectTyped(sheet.txtData, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, {2, 3});
}

TEST_F(TypedCells, OfSpecificGravityAreTheReadingsAndTheTrialsWithoutTheCurvesMass)
{
    auto& sheet = Open<frmSpecific>("frmSpecific", terravane::Test::SpcSoil);
    ExpectTyped(sheet.txtData, {1, 2, 3, 4, 5, 6, 7}, {1, 2});
    ExpectTyped(sheet.txtData1, {1, 3, 4, 5, 6}, {1, 2, 3});
}

TEST_F(TypedCells, OfFieldDensityAreTheFirstRowsOfEachGrid)
{
    auto& sheet = Open<frmDensity>("frmDensity", terravane::Test::DenSoil);
    const std::vector<int> holes{1, 2, 3, 4, 5, 6};
    ExpectTyped(sheet.txtData, {1, 2}, holes);
    ExpectTyped(sheet.txtData1, {1, 2, 3, 4}, holes);
    ExpectTyped(sheet.txtData2, {1, 2}, holes);
    ExpectTyped(sheet.txtData3, {1, 2, 3}, holes);
    ExpectTyped(sheet.txtData4, {1, 2}, holes);
    ExpectTyped(sheet.txtData5, {1}, holes);
}

TEST_F(TypedCells, OfTheBearingRatioAreCansMoldsTimesAndDials)
{
    auto& sheet = Open<frmCBR>("frmCBR", terravane::Test::CBRSoil);
    sheet.optSoak.Choose();
    ExpectTyped(sheet.txtData, {1, 2, 3, 4}, {1, 2, 3, 4, 5, 6});
    ExpectTyped(sheet.txtData1, {2, 3, 4, 5, 6}, {1, 2, 3, 4, 5, 6});
    ExpectTyped(sheet.txtData2, {3, 4, 5, 6, 7}, {1, 3, 5, 7});
    ExpectTyped(sheet.txtData3, {0}, {0, 1, 4, 7});
    sheet.cmdPen.Press();
    ExpectTyped(sheet.txtData3, {0, 1, 2, 3, 4, 5, 6, 7, 8}, {0, 1, 4, 7});
}

}  // namespace
}  // namespace terravane
