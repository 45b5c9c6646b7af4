// Labels of a plot's axis are left out where they would stand on each other, whatever was typed.
#include <algorithm>

#include <gtest/gtest.h>

#include "sheets/specific/frmSpecific.h"
#include "support/cbr_laboratory.h"
#include "support/drawn_items.h"

namespace terravane {
namespace {

using namespace support;

struct LabelsApart : testing::Test {
    CbrLaboratory lab;
};

/// The level labels in a frame's lowest row but one: those of the axis across, below which only its title stands.
std::vector<TextItem> LabelsAcross(const PictureBox& frame, std::string_view title)
{
    std::vector<TextItem> labels;
    for (const TextItem& text : ItemsOf<TextItem>(frame.Items()))
        if (text.angle == 0 && text.text != title) labels.push_back(text);
    const auto lowest = std::ranges::max(labels, {}, &TextItem::y).y;
    std::erase_if(labels, [&](const TextItem& text) { return text.y != lowest; });
    std::ranges::sort(labels, {}, &TextItem::x);
    return labels;
}

/// No label reaches the one behind it, and enough of them are left to read the axis by.
void ExpectApart(const PictureBox& frame, std::string_view title, std::size_t atLeast)
{
    const auto labels = LabelsAcross(frame, title);
    EXPECT_GE(labels.size(), atLeast);
    for (std::size_t i = 1; i < labels.size(); ++i) {
        const TextItem &before = labels[i - 1], &label = labels[i];
        EXPECT_LE(before.x + TextWidth(before.font, before.text), label.x)
            << before.text << " stands on " << label.text;
    }
}

// 0 to 12.6 in: 127 lines 20 twips apart would be one grey field.
TEST_F(LabelsApart, WherePenetrationsWereTypedInMillimetres)
{
    frmCBR& sheet = lab.OpenCbr();
    sheet.txtK.Type("5");
    TypePenetrations(sheet, {"0", "0.5", "1", "2", "4", "6", "8", "10", "12.5"});
    TypeDials(sheet, 1, {"0", "5", "9", "15", "22", "27", "31", "34", "36"});
    sheet.cmdCal.Press();
    sheet.cmdLPen.Press();
    ExpectApart(sheet.picGraph, "Penetration, in", 6);
    const auto lines = ItemsOf<LineItem>(sheet.picgraph1.Items());
    const auto isRule = [](const LineItem& line) {
        return line.x1 == line.x2 && line.pen.colour == Colour{192, 192, 192};
    };
    EXPECT_EQ(static_cast<std::size_t>(std::ranges::count_if(lines, isRule)),
              LabelsAcross(sheet.picGraph, "Penetration, in").size());
}

TEST_F(LabelsApart, WhereEachTenthOfAnInchHasRoom)
{
    frmCBR& sheet = lab.OpenCbr();
    TypeSingleMold(sheet, kSandyDials);
    sheet.cmdCal.Press();
    sheet.cmdLPen.Press();
    ExpectApart(sheet.picGraph, "Penetration, in", 6);
}

// Densities in lb/ft³ have labels of five characters, and "125." leaves the axis no decimal.
TEST_F(LabelsApart, WhereDensitiesWereTypedInPoundsPerCubicFoot)
{
    frmCBR& sheet = lab.OpenCbr();
    for (int mold = 1; mold <= 3; ++mold) {
        sheet.mshLPC(cbr::result::DryDensity, mold) = "123." + std::to_string(2 * mold);
        for (const auto row : {cbr::result::At01, cbr::result::At02}) sheet.mshLPC(row, mold) = std::to_string(mold);
    }
    for (const char* highest : {"123.9", "124.9", "125.9", "133.9"}) {
        sheet.mshLPC(cbr::result::DryDensity, 3) = highest;
        sheet.lbl01.Press();
        ExpectApart(sheet.picGraph2, "Dry Density, g/cm^3", 2);
    }
}

TEST_F(LabelsApart, WhereASoilIsWetterThanItIsHeavy)
{
    frmCompaction& sheet = lab.OpenSheet();
    for (const char* wettest : {"28", "95", "180", "1200"}) {
        const std::vector<std::string_view> water{"10", "14", wettest}, density{"1.60", "1.75", "1.70"};
        for (int trial = 1; trial <= 3; ++trial) {
            const auto i = static_cast<std::size_t>(trial) - 1;
            sheet.MSHDensity(compaction::density::Mold, trial) = "1";
            sheet.MSHDensity(compaction::density::WaterContent, trial) = water[i];
            sheet.MSHDensity(compaction::density::DryDensity, trial) = density[i];
        }
        sheet.cmdOMC.Press();
        ExpectApart(sheet.picgraph1, "Water Content , %", 5);
    }
}

TEST_F(LabelsApart, WhereATemperatureIsASlipOfThePen)
{
    auto& sheet = lab.Open<frmSpecific>("frmSpecific", terravane::Test::SpcSoil);
    for (const char* warmest : {"30", "100", "3000", "30000000"}) {
        TypeColumn(sheet.txtData, 1, calibration::FlaskAndWater, {"659", "658", "657"});
        TypeColumn(sheet.txtData, 1, calibration::Temperature, {"20", "25", warmest});
        sheet.optLin.Choose();
        sheet.cmdgraph.Press();
        ExpectApart(sheet.picGraph, "Temperature (Degree Celsius)", 3);
    }
}

}  // namespace
}  // namespace terravane
