#include "controls/control_properties.h"

#include <gtest/gtest.h>

#include "controls/choice_controls.h"
#include "controls/furniture.h"
#include "controls/text_controls.h"
#include "controls/text_grid.h"
#include "unit/controls/plain_form.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

struct PropertyForm : PlainForm {
    TextBox txtSoil{*this, "txtSoil", "Sample", "S-1"};
    ComboBox cboSr{*this, "cboSr", "Air Voids", {"0%", "20%"}, "0%"};
    DatePicker DTPDate{*this, "DTPDate"};
    OptionButton optInt{*this, "optInt", "Interpolation", "method", true};
    CheckBox chkSatLine{*this, "chkSatLine", "AV Line"};
    TextGrid MSHWt{*this, "MSHWt", 8, 7};
    TabControl SSTData{*this, "SSTData", {"Data", "Curve"}};
    ScrollBar vsbPage{*this, "vsbPage"};
    ListBox lstSieve{*this, "lstSieve", {"No.4"}};
};

using Answer = std::optional<PropertyValue>;

TEST(ControlProperties, AreReadByNameOfEachKind)
{
    PropertyForm form;
    form.DTPDate.SetText("5/3/2026");
    form.SSTData.SetTabEnabled(1, false);
    EXPECT_EQ(ReadProperty(form.txtSoil, "Text"), Answer(std::string("S-1")));
    EXPECT_EQ(ReadProperty(form.txtSoil, "Caption"), Answer(std::string("Sample")));
    EXPECT_EQ(ReadProperty(form.txtSoil, "Enabled"), Answer(true));
    EXPECT_EQ(ReadProperty(form.txtSoil, "visible"), Answer(true)) << "Names go without regard to case.";
    EXPECT_EQ(ReadProperty(form.txtSoil, "Locked"), Answer(false));
    EXPECT_EQ(ReadProperty(form.optInt, "Value"), Answer(true));
    EXPECT_EQ(ReadProperty(form.chkSatLine, "Value"), Answer(false));
    EXPECT_EQ(ReadProperty(form.DTPDate, "Value"), Answer(std::string("05/03/2026")));
    EXPECT_EQ(ReadProperty(form.vsbPage, "Value"), Answer(0));
    EXPECT_EQ(ReadProperty(form.cboSr, "ListCount"), Answer(2));
    EXPECT_EQ(ReadProperty(form.cboSr, "List", 1), Answer(std::string("20%")));
    EXPECT_EQ(ReadProperty(form.lstSieve, "List", 0), Answer(std::string("No.4")));
    EXPECT_EQ(ReadProperty(form.MSHWt, "Rows"), Answer(8));
    EXPECT_EQ(ReadProperty(form.MSHWt, "Cols"), Answer(7));
    EXPECT_EQ(ReadProperty(form.SSTData, "Tab"), Answer(0));
    EXPECT_EQ(ReadProperty(form.SSTData, "TabEnabled", 0), Answer(true));
    EXPECT_EQ(ReadProperty(form.SSTData, "TabEnabled", 1), Answer(false));
}

TEST(ControlProperties, GiveColoursAsTextAndNothingForThePlatformsOwn)
{
    PropertyForm form;
    EXPECT_EQ(ReadProperty(form.txtSoil, "BackColor"), Answer(std::string()));
    form.txtSoil.SetBackColor(Colour{255, 192, 128});
    form.txtSoil.SetForeColor(kRed);
    EXPECT_EQ(ReadProperty(form.txtSoil, "BackColor"), Answer(std::string("#FFC080")));
    EXPECT_EQ(ReadProperty(form.txtSoil, "ForeColor"), Answer(std::string("#FF0000")));
}

TEST(ControlProperties, AreNoneWhereTheKindHasNoSuchThing)
{
    PropertyForm form;
    EXPECT_EQ(ReadProperty(form.txtSoil, "Rows"), std::nullopt);
    EXPECT_EQ(ReadProperty(form.MSHWt, "Value"), std::nullopt);
    EXPECT_EQ(ReadProperty(form.MSHWt, "List", 0), std::nullopt);
    EXPECT_EQ(ReadProperty(form.txtSoil, "Colour"), std::nullopt);
}

TEST(ControlProperties, FailForAnIndexOutside)
{
    PropertyForm form;
    EXPECT_EQ(ErrorOf([&] { ReadProperty(form.cboSr, "List", 2); }), error::kSubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { ReadProperty(form.cboSr, "List", -1); }), error::kSubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { ReadProperty(form.SSTData, "TabEnabled", 2); }), error::kSubscriptOutOfRange);
}

}  // namespace
}  // namespace terravane
