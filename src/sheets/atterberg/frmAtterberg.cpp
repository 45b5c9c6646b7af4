#include "sheets/atterberg/frmAtterberg.h"

#include "sheets/pattern/grids.h"
#include "sheets/pattern/plot.h"
#include "store/statements.h"

namespace terravane {

namespace {

constexpr double kTitleWidth = 2500;  // twips, of the grids' titles
constexpr CellRange kLiquidReadings{ll::Blows, ll::Can, 1, kLimitTrials};
constexpr CellRange kPlasticReadings{pl::WetAndCan, pl::Can, 1, kLimitTrials};
constexpr double kEquationSize = 12;  // points

void DrawEquation(PictureBox& picture, std::string_view text)
{
    picture.Cls();
    SetFont(picture, kAxisFont, kEquationSize);
    PrintAt(picture, 100, (picture.Height - picture.TextHeight(text)) / 2, text);
    picture.Changed();
}

}  // namespace

frmAtterberg::frmAtterberg(Program& owner)
    : TestSheet(owner, "frmAtterberg", "Atterberg Limits Test", {"Data Monitor Determination", "Flow Curve"}),
      txtData(*this, "txtData", MSHLL, [] { return kLiquidReadings; }),
      txtData1(*this, "txtData1", MSHPL, [] { return kPlasticReadings; })
{
    WireEvents();
    ChainFocus(kHeadBlockWay);
}

void frmAtterberg::WireEvents()
{
    cmdPlot.Click = [this] { cmdPlot_Click(); };
    OpenByMouse(txtData);
    OpenByMouse(txtData1);
}

void frmAtterberg::Form_Load()
{
    BuildGrids();
    DrawEquations();
    DrawAxes();
    cmdPlot.SetEnabled(false);
    SSTData.SetTabEnabled(1, false);
    TestSheet::Form_Load();
}

void frmAtterberg::BuildGrids()
{
    MSHLL.SetRowTitles({"Test No. ", "Number of Blows ", "Mass of can + wet soil, (g) ", "Mass of can + dry soil, (g) ",
                        "Mass of can, (g) ", "Mass of water, (g) ", "Mass of dry soil, (g) ", "Water content, (%)"});
    MSHPL.SetRowTitles({"Test No. ", "Mass of can + wet soil, (g) ", "Mass of can + dry soil, (g) ",
                        "Mass of can, (g) ", "Mass of water, (g) ", "Mass of dry soil, (g) ", "Water content, (%)",
                        "Plastic Limit, (%)", "Average Plastic Limit, (%)"});
    for (TextGrid* grid : {&MSHLL, &MSHPL}) {
        grid->SetColumnTitles({"Test No. ", "1 ", "2 ", "3 ", "4 ", "5 "});
        grid->SetColumnWidth(0, kTitleWidth);
    }
    MarkCalculatedFrom(MSHLL, ll::Water);
    MarkCalculatedFrom(MSHPL, pl::Water);
}

void frmAtterberg::DrawEquations()
{
    DrawEquation(picPI, "PI = LL - PL");
    DrawEquation(picFI, "FI = (w1 - w2) / log (N2 / N1)");
}

/// The flow index goes to the summary's column of that name; no swelling is measured here.
void frmAtterberg::PostLimits()
{
    PostSummary(
        program,
        {{"sum_LL", txtLL.Text()}, {"sum_PL", txtPL.Text()}, {"sum_PI", txtPI.Text()}, {"sum_swelling", txtFI.Text()}});
}

}  // namespace terravane
