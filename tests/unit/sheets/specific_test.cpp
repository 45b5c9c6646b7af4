// The specific gravity sheet. Masses in g, temperatures in °C. Figures are worked by hand, or, where a comment says
// "script", by a second program with the cells of the normal equations rounded to single precision.
#include <array>
#include <cmath>

#include <gtest/gtest.h>

#include "runtime/numbers.h"
#include "sheets/specific/frmSpecific.h"
#include "sheets/specific/water_density.h"
#include "support/drawn_items.h"
#include "support/laboratory.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

using namespace support;

using Reading = std::array<std::string_view, 2>;  // mass of flask and water, temperature

/// Temperature, flask with water and soil, container's number, container with dry soil, container.
using GravityTrial = std::array<std::string_view, 5>;

/// A bottle of 100 ml (soiltestr, bottle 3), calibrated over one and a half degrees.
const std::vector<Reading> kBottle{{"133.649", "21.6"}, {"133.647", "21.8"}, {"133.647", "21.9"},
                                   {"133.642", "22.2"}, {"133.642", "22.4"}, {"133.622", "23.1"}};
constexpr GravityTrial kSilicaSand{"20.6", "152.52", "3", "30.257", "0"};

/// A student's pycnometer of 50 ml.
const std::vector<Reading> kPycnometer{{"65.18", "15"}, {"65.15", "18"}, {"65.12", "21"},
                                       {"65.08", "24"}, {"65.04", "27"}, {"65.0", "30"}};
constexpr GravityTrial kSiltySand{"18", "81.65", "1", "40.38", "14.08"};

/// A flask of 500 ml over a wide range.
const std::vector<Reading> kFlask{{"659.98", "20"}, {"659.70", "23"}, {"659.32", "26"}, {"658.74", "30"},
                                  {"658.10", "34"}, {"657.39", "38"}, {"656.60", "42"}};

/// Readings on a straight line: linear and polynomial explain all of it, R² = 1 each, the exponential less.
const std::vector<Reading> kStraight{{"690", "10"}, {"688", "12"}, {"686", "14"}, {"682", "18"}};

struct Specific : testing::Test {
    Laboratory lab;
    frmSpecific& sheet = lab.Open<frmSpecific>("frmSpecific", terravane::Test::SpcSoil);

    void Type(const std::vector<Reading>& readings)
    {
        for (int row = 1; row <= kCalibrationReadings; ++row) {
            const auto i = static_cast<std::size_t>(row) - 1;
            const Reading typed = i < readings.size() ? readings[i] : Reading{"", ""};
            TypeCell(sheet.txtData, row, calibration::FlaskAndWater, typed[0]);
            TypeCell(sheet.txtData, row, calibration::Temperature, typed[1]);
        }
    }

    void Type(int trial, const GravityTrial& typed)
    {
        constexpr std::array kRows{gravity::Temperature, gravity::FlaskWaterAndSoil, gravity::ContainerNumber,
                                   gravity::DryAndContainer, gravity::Container};
        for (std::size_t i = 0; i < kRows.size(); ++i) TypeCell(sheet.txtData1, kRows[i], trial, typed[i]);
    }

    std::string Fit(OptionButton& option)
    {
        option.Choose();
        sheet.cmdgraph.Press();
        return sheet.txtFormula.Text() + ";" + sheet.txtR.Text();
    }

    /// Trials of 100 g at these temperatures, with a curve of y = 690 + 0x.
    void GravitiesAt(const std::vector<std::string_view>& temperatures)
    {
        Type({{"690", "20"}, {"690", "30"}, {"690.01", "40"}});
        Fit(sheet.optPol);
        for (std::size_t i = 0; i < temperatures.size(); ++i)
            Type(static_cast<int>(i) + 1, {temperatures[i], "752", "A", "100", "0"});
        sheet.cmdCal.Press();
    }

    std::string LastMessage() const
    {
        if (lab.ask.messages.empty()) return "";
        const Message& message = lab.ask.messages.back();
        return message.title + ": " + message.text;
    }

    std::string PostedGravity(std::size_t row = 0) const { return lab.Posted("sum_Gs", row); }
};

// Script: all three.
TEST_F(Specific, PublishedBottleOverANarrowRange)
{
    Type(kBottle);
    EXPECT_EQ(Fit(sheet.optExp), " y = 134.04e^(-0.000133x); 0.9206");
    EXPECT_EQ(Fit(sheet.optLin), " y = 134.04 + (-0.017752x); 0.9206");
    EXPECT_EQ(Fit(sheet.optPol), " y = 111.80 + (1.972280x) + (-0.044498x^2); 0.2671")
        << "single precision shows where the range is narrow";
}

// The sand's grains are silica: 2.65. The flask's mass at 20.6 °C is 134.04 - 0.017752 × 20.6 = 133.67, the factor that
// of 20 °C, 0.9982 / 0.9982343 = 0.99997. 30.26 / (133.67 + 30.26 - 152.52) = 2.652.
TEST_F(Specific, PublishedSilicaSand)
{
    Type(kBottle);
    Type(1, kSilicaSand);
    Fit(sheet.optAut);
    EXPECT_TRUE(sheet.optLin.Value());
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::FlaskAndWater), "133.67||");
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::DrySoil), "30.26||");
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Correction), "1.0000||");
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Gravity), "2.65||");
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Average), "2.65||");
    EXPECT_EQ(PostedGravity(), "2.65");
}

// Published 2.6805 with 0.9988 for the factor; with 0.9986 / 0.9982343 = 1.0004 it is 2.685.
// 1.0004 × 26.30 / (65.15 + 26.30 - 81.65) = 2.6847.
TEST_F(Specific, PublishedSiltySand)
{
    Type(kPycnometer);
    Type(1, kSiltySand);
    EXPECT_EQ(Fit(sheet.optExp), " y = 65.37e^(-0.000186x); 0.9953");
    EXPECT_EQ(Fit(sheet.optLin), " y = 65.37 + (-0.012095x); 0.9953");
    EXPECT_EQ(Fit(sheet.optPol), " y = 65.28 + (-0.004249x) + (-0.000174x^2); 0.9995");
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::FlaskAndWater), "65.15||");
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Correction), "1.0004||");
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Average), "2.68||");
    EXPECT_NEAR(Val(PostedGravity()), 2.6805, 0.01);
}

// Script. In double the polynomial would be 661.01 + (-0.000840x) + (-0.002483x^2).
TEST_F(Specific, FlaskOverAWideRange)
{
    Type(kFlask);
    EXPECT_EQ(Fit(sheet.optExp), " y = 663.27e^(-0.000235x); 0.9900");
    EXPECT_EQ(Fit(sheet.optLin), " y = 663.25 + (-0.154499x); 0.9901");
    EXPECT_EQ(Fit(sheet.optPol), " y = 661.02 + (-0.001900x) + (-0.002466x^2); 0.9999");
}

TEST_F(Specific, AutoChoosesTheModelThatExplainsMost)
{
    Type(kFlask);
    sheet.cmdgraph.Press();
    EXPECT_TRUE(sheet.optPol.Value());
    EXPECT_FALSE(sheet.optAut.Value());
    EXPECT_EQ(sheet.txtR.Text(), " 0.9999") << "fitted anew after the choice had emptied the boxes";
    Type({{"100", "0"}, {"200", "10"}, {"400", "20"}, {"800", "30"}});
    Fit(sheet.optAut);
    EXPECT_TRUE(sheet.optExp.Value()) << "doubling every ten degrees";
    EXPECT_EQ(sheet.txtFormula.Text(), " y = 100.00e^(0.069315x)") << "ln 2 / 10";
}

TEST_F(Specific, ATieForTheTopKeepsAutoAndThePolynomial)
{
    Type(kStraight);
    sheet.cmdgraph.Press();
    EXPECT_TRUE(sheet.optAut.Value());
    EXPECT_EQ(sheet.txtFormula.Text(), " y = 700.00 + (-1.000000x) + (0.000000x^2)");
    EXPECT_EQ(sheet.txtR.Text(), " 1.0000");
    Type(1, {"20", "740", "A", "100", "0"});
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::FlaskAndWater), "680.00||");
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Gravity), "2.50||") << "100 / (680 + 100 - 740)";
}

TEST_F(Specific, AnotherModelNeedsAnotherPlot)
{
    Type(kFlask);
    Type(1, {"25", "721.50", "A", "100", "0"});
    Fit(sheet.optLin);
    sheet.optExp.Choose();
    EXPECT_EQ(sheet.txtFormula.Text() + sheet.txtR.Text(), "");
    sheet.cmdCal.Press();
    EXPECT_EQ(LastMessage(), "Warning: กรุณากดปุ่ม Plot Graph Calibration ก่อน");
    EXPECT_EQ(lab.ask.messages.back().style, MessageStyle::Information);
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::DrySoil), "||") << "nothing else happens";
    EXPECT_EQ(PostedGravity(), "   ");
}

TEST_F(Specific, TheSameModelPressedAgainClearsTheEquationToo)
{
    Type(kFlask);
    Fit(sheet.optLin);
    ASSERT_NE(sheet.txtFormula.Text(), "");
    sheet.optLin.Press();
    EXPECT_EQ(sheet.txtFormula.Text() + sheet.txtR.Text(), "");
}

// Script: 658.6124, 658.6134, 658.7484 at 30 °C.
TEST_F(Specific, CurveOfTheChosenModelIsUsed)
{
    Type(kFlask);
    Type(1, {"30", "721.00", "A", "100", "0"});
    for (const auto& [option, mass] :
         {std::pair{&sheet.optExp, "658.61"}, std::pair{&sheet.optLin, "658.61"}, std::pair{&sheet.optPol, "658.75"}}) {
        Fit(*option);
        sheet.cmdCal.Press();
        EXPECT_EQ(sheet.MSHSpecific(gravity::FlaskAndWater, 1), mass) << option->Name();
    }
}

TEST_F(Specific, FirstTemperatureThatIsMissingEndsTheTrials)
{
    GravitiesAt({"25", "", "30"});
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Correction), "0.9989||") << "0.9971 / 0.9982343 = 0.99886";
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Average), RowOf(sheet.MSHSpecific, gravity::Gravity))
        << "one trial is its own mean";
}

// 100 / (690 + 100 - 752) = 2.6316 times the factor.
TEST_F(Specific, AverageIsAPlainMean)
{
    GravitiesAt({"20", "36", "40"});
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Correction), "1.0000|0.9916|0.9940");
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Gravity), "2.63|2.61|2.62");
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Average), "2.62|2.62|2.62") << "(2.63 + 2.61 + 2.62) / 3";
    EXPECT_EQ(PostedGravity(), "2.62");
}

TEST_F(Specific, FortySixDegreesHaveNoDensity)
{
    GravitiesAt({"46"});
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Correction), "0.0000||");
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Gravity), ".00||");
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Average), "0.00||");
    EXPECT_EQ(PostedGravity(), "0.00");
}

TEST_F(Specific, GravityBelowOneHasNoZeroBeforeThePoint)
{
    Type(kStraight);
    Fit(sheet.optLin);
    Type(1, {"20", "580", "A", "100", "0"});
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Gravity), ".50||") << "100 / (680 + 100 - 580)";
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Average), "0.50||");
}

TEST_F(Specific, TemperatureOfOneDigitCountsAsTens)
{
    GravitiesAt({"9", "25.5", "25"});
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Correction), "0.9670|0.9989|0.9989") << "90 °C; 25 °C twice";
}

TEST_F(Specific, TemperatureOfThreeDigitsIsNotInTheTable)
{
    GravitiesAt({"125"});
    ASSERT_EQ(lab.ask.errors.size(), 1u);
    EXPECT_EQ(lab.ask.errors.back().number, error::kSubscriptOutOfRange);
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::DrySoil), "100.00||");
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Correction), "||");
}

TEST_F(Specific, NoTrialPostsTheCellAsItStands)
{
    Type(kFlask);
    sheet.cmdgraph.Press();
    sheet.cmdCal.Press();
    EXPECT_TRUE(lab.ask.errors.empty());
    EXPECT_EQ(PostedGravity(), "");
}

TEST_F(Specific, NothingDisplacedIsAnError)
{
    Type(kStraight);
    Fit(sheet.optLin);
    Type(1, {"20", "780", "A", "100", "0"});
    sheet.cmdCal.Press();
    ASSERT_EQ(lab.ask.errors.size(), 1u);
    EXPECT_EQ(lab.ask.errors.back(), (Untrapped{"frmSpecific.cmdCal_Click", 11, "Division by zero"}));
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::Correction), "1.0000||") << "what came before stands";
    EXPECT_EQ(PostedGravity(), "   ");
}

TEST_F(Specific, FailuresOfThePlotAreShownInABox)
{
    struct Case {
        std::vector<Reading> readings;
        OptionButton* option;
        std::string message;
    };
    const std::vector<Case> cases{
        {{}, &sheet.optLin, "Error: Overflow"},                                                        // 0/0
        {{{"659.98", "20"}}, &sheet.optLin, "Error: Overflow"},                                        // 0/0
        {{{"659.98", "25.3"}, {"659.9", "25.3"}, {"659", "25.3"}}, &sheet.optExp, "Error: Overflow"},  // 0/0
        {{{"659.98", "20"}, {"-659.70", "23"}}, &sheet.optExp, "Error: Invalid procedure call or argument"},
        {{{"659.98", "20"}, {"-659.70", "23"}}, &sheet.optAut, "Error: Invalid procedure call or argument"},
        {{{"650", "20"}, {"650", "24"}}, &sheet.optLin, "Error: Overflow"},  // no scatter: 0/0
    };
    for (const Case& each : cases) {
        lab.ask.messages.clear();
        Type(each.readings);
        each.option->Choose();
        sheet.cmdgraph.Press();
        EXPECT_EQ(LastMessage(), each.message);
        ASSERT_EQ(lab.ask.messages.size(), 1u);
        EXPECT_EQ(lab.ask.messages.back().style, MessageStyle::Critical);
        EXPECT_TRUE(lab.ask.errors.empty()) << "the plot traps its failures";
        EXPECT_EQ(sheet.txtFormula.Text(), "");
        EXPECT_FALSE(sheet.picGraph.Items().empty()) << "the plot stays as far as it got";
    }
}

TEST_F(Specific, NegativeMassIsNoHindranceForALine)
{
    Type({{"-1", "10"}, {"1", "20"}});
    EXPECT_EQ(Fit(sheet.optLin), " y = -3.00 + (0.200000x); 1.0000");
}

TEST_F(Specific, FirstMassThatIsMissingEndsTheReadings)
{
    Type({{"690", "10"}, {"688", "12"}, {"heavy", "13"}, {"100", "14"}});
    EXPECT_EQ(Fit(sheet.optLin), " y = 700.00 + (-1.000000x); 1.0000");
    EXPECT_EQ(ItemsOf<CircleItem>(sheet.picgraph1.Items()).size(), 2u);
}

TEST_F(Specific, FailedPlotLeavesTheLastCurveInForce)
{
    Type(kStraight);
    Fit(sheet.optLin);
    Type({});
    sheet.cmdgraph.Press();
    EXPECT_EQ(sheet.txtFormula.Text(), " y = 700.00 + (-1.000000x)");
    Type(1, {"20", "740", "A", "100", "0"});
    sheet.cmdCal.Press();
    EXPECT_EQ(RowOf(sheet.MSHSpecific, gravity::FlaskAndWater), "680.00||");
}

TEST_F(Specific, CurveRunsInTenthsFromTheColdestToTheWarmest)
{
    Type({{"690", "12.25"}, {"688", "10"}, {"686", "11"}});
    Fit(sheet.optLin);
    const auto curves = ItemsOf<PolylineItem>(sheet.picgraph1.Items());
    ASSERT_EQ(curves.size(), 1u);
    EXPECT_EQ(curves.front().points.size(), 24u) << "23 tenths from 10.0 to 12.2, and 12.25";
    EXPECT_EQ(curves.front().pen.colour, kBlue);
    const auto circles = ItemsOf<CircleItem>(sheet.picgraph1.Items());
    ASSERT_EQ(circles.size(), 3u);
    EXPECT_NEAR(curves.front().points.front().x, circles[1].x, 0.01);
    EXPECT_NEAR(curves.front().points.back().x, circles[0].x, 0.01);
    for (const CircleItem& circle : circles) {
        EXPECT_GT(circle.x, 40);
        EXPECT_LT(circle.x, 4710);
        EXPECT_GT(circle.y, 40);
        EXPECT_LT(circle.y, 3160);
    }
}

TEST_F(Specific, TicksHaveTheMasksOfTheirAxes)
{
    Type(kPycnometer);
    Fit(sheet.optPol);
    EXPECT_EQ(TextsOf(sheet.picGraph.Items(), "065.10").size(), 1u);
    EXPECT_EQ(TextsOf(sheet.picGraph.Items(), "20.00").size(), 1u);
    EXPECT_EQ(TextsOf(sheet.picGraph.Items(), "Temperature (Degree Celsius)").size(), 1u);
    const TextItem title = TextOn(sheet.picGraph.Items(), "Weight of Water + Flask (g)");
    EXPECT_EQ(title.angle, 90);
    for (const TextItem& text : ItemsOf<TextItem>(sheet.picGraph.Items())) {
        if (text.angle != 0) continue;
        EXPECT_GT(text.x, title.x + TextHeight(title.font)) << text.text << " runs into the turned title";
        EXPECT_LT(text.x + TextWidth(text.font, text.text), 5820) << text.text << " runs over the frame";
    }
}

TEST_F(Specific, SavedReadingsComeBackInTwoLists)
{
    Type(kFlask);
    Type(1, kSilicaSand);
    Type(3, kSiltySand);
    sheet.MSHSpecific(gravity::Average, 1) = "2.65";
    sheet.tblMenu.Press(1);
    EXPECT_EQ(lab.StoredColumn("SPCSOIL", "spc_fwater").back(), "656.60");
    EXPECT_EQ(lab.StoredColumn("SPCSOIL", "spc_temp1"),
              (std::vector<std::string>{"20", "23", "26", "30", "34", "38", "42"}));
    EXPECT_EQ(lab.StoredColumn("SPCSOIL", "spc_temp2"),
              (std::vector<std::string>{"20.6", "   ", "18", "   ", "   ", "   ", "   "}))
        << "rows 4 to 7 keep the seed";
    EXPECT_EQ(lab.StoredColumn("SPCSOIL", "spc_can").at(2), "1");
    EXPECT_EQ(lab.StoredColumn("SPCSOIL", "spc_gs"),
              (std::vector<std::string>{"2.65", "", "", "   ", "   ", "   ", "   "}));
    EXPECT_EQ(lab.StoredColumn("SPCCRUSH", "spc_fwater").front(), "   ");

    auto& again = lab.Open<frmSpecific>("frmSpecific", terravane::Test::SpcSoil);
    EXPECT_EQ(again.MSHCalibration(7, calibration::FlaskAndWater), "656.60");
    EXPECT_EQ(again.MSHCalibration(7, calibration::Temperature), "42");
    EXPECT_EQ(again.MSHCalibration(7, calibration::Number), "7");
    EXPECT_EQ(again.MSHSpecific(gravity::FlaskWaterAndSoil, 3), "81.65");
    EXPECT_EQ(again.MSHSpecific(gravity::Temperature, 2), "   ") << "lists are not trimmed";
    EXPECT_EQ(again.MSHSpecific(gravity::Average, 1), "") << "saved only";
    EXPECT_TRUE(again.optAut.Value());
}

TEST_F(Specific, HeadsAndTitles)
{
    EXPECT_EQ(sheet.MSHCalibration(0, 1), "Flask + Water\n(g)");
    EXPECT_EQ(sheet.MSHCalibration(0, 2), "Temperature\n(celsius)");
    EXPECT_EQ(sheet.MSHSpecific(gravity::Gravity, 0), "Specific Gravity at 20 Degree Celsius, Gs");
    EXPECT_EQ(sheet.MSHSpecific.Rows(), 11);
    EXPECT_EQ(sheet.MSHSpecific.Columns(), 4);
}

TEST_F(Specific, EditorPassesTheRowOfTheCurve)
{
    TypeCell(sheet.txtData1, gravity::Temperature, 1, " 25 ");
    EXPECT_EQ(sheet.MSHSpecific(gravity::Temperature, 1), "25");
    EXPECT_EQ(sheet.MSHSpecific.Row(), gravity::FlaskWaterAndSoil);
    sheet.MSHSpecific.PressMouse(MouseButton::Left, gravity::FlaskAndWater, 1);
    EXPECT_FALSE(sheet.txtData1.Visible());
    TypeCell(sheet.txtData, 7, calibration::FlaskAndWater, "650");
    EXPECT_EQ(sheet.MSHCalibration.Row(), 1);
    EXPECT_EQ(sheet.MSHCalibration.Column(), calibration::Temperature);
}

TEST(WaterDensity, IsThatOfWaterButForTwoTemperatures)
{
    for (const auto& [temperature, density] :
         {std::pair{"10", 0.9997}, std::pair{"19", 0.9984}, std::pair{"20", 0.9982}, std::pair{"37", 0.9934},
          std::pair{"36", 0.9898}, std::pair{"46", 0.0}, std::pair{"99", 0.9591}, std::pair{"04", 1.0},
          std::pair{"9", 0.9653}, std::pair{"25.9", 0.9971}, std::pair{"2.", 0.9982}, std::pair{"", 0.9999}}) {
        EXPECT_EQ(WaterDensity(temperature), static_cast<float>(density)) << temperature;
    }
}

// The method's table of g/cm³, row by row from 0 °C. At 36 °C it has the figure of 46 °C, which itself is missing.
constexpr std::array<std::array<const char*, 10>, 10> kWaterTable{{
    {"0.9999", "0.9999", "1.0000", "1.0000", "1.0000", "1.0000", "1.0000", "0.9999", "0.9999", "0.9999"},
    {"0.9997", "0.9996", "0.9995", "0.9994", "0.9993", "0.9991", "0.9990", "0.9988", "0.9986", "0.9984"},
    {"0.9982", "0.9980", "0.9978", "0.9976", "0.9973", "0.9971", "0.9968", "0.9965", "0.9963", "0.9960"},
    {"0.9957", "0.9954", "0.9951", "0.9947", "0.9944", "0.9941", "0.9898", "0.9934", "0.9930", "0.9926"},
    {"0.9922", "0.9919", "0.9915", "0.9911", "0.9907", "0.9902", "0.0000", "0.9894", "0.9890", "0.9885"},
    {"0.9881", "0.9876", "0.9872", "0.9867", "0.9862", "0.9857", "0.9852", "0.9848", "0.9842", "0.9838"},
    {"0.9832", "0.9827", "0.9822", "0.9817", "0.9811", "0.9806", "0.9800", "0.9795", "0.9789", "0.9784"},
    {"0.9778", "0.9772", "0.9767", "0.9761", "0.9755", "0.9749", "0.9743", "0.9737", "0.9731", "0.9724"},
    {"0.9718", "0.9712", "0.9706", "0.9699", "0.9693", "0.9686", "0.9680", "0.9673", "0.9667", "0.9660"},
    {"0.9653", "0.9647", "0.9640", "0.9633", "0.9626", "0.9619", "0.9612", "0.9605", "0.9598", "0.9591"},
}};

TEST(WaterDensity, IsTheTablesAtEveryDegree)
{
    for (std::size_t tens = 0; tens < 10; ++tens) {
        for (std::size_t units = 0; units < 10; ++units) {
            const std::string temperature = std::to_string(tens) + std::to_string(units);
            EXPECT_EQ(Format(WaterDensity(temperature), "0.0000"), kWaterTable[tens][units]) << temperature << " °C";
        }
    }
}

TEST(WaterDensity, FallsFromFourDegreesOn)
{
    for (int celsius = 10; celsius < 99; ++celsius) {
        if (celsius == 35 || celsius == 36 || celsius == 45 || celsius == 46) continue;
        EXPECT_GT(WaterDensity(std::to_string(celsius)), WaterDensity(std::to_string(celsius + 1))) << celsius;
    }
}

TEST(WaterDensity, UnitsOutsideTheTableFail)
{
    for (const char* temperature : {"125", " 25", "1-5"})
        EXPECT_EQ(ErrorOf([&] { WaterDensity(temperature); }), error::kSubscriptOutOfRange) << temperature;
}

// The quadratic's normal equations a second way: rounded rows as the method states them, eliminated one by one.
TEST(CalibrationFit, PolynomialFollowsTheRoundedNormalEquations)
{
    const CalibrationReadings readings{{20, 23, 26, 30, 34, 38, 42},
                                       {659.98, 659.70, 659.32, 658.74, 658.10, 657.39, 656.60}};
    float s[5] = {}, t[3] = {};
    for (std::size_t i = 0; i < 7; ++i) {
        for (int k = 0; k < 5; ++k) s[k] = static_cast<float>(s[k] + std::pow(readings.temperature[i], k));
        for (int k = 0; k < 3; ++k) {
            t[k] = static_cast<float>(t[k] + std::pow(readings.temperature[i], k) * readings.mass[i]);
        }
    }
    const double f21 = static_cast<double>(s[1]) / s[0], f31 = static_cast<double>(s[2]) / s[0];
    const float m22 = static_cast<float>(s[2] - f21 * s[1]), m23 = static_cast<float>(s[3] - f21 * s[2]);
    const float r2 = static_cast<float>(t[1] - f21 * t[0]), m32 = static_cast<float>(s[3] - f31 * s[1]);
    const float m33 = static_cast<float>(s[4] - f31 * s[2]), r3 = static_cast<float>(t[2] - f31 * t[0]);
    const double f32 = static_cast<double>(m32) / m22;
    const float n33 = static_cast<float>(m33 - f32 * m23), n3 = static_cast<float>(r3 - f32 * r2);
    const double c = static_cast<double>(n3) / n33, b = (r2 - m23 * c) / m22, a = (t[0] - s[1] * b - s[2] * c) / s[0];

    const CalibrationCurve curve = FitCalibration(CalibrationModel::Polynomial, readings);
    EXPECT_DOUBLE_EQ(curve.a, a);
    EXPECT_DOUBLE_EQ(curve.b, b);
    EXPECT_DOUBLE_EQ(curve.c, c);
}

TEST(CalibrationFit, SumBeyondSingleRangeOverflows)
{
    const CalibrationReadings readings{{1e10, 2e10, 3e10}, {1, 2, 3}};
    EXPECT_EQ(ErrorOf([&] { FitCalibration(CalibrationModel::Polynomial, readings); }), error::kOverflow);
}

}  // namespace
}  // namespace terravane
