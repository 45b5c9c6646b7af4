#include "controls/furniture.h"

#include <gtest/gtest.h>

#include "unit/controls/plain_form.h"
#include "unit/runtime/raises.h"

namespace terravane {
namespace {

struct BarForm : PlainForm {
    TabControl SSTData{*this, "SSTData", {"Data", "Curve"}};
    Toolbar tblMenu{*this, "tblMenu", {{"", "Save File", "Save File", {}, false}, {"", "Exit Screen", "", {}}}};
    Toolbar tbrLab{*this, "tbrLab", {{"mnuStd", "Std. Compaction", "", {{"mnuStd1", "Soil", "", {}}}}}};
    StatusBar stbDes{*this, "stbDes", 2};
    MenuEntry mnuNew{*this, "mnuNew", "New File", "mnuFile"};
    MenuEntry mnuDash1{*this, "mnuDash1", "-", "mnuFile"};
    Timer Timer1{*this, "Timer1", std::chrono::milliseconds(1000)};
    ScrollBar vsbPage{*this, "vsbPage"};
    Label lblMold1{*this, "lblMold1", "Mold 1"};
};

TEST(TabControl, TellsWhichTabWasLeft)
{
    BarForm form;
    std::vector<int> left;
    form.SSTData.TabChanged = [&](int previous) { left.push_back(previous); };
    form.SSTData.SetTab(1);
    form.SSTData.SetTab(1);
    form.SSTData.SetTab(0);
    EXPECT_EQ(left, (std::vector<int>{0, 1}));
    EXPECT_EQ(ErrorOf([&] { form.SSTData.SetTab(2); }), error::kInvalidProcedureCall);
    EXPECT_EQ(form.SSTData.Tab(), 0);
}

TEST(TabControl, HasTabsThatCanBeDisabled)
{
    BarForm form;
    EXPECT_TRUE(form.SSTData.TabEnabled(1));
    form.SSTData.SetTabEnabled(1, false);
    EXPECT_FALSE(form.SSTData.TabEnabled(1));
    EXPECT_TRUE(form.SSTData.TabEnabled(0));
    EXPECT_EQ(form.SSTData.TabCaption(1), "Curve");
}

TEST(TabControl, NobodyComesToWhatStandsOnADisabledTab)
{
    BarForm form;
    form.SSTData.Hold(1, {&form.lblMold1});
    EXPECT_TRUE(form.SSTData.Reaches(form.lblMold1)) << "A tab that is not in front is one press away.";
    form.SSTData.SetTabEnabled(1, false);
    EXPECT_FALSE(form.SSTData.Reaches(form.lblMold1));
    EXPECT_TRUE(form.SSTData.Reaches(form.tblMenu)) << "It stands on no tab.";
    form.SSTData.SetTabEnabled(1, true);
    EXPECT_TRUE(form.SSTData.Reaches(form.lblMold1));
}

TEST(Toolbar, CountsItsButtonsFromOne)
{
    BarForm form;
    std::vector<int> pressed;
    form.tblMenu.ButtonClick = [&](int number) { pressed.push_back(number); };
    form.tblMenu.Press(2);
    EXPECT_EQ(pressed, std::vector<int>{2});
    EXPECT_EQ(ErrorOf([&] { form.tblMenu.Press(0); }), error::kSubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([&] { form.tblMenu.Press(3); }), error::kSubscriptOutOfRange);
}

TEST(Toolbar, IgnoresADisabledButtonAndADisabledBar)
{
    BarForm form;
    int pressed = 0;
    form.tblMenu.ButtonClick = [&](int) { ++pressed; };
    form.tblMenu.Press(1);
    EXPECT_EQ(pressed, 0) << "Save is disabled before a sheet is filled.";
    form.tblMenu.SetButtonEnabled(1, true);
    form.tblMenu.Press(1);
    EXPECT_EQ(pressed, 1);
    form.tblMenu.SetEnabled(false);
    form.tblMenu.Press(1);
    EXPECT_EQ(pressed, 1);
}

TEST(Toolbar, ActsThroughTheItemsThatDropDown)
{
    BarForm form;
    std::vector<std::string> keys;
    form.tbrLab.ButtonClick = [](int) { FAIL() << "A button with items only drops them down."; };
    form.tbrLab.ItemClick = [&](const std::string& key) { keys.push_back(key); };
    form.tbrLab.Press(1);
    EXPECT_TRUE(form.tbrLab.PressItem("mnuStd1"));
    EXPECT_FALSE(form.tbrLab.PressItem("mnuStd3"));
    EXPECT_EQ(keys, std::vector<std::string>{"mnuStd1"});
    form.tbrLab.SetEnabled(false);
    EXPECT_TRUE(form.tbrLab.PressItem("mnuStd1"));
    form.tbrLab.SetEnabled(true);
    form.tbrLab.SetButtonEnabled(1, false);
    EXPECT_TRUE(form.tbrLab.PressItem("mnuStd1"));
    EXPECT_EQ(keys.size(), 1U) << "Nothing acts while bar or button is disabled.";
}

TEST(StatusBar, HasPanelsFromOne)
{
    BarForm form;
    form.stbDes.SetPanel(1, "Database File is x");
    form.stbDes.SetPanel(2, "12 : 00 : 00");
    EXPECT_EQ(form.stbDes.Text(), "Database File is x");
    EXPECT_EQ(form.stbDes.Panel(2), "12 : 00 : 00");
    EXPECT_THROW(form.stbDes.SetPanel(3, ""), std::out_of_range);
}

TEST(MenuEntry, KnowsSeparatorsAndRunsItsClick)
{
    BarForm form;
    int clicks = 0;
    form.mnuNew.Click = [&] { ++clicks; };
    form.mnuNew.Press();
    form.mnuNew.SetEnabled(false);
    form.mnuNew.Press();
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(form.mnuDash1.IsSeparator());
    EXPECT_FALSE(form.mnuNew.IsSeparator());
    EXPECT_EQ(form.mnuNew.Parent(), "mnuFile");
}

TEST(Timer, TicksWhileItIsEnabled)
{
    BarForm form;
    int ticks = 0;
    form.Timer1.Ticked = [&] { ++ticks; };
    form.Timer1.Tick();
    form.Timer1.SetEnabled(false);
    form.Timer1.Tick();
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(form.Timer1.Interval().count(), 1000);
}

TEST(ScrollBar, StaysBetweenNoughtAndItsMaximum)
{
    BarForm form;
    int changes = 0;
    form.vsbPage.Change = [&] { ++changes; };
    form.vsbPage.SetMaximum(100);
    form.vsbPage.SetValue(250);
    EXPECT_EQ(form.vsbPage.Value(), 100);
    form.vsbPage.SetValue(100);
    EXPECT_EQ(changes, 1);
    form.vsbPage.SetMaximum(40);
    EXPECT_EQ(form.vsbPage.Value(), 40) << "A smaller maximum takes the value along.";
    form.vsbPage.SetValue(-5);
    EXPECT_EQ(form.vsbPage.Value(), 0);
}

TEST(Label, CanBePressed)
{
    BarForm form;
    int clicks = 0;
    form.lblMold1.Click = [&] { ++clicks; };
    form.lblMold1.Press();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(form.lblMold1.Text(), "Mold 1");
}

}  // namespace
}  // namespace terravane
